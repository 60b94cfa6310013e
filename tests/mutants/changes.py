"""Small changes to a C++ source, each of the kind that a slip of the hand makes.

Works on text alone. It goes by the look that clang-format gives the sources: an operator of comparison stands between
blanks, which an angle bracket of a template doesn't."""

import re
from dataclasses import dataclass

KINDS = ("line", "comparison", "constant", "condition")

# Which comparison stands in for which: equality for its opposite, an order for the one that differs at the border.
TURNED = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">"}
JOINED = {"&&": "||", "||": "&&"}
TRUTH = {"true": "false", "false": "true"}

HIDDEN = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"|(?<![\w])u?8?\'(?:\\.|[^\'\\\n])+\''
    r"|^[ \t]*#(?:\\\n|[^\n])*", re.S | re.M)
NUMBER = re.compile(r"(?<![\w.'])(0x[0-9A-Fa-f]+|\d[\d']*)(?=[uUlL]*\b)(?![.\w'])")
# A statement that begins as a declaration does can't go alone: what it declares is needed further down.
DECLARATION = re.compile(
    r"(const|constexpr|auto|static|using|struct|class|enum|namespace|extern|friend|template|typedef|public|private)\b"
    r"|(?!return\b|throw\b|delete\b)[\w:<>,*& ]+[ *&]\w+( = .*|\(.*\)| \{.*|\[.*)?;$")
SCOPE = re.compile(r"\b(namespace|class|struct|union|enum)\b")


@dataclass(frozen=True)
class Change:
    kind: str
    begin: int  # offset in the source, in characters
    end: int
    text: str   # what takes the place of what stood between them

    def applied(self, source):
        return source[:self.begin] + self.text + source[self.end:]

    def line(self, source):
        return source.count("\n", 0, self.begin) + 1

    def told(self, source):
        """The changed line, before and after, without its indentation."""
        first = source.rfind("\n", 0, self.begin) + 1
        last = source.find("\n", self.end)
        before = source[first:last]
        after = source[first:self.begin] + self.text + source[self.end:last]
        return " ".join(before.split()), " ".join(after.split())


def masked(source):
    """The source with comments, texts and preprocessor lines blanked out, every other character in its place."""
    return HIDDEN.sub(lambda found: re.sub(r"[^\n]", "\0", found.group()), source)


def function_parts(code):
    """For every character whether it stands in a function's body."""
    inside = []
    open_braces = []
    head = 0
    for at, sign in enumerate(code):
        if sign == "}" and open_braces:
            open_braces.pop()
        inside.append("function" in open_braces)
        if sign == "{":
            before = code[head:at]
            is_scope = SCOPE.search(before) and "(" not in before
            is_body = before.rstrip("\0 \n").endswith((")", "const", "noexcept", "override")) or "\n    :" in before
            open_braces.append("scope" if is_scope else "function" if is_body else "list")
        if sign in "{};":
            head = at + 1
    return inside


def closing(code, opening):
    """Where the parenthesis that opens there closes."""
    depth = 0
    for at in range(opening, len(code)):
        depth += {"(": 1, ")": -1}.get(code[at], 0)
        if depth == 0:
            return at
    return -1


def swaps(code, kind, table, pattern):
    for found in re.finditer(pattern, code):
        yield Change(kind, found.start(), found.end(), table[found.group()])


def constants(code):
    yield from swaps(code, "constant", TRUTH, r"\b(?:true|false)\b")
    for found in NUMBER.finditer(code):
        text = found.group(1).replace("'", "")
        base, form = (16, "0x{:X}") if text.startswith("0x") else (8, "0{:o}") if text[0] == "0" != text else (10, "{}")
        for other in (int(text, base) + 1, int(text, base) - 1):
            if other >= 0:
                yield Change("constant", found.start(1), found.end(1), form.format(other))


def conditions(source, code):
    yield from swaps(code, "condition", JOINED, r"(?<=\s)(?:&&|\|\|)(?=\s)")
    for found in re.finditer(r"(?<![\w)\]])!(?=[\w(])", code):
        yield Change("condition", found.start(), found.end(), "")
    for found in re.finditer(r"\b(?:if|while) \(", code):
        opening = found.end() - 1
        end = closing(code, opening)
        inner = source[opening + 1:end]
        # What declares a name in its condition would no longer compile, and without its `!` it is turned already.
        declares = ";" in code[opening:end] or re.match(r"(const|auto)\b|[\w:]+ \*?\w+ = ", inner)
        turned = inner.startswith("!") and "&&" not in inner and "||" not in inner
        if end > 0 and not declares and not turned:
            yield Change("condition", opening, end + 1, f"(!({inner}))")


def lines(code):
    begin = 0
    before = ""
    for line in code.splitlines(keepends=True):
        text = line.strip()
        is_statement = text.endswith(";") and (not before or before[-1] in ";{}:)" or before.endswith("else"))
        # The last line of a statement that goes over several is no statement, nor is that of a loop's head.
        is_statement = is_statement and re.match(r"[A-Za-z_*]|\+\+|--", text) and text.count("(") == text.count(")")
        if is_statement and not DECLARATION.match(text) and not text.startswith("return "):
            start = begin + line.index(text)
            yield Change("line", start, start + len(text), "{}")
        if text.strip("\0"):
            before = text.rstrip("\0 ")
        begin += len(line)


def changes(source, kinds=KINDS):
    """All changes of these kinds, in the order in which they stand in the source."""
    code = masked(source)
    inside = function_parts(code)
    found = []
    if "line" in kinds:
        found += [change for change in lines(code) if inside[change.begin]]
    if "comparison" in kinds:
        found += [change for change in swaps(code, "comparison", TURNED, r"(?<=\s)(?:[=!<>]=|[<>])(?=\s)")]
    if "constant" in kinds:
        found += constants(code)
    if "condition" in kinds:
        found += [change for change in conditions(source, code) if inside[change.begin]]
    return sorted(found, key=lambda change: (change.begin, change.end, change.text))

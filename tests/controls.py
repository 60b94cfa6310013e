#!/usr/bin/env python3
"""The table of every named control of every screen: where its handler is, and which tests work it.

controls.py prints docs/controls.md as the sources have it; controls.py --check compares the one that is kept.
Either fails where a control that acts stands without a handler or without a test."""

import glob
import os
import re
import sys

# A screen, its sources, and the tests that drive it.
SCREENS = [
    ("PrimeraInstalacion", ["options/primerainstalacion.*"], ["tests/options/primerainstalacion_test.cpp"]),
    ("Portada", ["mainscreen/[!a]*.cpp", "mainscreen/a[!u]*.cpp", "mainscreen/portada.h", "options/pantallas.cpp",
                 "maintenance/bajas.cpp", "maintenance/pasos.cpp"],
     ["tests/mainscreen/*", "tests/support/portadatest.*", "tests/maintenance/*", "tests/options/*"]),
    ("Aumento", ["mainscreen/aumento.*"], ["tests/mainscreen/*", "tests/support/portadatest.*"]),
    ("Configuracion1", ["maintenance/configuracion1*"],
     ["tests/maintenance/configuracion1*", "tests/maintenance/configuraciontest.*", "tests/maintenance/recorrido*"]),
    ("Configuracion2", ["maintenance/configuracion2*"],
     ["tests/maintenance/configuracion2*", "tests/maintenance/grabacion*", "tests/maintenance/recorrido*"]),
    ("Opciones1", ["options/opciones1.*"], ["tests/options/opciones1_test.cpp", "tests/options/opcionestest.*"]),
    ("Opciones2", ["options/opciones2.*"], ["tests/options/opciones2_test.cpp"]),
    ("Utilidades", ["options/utilidades.*"], ["tests/options/utilidades_test.cpp"]),
    ("AcercaDe", ["options/acercade.*"], ["tests/options/acercade_test.cpp"]),
    ("Caja", ["dialogs/caja.*"], ["tests/dialogs/caja_test.cpp", "tests/dialogs/mensaje*"]),
    ("Examinar", ["dialogs/examinar.*"], ["tests/dialogs/examinar_test.cpp"]),
]

# What only shows. Of the labels and images these act all the same, and every other kind does.
DECORATIVE = {"Label", "Image", "Shape"}
ACTING = {"Portada": {"WEB1", "WEB2", "Titulo1", "Graf_TV", "Graf_Imagen", "IMGDescripcionLarga", "X2", "X3", "X4",
                      "X5", "OFF"}}
# Kept for their names alone: hidden and empty.
IDLE = {("Portada", "File1"), ("Portada", "Dir1"), ("PrimeraInstalacion", "File1")}

# What a user types or marks in may have its handler in another control's, which reads it; a menu is opened.
READ = {
    "TextBox": "Text", "TextArea": "SetText", "CheckBox": "Value", "OptionButton": "Value", "ListBox": "Text|ListIndex",
    "ComboBox": "Text|ListIndex", "DirectoryList": "Path", "PopupMenu": "Popup|PopupOver",
}
EVENTS = ("Release|Press|Cancel|Click|DblClick|Selection|Change|KeyDown|KeyEnter|MenuKey|MouseDown|MouseUp|MouseMove|GotFocus"
          "|Scroll")
# Where controls are looked at, not worked: their places, looks and names for screen readers, and lists of many.
LOOKING = {"disposicion_test.cpp", "retratos_test.cpp"}
LOOKED_AT = re.compile(r"designPlace|captionOf|placeOf|accessibleName|std::pair\(u\"\w+\"_s, u\"[SE]:"
                       r"|EXPECT_EQ\(form\.Control\(|(?:u\"\w+\"_s.*){4}")


class Source:
    def __init__(self, path):
        self.path = path
        with open(path, encoding="utf-8") as file:
            text = file.read()
        # Comments go; the lines stay where they are.
        self.text = re.sub(r"//[^\n]*", "", text)

    def function_at(self, position):
        """The function that holds a position: the last head ahead of it that stands at the margin."""
        heads = [m for m in re.finditer(r"^[A-Za-z][^\n;={}]*?([\w~]+)\([^;{}]*\)[^;{}]*\n\{", self.text, re.M)
                 if m.start() < position]
        return heads[-1].group(1) if heads else "?"


def sources_of(patterns):
    paths = sorted({path for pattern in patterns for path in glob.glob(pattern) if os.path.isfile(path)})
    return [Source(path) for path in paths if path.endswith((".cpp", ".h", ".py", ".sh"))]


def controls_of(screen, sources):
    """Name and kind, in the order of the screen's header, then those that no member holds."""
    found = {}
    for source in sources:
        if source.path.endswith(".h") and re.search(rf"class {screen} ", source.text):
            for kind, names in re.findall(r"^    (?:forms::)?([A-Z]\w+) (\*\w+(?:,\s*\*\w+)*);", source.text, re.M):
                for name in re.findall(r"\w+", names):
                    found[name] = kind
    own = {"PonSeparador": "Shape", "PonEtiqueta": "Label", "etiqueta": "Label", "palabra": "Label"}
    for source in sources:
        for call, name in re.findall(r"\b(\w+)\([^()\"]*?u\"(\w+)\"_s", source.text):
            if call in own:
                found.setdefault(name, own[call])
        for variable, name in re.findall(r"(\w+)->setObjectName\(u\"(\w+)\"_s\)", source.text):
            made = re.search(rf"\b{variable} = new forms::(\w+)", source.text)
            if made:
                found.setdefault(name, made.group(1))
        for kind, name in re.findall(r"\bcoloca\(new forms::(\w+)\([^()]*\), u\"(\w+)\"_s", source.text):
            found.setdefault(name, kind)
    return found


def shown_names(control, sources):
    """The name of a control, with that of its picture held down where it is a pair."""
    pair = re.compile(rf'u"{control}"(?:_s)?, u"(\w+)"(?:_s)?,')
    pressed = next((match.group(1) for match in (pair.search(source.text) for source in sources) if match), None)
    return f"{control} / {pressed}" if pressed else control


def called_at(source, position):
    """The function that the assigned handler begins with, none where it is more than a call."""
    body = re.match(r"(?:[\w>.\- ]+= )*\[[^\]]*\](?:\([^)]*\))? \{\s*(?:P\.)?(?!if|for)(\w+)\(",
                    source.text[position:].lstrip())
    return body.group(1) if body else None


def assignments(source, prefix):
    """Every (control, event, place of what is assigned) of a source, those made in a loop over controls too."""
    one = re.compile(rf"(?<![\w>.]){prefix}(\w+)->({EVENTS})\s*=(?!=)\s*")
    for match in one.finditer(source.text):
        yield match.group(1), match.group(2), match.end()
    loop = re.compile(r"for \([^;{}]*?[*&](\w+) :\s*(?:std::initializer_list<[^>]*> )?\{([^}]*)\}\)\s*\{?", re.S)
    for match in loop.finditer(source.text):
        body = re.compile(rf"\b{match.group(1)}->({EVENTS})\s*=\s*")
        end = source.text.find(";\n", match.end())
        for inner in body.finditer(source.text, match.end(), end if end > 0 else len(source.text)):
            for name in re.findall(r"\w+", match.group(2)):
                yield name, inner.group(1), inner.end()


def defined_in(name, sources):
    for source in sources:
        if re.search(rf"^[A-Za-z][^\n;]*::{name}\(", source.text, re.M):
            return source.path
    return None


def handlers_of(screen, sources, controls):
    """By control, the texts that tell its handlers."""
    told = {}
    for source in sources:
        outside = screen == "Portada" and not source.path.startswith("mainscreen/")
        for control, event, position in assignments(source, r"P\." if outside else ""):
            if control not in controls:
                continue
            called = called_at(source, position)
            place = defined_in(called, sources) if called else None
            where = f"{called}, {place}" if place else f"in {source.function_at(position)}, {source.path}"
            told.setdefault(control, []).append(f"{event}: {where}")
    return told


def reads_of(sources, controls):
    told = {}
    for control, kind in controls.items():
        for source in sources:
            match = re.search(rf"(?<![\w.>])(?:\w+->|P\.)?{control}->(?:{READ.get(kind, '-')})\(", source.text)
            if match:
                told[control] = f"used in {source.function_at(match.start())}, {source.path}"
                break
    return told


# A kind of the program's own brings its handlers with it.
def handlers_of_kind(kind):
    for path in sorted(glob.glob("options/*.cpp") + glob.glob("mainscreen/*.cpp")):
        source = Source(path)
        if re.search(rf"^{kind}::{kind}\(", source.text, re.M):
            return [f"{event}: {kind}, {path}" for event in re.findall(rf"^    ({EVENTS}) = \[", source.text, re.M)]
    return []


def tests_of(screen, control, tests):
    working = []
    name = rf"(?:{control}|{control[:-1]}%1)" if control[-1].isdigit() else control  # of a row, by their numbers
    anywhere = re.compile(rf"u\"{name}\"|[.>]\b{control}\b")
    main_screen = re.compile(rf"(?:control(?:<[^>]*>)?\(|open\()u\"{name}\"|portada->{control}\b")
    for test in tests:
        if os.path.basename(test.path) in LOOKING:
            continue
        elsewhere = screen == "Portada" and not test.path.startswith(("tests/mainscreen/", "tests/support/"))
        word = main_screen if elsewhere else anywhere
        if any(word.search(line) and not LOOKED_AT.search(line) for line in test.text.splitlines()):
            working.append(test.path)
    return working


def rows_of(screen, source_patterns, test_patterns, complaints):
    sources = sources_of(source_patterns)
    tests = sources_of(test_patterns)
    controls = controls_of(screen, sources)
    if not controls:
        complaints.append(f"{screen}: no control found")
    handlers = handlers_of(screen, sources, controls)
    reads = reads_of(sources, controls)
    for control, kind in controls.items():
        acts = (kind not in DECORATIVE or control in ACTING.get(screen, ())) and (screen, control) not in IDLE
        told = handlers.get(control) or handlers_of_kind(kind)
        if not told and control in reads:
            told = [reads[control]]
        working = tests_of(screen, control, tests)
        if acts and not told:
            complaints.append(f"{screen}.{control}: it acts, and has no handler")
        if acts and not working:
            complaints.append(f"{screen}.{control}: it acts, and no test works it")
        if told and kind in DECORATIVE and not acts:
            complaints.append(f"{screen}.{control}: it has a handler, and is told to only show")
        shows = "kept for its name" if (screen, control) in IDLE else "only shows"
        names = shown_names(control, sources) if kind == "PictureButton" else control
        if kind == "PictureButton" and names == control:
            complaints.append(f"{screen}.{control}: no name for its picture held down")
        yield names, kind, told if acts else [shows], working if acts else []


INTRODUCTION = """# The controls

Every named control of every screen, made from the sources by `tests/controls.py`, which the tests run too: one that
acts needs a handler and a test that works it. A picture pair stands under both its names, the one at rest first. A
handler is told by its event, its function and the file of that; one that is more than a call, by the function that
sets it. Of many tests four are told.
"""


def tables(complaints):
    """The lines, each with the names of the tests that may stand in its last column; None where there is none."""
    lines = [(line, None) for line in INTRODUCTION.split("\n")]
    for screen, source_patterns, test_patterns in SCREENS:
        heads = [f"## {screen}", "", "| Control | Kind | What it does | Tests |", "|---|---|---|---|"]
        lines += [(head, None) for head in heads]
        for control, kind, told, working in rows_of(screen, source_patterns, test_patterns, complaints):
            names = [f"`{os.path.basename(path)}`" for path in working]
            lines.append((f"| {control} | {kind} | {'; '.join(told)} | ", names))
        lines.append(("", None))
    return lines[:-1]


def written(line, names):
    return line if names is None else f"{line}{', '.join(names[:4])} |"


def is_current(kept, line, names):
    """A further test leaves the table true; one that works the control no more doesn't."""
    if names is None:
        return kept == line
    told = re.findall(r"`[^`]*`", kept[len(line):])
    return kept.startswith(line) and set(told) <= set(names) and bool(told) == bool(names)


def main(arguments):
    os.chdir(os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
    complaints = []
    lines = tables(complaints)
    if "--check" in arguments:
        with open("docs/controls.md", encoding="utf-8") as file:
            kept = file.read().split("\n")[:-1]
        if len(kept) != len(lines) or not all(is_current(k, *made) for k, made in zip(kept, lines)):
            complaints.append("docs/controls.md isn't up to date: tests/controls.py > docs/controls.md")
    else:
        print("\n".join(written(*made) for made in lines))
    for complaint in complaints:
        print(complaint, file=sys.stderr)
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

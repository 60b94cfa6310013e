#!/usr/bin/env python3
"""Makes small changes to the sources of core, launch and host, one at a time, and tells which no test notices.

It works on a copy of the tree, builds the preset dev there, and runs the test programs that a change touches.
README.md tells more, and what it found."""

import argparse
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

sys.dont_write_bytecode = True
import changes  # noqa: E402

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
FOLDERS = ("core", "launch", "host")
# A change may well leave something unused behind, or be one that the compiler warns of: the tests are asked all the same.
ALLOWED = "".join(f'#pragma GCC diagnostic ignored "-W{warning}"\n' for warning in (
    "unused-function", "unused-variable", "unused-parameter", "unused-but-set-variable", "unused-but-set-parameter",
    "unused-value", "parentheses", "empty-body", "maybe-uninitialized", "uninitialized", "type-limits",
    "sign-compare", "array-bounds", "stringop-overflow", "tautological-compare", "shift-count-overflow", "overflow",
    "narrowing", "logical-op", "int-in-bool-context", "bool-compare", "nonnull", "restrict", "div-by-zero"))
SETTINGS = {"LC_ALL": "C.UTF-8", "QT_SCALE_FACTOR": "1"}


class TestProgram:
    """A test program of one folder, as its CMakeLists.txt describes it."""

    def __init__(self, tree, folder, name, words):
        self.name = name
        self.path = f"tests/{folder}/{name}"
        self.screen = "SCREEN" in words
        self.sources = [os.path.join("tests", folder, word) for word in words if word.endswith(".cpp")]
        self.texts = [open(os.path.join(tree, source), encoding="utf-8").read() for source in self.sources]
        self.seconds = 0.0

    def touches(self, file):
        header = re.sub(r"\.cpp$", ".h", file)
        return any(f'#include "{header}"' in text for text in self.texts) or bool(self.suites(file))

    def suites(self, file):
        """The suites of the tests that are named after the file: they are tried first."""
        stem = os.path.splitext(os.path.basename(file))[0]
        found = set()
        for source, text in zip(self.sources, self.texts):
            if os.path.basename(source) in (f"{stem}_test.cpp", f"{stem}_tests.cpp"):
                found |= set(re.findall(r"^TEST(?:_[FP])?\((\w+),", text, re.M))
        return sorted(found)


def test_programs(tree):
    """The test programs of each folder."""
    programs = {}
    for folder in FOLDERS:
        text = open(os.path.join(tree, "tests", folder, "CMakeLists.txt"), encoding="utf-8").read()
        programs[folder] = [TestProgram(tree, folder, found.group(1), found.group(2).split())
                            for found in re.finditer(r"zembrolix_test\((\w+)\s+([^)]*)\)", text)]
    return programs


def touched(programs, file):
    own = programs[file.split("/")[0]]
    # Where no test names the file, all of its folder may work it.
    return [program for program in own if program.touches(file)] or own


def copied_tree(scratch):
    """A copy of the tree as it stands, with what isn't committed yet."""
    tree = tempfile.mkdtemp(prefix="zembrolix-mutants-", dir=scratch)
    os.chmod(tree, 0o755)  # some tests turn into another user
    listed = subprocess.run(["git", "-C", ROOT, "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                            check=True, capture_output=True).stdout
    for name in filter(None, os.fsdecode(listed).split("\0")):
        source = os.path.join(ROOT, name)
        if os.path.lexists(source):
            os.makedirs(os.path.dirname(os.path.join(tree, name)), exist_ok=True)
            shutil.copy2(source, os.path.join(tree, name), follow_symlinks=False)
    return tree


class Workshop:
    """The copy, its build, and the runs of its tests."""

    def __init__(self, tree, jobs, enclosed):
        self.tree = tree
        self.build = os.path.join(tree, "build", "dev")
        self.jobs = jobs
        self.enclosed = enclosed
        self.environment = dict(os.environ, CCACHE_BASEDIR=tree, CCACHE_NOHASHDIR="1")

    def configure(self):
        subprocess.run(["cmake", "--preset", "dev"], cwd=self.tree, env=self.environment, check=True,
                       stdout=subprocess.DEVNULL)

    def made(self, programs):
        """Builds these programs; returns what the compiler had to say against it, or nothing."""
        run = subprocess.run(["ninja", "-C", self.build, "-j", str(self.jobs)] + [program.name for program in programs],
                             env=self.environment, capture_output=True, text=True, errors="replace")
        return run.stdout if run.returncode != 0 else ""

    def passes(self, program, suites=(), limit=600.0):
        """Runs the program, or only some of its suites. False where a test fails, or none comes to an end."""
        command = [os.path.join(self.build, program.path), "--gtest_fail_fast", "--gtest_brief=1"]
        if suites:
            command.append("--gtest_filter=" + ":".join(f"{suite}.*:*/{suite}.*" for suite in suites))
        if program.screen:
            command.insert(0, os.path.join(self.tree, "tests", "with_screen.sh"))
        if self.enclosed:
            command = [os.path.join(self.tree, "tests", "mutants", "enclosed.sh"), self.tree] + command
        environment = dict(self.environment, **SETTINGS, QT_QPA_PLATFORM="xcb" if program.screen else "offscreen")
        process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   stderr=subprocess.STDOUT, start_new_session=True)
        try:
            self.output = process.communicate(timeout=limit)[0].decode(errors="replace")
            return process.returncode == 0
        except subprocess.TimeoutExpired:
            self.output = f"not ended after {limit:.0f} s\n"
            return False
        finally:
            process.kill()
            process.communicate()

    def fate(self, programs, file):
        """What becomes of the tree as it stands now: "refused" by the compiler, "caught", or "survived"."""
        if self.made(programs):
            return "refused"
        runs = [(program, program.suites(file)) for program in programs if program.suites(file)]
        runs += [(program, ()) for program in programs]
        for program, suites in runs:
            if not self.passes(program, suites, limit=20 + 2 * program.seconds):
                return "caught"
        return "survived"


def chosen_files(tree, named):
    files = []
    for name in named or FOLDERS:
        if os.path.isdir(os.path.join(tree, name)):
            files += sorted(f"{name}/{file}" for file in os.listdir(os.path.join(tree, name)) if file.endswith(".cpp"))
        elif name.split("/")[0] in FOLDERS and os.path.isfile(os.path.join(tree, name)):
            files.append(name)
        else:
            sys.exit(f"{name} is no file of {', '.join(FOLDERS)}")
    return files


def chosen_changes(tree, arguments):
    """Pairs of a file and a change, in the order of the files."""
    found = []
    for file in chosen_files(tree, arguments.files):
        source = open(os.path.join(tree, file), encoding="utf-8").read()
        found += [(file, change) for change in changes.changes(source, arguments.kinds)
                  if not arguments.lines or change.line(source) in arguments.lines]
    if arguments.number is not None and arguments.number < len(found):
        kept = sorted(random.Random(arguments.seed).sample(range(len(found)), arguments.number))
        found = [found[index] for index in kept]
    return found


def line_numbers(text):
    numbers = set()
    for part in text.split(","):
        first, _, last = part.partition("-")
        numbers |= set(range(int(first), int(last or first) + 1))
    return numbers


def parsed():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("files", nargs="*", help="sources or folders, from the root of the tree (all three folders)")
    parser.add_argument("--number", type=int, help="so many of the changes, chosen by lot (all)")
    parser.add_argument("--seed", type=int, default=1, help="what the lot goes by (1)")
    parser.add_argument("--kinds", type=lambda text: text.split(","), default=changes.KINDS,
                        help="of " + ",".join(changes.KINDS))
    parser.add_argument("--lines", type=line_numbers, help="only on these lines: 57-71,230")
    parser.add_argument("--list", action="store_true", help="shows the changes and runs nothing")
    parser.add_argument("--jobs", type=int, default=1, help="compilers at a time (1)")
    parser.add_argument("--scratch", help="where the copy is made (the temporary directory)")
    parser.add_argument("--open", action="store_true", help="without the enclosure that takes root: a changed program "
                        "may then delete or end what isn't its own")
    return parser.parse_args()


def told(tree, file, change):
    source = open(os.path.join(tree, file), encoding="utf-8").read()
    before, after = change.told(source)
    return f"{file}:{change.line(source)}: {change.kind}: {before}  ->  {after}"


def prepared(workshop, programs):
    """Builds the copy as it is; every test has to pass before a change can say anything."""
    workshop.configure()
    complaint = workshop.made(programs)
    if complaint:
        sys.exit(complaint)
    for program in programs:
        begun = time.monotonic()
        if not workshop.passes(program):
            sys.exit(f"{workshop.output}\n{program.name} fails on the sources as they are")
        program.seconds = time.monotonic() - begun


def tried(workshop, programs, chosen):
    """Tries each change and says what became of it; returns the fates with the times."""
    fates = []
    for file, change in chosen:
        begun = time.monotonic()
        path = os.path.join(workshop.tree, file)
        with open(path, encoding="utf-8") as stream:
            source = stream.read()
        line = told(workshop.tree, file, change)
        with open(path, "w", encoding="utf-8") as stream:
            stream.write(ALLOWED + change.applied(source))
        fate = workshop.fate(touched(programs, file), file)
        with open(path, "w", encoding="utf-8") as stream:
            stream.write(source)
        fates.append(fate)
        print(f"{fate:9}{time.monotonic() - begun:6.1f} s  {line}", flush=True)
    return fates


def main():
    arguments = parsed()
    if arguments.list:
        for file, change in chosen_changes(ROOT, arguments):
            print(told(ROOT, file, change))
        return 0
    if os.geteuid() != 0 and not arguments.open:
        sys.exit("the enclosure takes root, as in a container; --open runs without it")
    os.nice(19)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("ended"))
    begun = time.monotonic()
    tree = copied_tree(arguments.scratch)
    try:
        chosen = chosen_changes(tree, arguments)
        programs = test_programs(tree)
        workshop = Workshop(tree, arguments.jobs, not arguments.open)
        used = {program.name: program for file, _ in chosen for program in touched(programs, file)}
        prepared(workshop, list(used.values()))
        print(f"built and tested as it is in {time.monotonic() - begun:.0f} s", flush=True)
        fates = tried(workshop, programs, chosen)
    finally:
        shutil.rmtree(tree, ignore_errors=True)
    counts = ", ".join(f"{fates.count(fate)} {fate}" for fate in ("caught", "refused", "survived"))
    print(f"{len(fates)} changes: {counts}; {time.monotonic() - begun:.0f} s")
    return 1 if "survived" in fates else 0


if __name__ == "__main__":
    sys.exit(main())

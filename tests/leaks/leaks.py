#!/usr/bin/env python3
"""What many launches and selections leave in one process: leaks.py BUILD [LAUNCHES [SELECTIONS]].

Two programs are assembled and started under a screen of their own, one with an emulator of type 0 (plain files and ZIPs in
turn), one with an emulator of type 2 (ZIPs beside the emulator). Each is driven by real keys: selections down and up the
list, launches by Enter. Descriptors, children, threads, files and memory are read from outside ahead of it and along the
way, behind a warm-up. Fails where something has grown; the figures of a run stand in the README beside this.
"""
import os
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time
import zipfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
SOURCES = HERE.parent.parent
GAMES = 100
WARM_LAUNCHES, WARM_SELECTIONS = 100, 2 * (GAMES - 1)
PATIENCE = 30  # seconds; a bound, not a wait
MOST_BYTES = {"launch": 200, "selection": 20}  # on the heap for each

TITLE = "^Zembrolix v2\\.0$"
# Loaded into the process: at a signal it writes how many bytes are allocated. What the system gave it tells less, as
# there is always room in it.
PROBE = """
#define _GNU_SOURCE
#include <fcntl.h>
#include <malloc.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>
static void tell(int number)
{
    struct mallinfo2 heap = mallinfo2();
    char text[32];
    int length = snprintf(text, sizeof text, "%zu\\n", heap.uordblks + heap.hblkhd);
    int file = open(getenv("LEAKS_HEAP"), O_WRONLY | O_CREAT | O_APPEND, 0600);
    if (write(file, text, length) != length)
        abort();
    close(file);
    (void)number;
}
__attribute__((constructor)) static void begin(void) { signal(SIGUSR2, tell); }
"""
SETTINGS = ["'"] * 9 + ["", "[General]", "LastSisUsed = 0", "LastEmuUsed = 0", "SaveLastEmu&Sis = 1", "TypeOfEditor = 1",
    "MsgEndDOS = Finalizado", "LanguageFile = ZB-ESP.LNG", "DebugMode = 0", "", "[Filters]", "CFG", "ROMS", "", "[EOF]"]


def until(condition, what):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            sys.exit(f"leaks: {what}")
        time.sleep(0.004)


def xdotool(*arguments):
    return subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True).stdout


class Program:
    """One program directory with its games, and the process."""

    def __init__(self, build, root, kind):
        self.kind = kind
        self.directory = root / "program"
        self.games = root / "games"
        self.emulator = root / "emulator"
        self.temporary = root / "tmp"
        self.record = root / "record"
        for directory in (self.games, self.emulator, self.temporary):
            directory.mkdir(parents=True)
        self.temporary.chmod(0o700)
        self.record.write_bytes(b"")
        self.make_games()
        self.assemble(build)
        self.heap = root / "heap"
        self.heap.write_text("")
        probe = root / "probe.so"
        subprocess.run(["cc", "-shared", "-fPIC", "-O1", "-x", "c", "-", "-o", probe], input=PROBE, text=True, check=True)
        self.process = subprocess.Popen([self.directory / "Zembrolix"], 
            env={**os.environ, "TMPDIR": str(self.temporary), "XDG_RUNTIME_DIR": str(self.temporary),
                "LD_PRELOAD": str(probe), "LEAKS_HEAP": str(self.heap)})
        until(lambda: xdotool("search", "--onlyvisible", "--name", TITLE), "no main screen")
        window = xdotool("search", "--onlyvisible", "--name", TITLE).split()[0]
        xdotool("windowactivate", "--sync", window)
        # Into the list: its first game.
        xdotool("mousemove", "--window", window, 90, 100, "click", 1)
        xdotool("key", "Home")
        self.played = 0

    def make_games(self):
        capture = (SOURCES / "data/demo/captures").glob("*.[gG][iI][fF]")
        captures = sorted(capture)
        for number in range(GAMES):
            name = f"game{number:03}"
            if self.kind == 2 or number % 2:
                with zipfile.ZipFile(self.games / f"{name}.zip", "w") as archive:
                    archive.writestr(f"{name}.a26", b"a game" * 1000)
                    archive.writestr("read.me", b"words")
            else:
                (self.games / f"{name}.a26").write_bytes(b"a game" * 1000)
            shutil.copy(captures[number % len(captures)], self.games / f"{name}.gif")
        script = self.emulator / "play.sh"
        script.write_text(f"#!/bin/sh\necho \"$@\" >> '{self.record}'\n")
        script.chmod(0o755)

    def assemble(self, build):
        subprocess.run([SOURCES / "packaging/assemble.sh", build, self.directory], check=True, stdout=subprocess.DEVNULL)
        lines = ["'", "-Atari 2600", "WEB1=", "*.ZIP", "*.A26", "'", "+Recorder", "WEB2=", f"EXE={self.emulator}/play.sh",
            f"XDI={self.kind}", f"ROM={self.games}/", f"IMG={self.games}/", "PAR1=", "PAR2=", "'" + "-" * 70, "[EOF]"]
        (self.directory / "Zembro.emu").write_text("".join(line + "\r\n" for line in lines))
        (self.directory / "Zembro.cfg").write_text("".join(line + "\r\n" for line in SETTINGS))

    def children(self):
        return Path(f"/proc/{self.process.pid}/task/{self.process.pid}/children").read_text().split()

    def launch(self):
        """One launch, to its end."""
        self.played += 1
        xdotool("key", "Return")
        until(lambda: self.record.read_bytes().count(b"\n") == self.played, f"launch {self.played} didn't come")
        until(lambda: not self.children(), "a child stays")
        until(lambda: not (self.temporary / "ZB-TMP").exists(), "something unpacked stays")
        # The end of the launch, behind that of the emulator.
        time.sleep(0.03)

    def select(self, times):
        """Down the list and up again; the launch behind shows whether all of them came."""
        rounds, rest = divmod(times, 2 * (GAMES - 1))
        steps = (["Down"] * (GAMES - 1) + ["Up"] * (GAMES - 1)) * rounds + ["Down"] * (rest // 2) + ["Up"] * (rest // 2)
        for first in range(0, len(steps), 50):
            xdotool("key", "--delay", 4, *steps[first : first + 50])

    def allocated(self):
        seen = self.heap.read_text().count("\n")
        self.process.send_signal(signal.SIGUSR2)
        until(lambda: self.heap.read_text().count("\n") > seen, "the heap isn't told")
        return int(self.heap.read_text().split()[-1])

    def figures(self):
        proc = Path(f"/proc/{self.process.pid}")
        descriptors = sorted(os.readlink(entry) for entry in (proc / "fd").iterdir())
        memory = dict(line.split(":") for line in (proc / "smaps_rollup").read_text().splitlines()[1:])
        kb = lambda key: int(memory[key].split()[0])
        places = (self.directory, self.games, self.emulator, self.temporary)
        return {
            "descriptors": len(descriptors),
            "children": len(self.children()),
            "threads": len(list((proc / "task").iterdir())),
            "files": sum(1 for place in places for _ in place.rglob("*")),
            "heap": self.allocated(),
            "rss kB": kb("Rss"),
        }

    def end(self):
        if self.process.poll() is not None:
            sys.exit(f"leaks: the program ended with {self.process.returncode}")
        self.process.send_signal(signal.SIGTERM)
        self.process.wait(PATIENCE)


def tell(what, done, figures):
    print(f"{what:>22} {done:>6}  " + "  ".join(f"{key} {value}" for key, value in figures.items()), flush=True)


def run(build, kind, launches, selections):
    grown = []
    with tempfile.TemporaryDirectory(prefix="leaks-") as root:
        program = Program(build, Path(root), kind)
        program.select(WARM_SELECTIONS)
        for number in range(WARM_LAUNCHES):
            program.launch()
            program.select(2)
        start = program.figures()
        tell(f"type {kind}: warm", 0, start)
        for what, total, part in (("launch", launches, max(1, launches // 6)),
            ("selection", selections, max(1, selections // 4))):
            seen = [program.figures()]
            for done in range(part, total + 1, part):
                if what == "launch":
                    for number in range(part):
                        xdotool("key", "Up" if number % 2 else "Down")
                        program.launch()
                else:
                    program.select(part)
                    program.launch()
                seen.append(program.figures())
                tell(what, done, seen[-1])
            # What leaks grows all the time; what is made once and kept does in one part alone.
            each = statistics.median(b["heap"] - a["heap"] for a, b in zip(seen, seen[1:])) / part
            print(f"{'':>22} {each:.1f} bytes a {what} in the middle of its parts")
            if each > MOST_BYTES[what]:
                grown.append(f"type {kind}: {each:.1f} bytes a {what}")
        end = program.figures()
        grown += [f"type {kind}: {key} {start[key]} -> {end[key]}" for key in ("descriptors", "children", "threads", "files")
            if end[key] > start[key]]
        first = program.record.read_text().splitlines()[-1]
        if "game000" not in first:
            grown.append(f"type {kind}: the selections ended at {first}")
        program.end()
    return grown


def main():
    if "LEAKS_SCREEN" not in os.environ:
        os.environ.update(LEAKS_SCREEN="1", QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8", QT_SCALE_FACTOR="1")
        os.execv(SOURCES / "tests/with_screen.sh", ["with_screen.sh", sys.executable, *sys.argv])
    build = Path(sys.argv[1])
    launches = int(sys.argv[2]) if len(sys.argv) > 2 else 300
    selections = int(sys.argv[3]) if len(sys.argv) > 3 else 2000
    grown = run(build, 0, launches, selections) + run(build, 2, launches, selections)
    for line in grown:
        print(f"leaks: {line}", file=sys.stderr)
    sys.exit(1 if grown else 0)


main()

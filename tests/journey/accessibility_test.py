"""The main screen as a screen reader meets it, over the accessibility bus: accessibility_test.py BUILD.

The program runs in each of two languages; the names of the controls are those of the delivered language files.
Needs a display and a session bus of its own.
"""

import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

PATIENCE = 30  # seconds; a bound, not a wait
SOURCES = pathlib.Path(__file__).resolve().parents[2]
LANGUAGES = ("ZB-ESP.LNG", "ZB-ENG.LNG")
HELP = "Press any key to begin."

BUTTON = Atspi.Role.PUSH_BUTTON
LIST = Atspi.Role.LIST
COMBO = Atspi.Role.COMBO_BOX
CHECK = Atspi.Role.CHECK_BOX
TEXT = Atspi.Role.TEXT
ROLES = (BUTTON, LIST, COMBO, CHECK, TEXT)

# A role, and the key of the name in the language file.
ALWAYS = [(BUTTON, "Zem_Titulo1")]
UNDER_THE_TEXT = [
    (LIST, "Zem_Lista1"), (BUTTON, "TXT_Describir"), (BUTTON, "TXT_Borrar"), (BUTTON, "Zem_Menos2a"),
    (COMBO, "Zem_Combo1"), (COMBO, "Zem_Combo2"), (BUTTON, "TXT_Configurar"), (BUTTON, "TXT_Opciones"),
    (BUTTON, "Zem_E1"), (BUTTON, "Zem_Captura"), (BUTTON, "Zem_OFF"),
    (BUTTON, "Zem_Menos2b"), (BUTTON, "TXT_VerAyuda"), (BUTTON, "TXT_VerConfig"), (BUTTON, "TXT_Jugar"),
    (BUTTON, "TXT_Utilidades"), (BUTTON, "TXT_AcercaDe"), (BUTTON, "TXT_Ayuda"), (BUTTON, "FAQ"),
    (CHECK, "TXT_BaseDeDatos"), (BUTTON, "Zem_D1"), (BUTTON, "Zem_Flecha2"),
]
SELECTED = {"Zem_Combo1": "Atari 2600", "Zem_Combo2": "Player"}  # is told with the name
WITH_THE_TEXT = [
    (TEXT, "Zem_Editor"), (BUTTON, "Zem_FlechaE2"), (BUTTON, "Zem_Edit2"), (BUTTON, "Zem_BlocNotas2"),
]


def wait_for(condition, what):
    """Returns the first true result of the condition."""
    end = time.monotonic() + PATIENCE
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"it never came: {what}")
        time.sleep(0.05)


def words_of(language_file):
    words = {"FAQ": "FAQ"}  # the same in every language
    for line in language_file.read_text(encoding="cp1252").splitlines():
        key, sign, text = line.partition('="')
        if sign:
            words[key.rstrip(".")] = text.rstrip('"')
    return words


def assemble(build, directory, language):
    """A program directory with one system whose emulator brings a help file."""
    (directory / "emu").mkdir(parents=True)
    (directory / "games").mkdir()
    (directory / "emu" / "readme.txt").write_text(HELP)
    (directory / "games" / "one.nes").write_text("x")
    catalogue = [
        "' configured", "-Atari 2600", "WEB1=", "*.NES", "'", "+Player", "WEB2=", f"EXE={directory}/emu/emu",
        "XDI=0", f"ROM={directory}/games/", "IMG=", "PAR1=", "PAR2=", "'" + "-" * 70, "[EOF]",
    ]
    settings = ["'"] * 9 + [
        "", "[General]", "LastSisUsed = 0", "LastEmuUsed = 0", "SaveLastEmu&Sis = 1", "TypeOfEditor = 1",
        "MsgEndDOS = Finalizado", f"LanguageFile = {language}", "DebugMode = 0", "", "[Filters]", "CFG", "ROMS", "", "[EOF]",
    ]
    for name, lines in (("Zembro.emu", catalogue), ("Zembro.cfg", settings)):
        (directory / name).write_bytes("".join(line + "\r\n" for line in lines).encode("cp1252"))
    subprocess.run([SOURCES / "packaging/assemble.sh", build, directory], check=True)


def children(node):
    node.clear_cache()
    return [child for child in map(node.get_child_at_index, range(node.get_child_count())) if child]


def below(node):
    for child in children(node):
        yield child
        yield from below(child)


def main_window(process):
    for application in children(Atspi.get_desktop(0)):
        if application.get_process_id() == process.pid:
            for window in children(application):
                if window.get_name() == "Zembrolix v2.0":
                    return window
    return None


def showing(window):
    """The controls in view, as pairs of role and name, with their nodes."""
    return [
        ((node.get_role(), node.get_name()), node)
        for node in below(window)
        if node.get_role() in ROLES and node.get_state_set().contains(Atspi.StateType.SHOWING)
    ]


def name_of(key, words):
    return words[key] + (f": {SELECTED[key]}" if key in SELECTED else "")


def expect_controls(window, rows, words):
    def in_order(pairs):
        return sorted(f"{role.value_nick}: {name}" for role, name in pairs)

    wanted = in_order((role, name_of(key, words)) for role, key in rows)
    seen = []

    def as_wanted():
        seen[:] = in_order(pair for pair, _ in showing(window))
        return seen == wanted

    try:
        wait_for(as_wanted, "")
    except AssertionError:
        missing = [line for line in wanted if line not in seen]
        others = [line for line in seen if line not in wanted]
        raise AssertionError(f"not in view: {missing}; in view instead: {others}; in all: {seen}") from None


def press(window, name):
    node = next(node for pair, node in showing(window) if pair == (BUTTON, name))
    actions = [node.get_action_name(i) for i in range(node.get_n_actions())]
    assert "Press" in actions, f"{name} has no press: {actions}"
    assert node.do_action(actions.index("Press")), name


def check(process, words):
    window = wait_for(lambda: main_window(process), "the main window")
    expect_controls(window, ALWAYS + UNDER_THE_TEXT, words)
    press(window, words["TXT_VerAyuda"])
    expect_controls(window, ALWAYS + WITH_THE_TEXT, words)
    editor = next(node for (role, _), node in showing(window) if role == TEXT)
    assert Atspi.Text.get_text(editor, 0, -1) == HELP
    press(window, words["Zem_FlechaE2"])
    expect_controls(window, ALWAYS + UNDER_THE_TEXT, words)
    press(window, words["Zem_Flecha2"])
    assert process.wait(PATIENCE) == 0


def play(build, language):
    with tempfile.TemporaryDirectory() as home:
        directory = pathlib.Path(home) / "program"
        assemble(build, directory, language)
        environment = dict(os.environ, HOME=home, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        with subprocess.Popen([directory / "Zembrolix"], env=environment) as process:
            try:
                check(process, words_of(directory / "LNG" / language))
            finally:
                process.kill()


def main():
    signal.alarm(4 * PATIENCE)  # a call over the bus may hang with the program
    for language in LANGUAGES:
        play(sys.argv[1], language)
        print(f"{language}: the names and the press are there")


main()

#!/bin/bash
# Makes what is told of zembro from zembro itself: zembro_page.sh BUILD. The completions, the page for man, and
# docs/zembro.md, whose examples are run in a program directory that is assembled and then spoilt; the
# main program plays one of them under Xvfb.
set -euo pipefail
cd "$(dirname "$0")/.."

project=$PWD
build=$(cd "$1" && pwd)
for kind in bash:completions/zembro.bash zsh:completions/_zembro fish:completions/zembro.fish man:zembro.1; do
    "$build/companion/zembro" help --completion "${kind%%:*}" >"packaging/${kind#*:}"
done

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
packaging/assemble.sh "$build" "$work/zembrolix" >/dev/null
export XDG_STATE_HOME=$work/state TMPDIR=$work/tmp HOME=$work
mkdir -p "$work/tmp" "$work/state/zembrolix"
chmod 700 "$work/tmp"
cd "$work/zembrolix"

# What each of them answers, with the place of this directory as a user has it.
example() { # text, arguments
    printf '\n%s\n\n```\n$ zembro' "$1"
    shift
    printf ' %q' "$@"
    printf '\n'
    set +e
    ./zembro "$@" 2>&1 | sed -e "s|$work|/home/me|g" -e "s|, at 20[0-9T:-]*|, at 2026-05-01T20:15:02|" \
        -e "s|20[0-9-]*_[0-9][0-9-]*|2026-05-01_20-15-02|g"
    local status=${PIPESTATUS[0]}
    set -e
    [ "$status" -eq 0 ] || printf '(status %s)\n' "$status"
    printf '```\n'
}

# A launch of the main program itself, by the key on its screen.
play_on_screen() {
    LC_ALL=en_GB.UTF-8 "$build/companion/PrimerosAjustes" "$PWD" "Atari 2600" Stella
    ZEMBRO_LOG=$XDG_STATE_HOME/zembrolix/log "$project/tests/with_screen.sh" bash -c '
        . "$0/packaging/press_play.sh"
        press_play
        for _ in $(seq 100); do
            grep -q " after " "$ZEMBRO_LOG" 2>/dev/null && break
            sleep 0.1
        done
        kill "$main"' "$project"
    grep -q " after " "$XDG_STATE_HOME/zembrolix/log" || { echo "$0: nothing was played" >&2; return 1; }
}

page() {
    cat <<'END'
# zembro

`zembro` stands beside the program in its directory. It tells what the program would do and why it did nothing, and does
in bulk what the screens do one by one. This page is made by `packaging/zembro_page.sh`: each answer below is a true one.

- `--directory DIR` names the program's directory, if `zembro` is called from elsewhere.
- `--json` gives the answer as JSON; [zembro.schema.json](zembro.schema.json) describes its shape, one definition a command.
- It ends with 0 where all is well, 1 where something was found or would be changed, 2 where it could not run.
- It writes only where it is given `--write`, under the lock of every other rewrite; without that it shows a diff.
- `--` ends the options: a name behind it may begin with a hyphen.
- Systems, emulators and games may be cut and in any case, as long as one fits; else those that fit are listed.
- It speaks the language of the settings. Names from outside are shown so that no terminal obeys them.
END
    example "The commands:" help
    printf '\n## list\n'
    example "What the screen lists, in its order: entry, file, facts and capture, with a tab between two." list atari
    printf '\n## command\n'
    example "What playing a game would do. \`--lines\` gives the arguments alone, \`--shell\` one line for a shell." \
        command atari stella hedgerow
    printf '\n## play\n'
    sed -i "s|^EXE=.*|EXE=$work/dies|" Zembro.emu
    printf '#!/bin/sh\nkill -SEGV $$\n' >"$work/dies"
    chmod +x "$work/dies"
    example "A launch without the screen, here of an emulator that dies at once. Its status is the emulator's. TERM, INT, HUP, QUIT, USR1 and USR2 are handed on to it, and to what it has started; the status is then that signal's." \
        play atari stella prisma
    printf '\n## why\n'
    play_on_screen
    example "What became of the last launch of the main program, if it was started by \`./run.sh\`, the package's \`zembrolix\` or the portable archive's starter. It first brings back what a game for DOS or Windows saved and nobody has put into its place yet, and says of each file where it is now, or where it lies still. What you were told ahead of the start, that nothing could be unpacked beside the emulator, stands ahead of the end." why
    printf '\n## check\n'
    sed -i -e "s|^EXE=.*|EXE=$work/dyes|" -e "/^'---/d" Zembro.emu
    mv demo/prisma.gif "demo/prisma (1).gif"
    example "An executable that is mistyped, a catalogue that lost its closing line, a capture that is never found. What games left behind it brings back first, as \`why\` does:" check
    example "Where the emulator is MAME, it is asked for the ROMs of the machine that the parameters name, or else of the games (\`mame -verifyroms\`), where and with the \`-rompath\` that a launch has.

What has one answer only, and check says so of each finding, can be repaired; \`--write\` does it." check --mend
    printf '\n## find\n'
    example "Emulators that came to the machine since; \`--write\` configures them." find
    ./zembro check --mend --write >/dev/null 2>&1 || [ $? -eq 1 ]
    printf '\n## move\n'
    sed -i -E 's#^(ROM|IMG)=#&/media/disk/zembrolix/#' Zembro.emu
    example "Paths that are written whole, after the directory went elsewhere; \`--old\` and \`--new\` name any other leading part of them." move
    ./zembro move --write >/dev/null
    printf '\n## describe\n'
    printf x >"demo/Legend of Zelda, The (Europe) (Rev 1).bin"
    example "By the names of the files. \`--from\` takes a DAT, what \`mame -listxml\` says (\`--from -\` reads a pipe), a gamelist.xml, or lines of name, tab, description, in UTF-8, in Windows-1252, or with its mark in UTF-16; of a file that is none of these it says so. Where nothing comes of it, it says why. A list of 283 MB from MAME, and 6,667 games: 5 seconds of processor time and 25 MB of memory; those games alone a quarter of a second." describe atari
    printf '\n## captures\n'
    rm "demo/prisma (1).gif"
    mkdir "$work/pictures"
    base64 -d >"$work/pictures/PRISMA [a1].png" <<<'iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElEQVR4nGP4z8AAAAMBAQDJ/pLvAAAAAElFTkSuQmCC'
    printf 'no picture' >"$work/pictures/The Legend of Zelda.jpg"
    example "Pictures of any kind become the captures of the games that they fit: by the file's name, by that without what stands in brackets, by the description." captures atari --from ../pictures
    example "\`--write\` makes them, at most 640 wide; the pictures stay as they are. What stands in the place of a capture and is no picture gives way to one that fits." captures atari --from ../pictures --write
    example "Without \`--from\` it takes those that lie among the captures, and the newest one that the emulator took of the game that was played last. \`--last\` takes that one alone." captures atari --last
    printf '\n## save\n'
    example "A copy of the text files, and of \`Zembro.uni\` where that is; \`./run.sh\`, the package's \`zembrolix\` and the portable archive's starter make one before each start. The last twenty that differ are kept." save
    printf '\n## restore\n'
    sed -i "/^PAR1=/d" Zembro.emu
    example "Back to the newest copy that differs, or to the one that is named; \`--list\` shows them all. It brings back all of the files or none. Where no copy differs it says so and ends with 0, as \`save\` does where nothing has changed; where there is no copy at all, with 2." restore
    printf '\n## export\n'
    example "For another program; \`--to FILE --write\` writes it, \`--pegasus\` is for Pegasus." export atari stella
    printf '\n## adopt\n'
    mkdir -p "$work/old/DISK/EMUS"
    printf '%s\r\n' '-NES' 'WEB1=' '*.NES' "'" '+Oldnes' 'WEB2=' 'EXE=C:\EMUS\OLDNES.EXE' 'XDI=0' 'ROM=D:\ROMS\' 'IMG=' \
        'PAR1=' 'PAR2=' "'------" '[EOF]' >"$work/old/Zembro.emu"
    printf 'C=DISK\r\n' >"$work/old/Zembro.uni"
    printf 'MZ' >"$work/old/DISK/EMUS/OLDNES.EXE"
    example "An old program directory, made on another system; its own \`Zembro.uni\`, where it has one, names the drives, and each line of that which names none is told. \`--write\` does it." \
        adopt ../old
}
page >"$project/docs/zembro.md"

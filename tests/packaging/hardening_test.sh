#!/bin/bash
# Reads from the built programs whether they are hardened: hardening_test.sh BUILD. Every lack is told.
set -uo pipefail
export LC_ALL=C.UTF-8
build=$1
lacks=0

lacking() { # program, what
    echo "hardening: $1: $2" >&2
    lacks=$((lacks + 1))
}
# For texts that are longer than a pipe: a reader that stops early would fail the writer.
holds() { # text, pattern
    grep -qE -- "$2" <<<"$1"
}

for program in Zembrolix converter/Cvtgif15.exe converter/Cvtcap.exe finder/BuscaEmuladores packaging/Aviso; do
    file=$build/$program
    [ -x "$file" ] || { lacking "$program" "not built"; continue; }
    header=$(readelf -hW "$file")
    segments=$(readelf -lW "$file")
    dynamic=$(readelf -dW "$file")
    symbols=$(nm -D --undefined-only "$file")
    code=$(objdump -d --no-show-raw-insn "$file")

    holds "$header" 'Type: +DYN' && holds "$dynamic" 'FLAGS_1.*\bPIE\b' || lacking "$program" "at a fixed address"
    holds "$segments" '\bGNU_RELRO\b' || lacking "$program" "tables that stay writable"
    holds "$dynamic" '\(FLAGS\).*\bBIND_NOW\b|FLAGS_1.*\bNOW\b' || lacking "$program" "names that are bound late"
    holds "$segments" 'GNU_STACK.* RW +0x' || lacking "$program" "a stack that can be run"
    holds "$symbols" '\b__stack_chk_fail\b' || lacking "$program" "no stack protector"
    holds "$symbols" '\b__(f?printf|read|pread|pread64|readlink|getcwd|realpath|mem(cpy|move|set)|str(cpy|cat)|v?snprintf)_chk\b' ||
        lacking "$program" "no fortified functions"
    holds "$symbols" '__glibcxx_assert_fail' || lacking "$program" "no assertions of the library"
    [ "$(uname -m)" = x86_64 ] || continue
    # A frame of more than a page is taken a page at a time, each of which is touched.
    frames=$(grep -oE '\bsub +\$0x[0-9a-f]{4,7},%rsp' <<<"$code" | grep -v '0x1000,')
    [ -z "$frames" ] || lacking "$program" "no protection of the stack's end"
    # The parts of every program that the compiler brings along have two.
    [ "$(grep -c '\bendbr64\b' <<<"$code")" -gt 10 ] || lacking "$program" "no protection of the control flow"
done
[ "$lacks" -eq 0 ] || exit 1
echo "five programs are hardened"

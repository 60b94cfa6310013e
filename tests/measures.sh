#!/bin/bash
# Holds the house's measures: lengths of files and functions, the arrows between the folders, platform conditionals.
# With a folder as argument it measures that tree instead, so that its own test can bring a bad one.
set -u
cd "${1:-$(dirname "$0")/..}" || exit 2
bad=0
complain() { echo "$*"; bad=1; }

folders=(main.cpp options maintenance mainscreen companion launch dialogs finder core forms host)
mapfile -t sources < <(find "${folders[@]}" converter -name '*.cpp' 2>/dev/null | sort)
mapfile -t headers < <(find "${folders[@]}" -name '*.h' 2>/dev/null | sort)

for file in "${sources[@]}"; do
    [ "$(wc -l <"$file")" -le 600 ] || complain "$file is longer than 600 lines"
done
for file in "${headers[@]}"; do
    [ "$(wc -l <"$file")" -le 250 ] || complain "$file is longer than 250 lines"
done

# A function's body stands between a brace alone in its line and the next one, both at the same depth of a namespace
# or of a class: "name file:line length" for each.
functions=$(awk '
    FNR == 1 { open4 = open0 = 0 }
    /^[A-Za-z].*\(/ { head0 = $0 }
    /^    [A-Za-z~].*\(/ { head4 = $0 }
    /^\{$/ { open0 = FNR; table = (head0 ~ /Claves|PorDefecto/) }
    /^    \{$/ { open4 = FNR }
    /^\}$/ && open0 { print FNR - open0 + 1, FILENAME ":" open0, (head0 ~ /^[A-Za-z_]+::[A-Za-z_]+\(/ ? "constructor" : "function"), (table ? "table" : "code"); open0 = 0 }
    /^    \}$/ && open4 && !open0 { print FNR - open4 + 1, FILENAME ":" open4, "function", "code"; open4 = 0 }
' "${sources[@]}")
code=$(grep ' code$' <<<"$functions")
while read -r length place kind _; do
    [ "$length" -le 60 ] || complain "$place: a function of $length lines"
    [ "$kind" != constructor ] || [ "$length" -le 40 ] || complain "$place: a constructor of $length lines"
done <<<"$code"
total=$(grep -c . <<<"$code")
long=$(awk '$1 > 35' <<<"$code" | grep -c .)
[ $((long * 10)) -le "$total" ] || complain "$long of $total functions are longer than 35 lines"

# A folder knows only those that come behind it in the list.
for ((i = 0; i < ${#folders[@]}; i++)); do
    for ((j = 0; j < i; j++)); do
        hits=$(grep -rn "#include \"${folders[j]}/" "${folders[i]}" 2>/dev/null)
        [ -z "$hits" ] || complain "${folders[i]} knows ${folders[j]}: $hits"
    done
done
hits=$(grep -rnE '#include (<Q(Widget|Label|Application|Pixmap|Gui)|"(forms|dialogs)/)' core finder launch companion 2>/dev/null)
[ -z "$hits" ] || complain "logic that draws: $hits"
hits=$(grep -rn '#include "companion/' main.cpp options maintenance mainscreen 2>/dev/null)
[ -z "$hits" ] || complain "the main program knows companion: $hits"

hits=$(grep -nE '^ *# *if.*(_WIN32|__linux__|__APPLE__|Q_OS_)' "${sources[@]}" "${headers[@]}" | grep -v '^host/')
[ -z "$hits" ] || complain "a platform conditional outside host: $hits"

[ "$bad" -eq 0 ] && echo "measured ${#sources[@]} sources, ${#headers[@]} headers, $total functions, $long of them past 35 lines"
exit "$bad"

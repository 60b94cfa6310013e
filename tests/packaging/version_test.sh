#!/bin/bash
# Whether the version stands in one place: version_test.sh SOURCES BUILD. The project's own line; the main window's caption
# is what it is whatever the version.
set -u
cd "$1" || exit 1
build=$2
bad=0
complain() { echo "$*" >&2; bad=1; }

version=$(sed -n 's/^project(Zembrolix VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
[ -n "$version" ] || complain "the project has no version"
pattern=$(printf '%s' "$version" | sed 's/\./\\./g')
told=$(grep -rInE "(zembro(lix)?[ _-]?v?|[^a-z]v)$pattern([^0-9]|\$)" --ignore-case --exclude-dir=demo \
    main.cpp companion converter core data dialogs finder forms host launch mainscreen maintenance options packaging run.sh |
    grep -vE '^mainscreen/disposicion\.cpp:[0-9]+:.*SetCaption|^packaging/zembro\.1:2:|^packaging/README\.md:|windowname')
[ -z "$told" ] || complain "it is written elsewhere too: $told"

[ "$("$build/companion/zembro" --version)" = "zembro $version" ] || complain "zembro tells another one"
head -n 1 "$build/data/beside/Zembro.txt" | tr -d '\r' | grep -qx "ZEMBROLIX $version" || complain "the manual tells another one"
grep -q "\"Zembrolix $version\"" packaging/zembro.1 || complain "the page for man tells another one"
# Of the day that shops of programs are told.
day=$(sed -n 's/^set(RELEASE_DATE \(.*\))$/\1/p' packaging/CMakeLists.txt)
grep -q "^## $pattern, $day\$" CHANGELOG.md || complain "its changes are of another day than $day"
grep -q "^## $pattern\b" CHANGELOG.md || complain "nothing is told of its changes"
exit "$bad"

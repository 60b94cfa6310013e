#!/bin/bash
# Fills a portable directory with the program and what is delivered with it, but for its libraries: fill.sh PREFIX DIRECTORY.
# PREFIX is where the build was installed.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
programs=$1/lib/zembrolix
program=$2
delivered=$program/delivered

cp -r "$1/share/zembrolix" "$delivered"
cp "$programs"/{renew,start,stella,words.sh} "$delivered"
cp "$programs"/{BuscaEmuladores,PrimerosAjustes,Aviso} "$program"
cp "$here"/start.sh "$program"
cp "$here"/LEEME.txt "$here/../../LICENSE" "$delivered"
# A catalogue that is there keeps the emulators of this machine out.
sed -e 's|@STELLA@|delivered/stella|' "$delivered/Zembro.emu" >"$program/Zembro.emu"
"$delivered/renew" "$programs" "$delivered" "$program"
# From a medium that can't be written it starts without having asked for a language. The line more tells these settings
# from those that somebody chose.
LC_ALL=en_US.UTF-8 "$program/PrimerosAjustes" "$program" "Atari 2600" Stella
printf "'\r\n" >>"$program/Zembro.cfg"
mkdir "$delivered/first"
cp "$program/Zembro.cfg" "$delivered/first"

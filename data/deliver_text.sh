#!/bin/sh
# Source (UTF-8, LF) to the text as delivered (Windows-1252, CR LF), which names the version: deliver_text.sh SOURCE
# OUTPUT VERSION.
set -eu
iconv -f UTF-8 -t CP1252 "$1" > "$2.part"
sed -e "s/@VERSION@/$3/" -e 's/$/\r/' "$2.part" > "$2"
rm "$2.part"

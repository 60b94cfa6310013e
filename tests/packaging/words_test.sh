#!/bin/bash
# The words of the starters: words_test.sh. Each in every language, with the same values in it, and used.
set -u
cd "$(dirname "$0")/../.." || exit 1
bad=0
complain() { echo "words: $*" >&2; bad=1; }
. packaging/words.sh

unset LC_ALL LC_MESSAGES
said() { LANG=$1 say "${@:2}"; }
[ "$(said de_DE.UTF-8 moved '/a %s' /b)" = "Was du in /a %s hattest, liegt jetzt in /b." ] || complain "German: $(said de_DE.UTF-8 moved '/a %s' /b)"
[ "$(said ca_ES@valencia not-directory /a)" = "/a no és un directori." ] || complain "Catalan: $(said ca_ES@valencia not-directory /a)"
for language in C POSIX '' en_GB.UTF-8 nl_NL.UTF-8 e 'x*'; do
    [ "$(said "$language" not-directory /a)" = "/a is no directory." ] || complain "'$language': $(said "$language" not-directory /a)"
done
[ "$({ LC_ALL=fr_FR.UTF-8 said de_DE.UTF-8 this-one /a; } 2>/dev/null)" = "/a est celui-ci même." ] || complain "LC_ALL isn't ahead of LANG"
[ "$({ LC_MESSAGES=it said de_DE.UTF-8 this-one /a; } 2>/dev/null)" = "/a è proprio questa." ] || complain "LC_MESSAGES isn't ahead of LANG"
[ "$(said de no-such-key a)" = no-such-key ] || complain "a key that there isn't: $(said de no-such-key a)"

# As the program speaks to the user.
polite=$(sed -nE '/^\[/p; /^es .*\b(usted|suy[oa]s?|copie|póngal[oa])\b/p; /^it .*\b(Lei|file suoi|dei suoi|di suo|copi|aggiorni|ha in)\b/p
    /^de .*\b(Ihnen|Ihren?|(Was|in|erneuern|kopieren) Sie)\b/p; /^pt .*\b(copie|atualize|tinha|que tem|ficheiros seus|dos seus|nada seu)\b/Ip
    /^ca .*\b(vostres?|teni[eé]?u|copieu|poseu)\b/p' packaging/words.sh | grep -v '^\[')
[ -z "$polite" ] || complain "it speaks as to a stranger: $polite"
! sed -n '/^\[not-\(made\|renewed\)\]$/,/^ca/p' packaging/words.sh | grep ':' || complain "a sentence begins after a colon"

values() { grep -o %s <<<"$1" | wc -l; }
keys=$(sed -n 's/^\[\(.*\)\]$/\1/p' packaging/words.sh)
[ "$(wc -l <<<"$keys")" -ge 30 ] || complain "there are only $(wc -l <<<"$keys") keys"
[ -z "$(sort <<<"$keys" | uniq -d)" ] || complain "twice: $(sort <<<"$keys" | uniq -d)"
sources=(run.sh packaging/*.sh packaging/portable/start.sh packaging/starter/zembrolix)
for key in $keys; do
    english=$(words_of "$key" en)
    for language in es it fr de pt ca; do
        words=$(words_of "$key" "$language") || { complain "$key isn't there in $language"; continue; }
        [ "$words" != "$english" ] || complain "$key is English in $language"
        [ "$(values "$words")" = "$(values "$english")" ] || complain "$key has other values in $language"
        [[ ! ${words//%s/} =~ [%\\] ]] || complain "$key in $language holds what would be taken for a command"
    done
    grep -qE "(say|fail) $key( |\)|\$|;|\")" "${sources[@]}" || complain "nobody says $key"
done
while read -r key; do
    grep -qx -- "$key" <<<"$keys" || complain "there are no words for $key"
done < <(sed -nE '/^ *#/d; s/.*\b(say|fail) ([a-z]+(-[a-z]+)*)( "\$|\)| >|; |$).*/\2/p' run.sh packaging/{renew,own_directory,use,start,install}.sh \
    packaging/portable/start.sh packaging/starter/zembrolix | sort -u)
exit "$bad"

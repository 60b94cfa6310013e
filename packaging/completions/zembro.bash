# Completion of zembro for bash. Made by: zembro help --completion bash
_zembro()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command= i
    for ((i = 1; i < COMP_CWORD; ++i)); do
        case ${COMP_WORDS[i]} in
        --directory) ((++i)) ;;
        -*) ;;
        *)
            command=${COMP_WORDS[i]}
            break
            ;;
        esac
    done
    case $before in
    --from|--to) mapfile -t COMPREPLY < <(compgen -f -- "$word"); return ;;
    --directory|--from) mapfile -t COMPREPLY < <(compgen -d -- "$word"); return ;;
    esac
    local words=
    case $command in
    '') words='check command play why find list move save restore describe captures export adopt help --version --directory --json --help' ;;
    check) words='--mend --write --directory --json --help' ;;
    command) words='--lines --shell --directory --json --help' ;;
    play) words='--directory --json --help' ;;
    why) words='--directory --json --help' ;;
    find) words='--all --write --directory --json --help' ;;
    list) words='--directory --json --help' ;;
    move) words='--old --new --write --directory --json --help' ;;
    save) words='--directory --json --help' ;;
    restore) words='--list --write --directory --json --help' ;;
    describe) words='--from --mame --tags --replace --write --directory --json --help' ;;
    captures) words='--from --last --replace --write --directory --json --help' ;;
    export) words='--pegasus --to --write --directory --json --help' ;;
    adopt) words='--write --directory --json --help' ;;
    help) words='check command play why find list move save restore describe captures export adopt help --completion --directory --json --help' ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}
complete -F _zembro zembro

# Completion of the starter zembrolix for bash.
_zembrolix()
{
    local word=${COMP_WORDS[COMP_CWORD]}
    if [ "${COMP_WORDS[COMP_CWORD - 1]}" = --directory ]; then
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
        compopt -o filenames 2>/dev/null
        return
    fi
    mapfile -t COMPREPLY < <(compgen -W '--directory --check --help --version' -- "$word")
}
complete -F _zembrolix zembrolix

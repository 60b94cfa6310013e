# Completion of the starter zembrolix for fish.
complete -c zembrolix -f
complete -c zembrolix -l directory -r -a '(__fish_complete_directories)' -d 'makes and uses this directory in place of ~/Zembrolix'
complete -c zembrolix -l check -d 'checks the files and the emulators, and starts nothing'
complete -c zembrolix -l help -d 'says how it is called'
complete -c zembrolix -l version -d 'the version'

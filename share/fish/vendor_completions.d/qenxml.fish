# Completion of the qenxml command for fish.

set -l commands show check explain diff export report
set -l readers show check export report

# The commands and what they are for, as the help lists them.
function __qenxml_commands
    qenxml --help 2>/dev/null | sed -n '/^Commands:/,/^$/s/^  \([a-z]*\)  */\1\t/p'
end

# The formats of a command, as its help lists them: "json, csv or geojson".
function __qenxml_formats
    qenxml $argv --help 2>/dev/null | sed -n '/^  --format FORMAT/{n; s/,//g; s/ or / /; p}' | string match -ra '\S+'
end

complete -c qenxml -f
complete -c qenxml -s h -l help -d 'Print help'
complete -c qenxml -n "not __fish_seen_subcommand_from $commands" -l version -d 'Print the version'
complete -c qenxml -n "not __fish_seen_subcommand_from $commands" -k -a '(__qenxml_commands)'

complete -c qenxml -n "__fish_seen_subcommand_from $readers diff" -k -a '(__fish_complete_suffix .xml)'
complete -c qenxml -n '__fish_seen_subcommand_from show diff export' -l merge -d 'Merge the growers of all packages'
complete -c qenxml -n "__fish_seen_subcommand_from $readers" -l files-from -r -F -d 'Read the files that a list names'
complete -c qenxml -n "__fish_seen_subcommand_from $readers" -s 0 -l null -d 'Names in the list end with zero bytes'
complete -c qenxml -n "__fish_seen_subcommand_from $readers diff" -l uuid -x -d 'UUID of the package on the standard input'
complete -c qenxml -n '__fish_seen_subcommand_from export report' -s o -l output -r -F -d 'Write to this file'
complete -c qenxml -n '__fish_seen_subcommand_from export' -l format -x -a '(__qenxml_formats export)' -d 'The format'
complete -c qenxml -n '__fish_seen_subcommand_from check' -l format -x -a '(__qenxml_formats check)' -d 'The format'
complete -c qenxml -n '__fish_seen_subcommand_from export' -l delimiter -x -a '"," ";" "|" tab' -d 'What separates the cells of CSV'
complete -c qenxml -n '__fish_seen_subcommand_from export' -l decimal -x -a '"." ","' -d 'What comes before decimals in CSV'
complete -c qenxml -n '__fish_seen_subcommand_from export' -l no-bom -d 'Begin CSV without a byte-order mark'
complete -c qenxml -n '__fish_seen_subcommand_from check' -l together -d 'Find what merging the packages loses or changes'
complete -c qenxml -n '__fish_seen_subcommand_from check' -l json -d 'As --format json'
complete -c qenxml -n '__fish_seen_subcommand_from check' -l verbose -d 'List the files without findings, too'
complete -c qenxml -n '__fish_seen_subcommand_from check' -l statistics -d 'Print only what cannot be read, and counts by code'
complete -c qenxml -n '__fish_seen_subcommand_from check' -l quiet -d 'Print only the last line'
complete -c qenxml -n '__fish_seen_subcommand_from check' -l fail-on -x -a 'error warning note never' -d 'The least severity to fail on'
complete -c qenxml -n '__fish_seen_subcommand_from check' -l strict -d 'As --fail-on warning'
complete -c qenxml -n '__fish_seen_subcommand_from check' -l ignore -x -a '(qenxml check --codes 2>/dev/null)' -d 'Leave out the findings of a code'
complete -c qenxml -n '__fish_seen_subcommand_from check' -l baseline -r -F -d 'Leave out what an earlier output in the format sarif has'
complete -c qenxml -n '__fish_seen_subcommand_from check' -l codes -d 'Print the codes of all findings'
complete -c qenxml -n '__fish_seen_subcommand_from explain' -l all -d 'Explain all codes'
complete -c qenxml -n '__fish_seen_subcommand_from explain' -l json -d 'Write one JSON document'
complete -c qenxml -n '__fish_seen_subcommand_from explain' -a '(qenxml check --codes 2>/dev/null)'
complete -c qenxml -n '__fish_seen_subcommand_from diff' -l json -d 'Write one JSON document'

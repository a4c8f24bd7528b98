#!/usr/bin/env bash
# Usage: check_manual.sh COMMAND SOURCE_DIR
# The manual pages are well-formed, there is one for each sub-command, and each names all options
# that --help lists and has the sections that readers look for.
set -euo pipefail
command=$1
folder=$2/docs/man
failed=0

fail() {
    echo "$*" >&2
    failed=1
}

# The first column of the lists in a help text.
listed() { # HEADING [COMMAND]
    "$command" ${2:+"$2"} --help |
        sed -n "/^$1:/,/^\$/s/^  \([-a-z][-a-z0,]*\).*/\1/p" | tr ',' '\n'
}

check_page() { # NAME [COMMAND]
    local page=$folder/$1.1 option section findings
    [ -f "$page" ] || { fail "there is no manual page $1"; return; }
    # The pages that it refers to are not installed yet.
    findings=$(mandoc -Tlint "$page" | grep -v 'referenced manual not found' || true)
    [ -z "$findings" ] || fail "$findings"
    for section in SYNOPSIS DESCRIPTION 'EXIT STATUS' EXAMPLES DIAGNOSTICS; do
        grep -qx "\.Sh $section" "$page" || fail "$1 has no section $section"
    done
    for option in $(listed Options "${@:2}"); do
        # Not grep -q, which ends before it has read all, and fails the pipe with it.
        mandoc -Tutf8 "$page" | sed 's/.\x08//g' |
            grep -Ee "(^|[ ,[])$option([] ,=]|\$)" >/dev/null ||
            fail "$1 does not explain $option"
    done
}

check_formats() { # COMMAND
    local page=$folder/qenxml-$1.1 formats
    formats=$("$command" "$1" --help |
        sed -n '/^  --format FORMAT/{n; s/,//g; s/ or / /; s/^ *//p}')
    [ "$(wc -w <<<"$formats")" -ge 2 ] || fail "$1 --help lists no formats"
    grep -qxF ".It Fl -format Cm ${formats// / | }" "$page" ||
        fail "qenxml-$1 does not list the formats $formats"
    for format in $formats; do
        grep -qixE "\.(Ss|It Cm) $format" "$page" ||
            fail "qenxml-$1 does not describe the format $format"
    done
}

# Each code with each part of its explanation, wherever lines of the page end.
check_exit_codes() { # NAME COMMAND
    local status code explanation part
    status=$(sed -n '/^\.Sh EXIT STATUS/,/^\.Sh EXAMPLES/p' "$folder/$1.1" |
        mandoc -Tutf8 <(printf '.Dd 1\n.Dt X 1\n.Os\n'; cat) | sed 's/.\x08//g' | tr -s ' \n' ' ')
    while read -r code explanation; do
        grep -q " $code [A-Z]" <<<"$status" || fail "$1 does not know the exit code $code"
        while read -r part; do
            grep -qiF "$part" <<<"$status" || fail "$1 does not say of exit code $code: $part"
        done <<<"${explanation//; /$'\n'}"
    done < <("$command" "$2" --help | sed -n '/^Exit codes:/,$s/^  \([0-9]\)/\1/p')
}

check_formats check
check_formats export
check_page qenxml
for subcommand in $(listed Commands); do
    check_page "qenxml-$subcommand" "$subcommand"
    check_exit_codes "qenxml-$subcommand" "$subcommand"
    grep -q "Xr qenxml-$subcommand 1" "$folder/qenxml.1" || fail "qenxml does not name $subcommand"
    purpose=$("$command" --help | sed -n "s/^  $subcommand  *//p")
    grep -qxF "$purpose." "$folder/qenxml.1" || fail "qenxml does not say of $subcommand: $purpose"
done
exit "$failed"

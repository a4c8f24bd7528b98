#!/usr/bin/env bash
# Usage: check_completion.sh COMMAND SOURCE_DIR
# The completions of each shell offer every sub-command and option that --help lists, and every code
# of a finding. Shells that are not installed are left out, and said to be.
set -euo pipefail
command=$1
share=$2/share
failed=0

# The completions call the command by its name.
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
ln -s "$command" "$folder/qenxml"
PATH=$folder:$PATH

fail() {
    echo "$*" >&2
    failed=1
}

# The words that a help text lists under a heading: options, or commands.
listed() { # HEADING [COMMAND]
    "$command" ${2:+"$2"} --help |
        sed -n "/^$1:/,/^\$/s/^  \([-a-z][-a-z0,]*\).*/\1/p" | tr ',' '\n'
}

# Prints what bash offers for a line whose last word is to be completed.
offered_by_bash() {
    bash --norc -c '
        . "$0"
        COMP_WORDS=("$@")
        COMP_CWORD=$(($# - 1))
        _qenxml
        printf "%s\n" "${COMPREPLY[@]}"' "$share/bash-completion/completions/qenxml" "$@"
}

offered_by_fish() {
    fish --no-config -c 'source $argv[1]; complete -C "$argv[2]"' \
        "$share/fish/vendor_completions.d/qenxml.fish" "$*" | cut -f 1
}

# What zsh offers cannot be asked for outside of its line editor: the words stand in the file, those
# of a sub-command in its part or in the lists that it takes.
offered_by_zsh() {
    grep -oE -- "'?[-a-z]+[:[]|[{,]--?[a-z0]+|--[-a-z]+" "$share/zsh/site-functions/_qenxml" |
        tr -d "':[{,"
}

# What the functions of zsh that complete would be given: formats, commands with what they are for.
given_to_zsh() { # WORD...
    zsh -f -c '
        _call_program() { shift; "$@" 2>/dev/null; }
        _describe() { print -l ${(P)4}; }
        _arguments() {
            for argument; do
                [[ $argument != *:format:* ]] || { eval "offered=${argument#*:format:}" && print -l $offered; }
            done
        }
        fpath=("$1/zsh/site-functions") && autoload -U _qenxml
        shift
        words=("$@") CURRENT=$#
        _qenxml' - "$share" "$@"
}

# The commands with what they are for: "show", a tab, "Print what packages hold".
described_by_zsh() {
    given_to_zsh qenxml "" | sed 's/:/\t/'
}

described_by_fish() {
    fish --no-config -c 'source $argv[1]; complete -C "qenxml "' \
        "$share/fish/vendor_completions.d/qenxml.fish"
}

check_shell() { # SHELL
    local words subcommand
    words=$("offered_by_$1" qenxml "")
    [ "$1" = zsh ] || words+=$'\n'$("offered_by_$1" qenxml -)
    [ "$1" = bash ] || words+=$'\n'$("described_by_$1")
    for word in $(listed Commands) $(listed Options); do
        grep -qxe "$word" <<<"$(cut -f 1 <<<"$words")" || fail "$1 does not offer $word"
    done
    [ "$1" = bash ] || while read -r word; do
        grep -qxF "$word" <<<"$words" || fail "$1 does not say: $word"
    done < <("$command" --help | sed -n '/^Commands:/,/^$/s/^  \([a-z]*\)  */\1\t/p')
    for subcommand in $(listed Commands); do
        words=$("offered_by_$1" qenxml "$subcommand" -)
        for word in $(listed Options "$subcommand"); do
            grep -qxe "$word" <<<"$words" || fail "$1 does not offer $word after $subcommand"
        done
    done
    check_formats "$1" check
    check_formats "$1" export
    check_codes "$1"
}

# Each format of a command, and none else: "qenxml check" has others than "qenxml export".
check_formats() { # SHELL COMMAND
    local words formats
    formats=$("$command" "$2" --help |
        sed -n '/^  --format FORMAT/{n; s/,//g; s/ or / /; s/^ *//p}')
    [ "$(wc -w <<<"$formats")" -ge 2 ] || fail "$2 --help lists no formats"
    if [ "$1" = zsh ]; then
        given_to_zsh qenxml "$2" --format "" | cmp -s - <(tr ' ' '\n' <<<"$formats") ||
            fail "zsh does not offer the formats $formats after $2"
        return
    fi
    words=$("offered_by_$1" qenxml "$2" --format "" | sort | xargs)
    [ "$words" = "$(tr ' ' '\n' <<<"$formats" | sort | xargs)" ] ||
        fail "$1 offers the formats $words after $2, not $formats"
}

check_codes() { # SHELL
    local words code asked
    if [ "$1" = zsh ]; then
        [ "$(grep -c 'check --codes' "$share/zsh/site-functions/_qenxml")" -eq 2 ] ||
            fail "zsh does not ask for the codes of findings"
        return
    fi
    for asked in "check --ignore" explain; do
        # shellcheck disable=SC2086
        words=$("offered_by_$1" qenxml $asked "")
        for code in $("$command" check --codes); do
            grep -qxe "$code" <<<"$words" || fail "$1 does not offer the code $code after $asked"
        done
    done
}

[ "$(listed Commands | wc -l)" -ge 3 ] || fail "--help lists no commands"
[ "$("$command" check --codes | wc -l)" -ge 50 ] || fail "check --codes lists no codes"
[ "$(listed Options export | wc -l)" -ge 7 ] || fail "export --help lists no options"

for shell in bash zsh fish; do
    if ! command -v "$shell" >/dev/null; then
        echo "$shell is not installed"
        continue
    fi
    case $shell in
    bash) bash -n "$share/bash-completion/completions/qenxml" || fail "bash cannot read its file" ;;
    zsh) zsh -n "$share/zsh/site-functions/_qenxml" || fail "zsh cannot read its file" ;;
    fish) fish -n "$share/fish/vendor_completions.d/qenxml.fish" || fail "fish cannot read its file" ;;
    esac
    check_shell "$shell"
done
exit "$failed"

#!/bin/bash
# check_completion.sh BASH_COMPLETION COMPLETION_FILE NORVALEXCTL: what bash offers for
# norvalexctl command lines, the light-mode names coming from the program itself.
set -u
source "$1"
source "$2"
ctl=$3
failures=0

# expect "WORDS..." -- "EXPECTED COMPLETIONS..."
expect() {
    local words=() expected=()
    while [ "$1" != "--" ]; do words+=("$1"); shift; done
    shift
    expected=("$@")
    COMP_WORDS=("$ctl" "${words[@]}")
    COMP_CWORD=${#words[@]}
    COMP_LINE="${COMP_WORDS[*]}"
    COMP_POINT=${#COMP_LINE}
    COMPREPLY=()
    _norvalexctl norvalexctl "${words[-1]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    local got want
    got=$(printf '%s\n' "${COMPREPLY[@]}" | sort | tr '\n' ' ')
    want=$(printf '%s\n' "${expected[@]}" | sort | tr '\n' ' ')
    if [ "$got" != "$want" ]; then
        echo "norvalexctl ${words[*]}<TAB>: got '$got', expected '$want'"
        failures=$((failures + 1))
    fi
}

expect --json st -- status stop
expect mode shoot -- shooting-star
expect color ff0000 --slot "" -- 1 2 3 4 5 6 7 8
exit $failures

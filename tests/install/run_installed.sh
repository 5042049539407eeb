#!/bin/sh
# run_installed.sh BINDIR PRIVATEDIR: the installed panel, started through its link, launches
# the installed service; norvalexctl, through its link, reads it and stops it.
set -u
bin=$1
private=$2
ctl="$bin/norvalexctl"

# The pid of a norvalex-control started from the private folder, if one runs.
installed_service() {
    for proc in /proc/[0-9]*; do
        if [ "$(readlink "$proc/exe" 2>/dev/null)" = "$private/norvalex-control" ]; then
            echo "${proc#/proc/}"
        fi
    done
}

fail() {
    echo "$1"
    [ -n "${panel:-}" ] && kill "$panel" 2>/dev/null
    for pid in $(installed_service); do kill "$pid"; done
    exit 1
}

"$ctl" status >/dev/null 2>&1
[ $? -eq 3 ] || fail "norvalexctl status without a service does not exit 3"

"$bin/norvalex-rgb" >/dev/null 2>&1 &
panel=$!
tries=0
until "$ctl" status >/dev/null 2>&1; do
    tries=$((tries + 1))
    [ $tries -gt 300 ] && fail "the installed panel did not start the installed service"
    sleep 0.1
done
[ -n "$(installed_service)" ] || fail "the running service is not the one in $private"
"$ctl" stop || fail "norvalexctl stop failed"
[ -z "$(installed_service)" ] || fail "the service still runs after norvalexctl stop"
kill "$panel"
wait "$panel" 2>/dev/null
exit 0

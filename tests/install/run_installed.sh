#!/bin/sh
# run_installed.sh BINDIR PRIVATEDIR: the installed panel, started through its link, launches
# the installed service; norvalexctl, through its link, reads it and stops it.
set -u
bin=$1
private=$2
ctl="$bin/norvalexctl"

"$bin/norvalex-rgb" --version | grep -q "NORVALEX RGB" || { echo "norvalex-rgb --version"; exit 1; }
"$ctl" status >/dev/null 2>&1
[ $? -eq 3 ] || { echo "norvalexctl status without a service does not exit 3"; exit 1; }

"$bin/norvalex-rgb" >/dev/null 2>&1 &
panel=$!
tries=0
until "$ctl" status >/dev/null 2>&1; do
    tries=$((tries + 1))
    if [ $tries -gt 300 ]; then
        kill $panel
        echo "the installed panel did not start the installed service"
        exit 1
    fi
    sleep 0.1
done
service=""
for proc in /proc/[0-9]*; do
    [ "$(readlink "$proc/exe" 2>/dev/null)" = "$private/norvalex-control" ] && service=${proc#/proc/}
done
"$ctl" stop
stopped=$?
kill $panel
wait $panel 2>/dev/null
[ -n "$service" ] || { echo "the running service is not the one in $private"; exit 1; }
[ $stopped -eq 0 ] || { echo "norvalexctl stop exited $stopped"; exit 1; }
exit 0

#!/usr/bin/env bash
# CPU and memory of the control service while its output "openrgb" streams the animated
# default lighting (Wave) at 30 frames a second, rendered for the output alone, to N DRAM controllers. A second service with
# --sdk-server plays the OpenRGB server. Figures are whole-process, from /proc.
#   bash bench/openrgb_output.sh BUILD_DIR [SECONDS] [COUNTS...]
set -euo pipefail

build=${1:?usage: openrgb_output.sh BUILD_DIR [SECONDS] [COUNTS...]}
seconds=${2:-20}
shift $(( $# >= 2 ? 2 : 1 ))
counts=("${@:-4 8}")
service="$build/bin/norvalex-control"
hz=$(getconf CLK_TCK)
work=$(mktemp -d)
pids=()
cleanup() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

start() { # name, arguments...
  local name=$1
  shift
  mkdir -p "$work/$name/run" "$work/$name/config"
  chmod 700 "$work/$name/run"
  XDG_RUNTIME_DIR="$work/$name/run" XDG_CONFIG_HOME="$work/$name/config" \
    QT_LOGGING_RULES="*.info=false" "$service" "$@" >/dev/null 2>&1 &
  pids+=($!)
  echo $!
}

ticks() { # utime + stime of a process
  awk '{ print $14 + $15 }' "/proc/$1/stat"
}

rss_kb() {
  awk '/^VmRSS:/ { print $2 }' "/proc/$1/status"
}

for count in ${counts[*]}; do
  port=$((20000 + RANDOM % 20000))
  server=$(start "server$count" --sdk-server=127.0.0.1:$port --modules=$count --leds=8)
  sleep 1
  output=$(start "output$count" --output=openrgb:127.0.0.1:$port --modules=0)
  sleep 3 # connect, list, settle
  if ! kill -0 "$server" 2>/dev/null || ! kill -0 "$output" 2>/dev/null; then
    echo "a service did not start or ended (port $port taken?)" >&2
    exit 1
  fi
  o0=$(ticks "$output"); s0=$(ticks "$server")
  sleep "$seconds"
  o1=$(ticks "$output"); s1=$(ticks "$server")
  awk -v n="$count" -v o=$((o1 - o0)) -v s=$((s1 - s0)) -v hz="$hz" -v t="$seconds" \
      -v rss="$(rss_kb "$output")" \
      'BEGIN { printf "%d DRAM controllers: output service %.1f %% of one core, RSS %.1f MiB; receiving SDK server %.1f %%\n", n, 100 * o / hz / t, rss / 1024, 100 * s / hz / t }'
  kill "$output" "$server"
  wait "$output" "$server" 2>/dev/null || true
done

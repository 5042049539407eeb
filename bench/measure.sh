#!/usr/bin/env bash
# Whole-process figures of the panel and the control service, read from /proc.
#   bash bench/measure.sh [BUILD_DIR]
# NX_BENCH_ONLY=panel or NX_BENCH_ONLY=service measures only that process.
# Runs the panel under its own X server (xvfb-run) in a fresh home, visits the pages with real
# X input (xdotool) and prints, for every figure, the median of NX_BENCH_RUNS runs (default 3)
# of NX_BENCH_SECONDS seconds (default 10). CPU is the time every thread of the process spent
# on a CPU (/proc/PID/task/*/schedstat) over the wall-clock time, in % of one core.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$(cd "${1:-$here/build}" && pwd)
runs=${NX_BENCH_RUNS:-3}
seconds=${NX_BENCH_SECONDS:-10}
settle=${NX_BENCH_SETTLE:-3}

# Under its own X server and its own session bus, as a desktop session has: without a bus, Qt
# and the service would each auto-launch one, the window waiting for it, and leave it running.
if [ -z "${NX_BENCH_UNDER_X:-}" ]; then
  export NX_BENCH_UNDER_X=1
  exec xvfb-run -a -s "-screen 0 1280x800x24" \
    dbus-run-session -- bash "${BASH_SOURCE[0]}" "$build"
fi

for tool in xdotool awk "$build/bench/nx_map_watch"; do
  command -v "$tool" >/dev/null || { echo "measure.sh: $tool is missing" >&2; exit 2; }
done

work=$(mktemp -d)
# A desktop session's runtime directory is a tmpfs (/run/user/UID): lock files there cost no disk
# flush. Without a tmpfs at /dev/shm, the runtime directories stay in the work directory.
runtime_root=$work
if [ -d /dev/shm ] && [ -w /dev/shm ]; then runtime_root=$(mktemp -d /dev/shm/nx-bench.XXXX); fi
pids=()
cleanup() {
  local pid
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  rm -rf "$work" "$runtime_root"
}
trap cleanup EXIT

now_ms() { echo $(($(date +%s%N) / 1000000)); }

# Nanoseconds on a CPU, summed over the threads alive now.
cpu_ns() {
  cat /proc/"$1"/task/*/schedstat 2>/dev/null | awk '{ t += $1 } END { printf "%d\n", t }'
}

# % of one core used by PID over the measuring period.
cpu_percent() {
  local pid=$1 before after start end
  before=$(cpu_ns "$pid")
  start=$(date +%s%N)
  sleep "$seconds"
  after=$(cpu_ns "$pid")
  end=$(date +%s%N)
  awk -v c=$((after - before)) -v w=$((end - start)) 'BEGIN { printf "%.2f\n", 100 * c / w }'
}

rss_mb() { awk '/^VmRSS:/ { printf "%.1f\n", $2 / 1024 }' /proc/"$1"/status; }

median() { sort -g | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }

# A fresh home with a private config directory, and its runtime directory (runtime_of HOME).
fresh_home() {
  local home
  home=$(mktemp -d "$work/home.XXXX")
  mkdir -p "$home/config" "$(runtime_of "$home")"
  chmod 700 "$(runtime_of "$home")"
  echo "$home"
}
runtime_of() { echo "$runtime_root/runtime.$(basename "$1")"; }

# The service's pid, from the lock it holds in the runtime directory.
service_pid() {
  local lock
  for lock in "$(runtime_of "$1")"/norvalex-mutex-NORVALEX_Control.exe.lock; do
    [ -s "$lock" ] && head -n1 "$lock"
  done
}

wait_for() { # seconds command...
  local until=$(($(date +%s) + $1))
  shift
  until "$@" >/dev/null 2>&1; do
    [ "$(date +%s)" -ge "$until" ] && return 1
    sleep 0.01
  done
}

# Starts a watcher that sleeps until a window titled $1 is mapped; map_wait then waits for it and
# sets mapped to that moment in ms. Unlike polling with xdotool, it takes no CPU from the starting program.
watch_map() {
  watch_file=$(mktemp "$work/map.XXXX")
  timeout 20 "$build/bench/nx_map_watch" "$1" >"$watch_file" &
  watch_pid=$!
  wait_for 5 grep -q ready "$watch_file"
}
map_wait() {
  wait "$watch_pid"
  mapped=$(tail -n1 "$watch_file")
}

# Menu entries of the 1000 x 600 frame, in window coordinates.
declare -A menu=([Information]=90 [Lighting]=142 [Notification]=194 [Settings]=246)
pages=(Information Lighting Notification Settings)

panel_run() {
  local home runtime pid window service start
  home=$(fresh_home)
  runtime=$(runtime_of "$home")
  watch_map 'NORVALEX RGB'
  start=$(now_ms)
  HOME=$home XDG_CONFIG_HOME=$home/config XDG_RUNTIME_DIR=$runtime \
    QT_QPA_PLATFORM=xcb "$build/bin/norvalex-rgb" >"$home/panel.log" 2>&1 &
  pid=$!
  pids+=("$pid")
  map_wait
  echo "shown_ms $((mapped - start))"
  # The panel's own CPU time until then: what the wall clock shows on a loaded machine is
  # mostly waiting for a CPU.
  echo "shown_cpu_ms $(($(cpu_ns "$pid") / 1000000))"
  window=$(xdotool search --onlyvisible --name '^NORVALEX RGB$' | head -n1)
  wait_for 20 service_pid "$home"
  service=$(service_pid "$home")
  pids+=("$service")
  sleep "$settle"
  echo "rss_start_mb $(rss_mb "$pid")"
  local page
  for page in "${pages[@]}"; do
    xdotool mousemove --window "$window" 90 "${menu[$page]}" click 1
    sleep "$settle"
    echo "panel_${page}_pct $(cpu_percent "$pid")"
  done
  echo "rss_pages_mb $(rss_mb "$pid")"
  kill "$pid" "$service"
  wait "$pid" 2>/dev/null || true
  wait_for 10 test ! -e "/proc/$service"
}

# The same start-up figure for a bare Qt window: what no code of ours can go below.
bare_run() {
  local pid start
  watch_map 'bare window'
  start=$(now_ms)
  QT_QPA_PLATFORM=xcb "$build/bench/nx_bare_window" >/dev/null 2>&1 &
  pid=$!
  pids+=("$pid")
  map_wait
  echo "bare_window_shown_ms $((mapped - start))"
  echo "bare_window_shown_cpu_ms $(($(cpu_ns "$pid") / 1000000))"
  kill "$pid"
  wait "$pid" 2>/dev/null || true
}

service_run() {
  local home service client
  home=$(fresh_home)
  XDG_CONFIG_HOME=$home/config XDG_RUNTIME_DIR=$(runtime_of "$home") \
    "$build/bin/norvalex-control" --modules 8 >"$home/service.log" 2>&1 &
  service=$!
  pids+=("$service")
  wait_for 20 test -S "$(runtime_of "$home")/norvalex-control.sock"
  sleep "$settle"
  echo "service_idle_pct $(cpu_percent "$service")"
  XDG_CONFIG_HOME=$home/config XDG_RUNTIME_DIR=$(runtime_of "$home") \
    "$build/bench/nx_preview_client" "$build/bin/libNORVALEX_Lighting.so" \
    $((seconds + 2 * settle)) >"$home/client.log" &
  client=$!
  pids+=("$client")
  sleep "$settle"
  echo "service_streaming_pct $(cpu_percent "$service")"
  wait "$client"
  echo "service_rss_mb $(rss_mb "$service")"
  kill "$service"
  wait "$service" 2>/dev/null || true
}

results="$work/results"
for ((run = 1; run <= runs; ++run)); do
  echo "run $run of $runs" >&2
  if [ "${NX_BENCH_ONLY:-panel}" = panel ]; then
    panel_run >>"$results"
    bare_run >>"$results"
  fi
  if [ "${NX_BENCH_ONLY:-service}" = service ]; then service_run >>"$results"; fi
done

printf '%-26s %10s   %s\n' figure median "runs"
for figure in $(awk '{ print $1 }' "$results" | awk '!seen[$0]++'); do
  values=$(awk -v f="$figure" '$1 == f { print $2 }' "$results")
  printf '%-26s %10s   %s\n' "$figure" "$(echo "$values" | median)" "$(echo $values)"
done

#!/usr/bin/env bash
# Writes a PNG of every page of the panel in English, German and Japanese.
#   bash tools/screenshots.sh [BUILD_DIR] [OUT_DIR]
# The panel runs under its own X server (xvfb-run) in a fresh home with the simulated modules;
# pages and languages are chosen with real X input (xdotool), the window is captured with
# ImageMagick's import. Files: OUT_DIR/<language>-<page>.png (default OUT_DIR: screenshots).
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$(cd "${1:-$here/build}" && pwd)
out=${2:-screenshots}

if [ -z "${NX_SHOTS_UNDER_X:-}" ]; then
  export NX_SHOTS_UNDER_X=1
  exec xvfb-run -a -s "-screen 0 1280x800x24 -nolisten tcp" bash "${BASH_SOURCE[0]}" "$build" "$out"
fi

for tool in xdotool import; do
  command -v "$tool" >/dev/null || { echo "screenshots.sh: $tool is missing" >&2; exit 2; }
done
mkdir -p "$out"

home=$(mktemp -d)
mkdir -p "$home/config" "$home/runtime"
chmod 700 "$home/runtime"
panel=""
service=""
cleanup() {
  [ -n "$panel" ] && kill "$panel" 2>/dev/null
  [ -n "$service" ] && kill "$service" 2>/dev/null
  rm -rf "$home"
}
trap cleanup EXIT

HOME=$home XDG_CONFIG_HOME=$home/config XDG_RUNTIME_DIR=$home/runtime QT_QPA_PLATFORM=xcb \
  "$build/bin/norvalex-rgb" >"$home/panel.log" 2>&1 &
panel=$!

window=""
for _ in $(seq 600); do
  window=$(xdotool search --onlyvisible --name '^NORVALEX RGB$' 2>/dev/null | head -n1) || true
  [ -n "$window" ] && break
  sleep 0.1
done
[ -n "$window" ] || { echo "screenshots.sh: the panel did not show its window" >&2; exit 1; }
lock="$home/runtime/norvalex-mutex-NORVALEX_Control.exe.lock"
for _ in $(seq 600); do
  [ -s "$lock" ] && break
  sleep 0.1
done
service=$(head -n1 "$lock")
sleep 4 # the loading view ends with the first hardware data

click() { xdotool mousemove --window "$window" "$1" "$2" click 1; }

# Window coordinates of the frame's menu entries, the language button and the language list.
declare -A page_y=([information]=90 [lighting]=142 [notification]=194 [settings]=246)
pages=(information lighting notification settings)
language_button=(435 121)
declare -A language_entry=([en]="417 181" [de]="490 181" [jp]="490 294")
languages=(en de jp)

for language in "${languages[@]}"; do
  click 90 "${page_y[settings]}"
  sleep 1
  click "${language_button[@]}"
  sleep 1
  # shellcheck disable=SC2086
  click ${language_entry[$language]}
  sleep 2
  for page in "${pages[@]}"; do
    click 90 "${page_y[$page]}"
    # Move the pointer out of the way; let the page and the preview settle.
    xdotool mousemove --window "$window" 995 595
    sleep 2
    import -silent -window "$window" "$out/$language-$page.png"
    echo "$out/$language-$page.png"
  done
done

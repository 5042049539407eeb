#!/usr/bin/env bash
# Set-up, build and run for a Debian 12 machine.
#   bash tools/nx.sh run    install what is missing, build, start the panel (simulated modules)
#   bash tools/nx.sh test   install what is missing, build, run every test
#   bash tools/nx.sh build  install what is missing and build only
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build="${NX_BUILD_DIR:-$here/build}"
jobs="${NX_JOBS:-2}"

packages=(
  cmake make g++ pkg-config
  qtbase5-dev qttools5-dev qttools5-dev-tools
  libbenchmark-dev
  fonts-liberation fonts-noto-cjk fonts-thai-tlwg
)
test_packages=(g++-mingw-w64-x86-64-posix xdotool
  xvfb x11-utils dbus-daemon dbus-bin dbus-x11 at-spi2-core python3-pyatspi)

install_missing() {
  local missing=()
  for p in "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

configure_and_build() {
  cmake -S "$here" -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo
  cmake --build "$build" -j"$jobs"
}

case "${1:-}" in
  run)
    install_missing "${packages[@]}"
    configure_and_build
    # The panel starts norvalex-control (simulated modules) from its own directory.
    exec "$build/bin/norvalex-rgb"
    ;;
  test)
    install_missing "${packages[@]}" "${test_packages[@]}"
    configure_and_build
    cd "$build"
    ctest -j"$jobs" --output-on-failure
    ;;
  build)
    install_missing "${packages[@]}"
    configure_and_build
    ;;
  *)
    echo "usage: bash tools/nx.sh run|test|build" >&2
    exit 2
    ;;
esac

#!/usr/bin/env bash
# Set-up, build and run for a Debian 12 machine.
#   bash tools/nx.sh run    install what is missing, build, start the panel (simulated modules)
#   bash tools/nx.sh test   install what is missing, build, run every test
#   bash tools/nx.sh build  install what is missing and build only
#   bash tools/nx.sh package  build the Debian package (installs under /usr) in build-package/
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build="${NX_BUILD_DIR:-$here/build}"
jobs="${NX_JOBS:-2}"

packages=(
  cmake make g++ pkg-config
  qtbase5-dev qttools5-dev qttools5-dev-tools libqt5svg5-dev libpng-dev
  libbenchmark-dev libpulse-dev
  fonts-liberation fonts-noto-cjk fonts-thai-tlwg
)
test_packages=(g++-mingw-w64-x86-64-posix pulseaudio dbus-daemon dbus-bin dbus-x11 clang libclang-rt-14-dev
               xvfb xauth xdotool imagemagick x11-utils libx11-dev at-spi2-core python3-pyatspi)
# Checks of the installed tree and of the Debian package.
package_packages=(dpkg-dev fakeroot file lintian desktop-file-utils appstream systemd bash-completion)

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
    install_missing "${packages[@]}" "${test_packages[@]}" "${package_packages[@]}"
    # The OpenRGB SDK test runs the openrgb-sdk npm client; a Node.js of another origin will do.
    command -v npm >/dev/null || install_missing nodejs npm
    configure_and_build
    # The protocol decoders under libFuzzer for a minute, from a clang build of their own.
    if command -v clang++ >/dev/null; then
      cmake -S "$here" -B "$build-fuzz" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
        -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
        -DNX_BUILD_FUZZERS=ON -DNX_BUILD_BENCHMARKS=OFF
      cmake --build "$build-fuzz" -j"$jobs" --target nx_fuzz_frame_decoder nx_fuzz_orgb_packets
      ctest --test-dir "$build-fuzz" -R '^fuzz\.' --output-on-failure
    fi
    # The whole suite last, so that its summary closes the output.
    cd "$build"
    ctest -j"$jobs" --output-on-failure
    ;;
  build)
    install_missing "${packages[@]}"
    configure_and_build
    ;;
  package)
    install_missing "${packages[@]}" "${package_packages[@]}"
    build="${NX_BUILD_DIR:-$here/build-package}"
    cmake -S "$here" -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_INSTALL_PREFIX=/usr \
      -DNX_BUILD_TESTS=OFF -DNX_BUILD_BENCHMARKS=OFF
    cmake --build "$build" -j"$jobs"
    (cd "$build" && cpack -G DEB -B "${NX_PACKAGE_DIR:-$build}")
    ;;
  *)
    echo "usage: bash tools/nx.sh run|test|build|package" >&2
    exit 2
    ;;
esac

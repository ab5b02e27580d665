#!/usr/bin/env bash
# Sets up a Debian 12 machine for Qorvat, builds it, then starts the program
# (./build.sh run) or runs the whole test suite (./build.sh test).
#   QORVAT_SANITIZE=1  build and test with AddressSanitizer and UBSan (in build-sanitize/)
#   QORVAT_BUILD_DIR   build folder (default build/ or build-sanitize/)
set -euo pipefail
cd "$(dirname "$0")"

mode=${1:-}
case "$mode" in
  run | test) shift ;;
  *) echo "usage: $0 run [qorvat options] | $0 test" >&2; exit 2 ;;
esac

packages=(build-essential cmake pkg-config qt6-base-dev libgtest-dev libbenchmark-dev mdbtools-dev
          fonts-dejavu-core fonts-farsiweb)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if ((${#missing[@]})); then
  sudo=""
  [ "$(id -u)" -eq 0 ] || sudo=sudo
  echo "Installing: ${missing[*]}"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

sanitize=${QORVAT_SANITIZE:-0}
if [ "$sanitize" = 1 ]; then
  build_dir=${QORVAT_BUILD_DIR:-build-sanitize}
  cmake_args=(-DCMAKE_BUILD_TYPE=Debug -DQORVAT_SANITIZE=ON)
else
  build_dir=${QORVAT_BUILD_DIR:-build}
  cmake_args=(-DCMAKE_BUILD_TYPE=RelWithDebInfo)
fi
jobs=$(nproc 2>/dev/null || echo 2)

cmake -S . -B "$build_dir" "${cmake_args[@]}" >/dev/null
cmake --build "$build_dir" -j"$jobs"

if [ "$mode" = run ]; then
  exec "$build_dir/gui/qorvat" "$@"
fi
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1}
export LSAN_OPTIONS=${LSAN_OPTIONS:-suppressions=$PWD/tests/lsan.supp}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
ctest --test-dir "$build_dir" --output-on-failure -j"$jobs"

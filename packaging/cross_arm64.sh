#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the program for arm64 on another processor, and runs there, under qemu-user, the tests of the
# geometry, the camera and the virtual camera, and both programs' tours without a screen.
#   packaging/cross_arm64.sh
# The build happens in a clean Debian with the foreign architecture. Needs root, debootstrap, Linux
# 6.7 or later, and the network; downloads some 500 MB the first time. What the compiler made is kept
# for the next run. The last lines are a summary; the status is 0 only if all that was run passed.
set -euo pipefail
cd "$(dirname "$0")/.."

if [ -z "${QUORVANDEL_PACKAGE_TEST:-}" ]; then
  [ "$(id -u)" -eq 0 ] || { echo "This must be run as root."; exit 2; }
  command -v debootstrap >/dev/null || { echo "debootstrap is missing."; exit 2; }
  export QUORVANDEL_PACKAGE_TEST=1
  exec unshare --mount --pid --fork --kill-child --mount-proc "$0"
fi

# Tests that cannot pass under the emulator: the reason for each. They are run all the same, and one
# that passes counts as a failure of this list.
declare -A emulator_limits=()

cache=$PWD/build/package-test
mkdir -p "$cache/ccache-arm64"
root=$(mktemp -d "$cache/root.XXXXXX")
home=$root/home/builder
. packaging/cleanroot.sh
. packaging/sourcetree.sh
. packaging/emulation.sh
. tools/packages.sh
leave() {
  end_emulation
  remove_root
}
trap leave EXIT

# Tools run here, libraries there.
install_cross_tools() {
  local tools libraries="" package
  tools="cmake ninja-build ccache python3 qttools5-dev-tools qemu-user crossbuild-essential-arm64
    libc6:arm64 libstdc++6:arm64"
  # shellcheck disable=SC2154 # from tools/packages.sh
  for package in $packages_build; do
    case $package in
    lib*-dev | q*-dev) libraries+=" $package:arm64" ;;
    esac
  done
  in_root dpkg --add-architecture arm64
  in_root apt-get -q update
  # shellcheck disable=SC2086 # the lists are meant to be split
  in_root apt-get -q -y install --no-install-recommends $tools $libraries \
    libqt5multimedia5-plugins:arm64 fonts-dejavu-core fonts-liberation
}

write_toolchain() {
  cat >"$home/arm64.cmake" <<'TOOLCHAIN'
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
TOOLCHAIN
}

as_builder() {
  in_root_as builder "export CCACHE_DIR=/home/builder/ccache \
    PKG_CONFIG_LIBDIR=/usr/lib/aarch64-linux-gnu/pkgconfig:/usr/share/pkgconfig && $1"
}

unpack_clean_root
mount --bind /dev "$root/dev"
start_emulation
install_cross_tools
in_root useradd -m builder
lay_out_sources "$home"
write_toolchain
mkdir "$home/ccache"
mount --bind "$cache/ccache-arm64" "$home/ccache"
in_root chown -R builder: /home/builder

echo "== building"
as_builder "cmake -G Ninja -S . -B build -DCMAKE_BUILD_TYPE=Release -DQUORVANDEL_BENCH=OFF \
  -DCMAKE_TOOLCHAIN_FILE=arm64.cmake -DCMAKE_CXX_COMPILER_LAUNCHER=ccache"
# The folders' tests, and what these need.
tests=$(cd tests && printf '%s\n' {geometry,camera,virtualcamera}/tst_*.cpp |
  sed 's,.*/,,; s,\.cpp$,,' | tr '\n' ' ')
as_builder "cmake --build build ${CMAKE_BUILD_PARALLEL_LEVEL:+-j$CMAKE_BUILD_PARALLEL_LEVEL} --target \
  quorvandel quorvandel-assistant quorvandel-mount quorvandel-tour quorvandel-assistant-tour $tests"

passed=()
failed=()
# try NAME COMMAND: runs COMMAND there as the builder, and counts it.
try() {
  local name=$1 log=$cache/arm64-${1// /-}.log result=passed
  emulated_as builder "packaging/without_pidfd.py $2" >"$log" 2>&1 || result=failed
  printf '%-36s %s\n' "$name" $result
  if [ $result = passed ]; then
    passed+=("$name")
  else
    failed+=("$name")
    tail -n 60 "$log" | sed 's/^/    /'
  fi
}

echo "== testing"
for test in $tests; do
  try "$test" "ctest --test-dir build --no-tests=error --output-on-failure -R '^$test\$'"
done
echo "== the tours"
for tour in quorvandel-tour quorvandel-assistant-tour; do
  for pole in north south; do
    option=
    [ $pole = north ] || option=--south
    try "$tour $pole" "env QT_QPA_PLATFORM=offscreen LD_LIBRARY_PATH=build/lib/quorvandel \
      QUORVANDEL_TOUR_PATIENCE=20 timeout 3600 build/tour/$tour --fast --pictures pictures/$tour $option"
  done
done

echo "== summary"
unexpected=0
for name in ${failed[@]+"${failed[@]}"}; do
  if [ -n "${emulator_limits[$name]:-}" ]; then
    echo "cannot pass under the emulator: $name: ${emulator_limits[$name]}"
  else
    echo "failed: $name"
    unexpected=1
  fi
done
for name in ${passed[@]+"${passed[@]}"}; do
  if [ -n "${emulator_limits[$name]:-}" ]; then
    echo "passed, but is listed as an emulator's limit: $name"
    unexpected=1
  fi
done
echo "arm64: ${#passed[@]} passed, ${#failed[@]} failed"
exit $unexpected

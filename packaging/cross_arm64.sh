#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the program for arm64 on another processor, and runs there, under qemu-user, the tests of the
# geometry, the camera and the virtual camera, and the tour without a screen.
#   packaging/cross_arm64.sh
# The build happens in a clean Debian with the foreign architecture. Needs root, debootstrap and the
# network; downloads some 500 MB the first time.
set -eu
cd "$(dirname "$0")/.."

if [ -z "${QUORVANDEL_PACKAGE_TEST:-}" ]; then
  [ "$(id -u)" -eq 0 ] || { echo "This must be run as root."; exit 2; }
  command -v debootstrap >/dev/null || { echo "debootstrap is missing."; exit 2; }
  export QUORVANDEL_PACKAGE_TEST=1
  exec unshare --mount --pid --fork --kill-child --mount-proc "$0"
fi

cache=$PWD/build/package-test
mkdir -p "$cache"
root=$(mktemp -d "$cache/root.XXXXXX")
. packaging/cleanroot.sh
. tools/packages.sh
trap remove_root EXIT

unpack_clean_root
mount --bind /dev "$root/dev"
in_root dpkg --add-architecture arm64
in_root apt-get -q update
# Tools run here, libraries there.
tools="cmake ninja-build python3 qttools5-dev-tools qemu-user crossbuild-essential-arm64 libc6:arm64
  libstdc++6:arm64"
libraries=
for package in $packages_build; do
  case $package in
  lib*-dev | q*-dev) libraries+=" $package:arm64" ;;
  esac
done
# shellcheck disable=SC2086 # the lists are meant to be split
in_root apt-get -q -y install --no-install-recommends $tools $libraries \
  libqt5multimedia5-plugins:arm64 fonts-dejavu-core fonts-liberation

in_root useradd -m builder
home=$root/home/builder
git ls-files -z --cached --others --exclude-standard | tar --null -T - -c --ignore-failed-read |
  tar -x -C "$home"
in_root chown -R builder: /home/builder
cat >"$home/arm64.cmake" <<'END'
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_CROSSCOMPILING_EMULATOR /usr/bin/qemu-aarch64)
END
as_builder() { in_root su builder -c "cd && export PKG_CONFIG_LIBDIR=/usr/lib/aarch64-linux-gnu/pkgconfig:/usr/share/pkgconfig && $1"; }

echo "== building"
as_builder "cmake -G Ninja -S . -B build -DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE=arm64.cmake \
  -DQUORVANDEL_BENCH=OFF"
# The folders' tests, and what these need.
tests=$(as_builder "cd tests && ls geometry/tst_*.cpp camera/tst_*.cpp virtualcamera/tst_*.cpp" |
  sed 's,.*/,,; s,\.cpp$,,' | tr '\n' ' ')
as_builder "cmake --build build --target quorvandel quorvandel-mount quorvandel-tour veldix $tests"
file "$home/build/bin/quorvandel" 2>/dev/null || true

echo "== testing"
as_builder "ctest --test-dir build --timeout 3600 -j 2 -R '^($(echo $tests | tr ' ' '|'))\$'"

echo "== the tour"
for pole in "" --south; do
  as_builder "QT_QPA_PLATFORM=offscreen LD_LIBRARY_PATH=build/lib/quorvandel \
    qemu-aarch64 build/tour/quorvandel-tour --fast --pictures pictures $pole"
done
echo "The arm64 build passes its tests and the tour."

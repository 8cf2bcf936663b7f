#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds the Debian package in build/package and names it in the last line.
#   packaging/make_package.sh
# Needs what ./run installs for building, and dpkg-dev.
set -eu

cd "$(dirname "$0")/.."
folder=build/package

# Debian's flags for the compiler and the linker, without which the build would lack some hardening.
eval "$(DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --export=sh)"
# No file in the package is dated later than the last change of the sources.
if [ -z "${SOURCE_DATE_EPOCH:-}" ] && day=$(git log -1 --format=%ct 2>/dev/null); then
    export SOURCE_DATE_EPOCH="$day"
fi

cmake --preset release -B "$folder" -DCMAKE_INSTALL_PREFIX=/usr -DQUORVANDEL_TESTS=OFF \
    -DCMAKE_CXX_FLAGS="$CXXFLAGS $CPPFLAGS" \
    -DCMAKE_EXE_LINKER_FLAGS="$LDFLAGS" -DCMAKE_SHARED_LINKER_FLAGS="$LDFLAGS"
cmake --build "$folder" --target quorvandel veldix quorvandel-mount quorvandel-recognise
rm -f "$folder"/quorvandel_*.deb
(cd "$folder" && cpack -G DEB)
ls "$folder"/quorvandel_*.deb

#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds the Debian package in build/package and prints its name in the last line.
#   packaging/make_package.sh
# Needs the build packages that ./run installs, and dpkg-dev.
set -eu

cd "$(dirname "$0")/.."
folder=build/package

# Debian's compiler and linker flags; without them the build would lack some hardening.
eval "$(DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --export=sh)"
# No file in the package has a date after the last change of the sources.
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

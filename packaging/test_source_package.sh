#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the source package in a clean Debian that has its build dependencies alone, under umask 077,
# and checks the modes of the result; then installs the package there and runs its own tests
# (debian/tests) as an unprivileged user.
#   packaging/test_source_package.sh [FILE.dsc]     without FILE.dsc it is made first
# Needs root, debootstrap and the network (for the clean system and the packages).
set -eu
cd "$(dirname "$0")/.."

if [ -z "${QUORVANDEL_PACKAGE_TEST:-}" ]; then
  [ "$(id -u)" -eq 0 ] || { echo "This must be run as root."; exit 2; }
  command -v debootstrap >/dev/null || { echo "debootstrap is missing."; exit 2; }
  source=${1:-}
  if [ -z "$source" ]; then
    packaging/make_package.sh >/dev/null
    source=$(ls build/package/*.dsc)
  fi
  export QUORVANDEL_PACKAGE_TEST=1
  exec unshare --mount --pid --fork --kill-child --mount-proc "$0" "$(realpath "$source")"
fi

source=$1
cache=$PWD/build/package-test
mkdir -p "$cache"
root=$(mktemp -d "$cache/root.XXXXXX")
. packaging/cleanroot.sh
. packaging/contents.sh
trap remove_root EXIT

unpack_clean_root
mount --bind /dev "$root/dev"
in_root useradd -m builder
home=$root/home/builder
files=$(dirname "$source")
cp "$source" "$files"/quorvandel_*.orig.tar.xz "$files"/quorvandel_*.debian.tar.xz "$home/"
in_root chown -R builder: /home/builder # who writes them again
in_root apt-get -q update
in_root apt-get -q -y install --no-install-recommends build-essential fakeroot
as_builder() { in_root_as builder "umask 077 && $1"; }
as_builder "dpkg-source -x *.dsc tree"
in_root apt-get -q -y build-dep --no-install-recommends /home/builder/tree
echo "== building the source package"
as_builder "cd tree && dpkg-buildpackage -us -uc"
echo "== checking the modes"
for package in "$home"/*.deb; do
  package_modes "$package"
done
archive_modes "$home"/quorvandel_*.debian.tar.xz
echo "== running the package's tests"
tests=$(sed -n 's/^Depends: @, @builddeps@, //p' "$home/tree/debian/tests/control")
package=$(cd "$root" && ls home/builder/quorvandel_*.deb)
in_root apt-get -q -y install --no-install-recommends "/$package"
in_root apt-get -q -y satisfy --no-install-recommends "$tests"
as_builder "cd tree && debian/tests/tour"
echo "The source package builds with ordinary modes, and its tests pass."

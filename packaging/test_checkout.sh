#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the packages from a checkout that only its owner can read, under umask 077, in a path with
# blanks and letters of several alphabets, and checks the modes of all that is in them.
#   packaging/test_checkout.sh
# Leaves the packages in build/package, where packaging/test_package.sh and test_source_package.sh may
# take them. Needs lintian. The last line is the number of passed and failed checks.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/sourcetree.sh
. packaging/checks.sh
. packaging/contents.sh
command -v lintian >/dev/null || { echo "lintian is missing."; exit 2; }

# The files that may be run, those of a package's own folders of programs.
programs_alone_may_be_run() {
  local listing
  listing=$(dpkg-deb -c "$1" | awk '/^-rwx/ { print $6 }')
  [ -n "$listing" ] && ! grep -vE '^\./usr/(bin|libexec/quorvandel/bin)/' <<<"$listing"
}
names_no_checkout() {
  mkdir "$scratch/unpacked" && dpkg-deb -x "$1" "$scratch/unpacked" &&
    ! grep -rlF -e "$scratch" -e quorvandel-package. "$scratch/unpacked"
}

here=$PWD
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
checkout="$scratch/Étoile polaire/北極星 (neu)"

umask 077
mkdir -p "$checkout"
! is_repository || git clone --quiet "$here" "$checkout"
source_files | tar -c --no-recursion --null -T - | tar -x -C "$checkout" # what is not committed, too
chmod -R u=rwX,go= "$checkout"
check "the packages are built" "$checkout/packaging/make_package.sh"
built=$checkout/build/package
[ $failed -eq 0 ] || { finish; exit 1; }

for package in "$built"/*.deb; do
  check "modes in $(basename "$package")" package_modes "$package"
done
for archive in "$built"/*.tar.xz; do
  check "modes in $(basename "$archive")" archive_modes "$archive"
done
package=$(ls "$built"/quorvandel_*.deb)
check "only the programs may be run" programs_alone_may_be_run "$package"
check "no file contains the path of the checkout or of the build" names_no_checkout "$package"
# From another folder: lintian misreads a path with non-ASCII letters.
mkdir "$scratch/packages" && cp "$built"/* "$scratch/packages"
check "lintian reports nothing except the explained overrides" \
  lintian --allow-root --fail-on error,warning "$scratch"/packages/*.changes

umask 022
mkdir -p build/package
rm -f build/package/quorvandel*
cp "$built"/* build/package/
chmod a+r build/package/*
finish

#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the Debian source and binary packages in build/package; the last line names the binary one.
#   packaging/make_package.sh
# Installs what building needs. The result does not depend on the umask, on the modes of the checkout
# or on its path, and no file in it is newer than the last change of the sources.
set -eu
umask 022
cd "$(dirname "$0")/.."
. tools/stages.sh

# shellcheck disable=SC2086 # the lists are meant to be split
install_packages $packages_build $packages_package >&2

version=$(dpkg-parsechangelog -S Version)
upstream=${version%-*}
if [ -z "${SOURCE_DATE_EPOCH:-}" ]; then
  SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null || dpkg-parsechangelog -S Timestamp)
fi
export SOURCE_DATE_EPOCH

# A folder whose path has neither spaces nor other letters than a compiler expects.
scratch=$(mktemp -d /var/tmp/quorvandel-package.XXXXXX)
trap 'rm -rf "$scratch"' EXIT
tree=$scratch/quorvandel-$upstream
mkdir "$tree"

# The files of the checkout, with ordinary modes.
{
  git ls-files -z --cached --others --exclude-standard 2>/dev/null ||
    find . \( -path ./build -o -path ./.git \) -prune -o \( -type f -o -type l \) -print0
} | tar --null -T - -c --ignore-failed-read | tar -x -C "$tree"
chmod -R u=rwX,go=rX "$tree"

(cd "$scratch" && tar --sort=name --owner=0 --group=0 --numeric-owner --mtime="@$SOURCE_DATE_EPOCH" \
  --exclude="quorvandel-$upstream/debian" -cJf "quorvandel_$upstream.orig.tar.xz" "quorvandel-$upstream")
(cd "$tree" && dpkg-buildpackage -us -uc ${QUORVANDEL_PACKAGE_OPTIONS:-}) >&2

mkdir -p build/package
rm -f build/package/quorvandel*
find "$scratch" -maxdepth 1 -type f -exec cp -t build/package {} +
ls build/package/quorvandel_*.deb

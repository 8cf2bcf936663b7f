#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the Debian source and binary packages in build/package; the last line names the binary one.
#   packaging/make_package.sh [--prepare]     with --prepare it only installs what building needs
# Installs what building needs. The result does not depend on the umask, on the modes of the checkout
# or on its path, and no file in it is newer than the last change of the sources.
set -euo pipefail
umask 022
cd "$(dirname "$0")/.."
. tools/stages.sh
. packaging/sourcetree.sh

# shellcheck disable=SC2086 # the lists are meant to be split
install_packages $packages_build $packages_package >&2
[ "${1:-}" != --prepare ] || exit 0

version=$(dpkg-parsechangelog -S Version)
upstream=${version%-*}
if [ -z "${SOURCE_DATE_EPOCH:-}" ]; then
  SOURCE_DATE_EPOCH=$(is_repository && git log -1 --format=%ct || dpkg-parsechangelog -S Timestamp)
fi
export SOURCE_DATE_EPOCH

# A folder whose path has neither spaces nor other letters than a compiler expects.
scratch=$(mktemp -d /var/tmp/quorvandel-package.XXXXXX)
trap 'rm -rf "$scratch"' EXIT
tree=$scratch/quorvandel-$upstream
mkdir "$tree"

lay_out_sources "$tree"

(cd "$scratch" && tar --sort=name --owner=0 --group=0 --numeric-owner --mtime="@$SOURCE_DATE_EPOCH" \
  --exclude="quorvandel-$upstream/debian" -cJf "quorvandel_$upstream.orig.tar.xz" "quorvandel-$upstream")
(cd "$tree" && dpkg-buildpackage -us -uc ${QUORVANDEL_PACKAGE_OPTIONS:-}) >&2

mkdir -p build/package
rm -f build/package/quorvandel*
find "$scratch" -maxdepth 1 -type f -exec cp -t build/package {} +
ls build/package/quorvandel_*.deb

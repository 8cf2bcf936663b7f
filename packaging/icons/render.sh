#!/bin/sh
# SPDX-License-Identifier: MIT
# Renders the icons of the programs in the sizes of the hicolor theme, into folders beside this file.
# Needs rsvg-convert (librsvg2-bin).
set -eu

cd "$(dirname "$0")"
cp ../../resources/images/svg/Quorvandel.svg quorvandel.svg
trap 'rm -f quorvandel.svg' EXIT
for size in 16 22 24 32 48 64 128 256; do
    mkdir -p "${size}x$size"
    for name in quorvandel quorvandel-mount quorvandel-assistant; do
        rsvg-convert --width "$size" --height "$size" \
            --output "${size}x$size/$name.png" "$name.svg"
    done
done

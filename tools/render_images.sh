#!/bin/sh
# SPDX-License-Identifier: MIT
# Renders resources/images/svg/*.svg to the PNG files beside them and to the program icon.
# Needs rsvg-convert (librsvg2-bin) and convert (imagemagick).
set -eu

cd "$(dirname "$0")/../resources/images"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

for source in svg/*.svg; do
    name=$(basename "$source" .svg)
    if [ "$name" = Quorvandel ]; then
        continue
    fi
    rsvg-convert --output "$name.png" "$source"
done

# None of 128 kB or more: for those the toolkit would wait for its own threads (core/poolthread.h).
sizes="16 24 32 48 64 128"
set --
for size in $sizes; do
    rsvg-convert --width "$size" --height "$size" --output "$scratch/$size.png" svg/Quorvandel.svg
    set -- "$@" "$scratch/$size.png"
done
convert "$@" Quorvandel.ico

#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Regenerates every picture of the README and the manual by running the program with the virtual
# camera: tools/make_pictures.sh [--assistant] [build folder]; with --assistant, those of the assistant
# alone. Needs convert (imagemagick) and optipng.
set -u
cd "$(dirname "$0")/.." || exit 1
. tools/stages.sh

only_assistant=false
if [ "${1:-}" = --assistant ]; then
  only_assistant=true
  shift
fi
build=${1:-build/release}
if [ $# -eq 0 ]; then configured release || exit 1; fi
stage "Building the tour" cmake --build "$build" --target quorvandel-tour quorvandel-assistant-tour \
  veldix || exit 1

images=docs/images
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
chmod 700 "$scratch"

# tour OPTION...: runs the tour without a screen and independently of this user's settings.
tour() {
  QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 HOME="$scratch" XDG_RUNTIME_DIR="$scratch" \
    XDG_CONFIG_HOME="$scratch" QUORVANDEL_SKY="$scratch/sky.ini" \
    LD_LIBRARY_PATH="$PWD/$build/lib/quorvandel${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}" \
    "$build/tour/quorvandel-tour" --fast "$@"
}

# shrink FILE...: reduces to 200 colours, enough for a night sky, at a third of the size.
shrink() {
  local file
  for file in "$@"; do
    convert "$file" +dither -colors 200 -strip -define png:exclude-chunks=date,time "$file" &&
      optipng -quiet -o2 "$file" || return 1
  done
}

make_set() { # make_set FOLDER OPTION...
  local folder=$1
  shift
  rm -rf "${images:?}/$folder"
  tour --real-rate --pictures "$images/$folder" --zoom 75 "$@" &&
    tour --real-rate --views "$images/$folder" "$@" &&
    shrink "$images/$folder"/*.png || return 1
  local zoom
  for zoom in 100 75 50; do
    mv "$images/$folder/zoom-$zoom.png" "$images/connected-$folder-$zoom.png" || return 1
  done
}

# A close-up of the last step, three times as large; it pauses at both ends.
make_animation() {
  tour --frames "$scratch/frames" --zoom 100 || return 1
  local frames=("$scratch"/frames/*.png)
  local last=${frames[-1]} first=${frames[0]}
  convert "$first" -scale 300% -strip "$images/closeup-before.png" &&
    convert "$last" -scale 300% -strip "$images/closeup-aligned.png" &&
    shrink "$images"/closeup-*.png &&
    convert -loop 0 -delay 120 "$first" -delay 10 "${frames[@]:1:${#frames[@]}-2}" \
      -delay 250 "$last" -scale 300% +dither -colors 48 -layers OptimizePlus "$images/fine-adjustment.gif"
}

# A part of what quorvandel-recognise draws of a frame round the south pole; the noise would not
# compress.
make_recognised() {
  cmake --build "$build" --target recognitionreport quorvandel-recognise &&
    mkdir -p "$scratch/skies" && "$build/bench/recognitionreport" frames 2 "$scratch/skies" &&
    "$build/bin/quorvandel-recognise" --date 2026-11-20T20:00:00Z \
      --picture "$scratch/recognised.png" "$scratch/skies/sky1.png" &&
    convert "$scratch/recognised.png" -crop 800x500+0+400 +repage -black-threshold 14% +dither \
      -colors 24 -strip -define png:exclude-chunks=date,time "$images/recognised.png" &&
    optipng -quiet -o2 "$images/recognised.png"
}

# The assistant's tour. Its sky is that of tonight, so its pictures differ from run to run.
make_assistant() { # make_assistant FOLDER OPTION...
  local folder=$1
  shift
  rm -rf "${images:?}/$folder"
  QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 HOME="$scratch" XDG_RUNTIME_DIR="$scratch" \
    XDG_CONFIG_HOME="$scratch" \
    LD_LIBRARY_PATH="$PWD/$build/lib/quorvandel${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}" \
    "$build/tour/quorvandel-assistant-tour" --fast --pictures "$images/$folder" "$@" &&
    rm -f "$images/$folder"/{connect,sky,near,aligned,night,pole}.png &&
    shrink "$images/$folder"/*.png
}

mkdir -p "$images"
stage "Pictures of the assistant" make_assistant assistant || exit 1
stage "Pictures of the assistant in Chinese" make_assistant assistant-zh --language ZH || exit 1
if $only_assistant; then exit 0; fi
stage "Pictures of the north" make_set north || exit 1
stage "Pictures of the south" make_set south --south || exit 1
stage "Pictures in Chinese" make_set zh --language ZH || exit 1
stage "Animated picture" make_animation || exit 1
stage "Recognised picture" make_recognised || exit 1
echo "$images holds $(du -sk "$images" | cut -f1) KB."

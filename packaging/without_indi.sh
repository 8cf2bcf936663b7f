#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the camera library, the camera command and both programs without INDI, in
# build/without-indi, and checks that they run, need nothing of INDI, and say what is missing.
#   packaging/without_indi.sh
set -u
cd "$(dirname "$0")/.." || exit 1
. packaging/checks.sh

build=build/without-indi
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/home"

# camera OPTION...: the command, with a home of its own; its exit status is the last line.
camera() {
  HOME="$scratch/home" QT_QPA_PLATFORM=offscreen "$build/bin/quorvandel-camera" "$@" 2>&1
  echo "status $?"
}

# says TEXT OPTION...: whether the command's output has TEXT.
says() {
  local text=$1
  shift
  camera "$@" | tee /dev/stderr | grep -qF "$text"
}

# fails OPTION...: whether the command ends by itself, and with a failure.
fails() { camera "$@" | tee /dev/stderr | grep -qE '^status [1-9][0-9]?$'; }

needs_no_indi() { ! readelf -d "$@" | tee /dev/stderr | grep -q 'NEEDED.*libindi'; }

check "it is configured" cmake --preset release -B "$build" -DQUORVANDEL_INDI=OFF
check "the configuration says that INDI is left out" \
  grep -qE '^QUORVANDEL_HAS_INDI:INTERNAL=OFF$' "$build/CMakeCache.txt"
check "it is built" \
  cmake --build "$build" -j "$(nproc)" --target \
  quorvandel-camera veldix framesourcesmodule quorvandel quorvandel-assistant
check "nothing of it needs INDI's library" \
  needs_no_indi "$build/bin/quorvandel-camera" "$build/lib/quorvandel/quorvandel-framesources.so" \
  "$build/bin/quorvandel" "$build/bin/quorvandel-assistant"
for program in quorvandel quorvandel-assistant; do
  check "$program runs, and ends when it is asked to" \
    env HOME="$scratch/home" QT_QPA_PLATFORM=offscreen \
    timeout --preserve-status --kill-after 20 5 "$build/bin/$program"
done
check "the list says that INDI is missing" says "this program was built without INDI" list
indi="indi://localhost/CCD Simulator"
check "a camera of INDI is refused by name" \
  says "this program was built without INDI" --camera "$indi" grab "$scratch/indi.png"
check "and the command fails" fails --camera "$indi" grab "$scratch/indi.png"
check "the sky is there" says "status 0" --camera sky grab "$scratch/sky.png"
check "files are there" says "status 0" --camera "files:$scratch/sky.png" grab "$scratch/again.png"
finish

#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Repeats the runs of docs/reliability.md, "Damage by a stray write": the rows of tst_sdkmatrix with IDs,
# while each second step of QSemaphore::release() is delayed by 0.05 to 8 ms; 96 runs in which the waiting
# thread is also woken, three at a time, and beside them 24 in which it is not; then 96 of the latter.
#   tests/reliability/delayed_releases.sh [BUILD]     BUILD: build/release, of Debian 12 on x86-64
# Its targets tst_sdkmatrix and delayedrelease must be built. Prints the counts; fails if a run does.
set -euo pipefail
cd "$(dirname "$0")/../.."
build=$(realpath "${1:-build/release}")
program=$build/tests/bin/sdkmatrix/tst_sdkmatrix
preload=$build/tests/lib/delayedrelease/libdelayedrelease.so
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
ulimit -c 0
delays=(50 500 3000 8000) # microseconds

# runs SERIES WORKER COUNT [VARIABLE=VALUE]: a folder of its own, since the settings are beside the program.
runs() {
  local folder=$scratch/$1-$2 n status
  mkdir -p "$folder/home" && mkdir -m 700 "$folder/run" && cp "$program" "$folder/"
  for ((n = 0; n < $3; n++)); do
    status=0
    timeout 120 env QT_QPA_PLATFORM=offscreen QT_NO_GLIB=1 GST_PLUGIN_SYSTEM_PATH_1_0=/nothing GST_REGISTRY_FORK=no \
      LC_ALL=C.UTF-8 HOME="$folder/home" XDG_CONFIG_HOME="$folder/home" XDG_RUNTIME_DIR="$folder/run" \
      LD_LIBRARY_PATH="$build/tests/lib/recordingsdk" LD_PRELOAD="$preload" \
      RELEASE_DELAY="${delays[n % 4]}" "${@:4}" \
      "$folder/tst_sdkmatrix" id >"$folder/out" 2>&1 || status=$?
    echo "$status $(grep -a '^delayedrelease: [0-9]' "$folder/out" || true)" >>"$scratch/$1"
  done 2>/dev/null
}

for worker in 1 2 3; do runs woken $worker 32 RELEASE_WAKES=1 & done
runs beside 4 24 &
wait
for worker in 1 2 3 4; do runs plain $worker 24 & done
wait
for series in woken beside plain; do
  awk -v series=$series '{ runs++; failed += $1 != 0; steps += $3; strays += $6; canaries += $10 }
    END { printf "%s: %d runs, %d failed; %d second steps, %d in other memory, %d on a canary\n",
          series, runs, failed, steps, strays, canaries }' "$scratch/$series"
done
! grep -qv '^0 delayedrelease' "$scratch/woken" "$scratch/beside" "$scratch/plain"

#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs checks of the sources by name: tools/lint.sh format licence texts map
set -u
cd "$(dirname "$0")/.." || exit 1
. tools/lints.sh
mkdir -p build
status=0
for lint in "$@"; do
  if ! declare -F "${lint}_lint" >/dev/null; then
    echo "There is no check $lint." >&2
    exit 2
  fi
  "${lint}_lint" || status=1
done
exit $status

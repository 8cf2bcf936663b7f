# SPDX-License-Identifier: MIT
# Counts checks. Sourced by bash; the caller sets `scratch`, a folder.

passed=0
failed=0

# check TEXT COMMAND...: counts whether COMMAND succeeds, and shows its output if it does not.
check() {
  local text=$1
  shift
  if "$@" >"$scratch/check" 2>&1; then
    passed=$((passed + 1))
    echo "ok      $text"
  else
    failed=$((failed + 1))
    echo "FAILED  $text"
    tail -n 20 "$scratch/check" | sed 's/^/        /'
  fi
}

# finish: prints the numbers; fails if a check has failed.
finish() {
  echo "$passed passed, $failed failed"
  [ $failed -eq 0 ]
}

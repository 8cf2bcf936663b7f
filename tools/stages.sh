# SPDX-License-Identifier: MIT
# What the scripts share: stages that report what they do, how far they are and why they failed.
# Sourced by bash with the project's root as the current folder; brings tools/packages.sh with it.

logs=build/logs
. tools/packages.sh

# progress_of LOG: how far a running command is, by the last lines of its log: the percentage of
# ninja's steps or of ctest's tests; otherwise the last line itself, cut.
progress_of() {
  local last
  last=$(tail -c 4000 "$1" 2>/dev/null | tr '\r' '\n' | sed -nE \
    's,^ *\[?([0-9]+)/([0-9]+)(\]| Test +#).*,\1 \2,p' | tail -n 1)
  if [ -n "$last" ] && [ "${last#* }" -gt 0 ]; then
    printf '%d %% (%d of %d)' $((${last% *} * 100 / ${last#* })) "${last% *}" "${last#* }"
  else
    tail -c 4000 "$1" 2>/dev/null | tr '\r' '\n' | grep -v '^[[:space:]]*$' | tail -n 1 |
      sed -E 's,.*/,,' | cut -c1-40 | tr -d '\n'
  fi
}

# show_progress TEXT LOG OWNER: until the process OWNER ends. A terminal's line is written again and
# again; elsewhere a line is added every minute.
show_progress() {
  local text=$1 log=$2 owner=$3 width seconds=0 line
  width=$(tput cols 2>/dev/null || echo 80)
  while kill -0 "$owner" 2>/dev/null; do
    if [ -t 1 ]; then
      line="$text ... $(progress_of "$log"), log: $log"
      printf '\r\033[K%s' "${line:0:$((width - 1))}"
    elif [ $seconds -gt 0 ] && [ $((seconds % 60)) -eq 0 ]; then
      printf '    %s\n' "$(progress_of "$log")"
    fi
    sleep 1 >/dev/null 2>&1
    seconds=$((seconds + 1))
  done
}

# reasons LOG: why a command failed: the errors of compilers, linkers, CMake and lints, or else the
# last lines.
reasons() {
  local errors
  errors=$(grep -aE -A 4 \
    '(error|warning):|^E: |^CMake Error|undefined reference|No space left|Killed|^FAILED:' "$1" |
    cut -c1-400)
  if [ -n "$errors" ]; then
    head -n 40 <<<"$errors"
  else
    tail -n 40 "$1"
  fi
}

# log_of TEXT: where the output of the stage TEXT goes.
log_of() { printf '%s/%s.log' "$logs" "$(printf '%s' "$1" | tr -cs 'A-Za-z0-9' '-' | cut -c1-60)"; }

explain=reasons

# stage TEXT COMMAND...: runs COMMAND with its output in a log and reports what is being done, where
# the log is, and, if it failed, why: by the function named in `explain`, which is given the log.
# What COMMAND writes to file descriptor 3 is seen at once. Returns the command's status.
stage() {
  local text=$1 log status watcher start=$SECONDS
  shift
  mkdir -p "$logs"
  log=$(log_of "$text")
  : >"$log"
  if [ -t 1 ]; then printf '%s ...' "$text"; else printf '%s ... (log: %s)\n' "$text" "$log"; fi
  # Beside the command, which keeps Ctrl+C.
  show_progress "$text" "$log" $$ &
  watcher=$!
  "$@" 3>&1 >"$log" 2>&1
  status=$?
  kill $watcher 2>/dev/null
  wait $watcher 2>/dev/null
  [ ! -t 1 ] || printf '\r\033[K'
  if [ $status -eq 0 ]; then
    printf '%s ... done (%d s)\n' "$text" $((SECONDS - start))
  else
    printf '%s ... FAILED (%d s) with status %d, because of (all of it: %s):\n' \
      "$text" $((SECONDS - start)) $status "$log"
    "$explain" "$log" | sed 's/^/    /'
  fi
  return $status
}

# configured PRESET: configures a build folder once; CMake itself notices later changes.
configured() {
  [ -f "build/$1/build.ninja" ] || stage "Configuring the $1 build" cmake --preset "$1"
}

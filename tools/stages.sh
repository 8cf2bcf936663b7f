# SPDX-License-Identifier: MIT
# Common functions of the scripts: stages that report their task, their progress and why they failed.
# Sourced by bash with the project's root as the current folder; sources tools/packages.sh.

logs=build/logs
. tools/packages.sh

# progress_of LOG: progress of a running command, from the last lines of its log: the percentage of
# ninja's steps or of ctest's tests; otherwise the truncated last line.
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

progress_interval=60 # seconds between two lines where there is no terminal

# show_progress TEXT LOG OWNER: shows progress until the process OWNER ends. On a terminal it updates
# one line; otherwise it adds a line every minute.
show_progress() {
  local text=$1 log=$2 owner=$3 width seconds=0 line
  width=$(tput cols 2>/dev/null || echo 80)
  while kill -0 "$owner" 2>/dev/null; do
    if [ -t 1 ]; then
      line="$text ... $(progress_of "$log"), log: $log"
      printf '\r\033[K%s' "${line:0:$((width - 1))}"
    elif [ $seconds -gt 0 ] && [ $((seconds % progress_interval)) -eq 0 ]; then
      printf '    %s\n' "$(progress_of "$log")"
    fi
    sleep 1 >/dev/null 2>&1
    seconds=$((seconds + 1))
  done
}

# reasons LOG: why a command failed: the errors of compilers, linkers, CMake and lints, or if there
# are none, the last lines.
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

# log_of TEXT: the log file of the stage TEXT.
log_of() { printf '%s/%s.log' "$logs" "$(printf '%s' "$1" | tr -cs 'A-Za-z0-9' '-' | cut -c1-60)"; }

explain=reasons

# stage TEXT COMMAND...: runs COMMAND with its output in a log. Reports the task, the log file and,
# on failure, the reasons, from the function named in `explain`, which gets the log. COMMAND's output
# to file descriptor 3 is visible immediately. Returns the command's status.
stage() {
  local text=$1 log status watcher start=$SECONDS
  shift
  mkdir -p "$logs"
  log=$(log_of "$text")
  : >"$log"
  if [ -t 1 ]; then printf '%s ...' "$text"; else printf '%s ... (log: %s)\n' "$text" "$log"; fi
  # The command runs in the foreground, so that Ctrl+C reaches it.
  show_progress "$text" "$log" $$ &
  watcher=$!
  status=0 # none of these ends a script that stops at the first error
  "$@" 3>&1 >"$log" 2>&1 || status=$?
  kill $watcher 2>/dev/null || true
  wait $watcher 2>/dev/null || true
  [ ! -t 1 ] || printf '\r\033[K'
  if [ $status -eq 0 ]; then
    printf '%s ... done (%d s)\n' "$text" $((SECONDS - start))
  else
    printf '%s ... FAILED (%d s) with status %d, reasons (full log: %s):\n' \
      "$text" $((SECONDS - start)) $status "$log"
    "$explain" "$log" | sed 's/^/    /' || true
  fi
  return $status
}

# configured PRESET: configures a build folder, and from the beginning if the presets have changed: of
# an old cache CMake keeps only a part where the compiler is another. It notices other changes itself.
configured() {
  local made=build/$1/build.ninja
  if [ ! -f "$made" ] || [ CMakePresets.json -nt "$made" ]; then
    rm -rf "build/$1/CMakeCache.txt" "build/$1/CMakeFiles"
    stage "Configuring the $1 build" cmake --preset "$1"
  fi
}

# SPDX-License-Identifier: MIT
# Evaluates ctest's output: how many checks passed, failed and were skipped, and the reasons for
# failures. Sourced by ./test.
#
# REPORT is the output of `ctest`, DETAILS its Testing/Temporary/LastTest.log with the tests' output.

# failed_tests REPORT: a line "name reason" for each test that ctest counts as failed.
failed_tests() {
  sed -nE '/^The following tests FAILED:/,$ s/^[[:space:]]+[0-9]+ - ([^ ]+) \(([^)]*)\).*/\1 \2/p' "$1"
}

# count_results REPORT DETAILS: "passed failed skipped". Each row of Qt Test counts. A test that
# reports no rows, or fails outside of them (a crash, a leak, a timeout), counts as one.
count_results() {
  failed_tests "$1" | awk '
    function close_test() {
      if (name == "") return
      if (!rows) { if (name in bad) f++; else p++ }
      else if (name in bad && own == 0) f++
      delete bad[name]
      name = ""
    }
    FNR == NR { if (NF) bad[$1] = 1; next }
    /^[0-9]+\/[0-9]+ Testing: / { close_test(); name = $3; rows = 0; own = 0 }
    /^Totals: [0-9]+ passed, [0-9]+ failed, [0-9]+ skipped/ {
      rows = 1; p += $2; f += $4; s += $6; own += $4
    }
    END {
      close_test()
      for (test in bad) f++
      print p + 0, f + 0, s + 0
    }' <(cat; echo) "$2"
}

# skipped_rows DETAILS: which rows were skipped, and why.
skipped_rows() { grep -ah '^SKIP ' "$1" | sort -u; }

# output_of TEST DETAILS: a test's output, without the messages of the media framework.
output_of() {
  awk -v test="$1" '
    /^[0-9]+\/[0-9]+ Testing: / { mine = $3 == test; inside = 0 }
    mine && /^<end of output>/ { exit }
    mine && inside > 1 && !/GStreamer|GLib|gst_|GST_|^[^ ]* [0-9]+ +0x[0-9a-f]+ / { print }
    mine && inside == 1 { inside = 2 }
    mine && /^Output:$/ && !inside { inside = 1 }' "$2"
}

# failures_in: filters a test's output for the reasons of its failure, with some lines of context.
failures_in() {
  awk '
    /^(PASS|SKIP|XFAIL|BPASS|BFAIL|QDEBUG|QINFO|QWARN|QCRITICAL|QSYSTEM|RESULT|Totals|Config|\*\*\*)/ {
      left = 0
    }
    /^(FAIL!|XPASS|QFATAL)/ || /(ERROR|WARNING): [A-Za-z]*Sanitizer/ || /runtime error:/ ||
      /^terminate called/ || /^ASSERT/ || /eceived signal/ || /Unable to find executable/ { left = 12 }
    /^SUMMARY: / { print; left = 0 }
    left > 0 { print; left-- }'
}

# core_dumps FOLDER: a line for each core dump below the folder, with the program that left it.
core_dumps() {
  find "$1" -type f \( -name core -o -name 'core.[0-9]*' \) -size +0 -printf '%p\n' 2>/dev/null | sort |
    while read -r dump; do
      printf 'core dump: %s%s\n' "$dump" \
        "$(file -b "$dump" 2>/dev/null | sed -nE "s/.*, from '([^']*)'.*/ of \1/p")"
    done
}

# explain_failures REPORT DETAILS: the name of each failed test and the reasons, at most 40 lines;
# the end of its output if there are no reasons or the test did not finish.
explain_failures() {
  local name reason lines
  while read -r name reason; do
    printf '%s (%s)\n' "$name" "$reason"
    lines=$(output_of "$name" "$2" | failures_in)
    if [ -z "$lines" ] || [ "$reason" != Failed ]; then
      lines+=$'\n'$(output_of "$name" "$2" | tail -n 5 | grep -vxFf <(printf '%s' "$lines"))
    fi
    grep . <<<"$lines" | head -n 40 | cut -c1-400 | sed 's/^/    /'
  done < <(failed_tests "$1")
}

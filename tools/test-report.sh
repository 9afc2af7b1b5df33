# shellcheck shell=bash
# Counting and reporting for run-tests, which sources this file.

passed_count=0
failed_count=0
skipped_count=0
remarks=()
reported_tests=0 # of the Windows preset counted last

announce() { printf '\n=== %s\n' "$*"; }

# A line for the closing summary.
remark() { remarks+=("$*"); }

passed() {
  echo "$*"
  remark "$*"
  passed_count=$((passed_count + 1))
}

failed() {
  echo "FAILED: $*"
  remark "FAILED  $*"
  failed_count=$((failed_count + 1))
}

skipped() {
  echo "SKIPPED: $*"
  remark "SKIPPED $*"
  skipped_count=$((skipped_count + 1))
}

# Runs a command whose output matters only when it fails.
quietly() {
  local output
  if ! output=$("$@" 2>&1); then
    printf '%s\n' "$output"
    return 1
  fi
}

# Adds up the figures that ctest left for a preset, and takes over its summary line.
count_ctest() { # preset exit-code log junit
  local tests failures not_run
  if [[ ! -s $4 ]]; then
    failed "$1: ctest left no result"
    return
  fi
  tests=$(suite_figure "$4" tests)
  failures=$(suite_figure "$4" failures)
  not_run=$(($(suite_figure "$4" skipped) + $(suite_figure "$4" disabled)))
  passed_count=$((passed_count + tests - failures - not_run))
  failed_count=$((failed_count + failures))
  skipped_count=$((skipped_count + not_run))
  remark "$1: $(grep -E '[0-9]+% tests passed' "$3" || echo "no summary from ctest")"
  if ((not_run)); then remark "SKIPPED $1: $not_run of these tests, named above"; fi
  # A test program that cannot even list its tests fails ctest without any test failing.
  if (($2 != 0 && failures == 0)); then failed "$1: ctest ended with code $2"; fi
}

# A figure from the head of the file, where each stands on a line of its own; 0 if it isn't there.
suite_figure() { # junit attribute
  sed -nE "1,/>/s/^[[:space:]]*$2=\"([0-9]+)\".*/\1/p" "$1" | grep . || echo 0
}

# Adds up what the programs of a Windows preset reported, one file for each ctest test.
count_reports() { # preset exit-code folder
  local name report tests=0 failures=0 not_run=0 lost=0
  while read -r name; do
    report="$3/$name.xml"
    if [[ ! -s $report ]]; then
      failed "$1: $name ended without a report"
      lost=$((lost + 1))
      continue
    fi
    tests=$((tests + $(report_figure "$report" tests)))
    failures=$((failures + $(report_figure "$report" failures) + $(report_figure "$report" errors)))
    not_run=$((not_run + $(report_figure "$report" skipped) + $(report_figure "$report" disabled)))
  done < <(ctest --preset "$1" -N | sed -nE 's/^ *Test +#[0-9]+: //p')
  reported_tests=$tests
  passed_count=$((passed_count + tests - failures - not_run))
  failed_count=$((failed_count + failures))
  skipped_count=$((skipped_count + not_run))
  remark "$1: $((tests - failures - not_run)) of $tests tests passed under Wine"
  if ((not_run)); then remark "SKIPPED $1: $not_run of these tests, named above"; fi
  if ((tests == 0)); then failed "$1: no test was run"; fi
  # A program can fail without a test of its failing: when it crashes at its end, say.
  if (($2 != 0 && failures == 0 && lost == 0)); then failed "$1: ctest ended with code $2"; fi
}

# The sum of a figure over the test suites of one of GoogleTest's reports.
report_figure() { # report attribute
  grep '<testsuite ' "$1" | sed -nE "s/.* $2=\"([0-9]+)\".*/\1/p" | awk '{ sum += $1 } END { print sum + 0 }'
}

# Tests that could not even be started on this machine.
skipped_tests() { # what count reason
  printf '\n%s\n' "*** SKIPPED: all $2 tests of $1: $3"
  remark "SKIPPED $1: $2 tests ($3)"
  skipped_count=$((skipped_count + $2))
}

# Prints what was remarked and, as the last line, the counts. Fails if anything failed.
report() {
  announce "summary"
  ((${#remarks[@]} == 0)) || printf '%s\n' "${remarks[@]}"
  echo "$passed_count passed, $failed_count failed, $skipped_count skipped"
  ((failed_count == 0))
}

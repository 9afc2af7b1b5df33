# shellcheck shell=bash
# Counting and reporting for run-tests, which sources this file.

passed_count=0
failed_count=0
skipped_count=0
remarks=()

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

# Prints what was remarked and, as the last line, the counts. Fails if anything failed.
report() {
  announce "summary"
  ((${#remarks[@]} == 0)) || printf '%s\n' "${remarks[@]}"
  echo "$passed_count passed, $failed_count failed, $skipped_count skipped"
  ((failed_count == 0))
}

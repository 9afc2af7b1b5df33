# shellcheck shell=bash
# Installing Wine in both bitnesses, for tools/setup, which sources this file.
#
# The 32-bit half comes from another architecture's package lists, and those must fit the packages
# that are installed already. On a machine whose mirror of the security suite is behind for that
# architecture they don't, and apt refuses.

# All in one call: asked one by one, apt may give up one of them for the next.
wine_packages="wine wine64 wine32:i386 xvfb xauth xdotool imagemagick x11-apps fonts-liberation fonts-wine"

install_wine() {
  local added=""
  if [[ $(dpkg --print-architecture) != amd64 ]]; then
    say "32-bit Wine is installed on amd64 only"
    install_64_bit_wine
    return
  fi
  if ! dpkg --print-foreign-architectures | grep -qx i386; then
    as_root dpkg --add-architecture i386
    added=i386
  fi
  refresh_lists
  if install_all_of_wine; then return; fi
  say "trying once more without the security suite, whose 32-bit lists are sometimes behind"
  if with_lists_of_its_own install_all_of_wine; then return; fi
  # Left in place, an architecture that can't be used would disturb every later refresh.
  if [[ -n $added ]]; then as_root dpkg --remove-architecture "$added" || true; fi
  install_64_bit_wine
}

install_all_of_wine() {
  # shellcheck disable=SC2086 # a list
  install --no-remove $wine_packages
}

install_64_bit_wine() {
  refresh_lists
  # shellcheck disable=SC2086 # a list
  install --no-remove ${wine_packages/wine32:i386 /} || return 1
  say "**********************************************************************"
  say "32-bit Wine CAN'T BE HAD here: tests of the 32-bit build will be SKIPPED"
  say "**********************************************************************"
}

# Runs a command with apt looking at copies of this machine's own sources, less the security suite,
# and at lists of their own; the machine's settings and lists stay as they are.
with_lists_of_its_own() { # command...
  local folder status=0
  folder=$(mktemp -d)
  chmod 755 "$folder" # apt reads it as another user
  mkdir -p "$folder/parts" "$folder/lists/partial"
  copy_sources "${SETUP_APT_FOLDER:-/etc/apt}" "$folder/parts"
  apt_options=(
    -o Dir::Etc::sourcelist=/dev/null
    -o Dir::Etc::sourceparts="$folder/parts"
    -o Dir::State::Lists="$folder/lists"
    -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache=)
  { apt update && "$@"; } || status=1
  apt_options=()
  rm -rf "$folder" 2>/dev/null || as_root rm -rf "$folder"
  return "$status"
}

# Both notations: one line for each source, and stanzas of fields.
copy_sources() { # from-folder to-folder
  local file
  for file in "$1"/sources.list "$1"/sources.list.d/*.list; do
    [[ -f $file ]] || continue
    grep -E '^[[:space:]]*deb[[:space:]]' "$file" | drop_security_lines >"$2/$(basename "$file" .list).list" || true
  done
  for file in "$1"/sources.list.d/*.sources; do
    [[ -f $file ]] || continue
    drop_security_stanzas <"$file" >"$2/$(basename "$file")"
  done
}

# A suite is told by its name: bookworm-security, noble-security, buster/updates.
drop_security_lines() {
  grep -vE '^[[:space:]]*deb[[:space:]]+(\[[^]]*\][[:space:]]+)?[^[:space:]]+[[:space:]]+[^[:space:]]+(-security|/updates)([[:space:]]|/|$)'
}

# Suites may go on in the following lines, which begin with a blank. A stanza that has no suite left
# goes as a whole.
drop_security_stanzas() {
  awk -v RS= '
    {
      count = split($0, lines, "\n"); stanza = ""; kept = 0; in_suites = 0
      for (i = 1; i <= count; i++) {
        line = lines[i]
        if (line ~ /^[Ss]uites:/) { in_suites = 1; sub(/^[^:]*:/, "", line); stanza = stanza "Suites:" }
        else if (line !~ /^[ \t]/ || !in_suites) {
          if (in_suites) { stanza = stanza "\n"; in_suites = 0 }
          if (line !~ /^#/) stanza = stanza line "\n"
          continue
        }
        words = split(line, word, /[ \t]+/)
        for (j = 1; j <= words; j++)
          if (word[j] != "" && word[j] !~ /(-security|\/updates)\/?$/) { stanza = stanza " " word[j]; kept = 1 }
      }
      if (in_suites) stanza = stanza "\n"
      if (kept) print stanza
    }'
}

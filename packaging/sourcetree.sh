# SPDX-License-Identifier: MIT
# The sources as a package has them, whatever the modes, the owner and the path of the checkout.
# Sourced by bash with the checkout as the current folder.

# is_repository: whether the checkout itself is one, and not just a folder inside another one.
is_repository() { [ -e .git ] && git rev-parse --git-dir >/dev/null 2>&1; }

# source_files: the names of all source files, each with a null character after it.
source_files() {
  local name
  if is_repository; then
    git ls-files -z --cached --others --exclude-standard
  else
    find . \( -path ./build -o -path ./.git \) -prune -o \( -type f -o -type l \) -print0
  fi | while IFS= read -r -d '' name; do
    # The repository also lists files that have been deleted.
    if [ -e "$name" ] || [ -L "$name" ]; then printf '%s\0' "$name"; fi
  done
}

# below FOLDER KIND: the names of all folders (d) or files (f) of the sources in FOLDER.
below() { find "$1" \( -path "$1/build" -o -path "$1/.git" \) -prune -o -type "$2" -print0; }

# normalise_modes FOLDER: gives folders and scripts mode 0755, all other files 0644. A script is a file
# that begins with "#!": a file system without modes shows every file as a program.
normalise_modes() (
  set -o pipefail
  export LC_ALL=C # reads bytes
  below "$1" d | xargs -0 -r chmod 755 && below "$1" f | xargs -0 -r chmod 644 || exit
  below "$1" f | while IFS= read -r -d '' name; do
    IFS= read -r -d '' -n 2 start <"$name" || true # shorter, or with a null character
    [ "$start" != '#!' ] || printf '%s\0' "$name"
  done | xargs -0 -r chmod 755
)

# lay_out_sources FOLDER: copies the source files to FOLDER, an existing one, with normalised modes.
lay_out_sources() (
  set -o pipefail
  umask 022
  source_files | tar -c --no-recursion --null -T - | tar --no-same-owner -x -C "$1" || exit
  normalise_modes "$1"
)

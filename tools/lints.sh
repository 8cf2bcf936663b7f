# SPDX-License-Identifier: MIT
# The checks of the sources, a function NAME_lint each. Sourced by ./test and tools/lint.sh with the
# project's root as the current folder.

# sources PATTERN...: the files that the patterns fit, in a checkout or in a folder without git.
sources() {
  git ls-files --cached --others --exclude-standard "$@" 2>/dev/null && return
  local pattern
  for pattern in "$@"; do
    find . -path ./build -prune -o -name "$pattern" -type f -print
  done
}

format_lint() { sources '*.cpp' '*.h' | xargs clang-format --dry-run -Werror; }

licence_lint() {
  local bare
  bare=$(sources '*.cpp' '*.h' '*.py' '*.sh' '*.cmake' '*CMakeLists.txt' '*.ui' '*.qss' '*.md' \
    '*.map' '*.supp' '*.qrc' '*.html' '*.css' '*.desktop' '*.1' '*.xml.in' '*.qrc.in' |
    xargs grep -L 'SPDX-License-Identifier: MIT')
  [ -z "$bare" ] || {
    printf 'without the line that names the licence:\n%s\n' "$bare"
    return 1
  }
}

# tidy CONFIG FOLDERS: clang-tidy for the sources in folders that the regular expression fits. A build
# folder that is never built names each source by itself; what the toolkit's generators make is made in
# the release build, where what it depends on is there.
tidy() {
  local generated listed=build/sources
  mkdir -p build/tidy
  cmake --preset dev -DQUORVANDEL_WERROR=OFF -B $listed >/dev/null &&
    sed "s,/$listed\\b,/build/release,g" $listed/compile_commands.json >build/tidy/compile_commands.json &&
    ninja -C build/release build.ninja >/dev/null || return # its list of targets may be old
  generated=$(ninja -C build/release -t targets all |
    sed -nE 's/^([A-Za-z0-9_-]*_autogen|.*\.moc|.*\/moc_[a-z]*\.cpp):.*/\1/p')
  # shellcheck disable=SC2086 # a list
  ninja -C build/release $generated >/dev/null && python3 tools/tidy.py build/tidy "$1" "$2"
}

tidy_lint() {
  tidy .clang-tidy "$(tr -s ' \n' '|' <tools/folders.txt)bench/[^/]*|tools/[^/]*" &&
    tidy tests/.clang-tidy "tests/[^/]*"
}

# texts_of CATALOGUE: the contexts and source texts in it.
texts_of() { tr '\n' ' ' <"$1" | grep -o '<name>[^<]*\|<source>[^<]*'; }

# Every text of the sources stands in the catalogues of each family. An English one equals what the
# sources say (the tests hold all others against it); where there is none, no catalogue gains or loses
# a text when the sources are read again.
texts_lint() {
  local copy=build/texts.ts lupdate family folder sources catalogue status=0
  lupdate=$(command -v /usr/lib/qt5/bin/lupdate lupdate | head -n 1)
  while read -r family folder sources; do
    for catalogue in "$folder/$family"_*.ts; do
      [ -e "$folder/${family}_en_us.ts" ] && catalogue=$folder/${family}_en_us.ts
      cp "$catalogue" $copy
      # shellcheck disable=SC2086
      "$lupdate" -silent -no-obsolete -locations none -source-language en_US -I . $sources -ts $copy ||
        status=1
      case $catalogue in
        *_en_us.ts) cmp $copy "$catalogue" || status=1; break ;;
        *) diff <(texts_of $copy) <(texts_of "$catalogue") || status=1 ;;
      esac
    done
  done < <(grep -v '^#' cmake/catalogues.txt)
  return $status
}

# The map in ARCHITECTURE.md is what the build says, and no arrow runs up.
map_lint() { python3 tools/draw_map.py --check; }

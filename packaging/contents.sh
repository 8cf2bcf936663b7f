# SPDX-License-Identifier: MIT
# Looks at the contents of packages and source archives. Sourced by bash.

# Ordinary modes: folders and programs 0755, other files 0644, all of root's. Links have none.
ordinary_modes() { # of a listing by tar or dpkg-deb, from the standard input
  ! grep -vE '^(drwxr-xr-x|-rwxr-xr-x|-rw-r--r--|lrwxrwxrwx) (root/root|0/0) '
}
package_modes() {
  dpkg-deb --ctrl-tarfile "$1" | tar -tv | ordinary_modes &&
    dpkg-deb --fsys-tarfile "$1" | tar -tv | ordinary_modes
}
archive_modes() { tar -tvf "$1" | ordinary_modes; }

# unprotected FOLDER: the programs and libraries in FOLDER that lack a protection against a stray
# write, with what they lack; fails if there is no such file at all.
unprotected() {
  local file header dynamic symbols lacks count=0
  while IFS= read -r -d '' file; do
    header=$(readelf --wide --file-header --program-headers "$file" 2>/dev/null) || continue
    count=$((count + 1))
    dynamic=$(readelf --wide --dynamic "$file")
    symbols=$(readelf --wide --dyn-syms "$file")
    lacks=
    grep -q 'Type: *DYN' <<<"$header" || lacks+=" position independence"
    grep -q GNU_RELRO <<<"$header" || lacks+=" RELRO"
    grep -qE 'FLAGS_1.*\bNOW\b' <<<"$dynamic" || lacks+=" BIND_NOW"
    case $file in
    */bin/*) grep -qE 'FLAGS_1.*\bPIE\b' <<<"$dynamic" || lacks+=" PIE" ;;
    esac
    grep -q '__stack_chk_fail' <<<"$symbols" || lacks+=" stack-protector"
    grep -qE ' __[a-z]+_chk(@|$)' <<<"$symbols" || lacks+=" fortify"
    [ -z "$lacks" ] || echo "${file#"$1"}:$lacks"
  done < <(find "$1" -type f -print0)
  [ $count -gt 0 ]
}

# without_symbols PACKAGE SYMBOLS: the programs and libraries of PACKAGE for which the package SYMBOLS
# has no debug symbols; fails if there is none that has them.
without_symbols() {
  local folder file id count=0
  folder=$(mktemp -d) && dpkg-deb -x "$1" "$folder/package" && dpkg-deb -x "$2" "$folder/symbols" ||
    return
  while IFS= read -r -d '' file; do
    id=$(readelf --notes "$file" 2>/dev/null | sed -n 's/^ *Build ID: //p')
    [ -n "$id" ] || continue
    if [ -s "$folder/symbols/usr/lib/debug/.build-id/${id:0:2}/${id:2}.debug" ]; then
      count=$((count + 1))
    else
      echo "${file#"$folder/package"}"
    fi
  done < <(find "$folder/package" -type f -print0)
  rm -rf "$folder"
  [ $count -gt 0 ]
}

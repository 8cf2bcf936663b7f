#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs the Debian package in a clean root, runs it there as an unprivileged user, and removes it;
# then lets packaging/make_package.sh install what building needs.
#   packaging/test_package.sh [PACKAGE]     without PACKAGE it is built first; with it, the package of
#                                           its debug symbols is beside it
# Needs root, the network (for the clean root, once, and the package's dependencies) and debootstrap,
# lintian, xvfb, xdotool, binutils. The last line is the number of passed and failed checks.
set -u
cd "$(dirname "$0")/.." || exit 1
cache=$PWD/build/package-test
user=observer
home=/home/$user
folder=.local/share/quorvandel

# In a separate namespace, so that all mounts and processes end with this script.
if [ -z "${QUORVANDEL_PACKAGE_TEST:-}" ]; then
  [ "$(id -u)" -eq 0 ] || { echo "This must be run as root."; exit 2; }
  for tool in debootstrap lintian Xvfb xdotool; do
    command -v $tool >/dev/null || { echo "$tool is missing."; exit 2; }
  done
  package=${1:-$(packaging/make_package.sh | tail -n 1)}
  [ -f "$package" ] || { echo "There is no package ($package)."; exit 2; }
  export QUORVANDEL_PACKAGE_TEST=1
  exec unshare --mount --pid --fork --kill-child --mount-proc "$0" "$(realpath "$package")"
fi
package=$1
. packaging/cleanroot.sh
. packaging/contents.sh
. packaging/sourcetree.sh
mkdir -p "$cache"
root=$(mktemp -d "$cache/root.XXXXXX")
scratch=$(mktemp -d)

screen= # Xvfb's process; it removes its lock file when it ends
leave() {
  [ -z "$screen" ] || { kill "$screen" && wait "$screen"; }
  remove_root
  rm -rf "$scratch"
}
trap leave EXIT

. packaging/checks.sh

same() { [ "$1" = "$2" ] || { printf 'is:        %s\nshould be: %s\n' "$1" "$2"; return 1; }; }
absent() { [ ! -e "$1" ] && [ ! -L "$1" ]; }
fails() { ! "$@"; }

# ---- the clean root ------------------------------------------------------------------------------
clean_root() {
  unpack_clean_root && in_root apt-get -q update &&
    in_root apt-get -q -y satisfy --no-install-recommends "$(dpkg-deb -f "$package" Depends)" &&
    in_root useradd -m $user
}

# All files except those that a system changes during normal use and those of users.
everything() {
  (cd "$root" && find . -xdev \( -path ./home -o -path ./tmp -o -path ./proc -o -path ./var/log \
    -o -path ./var/cache -o -path ./var/lib/apt -o -path './var/lib/dpkg/*-old' \) -prune \
    -o -print | sort)
}

# ---- running the programs ------------------------------------------------------------------------
# start HOME COMMAND...: runs COMMAND as the user; sets `running`; its output goes to $scratch/said.
start() {
  local at=$1
  shift
  chroot --userspec=$user:$user "$root" env -i PATH=/usr/bin:/bin LANG=C.UTF-8 \
    DISPLAY="$DISPLAY" QT_LOGGING_TO_CONSOLE=1 HOME="$at" "$@" >"$scratch/said" 2>&1 &
  running=$!
}

# window NAME: waits for the window and sets `window`.
window() {
  for _ in $(seq 150); do
    window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1)
    [ -n "$window" ] && return
    kill -0 $running || break
    sleep 0.2
  done
  cat "$scratch/said"
  return 1
}

keys() { xdotool windowfocus --sync "$window" && sleep 0.5 && xdotool key --delay 200 "$@"; }

# finished: waits for the program to end; returns its status.
finished() {
  for _ in $(seq 100); do
    kill -0 $running 2>/dev/null || break
    sleep 0.2
  done
  if kill $running 2>/dev/null; then
    wait $running
    echo "the program did not end by itself"
    return 1
  fi
  wait $running
}

close_by_menu() { keys ctrl+q && finished; }

# visit TEXT HOME [KEYS...]: starts the program, presses KEYS, closes it.
visit() {
  local text=$1 at=$2
  shift 2
  start "$at" quorvandel
  check "$text: the window opens" window '^Quorvandel'
  [ $# -eq 0 ] || keys "$@"
  check "$text: it closes with status 0" close_by_menu
}

setting() { sed -n "s/^$1=//p" "$root$home/$folder/bin/Quorvandel.ini"; }
said() { grep -qF -- "$1" "$scratch/said" || { cat "$scratch/said"; return 1; }; }
copy_is_current() {
  cmp "$root/usr/libexec/quorvandel/bin/quorvandel" "$root$home/$folder/bin/quorvandel"
}
names_no_build_folder() {
  ! in_root dpkg -L quorvandel | sed "s,^,$root," | xargs -d '\n' \
    grep -lsF -d skip -e "$PWD/" -e /quorvandel-package. | grep .
}
strangers() { # the user's files outside the home
  find "$root" -xdev -user $user -not -path "$root/home/*" -not -path "$root/proc/*" \
    -not -path "$root/tmp/*" | grep .
}

test_first_run() {
  start $home quorvandel
  check "first run: the window opens" window '^Quorvandel'
  check "first run: the executable is the user's copy" \
    same "$(readlink /proc/$running/exe)" "$root$home/$folder/bin/quorvandel"
  check "first run: the virtual camera is loaded from its private folder" \
    grep -q "$root/usr/lib/[^ ]*quorvandel/libveldix.so.20" /proc/$running/maps
  xdotool mousemove --window "$window" 95 13 click 1 # the menu Device
  sleep 0.5
  xdotool key --delay 200 Down Return # Connect
  check "first run: the virtual camera connects" window '^Quorvandel - ID:QUORVANDEL-V0001'
  check "first run: there are no settings yet" absent "$root$home/$folder/bin/Quorvandel.ini"
  check "first run: it closes with status 0" close_by_menu
  check "first run: twelve settings are kept" \
    same "$(grep -c = "$root$home/$folder/bin/Quorvandel.ini")" 12
  check "first run: the settings are the user's" \
    same "$(in_root stat -c %U "$home/$folder/bin/Quorvandel.ini")" $user
}

test_settings() {
  visit "second run" $home ctrl+m
  check "a change of the style is kept" same "$(setting style)" Mono
  visit "third run" $home
  check "the style was read and is kept again" same "$(setting style)" Mono
  check "nothing was written outside the home" fails strangers
}

test_upgrade() {
  printf '\n' >>"$root/usr/libexec/quorvandel/bin/quorvandel"
  check "after an upgrade the copy is outdated" fails copy_is_current
  visit "upgraded" $home
  check "upgraded: the copy is renewed" copy_is_current
  check "upgraded: the settings are kept" same "$(setting style)" Mono
}

test_documents() {
  local manual=share/doc/quorvandel/manual/en/index.html
  check "every folder and file can be read by everyone" \
    same "$(dpkg-deb -c "$package" | awk '$1 !~ /^(d..x..x..x|-r..r..r..|l)/')" ""
  check "the manual is in the system's list of documents" \
    test -f "$root/usr/share/doc-base/quorvandel.quorvandel"
  check "the Chinese manual is, too" test -f "$root/usr/share/doc-base/quorvandel.quorvandel-zh"
  check "the manual is found from the user's folder" \
    in_root test -f "$home/$folder/bin/../$manual"
  for page in quorvandel quorvandel-assistant quorvandel-camera quorvandel-mount quorvandel-recognise; do
    check "the man page of $page is there" test -f "$root/usr/share/man/man1/$page.1.gz"
  done
}

test_homes_that_do_not_serve() {
  mkdir "$root/home/readonly" "$root/home/noexec"
  visit "another user's home" /home/readonly
  check "another user's home: it reports that" said "the settings will not be kept"
  mount -t tmpfs -o noexec,mode=777 noexec "$root/home/noexec"
  visit "a noexec home" /home/noexec
  check "a noexec home: it reports that" said "does not let programs be started"
}

# not_saved TEXT HOME: the program and its current copy work in HOME, but cannot save the settings.
not_saved() {
  local ini=$root$2/$folder/bin/Quorvandel.ini
  cp "$ini" "$scratch/ini"
  visit "$1" "$2" ctrl+m
  check "$1: the launcher reports that" said "quorvandel: the settings will not be kept: "
  check "$1: the log says so at the start" said "the settings will not be saved in "
  check "$1: the log says so at the end" said "the settings are not saved in "
  check "$1: the old file stays whole" cmp "$ini" "$scratch/ini"
}

test_settings_that_cannot_be_saved() {
  local bin=$root$home/$folder/bin
  chmod 555 "$bin"
  not_saved "a folder that cannot be written" $home
  chmod 755 "$bin"
  chown 0:0 "$bin/Quorvandel.ini"
  not_saved "a file of another user" $home
  chown --reference="$bin" "$bin/Quorvandel.ini"
  mkdir "$root/home/full"
  mount -t tmpfs -o size=16m,mode=777 full "$root/home/full"
  visit "a small disk" /home/full
  check "a small disk: nothing is reported while there is room" fails said "the settings will not be "
  head -c 16M /dev/zero >"$root/home/full/filler" 2>/dev/null
  not_saved "a full disk" /home/full
}

# opens PROGRAM NAME: whether the program opens a window with this name.
opens() {
  start $home "$1"
  check "$1: its window opens" window "$2"
  kill $running
  wait $running 2>/dev/null
}

hardened() {
  local found
  dpkg-deb -x "$package" "$scratch/files" && found=$(unprotected "$scratch/files") && same "$found" ""
}

has_debug_symbols() {
  local found symbols
  symbols=$(dirname "$package")/$(basename "$package" | sed 's/^quorvandel_/quorvandel-dbgsym_/')
  found=$(without_symbols "$package" "$symbols") && same "$found" ""
}

# ---- building --------------------------------------------------------------------------------------
can_build() { in_root sh -c 'cd /tmp/tree && dpkg-checkbuilddeps'; }
has_tools() {
  for tool in dpkg-buildpackage dpkg-parsechangelog dh file xz; do
    in_root sh -c "command -v $tool" || { echo "$tool is missing"; return 1; }
  done
}
test_what_building_needs() {
  mkdir "$root/tmp/tree" && lay_out_sources "$root/tmp/tree"
  check "the clean root lacks what building needs" fails has_tools
  check "the script installs what building needs" in_root /tmp/tree/packaging/make_package.sh --prepare
  check "the script's own tools are there" has_tools
  check "no build dependency is missing" can_build
}

# ---- all tests -----------------------------------------------------------------------------------
check "lintian reports nothing except the explained overrides" \
  lintian --allow-root --fail-on error,warning "$package"
check "every program and library in it is hardened" hardened
check "each has its debug symbols in a package of their own" has_debug_symbols
check "a clean root with the package's dependencies" clean_root
[ -d "$root$home" ] || exit 1
everything >"$scratch/before"
cp "$package" "$root/tmp/package.deb"
check "it is installed" in_root dpkg -i /tmp/package.deb
check "no installed file contains the path of the build folder" names_no_build_folder
check "no dependency is missing" in_root apt-get check
check "what it recommends and suggests can be installed" in_root apt-get -q -s satisfy \
  "$(dpkg-deb -f "$package" Recommends)" "$(dpkg-deb -f "$package" Suggests)"

mkdir -p "$root/tmp/.X11-unix" && chmod 1777 "$root/tmp"
mkdir -p /tmp/.X11-unix
# A free display; its number is available as soon as it accepts connections. It refuses none while no
# window is open, as a server that resets itself does.
mkfifo "$scratch/display"
Xvfb -displayfd 5 -noreset -ac -screen 0 1366x900x24 5>"$scratch/display" >"$scratch/xvfb" 2>&1 &
screen=$!
read -r -t 60 number <"$scratch/display"
export DISPLAY=:$number
check "there is a screen" xdotool getdisplaygeometry
mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"

test_first_run
test_settings
test_upgrade
test_documents
test_homes_that_do_not_serve
test_settings_that_cannot_be_saved
opens quorvandel-mount 'ount'
opens quorvandel-assistant 'ssistant'
check "the camera command takes a frame of the virtual camera" \
  in_root_as $user "quorvandel-camera --camera sky grab /tmp/frame.png"
check "the pole is found in it by the stars" \
  in_root_as $user "quorvandel-recognise /tmp/frame.png | grep 'the north pole is at'"

check "it is removed" in_root dpkg --purge quorvandel
everything >"$scratch/after"
check "nothing is left behind" diff "$scratch/before" "$scratch/after"
test_what_building_needs

finish

#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs ./test in a clean Debian wherever it must pass: in root's home, which is closed to others, as
# another user, in a path with blanks and letters of several alphabets, there without a UTF-8 locale,
# too, and under two other umasks. The system is minimal: ./test itself installs what it needs, git is
# not there, and nothing is beside the checkout.
#   packaging/test_places.sh [NAME... | --quick]   these tests, or all of the release build; by default
#                                                  six that depend on the place
# Needs root, debootstrap and the network. QUORVANDEL_PLACES=PATTERN leaves out the places whose names
# do not match; one of root's must come first, since ./test installs what it needs there. With
# QUORVANDEL_CCACHE=FOLDER all places share the compiler's cache in FOLDER, which becomes writable for
# everybody. The last line is the number of places where the tests passed and failed.
set -u
cd "$(dirname "$0")/.." || exit 1

# In a separate namespace, so that all mounts and processes end with this script.
if [ -z "${QUORVANDEL_PACKAGE_TEST:-}" ]; then
  [ "$(id -u)" -eq 0 ] || { echo "This must be run as root."; exit 2; }
  command -v debootstrap >/dev/null || { echo "debootstrap is missing."; exit 2; }
  export QUORVANDEL_PACKAGE_TEST=1
  exec unshare --mount --pid --fork --kill-child --mount-proc "$0" "$@"
fi

tests=("$@")
[ $# -gt 0 ] || tests=(settingskept settingsmatrix catalogues scripts sourcetree templatefit)
cache=$PWD/build/package-test
mkdir -p "$cache"
root=$(mktemp -d "$cache/root.XXXXXX")
scratch=$(mktemp -d)
. packaging/cleanroot.sh
. packaging/sourcetree.sh
. packaging/checks.sh
trap 'remove_root; rm -rf "$scratch"' EXIT
ccache=${QUORVANDEL_CCACHE:-}
jobs=${CMAKE_BUILD_PARALLEL_LEVEL:-}

prepare() {
  mkdir "$scratch/sources" && lay_out_sources "$scratch/sources" &&
    chmod -R a=rwX "$scratch/sources" && # an umask takes away from this
    unpack_clean_root && mount --rbind /dev "$root/dev" && in_root useradd -m builder || return
  [ -n "$ccache" ] || return 0
  mkdir -p "$ccache" "$root/ccache" && chmod -R a+rwX "$ccache" &&
    mount --bind "$ccache" "$root/ccache" && in_root apt-get -q update &&
    in_root apt-get -q -y install --no-install-recommends ccache
}

# as USER UMASK LOCALE COMMAND...: runs the command in the user's home.
as() {
  local user=$1 mask=$2 locale=$3 home=/home/$1
  shift 3
  [ "$user" != root ] || home=/root
  chroot --userspec="$user:$user" --groups="" "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin \
    LC_ALL="$locale" HOME="$home" ${jobs:+CMAKE_BUILD_PARALLEL_LEVEL="$jobs"} \
    ${ccache:+CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_DIR=/ccache CCACHE_UMASK=000
      CCACHE_BASEDIR="$home" CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros} \
    sh -c "umask $mask && cd && \"\$@\"" sh "$@"
}

# tests_pass USER UMASK LOCALE CHECKOUT: in a checkout below the user's home, made under the umask.
tests_pass() {
  local status=0 name
  # shellcheck disable=SC2016 # for the shell in there
  tar -C "$scratch/sources" -c . | as "$1" "$2" "$3" sh -c \
    'mkdir -p "$0" && tar --no-same-owner --no-same-permissions -C "$0" -x' "$4" || return
  for name in "${tests[@]}"; do
    as "$1" "$2" "$3" sh -c "cd \"\$0\" && ./test $name" "$4" || status=1
  done
  as "$1" "$2" "$3" rm -rf "$4"
  return $status
}

# place TEXT USER UMASK LOCALE CHECKOUT
place() {
  [[ $1 =~ ${QUORVANDEL_PLACES:-} ]] || return
  check "$1" tests_pass "${@:2}"
  sed -nE 's/^[0-9]+ passed, [0-9]+ failed, [0-9]+ skipped$/        &/p' "$scratch/check"
}

named="Étoile polaire/北極星 neu"
prepare >"$scratch/prepared" 2>&1 || { tail -n 20 "$scratch/prepared"; exit 2; }
place "as root in root's home, mode $(stat -c %a "$root/root")" root 022 C.UTF-8 quorvandel
place "as another user" builder 022 C.UTF-8 quorvandel
place "in a path with blanks and letters of several alphabets" builder 022 C.UTF-8 "$named"
place "there without a UTF-8 locale" builder 022 C "$named"
place "under umask 077, as root" root 077 C.UTF-8 quorvandel
place "under umask 002" builder 002 C.UTF-8 quorvandel
finish

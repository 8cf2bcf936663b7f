# SPDX-License-Identifier: MIT
# The packages of Debian and Ubuntu that the project needs, and how they are installed.
# Sourced by tools/stages.sh.

# The minimum sets: to build, to run, to run without a screen, for the tests, for the lints, for
# the sanitizer builds, for the Debian package.
packages_build="cmake ninja-build g++ qtbase5-dev qttools5-dev qttools5-dev-tools qtmultimedia5-dev
  libopencv-core-dev libopencv-imgproc-dev libopencv-imgcodecs-dev liberfa-dev libsep-dev
  libcfitsio-dev libindi-dev zlib1g-dev libqt5texttospeech5-dev"
packages_run="libqt5multimedia5-plugins gstreamer1.0-plugins-good fonts-dejavu-core fonts-liberation
  fonts-noto-cjk xdg-utils qtspeech5-speechd-plugin"
packages_unseen="xvfb"
packages_test="desktop-file-utils appstream mandoc libbenchmark-dev indi-bin make"
packages_lint="clang-format clang-tidy python3"
packages_sanitize="clang lld llvm" # GCC alone would do, in three times the time
packages_package="build-essential debhelper dpkg-dev file xz-utils"

missing_packages() {
  local package
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
      printf '%s ' "$package"
  done
}

# lock_holder LOG: prints the holder of the lock that apt could not get, as apt names it; fails if
# apt failed for another reason.
lock_holder() {
  grep -aqE '^(E|Error): (Could not get lock|Unable to (acquire|lock) )' "$1" || return 1
  sed -nE 's/.*held by (process [0-9]+ \([^)]*\)).*/\1/p' "$1" | tail -n 1 | grep . ||
    echo "another program"
}

lock_patience=1800 # maximum seconds to wait for another program's lock
lock_interval=2    # seconds between two attempts

# patiently COMMAND...: runs apt-get and retries while another program holds one of its locks; apt
# itself waits only for some of them, and silently. Reports the waiting on file descriptor 3.
patiently() {
  local attempt=$logs/apt-get.log holder status said=false since=$SECONDS
  while true; do
    "$@" 2>&1 | tee "$attempt"
    status=${PIPESTATUS[0]}
    [ "$status" -ne 0 ] && holder=$(lock_holder "$attempt") || return "$status"
    [ $((SECONDS - since)) -lt "$lock_patience" ] || return "$status"
    if ! $said; then
      [ ! -t 3 ] || printf '\r\033[K' >&3 # clears the stage's line
      printf 'Waiting for %s, which holds the package system, for at most %d minutes.\n' \
        "$holder" $((lock_patience / 60)) >&3
      said=true
    fi
    sleep "$lock_interval"
  done
}

# install_packages PACKAGE...: installs missing packages and lists them.
install_packages() {
  local missing as_root=() apt
  if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    if [ -f build/packages-are-there ]; then return 0; fi
    printf 'This is not Debian or Ubuntu. Install the equivalents of these Debian packages:\n   '
    printf ' %s' "$@"
    printf '\nand then confirm with: mkdir -p build; touch build/packages-are-there\n'
    return 1
  fi
  missing=$(missing_packages "$@")
  [ -n "$missing" ] || return 0
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      printf 'Packages are missing and there is no sudo. Install as root: %s\n' "$missing"
      return 1
    fi
    as_root=(sudo)
  fi
  printf 'Installing: %s\n' "$missing"
  # The password prompt must be visible, so it comes before output is redirected to a log.
  [ ${#as_root[@]} -eq 0 ] || sudo -v || return 1
  # The messages are parsed here, so they must be in English.
  apt=("${as_root[@]}" env LC_ALL=C DEBIAN_FRONTEND=noninteractive apt-get)
  stage "Reading the package lists" patiently "${apt[@]}" update || return 1
  # shellcheck disable=SC2086 # the list is meant to be split
  stage "Installing the packages" patiently "${apt[@]}" install -y --no-install-recommends $missing
}

# install_sanitizers: installs the compiler of the sanitizer builds. Its runtime has a package of its own
# on systems newer than Ubuntu 22.04.
install_sanitizers() {
  # shellcheck disable=SC2086 # the list is meant to be split
  install_packages $packages_sanitize || return 1
  if apt-cache show libclang-rt-dev >/dev/null 2>&1; then install_packages libclang-rt-dev; fi
}

# SPDX-License-Identifier: MIT
# What the scripts ./run and ./test share: stages that tell what they do, and the packages.
# Sourced by bash with the project's root as the current folder.

logs=build/logs

# stage TEXT COMMAND...: one line that tells what is being done; the output goes to a log, of which
# the last lines are shown if the command fails. Returns the command's status.
stage() {
  local text=$1 log status
  shift
  mkdir -p "$logs"
  log="$logs/$(printf '%s' "$text" | tr -cs 'A-Za-z0-9' '-' | cut -c1-60).log"
  printf '%s ... ' "$text"
  local start=$SECONDS
  "$@" >"$log" 2>&1
  status=$?
  if [ $status -eq 0 ]; then
    printf 'done (%d s)\n' $((SECONDS - start))
  else
    printf 'FAILED (%d s)\n' $((SECONDS - start))
    printf 'The stage "%s" failed with status %d. Its last lines (all of it: %s):\n' \
      "$text" $status "$log"
    tail -n 40 "$log" | sed 's/^/    /'
  fi
  return $status
}

# The packages of Debian and Ubuntu, smallest sets that will do.
packages_build="cmake ninja-build g++ qtbase5-dev qttools5-dev qttools5-dev-tools qtmultimedia5-dev
  libopencv-core-dev libopencv-imgproc-dev libopencv-imgcodecs-dev liberfa-dev libsep-dev"
packages_run="libqt5multimedia5-plugins gstreamer1.0-plugins-good fonts-dejavu-core fonts-liberation
  fonts-noto-cjk"
packages_unseen="xvfb"
packages_test="clang-format clang-tidy desktop-file-utils appstream mandoc"

missing_packages() {
  local package
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
      printf '%s ' "$package"
  done
}

# install_packages PACKAGE...: installs what is missing and says what.
install_packages() {
  local missing as_root=
  if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    if [ -f build/packages-are-there ]; then return 0; fi
    printf 'This is not Debian or Ubuntu. Install what these packages of Debian bring:\n   '
    printf ' %s' "$@"
    printf '\nand then say so with: mkdir -p build; touch build/packages-are-there\n'
    return 1
  fi
  missing=$(missing_packages "$@")
  [ -n "$missing" ] || return 0
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      printf 'Packages are missing and there is no sudo. Install as root: %s\n' "$missing"
      return 1
    fi
    as_root=sudo
  fi
  printf 'Installing: %s\n' "$missing"
  # The question for the password must be seen, so it comes before the output goes to a log.
  [ -z "$as_root" ] || sudo -v || return 1
  stage "Reading the package lists" $as_root apt-get update || return 1
  # shellcheck disable=SC2086 # the list is meant to be split
  stage "Installing the packages" $as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y --no-install-recommends $missing
}

# configured PRESET: configures a build folder once; CMake itself notices later changes.
configured() {
  [ -f "build/$1/build.ninja" ] || stage "Configuring the $1 build" cmake --preset "$1"
}

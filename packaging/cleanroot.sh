# SPDX-License-Identifier: MIT
# A clean Debian in a folder, for the scripts that try the package. Sourced by bash as root, in a mount
# namespace of its own, so that all mounts end with the script.
#
# The caller sets `root`, an empty folder, and `cache`, where the downloaded system and packages are
# kept. QUORVANDEL_MIRROR names another mirror than Debian's, QUORVANDEL_SUITE another release than this
# system's.

# unpack_clean_root: a minimal system in `root`, which can install packages.
unpack_clean_root() {
  # shellcheck disable=SC1091 # the system's own file
  . /etc/os-release
  local mirror=${QUORVANDEL_MIRROR:-http://deb.debian.org/debian}
  local suite=${QUORVANDEL_SUITE:-$VERSION_CODENAME} base
  base=$cache/$suite.tar
  mkdir -p "$cache/archives/partial"
  if [ ! -f "$base" ]; then
    debootstrap --variant=minbase "$suite" "$root" "$mirror" &&
      tar -C "$root" --one-file-system -cf "$base.part" . && mv "$base.part" "$base" || return
  else
    tar -C "$root" -xf "$base" || return
  fi
  chmod 755 "$root"
  printf '127.0.0.1\tlocalhost\n::1\tlocalhost\n' >"$root/etc/hosts" # as an installed system has it
  mount -t proc proc "$root/proc" && cp /etc/resolv.conf "$root/etc/resolv.conf" &&
    mount --bind "$cache/archives" "$root/var/cache/apt/archives"
}

in_root() {
  chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive "$@"
}

# in_root_as USER COMMAND: runs the shell command in the user's home. Not by su: that would start
# another session, which does not keep the priority that the caller has set.
in_root_as() {
  chroot --userspec="$1:$1" --groups="" "$root" env -i PATH=/usr/bin:/bin LC_ALL=C.UTF-8 \
    HOME="/home/$1" DEB_BUILD_OPTIONS="${DEB_BUILD_OPTIONS:-}" sh -c "cd && $2"
}

# remove_root: unmounts and deletes `root`. A process that a program has left behind may still use a
# device; it ends with the script.
remove_root() {
  awk -v root="$root/" 'index($2, root) == 1 { print $2 }' /proc/mounts | sort -r |
    xargs -r umount --lazy
  rm -rf --one-file-system "$root"
}

# SPDX-License-Identifier: MIT
# A clean Debian in a folder, for the scripts that try the package. Sourced by bash as root, in a mount
# namespace of its own, so that all mounts end with the script.
#
# The caller sets `root`, an empty folder, and `cache`, where the downloaded system and packages are
# kept. QUORVANDEL_MIRROR names another mirror than Debian's.

# unpack_clean_root: a minimal system in `root`, which can install packages.
unpack_clean_root() {
  # shellcheck disable=SC1091 # the system's own file
  . /etc/os-release
  local mirror=${QUORVANDEL_MIRROR:-http://deb.debian.org/debian} base=$cache/$VERSION_CODENAME.tar
  mkdir -p "$cache/archives/partial"
  if [ ! -f "$base" ]; then
    debootstrap --variant=minbase "$VERSION_CODENAME" "$root" "$mirror" &&
      tar -C "$root" --one-file-system -cf "$base.part" . && mv "$base.part" "$base" || return
  else
    tar -C "$root" -xf "$base" || return
  fi
  mount -t proc proc "$root/proc" && cp /etc/resolv.conf "$root/etc/resolv.conf" &&
    mount --bind "$cache/archives" "$root/var/cache/apt/archives"
}

in_root() {
  chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive "$@"
}

# remove_root: unmounts and deletes `root`.
remove_root() {
  awk -v root="$root/" 'index($2, root) == 1 { print $2 }' /proc/mounts | sort -r | xargs -r umount
  rm -rf --one-file-system "$root"
}

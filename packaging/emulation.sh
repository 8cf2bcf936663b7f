# SPDX-License-Identifier: MIT
# Runs arm64 programs in a clean root, under qemu-user, and every program that they start, too.
# Sourced by bash as root; the caller sets `root`, in which qemu-user is installed.
#
# The kernel starts the emulator (binfmt_misc). It is registered in a user namespace of its own, which
# Linux 6.7 and later allow, so that nothing outside changes. The namespace maps each user to itself.

emulation= # the process that keeps the namespace

# The first 20 bytes of an executable or library for arm64, without the byte that names the system.
arm64_magic='\x7fELF\x02\x01\x01\x00\x00\x00\x00\x00\x00\x00\x00\x00\x02\x00\xb7\x00'
arm64_mask='\xff\xff\xff\xff\xff\xff\xff\x00\xff\xff\xff\xff\xff\xff\xff\xff\xfe\xff\xff\xff'

# in_emulation COMMAND...: runs COMMAND in the namespace, with its mounts.
in_emulation() { nsenter --user --mount --target "$emulation" "$@"; }

# start_emulation: needs the mounts of `root`; later ones are not visible to the emulated programs.
start_emulation() {
  local formats=$root/proc/sys/fs/binfmt_misc own
  own=$(readlink /proc/self/ns/user)
  unshare --user --mount sleep infinity &
  emulation=$!
  until [ "$(readlink "/proc/$emulation/ns/user")" != "$own" ]; do sleep 0.1; done
  echo "0 0 65536" >"/proc/$emulation/uid_map"
  echo "0 0 65536" >"/proc/$emulation/gid_map"
  in_emulation mount -t binfmt_misc binfmt_misc "$formats" || {
    echo "This kernel has no binfmt_misc for a namespace: it needs Linux 6.7 or later."
    return 1
  }
  # P: with the name by which the program was started.
  printf '%s' ":qemu-aarch64:M::$arm64_magic:$arm64_mask:/usr/bin/qemu-aarch64:P" |
    in_emulation tee "$formats/register" >/dev/null
}

# emulated_as USER COMMAND: runs the shell command in the user's home in the clean root. It may start
# programs of either kind.
emulated_as() {
  in_emulation chroot --userspec="$1:$1" --groups="" "$root" env -i PATH=/usr/bin:/bin \
    LC_ALL=C.UTF-8 HOME="/home/$1" sh -c "cd && $2"
}

end_emulation() {
  [ -n "$emulation" ] || return 0
  kill "$emulation"
  wait "$emulation" || true
  emulation=
}

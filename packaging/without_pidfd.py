#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs a command on a kernel that seems not to know how to wait for a process by a descriptor.

    packaging/without_pidfd.py COMMAND [ARGUMENT]...

Qt 5.15 starts processes with clone(CLONE_PIDFD) where waitid(P_PIDFD) is known, and with fork()
elsewhere. qemu-user 7.2 hands that waitid to the kernel but refuses that clone itself, with EINVAL, so
QProcess starts nothing under it. With this filter waitid(P_PIDFD) fails with EINVAL, as before Linux
5.4, for the command and all that it starts.
"""
import ctypes
import errno
import os
import platform
import struct
import sys

PR_SET_NO_NEW_PRIVS, PR_SET_SECCOMP, SECCOMP_MODE_FILTER = 38, 22, 2
ALLOW, FAIL = 0x7FFF0000, 0x00050000 | errno.EINVAL
AUDIT_ARCH_X86_64, WAITID, P_PIDFD = 0xC000003E, 247, 3
LOAD, JUMP_IF_EQUAL, RETURN = 0x20, 0x15, 0x06  # of classic BPF, 32 bits, constants
NUMBER, ARCHITECTURE, FIRST_ARGUMENT = 0, 4, 16  # offsets in struct seccomp_data, little-endian

PROGRAM = [  # code, jump if true, jump if false, constant
    (LOAD, 0, 0, ARCHITECTURE),
    (JUMP_IF_EQUAL, 0, 5, AUDIT_ARCH_X86_64),
    (LOAD, 0, 0, NUMBER),
    (JUMP_IF_EQUAL, 0, 3, WAITID),
    (LOAD, 0, 0, FIRST_ARGUMENT),
    (JUMP_IF_EQUAL, 0, 1, P_PIDFD),
    (RETURN, 0, 0, FAIL),
    (RETURN, 0, 0, ALLOW),
]


class FilterProgram(ctypes.Structure):
    """struct sock_fprog."""

    _fields_ = [("length", ctypes.c_ushort), ("filter", ctypes.c_char_p)]


def control(option, argument, pointer=None):
    """prctl() with its result checked."""
    libc = ctypes.CDLL(None, use_errno=True)
    if libc.prctl(option, ctypes.c_ulong(argument), pointer, 0, 0) != 0:
        sys.exit("prctl(%d): %s" % (option, os.strerror(ctypes.get_errno())))


def main():
    if platform.machine() != "x86_64":
        sys.exit("The numbers of the system calls are those of x86_64.")
    code = b"".join(struct.pack("HBBI", *instruction) for instruction in PROGRAM)
    program = FilterProgram(len(PROGRAM), code)
    control(PR_SET_NO_NEW_PRIVS, 1)
    control(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, ctypes.byref(program))
    os.execvp(sys.argv[1], sys.argv[1:])


if __name__ == "__main__":
    main()

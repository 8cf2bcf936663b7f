#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Copies a build's compile_commands.json to a folder, without the compiler's precompiled headers.

    tools/tidy_database.py build/asan build/tidy

clang-tidy cannot read the headers that GCC has precompiled.
"""
import json
import os
import re
import sys

PRECOMPILED = re.compile(r" -Winvalid-pch| -include \S+/cmake_pch\.hxx")


def main():
    source, target = sys.argv[1:]
    with open(os.path.join(source, "compile_commands.json")) as file:
        commands = json.load(file)
    for entry in commands:
        entry["command"] = PRECOMPILED.sub("", entry["command"])
    os.makedirs(target, exist_ok=True)
    with open(os.path.join(target, "compile_commands.json"), "w") as file:
        json.dump(commands, file, indent=1)


main()

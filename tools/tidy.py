#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs clang-tidy on the sources of some folders, many at a time.

    tools/tidy.py BUILD CONFIG FOLDERS

BUILD is a build folder with a compile_commands.json, CONFIG the file with the checks, FOLDERS a regular
expression for the folders, relative to the project's root.

clang-tidy spends nearly all its time on the toolkit's headers, so sources of one folder that are
compiled with the same options are read as one file. Sources that define the same name at file scope
are kept apart. Where that is not enough and a joined file does not compile, its sources are
checked one by one.
"""
import collections
import concurrent.futures
import json
import os
import re
import shlex
import subprocess
import sys

# GCC's precompiled headers, which clang cannot read, and what differs between sources of one target.
DROPPED = re.compile(r" -Winvalid-pch| -include \S+/cmake_pch\.hxx| -o \S+| -M[TF] \S+| -MD| -c \S+$")
COMMENT_OR_STRING = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.S)
NAMED = re.compile(
    r"^(?:class|struct|union|enum(?: class)?|using(?= +\w+ =)|#define) +(\w+)"  # types and macros
    r"|^(?!using|namespace)[A-Za-z_][^#;={}()\n]*?[ *&>](\w+)(?:\[[^\]]*\])* *(?:\(|=|\{|;)", re.M)
JOINED_MOST = 12


def names(path):
    """What a source defines at the left margin, which is the file scope, and its namespaces'."""
    with open(path, encoding="utf-8") as file:
        text = COMMENT_OR_STRING.sub('""', file.read())
    return {name for match in NAMED.finditer(text) for name in match.groups() if name} - {"main"}


def sources(build, folders):
    """(folder, options) -> sources, each once."""
    wanted = re.compile(folders)
    found = collections.defaultdict(list)
    seen = set()
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
        commands = json.load(file)
    for entry in commands:
        path = os.path.relpath(os.path.join(entry["directory"], entry["file"]))
        folder = os.path.dirname(path)
        if path in seen or not wanted.fullmatch(folder):
            continue
        seen.add(path)
        found[folder, DROPPED.sub("", entry["command"]), entry["directory"]].append(path)
    return found


def joined(paths):
    """Groups of sources that define different names."""
    groups = []
    for path in sorted(paths):
        own = names(path)
        for group in groups:
            if len(group[0]) < JOINED_MOST and not own & group[1]:
                group[0].append(path)
                group[1].update(own)
                break
        else:
            groups.append(([path], set(own)))
    return [group[0] for group in groups]


class Run:
    def __init__(self, number, key, paths, config, folders):
        self.folder, self.command, self.directory = key
        self.paths, self.config, self.folders = paths, config, folders
        self.file = os.path.abspath(f"build/tidy/{self.folder.replace('/', '-')}-{number}.cpp")

    def tidy(self, paths, file):
        with open(file, "w", encoding="utf-8") as text:
            for number, path in enumerate(paths):
                text.write(f"#undef main\n#define main main_{number}\n")
                text.write(f'#include "{os.path.abspath(path)}"\n')
        filters = "|".join(re.escape(os.path.abspath(path)) for path in paths)
        headers = re.escape(os.getcwd()) + f"/({self.folders})/[^/]*\\.h"
        options = shlex.split(self.command)[1:]
        return subprocess.run(
            ["clang-tidy", "--quiet", f"--config-file={self.config}",
             f"--header-filter=^({filters}|{headers})$", file, "--"] + options,
            cwd=self.directory, text=True, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)

    def result(self):
        """What is wrong with these sources; empty = nothing."""
        runs = [self.tidy(self.paths, self.file)]
        if "[clang-diagnostic-error]" in runs[0].stdout and len(self.paths) > 1:
            runs = [self.tidy([path], self.file) for path in self.paths]
        return "".join(run.stdout or run.stderr for run in runs if run.returncode != 0)


def main():
    build, config, folders = sys.argv[1:]
    os.makedirs("build/tidy", exist_ok=True)
    runs = []
    for key, paths in sources(build, folders).items():
        for group in joined(paths):
            runs.append(Run(len(runs), key, group, os.path.abspath(config), folders))
    if not runs:
        sys.exit(f"no sources in {folders}")
    runs.sort(key=lambda run: -len(run.paths))
    wrong = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for done, text in enumerate(pool.map(Run.result, runs), 1):
            wrong += bool(text)
            print(text, end="")
            print(f"[{done}/{len(runs)}]", file=sys.stderr, flush=True)
    sys.exit(wrong > 0)


main()

#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs clang-tidy on the sources of some folders, many at a time.

    tools/tidy.py BUILD CONFIG FOLDERS

BUILD is a folder with a compile_commands.json, CONFIG the file with the checks, FOLDERS a regular
expression for the folders, relative to the project's root.

clang-tidy spends nearly all its time on the toolkit's headers, so many sources are read as one file,
with the options of them all. It begins with the project's headers, so that what a source opens or
defines is not yet there. Sources that define the same name at file scope, or whose options contradict
each other, are kept apart. Where that is not enough and a joined file does not compile, the sources at
fault are checked separately.
"""
import concurrent.futures
import functools
import json
import os
import re
import shlex
import subprocess
import sys

# GCC's precompiled headers, which clang cannot read, what differs between sources of one target, and
# what concerns the generated code alone.
DROPPED = re.compile(r" -Winvalid-pch| -include \S+/cmake_pch\.hxx| -o \S+| -M[TF] \S+| -MD| -c \S+$"
                     r"| -g\b| -fPI[CE]")
COMMENT_OR_STRING = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.S)
NAMED = re.compile(
    r"^(?:class|struct|union|enum(?: class)?|using(?= +\w+ =)|#define) +(\w+)"  # types and macros
    r"|^Q_DECLARE_METATYPE\((\w+)"
    r"|^(?!using|namespace)[A-Za-z_][^#;={}()\n]*?[ *&>](\w+)(?:\[[^\]]*\])* *(?:\(|=|\{|;)", re.M)
ALIAS = re.compile(r"^using +(\w+) += +[^;]+;", re.M)
OPENED = re.compile(r"^using namespace [\w:]+;", re.M)
BROUGHT = re.compile(r"^using ([\w:]+::(\w+));", re.M)
INCLUDED = re.compile(r'^#include "([^"]+\.h)"', re.M)
EXPORTED = re.compile(r'^(?:#define \w+ )?extern "C"', re.M)
ERROR = re.compile(r"^([^\s:]+):\d+:\d+: error: .*\[clang-diagnostic-error\]$", re.M)
JOINED_MOST = 240


def text_of(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


@functools.lru_cache(None)
def headers(path):
    """The project's headers that a file includes."""
    found = []
    for header in INCLUDED.findall(text_of(path)):
        places = header, os.path.normpath(os.path.join(os.path.dirname(path), header))
        found += [place for place in places if os.path.isfile(place)][:1]
    return found


@functools.lru_cache(None)
def names(path):
    """name -> origin, for what a source defines or brings by `using` at the left margin, which is the file
    scope and its namespaces', and for the headers of tests and benchmarks that it includes."""
    text = text_of(path)
    own = {name for match in NAMED.finditer(COMMENT_OR_STRING.sub('""', text))
           for name in match.groups() if name}
    found = {name: path for name in own - {"main", "operator"}}
    for alias in ALIAS.finditer(text):
        if f"Q_DECLARE_METATYPE({alias[1]}" not in text:
            found[alias[1]] = alias[0]  # may be repeated
    found.update((name, whole) for whole, name in BROUGHT.findall(text))
    for header in headers(path):
        if "/" in os.path.dirname(header):
            found.update(names(header))
    return found


def opens(path):
    """Whether a source opens a namespace."""
    return OPENED.search(text_of(path)) is not None


def exports(path):
    """Whether a source defines functions with C's linkage, which headers may declare with another."""
    return EXPORTED.search(text_of(path)) is not None


class Options:
    """A compiler's options, as those that must be equal and those that can be joined: definitions of
    different macros, and folders of headers."""

    def __init__(self, command):
        self.fixed, self.macros, self.folders = [], {}, {}
        words = iter(shlex.split(command)[1:])
        for word in words:
            if word.startswith("-D"):
                macro, _, value = word[2:].partition("=")
                self.macros[macro] = value
            elif word.startswith("-I"):
                self.folders[word] = [word]
            elif word == "-isystem":
                folder = next(words)
                self.folders[folder] = [word, folder]
            else:
                self.fixed.append(word)

    def fits(self, other):
        """Whether they can be joined. Texts may differ: those are paths, which no check looks at."""
        return self.fixed == other.fixed and all(
            value == self.macros.get(macro, value) or value.startswith('"')
            for macro, value in other.macros.items())

    def join(self, other):
        self.macros = {**other.macros, **self.macros}
        self.folders.update(other.folders)

    def words(self):
        return (self.fixed + [f"-D{macro}={value}" if value else f"-D{macro}"
                              for macro, value in self.macros.items()]
                + [word for words in self.folders.values() for word in words])


def sources(build, folders):
    """(path, options, folder of the build) of each source, once."""
    wanted = re.compile(folders)
    seen = set()
    for entry in json.loads(text_of(os.path.join(build, "compile_commands.json"))):
        path = os.path.relpath(os.path.join(entry["directory"], entry["file"]))
        if path not in seen and wanted.fullmatch(os.path.dirname(path)):
            seen.add(path)
            yield path, Options(DROPPED.sub("", entry["command"])), entry["directory"]


class Group:
    """Sources that define different names and have options that fit."""

    def __init__(self, options, directory):
        self.paths, self.names, self.options, self.directory = [], {}, options, directory

    def accepts(self, path, options):
        return (len(self.paths) < JOINED_MOST and self.options.fits(options) and
                exports(path) == exports(self.paths[0]) and
                all(self.names.get(name, file) == file for name, file in names(path).items()))

    def add(self, path, options):
        self.paths.append(path)
        self.names.update(names(path))
        self.options.join(options)


def joined(found):
    """Groups of sources; those that open a namespace come last."""
    groups = []
    for path, options, directory in sorted(found, key=lambda each: (opens(each[0]), each[0])):
        group = next((each for each in groups if each.accepts(path, options)), None)
        if group is None:
            group = Group(options, directory)
            groups.append(group)
        group.add(path, options)
    return groups


class Run:
    def __init__(self, number, group, config, folders):
        self.paths, self.options, self.directory = group.paths, group.options.words(), group.directory
        self.config, self.folders = config, folders
        self.file = os.path.abspath(f"build/tidy/{number}.cpp")

    def tidy(self, paths):
        with open(self.file, "w", encoding="utf-8") as text:
            for header in dict.fromkeys(header for path in paths for header in headers(path)):
                text.write(f'#include "{os.path.abspath(header)}"\n')
            for number, path in enumerate(paths):
                text.write(f"#undef main\n#define main main_{number}\n")
                text.write(f'#include "{os.path.abspath(path)}"\n')
        filters = "|".join(re.escape(os.path.abspath(path)) for path in paths)
        wanted = re.escape(os.getcwd()) + f"/({self.folders})/[^/]*\\.h"
        return subprocess.run(
            ["clang-tidy", "--quiet", f"--config-file={self.config}",
             f"--header-filter=^({filters}|{wanted})$", self.file, "--", "-ferror-limit=0"]
            + self.options,
            cwd=self.directory, text=True, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)

    def result(self, paths=None):
        """What is wrong with these sources; empty = nothing."""
        paths = paths or self.paths
        run = self.tidy(paths)
        if "[clang-diagnostic-error]" in run.stdout and len(paths) > 1:
            named = {os.path.relpath(path) for path in ERROR.findall(run.stdout)}
            faulty = [path for path in paths if path in named]
            if len(faulty) in (0, len(paths)):
                faulty = paths[:len(paths) // 2]
            return self.result([path for path in paths if path not in faulty]) + self.result(faulty)
        return (run.stdout or run.stderr) if run.returncode != 0 else ""


def main():
    build, config, folders = sys.argv[1:]
    os.makedirs("build/tidy", exist_ok=True)
    runs = [Run(number, group, os.path.abspath(config), folders)
            for number, group in enumerate(joined(sources(build, folders)))]
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

#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Which target links which, and which folder includes which? Generates the map in ARCHITECTURE.md.

  tools/draw_map.py           prints the map, and below it the folders whose headers each folder includes
  tools/draw_map.py --write   writes it into ARCHITECTURE.md
  tools/draw_map.py --check   fails if that map is out of date, or if an arrow points up

The targets and their links come from CMake's graph of the configured build folder (--build DIR, default
build/release); the includes are read from the sources. FOLDERS lists the folders from the bottom up: a
folder may use only the folders before it.
"""
import argparse
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGE = ROOT / "ARCHITECTURE.md"
BEGIN, END = "<!-- map: drawn by tools/draw_map.py -->", "<!-- end of the map -->"

# From the bottom up. tests/ may use everything.
FOLDERS = [folder for folder in (ROOT / "tools/folders.txt").read_text().split() if folder]


def links(build):
    """The link dependencies of a build: {target: {targets that it uses}}."""
    with tempfile.TemporaryDirectory() as scratch:
        graph = pathlib.Path(scratch) / "graph"
        subprocess.run(["cmake", f"--graphviz={graph}", str(build)], check=True, cwd=ROOT,
                       stdout=subprocess.DEVNULL)
        text = graph.read_text()
    name = dict(re.findall(r'"(node\d+)" \[ label = "([^"\\]+)', text))
    uses = {target: set() for target in name.values()}
    for one, other in re.findall(r'"(node\d+)" -> "(node\d+)"', text):
        uses[name[one]].add(name[other])
    return uses


def folder_of_targets():
    """{target: folder} for all targets declared in the sources."""
    found = {}
    for folder in FOLDERS:
        listing = ROOT / folder / "CMakeLists.txt"
        if listing.exists():
            for target in re.findall(r"add_(?:library|executable)\(([\w-]+)", listing.read_text()):
                found[target] = folder
    return found


def includes():
    """{folder: {folders whose headers it includes: an example file}}."""
    found = {}
    for folder in FOLDERS:
        found[folder] = {}
        for source in sorted((ROOT / folder).rglob("*")):
            if source.suffix not in (".cpp", ".h"):
                continue
            for other in re.findall(r'^#include "([\w/]+)/[^/"]+"', source.read_text(), re.M):
                top = next((f for f in FOLDERS if other == f or other.startswith(f + "/")), None)
                if top and top != folder:
                    found[folder].setdefault(top, source.relative_to(ROOT))
    return found


def reduced(uses):
    """The arrows that no longer path already implies."""
    def reach(target, seen):
        for other in uses.get(target, ()):
            if other not in seen:
                seen.add(other)
                reach(other, seen)
        return seen
    return {target: {o for o in others
                     if not any(o in reach(between, set()) for between in others - {o})}
            for target, others in uses.items()}


def drawn(uses, home):
    """The map as text: one line per target, the highest folder first."""
    rank = {folder: i for i, folder in enumerate(FOLDERS)}
    # Which benchmarks there are depends on what is installed.
    ours = {t: {o for o in others if o in home and o != t}
            for t, others in uses.items() if t in home and home[t] != "bench"}
    ours = reduced({t: {o for o in others if not o.startswith("quorvandel_")}
                    for t, others in ours.items()})
    lines = []
    width = max(len(t) for t in ours)
    for target in sorted(ours, key=lambda t: (-rank[home[t]], t)):
        others = sorted(ours[target], key=lambda t: (-rank[home[t]], t))
        lines.append(f"{target:<{width}}  {home[target] + '/':<17}{'─▶ ' + ', '.join(others) if others else ''}"
                     .rstrip())
    return "```\n" + "\n".join(lines) + "\n```"


def upward(uses, home):
    """Describes the arrows that point up."""
    rank = {folder: i for i, folder in enumerate(FOLDERS)}
    wrong = [f"{target} ({home[target]}/) links {other} ({home[other]}/)"
             for target, others in uses.items() if target in home
             for other in others if other in home and rank[home[other]] > rank[home[target]]]
    wrong += [f"{source} includes {other}/" for folder, others in includes().items()
              for other, source in others.items() if rank[other] > rank[folder]]
    return sorted(wrong)


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--write", action="store_true")
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--build", default=str(ROOT / "build/release"))
    options = parser.parse_args()
    home = folder_of_targets()
    uses = links(options.build)
    text = drawn(uses, home)
    wrong = upward(uses, home)
    for arrow in wrong:
        print(f"an arrow points up: {arrow}", file=sys.stderr)
    page = PAGE.read_text()
    old = page[page.index(BEGIN) + len(BEGIN):page.index(END)].strip() if BEGIN in page else None
    if options.write:
        PAGE.write_text(page.replace(old, text))
    elif options.check:
        if old != text:
            print("The map in ARCHITECTURE.md is out of date: run tools/draw_map.py --write", file=sys.stderr)
            return 1
    else:
        print(text)
        for folder, others in reversed(includes().items()):
            print(f"{folder + '/':<17}includes {', '.join(sorted(others)) or 'none'}")
    return 1 if wrong and options.check else 0


sys.exit(main())

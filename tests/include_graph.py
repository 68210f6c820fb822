#!/usr/bin/env python3
"""Checks who includes whom.

    include_graph.py ROOT

A folder of src/ includes its own headers and those of lower layers, and
nothing of tools/ or tests/. There is no circle, nobody includes a .cc file,
and every header starts with #pragma once. Offending lines are printed, and
the exit status is 1 if there are any.
"""

import os
import re
import sys
from pathlib import Path

# Each folder of src/ and the folders below it. ade stands beside cbet: cbet
# doesn't know it, and per has no use for it.
LOWER = {
    "base": set(),
    "store": {"base"},
    "options": {"base", "store"},
    "model": {"base", "store", "options"},
    "cbet": {"base", "store", "options", "model"},
    "per": {"base", "store", "options", "model", "cbet"},
    "ade": {"base", "store", "options", "model", "cbet"},
    "driver": {"base", "store", "options", "model", "cbet", "per", "ade"},
}
FOLDERS = ("src", "tools", "tests", "bench")
EXPECTED = "tests/golden/"  # what runs write is no source of the project
INCLUDE = re.compile(r'^\s*#\s*include\s*(?P<open>["<])(?P<name>[^">]+)[">]')


class Graph:
    def __init__(self, root):
        self.root = root
        self.faults = []
        self.edges = {}  # path: [(line number, path)], relative to the root

    def fault(self, path, line, text):
        self.faults.append(f"{path}:{line}: {text}")

    def sources(self):
        for folder in FOLDERS:
            for path in sorted((self.root / folder).rglob("*")):
                name = path.relative_to(self.root).as_posix()
                if (path.suffix in (".h", ".cc") and path.is_file() and
                        not name.startswith(EXPECTED)):
                    yield name

    def resolve(self, path, name):
        """The project's file that an include means, or null."""
        for directory in (os.path.dirname(path), "src", "tools", "tests"):
            found = os.path.normpath(os.path.join(directory, name))
            if (self.root / found).is_file():
                return found
        return None

    def read(self, path):
        text = (self.root / path).read_text(encoding="utf-8",
                                            errors="replace")
        lines = text.splitlines()
        if path.endswith(".h") and lines[:1] != ["#pragma once"]:
            self.fault(path, 1, "a header starts with #pragma once")
        self.edges[path] = []
        for number, line in enumerate(lines, 1):
            match = INCLUDE.match(line)
            if match:
                self.read_include(path, number, line.strip(), match)

    def read_include(self, path, number, line, match):
        name = match["name"]
        target = self.resolve(path, name)
        if name.endswith((".cc", ".cpp", ".c")):
            self.fault(path, number, f"{line}: includes a source file")
        if match["open"] == "<":
            # A header of the project in angle brackets would go unseen.
            if target and "/" in name:
                self.fault(path, number, f"{line}: belongs in quotes")
            return
        if not target:
            self.fault(path, number, f"{line}: no such file in the project")
            return
        self.edges[path].append((number, target))
        if path.startswith("src/"):
            self.check_layer(path, number, line, target)

    def check_layer(self, path, number, line, target):
        folder = path.split("/")[1]
        top, other = target.split("/")[:2]
        if folder not in LOWER:
            self.fault(path, number, f"src/{folder} is no layer")
        elif top != "src":
            self.fault(path, number, f"{line}: src never includes {top}")
        elif other != folder and other not in LOWER[folder]:
            self.fault(path, number, f"{line}: {other} is not below {folder}")

    def check_circles(self):
        state = {}  # 1: on the way, 2: done

        def visit(path, way):
            state[path] = 1
            for number, target in self.edges.get(path, []):
                if state.get(target) == 1:
                    circle = way[way.index(target):] + [target]
                    self.fault(path, number,
                               "circle: " + " -> ".join(circle))
                elif target not in state:
                    visit(target, way + [target])
            state[path] = 2

        for path in self.edges:
            if path not in state:
                visit(path, [path])


def main():
    if len(sys.argv) != 2:
        print("usage: include_graph.py ROOT", file=sys.stderr)
        return 2
    graph = Graph(Path(sys.argv[1]))
    for path in list(graph.sources()):
        graph.read(path)
    graph.check_circles()
    if not graph.edges:
        graph.faults.append(f"{sys.argv[1]}: no sources found")
    for text in graph.faults:
        print(text)
    return 1 if graph.faults else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Reports every include that points upwards, or from one view to another.

    check_layers.py [ROOT]

Prints one line per finding: where it is, what is included, and why that is not allowed. Exit
status 0 if there is none, else 1.
"""

import os
import re
import sys

# The rooms from bottom to top, one layer per line. A room includes its own headers and those of
# lower layers; rooms of one layer do not know each other.
LAYERS = [line.split() for line in """
    platform/tessel
    platform/tessel/opengl
    platform/openstreetmap platform/viewlib
    core
    profile
    card
    export
    gui/look gui/dialogs gui/project views/graph/model views/map/model
    views/common views/graph/widget
    views/replay views/table views/events views/statistic views/fault views/panel views/graph views/map
    views/window export/wizard gui/help gui/card gui/profile gui/print
    gui/preferences
    gui
    core/startup
    tools/democard tools/velix-card tools/velix-demo
    bench fuzz
""".strip().splitlines()]
LAYER_OF = {room: number for number, rooms in enumerate(LAYERS) for room in rooms}

# What a program without a display is built from, and the rooms that such a program cannot use.
HEADLESS = {"core", "profile", "card", "export", "gui/project", "views/graph/model",
            "views/map/model", "tools/democard", "tools/velix-card"}
NEEDS_DISPLAY = {"platform/tessel/opengl", "platform/viewlib", "platform/openstreetmap",
                 "gui/look", "gui/dialogs"}

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')


def objection(room, included):
    """Why a file of this room must not include a header of that room; None if it may."""
    if room == included:
        return None
    if included not in LAYER_OF:
        return f"{included or 'the root'} is not in the list of rooms"
    if LAYER_OF[included] > LAYER_OF[room]:
        return f"{room} is below {included}"
    if LAYER_OF[included] == LAYER_OF[room]:
        return f"{room} and {included} are of one layer and do not know each other"
    if room in HEADLESS and included in NEEDS_DISPLAY:
        return f"{room} also serves programs without a display"
    return None


def sources(root):
    """All headers and sources below the root, relative to it, without what a build made."""
    for folder, subfolders, files in os.walk(root):
        subfolders[:] = sorted(name for name in subfolders
                               if name not in ("build", "cmake") and not name.startswith("."))
        for name in sorted(files):
            if name.endswith((".h", ".cpp")):
                yield os.path.relpath(os.path.join(folder, name), root)


def findings(root):
    for file in sources(root):
        folder = os.path.dirname(file)
        is_test = folder.split("/")[0] == "tests"
        # A test may include what the room that it tests may.
        room = folder[len("tests/"):] if is_test else folder
        if room not in LAYER_OF:
            if not is_test:
                yield f"{file}:1: {folder or 'the root'} is not in the list of rooms"
            continue
        with open(os.path.join(root, file), encoding="utf-8") as lines:
            for number, line in enumerate(lines, 1):
                match = INCLUDE.match(line)
                if not match or match[1].startswith("tests/"):
                    continue
                included = os.path.dirname(match[1])
                why = objection(room, included)
                if why:
                    yield f"{file}:{number}: includes {match[1]}, but {why}"


def main():
    root = sys.argv[1] if len(sys.argv) > 1 else os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    found = list(findings(root))
    for finding in found:
        print(finding)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Converts coast lines from TopoJSON to the small binary file that the map reads.

Usage: make_coast.py land-50m.json resources/map/coast.bin

The input is that file of the npm package "world-atlas" (version 2.0.2), which has Natural Earth's
land areas at 1:50 million, public domain. resources/map/README.md says how to get it and what was
done with it. platform/openstreetmap/CoastLines.h describes the output.
"""

import json
import struct
import sys

# Degrees: no stretch of coast between two points is that long. A longer one closes an area along
# the edge of the map.
LONGEST_STEP = 20.0


def points_of(arc, transform):
    """An arc's points in degrees: its numbers are differences on a grid."""
    (scale_x, scale_y), (left, bottom) = transform["scale"], transform["translate"]
    x = y = 0
    for step_x, step_y in arc:
        x += step_x
        y += step_y
        yield x * scale_x + left, y * scale_y + bottom


def is_edge(a, b):
    """Whether a step runs along the antimeridian or the pole, where no coast is."""
    along_antimeridian = abs(a[0]) > 179.99 and abs(b[0]) > 179.99
    along_pole = a[1] < -89.9 or b[1] < -89.9
    return along_antimeridian or along_pole or abs(a[0] - b[0]) > LONGEST_STEP


def lines_of(arc):
    """The arc without such steps."""
    line = []
    for point in arc:
        if line and is_edge(line[-1], point):
            if len(line) > 1:
                yield line
            line = []
        line.append(point)
    if len(line) > 1:
        yield line


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    with open(sys.argv[1], encoding="utf-8") as source:
        topology = json.load(source)
    with open(sys.argv[2], "wb") as target:
        target.write(b"COAST1\n")
        for arc in topology["arcs"]:
            for line in lines_of(points_of(arc, topology["transform"])):
                target.write(struct.pack("<I", len(line)))
                for longitude, latitude in line:
                    target.write(struct.pack("<ii", round(longitude * 1e6), round(latitude * 1e6)))


if __name__ == "__main__":
    main()

#!/usr/bin/python3
"""The peer of read_once: reads one record file in this fresh process and splits it by identifier.

Prints the seconds and, as read_once does, per identifier the number of entries and the sum of
timeLow * position, modulo 2^64.
"""

import json
import sys
import time

import numpy

# The machine's own byte order: the peer's best case.
ENTRY = numpy.dtype([("data", "u1", 8), ("aux", "u1", 2), ("source", "u2"), ("id", "u4"),
                     ("aux16", "u2", 2), ("timeHigh", "u4"), ("timeLow", "u4")])
HEADER_BYTES = 128


def split(path):
    entries = numpy.fromfile(path, dtype=ENTRY, offset=HEADER_BYTES)
    ordered = entries[numpy.argsort(entries["id"], kind="stable")]
    starts = numpy.flatnonzero(numpy.diff(ordered["id"])) + 1
    return {int(part["id"][0]): part for part in numpy.split(ordered, starts)}


def checksum(entries):
    positions = numpy.arange(1, len(entries) + 1, dtype=numpy.uint64)
    return int((entries["timeLow"].astype(numpy.uint64) * positions).sum(dtype=numpy.uint64))


def main():
    start = time.perf_counter()
    lists = split(sys.argv[1])
    taken = time.perf_counter() - start
    print(json.dumps({"seconds": taken, "lists": {
        str(identifier): [len(entries), checksum(entries)]
        for identifier, entries in lists.items()}}))


if __name__ == "__main__":
    main()

#!/usr/bin/python3
"""Reading a record file against numpy, and the memory of a whole-cycle load.

run_reading.py BIN_FOLDER
"""

import statistics
import sys
import tempfile
from pathlib import Path

import numpy

from peers import Report, alternate, run_json
from read_with_numpy import ENTRY, HEADER_BYTES

ENTRIES = 5_000_000
IDENTIFIERS = 60
FIRST_ID = 500
ROUNDS = 7
TICKS_PER_MESSAGE = 64_000  # 2 ms
FASTER = 4.0
BYTES_PER_ENTRY = 125.0
MAGIC = 0xABBA


def write_flight(entries):
    """Lets the ground speed, the first identifier, rise at once and fall near the end."""
    speeds = numpy.full((entries["id"] == FIRST_ID).sum(), 120.0, dtype=">f4")
    speeds[-100:] = 0.0
    entries["data"][entries["id"] == FIRST_ID, 4:] = speeds.view(numpy.uint8).reshape(-1, 4)


def write_card_file(path):
    """Writes one file of both lanes, with its identifiers in random order."""
    random = numpy.random.default_rng(1)
    entries = numpy.zeros(ENTRIES, dtype=ENTRY)
    entries["data"] = random.integers(0, 256, size=(ENTRIES, 8), dtype=numpy.uint8)
    entries["id"] = FIRST_ID + random.integers(0, IDENTIFIERS, size=ENTRIES)
    entries["source"] = random.integers(0, 2, size=ENTRIES)
    write_flight(entries)
    ticks = numpy.arange(ENTRIES, dtype=numpy.uint64) * numpy.uint64(TICKS_PER_MESSAGE)
    entries["timeHigh"] = ticks >> numpy.uint64(32)
    entries["timeLow"] = ticks & numpy.uint64(0xFFFFFFFF)
    with open(path, "wb") as file:
        file.write(numpy.uint16(MAGIC).tobytes().ljust(HEADER_BYTES, b"\0"))
        entries.tofile(file)


def main():
    reader = Path(sys.argv[1]) / "read_once"
    peer = Path(__file__).with_name("read_with_numpy.py")
    report = Report()
    with tempfile.TemporaryDirectory(prefix="velix-bench-") as folder:
        path = Path(folder) / "R0.CAN"
        write_card_file(path)
        if run_json(reader, path)["lists"] != run_json(sys.executable, peer, path)["lists"]:
            sys.exit("the lists of the two programs differ")

        ours, numpys = alternate(ROUNDS, lambda: run_json(reader, path)["seconds"],
                                 lambda: run_json(sys.executable, peer, path)["seconds"])
        report.ratio(f"reading {ENTRIES:,} entries, times as fast as numpy", ours, numpys, FASTER)

        cycles = [run_json(reader, path, "--cycle") for _ in range(3)]
        if any(cycle["flights"] != 1 for cycle in cycles):
            sys.exit("the flight of the file was not found")
        peak = statistics.median(cycle["peakBytes"] / cycle["entries"] for cycle in cycles)
        report.under("load of a cycle and its flight, peak bytes per entry", peak, BYTES_PER_ENTRY)
    return report.status()


if __name__ == "__main__":
    sys.exit(main())

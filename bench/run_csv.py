#!/usr/bin/python3
"""Writing CSV against pandas: 30 FLOAT parameters x 36,000 samples with two decimals.

run_csv.py BIN_FOLDER
Both write a table that is in memory to a file; ours has a column of times more.
"""

import sys
import tempfile
import time
from pathlib import Path

import numpy
import pandas

from peers import Report, alternate, run_json

PARAMETERS = 30
ROWS = 36_000
ROUNDS = 7
FASTER = 6.0


def make_table():
    """The values of write_csv_once, which are single precision, as columns of float64."""
    rows = numpy.arange(ROWS, dtype=numpy.int64)
    return pandas.DataFrame({
        f"P{i}": ((rows * 7919 + i * 104729) % 200_000 / 100.0).astype(numpy.float32).astype(float)
        for i in range(PARAMETERS)})


def without_times(text):
    return [line.split(",", 1)[1] for line in text.splitlines()]


def main():
    writer = Path(sys.argv[1]) / "write_csv_once"
    table = make_table()
    report = Report()
    with tempfile.TemporaryDirectory(prefix="velix-bench-") as folder:
        path = Path(folder) / "ours.csv"
        peer_path = Path(folder) / "peer.csv"

        def write_ours():
            # The second round: the peer's process is warm too.
            return run_json(writer, path, 2)["seconds"][1]

        def write_peer():
            start = time.perf_counter()
            table.to_csv(peer_path, index=False, float_format="%.2f")
            return time.perf_counter() - start

        write_ours()
        write_peer()
        if without_times(path.read_text()) != peer_path.read_text().splitlines():
            sys.exit("the tables of the two programs differ")
        ours, pandas_ = alternate(ROUNDS, write_ours, write_peer)
        report.ratio(f"CSV of {PARAMETERS} x {ROWS:,} values, times as fast as pandas", ours, pandas_,
                     FASTER)
    return report.status()


if __name__ == "__main__":
    sys.exit(main())

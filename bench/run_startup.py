#!/usr/bin/python3
"""From the start of the program to its painted window, with an empty card open. Needs a display.

run_startup.py BIN_FOLDER
"""

import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from peers import Report, milliseconds

ROUNDS = 7
TARGET_SECONDS = 1.0
PROFILE = Path(__file__).parent.parent / "resources" / "demo" / "Profile.xml"


def prepare_home(home):
    """The demo profile installed, and a card without record files as the one opened last."""
    data = home / "VELIX" / "data"
    card = home / "card"
    data.mkdir(parents=True)
    card.mkdir()
    shutil.copy(PROFILE, data / "Profile.xml")
    (data / "VELIX.ini").write_text(
        f'<VELIX><Property id="LastPath" value="{card}"/></VELIX>', encoding="utf-8")


def seconds_to_paint(program, home):
    begin = time.clock_gettime(time.CLOCK_MONOTONIC)
    result = subprocess.run([program], env={**os.environ, "HOME": str(home)},
                            stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, check=False)
    if result.returncode != 0:
        sys.exit(f"{program} failed: {result.stderr.decode(errors='replace')}")
    return float(result.stderr.decode().split()[-1]) - begin


def main():
    program = Path(sys.argv[1]) / "start_once"
    report = Report()
    with tempfile.TemporaryDirectory(prefix="velix-bench-") as folder:
        prepare_home(Path(folder))
        seconds_to_paint(program, folder)  # warms the page cache
        taken = [seconds_to_paint(program, folder) for _ in range(ROUNDS)]
    print(f"  {milliseconds(taken)}")
    report.under("start to a painted window, s", statistics.median(taken), TARGET_SECONDS)
    return report.status()


if __name__ == "__main__":
    sys.exit(main())

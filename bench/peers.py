"""Shared by the drivers: running programs, medians, and one line per figure with its target."""

import json
import statistics
import subprocess
import sys


def run_json(*command):
    """The JSON object that a program prints; the driver ends if the program fails."""
    result = subprocess.run([str(part) for part in command], stdout=subprocess.PIPE,
                            stderr=subprocess.PIPE, check=False)
    if result.returncode != 0:
        sys.stderr.write(result.stderr.decode(errors="replace"))
        sys.exit(f"{command[0]} failed with status {result.returncode}")
    return json.loads(result.stdout)


def alternate(rounds, *measures):
    """Calls the measures in turn, after one round to warm up; returns a list of seconds for each."""
    seconds = [[] for _ in measures]
    for turn in range(rounds + 1):
        for measure, kept in zip(measures, seconds):
            taken = measure()
            if turn > 0:
                kept.append(taken)
    return seconds


def milliseconds(seconds):
    """Median and best of some seconds, as text."""
    return f"median {statistics.median(seconds) * 1e3:.0f} ms, best {min(seconds) * 1e3:.0f} ms"


class Report:
    """Prints figures and remembers whether one misses its target."""

    def __init__(self):
        self.missed = False

    def at_least(self, name, value, target):
        self._line(name, value, f"at least {target:g}", value >= target)

    def under(self, name, value, target):
        self._line(name, value, f"under {target:g}", value < target)

    def ratio(self, name, ours, peer, target):
        """How many times faster ours is: the ratio of the medians counts."""
        print(f"  ours: {milliseconds(ours)}; peer: {milliseconds(peer)}")
        self.at_least(name, statistics.median(peer) / statistics.median(ours), target)
        print(f"  of the best rounds: {min(peer) / min(ours):.2f}")

    def _line(self, name, value, target, holds):
        self.missed = self.missed or not holds
        print(f"{name}: {value:.2f} (target: {target}) {'OK' if holds else 'MISSED'}")

    def status(self):
        return 1 if self.missed else 0

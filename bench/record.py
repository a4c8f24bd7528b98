"""The guard against more work: what an operation costs, against what was recorded.

Instructions are counted, not timed, and taken relative to those of loading the same document in the
same run, so that the ratios are the same on every machine with the same compiler and libraries.
"""

import pathlib

from programs import PLAIN_PROCESSOR

RECORD = pathlib.Path(__file__).with_name("recorded_ratios.txt")
TOLERANCE = 1.03
SIZE = 2_000_000

HEADER = """\
# What reading, copying and merging packages of 2 MB costs; written by scripts/bench --record.
# Instructions relative to those of loading the document, allocations per rec.
"""


def current(programs):
    files = programs.overlapping(SIZE)
    programs.verify(files[0])
    allocations = programs.allocations(files)

    def instructions(operation, packages):
        return programs.instructions(operation, packages, tunables=PLAIN_PROCESSOR)

    load = instructions("load", files[:1])
    ratios = {}
    for operation, packages in (("parse", files[:1]), ("copy", files[:1]), ("merge", files)):
        ratios[f"{operation} instructions"] = instructions(operation, packages) / load
        ratios[f"{operation} allocations"] = allocations[operation]["allocations"]
    return ratios


def recorded():
    lines = [line for line in RECORD.read_text().splitlines() if not line.startswith("#")]
    return {name: float(value) for name, value in (line.rsplit(maxsplit=1) for line in lines)}


def record(programs):
    lines = [f"{name:20} {value:.4f}\n" for name, value in current(programs).items()]
    RECORD.write_text(HEADER + "".join(lines))
    print(RECORD.read_text(), end="")


def check(programs):
    """Prints the ratios. Returns whether none of them has grown by more than the tolerance."""
    limits = recorded()
    good = True
    ratios = current(programs)
    if ratios.keys() != limits.keys():
        raise SystemExit(f"{RECORD} does not list {', '.join(ratios)}")
    for name, value in ratios.items():
        change = value / limits[name]
        verdict = "more than 3 % above the record" if change > TOLERANCE else ""
        if change < 1 / TOLERANCE:
            verdict = "below the record: scripts/bench --record keeps it there"
        good = good and change <= TOLERANCE
        print(f"{name:20} {value:8.4f}  recorded {limits[name]:8.4f}  {verdict}".rstrip())
    return good

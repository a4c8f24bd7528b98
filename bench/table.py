"""Prints one table of what the library costs, relative to loading the document alone.

Called by scripts/bench with the folder of the programs. Times are of the processor, and
medians of rounds in which each operation is measured once, one after the other, so that what slows
the machine down slows all of them down.
"""

import os
import pathlib
import platform
import statistics
import sys
import tempfile

import programs as measuring
import record

KB = 1000
MB = 1000 * KB
SMALL = 43 * KB
LARGE = 20 * MB
ROUNDS = 16

LABELS = {
    "load": "`load_file`",
    "parse": "`parseFile`",
    "parse+copy": "`parseFile` + `getGrowers`",
    "hand": "pugixml, written by hand",
    "libxml2": "libxml2 SAX2",
    "expat": "expat",
    "tinyxml2": "tinyxml2",
}


def processor():
    for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.partition(":")[2].strip()
    return platform.machine()


def rounds(measurements, count=ROUNDS):
    """Takes each measurement once per round, given its number. Returns the results of each."""
    results = {name: [] for name in measurements}
    for number in range(count):
        for name, measure in measurements.items():
            results[name].append(measure(number))
        print(f"\r  round {number + 1} of {count} ", end="", file=sys.stderr, flush=True)
    print(file=sys.stderr)
    return results


def median(results, key="seconds"):
    return statistics.median(result[key] for result in results)


def row(label, value, limit=None):
    if limit is None:
        return f"| {label} | {value:.2f} | | |"
    return f"| {label} | {value:.2f} | {limit:.2f} | {'holds' if value <= limit else '**missed**'} |"


def reading(programs, paths, operations, limits):
    """Rows of the time of reading onto records or structs, relative to loading. Of several packages
    each round takes another one."""
    large = len(paths) == 1
    repetitions = 1 if large else 1000
    for path in paths:
        programs.verify(path, measuring.PEERS)

    def timed(operation, program):
        return lambda number: programs.time(
            operation, [paths[number % len(paths)]], repetitions, program=program)

    measurements = {operation: timed(operation, "measure") for operation in operations}
    measurements.update({peer: timed(peer, measuring.PEERS) for peer in programs.peers()})
    times = rounds(measurements)
    load = median(times["load"])
    title = f"{LARGE // MB} MB, fresh process" if large else f"{SMALL // KB} kB, repeated"
    for operation in measurements:
        if operation != "load":
            yield row(f"{LABELS[operation]}, {title}, x load", median(times[operation]) / load,
                      limits.get(operation))
    if large:
        bytes_read = paths[0].stat().st_size
        for operation, limit in (("parse", 3.2), ("load", None)):
            yield row(f"peak memory of the process, {LABELS[operation]}, 20 MB, x file size",
                      median(times[operation], "peak") / bytes_read, limit)
        yield row("the same of `parseFile` without what the process had before",
                  median(times["parse"], "added") / bytes_read)


def small_packages(programs):
    """Several, because the ratios of single packages lie up to 4 % apart."""
    return [programs.package(SMALL, seed=seed) for seed in range(1, 9)]


def growth(programs):
    """Rows of the time per MB of a large package against that of a small one."""
    small, large = programs.package(1 * MB), programs.package(200 * MB)
    times = rounds({
        "small": lambda _: programs.time("parse", [small]),
        "large": lambda _: programs.time("parse", [large]),
        "load small": lambda _: programs.time("load", [small]),
        "load large": lambda _: programs.time("load", [large]),
    }, count=7)
    sizes = large.stat().st_size / small.stat().st_size
    yield row("time of `parseFile` per MB at 200 MB against 1 MB, fresh processes",
              median(times["large"]) / median(times["small"]) / sizes, 1.1)
    yield row("the same of `load_file` alone",
              median(times["load large"]) / median(times["load small"]) / sizes)


def merging(programs):
    files = programs.overlapping(LARGE)
    times = rounds({operation: lambda _, operation=operation: programs.time(operation, files)
                    for operation in ("copy", "merge")})
    yield row("merging two 20 MB trees that overlap by half, x a deep copy of both",
              median(times["merge"]) / median(times["copy"]), 1.5)


def instructions(programs):
    path = [programs.package(2 * MB)]
    load = programs.instructions("load", path)
    for operation, limit in (("parse", 1.48), ("hand", None)):
        yield row(f"instructions of {LABELS[operation]}, 2 MB, x load",
                  programs.instructions(operation, path) / load, limit)
    yield row("instructions of `load_file` per byte, 2 MB", load / path[0].stat().st_size)


def memory(programs):
    counts = programs.allocations(programs.overlapping(2 * MB))
    yield ("| Memory per rec of generated packages | allocations | bytes asked for | bytes kept |\n"
           "|---|---|---|---|")
    labels = {"load": "`load_file`", "parse": "`parseFile`, the document included",
              "copy": "a deep copy", "merge": "merging, the recs of both packages counted"}
    for operation, label in labels.items():
        of = counts[operation]
        yield f"| {label} | {of['allocations']:.2f} | {of['bytes']:.0f} | {of['living']:.0f} |"


def look_ups(programs):
    path = programs.package(1 * MB)
    results = rounds({"all": lambda _: programs.look_ups(path)}, count=5)["all"]
    yield "| Look-up in a field of 6 recs | ns |\n|---|---|"
    for name in results[0]:
        yield f"| `{name}` | {1e9 * statistics.median(each[name] for each in results):.0f} |"


def table(programs):
    print(f"{processor()}, {os.cpu_count()} cores; load average before {os.getloadavg()[0]:.1f}. "
          f"Processor time, medians of interleaved rounds.\n")
    print("| | ratio | limit | |\n|---|---|---|---|", flush=True)
    for lines in (
        reading(programs, [programs.package(LARGE)], ["load", "parse", "parse+copy", "hand"],
                {"parse": 1.4, "parse+copy": 1.5}),
        reading(programs, small_packages(programs), ["load", "parse", "hand"], {"parse": 1.36}),
        instructions(programs),
        growth(programs),
        merging(programs),
        [""], memory(programs), [""], look_ups(programs),
    ):
        for line in lines:
            print(line, flush=True)


def compare(programs, library):
    """Prints the times of this library and of the one in another folder."""
    if not (pathlib.Path(library) / "libqenxml.so.1").exists():
        raise SystemExit(f"There is no libqenxml.so.1 in {library}.")
    files = programs.overlapping(LARGE)
    cases = {
        "`parseFile`, 43 kB, repeated": ("parse", [programs.package(SMALL)], 1000),
        "`parseFile`, 20 MB": ("parse", files[:1], 1),
        "`parseFile` + `getGrowers`, 20 MB": ("parse+copy", files[:1], 1),
        "deep copy, two of 20 MB": ("copy", files, 1),
        "merging two of 20 MB": ("merge", files, 1),
    }
    measurements = {}
    for name, (operation, paths, repetitions) in cases.items():
        for folder in (None, library):
            measurements[name, folder] = lambda _, a=(operation, paths, repetitions, folder): (
                programs.time(*a))
    times = rounds(measurements)
    print(f"| | this, ms | {library}, ms | ratio |\n|---|---|---|---|")
    for name in cases:
        this, other = (1e3 * median(times[name, folder]) for folder in (None, library))
        print(f"| {name} | {this:.3f} | {other:.3f} | {this / other:.3f} |")
    this, other = (programs.instructions("parse", [programs.package(2 * MB)], folder) / 1e6
                   for folder in (None, library))
    print(f"| million instructions of `parseFile`, 2 MB | {this:.3f} | {other:.3f} "
          f"| {this / other:.3f} |")


def main(folder, action="", library=None):
    with tempfile.TemporaryDirectory(prefix="qenxml-bench-") as packages:
        programs = measuring.Programs(folder, packages)
        if action == "--compare":
            compare(programs, library)
        elif action == "--record":
            record.record(programs)
        elif action == "--check":
            return 0 if record.check(programs) else 1
        else:
            table(programs)
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))

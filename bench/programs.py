"""Runs the programs that measure, each measurement in a process of its own."""

import json
import os
import pathlib
import re
import subprocess

# Without the C library's functions for newer processors, so that every machine counts the same.
PLAIN_PROCESSOR = "glibc.cpu.hwcaps=-AVX2,-ERMS,-FSRM,-AVX_Fast_Unaligned_Load"

PEERS = "measure_peers"

PACKAGE = "00112233-4455-6677-8899-aabbccddeeff.xml"


class Programs:
    """The programs in a folder, and the packages that they measure."""

    def __init__(self, folder, packages):
        self.folder = pathlib.Path(folder)
        self.packages = pathlib.Path(packages)

    def _run(self, program, *arguments, library=None, before=(), tunables=None):
        environment = dict(os.environ)
        if library:
            environment["LD_LIBRARY_PATH"] = str(library)
        if tunables:
            environment["GLIBC_TUNABLES"] = tunables
        command = [*before, str(self.folder / program), *map(str, arguments)]
        result = subprocess.run(command, env=environment, text=True, capture_output=True)
        if result.returncode != 0:
            raise SystemExit(f"{' '.join(command)} failed:\n{result.stderr}")
        return result

    def package(self, size, first_field=0, seed=1):
        """The path of a generated package of a size in bytes."""
        path = self.packages / f"{size}-{first_field}-{seed}" / PACKAGE
        if not path.exists():
            path.parent.mkdir()
            self._run("measure", "generate", path, size, first_field, seed)
        return path

    def overlapping(self, size):
        """The paths of two packages that share half of their fields: 6 of the 12 of each farm."""
        return [self.package(size), self.package(size, first_field=6)]

    def verify(self, path, program="measure"):
        """Fails when a reader reads other values than the library."""
        self._run(program, "verify", path)

    def peers(self):
        """The readers of other XML libraries that were built."""
        return self._run(PEERS, "readers").stdout.split()[1:]

    def time(self, operation, files, repetitions=1, library=None, program="measure"):
        """The median time in seconds, and the peak memory of the process in bytes."""
        return json.loads(
            self._run(program, "time", operation, repetitions, *files, library=library).stdout)

    def look_ups(self, path):
        """Seconds per look-up, by name."""
        return json.loads(self._run("measure", "look-ups", path).stdout)

    def instructions(self, operation, files, library=None, tunables=None):
        """How many an operation executes, without the start of the process."""
        callgrind = ["valgrind", "--tool=callgrind", "--toggle-collect=measured_operation",
                     "--callgrind-out-file=/dev/null"]
        output = self._run("measure", "once", operation, *files, library=library,
                           tunables=tunables, before=callgrind).stderr
        count = int(re.search(r"Collected : (\d+)", output).group(1))
        if count == 0:
            raise SystemExit(f"callgrind has not counted the operation {operation}")
        return count

    def allocations(self, files):
        """Allocations and their bytes per rec, by operation."""
        return json.loads(self._run("allocations", *files).stdout)

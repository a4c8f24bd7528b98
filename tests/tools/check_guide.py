#!/usr/bin/env python3
"""Usage: check_guide.py COMMAND SOURCE_DIR

Runs the commands that docs/command.md shows: they print what it says, and leave the files that it says.
"""
import os
import pathlib
import shutil
import sys
import tempfile

import shown_commands

command, source = (pathlib.Path(word) for word in sys.argv[1:])
samples = source / "examples/packages"
page = source / "docs/command.md"
failures = []

with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryDirectory() as programs:
    (pathlib.Path(programs) / "qenxml").symlink_to(command.resolve())
    season = pathlib.Path(folder) / "season"
    season.mkdir()
    for path in samples.glob("*.xml"):
        shutil.copyfile(path, season / path.name)
    shutil.copytree(samples / "together/rec-differs", pathlib.Path(folder) / "stick")
    environment = {**os.environ, "PATH": f"{programs}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8"}
    for title in shown_commands.titles(page):
        failures += shown_commands.failures_of(
            shown_commands.run_section(page, title, folder, environment))
    for name in ("recs.xlsx", "recs.csv", "map.geojson", "map.geojsonl", "recs.jsonl"):
        if not (pathlib.Path(folder) / name).stat().st_size:
            failures.append(f"{name} is empty")

for failure in failures:
    print(failure)
sys.exit(1 if failures else 0)

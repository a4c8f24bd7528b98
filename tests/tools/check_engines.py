#!/usr/bin/env python3
"""Usage: check_engines.py [--modules FOLDER] [--section TITLE]... COMMAND SOURCE_DIR

Runs the commands of docs/many-packages.md, of all sections or of those that are named, first on the samples, for which
they have to print what the page says, then on a larger season with hostile texts and packages that
cannot be read. All sums and counts have to be those of what "export --format json" writes, which
are computed here. FOLDER holds the modules of Node.js, node_modules.

For PostgreSQL it starts a server of its own, in a private folder and without a network.
"""
import argparse
import collections
import contextlib
import csv
import io
import json
import math
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import uuid

import shown_commands

parser = argparse.ArgumentParser()
parser.add_argument("--modules", type=pathlib.Path)
parser.add_argument("--section", action="append")
parser.add_argument("command", type=pathlib.Path)
parser.add_argument("source", type=pathlib.Path)
given = parser.parse_args()
page = given.source / "docs/many-packages.md"
samples = given.source / "examples/packages"
sections = given.section or shown_commands.titles(page)
failures = []
# What the tables call the kinds of product data.
kinds = {"planting": "planting", "commercialFertilizer": "fertilizer", "customFertilizer": "blend"}


def expect(condition, what):
    if not condition:
        failures.append(what)


def hostile(text, number):
    """A package like a sample, with identifiers of its own and texts that mean something to shells,
    databases and CSV."""
    namespace = uuid.UUID(int=number)
    for identifier in set(re.findall(r'(?:GrowerID|FarmID|FieldID|RecID)="([-0-9a-f]{36})"', text)):
        text = text.replace(identifier, str(uuid.uuid5(namespace, identifier)))
    name = ["O'Brien \"&amp;\" Söhne", "a\\nb \\. \\N", "$(touch x); `x` %s", "{&quot;a&quot;:1},;|",
            "NULL", "&#9;tab", "\U0001F33D 38,6"][number % 7]
    return text.replace("<FieldName>", f"<FieldName>{name} ")


def make_large(folder):
    """More packages than one part takes; three of them cannot be read."""
    texts = [path.read_text(encoding="utf-8") for path in sorted(samples.glob("*.xml"))]
    for number in range(1200):
        part = folder / f"part '{number % 5}'"
        part.mkdir(parents=True, exist_ok=True)
        path = part / f"{uuid.uuid5(uuid.NAMESPACE_URL, str(number))}.xml"
        if number % 100 == 3:  # a link to a package elsewhere
            path.symlink_to(folder.parent / f"elsewhere-{path.name}")
        text = hostile(texts[number % len(texts)], number)
        path.write_text(text[:300] if number % 500 == 7 else text, encoding="utf-8")
    (folder / ".hidden").mkdir()
    (folder / ".hidden" / f"{uuid.UUID(int=1)}.xml").write_text(texts[0], encoding="utf-8")
    (folder / "linked.xml").symlink_to(folder / "part '0'", target_is_directory=True)


class Expected:
    """Sums and places, computed of what the command exports as one document."""

    def __init__(self, folder, environment):
        document = json.loads(subprocess.run(["qenxml", "export", "--format", "json", "season"],
                                             cwd=folder, env=environment, stdout=subprocess.PIPE,
                                             stderr=subprocess.DEVNULL, check=False).stdout)
        self.recs = 0
        self.totals = collections.defaultdict(list)
        self.areas = collections.defaultdict(list)
        self.near = set()
        for package in document["packages"]:
            for grower in package["growers"]:
                for farm in grower["farms"]:
                    for field in farm["fields"]:
                        self.add(farm, field)

    def add(self, farm, field):
        for rec in field["recs"]:
            self.recs += 1
            product = rec["recData"]
            kind = "" if product is None else kinds[product["kind"]]
            if rec["total"] is not None:
                self.totals[kind, rec["totalUom"]].append(rec["total"])
            if rec["area"] is not None:
                self.areas[rec["areaUom"]].append(rec["area"])
        for boundary in field["geometries"]:
            place = boundary["centroid"]["latitude"], boundary["centroid"]["longitude"]
            if None not in place and distance(place, (44.7, -95)) < 5000:
                self.near.add((farm["name"], field["name"]))


def distance(a, b):
    """In metres, on a sphere."""
    latitudes = math.radians(a[0]), math.radians(b[0])
    half = (math.sin((latitudes[1] - latitudes[0]) / 2) ** 2 + math.cos(latitudes[0]) *
            math.cos(latitudes[1]) * math.sin(math.radians(b[1] - a[1]) / 2) ** 2)
    return 2 * 6371009 * math.asin(math.sqrt(half))


def tables(text):
    """The tables of an output of CSV, by their titles."""
    found = {}
    rows = None
    for row in csv.reader(io.StringIO(text)):
        if row[0] in ("product_kind", "area_unit", "farm"):
            rows = found.setdefault(row[0], [])
        else:
            rows.append(row)
    return found


def check_sums(text, expected, what):
    found = tables(text)
    for title, sums in (("product_kind", expected.totals), ("area_unit", expected.areas)):
        wanted = {key if isinstance(key, tuple) else (key,): values for key, values in sums.items()}
        rows = {tuple(row[:-2]): row[-2:] for row in found.get(title, [])}
        expect(set(rows) == set(wanted), f"{what}: {sorted(rows)} instead of {sorted(wanted)}")
        for key, (count, total) in rows.items():
            values = wanted.get(key, [])
            expect(int(count) == len(values), f"{what}: {count} recs of {key}, not {len(values)}")
            expect(abs(float(total) - math.fsum(values)) <= 0.00051 + 1e-12 * abs(float(total)),
                   f"{what}: {total} of {key}, not {math.fsum(values)}")


@contextlib.contextmanager
def server(environment):
    """A private PostgreSQL server, whose clients find it by the environment. It never runs as root."""
    programs = sorted(pathlib.Path("/usr/lib/postgresql").glob("*/bin"))[-1]
    folder = pathlib.Path(tempfile.mkdtemp(prefix="qenxml-pg-"))  # a socket has a short path
    user = []
    if os.geteuid() == 0:
        shutil.chown(folder, "postgres", "postgres")
        user = ["setpriv", "--reuid=postgres", "--regid=postgres", "--clear-groups"]

    def call(program, *words):
        result = subprocess.run([*user, programs / program, *words], cwd=folder,
                                env={"PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8"},
                                stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
        if result.returncode != 0:
            raise RuntimeError(f"{program}: {result.stderr}")

    data = folder / "data"
    try:
        call("initdb", "-D", data, "-U", "tester", "-A", "trust", "-E", "UTF8", "--no-sync")
        call("pg_ctl", "-D", data, "-w", "-l", folder / "log", "-o",
             f"-c listen_addresses= -c unix_socket_directories={folder} -c fsync=off", "start")
        try:
            environment.update(PGHOST=str(folder), PGUSER="tester", PGPORT="5432")
            yield
        finally:
            call("pg_ctl", "-D", data, "-w", "-m", "immediate", "stop")
    finally:
        shutil.rmtree(folder)


def check_find(command, folder):
    """What find finds in a folder, it finds from within it too."""
    find = command.split("|")[0]
    found = [sorted(subprocess.run(["bash", "-c", text], cwd=within, stdout=subprocess.PIPE, text=True,
                                   check=True).stdout.split("\0"))
             for text, within in ((find, folder), (find.replace("season", ".", 1), folder / "season"))]
    expect(found[1] == [name.replace("season", ".", 1) for name in found[0]], f"{find} within season")


def check_parallel(commands, folder, expected, large):
    by_text = {command.text.strip().split()[0]: command for command in commands}
    expect(by_text["echo"].printed == ("123\n" if large else "0\n"), "the exit code of xargs")
    if "wc" in by_text:
        expect(int(by_text["wc"].printed) == expected.recs, "lines of all parts")
    asked = next(command for command in commands if command.text.startswith("find"))
    if large and "wc" in by_text:
        expect(asked.errors.count("; the file is skipped\n") == 3, f"files are not named: {asked.errors}")
    check_find(asked.text, folder)


def check_codes(commands, folder, environment):
    """What is counted of all parts is what one command finds."""
    report = subprocess.run(["qenxml", "check", "--format", "json", "season"], cwd=folder,
                            env=environment, stdout=subprocess.PIPE, check=False).stdout
    files = json.loads(report)["files"]
    wanted = collections.Counter(finding["code"] for file in files for finding in file["findings"])
    found = {code: int(count) for count, code in
             (line.split() for line in commands[3].printed.splitlines())}
    expect(found == dict(wanted), f"{found} instead of {dict(wanted)}")
    expect(sorted(commands[-1].printed.split("\n")[:-1]) ==
           sorted(file["file"] for file in files if file["errors"] > 0), "files with errors")


def check_section(title, folder, environment, expected, large):
    with server(environment) if title == "PostgreSQL" else contextlib.nullcontext():
        commands = shown_commands.run_section(page, title, folder, environment)
    if large:  # export ends with 1, as packages cannot be read
        failures.extend(f"$ {command.text}{command.status}: {command.errors}" for command in commands
                        if command.status not in ((0, 1, 123) if "qenxml" in command.text else (0,)))
    else:
        failures.extend(shown_commands.failures_of(commands))
    for command in commands:
        if "sums.sql" in command.text or "parquet.mjs" in command.text:
            check_sums(command.printed, expected, f"{title}, {command.text.strip()}")
        if "near.sql" in command.text:
            rows = {tuple(row) for row in tables(command.printed)["farm"]}
            expect(rows == expected.near, f"{rows} instead of {expected.near}")
    if title.startswith("All cores"):
        check_parallel(commands, folder, expected, large)
    if title == "All cores for checking":
        check_codes(commands, folder, environment)


def check_page(folder, large):
    season = folder / "season"
    if large:
        make_large(season)
    else:
        season.mkdir()
        for path in samples.glob("*.xml"):
            shutil.copy(path, season)
    programs = folder / "programs"
    programs.mkdir()
    (programs / "qenxml").symlink_to(given.command.resolve())
    environment = {name: value for name, value in os.environ.items() if not name.startswith("PG")}
    environment.update(PATH=f"{programs}:{os.environ['PATH']}", LC_ALL="C.UTF-8",
                       TMPDIR=str(folder), HOME=str(folder))
    if given.modules:
        (folder / "node_modules").symlink_to(given.modules.resolve() / "node_modules")
    expected = Expected(folder, environment)
    expect(expected.recs > (1000 if large else 10), "packages are missing")
    for title in sections:
        check_section(title, folder, environment, expected, large)
    return expected.recs


for is_large in (False, True):
    with tempfile.TemporaryDirectory() as name:
        recs = check_page(pathlib.Path(name), is_large)
        print(f"{', '.join(sections)}: {recs} recs, {len(failures)} failures")

for failure in failures[:20]:
    print(failure)
sys.exit(1 if failures else 0)

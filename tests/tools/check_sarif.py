"""Usage: check_sarif.py QENXML VALIDATOR SOURCES FOLDER

Has the validator of SARIF, and the schema that comes with it, read what `qenxml check --format sarif`
writes of all samples, good and broken, of files with odd names, and of none. VALIDATOR is the folder
of the npm package @microsoft/sarif-multitool-linux, FOLDER is for files that are written.
"""

import json
import os
import shutil
import subprocess
import sys
from pathlib import Path

import jsonschema

# The command has no page of its own on the web.
ACCEPTED = {"SARIF2005"}

qenxml, validator, sources, folder = (Path(argument).resolve() for argument in sys.argv[1:])
packages = sources / "examples/packages"


def odd_names():
    """Copies of a broken package whose names are hard to write as a URI."""
    sample = next((packages / "broken/control-character").glob("*.xml"))
    for name in (b"a b%20#?.xml", b"c:d.xml", b"\xff\xe9.xml", "š\n\"'.xml".encode()):
        path = os.fsencode(folder) + b"/" + name
        shutil.copy(sample, path)
        yield path


def log_of(name, files, within):
    log = folder / f"{name}.sarif"
    with log.open("wb") as output:
        result = subprocess.run([qenxml, "check", "--format", "sarif", *files], cwd=within,
                                stdout=output, check=False)
    assert result.returncode in (0, 1), result
    return log


def complaints_about(log, schema):
    jsonschema.Draft7Validator(schema).validate(json.loads(log.read_text("utf-8")))
    report = log.with_suffix(".report")
    subprocess.run([validator / "Sarif.Multitool", "validate", log, "--output", report, "--log",
                    "ForceOverwrite"], check=True, stdout=subprocess.DEVNULL)
    results = json.loads(report.read_text("utf-8-sig"))["runs"][0]["results"]
    return [result for result in results if result["ruleId"] not in ACCEPTED]


def main():
    folder.mkdir(parents=True, exist_ok=True)
    schema = json.loads((validator / "sarif-2.1.0.json").read_text("utf-8-sig"))
    broken = sorted(path.relative_to(packages) for path in packages.glob("broken/*/*.xml"))
    good = sorted(packages.glob("*.xml"))
    logs = [log_of("broken", [*broken, "missing.xml"], packages),
            log_of("good", good, packages),
            log_of("names", list(odd_names()), folder)]
    for log in logs:
        found = complaints_about(log, schema)
        assert not found, json.dumps(found, indent=2)
        results = len(json.loads(log.read_text("utf-8"))["runs"][0]["results"])
        print(f"{log.name}: {results} results, nothing to complain about")


main()

"""Validates what `qenxml check --json` writes against docs/findings.schema.json.

Usage: validate_findings.py COMMAND SOURCE_FOLDER
"""

import copy
import json
import pathlib
import subprocess
import sys

import jsonschema

command, source = sys.argv[1], pathlib.Path(sys.argv[2])
schema = json.loads((source / "docs/findings.schema.json").read_text(encoding="utf-8"))
validator_class = jsonschema.Draft202012Validator
validator_class.check_schema(schema)
validator = validator_class(schema)


def check(*arguments, code):
    result = subprocess.run(
        [command, "check", "--json", *arguments],
        cwd=source / "examples/packages", capture_output=True, check=False)
    assert result.returncode == code, (arguments, result)
    document = json.loads(result.stdout.decode("utf-8"))
    validator.validate(document)
    return document


samples = check("missing\x1b\n.xml", ".", code=1)
none = check("3ce1268c-9c80-42e3-bfec-3fee8ed2305d.xml", code=0)
assert none["files"][0]["findings"] == [], none
assert len(samples["files"]) > 40, "the samples are there"
for count, severity in (("errors", "error"), ("warnings", "warning"), ("notes", "note")):
    counts = [sum(finding["severity"] == severity for finding in file["findings"])
              for file in samples["files"]]
    assert counts == [file[count] for file in samples["files"]], count
    assert sum(counts) == samples[count] > 0, count

# The schema refuses what is wrong, so that the validation above means something.
finding = samples["files"][0]["findings"][0]
for change in ({"code": "Wrong"}, {"severity": "fatal"}, {"line": 3}, {"found": "a\x1b"},
               {"other": ""}):
    wrong = copy.deepcopy(samples)
    wrong["files"][0]["findings"][0] = {**finding, **change}
    assert not validator.is_valid(wrong), change

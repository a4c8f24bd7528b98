"""Validates what `qenxml check --json` writes against docs/findings.schema.json.

Usage: validate_findings.py COMMAND SOURCE_FOLDER
"""

import collections
import copy
import json
import pathlib
import subprocess
import sys
import tempfile

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


# None of the samples has an error behind another.
errors = tempfile.NamedTemporaryFile(suffix="00112233-4455-6677-8899-aabbccddeeff.xml")
errors.write(b"<RecPackage><Grower/>\n<Grower/></RecPackage>")
errors.flush()
samples = check("missing\x1b\n.xml", ".", errors.name, code=1)
none = check("3ce1268c-9c80-42e3-bfec-3fee8ed2305d.xml", code=0)
assert none["files"][0]["findings"] == [], none
assert len(samples["files"]) > 40, "the samples are there"
for count, severity in (("errors", "error"), ("warnings", "warning"), ("notes", "note")):
    counts = [sum(finding["severity"] == severity for finding in file["findings"])
              for file in samples["files"]]
    assert counts == [file[count] for file in samples["files"]], count
    assert sum(counts) == samples[count] > 0, count
assert samples["unreadable"] == sum(file["errors"] > 0 for file in samples["files"])
in_files = [collections.Counter(finding["code"] for finding in file["findings"])
            for file in samples["files"]]
assert {code["code"]: (code["findings"], code["files"]) for code in samples["codes"]} == {
    code: (sum(counts[code] for counts in in_files), sum(code in counts for counts in in_files))
    for code in set().union(*in_files)}
severities = [code["severity"] for code in samples["codes"]]
assert severities == sorted(severities, key=["error", "warning", "note"].index), severities

# Lines and offsets agree, and there are consequences of all kinds.
kinds = set()
for file in samples["files"]:
    kinds |= {finding["consequence"]["kind"] for finding in file["findings"]}
    if not any("line" in finding for finding in file["findings"]):
        continue  # The file may not be there.
    content = (source / "examples/packages" / file["file"]).read_bytes()
    for finding in file["findings"]:
        if "line" in finding:
            excerpt = finding["excerpt"]
            assert excerpt["caret"] <= len(excerpt["text"]), finding
            begin, end = finding["offset"], finding["offset"] + finding["length"]
            assert end <= len(content), finding
            assert finding["line"] == content[:begin].count(b"\n") + 1, finding
            assert finding["endLine"] == content[:end].count(b"\n") + 1, finding
together = check("--together", "together", code=0)
kinds |= {finding["consequence"]["kind"] for file in together["files"]
          for finding in file["findings"]}
known = {kind["properties"]["kind"]["const"] for kind in schema["$defs"]["consequence"]["oneOf"]}
assert known - kinds == {"check-ends"}, (known, kinds)  # Memory does not run out here.

explained_schema = json.loads(
    (source / "docs/explanations.schema.json").read_text(encoding="utf-8"))
validator_class.check_schema(explained_schema)
explained = json.loads(subprocess.run(
    [command, "explain", "--json", "--all"], capture_output=True, check=True).stdout)
validator_class(explained_schema).validate(explained)
codes = subprocess.run([command, "check", "--codes"], capture_output=True, check=True, text=True)
assert [finding["code"] for finding in explained["findings"]] == codes.stdout.split()

# The schema refuses what is wrong, so that the validation above means something.
finding = samples["files"][0]["findings"][0]
for change in ({"code": "Wrong"}, {"severity": "fatal"}, {"line": 3}, {"found": "a\x1b"},
               {"other": ""}, {"records": "farm"}, {"records": [{"kind": "barn", "name": ""}]},
               {"consequence": "it is kept"}, {"consequence": {"kind": "read-as", "text": ""}},
               {"consequence": {"kind": "kept", "text": "", "line": 1}}):
    wrong = copy.deepcopy(samples)
    wrong["files"][0]["findings"][0] = {**finding, **change}
    assert not validator.is_valid(wrong), change

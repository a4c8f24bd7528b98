#!/usr/bin/env python3
"""Usage: check_outputs.py COMMAND SOURCE_DIR

Writes every sample package in every format and reads that with programs that know the formats:
JSON against its schema, CSV and GeoJSON by the rules of RFC 4180 and RFC 7946, the report with an
HTML validator.
"""
import csv
import io
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import unicodedata

import jsonschema

command, source = sys.argv[1], pathlib.Path(sys.argv[2])
samples = source / "examples/packages"
failures = []


def expect(condition, what):
    if not condition:
        failures.append(what)


def run(*arguments, codes=(0, 1)):
    result = subprocess.run([command, *arguments], capture_output=True, cwd=samples)
    expect(result.returncode in codes, f"{arguments}: exit code {result.returncode}")
    return result.stdout


def without_twins(pairs):
    keys = [key for key, _ in pairs]
    expect(len(keys) == len(set(keys)), f"a member twice among {keys}")
    return dict(pairs)


def load(text):
    def refuse(constant):
        failures.append(f"{constant} is no JSON")

    return json.loads(text.decode("utf-8"), object_pairs_hook=without_twins, parse_constant=refuse)


def validator_of(name):
    schema = json.loads((source / "docs" / name).read_text())
    jsonschema.Draft202012Validator.check_schema(schema)
    return jsonschema.Draft202012Validator(schema)


validator = validator_of("export.schema.json")
row_validator = validator_of("recs.schema.json")
# A feature of a field without recs has no rec.
field_schema = json.loads(json.dumps(row_validator.schema))
for title in ("rec_id", "package"):
    field_schema["properties"][title] = {"$ref": "#/$defs/optionalUuid"}
field_validator = jsonschema.Draft202012Validator(field_schema)


def recs_of(document):
    packages = document["packages"] if "growers" not in document else [document]
    return [
        rec
        for package in packages
        for grower in package["growers"]
        for farm in grower["farms"]
        for field in farm["fields"]
        for rec in field["recs"]
    ]


def check_json(files, *options):
    document = load(run("export", "--format", "json", *options, *files))
    for error in validator.iter_errors(document):
        failures.append(f"{files}: {error.json_path}: {error.message}")
    return recs_of(document)


def check_harmless(cell):
    """No program that skips what is blank, or splits lines elsewhere, finds a formula."""
    if re.fullmatch(r"-?[0-9.]+(e[+-][0-9]+)?", cell):
        return
    for part in re.split(r"[;\t\r\n]", cell):
        visible = "".join(c for c in part if unicodedata.category(c) not in ("Cf", "Zs"))
        expect(visible.lstrip('"')[:1] not in tuple("=+-@"), f"a formula: {cell!r}")


def check_diff(files):
    """Each of the files or folders beside each other one."""
    differences = validator_of("diff.schema.json")
    for first in files:
        for second in files:
            document = load(run("diff", "--json", first, second, codes=(0, 1, 2)))
            for error in differences.iter_errors(document):
                failures.append(f"diff {first} {second}: {error.json_path}: {error.message}")
            expect((first == second) == (document["differences"] == []), f"diff {first} {second}")


# Numbers that a package need not give: an empty cell in CSV, null in JSON.
numbers = {
    "season_id": "seasonId", "minimum_rate": "minimumRate", "average_rate": "averageRate",
    "maximum_rate": "maximumRate", "rate_unit_id": "rateUomId", "total": "total",
    "total_unit_id": "totalUomId", "area": "area", "area_unit_id": "areaUomId",
    "operation_id": "operationId", "zone_id": "mgmtZoneId",
}
ids = {"operation_id", "zone_id"}


def check_csv(files, recs, *options):
    text = run("export", "--format", "csv", *options, *files).decode("utf-8")
    expect(text.startswith("\ufeff"), f"{files}: no byte-order mark")
    expect(not re.search(r"(?<!\r)\n", re.sub(r'"(?:[^"]|"")*"', "", text)), f"{files}: bare LF")
    rows = list(csv.reader(io.StringIO(text[1:], newline=""), strict=True))
    expect(all(len(row) == len(rows[0]) for row in rows), f"{files}: rows of different length")
    expect(len(set(rows[0])) == len(rows[0]), f"{files}: two columns of one name")
    for row in rows[1:]:
        for cell in row:
            check_harmless(cell)
    index = rows[0].index("rec_id")
    expect([row[index] for row in rows[1:]] == [rec["id"] for rec in recs], f"{files}: rows")
    for row, rec in zip(rows[1:], recs):
        for title, name in numbers.items():
            expect((row[rows[0].index(title)] == "") == (rec[name] is None),
                   f"{files}: {title} is given in CSV or in JSON only")


def check_jsonl(files, recs, *options):
    lines = run("export", "--format", "jsonl", *options, *files).decode("utf-8").split("\n")
    expect(lines.pop() == "", f"{files}: the last line does not end")
    rows = [load(line.encode()) for line in lines]
    for row in rows:
        for error in row_validator.iter_errors(row):
            failures.append(f"{files}: {error.json_path}: {error.message}")
    expect([row["rec_id"] for row in rows] == [rec["id"] for rec in recs], f"{files}: lines")
    for row, rec in zip(rows, recs):
        for title, name in numbers.items():
            expected = None if isinstance(rec[name], str) and title not in ids else rec[name]
            expect(row[title] == expected, f"{files}: {title} is {row[title]!r}, not {expected!r}")
    return rows


def check_geojson(files, rows, *options):
    document = load(run("export", "--format", "geojson", *options, *files))
    expect(set(document) == {"type", "features"}, f"{files}: members of the collection")
    expect(document["type"] == "FeatureCollection", f"{files}: type of the collection")
    found = []
    for feature in document["features"]:
        expect(set(feature) == {"type", "geometry", "properties"}, f"{files}: members of a feature")
        expect(feature["type"] == "Feature", f"{files}: type of a feature")
        properties = feature["properties"]
        for error in field_validator.iter_errors(properties):
            failures.append(f"{files}: {error.json_path}: {error.message}")
        taken = {"geometry", "geom", "the_geom", "wkb_geometry", "shape", "fid", "ogc_fid", "id"}
        expect(not taken & set(properties), f"{files}: a column that tables have themselves")
        if properties["rec_id"] is not None:
            found.append(properties)
        if feature["geometry"] is None:
            continue
        expect(feature["geometry"]["type"] == "Point", f"{files}: type of a geometry")
        longitude, latitude = feature["geometry"]["coordinates"]
        expect(-180 <= longitude <= 180 and -90 <= latitude <= 90, f"{files}: a point not on earth")
        expect((latitude, longitude) == (properties["latitude"], properties["longitude"]),
               f"{files}: longitude comes before latitude")
    expect(found == rows, f"{files}: recs")
    texts = run("export", "--format", "geojsonl", *options, *files).decode("utf-8")
    expect(all(text.endswith("\n") for text in texts.split("\x1e")[1:]), f"{files}: a text is cut")
    sequence = [load(text.encode()) for text in texts.split("\x1e")[1:]]
    expect(sequence == document["features"], f"{files}: the sequence has other features")


def check_report(files):
    page = run("report", *files)
    tidy = subprocess.run(["tidy", "-errors", "-quiet", "-utf8"], input=page, capture_output=True)
    expect(tidy.returncode == 0, f"{files}: {tidy.stderr.decode()}")
    text = page.decode("utf-8")
    expect(not re.search(r"<script|<link|<img|@import|url\(|<[^>]*\son\w+=", text),
           f"{files}: the report needs something from elsewhere")
    ids = re.findall(r'\sid="([^"]*)"', text)
    expect(len(ids) == len(set(ids)), f"{files}: an id twice")
    for anchor in re.findall(r'href="#([^"]*)"', text):
        expect(anchor in ids, f"{files}: a link to {anchor}, which is nowhere")
    levels = [int(level) for level in re.findall(r"<h([1-6])", text)]
    expect(levels[0] == 1 and all(b <= a + 1 for a, b in zip(levels, levels[1:])),
           f"{files}: a level of headings is left out")
    expect(text.count("<svg") == len(re.findall(r'<svg[^>]*role="img" aria-label="[^"]', text)),
           f"{files}: a picture without a text alternative")


def check(*files):
    for options in ((), ("--merge",)):
        recs = check_json(files, *options)
        check_csv(files, recs, *options)
        check_geojson(files, check_jsonl(files, recs, *options), *options)
    check_report(files)


def rec(uuid, name, statistics=""):
    return (f'<Rec RecID="{uuid}"><RecName>{name}</RecName><RecGeometry>{uuid}</RecGeometry>'
            f"<RecStats>{statistics}</RecStats></Rec>")


def hostile_package(folder):
    """A package whose texts and numbers mean something in each of the formats."""
    uuid = "10000000-0000-4000-8000-00000000000{}"
    names = ["=1+1", " +1", "x;-1+1", "&#8203;@SUM(A1)", "&#9;=1", "a,&quot;b&quot;", "&#13;\n", "\xff\xfe",
             "&lt;script&gt;alert(1)&lt;/script&gt;", "' onload='x", "]]&gt;--&gt;", "\xe2\x80\xae"
             "abc", "&#27;[31m", "\xef\xbf\xbe", "&amp;amp;", "\\u0041"]
    recs = "".join(rec(uuid.format(0)[:-2] + f"{i:02x}", name,
                       "<MinimumRate>nan</MinimumRate><AverageRate>inf</AverageRate>"
                       "<MaximumRate>-inf</MaximumRate><Total>-1e308</Total><Area>1e-320</Area>")
                   for i, name in enumerate(names))
    fields = "".join(
        f'<Field FieldID="{uuid.format(i)}"><FieldName>{names[i]}</FieldName>'
        f"<FieldGeometryID>{uuid.format(i)}</FieldGeometryID>"
        f"<FieldGeometry>{uuid.format(i)}</FieldGeometry>"
        f"<FieldCentroid><Latitude>{lat}</Latitude><Longitude>{lon}</Longitude></FieldCentroid>"
        f"<Recommendations>{recs}</Recommendations></Field>"
        for i, (lat, lon) in enumerate(
            [(0, 0), (91, 0), (0, -180.5), ("nan", 1), ("inf", 1), (-90, 180), (90, -180), (0, 1)]))
    package = (f'<RecPackage><Grower GrowerID="{uuid.format(1)}"><GrowerName>{names[8]}'
               f'</GrowerName><Farm FarmID="{uuid.format(1)}"><FarmName>{names[7]}</FarmName>'
               f"{fields}</Farm></Grower></RecPackage>")
    path = pathlib.Path(folder) / (uuid.format(1) + ".xml")
    path.write_bytes(package.encode("latin-1"))
    return str(path)


packages = sorted(path.name for path in samples.glob("*.xml"))
broken = sorted(str(path.relative_to(samples)) for path in samples.glob("broken/*/*.xml"))
expect(len(packages) > 3 and len(broken) > 10, "samples are missing")
for package in packages:
    check(package)
check(*packages)
check(*broken)
check("missing.xml")
with tempfile.TemporaryDirectory() as folder:
    hostile = hostile_package(folder)
    check(hostile)
    check_diff([hostile, *packages, "broken"])

for failure in failures:
    print(failure)
sys.exit(1 if failures else 0)

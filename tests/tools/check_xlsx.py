#!/usr/bin/env python3
"""Usage: check_xlsx.py COMMAND SOURCE_DIR

Exports all sample packages, and one with hostile texts, as a workbook, has LibreOffice read it under
German and English settings, and compares what the cells hold with the lines of JSON of the same
packages: numbers that are numbers, dates that are dates, texts that are texts.
"""
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as tree
import zipfile

command, source = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2])
packages = source / "examples/packages"
office = "{urn:oasis:names:tc:opendocument:xmlns:office:1.0}"
table = "{urn:oasis:names:tc:opendocument:xmlns:table:1.0}"
text = "{urn:oasis:names:tc:opendocument:xmlns:text:1.0}"
failures = []


def expect(condition, what):
    if not condition:
        failures.append(what)


def run(*words, **options):
    result = subprocess.run([str(word) for word in words], capture_output=True, **options)
    expect(result.returncode in (0, 1), f"{words}: {result.returncode}: {result.stderr.decode()}")
    return result.stdout


def value(cell):
    """What LibreOffice takes the content of a cell for."""
    kind = cell.get(office + "value-type")
    if kind == "float":
        return float(cell.get(office + "value"))
    if kind == "date":
        return cell.get(office + "date-value")
    if kind is None:
        return None
    expect(kind == "string", f"a cell is {kind}")
    expect(cell.get(table + "formula") is None, "a cell is a formula")
    return "\n".join("".join(part.itertext()) for part in cell.findall(text + "p"))


def rows_of(sheet):
    rows = []
    for row in sheet.iter(table + "table-row"):
        cells = []
        for cell in row:
            count = int(cell.get(table + "number-columns-repeated", "1"))
            cells += [value(cell)] * (count if count < 1000 else 0)
        rows.append(cells)
    while rows and not any(cell is not None for cell in rows[-1]):
        rows.pop()
    return rows


def sheets_of(workbook, locale, folder):
    """The rows of each sheet as LibreOffice reads them under the settings of a country."""
    profile = folder / f"profile-{locale}"
    (profile / "user").mkdir(parents=True)
    (profile / "user/registrymodifications.xcu").write_text(
        '<oor:items xmlns:oor="http://openoffice.org/2001/registry">'
        '<item oor:path="/org.openoffice.Setup/L10N"><prop oor:name="ooSetupSystemLocale" '
        f'oor:op="fuse"><value>{locale}</value></prop></item></oor:items>')
    run("soffice", f"-env:UserInstallation=file://{profile}", "--headless", "--convert-to", "fods",
        "--outdir", profile, workbook, env={"PATH": "/usr/bin:/bin", "HOME": str(folder)})
    document = tree.parse(profile / (workbook.stem + ".fods"))
    shown = ["".join(cell.itertext()).strip() for cell in document.iter(table + "table-cell")
             if cell.get(office + "value") == "38.6"]
    decimal = "," if locale == "de-DE" else "."
    expect(shown and set(shown) == {f"38{decimal}6"}, f"{locale} shows {set(shown)}")
    return {sheet.get(table + "name"): rows_of(sheet) for sheet in document.iter(table + "table")}


def check_recs(rows, files):
    lines = run(command, "export", "--format", "jsonl", *files).decode().splitlines()
    recs = [json.loads(line) for line in lines]
    expect(len(recs) > 10, "samples are missing")
    expect(rows[0] == list(recs[0]), f"titles: {rows[0]}")
    expect(len(rows) == len(recs) + 1, f"{len(rows)} rows, {len(recs)} recs")
    for row, rec in zip(rows[1:], recs):
        row += [None] * (len(rec) - len(row))
        for cell, (name, wanted) in zip(row, rec.items()):
            if isinstance(wanted, str):
                wanted = re.sub(r"\s+", " ", wanted)
                cell = re.sub(r"\s+", " ", cell) if isinstance(cell, str) else cell
            same = cell == wanted
            if isinstance(wanted, float) and isinstance(cell, float):
                same = abs(cell - wanted) <= abs(wanted) * 1e-14
            expect(same, f"{name} of {rec['rec_id']} is {cell!r} instead of {wanted!r}")


def check_archive(workbook):
    with zipfile.ZipFile(workbook) as archive:
        expect(archive.testzip() is None, "the archive is damaged")
        for name in archive.namelist():
            if name.startswith("xl/worksheets/sheet"):
                sheet = archive.read(name).decode()
                expect("<f>" not in sheet, f"{name} has a formula")
                expect('state="frozen"' in sheet, f"{name}: the titles do not stay")
                expect("<autoFilter" in sheet, f"{name}: no filters")


uuid = "10000000-0000-4000-8000-00000000000{}"
hostile = ["=1+1", "+1", "-1", "@SUM(A1)", "2026-01-01", "1,5", "1.5", "_x0041_", "&lt;a&gt;", "{=1}"]
with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    path = folder / (uuid.format(1) + ".xml")
    recs = "".join(f'<Rec RecID="{uuid.format(i)}"><RecName>{text_}</RecName>'
                   f"<RecGeometry>{uuid.format(1)}</RecGeometry></Rec>"
                   for i, text_ in enumerate(hostile))
    path.write_text(f'<RecPackage><Grower GrowerID="{uuid.format(1)}"><Farm FarmID="{uuid.format(1)}">'
                    f'<Field FieldID="{uuid.format(1)}"><FieldGeometryID>{uuid.format(1)}'
                    f"</FieldGeometryID><FieldGeometry>{uuid.format(1)}</FieldGeometry>"
                    f"<Recommendations>{recs}</Recommendations></Field></Farm></Grower></RecPackage>")
    workbook = folder / "recs.xlsx"
    files = [*sorted(packages.glob("*.xml")), path]
    run(command, "export", "--format", "xlsx", "-o", workbook, *files)
    check_archive(workbook)
    read = {locale: sheets_of(workbook, locale, folder) for locale in ("de-DE", "en-US")}
    expect(read["de-DE"] == read["en-US"], "the settings of a country change cells")
    for sheets in read.values():
        expect(list(sheets) == ["recs", "fields", "findings"], f"sheets: {list(sheets)}")
        check_recs(sheets["recs"], files)
        expect(any(row[1] == "note" and isinstance(row[3], float) for row in sheets["findings"]),
               "no finding with its line")
        titles = sheets["fields"][0]
        sums = sum(row[titles.index("recs")] for row in sheets["fields"][1:])
        expect(sums == len(sheets["recs"]) - 1, f"{sums} recs in the fields")

for failure in failures[:20]:
    print(failure)
print(f"{len(failures)} failures")
sys.exit(1 if failures else 0)

#!/usr/bin/env python3
"""Usage: check_gis.py COMMAND SOURCE_DIR

Exports all sample packages as GeoJSON, has GDAL and geopandas read it, and GDAL convert it to
GeoPackage, SQLite and FlatGeobuf, and compares what comes out of each with what went in.
"""
import json
import pathlib
import re
import subprocess
import sys
import tempfile

import geopandas

command, source = sys.argv[1], pathlib.Path(sys.argv[2])
samples = source / "examples/packages"
packages = sorted(str(path) for path in samples.glob("*.xml"))
# Fields without a point.
packages += sorted(str(path) for path in samples.glob("broken/centroid-[rz]*/*.xml"))
failures = []
# What a map can be coloured, filtered and sorted by.
kinds = {"average_rate": "Real", "total": "Real", "latitude": "Real", "rate_unit_id": "Integer",
         "season_id": "Integer", "rate_unit": "String", "product": "String", "created": "DateTime"}


def expect(condition, what):
    if not condition:
        failures.append(what)


def run(*words):
    result = subprocess.run([str(word) for word in words], capture_output=True, text=True)
    expect(result.returncode == 0, f"{words[0]}: exit code {result.returncode}: {result.stderr}")
    # "Error" and "Warning" begin what GDAL has to say.
    expect(not any(line.startswith(("ERROR", "Warning")) for line in result.stderr.splitlines()),
           f"{' '.join(map(str, words))}: {result.stderr}")
    return result.stdout


def parsed(value):
    """A value as it went in: GDAL recognises days and times, which it writes in a form of its own
    or, in FlatGeobuf, with a time."""
    if isinstance(value, str):
        value = re.sub(r"^(\d{4}-\d\d-\d\d)[T ]00:00:00(\.000)?$", r"\1", value)
        value = re.sub(r"^(\d{4})[-/](\d\d)[-/](\d\d) (?=\d\d:)", r"\1-\2-\3T", value)
        value = re.sub(r"^(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d)\.000$", r"\1", value)
    return value


def plain(features):
    """Features as pairs of coordinates and properties that can be compared."""
    result = []
    for feature in features:
        geometry = feature["geometry"]
        coordinates = None if geometry is None else list(geometry["coordinates"])
        # Some tables write the names of their columns in small letters, and number their rows.
        result.append((coordinates, {name.lower(): parsed(value)
                                     for name, value in feature["properties"].items()
                                     if name != "ogc_fid"}))
    return result


def by_geometry(features):
    # FlatGeobuf sorts features by place.
    return sorted(features, key=lambda f: (f[1]["boundary_id"], f[1].get("rec_id") or "",
                                           f[1].get("package") or ""))


def check_same(found, expected, what):
    found, expected = by_geometry(found), by_geometry(expected)
    expect(len(found) == len(expected), f"{what}: {len(found)} of {len(expected)} features")
    for (point, properties), (right_point, right) in zip(found, expected):
        expect(point == right_point, f"{what}: {point} instead of {right_point}")
        for name in sorted(set(properties) | set(right)):
            value, wanted = properties.get(name), right.get(name)
            expect(value == wanted, f"{what}: {name} is {value!r} instead of {wanted!r}")


def check(folder, *options):
    exported = folder / f"fields{''.join(options)}.geojson"
    run(command, "export", "--format", "geojson", "-o", exported, *options, *packages)
    text = exported.read_text(encoding="utf-8")
    expected = plain(json.loads(text)["features"])
    expect(len(expected) > 5 and any(point is None for point, _ in expected), "samples are missing")
    summary = run("ogrinfo", "-ro", "-al", "-so", exported)
    expect(f"Feature Count: {len(expected)}" in summary, "ogrinfo does not count the features")
    for column, kind in kinds.items():
        expect(re.search(rf"^{column}: {kind}", summary, re.M), f"{column} is not {kind}: {summary}")
    sequence = exported.with_suffix(".geojsonl")
    run(command, "export", "--format", "geojsonl", "-o", sequence, *options, *packages)
    read = run("ogr2ogr", "-f", "GeoJSON", "/vsistdout/", sequence)
    check_same(plain(json.loads(read)["features"]), expected, f"geojsonl {options}")
    for form, ending in (("GPKG", "gpkg"), ("SQLite", "sqlite"), ("FlatGeobuf", "fgb")):
        table = exported.with_suffix("." + ending)
        again = exported.with_suffix(f".{ending}.geojson")
        run("ogr2ogr", "-f", form, table, exported)
        run("ogr2ogr", "-f", "GeoJSON", "-lco", "COORDINATE_PRECISION=15", again, table)
        found = plain(json.loads(again.read_text(encoding="utf-8"))["features"])
        # GDAL writes no feature without a point into FlatGeobuf.
        check_same(found, [feature for feature in expected if feature[0] or form != "FlatGeobuf"],
                   f"{form} {options}")
    frame = geopandas.read_file(exported)
    found = plain(json.loads(frame.to_json(na="null", default=str))["features"])
    check_same(found, expected, f"geopandas {options}")
    expect(list(frame.geometry.isna()) == [point is None for point, _ in expected],
           f"geopandas {options}: points")


with tempfile.TemporaryDirectory() as name:
    check(pathlib.Path(name))
    check(pathlib.Path(name), "--merge")

for failure in failures:
    print(failure)
print(f"{len(packages)} packages, {len(failures)} failures")
sys.exit(1 if failures else 0)

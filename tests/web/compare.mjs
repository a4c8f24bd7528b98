// Usage: node compare.mjs ENGINE COMMAND SOURCE-DIR WORK-DIR
// The command in the page and the one that people install do the same, byte by byte, and end with
// the same exit codes: for all samples, in all ways, and for a thousand damaged ones.
import { readFileSync, rmSync, writeFileSync } from "node:fs";
import { basename, join, resolve } from "node:path";
import { Random, engineOf, filesIn, makeFolderOf, mutant, nativeRun, packagesIn } from "./support.mjs";

const [script, command, source, work] = process.argv.slice(2).map((path) => resolve(path));
const mutants = 1000;
const samples = join(source, "examples/packages");
const engine = await engineOf(script, source);
const formats = engine.formats().map((format) => format.name);
let compared = 0;
let differences = 0;

function compareBytes(what, expected, found) {
    ++compared;
    if (Buffer.compare(Buffer.from(expected ?? "none"), Buffer.from(found ?? "none")) === 0) return;
    ++differences;
    console.error(`${what} differs:\n--- the command\n${expected}\n--- the page\n${Buffer.from(found ?? "none")}`);
}

/** @param paths the packages that there are, in a folder */
function compare(folder, args, paths) {
    const files = paths.map((path) => ({ path, bytes: new Uint8Array(readFileSync(join(folder, path))) }));
    const expected = nativeRun(command, args, folder);
    const found = engine.run(args, files);
    const what = `qenxml ${args.join(" ")}`;
    compareBytes(`the exit code of ${what}`, String(expected.code), String(found.code));
    compareBytes(`the output of ${what}`, expected.output, found.output);
    compareBytes(`the messages of ${what}`, expected.messages, found.messages);
}

/** Compares the files that are written: "-o result". */
function compareResult(folder, args, names, paths) {
    const result = join(work, "result");
    rmSync(result, { force: true });
    const files = paths.map((path) => ({ path, bytes: new Uint8Array(readFileSync(join(folder, path))) }));
    const expected = nativeRun(command, [...args, "-o", result, "--", ...names], folder);
    const found = engine.run([...args, "-o", "/run/result", "--", ...names], files, "/run/result");
    const what = `qenxml ${args.join(" ")} -o`;
    compareBytes(`the exit code of ${what}`, String(expected.code), String(found.code));
    let written = null;
    try {
        written = readFileSync(result);
    } catch {
        // It was not written.
    }
    compareBytes(`the result of ${what} for ${names.join(" ")}`, written, found.result);
}

function compareAll(folder, names, paths) {
    for (const format of ["text", "json", "sarif"])
        compare(folder, ["check", "--format", format, "--", ...names], paths);
    compare(folder, ["check", "--strict", "--quiet", "--", ...names], paths);
    compare(folder, ["show", "--", ...names], paths);
    for (const format of formats) compareResult(folder, ["export", "--format", format], names, paths);
    compareResult(folder, ["report"], names, paths);
}

rmSync(work, { recursive: true, force: true });
makeFolderOf(join(work, "result"));
const packages = packagesIn(samples);
for (const path of packages) compareAll(samples, [path], [path]);
compareAll(samples, packages, packages);
for (const format of formats)
    compareResult(samples, ["export", "--merge", "--format", format], packages, packages);
compareResult(samples, ["export", "--format", "csv", "--delimiter", ";", "--decimal", ",", "--no-bom"],
    packages, packages);
compare(samples, ["check", "."], filesIn(samples));
for (const format of ["text", "json", "sarif"])
    compare(samples, ["check", "--together", "--format", format, "."], filesIn(samples));
for (const merge of [[], ["--merge"]]) {
    for (const names of [["broken", "together"], ["together", "broken"], ["together", "together"],
        packages.slice(0, 2)]) {
        compare(samples, ["diff", ...merge, "--", ...names], filesIn(samples));
        compare(samples, ["diff", ...merge, "--json", "--", ...names], filesIn(samples));
    }
}
for (const args of [["--help"], ["--version"], ["explain", "--all"], ["explain", "--json", "--all"], ["chek"],
    ["show"], ["check", "none.xml"], ["check", "-"]])
    compare(samples, args, []);
console.log(`${packages.length} samples: ${compared} comparisons`);

const random = new Random(1);
for (let number = 0; number < mutants; ++number) {
    const sample = packages[random.below(packages.length)];
    const path = `mutants/${number}/${basename(sample)}`;
    makeFolderOf(join(work, path));
    writeFileSync(join(work, path), mutant(readFileSync(join(samples, sample)), random));
    compare(work, ["check", "--format", "json", "--", path], [path]);
    compare(work, ["export", "--format", formats[0], "--", path], [path]);
}
console.log(`${packages.length} samples and ${mutants} mutants: ${compared} comparisons, ${differences} differences`);
process.exit(compared > 0 && differences === 0 ? 0 : 1);

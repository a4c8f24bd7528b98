// Usage: node page.mjs PAGE COMMAND SOURCE-DIR MODULES-DIR WORK-DIR
// The page as people use it, in a browser, opened from its file: what is dropped is checked, filtered,
// shown and taken along, as the command does it. Leaves pictures in WORK-DIR/pictures.
import assert from "node:assert/strict";
import { mkdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { dirname, join, resolve } from "node:path";
import { PageUnderTest } from "./browser.mjs";
import { makeFolderOf, nativeRun, packagesIn } from "./support.mjs";
import { largePackage, writeHostile } from "./hostile.mjs";

const [html, command, source, modules, work] = process.argv.slice(2).map((path) => resolve(path));
const samples = join(source, "examples/packages");
const pictures = join(work, "pictures");
rmSync(work, { recursive: true, force: true });
mkdirSync(pictures, { recursive: true });

const test = await PageUnderTest.open(html, modules, work);
const { page } = test;

async function step(name, run) {
    const began = performance.now();
    await run();
    assert.deepEqual(test.mishaps, [], name);
    console.log(`${name}: passed in ${((performance.now() - began) / 1000).toFixed(1)} s`);
}

async function pictureAt(name, scheme, width) {
    await test.look(scheme, width);
    const overflow = await page.evaluate(() => document.documentElement.scrollWidth > innerWidth);
    assert.equal(overflow, false, `${name} is wider than ${width} pixels`);
    await page.screenshot({ path: join(pictures, `${name}-${scheme}-${width}.png`), fullPage: width < 800 });
}

function nativeCheck(folder, paths) {
    const { output } = nativeRun(command, ["check", "--format", "json", "--", ...paths], folder);
    return JSON.parse(output).files;
}

function stateOf({ errors, warnings, notes }) {
    const counts = Object.entries({ error: errors, warning: warnings, note: notes })
        .filter(([, number]) => number > 0)
        .map(([noun, number]) => `${number} ${noun}${number > 1 ? "s" : ""}`).join(", ");
    return (errors > 0 ? "cannot be read: " : "") + (counts || "no problems found");
}

await step("an empty page", async () => {
    assert.deepEqual(await test.violations(), []);
    await pictureAt("empty", "light", 800);
});

await step("a folder is dropped: the list is what the command finds in it", async () => {
    await test.look("light", 1600);
    await test.drop(samples);
    const expected = nativeCheck(join(samples, ".."), ["packages"])
        .map((file) => ({ path: file.file, state: stateOf(file) }));
    const found = (await test.list()).map(({ path, state }) => ({ path, state }));
    assert.deepEqual(found, expected);
    const { messages } = nativeRun(command, ["check", "--quiet", "packages"], join(samples, ".."));
    assert.deepEqual(await test.texts("#remarks li"),
        messages.toString().trimEnd().split("\n").map((line) => line.replace("qenxml: ", "")));
});

await step("findings: place, line, consequence, cure, explanation", async () => {
    await test.filter("number-cut-off", "");
    assert.ok((await test.list()).length < 5);
    await test.choose("broken/number-cut-off");
    const text = await page.$eval("#package", (section) => section.textContent);
    for (const part of ["line 41, column 31", "AverageRate \"135,5\" has a comma, where the number ends",
        "<AverageRate>135,5</AverageRate>", "it is read as 135", "farm “Horvatov salaš”",
        "Write digits with a decimal point"])
        assert.ok(text.includes(part), `${part} is not in ${text}`);
    assert.equal((await test.texts(".excerpt mark"))[0], ",");
    await page.click(".finding summary");
    assert.ok(await page.$eval(".finding details", (details) => details.open));
});

await step("accessible by light and by dark", async () => {
    for (const scheme of ["light", "dark"]) {
        await test.look(scheme, 1600);
        assert.deepEqual(await test.violations(), []);
    }
});

await step("pictures at every width", async () => {
    for (const width of [360, 800, 1600, 1920]) await pictureAt("findings", "light", width);
    for (const width of [360, 1600]) await pictureAt("findings", "dark", width);
    await page.emulateMediaType("print");
    await page.screenshot({ path: join(pictures, "print.png"), fullPage: true });
    assert.equal(await page.$eval("#drop", (drop) => drop.checkVisibility()), false);
    await page.emulateMediaType("screen");
    await test.look("light", 1600);
});

await step("filter by state", async () => {
    await test.filter("", "error");
    const expected = nativeCheck(join(samples, ".."), ["packages"]).filter((file) => file.errors > 0);
    assert.deepEqual((await test.list()).map(({ path }) => path), expected.map(({ file }) => file));
    await test.filter("", "");
});

await step("what a package holds", async () => {
    await test.choose("32833106-536e");
    await page.click("#package-content .buttons button");
    await page.waitForSelector(".contents");
    const [name] = (await test.list()).map(({ path }) => path).filter((path) => path.includes("32833106"));
    const { output } = nativeRun(command, ["show", "--", name], join(samples, ".."));
    assert.equal((await test.texts(".contents"))[0], output.toString());
});

await step("every format and the report are what the command writes", async () => {
    const paths = (await test.list()).map(({ path }) => path);
    const compare = async (args, selector) => {
        const written = join(work, "written");
        rmSync(written, { force: true });
        nativeRun(command, [...args, "-o", written, "--", ...paths], join(samples, ".."));
        const { name, bytes } = await test.download(() => page.evaluate(selector));
        assert.ok(readFileSync(written).equals(bytes), `${name} differs`);
    };
    const formats = await page.$$eval("#formats button", (all) => all.map((one) => one.dataset.format));
    assert.ok(formats.length > 2);
    for (const format of formats)
        await compare(["export", "--format", format],
            `document.querySelector("#formats [data-format='${format}']").click()`);
    await page.click("#merge");
    for (const format of formats)
        await compare(["export", "--merge", "--format", format],
            `document.querySelector("#formats [data-format='${format}']").click()`);
    await page.click("#merge");
    await compare(["report"], "document.getElementById('download-report').click()");
});

await step("the report is shown", async () => {
    await page.click("#report");
    await page.waitForSelector("#report-dialog[open]");
    await page.waitForFunction(() => frames.length === 1);
    const frame = await (await page.$("#report-frame")).contentFrame();
    await frame.waitForSelector("a[href='#findings']");
    await frame.click("a[href='#findings']");
    await new Promise((done) => { setTimeout(done, 1000); });
    assert.ok(await frame.evaluate(() => scrollY) > 100); // Nothing in the frame can wait for it.
    assert.deepEqual(await test.violations(), []);
    await pictureAt("report", "light", 1600);
    await pictureAt("report", "light", 360);
    await test.look("light", 1600);
    await page.keyboard.press("Escape"); // The focus is on what was clicked in the frame.
    await page.waitForSelector("#report-dialog:not([open])");
    await page.click("#report");
    await page.waitForSelector("#report-dialog[open]");
    await page.click("#close-report");
    await page.waitForSelector("#report-dialog:not([open])");
});

await step("the licences of what is in the page", async () => {
    const text = await page.$eval("footer pre", (licences) => licences.textContent);
    for (const part of ["pugixml", "Jean-loup Gailly", "Permission is hereby granted"])
        assert.ok(text.includes(part), `${part} is missing`);
});

await step("by the keyboard alone", async () => {
    await page.focus("#filter-text");
    await page.keyboard.type("empty-name");
    for (let tabs = 0; tabs < 2; ++tabs) await page.keyboard.press("Tab");
    await page.keyboard.press("Enter");
    assert.match((await test.texts("#package-title"))[0], /\.xml$/);
    assert.equal(await page.evaluate(() => document.activeElement.id), "package");
});

await step("hostile names and contents are shown, not executed", async () => {
    await test.clear();
    const folder = join(work, "hostile");
    const paths = writeHostile(folder, samples);
    await test.drop(...paths.map((path) => join(folder, path)));
    const list = await test.list();
    assert.equal(list.length, paths.length);
    for (const path of paths) {
        assert.ok(list.some((entry) => entry.path === (path === "-" ? "./-" : path)), `${path} is missing`);
        await test.choose(path);
    }
    assert.ok((await test.texts("#list .name")).some((name) => name.startsWith("\\u{202E}")));
    assert.equal(await page.evaluate(() => document.images.length + document.querySelectorAll("b, script[src]").length), 0);
    assert.equal(await page.evaluate(() => globalThis.hacked), undefined);
    const zip = list.find((entry) => entry.path === "season.zip");
    await test.choose("season.zip");
    assert.match((await test.texts("#package-content"))[0], /ZIP/i);
    assert.match(zip.state, /^cannot be read/);
    await page.click("#report");
    await page.waitForSelector("#report-dialog[open]");
    await page.keyboard.press("Escape"); // The focus is on the button that closes it.
    for (const width of [360, 1600]) await pictureAt("hostile", "light", width);
    await test.look("light", 1600);
});

await step("a package that was mended is dropped again", async () => {
    await test.clear();
    const [sample] = packagesIn(samples);
    const path = join(work, "again", sample);
    makeFolderOf(path);
    writeFileSync(path, "<RecPackage>");
    await test.drop(path);
    assert.deepEqual((await test.list()).map(({ state }) => state), ["cannot be read: 1 error"]);
    writeFileSync(path, readFileSync(join(samples, sample)));
    await test.drop(path);
    assert.deepEqual((await test.list()).map(({ state }) => state), ["no problems found"]);
});

/** What the page shows of a comparison, once a button was clicked. */
async function comparison(button) {
    await page.click(button);
    await page.waitForSelector("#comparison-text pre");
    return (await test.texts("#comparison-text pre"))[0];
}

const together = join(samples, "together");

await step("packages that do not go together are checked as the command does it", async () => {
    for (const name of ["rec-differs", "package-twice"]) {
        await test.clear();
        await test.drop(join(together, name));
        assert.ok((await test.list()).length > 1);
        const { output } = nativeRun(command, ["check", "--together", "--", name], together);
        assert.match(output.toString(), new RegExp(name));
        assert.equal(await comparison("#together"), output.toString());
    }
    assert.deepEqual(await test.violations(), []);
    assert.equal(await page.evaluate(() => document.activeElement.id), "comparison");
    for (const width of [360, 1600]) await pictureAt("together", "light", width);
});

await step("folders and packages are compared as the command does it", async () => {
    await test.clear();
    const folders = ["old", "new"].map((name) => join(work, "compared", name));
    for (const [index, folder] of folders.entries()) {
        for (const name of packagesIn(samples).slice(0, 3)) {
            const text = readFileSync(join(samples, name), "utf8");
            makeFolderOf(join(folder, name));
            writeFileSync(join(folder, name), index === 0 ? text : text.replace(/(<FarmName>)[^<]+/, "$1Other"));
        }
    }
    await test.drop(...folders);
    const sides = (id) => page.$$eval(`#${id} option`, (options) => options.map((option) => option.value));
    const paths = (await test.list()).map(({ path }) => path);
    assert.deepEqual((await sides("diff-from")).slice(0, 2), ["old", "new"]);
    assert.deepEqual(await sides("diff-to"), await sides("diff-from"));
    for (const names of [["old", "new"], ["new", "old"], [paths[0], "new"], [paths[0], paths.at(-1)]]) {
        for (const merge of [[], ["--merge"]]) {
            const { output } = nativeRun(command, ["diff", ...merge, "--", ...names], join(work, "compared"));
            await page.select("#diff-from", names[0]);
            await page.select("#diff-to", names[1]);
            assert.equal(await comparison("#diff"), output.toString());
            await page.click("#diff-merge");
        }
    }
    await page.select("#diff-from", "new");
    await page.select("#diff-to", "new");
    await page.click("#diff");
    await page.waitForFunction(() =>
        document.getElementById("comparison-text").textContent === "There is no difference.");
    assert.deepEqual(await test.violations(), []);
});

await step("a comparison that is too long for a page", async () => {
    await test.clear();
    const folder = join(work, "long");
    const paths = ["one", "two"].map((name) => join(folder, name, packagesIn(samples)[0]));
    for (const path of paths) makeFolderOf(path);
    writeFileSync(paths[0], largePackage(join(samples, packagesIn(samples)[0]), 2e6));
    writeFileSync(paths[1], readFileSync(join(samples, packagesIn(samples)[0])));
    await test.drop(...paths.map((path) => dirname(path)));
    const shown = await comparison("#diff");
    const { output } = nativeRun(command, ["diff", "--", "one", "two"], folder);
    assert.ok(output.length > shown.length && output.toString().startsWith(shown) && shown.endsWith("\n"));
    const { bytes } = await test.download(() => page.click("#comparison-text a"));
    assert.ok(output.equals(bytes));
});

await step("a large package: its progress, a stop, and the check of the rest", async () => {
    await test.clear();
    const path = join(work, "00112233-4455-6677-8899-aabbccddeeff.xml");
    writeFileSync(path, largePackage(join(samples, packagesIn(samples)[0]), 150e6));
    await test.letFall(path);
    await page.waitForFunction(() =>
        /^Checking 1 of 1, [1-9][0-9]? % of it: /.test(document.getElementById("work-text").textContent) &&
            document.getElementById("work-bar").value > 0);
    await page.click("#stop");
    await test.settled();
    assert.deepEqual((await test.list()).map(({ state }) => state), ["not checked yet"]);
    await test.clear();
    const megabytes = 20;
    writeFileSync(path, largePackage(join(samples, packagesIn(samples)[0]), megabytes * 1e6));
    await test.letFall(path);
    await page.waitForFunction(() => !document.getElementById("check-rest").hidden ||
        document.getElementById("work-text").textContent.startsWith("Checking"));
    await page.click("#stop");
    await test.settled();
    await page.$eval("#status", (status) => { status.textContent = ""; });
    await page.click("#check-rest");
    await test.settled();
    console.log(`  ${megabytes} MB: ${(await test.texts("#status"))[0]}`);
    assert.deepEqual((await test.list()).map(({ state }) => state), ["no problems found"]);
});

await test.close();

// Usage: node assemble.mjs PAGE-FOLDER ENGINE-SCRIPT ENGINE-WASM OUTPUT
// Puts the page together: one file with the style, the scripts, the script of the worker and, in
// that, the WebAssembly. The policy in its head lets the browser run these scripts, by their hashes,
// and nothing else, and load nothing from anywhere.
import { execFileSync } from "node:child_process";
import { createHash } from "node:crypto";
import { readFileSync, writeFileSync } from "node:fs";
import { join } from "node:path";

const [folder, engine, wasm, output] = process.argv.slice(2);
const read = (name) => readFileSync(join(folder, name), "utf8");

/** What a script may not have in it where it stands in a page. */
function embeddable(script) {
    if (/<\/script|<!--/i.test(script)) throw new Error("a script has a text that would end it");
    return script;
}

function asText(text) {
    return text.replaceAll("&", "&amp;").replaceAll("<", "&lt;");
}

/** By a program of its own: what node compresses depends on its version, and on the processor. */
function compressed(path) {
    return execFileSync("gzip", ["--best", "--no-name", "--stdout", path], { maxBuffer: 2 ** 26 });
}

const workerParts = [
    readFileSync(engine, "utf8"),
    `const engineText = "${compressed(wasm).toString("base64")}";`,
];
const hashes = [];
let page = read("index.html")
    .replace(/<link rel="stylesheet" href="([^"]+)">/, (_, name) => `<style>\n${read(name)}</style>`)
    .replace(/ data-text="([^"]+)">/, (_, name) => `>${asText(read(name))}`)
    .replace(/<script src="([^"]+)" data-for="worker"><\/script>\n/g, (_, name) => {
        workerParts.push(read(name));
        return "";
    })
    .replace(/<script src="([^"]+)"><\/script>/g, (_, name) => {
        const script = `\n${embeddable(read(name))}`;
        hashes.push(`'sha256-${createHash("sha256").update(script).digest("base64")}'`);
        return `<script>${script}</script>`;
    });

const policy = [
    "default-src 'none'",
    `script-src 'wasm-unsafe-eval' ${hashes.join(" ")}`,
    "style-src 'unsafe-inline'", // that of the report, too
    "worker-src blob:",
    "connect-src 'none'",
    "base-uri about:", // of the report that is shown
    "form-action 'none'",
].join("; ");
// Functions as replacements: the scripts have "$" in them.
page = page
    .replace("<title>", () => `<meta http-equiv="Content-Security-Policy" content="${policy}">\n<title>`)
    .replace("<script>", () => {
        const worker = embeddable(workerParts.join("\n"));
        return `<script type="text/plain" id="worker">\n${worker}</script>\n<script>`;
    });
writeFileSync(output, page);

"use strict";

// What runs beside the page, so that it stays usable: gets requests, one after the other, and
// answers each by a message. What WebAssembly cannot go on after ends the worker; the page starts
// another one.

/** More findings of one file than anybody reads on a page; their number is told. */
const mostFindings = 1000;

const decoder = new TextDecoder();

/** The WebAssembly, from engineText, which assemble.mjs writes before this script. */
async function engineBytes() {
    const bytes = Uint8Array.from(atob(engineText), (character) => character.charCodeAt(0));
    const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream("gzip"));
    return new Response(stream).arrayBuffer();
}

let current = null; // The request that is being worked on.
const tell = (line) => line !== "" && postMessage({ id: current, progress: line });
const command = engineBytes()
    .then((wasmBinary) => createQenxml({ wasmBinary }))
    .then((module) => new Command(module, tell));

async function bytesOf(file) {
    return file === null ? new Uint8Array() : new Uint8Array(await file.arrayBuffer());
}

async function placed(files) {
    const all = [];
    for (const { path, file } of files) all.push({ path, bytes: await bytesOf(file) });
    return all;
}

/** The output of `qenxml check --format json`, without findings beyond the limit. */
function checkedFiles(output) {
    const { files } = JSON.parse(decoder.decode(output));
    for (const file of files) file.findings.length = Math.min(file.findings.length, mostFindings);
    return files;
}

const tasks = {
    /** What the page has to know of the command. */
    async describe() {
        const ready = await command;
        const text = (args) => decoder.decode(ready.run(args).output);
        return {
            version: text(["--version"]),
            explanations: JSON.parse(text(["explain", "--json", "--all"])).findings,
            formats: ready.formats(),
        };
    },

    /** The packages among what was dropped, as the command finds them, in its order and spelling. */
    async list({ paths, names }) {
        const ready = await command;
        const files = paths.map((path) => ({ path, bytes: new Uint8Array() }));
        const { output, messages } = ready.run(["check", "--format", "json", "--", ...names], files);
        const indexes = new Map(ready.escaped(paths).map((shown, index) => [shown, index]));
        return {
            found: checkedFiles(output).map(({ file }) => ({ index: indexes.get(file), shown: file })),
            messages: decoder.decode(messages),
        };
    },

    async check({ path, file }) {
        const ready = await command;
        const files = [{ path, bytes: await bytesOf(file) }];
        const outcome = ready.run(["check", "--format", "json", "--", path], files);
        if (outcome.isCut) return { checked: null, messages: "" };
        try {
            return { checked: checkedFiles(outcome.output)[0], messages: "" };
        } catch {
            return { checked: null, messages: decoder.decode(outcome.messages) }; // Of memory, mostly.
        }
    },

    async run({ args, files, result }) {
        const ready = await command;
        const outcome = ready.run(args, await placed(files), result);
        return { ...outcome, messages: decoder.decode(outcome.messages) };
    },
};

let last = Promise.resolve();

onmessage = ({ data: { id, task, request } }) => {
    last = last.then(async () => {
        current = id;
        try {
            postMessage({ id, answer: await tasks[task](request) });
        } catch (error) {
            postMessage({ id, error: { name: error.name, text: String(error.message ?? error) } });
        }
    });
};

// What the tests of the page share.
import { spawnSync } from "node:child_process";
import { mkdirSync, readFileSync, readdirSync } from "node:fs";
import { dirname, join, relative } from "node:path";
import { createRequire } from "node:module";
import vm from "node:vm";

/** The files below a folder, as paths in it, sorted. */
export function filesIn(folder) {
    return readdirSync(folder, { recursive: true, withFileTypes: true })
        .filter((entry) => entry.isFile())
        .map((entry) => relative(folder, join(entry.parentPath ?? entry.path, entry.name)))
        .sort();
}

export function packagesIn(folder) {
    return filesIn(folder).filter((path) => path.endsWith(".xml"));
}

/** The command as the page calls it. */
export async function engineOf(script, source) {
    const create = createRequire(import.meta.url)(script);
    const Command = vm.runInThisContext(
        `${readFileSync(join(source, "web/page/command.js"), "utf8")}; Command`,
    );
    return new Command(await create({ wasmBinary: readFileSync(script.replace(/js$/, "wasm")) }));
}

/** What the command does that people install: exit code, output and messages. */
export function nativeRun(command, args, folder) {
    const { status, stdout, stderr } = spawnSync(command, args, {
        cwd: folder,
        maxBuffer: 2 ** 30,
        env: { LC_ALL: "C.UTF-8" },
    });
    return { code: status, output: stdout, messages: stderr };
}

/** Numbers that look random and are the same every time. */
export class Random {
    #state;

    constructor(seed) {
        this.#state = seed;
    }

    below(limit) {
        this.#state = (Math.imul(this.#state, 1664525) + 1013904223) >>> 0;
        return Math.floor((this.#state / 2 ** 32) * limit);
    }
}

const inserted = ["<", ">", "&", "\"", "&#0;", "&#x110000;", "<Rec>", "</Farm>", "<!DOCTYPE a [<!ENTITY b \"c\">]>",
    "1e999", "-", ",5", "\u0000", "\u202E", "\uFEFF", "<![CDATA[", "<?a?>", "0x1F", "  "];

/** A package with one to four damages. */
export function mutant(bytes, random) {
    let damaged = Buffer.from(bytes);
    for (let damages = 1 + random.below(4); damages > 0; --damages) {
        const at = random.below(damaged.length + 1);
        const end = Math.min(damaged.length, at + 1 + random.below(60));
        const [before, part, after] = [damaged.subarray(0, at), damaged.subarray(at, end), damaged.subarray(end)];
        const kinds = [
            () => [before, after],
            () => [before, part, part, after],
            () => [before, Buffer.from(inserted[random.below(inserted.length)]), part, after],
            () => [before, Buffer.from([random.below(256)]), damaged.subarray(at + 1)],
            () => [before],
        ];
        // Cut off less often: little is left to find then.
        const kind = random.below(17) === 0 ? 4 : random.below(4);
        damaged = Buffer.concat(kinds[kind]());
    }
    return damaged;
}

/** The programs of the tests that come from npm, unpacked elsewhere. */
export function requireFrom(folder, name) {
    return createRequire(join(folder, "package.json"))(name);
}

export function makeFolderOf(path) {
    mkdirSync(dirname(path), { recursive: true });
}

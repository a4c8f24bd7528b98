"use strict";

/** The states of a package, in the order of the choice: what the list calls them, and which it is. */
const states = [
    { name: "waiting", text: "not checked yet", has: (entry) => entry.isWaiting },
    { name: "lost", text: "cannot be checked here", has: (entry) => entry.problem !== null },
    { name: "error", text: "cannot be read", has: (entry) => entry.counts.errors > 0 },
    { name: "warning", text: "with warnings", has: (entry) => entry.counts.warnings > 0 },
    { name: "note", text: "with notes", has: (entry) => entry.counts.notes > 0 },
    { name: "good", text: "no problems found", has: () => true },
];

/** A package that was dropped, and what is known of it. */
class Package {
    isWaiting = true;
    problem = null; // a sentence, where it could not be checked
    counts = { errors: 0, warnings: 0, notes: 0 };
    findings = [];

    /**
     * @param path where the command finds it
     * @param shown the path as outputs of the command show it, which nothing in it can disguise
     */
    constructor({ path, shown, file }) {
        this.path = path;
        this.shown = shown;
        this.file = file;
    }

    get name() {
        return this.shown.slice(this.folder.length);
    }

    get folder() {
        return this.shown.slice(0, this.shown.lastIndexOf("/") + 1);
    }

    /** @param checked what `qenxml check --format json` says of it */
    take({ findings, errors, warnings, notes }) {
        this.isWaiting = false;
        this.findings = findings;
        this.counts = { errors, warnings, notes };
    }

    fail(problem) {
        this.isWaiting = false;
        this.problem = problem;
    }

    /** The first that fits; the counts say the rest. */
    get state() {
        return states.find((state) => state.has(this));
    }

    /** What the list says of it. */
    get description() {
        const { name, text } = this.state;
        if (name === "error") return `${text}: ${this.#countsText}`;
        return this.#countsText || text;
    }

    get #countsText() {
        const { errors, warnings, notes } = this.counts;
        const texts = [
            [errors, "error"],
            [warnings, "warning"],
            [notes, "note"],
        ]
            .filter(([number]) => number > 0)
            .map(([number, noun]) => quantity(number, noun));
        return texts.join(", ");
    }

    /** How many findings were left out. */
    get omitted() {
        const { errors, warnings, notes } = this.counts;
        return errors + warnings + notes - this.findings.length;
    }

    /** Whether its name, or the code of a finding, has a text in it. */
    matches(text) {
        const wanted = text.toLowerCase();
        return (
            this.shown.toLowerCase().includes(wanted) ||
            this.findings.some((finding) => finding.code.includes(wanted))
        );
    }
}

/** All packages that were dropped, by their paths: who mends one drops it again. */
class Packages {
    #byPath = new Map();

    add(dropped) {
        this.#byPath.set(dropped.path, new Package(dropped));
    }

    clear() {
        this.#byPath.clear();
    }

    get all() {
        return [...this.#byPath.values()];
    }

    get waiting() {
        return this.all.filter((entry) => entry.isWaiting);
    }

    /** The folders in which packages are, those outside first: their names, and how they are shown. */
    get folders() {
        const found = new Map();
        for (const { path, shown } of this.all) {
            const names = path.split("/");
            const texts = shown.split("/");
            for (let depth = 1; depth < names.length; ++depth)
                found.set(names.slice(0, depth).join("/"), { depth, shown: texts.slice(0, depth).join("/") });
        }
        found.delete("."); // That of a file that is called "-".
        return [...found]
            .map(([name, { depth, shown }]) => ({ name, depth, shown: `${shown}/` }))
            .sort((one, other) => one.depth - other.depth);
    }

    /** @param state the name of one; "" for all */
    filtered(text, state) {
        return this.all.filter(
            (entry) => (state === "" || entry.state.name === state) && entry.matches(text),
        );
    }
}

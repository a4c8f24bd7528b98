"use strict";

/** What can be had of the packages that the list shows: the report, each export, and comparisons. */
class Outputs {
    /** More names than anybody looks for in a choice; the filter of the list narrows it. */
    static #mostSides = 1000;
    #run;
    #packages;
    #shown;
    #sides = "";
    #urls = [];

    /**
     * @param formats those of the export
     * @param run runs the command with arguments, names and the packages behind them, for a file;
     *     gives its outcome or null
     * @param packages all that there are
     * @param shown gives those of the list
     */
    constructor(formats, run, packages, shown) {
        this.#run = run;
        this.#packages = packages;
        this.#shown = shown;
        byId("report").addEventListener("click", () => this.#showReport());
        byId("download-report").addEventListener("click", () =>
            this.#download(["report"], "report.html"),
        );
        byId("formats").append(...formats.map((format) => this.#exportButton(format)));
        byId("together").addEventListener("click", () => this.#together());
        byId("diff").addEventListener("click", () => this.#diff());
        this.#listenToDialog();
    }

    refresh() {
        byId("outputs-extent").textContent =
            `Of what the list shows: ${quantity(this.#shown().length, "package")}.`;
        this.#writeSides();
    }

    clear() {
        for (const id of ["output-text", "comparison-text"]) byId(id).replaceChildren();
        byId("comparison").hidden = true;
        for (const url of this.#urls.splice(0)) URL.revokeObjectURL(url);
    }

    #exportButton({ name, title }) {
        const merge = byId("merge");
        const download = () =>
            this.#download(
                ["export", "--format", name, ...(merge.checked ? ["--merge"] : [])],
                `packages.${name}`,
            );
        return element("button", { type: "button", "data-format": name, onclick: download }, title);
    }

    /** What may be compared: all folders, those outside first, and the packages of the list. */
    #writeSides() {
        const sides = [
            ...this.#packages.folders,
            ...this.#shown().map(({ path, shown }) => ({ name: path, shown })),
        ].slice(0, Outputs.#mostSides);
        const written = JSON.stringify(sides);
        if (written === this.#sides) return; // Who is choosing shall not be disturbed.
        this.#sides = written;
        for (const [index, id] of ["diff-from", "diff-to"].entries()) {
            const choice = byId(id);
            const { value } = choice;
            choice.replaceChildren(
                ...sides.map(({ name, shown }) => element("option", { value: name, dir: "auto" }, shown)),
            );
            const isThere = sides.some(({ name }) => name === value);
            choice.selectedIndex = Math.min(index, sides.length - 1);
            if (isThere) choice.value = value;
        }
    }

    #together() {
        this.#compare("Checked together", ["check", "--together"]);
    }

    #diff() {
        const names = ["diff-from", "diff-to"].map((id) => byId(id).value);
        const merge = byId("diff-merge").checked ? ["--merge"] : [];
        const isIn = ({ path }, name) => path === name || path.startsWith(`${name}/`);
        const entries = this.#packages.all.filter((entry) => names.some((name) => isIn(entry, name)));
        this.#compare("How they differ", ["diff", ...merge], entries, names);
    }

    /** Shows what the command writes. */
    async #compare(title, args, entries, names) {
        const outcome = await this.#make(args, null, entries, names);
        if (outcome === null) return;
        const { output, messages } = outcome;
        byId("comparison-title").textContent = title;
        if (output.length > 0) this.#showText(title, output);
        else if (messages === "") byId("comparison-text").append("There is no difference.");
        byId("comparison").hidden = byId("comparison-text").textContent === "";
        byId("comparison").focus();
    }

    /** Shows a text, and offers it as a download if it is too long to be shown as a whole. */
    #showText(title, bytes) {
        const text = new TextDecoder().decode(bytes);
        const shown = beginningOf(text);
        const attributes = { class: "contents", tabindex: "0", dir: "auto", "aria-label": title };
        byId("comparison-text").append(element("pre", attributes, shown));
        if (shown === text) return;
        const link = this.#link(bytes, "comparison.txt");
        byId("comparison-text").prepend(element("p", {}, "This is the beginning of ", link, "."));
    }

    /** Escape closes the report, wherever in it the focus is. */
    #listenToDialog() {
        const dialog = byId("report-dialog");
        const frame = byId("report-frame");
        byId("close-report").addEventListener("click", () => dialog.close());
        frame.addEventListener("load", () =>
            frame.contentDocument?.addEventListener("keydown", ({ key }) => {
                if (key === "Escape") dialog.close();
            }),
        );
    }

    async #showReport() {
        const outcome = await this.#make(["report"], "report.html");
        if (!outcome?.result) return;
        // With a base of its own: links inside the report would else lead to this page.
        byId("report-frame").srcdoc = new TextDecoder()
            .decode(outcome.result)
            .replace("<head>", '<head><base href="about:srcdoc">');
        byId("report-dialog").showModal();
    }

    async #download(args, name) {
        const outcome = await this.#make(args, name);
        if (!outcome?.result) return;
        const link = this.#link(outcome.result, name);
        byId("output-text").prepend(
            element("p", {}, link, ` has ${quantity(outcome.result.length, "byte")}.`),
        );
        link.click();
    }

    /** A link that downloads bytes. */
    #link(bytes, name) {
        const url = URL.createObjectURL(new Blob([bytes]));
        this.#urls.push(url);
        return element("a", { href: url, download: name }, name);
    }

    /**
     * Runs the command, and says what it has to say.
     *
     * @param file the name of that which it is to write; null for none
     * @param entries the packages, which are those of the list if nothing else is said
     * @param names what they are called; a folder may stand for those in it
     */
    async #make(args, file, entries = this.#shown(), names = entries.map(({ path }) => path)) {
        this.clear();
        const result = file === null ? null : `/run/${file}`;
        const output = result === null ? [] : ["-o", result];
        const outcome = await this.#run([...args, ...output, "--", ...names], entries, result);
        if (outcome === null) return null;
        const lines = messageLines(outcome.messages);
        byId("output-text").replaceChildren(
            element("ul", {}, ...lines.map((line) => element("li", {}, foreign(line)))),
        );
        return outcome;
    }
}

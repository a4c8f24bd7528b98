"use strict";

/** What compares packages with each other, where the command can do that. */
const comparisons = [
    {
        title: "Check them together",
        args: ["check", "--together"],
        isOffered: ({ checkHelp }) => checkHelp.includes("--together"),
    },
    {
        title: "Tell how two differ",
        args: ["diff"],
        wanted: 2,
        isOffered: ({ help }) => /^ +diff /m.test(help),
    },
];

/** What can be taken along of the packages that the list shows: the report, and each export. */
class Outputs {
    #run;
    #shown;
    #urls = [];

    /**
     * @param about what the command can do
     * @param run runs the command with arguments and packages, for a file; gives its outcome or
     *     null
     * @param shown gives the packages
     */
    constructor(about, run, shown) {
        this.#run = run;
        this.#shown = shown;
        byId("report").addEventListener("click", () => this.#showReport());
        byId("download-report").addEventListener("click", () =>
            this.#download(["report"], "report.html"),
        );
        byId("close-report").addEventListener("click", () => byId("report-dialog").close());
        byId("formats").append(...about.formats.map((format) => this.#exportButton(format)));
        const offered = comparisons.filter(({ isOffered }) => isOffered(about));
        byId("comparison-buttons").append(...offered.map((one) => this.#comparisonButton(one)));
        byId("comparisons").hidden = offered.length === 0;
    }

    refresh() {
        byId("outputs-extent").textContent =
            `Of what the list shows: ${quantity(this.#shown().length, "package")}.`;
    }

    clear() {
        for (const id of ["output-text", "comparison-text"]) byId(id).replaceChildren();
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

    #comparisonButton(comparison) {
        const compare = () => this.#compare(comparison);
        return element("button", { type: "button", onclick: compare }, comparison.title);
    }

    async #compare({ args, wanted }) {
        if (wanted !== undefined && this.#shown().length !== wanted) {
            this.clear();
            byId("output-text").append(`Have the list show ${wanted} packages, by its filter.`);
            return;
        }
        const outcome = await this.#make(args);
        if (outcome === null) return;
        const text = new TextDecoder().decode(outcome.output);
        byId("comparison-text").append(
            element("pre", { tabindex: "0", dir: "auto", "aria-label": "Comparison" }, text),
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
        const url = URL.createObjectURL(new Blob([outcome.result]));
        this.#urls.push(url);
        const link = element("a", { href: url, download: name }, name);
        byId("output-text").prepend(
            element("p", {}, link, ` has ${quantity(outcome.result.length, "byte")}.`),
        );
        link.click();
    }

    /**
     * Runs the command, and says what it has to say.
     *
     * @param name of the file that it is to write
     */
    async #make(args, name = null) {
        this.clear();
        const result = name === null ? null : `/run/${name}`;
        const output = result === null ? [] : ["-o", result];
        const outcome = await this.#run([...args, ...output], this.#shown(), result);
        if (outcome === null) return null;
        const lines = messageLines(outcome.messages);
        byId("output-text").replaceChildren(
            element("ul", {}, ...lines.map((line) => element("li", {}, foreign(line)))),
        );
        return outcome;
    }
}

"use strict";

/** The page: takes what is dropped, has it checked one by one, and shows what comes of it. */
class Page {
    #engine = new Engine(byId("worker").textContent);
    #packages = new Packages();
    #list = new PackageList(this.#packages, (entry) => this.#choose(entry));
    #findings = null;
    #outputs = null;
    #isChecking = false;

    async start() {
        const about = await this.#engine.ask("describe");
        byId("version").textContent = `${about.version.trim()}.`;
        this.#findings = new FindingsView(about.explanations);
        const run = (...what) => this.#run(...what);
        this.#outputs = new Outputs(about.formats, run, this.#packages, () => this.#list.shown);
        this.#listen();
        document.documentElement.dataset.ready = "";
    }

    #listen() {
        for (const kind of ["files", "folder"]) {
            const field = byId(kind);
            byId(`choose-${kind}`).addEventListener("click", () => field.click());
            field.addEventListener("change", () => {
                this.#take(chosenFiles(field.files));
                field.value = "";
            });
        }
        addEventListener("dragover", (event) => {
            event.preventDefault();
            byId("drop").classList.add("over");
        });
        addEventListener("dragleave", () => byId("drop").classList.remove("over"));
        addEventListener("drop", async (event) => {
            event.preventDefault();
            byId("drop").classList.remove("over");
            this.#take(await droppedFiles(event.dataTransfer));
        });
        byId("stop").addEventListener("click", () => this.#engine.stop());
        byId("check-rest").addEventListener("click", () => this.#check());
        byId("clear").addEventListener("click", () => this.#clear());
        byId("list").addEventListener("filtered", () => this.#outputs.refresh());
    }

    /** @param {Dropped} dropped */
    async #take({ files, names, problems }) {
        this.#remark(...problems);
        if (files.length === 0 && names.length === 0) return;
        try {
            this.#show(`Looking at ${quantity(files.length, "file")}`, null);
            const paths = files.map(({ path }) => path);
            const { found, messages } = await this.#engine.ask("list", { paths, names });
            this.#remark(...messageLines(messages));
            for (const { index, shown } of found) this.#packages.add({ ...files[index], shown });
        } catch (error) {
            this.#remark(this.#reason(error));
        }
        await this.#check();
    }

    /** Checks all that wait, one by one. */
    async #check() {
        if (this.#isChecking) return;
        this.#isChecking = true;
        this.#refresh();
        const began = performance.now();
        let done = 0;
        try {
            for (let waiting = this.#packages.waiting; waiting.length > 0; waiting = this.#packages.waiting) {
                const all = done + waiting.length;
                const [entry] = waiting;
                this.#show(`Checking ${done + 1} of ${all}: ${entry.shown}`, done / all);
                await this.#checkOne(entry, (line) => {
                    const percent = percentIn(line);
                    const text = `Checking ${done + 1} of ${all}, ${percent} % of it: ${entry.shown}`;
                    this.#show(text, (done + percent / 100) / all);
                });
                ++done;
                this.#refreshSometimes();
            }
        } catch (error) {
            if (!(error instanceof Stopped)) throw error;
        } finally {
            this.#isChecking = false;
            byId("work").hidden = true;
            this.#refresh();
            this.#tell(performance.now() - began);
        }
    }

    /** @param tell called with what the command says about how far it is */
    async #checkOne(entry, tell) {
        try {
            const request = { path: entry.path, file: entry.file };
            const { checked, messages } = await this.#engine.ask("check", request, tell);
            if (checked === null) entry.fail(messageLines(messages).join("; ") || tooMuch);
            else entry.take(checked);
        } catch (error) {
            if (error instanceof Stopped) throw error;
            entry.fail(sentenceOf(error));
        }
    }

    /** Runs the command with arguments and the packages that they name; what fails is said. */
    async #run(args, entries, result) {
        const files = entries.map(({ path, file }) => ({ path, file }));
        const text = `Reading ${quantity(files.length, "package")}`;
        this.#show(text, null);
        try {
            const tell = (line) => this.#show(`${text}: ${line}`, null);
            return await this.#engine.ask("run", { args, files, result }, tell);
        } catch (error) {
            byId("output-text").replaceChildren(element("p", { class: "problem" }, this.#reason(error)));
            return null;
        } finally {
            byId("work").hidden = !this.#isChecking;
        }
    }

    #choose(entry) {
        this.#list.chosen = entry;
        const contents = element("button", { type: "button" }, "Show what it holds");
        contents.addEventListener("click", () => this.#showContents(entry, contents));
        this.#findings.show(entry, contents);
        byId("package").focus();
    }

    async #showContents(entry, button) {
        const outcome = await this.#run(["show", "--", entry.path], [entry], null);
        if (outcome === null) return;
        const text = new TextDecoder().decode(outcome.output);
        const shown = beginningOf(text);
        const remarks = messageLines(outcome.messages);
        if (shown !== text) remarks.push("This is the beginning; the exports have everything.");
        const contents = element("pre", { class: "contents", dir: "auto", tabindex: "0" }, shown + remarks.join("\n"));
        contents.setAttribute("aria-label", "What the package holds");
        button.parentElement.after(contents);
        button.remove();
        contents.focus();
    }

    #clear() {
        this.#packages.clear();
        this.#findings.clear();
        this.#outputs.clear();
        byId("remarks").replaceChildren();
        for (const id of ["filter-text", "filter-state"]) byId(id).value = "";
        byId("status").textContent = "";
        this.#refresh();
        byId("choose-files").focus();
    }

    #lastRefresh = 0;

    /** Often enough for the eye, and seldom enough for thousands of packages. */
    #refreshSometimes() {
        const interval = 500;
        if (performance.now() - this.#lastRefresh < interval) return;
        this.#refresh();
        this.#lastRefresh = performance.now();
    }

    #refresh() {
        byId("result").hidden = this.#packages.all.length === 0;
        byId("check-rest").hidden = this.#isChecking || this.#packages.waiting.length === 0;
        this.#list.refresh();
        this.#outputs.refresh();
    }

    /** @param part how much of the work is done; null where that is not known */
    #show(text, part) {
        byId("work").hidden = false;
        byId("work-text").replaceChildren(foreign(text));
        if (part === null) byId("work-bar").removeAttribute("value");
        else byId("work-bar").value = part;
    }

    #tell(milliseconds) {
        const { all, waiting } = this.#packages;
        const number = (name) => this.#packages.filtered("", name).length;
        const seconds = (milliseconds / 1000).toFixed(1);
        byId("status").textContent =
            `${quantity(all.length - waiting.length, "package")} checked` +
            `, ${number("error")} of them cannot be read` +
            (waiting.length > 0 ? `; stopped, ${waiting.length} are not checked yet.` : `; ${seconds} s.`);
    }

    #reason(error) {
        return error instanceof Stopped ? "It was stopped." : sentenceOf(error);
    }

    #remark(...texts) {
        byId("remarks").append(...texts.map((text) => element("li", {}, foreign(text))));
    }
}

/** How much of a file is done, where the command says "file 1, 40 % of it: ...". */
function percentIn(line) {
    return Number(/, (\d+) % of it: /.exec(line)?.[1] ?? 0);
}

const tooMuch =
    "It has more findings than this page can hold. The report shows the first ones; the command shows all.";

new Page().start().catch((error) => {
    byId("drop").replaceChildren(
        element(
            "p",
            { class: "problem" },
            `This browser cannot run the page (${error.message}). Use a present version of Firefox, ` +
                "Chrome, Edge or Safari.",
        ),
    );
});

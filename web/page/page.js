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
        this.#outputs = new Outputs(about, (...run) => this.#run(...run), () => this.#list.shown);
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
                this.#show(`Checking ${done + 1} of ${all}: ${waiting[0].shown}`, done / all);
                await this.#checkOne(waiting[0]);
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

    async #checkOne(entry) {
        try {
            const { checked, messages } = await this.#engine.ask("check", { path: entry.path, file: entry.file });
            if (checked === null) entry.fail(messageLines(messages).join("; ") || tooMuch);
            else entry.take(checked);
        } catch (error) {
            if (error instanceof Stopped) throw error;
            entry.fail(sentenceOf(error));
        }
    }

    /** Runs the command with packages; what fails is said. */
    async #run(args, entries, result) {
        const files = entries.map(({ path, file }) => ({ path, file }));
        const paths = entries.map(({ path }) => path);
        this.#show(`Reading ${quantity(files.length, "package")}`, null);
        try {
            return await this.#engine.ask("run", { args: [...args, "--", ...paths], files, result });
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
        const outcome = await this.#run(["show"], [entry], null);
        if (outcome === null) return;
        const text = new TextDecoder().decode(outcome.output) + messageLines(outcome.messages).join("\n");
        const contents = element("pre", { class: "contents", dir: "auto", tabindex: "0" }, text);
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

// A browser with the page, opened from its file, without a network.
import { mkdirSync, mkdtempSync, readdirSync, readFileSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { pathToFileURL } from "node:url";
import { requireFrom } from "./support.mjs";

const patience = 120000;

export class PageUnderTest {
    /** What must not happen: requests, errors, dialogs. */
    mishaps = [];

    /** @param modules where the programs from npm are */
    static async open(html, modules, work) {
        const test = new PageUnderTest();
        const puppeteer = requireFrom(modules, "puppeteer-core");
        test.axe = readFileSync(join(modules, "node_modules/axe-core/axe.min.js"), "utf8");
        test.profile = mkdtempSync(join(tmpdir(), "qenxml-browser-"));
        test.downloads = join(work, "downloads");
        mkdirSync(test.downloads, { recursive: true });
        test.browser = await puppeteer.launch({
            executablePath: "/usr/bin/chromium",
            userDataDir: test.profile,
            args: ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-sync",
                "--disable-background-networking", "--disable-component-update",
                "--host-resolver-rules=MAP * ~NOTFOUND"],
        });
        test.page = await test.browser.newPage();
        await test.page.setOfflineMode(true);
        test.client = await test.page.createCDPSession();
        await test.client.send("Browser.setDownloadBehavior",
            { behavior: "allow", downloadPath: test.downloads });
        test.#watch(html);
        await test.page.goto(pathToFileURL(html).href);
        await test.page.waitForSelector("html[data-ready]", { timeout: patience });
        return test;
    }

    #watch(html) {
        const own = pathToFileURL(html).href;
        this.page.on("request", (request) => {
            if (request.url() !== own && !/^(blob|data|about):/.test(request.url()))
                this.mishaps.push(`a request: ${request.url()}`);
        });
        this.page.on("pageerror", (error) => this.mishaps.push(`an error: ${error.stack}`));
        this.page.on("console", (message) => {
            if (message.type() === "error") this.mishaps.push(`on the console: ${message.text()}`);
        });
        this.page.on("dialog", async (dialog) => {
            this.mishaps.push(`a dialog: ${dialog.message()}`);
            await dialog.dismiss();
        });
    }

    async close() {
        await this.browser.close();
        rmSync(this.profile, { recursive: true, force: true });
    }

    /** Drops files or folders as a file manager does, and waits until they are checked. */
    async drop(...paths) {
        await this.letFall(...paths);
        await this.settled();
    }

    async letFall(...paths) {
        await this.page.evaluate(() => { document.getElementById("status").textContent = ""; });
        const data = { items: [], files: paths, dragOperationsMask: 1 };
        for (const type of ["dragEnter", "dragOver", "drop"])
            await this.client.send("Input.dispatchDragEvent", { type, x: 50, y: 50, data });
    }

    async settled() {
        await this.page.waitForFunction(
            () => document.getElementById("work").hidden &&
                document.getElementById("status").textContent !== "",
            { timeout: patience });
    }

    async clear() {
        if (await this.page.$eval("#result", (result) => !result.hidden)) await this.page.click("#clear");
    }

    texts(selector) {
        return this.page.$$eval(selector, (found) => found.map((one) => one.textContent));
    }

    /** What the list says of each package: name and state. */
    list() {
        return this.page.$$eval("#list .package", (buttons) => buttons.map((button) => ({
            path: button.dataset.path,
            state: button.querySelector(".state").textContent,
        })));
    }

    async filter(text, state) {
        await this.page.$eval("#filter-text", (field, value) => {
            field.value = value;
            field.dispatchEvent(new Event("input"));
        }, text);
        await this.page.select("#filter-state", state);
    }

    async choose(part) {
        await this.page.evaluate((wanted) => [...document.querySelectorAll("#list .package")]
            .find((button) => button.dataset.path.includes(wanted)).click(), part);
    }

    /** Clicks what makes a download. @returns its bytes */
    async download(click) {
        for (const name of readdirSync(this.downloads)) rmSync(join(this.downloads, name));
        await click();
        for (let waited = 0; waited < patience; waited += 100) {
            const [name] = readdirSync(this.downloads).filter((other) => !other.endsWith(".crdownload"));
            if (name !== undefined) return { name, bytes: readFileSync(join(this.downloads, name)) };
            await new Promise((resolve) => { setTimeout(resolve, 100); });
        }
        throw new Error("nothing was downloaded");
    }

    async look(scheme, width) {
        await this.page.emulateMediaFeatures([{ name: "prefers-color-scheme", value: scheme }]);
        await this.page.setViewport({ width, height: 1000 });
    }

    /** What axe has to say, as short texts. */
    async violations() {
        // As a debugger does: the policy of the page lets no other script in.
        const { violations } = await this.page.evaluate(
            `${this.axe}; axe.run(document, { iframes: false })`);
        return violations.flatMap(({ id, nodes }) =>
            nodes.map((node) => `${id}: ${node.target.join(" ")}: ${node.failureSummary}`));
    }
}

"use strict";

/** Shows what is found in one package. */
class FindingsView {
    static #perStep = 100;
    #explanations;
    #entry = null;

    /** @param explanations what `qenxml explain --json --all` says */
    constructor(explanations) {
        this.#explanations = new Map(explanations.map((entry) => [entry.code, entry]));
    }

    get entry() {
        return this.#entry;
    }

    /** @param buttons more to do with the package, beside its name */
    show(entry, ...buttons) {
        this.#entry = entry;
        byId("package-title").replaceChildren("Findings: ", foreign(entry.name));
        const list = element("ol", { class: "findings" });
        const content = byId("package-content");
        content.replaceChildren(
            element("p", { class: "path" }, foreign(entry.shown)),
            element("p", { class: `state ${entry.state.name}` }, entry.problem ?? entry.description),
            element("p", { class: "buttons" }, ...buttons),
            list,
        );
        this.#append(list, entry.findings, 0);
        if (entry.omitted > 0)
            content.append(
                element("p", {}, `${quantity(entry.omitted, "more finding")} cannot be shown here.`),
            );
    }

    clear() {
        this.#entry = null;
        byId("package-title").textContent = "Findings";
        byId("package-content").replaceChildren(element("p", {}, "Choose a package in the list."));
    }

    #append(list, findings, begin) {
        const end = begin + FindingsView.#perStep;
        list.append(...findings.slice(begin, end).map((finding) => this.#item(finding)));
        for (const mark of list.querySelectorAll(".excerpt mark"))
            mark.parentElement.scrollLeft = mark.offsetLeft - mark.parentElement.clientWidth / 2;
        if (end >= findings.length) return;
        const more = element("button", { type: "button" }, "Show more findings");
        const item = element("li", { class: "more" }, more);
        more.addEventListener("click", () => {
            item.remove();
            this.#append(list, findings, end);
            list.children[end].focus();
        });
        list.append(item);
    }

    #item(finding) {
        const explanation = this.#explanations.get(finding.code);
        const place = finding.line === undefined ? "" : `line ${finding.line}, column ${finding.column}: `;
        return element(
            "li",
            { class: `finding ${finding.severity}`, tabindex: "-1" },
            element(
                "h3",
                {},
                element("span", { class: "severity" }, finding.severity),
                ` ${place}`,
                foreign(finding.found),
            ),
            ...this.#excerpt(finding),
            this.#facts(finding, explanation),
            this.#explanation(explanation),
        );
    }

    /** The line of the file, with a caret below the place. */
    #excerpt({ excerpt }) {
        if (excerpt === undefined) return [];
        const characters = [...excerpt.text];
        const before = characters.slice(0, excerpt.caret).join("");
        const after = characters.slice(excerpt.caret + 1).join("");
        const mark = element("mark", {}, characters[excerpt.caret] ?? " ");
        return [
            element("pre", { class: "excerpt", dir: "ltr", tabindex: "0", "aria-label": "Line of the file" },
                before, mark, after),
        ];
    }

    #facts(finding, explanation) {
        const facts = element("dl");
        const add = (term, ...content) =>
            facts.append(element("div", {}, element("dt", {}, term), element("dd", {}, ...content)));
        if (finding.path !== "") add("where", element("code", {}, foreign(finding.path)));
        const records = finding.records.filter((record) => record.name !== "");
        if (records.length > 0)
            add(
                "of",
                ...records.flatMap((record, index) => [
                    `${index === 0 ? "" : ", "}${record.kind} “`,
                    foreign(record.name),
                    "”",
                ]),
            );
        add("so", foreign(finding.consequence.text));
        if (explanation !== undefined) add("cure", ...marked(explanation.cure));
        return facts;
    }

    #explanation({ code, title, cause, example }) {
        return element(
            "details",
            {},
            element("summary", {}, "Explain ", element("code", {}, code)),
            element("p", {}, `In general: ${title}. `, ...marked(cause)),
            element("p", {}, "Example:"),
            element("pre", { dir: "ltr", tabindex: "0", "aria-label": "Example" }, example),
        );
    }
}

"use strict";

/** The list of packages, filtered. */
class PackageList {
    static #perStep = 300;
    #packages;
    #choose;
    #limit = PackageList.#perStep;
    #chosen = null;

    /** @param choose called with a package that the user chooses */
    constructor(packages, choose) {
        this.#packages = packages;
        this.#choose = choose;
        byId("filter-text").addEventListener("input", () => this.#filter());
        byId("filter-state").addEventListener("change", () => this.#filter());
        byId("more-packages").addEventListener("click", () => {
            const first = this.#limit;
            this.#limit += PackageList.#perStep;
            this.refresh();
            byId("list").children[first].firstChild.focus();
        });
    }

    /** The packages that the filter lets through. */
    get shown() {
        return this.#packages.filtered(byId("filter-text").value.trim(), byId("filter-state").value);
    }

    set chosen(entry) {
        this.#chosen = entry;
        this.refresh();
    }

    /** Writes the list anew; the focus stays where it is. */
    refresh() {
        const focused = document.activeElement?.dataset.path;
        const { shown } = this;
        this.#writeChoice();
        byId("shown").textContent = `${quantity(shown.length, "package")} of ${this.#packages.all.length}`;
        byId("more-packages").hidden = shown.length <= this.#limit;
        byId("list").replaceChildren(...shown.slice(0, this.#limit).map((entry) => this.#item(entry)));
        if (focused !== undefined)
            [...byId("list").querySelectorAll("button")]
                .find((button) => button.dataset.path === focused)
                ?.focus();
    }

    #filter() {
        this.#limit = PackageList.#perStep;
        this.refresh();
        byId("list").dispatchEvent(new Event("filtered"));
    }

    /** The states that packages are in, with their numbers. */
    #writeChoice() {
        const choice = byId("filter-state");
        const { value } = choice;
        const options = [element("option", { value: "" }, "all")];
        for (const { name, text } of states) {
            const number = this.#packages.filtered("", name).length;
            if (number > 0 || name === value)
                options.push(element("option", { value: name }, `${text} (${number})`));
        }
        choice.replaceChildren(...options);
        choice.value = value;
    }

    #item(entry) {
        const button = element(
            "button",
            {
                type: "button",
                class: `package ${entry.state.name}`,
                "aria-current": entry === this.#chosen ? "true" : null,
                "data-path": entry.path,
                onclick: () => this.#choose(entry),
            },
            element("span", { class: "name" }, foreign(entry.name)),
            element("span", { class: "folder" }, foreign(entry.folder)),
            element("span", { class: "state" }, entry.description),
        );
        return element("li", {}, button);
    }
}

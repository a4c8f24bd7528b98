"use strict";

/** The element of the page with this identifier. */
function byId(id) {
    return document.getElementById(id);
}

/**
 * An element with what is in it. Texts are only ever texts: of what packages or files are called,
 * nothing becomes markup.
 *
 * @param attributes by their names; what begins with "on" is a function to call
 */
function element(name, attributes = {}, ...content) {
    const made = document.createElement(name);
    for (const [key, value] of Object.entries(attributes)) {
        if (key.startsWith("on")) made.addEventListener(key.slice(2), value);
        else if (value !== null) made.setAttribute(key, value);
    }
    made.append(...content);
    return made;
}

/** A text of others, whose direction of writing is its own affair. */
function foreign(text) {
    return element("bdi", {}, text);
}

/** A text in which "`" stands around parts of packages. */
function marked(text) {
    return text.split("`").map((part, index) => (index % 2 === 1 ? element("code", {}, part) : part));
}

/** "1 error", "2,000 errors". */
function quantity(number, noun) {
    return `${number.toLocaleString("en-US")} ${noun}${number === 1 ? "" : "s"}`;
}

/** The lines of a text that a page can show without being frozen; nobody reads more of them there. */
function beginningOf(text) {
    const limit = 200000;
    return text.length > limit ? text.slice(0, text.lastIndexOf("\n", limit) + 1) : text;
}

/** Text that the command has written for a terminal, without what stands before each message. */
function messageLines(messages) {
    return messages
        .split("\n")
        .map((line) => line.replace(/^qenxml: /, ""))
        .filter((line) => line !== "");
}

"use strict";

/** Why a request has no answer: it was stopped by the user. */
class Stopped extends Error {}

/** The worker that runs the command, and the requests that it has not answered yet. */
class Engine {
    #source;
    #worker = null;
    #pending = new Map();
    #nextId = 0;

    /** @param script what the worker runs */
    constructor(script) {
        this.#source = URL.createObjectURL(new Blob([script], { type: "text/javascript" }));
        this.#start();
    }

    /**
     * @param tell called with what the command says about how far it is
     * @returns a promise of the answer, which Stopped or another error may take the place of
     */
    ask(task, request = {}, tell = () => {}) {
        const id = this.#nextId++;
        return new Promise((resolve, reject) => {
            this.#pending.set(id, { resolve, reject, tell });
            this.#worker.postMessage({ id, task, request });
        });
    }

    /** Leaves all work that was begun. */
    stop() {
        this.#restart(new Stopped());
    }

    #start() {
        this.#worker = new Worker(this.#source);
        this.#worker.onmessage = ({ data }) => this.#receive(data);
        this.#worker.onerror = (event) => {
            event.preventDefault();
            this.#restart(new Error(event.message || "the worker ended"));
        };
    }

    #restart(error) {
        this.#worker.terminate();
        const pending = [...this.#pending.values()];
        this.#pending.clear();
        this.#start();
        for (const { reject } of pending) reject(error);
    }

    #receive({ id, answer, error, progress }) {
        const request = this.#pending.get(id);
        if (request === undefined) return;
        if (progress !== undefined) {
            request.tell(progress);
            return;
        }
        this.#pending.delete(id);
        if (error === undefined) {
            request.resolve(answer);
            return;
        }
        const failure = Object.assign(new Error(error.text), { name: error.name });
        // A file that cannot be read does no harm; after all else, the memory may be anything.
        if (error.name !== "NotReadableError" && error.name !== "NotFoundError") this.#restart(failure);
        request.reject(failure);
    }
}

/** What to tell of a request that failed. */
function sentenceOf(error) {
    if (error.name === "NotReadableError" || error.name === "NotFoundError")
        return "The browser cannot read it: it has changed, was moved, or is too large. Drop it again.";
    if (error instanceof RangeError || error.name === "RangeError" || /memory|allocat/i.test(error.message))
        return "It is too large for the memory that this browser gives a page. Use the command instead.";
    return `It cannot be handled here: ${error.message}. Use the command instead.`;
}

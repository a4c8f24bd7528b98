"use strict";

/** A file of the command's file system that keeps what is written to it, up to a limit. */
class Collected {
    #limit;
    #chunks = [];
    #size = 0;
    isCut = false;

    constructor(limit) {
        this.#limit = limit;
    }

    /** @param number of the device that it is; each has its own */
    placeIn(FS, path, number) {
        const noSpace = 51;
        const device = FS.makedev(64, number);
        FS.registerDevice(device, {
            write: (stream, buffer, offset, length) => {
                this.add(buffer.slice(offset, offset + length));
                if (this.isCut) throw new FS.ErrnoError(noSpace);
                return length;
            },
        });
        FS.mkdev(path, device);
    }

    add(bytes) {
        this.isCut ||= this.#size + bytes.length > this.#limit;
        if (this.isCut) return;
        this.#chunks.push(bytes);
        this.#size += bytes.length;
    }

    /** All that was written since the last call. */
    take() {
        const bytes = new Uint8Array(this.#size);
        let end = 0;
        for (const chunk of this.#chunks) {
            bytes.set(chunk, end);
            end += chunk.length;
        }
        this.#chunks = [];
        this.#size = 0;
        this.isCut = false;
        return bytes;
    }
}

/** The messages of the command, but for lines about how far it is: those are told at once. */
class Messages extends Collected {
    #tell;

    constructor(limit, tell) {
        super(limit);
        this.#tell = tell;
    }

    /** @param bytes a message, or a line that replaces what stands there, as on a terminal */
    add(bytes) {
        const carriageReturn = 13;
        if (bytes[0] !== carriageReturn) super.add(bytes);
        else this.#tell(new TextDecoder().decode(bytes).replace(/^\r|\x1b\[K$/g, ""));
    }
}

/**
 * Calls the command, which is a module of WebAssembly with a file system of its own in memory. The
 * tests call it in the same way.
 */
class Command {
    /** More bytes of output than a page can show. Writing more of it fails, as on a full disk. */
    static mostOutput = 2 ** 26;

    #output = new Collected(Command.mostOutput);
    #messages;

    /**
     * @param module what createQenxml() made
     * @param tell called with lines about how far the work is; the last one is empty
     */
    constructor(module, tell = () => {}) {
        this.module = module;
        this.#messages = new Messages(Command.mostOutput, tell);
        module.FS.mkdir("/run");
        this.#output.placeIn(module.FS, "/run/output", 0);
        this.#messages.placeIn(module.FS, "/run/messages", 1);
    }

    /**
     * Does what the command does with these arguments.
     *
     * @param files the files that it finds: their paths and bytes
     * @param result the file that it is to write; may be null
     * @returns the exit code, and as bytes the output, the messages and the result, which is null
     *     where there is none; and whether there was more output than can be shown
     */
    run(args, files = [], result = null) {
        this.#placeFiles(files);
        try {
            return {
                code: this.#call("Run", args),
                isCut: this.#output.isCut,
                output: this.#output.take(),
                messages: this.#messages.take(),
                result: result === null ? null : this.#take(result),
            };
        } finally {
            this.#removeFiles();
        }
    }

    /** The texts as outputs of the command show them. */
    escaped(texts) {
        this.#call("Escape", texts);
        return this.#takeJson();
    }

    /** The formats of `qenxml export`: name and title. */
    formats() {
        this.#call("Formats", []);
        return this.#takeJson();
    }

    #call(name, args) {
        const bytes = new TextEncoder().encode(args.map((argument) => argument + "\0").join(""));
        this.module.FS.writeFile("/run/arguments", bytes);
        return this.module[`_qenxml${name}`]();
    }

    #takeJson() {
        return JSON.parse(new TextDecoder().decode(this.#output.take()));
    }

    /** The content of a file, which is no longer there then; null if there is none. */
    #take(path) {
        const { FS } = this.module;
        if (!FS.analyzePath(path).exists) return null;
        const bytes = FS.readFile(path);
        FS.unlink(path);
        return bytes;
    }

    #placeFiles(files) {
        const { FS } = this.module;
        FS.mkdir("/packages");
        FS.chdir("/packages");
        for (const { path, bytes } of files) {
            const whole = `/packages/${path}`;
            FS.mkdirTree(whole.slice(0, whole.lastIndexOf("/")));
            FS.writeFile(whole, bytes, { canOwn: true });
        }
    }

    #removeFiles() {
        this.module.FS.chdir("/");
        this.#removeFolder("/packages");
    }

    #removeFolder(folder) {
        const { FS } = this.module;
        for (const name of FS.readdir(folder)) {
            const path = `${folder}/${name}`;
            if (name === "." || name === "..") continue;
            if (FS.isDir(FS.stat(path).mode)) this.#removeFolder(path);
            else FS.unlink(path);
        }
        FS.rmdir(folder);
    }
}

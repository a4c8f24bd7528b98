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

    placeIn(FS, path) {
        const noSpace = 51;
        const device = FS.makedev(64, 0);
        FS.registerDevice(device, {
            write: (stream, buffer, offset, length) => {
                this.isCut ||= this.#size + length > this.#limit;
                if (this.isCut) throw new FS.ErrnoError(noSpace);
                this.#chunks.push(buffer.slice(offset, offset + length));
                this.#size += length;
                return length;
            },
        });
        FS.mkdev(path, device);
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

/**
 * Calls the command, which is a module of WebAssembly with a file system of its own in memory. The
 * tests call it in the same way.
 */
class Command {
    /** More bytes of output than a page can show. Writing more of it fails, as on a full disk. */
    static mostOutput = 2 ** 26;

    #output = new Collected(Command.mostOutput);

    /** @param module what createQenxml() made */
    constructor(module) {
        this.module = module;
        module.FS.mkdir("/run");
        this.#output.placeIn(module.FS, "/run/output");
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
                messages: this.#take("/run/messages"),
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

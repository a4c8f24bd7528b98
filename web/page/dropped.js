"use strict";

/**
 * What a user has dropped or chosen.
 *
 * @typedef {object} Dropped
 * @property {{path: string, file: File}[]} files
 * @property {string[]} names what was dropped itself: paths of files, and folders
 * @property {string[]} problems sentences about what could not be taken
 */

/** A name that stays what it is on its way through the command; that of "-" would mean another. */
function usableName(name) {
    const text = new TextDecoder().decode(new TextEncoder().encode(name)).replaceAll("\0", "\uFFFD");
    return text === "-" ? "./-" : text;
}

/** @returns {Dropped} of a field for files or a folder */
function chosenFiles(list) {
    const files = [...list].map((file) => ({
        path: usableName(file.webkitRelativePath || file.name),
        file,
    }));
    return { files, names: [...new Set(files.map(topOf))], problems: [] };
}

function topOf({ path, file }) {
    return file.webkitRelativePath ? path.split("/")[0] : path;
}

/** @returns {Promise<Dropped>} */
async function droppedFiles(transfer) {
    // All that the browser tells of a drop has to be asked for at once. It may tell of folders in
    // two ways, of which some only have the one, and to a page from a file Chrome the other one.
    const items = [...transfer.items]
        .filter((item) => item.kind === "file")
        .map((item) => ({
            file: item.getAsFile(),
            entry: item.webkitGetAsEntry(),
            handle: item.getAsFileSystemHandle?.().catch(() => null),
        }));
    const dropped = { files: [], names: [], problems: [] };
    for (const { file, entry, handle } of items) {
        if (entry?.isDirectory) await addFolder(entry, await handle, dropped);
        else if (file) addFile(usableName(file.name), file, dropped);
    }
    return dropped;
}

function addFile(path, file, dropped) {
    dropped.files.push({ path, file });
    dropped.names.push(path);
}

async function addFolder(entry, handle, dropped) {
    const name = usableName(entry.name);
    try {
        const files = handle ? filesOfHandle(handle, name) : filesOfEntry(entry, name);
        dropped.files.push(...(await files));
        dropped.names.push(name);
    } catch {
        dropped.problems.push(
            `${name}: this browser does not let a page open a folder that is dropped; choose it ` +
                "with the button “Choose a folder”.",
        );
    }
}

async function filesOfHandle(folder, path) {
    const files = [];
    for await (const child of folder.values()) {
        const name = `${path}/${usableName(child.name)}`;
        if (child.kind === "directory") files.push(...(await filesOfHandle(child, name)));
        else files.push({ path: name, file: await child.getFile() });
    }
    return files;
}

async function filesOfEntry(folder, path) {
    const files = [];
    const reader = folder.createReader();
    for (;;) {
        const children = await new Promise((...calls) => reader.readEntries(...calls));
        if (children.length === 0) return files;
        for (const child of children) {
            const name = `${path}/${usableName(child.name)}`;
            if (child.isDirectory) files.push(...(await filesOfEntry(child, name)));
            else files.push({ path: name, file: await new Promise((...calls) => child.file(...calls)) });
        }
    }
}

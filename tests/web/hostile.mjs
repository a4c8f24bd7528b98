// Files that nobody wishes for.
import { mkdirSync, readFileSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { packagesIn } from "./support.mjs";

const uuid = "00112233-4455-6677-8899-aabbccddeeff";
const markup = "<img src=x onerror=hacked=1><script>hacked=1</script>";

/** Writes hostile files into a folder. @returns their names */
export function writeHostile(folder, samples) {
    mkdirSync(folder, { recursive: true });
    const good = readFileSync(join(samples, packagesIn(samples)[0]), "utf8");
    const escaped = markup.replaceAll("<", "&lt;");
    const renamed = good.replace(/<GrowerName>[^<]*/, `<GrowerName>${escaped}`)
        .replace(/<FarmName>[^<]*/, "<FarmName>\u202Eمزرعة السلام\u202C &amp; &lt;b&gt;");
    const contents = {
        [`<img src=x onerror=hacked=1>${uuid}.xml`]: renamed,
        [`\u202Egnp.${uuid}.xml`]: renamed,
        [`مزرعة ${uuid}.xml`]: renamed.replaceAll("Grower>", "Growe>"),
        [`a\nb "c" 'd' & ${uuid}.xml`]: renamed,
        [`--help=${uuid}.xml`]: `<RecPackage><Grower GrowerID="${escaped.replaceAll('"', "")}"/></RecPackage>`,
        "-": good,
        "javascript:hacked=1.xml": `<RecPackage ${"<".repeat(1000)}`,
        "season.zip": "PK\u0003\u0004 and so on",
        "empty.xml": "",
        "photo.png": "\u0089PNG\r\n\u001a\n",
        "deep.xml": "<a>".repeat(200000),
        [`${"x".repeat(200)}.xml`]: `<RecPackage>${"<Grower/>".repeat(3000)}</RecPackage>`,
    };
    for (const [name, content] of Object.entries(contents)) writeFileSync(join(folder, name), content);
    return Object.keys(contents);
}

/** A good package of about this many bytes: the growers of another one, again and again. */
export function largePackage(path, bytes) {
    const text = readFileSync(path, "utf8");
    const begin = text.indexOf("<Grower ");
    const end = text.lastIndexOf("</Grower>") + "</Grower>".length;
    const growers = text.slice(begin, end);
    let all = text.slice(0, begin);
    const parts = [all];
    for (let number = 0, size = 0; size < bytes; ++number, size += growers.length)
        parts.push(growers.replace(/"([0-9a-f]{8})-([0-9a-f]{4}-)/gi,
            (_, first, second) => `"${number.toString(16).padStart(8, "0")}-${second}`));
    all = parts.join("\n") + text.slice(end);
    return all;
}

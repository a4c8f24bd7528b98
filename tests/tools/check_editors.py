"""Replays what docs/editors.md gives editors on what `qenxml check` writes about the samples: each
finding is taken, with its place and severity, and nothing else is. What is replayed by expressions is
replayed by vim and Emacs, too, where they are installed.

Usage: check_editors.py COMMAND SOURCE_FOLDER
"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

command, source = sys.argv[1], pathlib.Path(sys.argv[2])
samples = source / "examples/packages"
page = (source / "docs/editors.md").read_text(encoding="utf-8")


def block(language):
    """The only block of the page in a language."""
    (text,) = re.findall(rf"^```{language}\n(.*?)^```$", page, re.MULTILINE | re.DOTALL)
    return text


def run(*arguments, folder):
    result = subprocess.run([command, "check", *arguments], cwd=folder, capture_output=True,
                            check=False, env={})
    assert result.returncode in (0, 1), result
    return result.stdout.decode("utf-8")


def described(finding, file):
    return (file, finding.get("line", 1), finding.get("column", 1), finding["severity"],
            finding["found"], finding["code"])


def findings_of(folder, *arguments):
    """All that is found, as the JSON says it."""
    document = json.loads(run("--json", *arguments, folder=folder))
    return sorted(described(finding, entry["file"])
                  for entry in document["files"] for finding in entry["findings"])


def taken_by_regexp(regexp, output):
    matches = filter(None, map(re.compile(regexp).search, output.splitlines()))
    return sorted((match[1], int(match[2]), int(match[3]), *match.groups()[3:])
                  for match in matches)


def regexp_of_vscode():
    task = json.loads(block("json"))["tasks"][0]
    pattern = task["problemMatcher"]["pattern"]
    assert [pattern[part] for part in ("file", "line", "column", "severity", "message", "code")
            ] == [1, 2, 3, 4, 5, 6]
    return pattern["regexp"]


def taken_by_vim_format(output):
    """Reads "errorformat" as the manual of vim explains what is used of it here."""
    (entries,) = re.findall(r"errorformat=(.*)", block("vim"))
    items = {"%f": r"(?P<f>.+?)", "%l": r"(?P<l>\d+)", "%c": r"(?P<c>\d+)", "%t": "(?P<t>.)",
             "%m": "(?P<m>.+)", "%.%#": ".*"}
    taken = []
    rules = []
    for entry in entries.replace("\\ ", " ").split(","):
        ignored = entry.startswith("%-G")
        parts = re.split(r"(%\.%#|%.)", entry.removeprefix("%-G"))
        rules.append((ignored, "".join(items.get(part) or re.escape(part) for part in parts)))
    for line in output.splitlines():
        ignored, match = next((ignored, match) for ignored, rule in rules
                              if (match := re.fullmatch(rule, line)))
        if not ignored:
            message, code = re.fullmatch(r"(.*) \[(.*)\]", match["m"]).groups()
            severity = {"e": "error", "w": "warning", "n": "note"}[match["t"]]
            taken.append((match["f"], int(match["l"]), int(match["c"]), severity, message, code))
    return sorted(taken)


def regexp_of_emacs():
    """The expression in Python's form, for which "(" and "\\(" change their meanings."""
    (text,) = re.findall(r'"(\^(?:[^"\\]|\\.)*)"', block("elisp"))
    text = text.replace("\\n", "\n").replace("\\\\", "\\")
    return re.sub(r"\\([(|)])|([(|)])", lambda part: part[1] or "\\" + part[2], text)


def taken_by_emacs_regexp(output):
    matches = filter(None, map(re.compile(regexp_of_emacs()).search, output.splitlines()))
    return sorted((match[1], int(match[2]), int(match[3]),
                   "warning" if match[4] else "note" if match[5] else "error")
                  for match in matches)


def taken_by_vim(output, folder):
    (folder / "output").write_text(output, encoding="utf-8")
    script = block("vim") + """
cgetfile output
call writefile(map(getqflist(), 'json_encode([bufname(v:val.bufnr), v:val.lnum, v:val.col,
    \\ v:val.type, v:val.text, v:val.valid])'), 'taken')
qall!
"""
    (folder / "script.vim").write_text(script, encoding="utf-8")
    subprocess.run(["vim", "-u", "NONE", "-i", "NONE", "-n", "-es", "--cmd", "set nocp enc=utf-8",
                    "-S", "script.vim"], cwd=folder, check=True, timeout=60,
                   env={"HOME": str(folder), "PATH": os.environ["PATH"]})
    taken = []
    for line in (folder / "taken").read_text(encoding="utf-8").splitlines():
        file, number, column, severity, text, valid = json.loads(line)
        assert valid, line
        message, code = re.fullmatch(r"(.*) \[(.*)\]", text).groups()
        severity = {"e": "error", "w": "warning", "n": "note"}[severity]
        taken.append((file, number, column, severity, message, code))
    return sorted(taken)


def taken_by_emacs(output, folder):
    (folder / "output").write_text(output, encoding="utf-8")
    script = block("elisp") + """
(with-temp-buffer
  (insert-file-contents "output")
  (compilation-mode)
  (setq-local compilation-error-regexp-alist '(qenxml))
  (let ((inhibit-read-only t))
    (compilation-parse-errors (point-min) (point-max)))
  (goto-char (point-min))
  (let (taken)
    (while (not (eobp))
      (let ((message (get-text-property (point) 'compilation-message)))
        (when (and message (bolp))
          (let ((place (compilation--message->loc message)))
            (push (vector (caar (compilation--loc->file-struct place))
                          (compilation--loc->line place) (compilation--loc->col place)
                          (compilation--message->type message))
                  taken))))
      (forward-line 1))
    (with-temp-file "taken" (insert (json-encode (vconcat taken))))))
"""
    (folder / "script.el").write_text("(require 'json)\n" + script, encoding="utf-8")
    subprocess.run(["emacs", "--batch", "-Q", "-l", "script.el"], cwd=folder, check=True,
                   timeout=60, env={"HOME": str(folder), "PATH": os.environ["PATH"]})
    severities = ["note", "warning", "error"]
    return sorted((file, line, column, severities[kind]) for file, line, column, kind
                  in json.loads((folder / "taken").read_text(encoding="utf-8")))


def compare(output, expected):
    places = sorted(finding[:4] for finding in expected)
    assert taken_by_regexp(regexp_of_vscode(), output) == expected
    assert taken_by_vim_format(output) == expected
    assert taken_by_emacs_regexp(output) == places
    with tempfile.TemporaryDirectory() as folder:
        folder = pathlib.Path(folder)
        if shutil.which("vim"):
            assert taken_by_vim(output, folder) == expected
        if shutil.which("emacs"):
            assert taken_by_emacs(output, folder) == places


for editor in ("vim", "emacs"):
    if not shutil.which(editor):
        print(f"{editor} is not installed")

# Each sample by itself, so that no finding is one of too many; and many files.
outputs = []
everything = []
for path in sorted(samples.rglob("*.xml")):
    name = str(path.relative_to(samples))
    outputs.append(run(name, folder=samples))
    everything += findings_of(samples, name)
assert len(everything) > 60, "the samples are there"
assert any(finding[5] == "name-not-uuid" for finding in everything)
compare("".join(outputs), sorted(everything))

# More than are shown, names that look like places, and lines of packages that look like findings.
with tempfile.TemporaryDirectory() as folder:
    folder = pathlib.Path(folder)
    trap = b"<RecPackage><Grower>\n<X>a.xml:1:1: error: none [none]</X>\n" + b"<Y/>\n" * 30
    name = "a b:3: c 00112233-4455-6677-8899-aabbccddeeff.xml"
    (folder / name).write_bytes(trap + b"</Grower></RecPackage>")
    (folder / "good 11112233-4455-6677-8899-aabbccddeeff.xml").write_bytes(b"<RecPackage/>")
    output = run(name, "missing.xml", folder=folder)
    found = findings_of(folder, name, "missing.xml")
    codes = [finding[5] for finding in found]
    shown = [finding for i, finding in enumerate(found) if codes[:i].count(finding[5]) < 10]
    assert len(shown) < len(found), "not all are shown"
    compare(output, shown)

"""What a document has people type: blocks of commands with what they print, and the files that it has
them write. Above the block of a file stands its name: <!-- recs.sql -->.

In a block of commands (```console) a command begins with "$ " and goes on in the next line where the
line ends in "|" or "\\". The lines after it are what it prints; "..." stands for any lines. A command
ends with 0 unless "echo $?" follows.
"""
import pathlib
import re
import subprocess
from typing import NamedTuple

block = re.compile(r"^##? (?P<title>[^\n]*)$|"
                   r"(?:^<!-- (?P<file>\S+) -->\n)?^```(?P<kind>\w+)\n(?P<text>.*?)^```$", re.M | re.S)


class Command(NamedTuple):
    text: str
    shown: str    # what the document says that it prints
    printed: str  # what it prints
    errors: str
    status: int


def split(text):
    """The commands of a block, each with what it prints."""
    commands = []
    goes_on = False
    for line in text.splitlines(keepends=True):
        if line.startswith("$ "):
            commands.append([line[2:], ""])
        else:
            commands[-1][0 if goes_on else 1] += line
        goes_on = (line.startswith("$ ") or goes_on) and line.rstrip("\n").endswith(("|", "\\"))
    return commands


def run_block(text, folder, environment):
    """Runs the commands in one shell, as somebody does who types them one after the other."""
    commands = split(text)
    mark = "\x1e"
    script = "".join(f"{command}\nshown_status=$?; printf '{mark}%s{mark}' $shown_status; "
                     f"printf '{mark}' >&2; (exit $shown_status)\n" for command, _ in commands)
    result = subprocess.run(["bash", "-c", script], cwd=folder, env=environment,
                            capture_output=True, text=True)
    parts = result.stdout.split(mark)
    errors = result.stderr.split(mark)
    if len(errors) != len(commands) + 1:
        raise ValueError(f"{script} prints {result.stdout} and {result.stderr}")
    return [Command(command, shown, parts[2 * i], errors[i], int(parts[2 * i + 1]))
            for i, (command, shown) in enumerate(commands)]


def run_section(document, title, folder, environment):
    """Writes the files of a section into a folder and runs its commands there."""
    current = None
    done = []
    for match in block.finditer(pathlib.Path(document).read_text(encoding="utf-8")):
        if match["title"]:
            current = match["title"]
        elif current == title and match["file"]:
            (pathlib.Path(folder) / match["file"]).write_text(match["text"], encoding="utf-8")
        elif current == title and match["kind"] == "console":
            done += run_block(match["text"], folder, environment)
    if not done:
        raise ValueError(f"{document} has no commands under \"{title}\"")
    return done


def titles(document):
    """The sections that have commands, in their order."""
    found = []
    current = None
    for match in block.finditer(pathlib.Path(document).read_text(encoding="utf-8")):
        current = match["title"] or current
        if match["kind"] == "console" and current not in found:
            found.append(current)
    return found


def is_as_shown(command):
    """Whether a command prints what the document says."""
    pattern = "".join(".*" if line == "...\n" else re.escape(line)
                      for line in command.shown.splitlines(keepends=True))
    return re.fullmatch(pattern, command.printed, re.S) is not None


def failures_of(commands):
    """Commands that fail, or print something else than the document says."""
    failures = []
    for command, following in zip(commands, [*commands[1:], None]):
        asked = following is not None and following.text.strip() == "echo $?"
        if command.status != 0 and not asked:
            failures.append(f"$ {command.text}exit code {command.status}: {command.errors}")
        if not is_as_shown(command):
            failures.append(f"$ {command.text}prints\n{command.printed}instead of\n{command.shown}")
    return failures

"""Runs the examples of a document: the fenced blocks marked "console" hold commands behind "$ ",
with further lines of a command behind "> ", and what they print. A fenced block that follows the
comment <!-- file: name --> is the content of a file that the commands find."""

import dataclasses
import os
import re
import subprocess

_FENCE = re.compile(
    r"(?:^<!-- file: (?P<file>\S+) -->\n)?"
    r"^```(?P<language>\w*)\n(?P<content>.*?)^```$", re.MULTILINE | re.DOTALL)

_END = "the end of the output"
_RUN_SECONDS = 600


@dataclasses.dataclass
class Command:
    """A command of an example, where it stands, and what it has to print on both outputs."""

    line: int
    text: str
    expected: str


@dataclasses.dataclass
class Example:
    """The files and commands of a document, in their order: (name, content) or Command."""

    steps: list

    def commands(self):
        return [step for step in self.steps if isinstance(step, Command)]


def _commands(content, first_line):
    for number, line in enumerate(content.splitlines(), first_line):
        if line.startswith("$ "):
            command = Command(number, line[2:], "")
            yield command
        elif line.startswith("> ") and not command.expected:
            command.text += "\n" + line[2:]
        else:
            command.expected += line + "\n"


def read_example(document):
    """The example of a document's text."""
    steps = []
    for block in _FENCE.finditer(document):
        if block["file"]:
            steps.append((block["file"], block["content"]))
        elif block["language"] == "console":
            first_line = document.count("\n", 0, block.start("content")) + 1
            steps += _commands(block["content"], first_line)
    return Example(steps)


class _Shell:
    """A shell that all commands of a document run in, so that variables and "$?" hold on."""

    def __init__(self, folder, environment):
        script, commands = os.pipe()
        self._commands = os.fdopen(commands, "w")
        self._process = subprocess.Popen(
            ["bash", "--norc", f"/dev/fd/{script}"], cwd=folder, env=environment, text=True,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
            pass_fds=[script])
        os.close(script)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._commands.close()
        self._process.stdout.close()
        self._process.wait(_RUN_SECONDS)

    def run(self, command):
        """What the command prints. A last line without an end gets one, as the reader sees it."""
        # The status is kept over the echo, for a following "echo $?".
        self._commands.write(f"{command}\n(_s=$?; echo; echo '{_END}'; exit $_s)\n")
        self._commands.flush()
        lines = []
        for line in self._process.stdout:
            if line == _END + "\n":
                break
            lines.append(line)
        text = "".join(lines).removesuffix("\n")
        return text if text.endswith("\n") or not text else text + "\n"


def run_example(example, folder, environment):
    """Runs the example in the folder; gives those of its commands that print something else, each
    with what it printed."""
    wrong = []
    with _Shell(folder, environment) as shell:
        for step in example.steps:
            if not isinstance(step, Command):
                (folder / step[0]).write_text(step[1], encoding="utf-8")
                continue
            printed = shell.run(step.text)
            if printed != step.expected:
                wrong.append((step, printed))
    return wrong


def example_environment(build, tools):
    """The environment in which the examples run: the built metagen and the replay SDK, and else the
    system's own programs, whatever stands before them on the path."""
    return {"PATH": f"{build}:{tools}:/usr/bin:{os.environ['PATH']}", "LANG": "C.UTF-8",
            "HOME": "/nonexistent", "QYRA_SDK": str(build / "sdk")}

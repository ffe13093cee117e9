"""What the Tab key makes of metagen's command line in bash and in zsh."""

import os
import pathlib
import subprocess
import tempfile
import unittest

from shell import COMPLETIONS, Shell

LINT_LINES = {
    "metagen-lint --ba": "metagen-lint --base ",
    "metagen-lint --st": "metagen-lint --strict ",
    "metagen-lint --base b": "metagen-lint --base base.json ",
    "metagen-lint --format s": "metagen-lint --format sarif ",
    "metagen-lint --strict m": "metagen-lint --strict my\\ stripped.json ",
    "metagen-lint --disable scaling-u": "metagen-lint --disable scaling-unit ",
}
# Lines and what the Tab key makes of them, in a folder with the files below.
FILES = ("base.json", "combined.json", "my stripped.json", "notes.txt", "tables.inl", "tables.bin",
         "sub/inner.json", "sub/inner.txt", "sub/parts.inl", "sub/parts.bin")
LINES = {
    "metagen du": "metagen dump ",
    "metagen DU": "metagen dump ",
    "metagen g": "metagen gen",
    "metagen c": "metagen combine ",
    "metagen x": "metagen x",
    "metagen dump ": "metagen dump -o ",
    "metagen DUMP ": "metagen DUMP -o ",
    "metagen combine -o out.json ": "metagen combine -o out.json -i ",
    "metagen diff -l a.json -o d.txt ": "metagen diff -l a.json -o d.txt -r ",
    "metagen dump -o out.json ": "metagen dump -o out.json ",
    "metagen unknown ": "metagen unknown ",
    "metagen combine -i b": "metagen combine -i base.json ",
    "metagen combine -o c": "metagen combine -o combined.json ",
    "metagen diff -l b": "metagen diff -l base.json ",
    "metagen diff -l base.json -r c": "metagen diff -l base.json -r combined.json ",
    "metagen diff -o n": "metagen diff -o notes.txt ",
    "metagen genm -i m": "metagen genm -i my\\ stripped.json ",
    "metagen genm -i my\\ s": "metagen genm -i my\\ stripped.json ",
    "metagen genh -i s": "metagen genh -i sub/",
    "metagen genh -i sub/": "metagen genh -i sub/inner.json ",
    "metagen genh -o t": "metagen genh -o tables ",
    "metagen genm -o sub/p": "metagen genm -o sub/parts ",
    "metagen genm -x t": "metagen genm -x t",
    "metagen-schema --b": "metagen-schema --base ",
    "metagen-schema --base b": "metagen-schema --base base.json ",
    "metagen-schema --base base.json -": "metagen-schema --base base.json -o ",
    "metagen-schema -o sub/": "metagen-schema -o sub/inner.json ",
    "metagen-show t": "metagen-show tables.bin ",
    "metagen-show sub/p": "metagen-show sub/parts.bin ",
}


class CompletionTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="metagen-test-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        for name in FILES:
            path = self.folder / name
            path.parent.mkdir(exist_ok=True)
            path.touch()

    def completed(self, shell_name):
        with Shell(shell_name, self.folder) as shell:
            return {line: shell.complete(line)
                    for line in [*LINES, *LINT_LINES, "metagen genh -i n"]}

    def test_bash(self):
        self.assertEqual(LINES | LINT_LINES | {"metagen genh -i n": "metagen genh -i n"}, self.completed("bash"))

    def test_zsh(self):
        # As zsh has it: where no file fits, any file is offered.
        self.assertEqual(LINES | LINT_LINES | {"metagen genh -i n": "metagen genh -i notes.txt "},
                         self.completed("zsh"))

    def offered_by_bash(self, *words):
        """All that bash offers for the last of the words."""
        script = ('source "$0"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _metagen;'
                  ' printf "%s\\n" "${COMPREPLY[@]}"')
        run = subprocess.run(["bash", "-c", script, COMPLETIONS / "metagen.bash", *words],
                             cwd=self.folder, env={"PATH": os.environ["PATH"]}, text=True,
                             capture_output=True, check=True)
        self.assertEqual("", run.stderr)
        return run.stdout.splitlines()

    def test_all_that_bash_offers(self):
        self.assertEqual(["combine", "diff", "dump", "genh", "genm"],
                         self.offered_by_bash("metagen", ""))
        self.assertEqual(["-l", "-r", "-o"], self.offered_by_bash("metagen", "diff", ""))
        self.assertEqual(["base.json", "combined.json", "my stripped.json", "sub"],
                         sorted(self.offered_by_bash("metagen", "diff", "-l", "")))
        self.assertEqual(["sub", "tables"],
                         sorted(self.offered_by_bash("metagen", "genm", "-o", "")))

    def test_the_words_are_those_that_metagen_knows(self):
        build = pathlib.Path(os.environ.get(
            "METAGEN_BUILD", COMPLETIONS.parent / "build" / "release"))
        usage = subprocess.run([build / "metagen"], text=True, capture_output=True, check=True)
        for line in usage.stdout.splitlines()[1:]:
            command, *options = line.split()
            with self.subTest(command):
                self.assertEqual(options[::2], self.offered_by_bash("metagen", command, ""))


if __name__ == "__main__":
    unittest.main()

"""The manual tells the truth: its examples print what it says, it knows every message, and both its
forms can be made and read."""

import html
import os
import pathlib
import re
import subprocess
import tempfile
import unittest

from console import example_environment, read_example, run_example
from messages import messages_of_sources

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("METAGEN_BUILD", ROOT / "build" / "release"))
MANUAL = ROOT / "docs" / "manual.md"


PAGE = BUILD / "manual" / "manual.html"

# The texts of the JSON library's errors, which stand in no source of ours.
LIBRARY_MESSAGES = [
    '"type mismatch! call is<type>() before get<type>()" && is<object>()',
    '"type mismatch! call is<type>() before get<type>()" && is<std::string>()']


def shown_text(page):
    """What a page of HTML shows, with a blank for every white space."""
    text = html.unescape(re.sub(r"<style>.*?</style>|<[^>]*>", "", page, flags=re.DOTALL))
    return re.sub(r"\s+", " ", text)


class ConsoleTest(unittest.TestCase):
    """The runner itself."""

    DOCUMENT = """\
<!-- file: a.txt -->
```text
one
two
```

```console
$ cat a.txt
one
two
$ x=3; false
$ echo "$? $x"; printf end >&2
1 3
end
```

```console
$ cat <<END
> text
> END
text
$ echo wrong
right
```

```sh
not run
```
"""

    def test_it_runs_and_compares(self):
        example = read_example(self.DOCUMENT)
        with tempfile.TemporaryDirectory(prefix="metagen-test-") as folder:
            wrong = run_example(example, pathlib.Path(folder), os.environ)
        self.assertEqual([("echo wrong", 22, "right\n", "wrong\n")],
                         [(step.text, step.line, step.expected, printed)
                          for step, printed in wrong])


class ManualTest(unittest.TestCase):
    maxDiff = None

    def test_the_examples_print_what_it_says(self):
        text = MANUAL.read_text(encoding="utf-8").replace("/usr/share/metagen", str(ROOT))
        example = read_example(text)
        self.assertGreaterEqual(len(example.commands()), 15)
        with tempfile.TemporaryDirectory(prefix="metagen-test-") as folder:
            environment = example_environment(BUILD, ROOT / "tools")
            for step, printed in run_example(example, pathlib.Path(folder), environment):
                with self.subTest(f"line {step.line}: {step.text}"):
                    self.assertEqual(step.expected, printed)

    def test_it_knows_every_message(self):
        shown = shown_text(PAGE.read_text(encoding="utf-8"))
        messages = messages_of_sources(ROOT / "src") + LIBRARY_MESSAGES
        self.assertGreater(len(messages), 50)
        self.assertEqual([], [message for message in messages if message not in shown])

    def test_the_man_page_reads_without_warnings(self):
        run = subprocess.run(
            ["man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", BUILD / "manual/metagen.1"],
            env=os.environ | {"MANROFFSEQ": "", "MANWIDTH": "80", "LC_ALL": "C.UTF-8"}, text=True,
            capture_output=True, check=True)
        self.assertEqual("", run.stderr)

    def test_the_man_page_has_its_name_and_sections(self):
        shown = subprocess.run(["man", "-l", BUILD / "manual/metagen.1"], text=True,
                               env=os.environ | {"MANWIDTH": "80", "LC_ALL": "C.UTF-8"},
                               capture_output=True, check=True).stdout
        self.assertRegex(shown, "NAME\n +metagen +- +metadata of a rendering SDK's plugin classes")
        for heading in re.findall("^# (.*)$", MANUAL.read_text(encoding="utf-8"), re.MULTILINE):
            self.assertIn(f"\n{heading.upper()}\n", shown)

    def test_the_page_is_whole_and_loads_nothing(self):
        page = PAGE.read_text(encoding="utf-8")
        for heading in re.findall("^#+ (.*)$", MANUAL.read_text(encoding="utf-8"), re.MULTILINE):
            self.assertRegex(page, rf"<h\d [^>]*>{heading}</h\d>")
        self.assertEqual([], re.findall(r"""(?:src|href)=["'](?!#)[^"']*|url\(""", page))


if __name__ == "__main__":
    unittest.main()

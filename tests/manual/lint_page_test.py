"""docs/lint.md tells the truth: it has a section for each rule, its examples are found as it says, and
it knows every option."""

import os
import pathlib
import re
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("METAGEN_BUILD", ROOT / "build" / "release"))
PAGE = (ROOT / "docs" / "lint.md").read_text(encoding="utf-8")
RULES = PAGE[PAGE.index("\n# Rules\n"):]
SECTIONS = dict(re.findall(r"^## ([a-z-]+)\n(.*?)(?=^##? |\Z)", RULES, re.MULTILINE | re.DOTALL))
EXAMPLE = re.compile(r"```json\n(.*?)```\n\n```text\n(.*?)```", re.DOTALL)


def files_of_page():
    return dict(re.findall(r"<!-- file: (\S+) -->\n```json\n(.*?)```", PAGE, re.DOTALL))


class LintPageTest(unittest.TestCase):
    maxDiff = None

    def run_lint(self, *arguments, folder=None):
        return subprocess.run([BUILD / "metagen-lint", *arguments], cwd=folder, text=True,
                              capture_output=True, check=False)

    def test_each_rule_has_its_section(self):
        listed = [line.split()[:2] for line in self.run_lint("--rules").stdout.splitlines()]
        self.assertEqual(listed, [[name, text.split()[0].rstrip(".").lower()]
                                  for name, text in SECTIONS.items()])

    def test_the_examples_are_found_as_it_says(self):
        with tempfile.TemporaryDirectory(prefix="metagen-test-") as folder:
            for name, content in files_of_page().items():
                pathlib.Path(folder, name).write_text(content, encoding="utf-8")
            for name, text in SECTIONS.items():
                if name == "sdk-default":  # its example is an SDK
                    continue
                (example, findings), = EXAMPLE.findall(text)
                is_whole = example.startswith('{"')
                frame = '{{"version": 1, "plugins": {{\n{}}}}}\n'
                document = example if is_whole else frame.format(example)
                pathlib.Path(folder, "stripped.json").write_text(document, encoding="utf-8")
                previous = ["--previous", "previous.json"] if "**--previous**" in text else []
                with self.subTest(name):
                    run = self.run_lint("--base", "base.json", *previous, "stripped.json",
                                        folder=folder)
                    self.assertEqual((findings, ""), (run.stdout, run.stderr))
                    self.assertIn(f"[{name}]\n", run.stdout)

    def test_the_bundled_catalogue_lacks_a_default_and_that_is_mended_as_it_says(self):
        text = SECTIONS["sdk-default"]
        [finding] = re.findall(r"```text\n(.*?)```", text, re.DOTALL)
        [mended] = re.findall(r"```json\n(.*?)```", text, re.DOTALL)
        base = ROOT / "tests" / "golden" / "dump" / "bundled" / "base.json"
        with tempfile.TemporaryDirectory(prefix="metagen-test-") as folder:
            for plugins, expected in (("", finding), (mended, "")):
                pathlib.Path(folder, "stripped.json").write_text(
                    f'{{"version": 1, "plugins": {{{plugins}}}}}', encoding="utf-8")
                run = self.run_lint("--base", base, "stripped.json", folder=folder)
                self.assertEqual((expected, ""), (run.stdout, run.stderr))

    def test_each_option_is_told(self):
        options = set(re.findall(r"--[a-z]+", self.run_lint("--help").stdout))
        self.assertEqual(options, set(re.findall(r"\\(--[a-z]+)\*\*", PAGE)))


if __name__ == "__main__":
    unittest.main()

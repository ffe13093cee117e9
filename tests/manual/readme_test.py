"""README.md tells the truth: its first own document, written and used with an installed metagen as
it says, gives what it shows."""

import json
import os
import pathlib
import subprocess
import tempfile
import unittest

from jsonschema import Draft202012Validator

from console import read_example, run_example

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("METAGEN_BUILD", ROOT / "build" / "release"))


def refusals(schema, document):
    """What the schema in a file says against the document in another."""
    validator = Draft202012Validator(json.loads(schema.read_text(encoding="utf-8")))
    content = json.loads(document.read_text(encoding="utf-8"))
    return [f"{error.json_path}: {error.message}" for error in validator.iter_errors(content)]


class ReadmeTest(unittest.TestCase):
    maxDiff = None

    def test_the_first_command(self):
        run = subprocess.run([ROOT / "demo"], stdin=subprocess.DEVNULL, capture_output=True,
                             text=True, check=False)
        self.assertEqual(0, run.returncode, run.stdout + run.stderr)
        self.assertIn("\nThe compiled-in and the loaded tables agree.\n", run.stdout)
        self.assertIn('build/demo/mistake.json:7:9: error: the SDK\'s "AreaLight" has no parameter '
                      '"u_sise" (did you mean "u_size"?)', run.stdout)

    def test_the_first_own_document(self):
        with tempfile.TemporaryDirectory(prefix="metagen-test-") as name:
            folder = pathlib.Path(name)
            prefix, home = folder / "installed", folder / "home"
            home.mkdir()
            subprocess.run(["cmake", "--install", BUILD, "--prefix", prefix], check=True,
                           stdout=subprocess.DEVNULL)
            text = (ROOT / "README.md").read_text(encoding="utf-8").replace("/usr/", f"{prefix}/")
            example = read_example(text)
            self.assertGreaterEqual(len(example.commands()), 7)
            environment = {"PATH": f"{prefix / 'bin'}:{os.environ['PATH']}", "LANG": "C.UTF-8",
                           "HOME": str(home)}
            for step, printed in run_example(example, home, environment):
                with self.subTest(f"line {step.line}: {step.text}"):
                    self.assertEqual(step.expected, printed)

            self.assertEqual(
                ["base.json", "changes.html", "combined.json", "handlers.bin", "handlers.inl",
                 "mistake.json", "parameters.bin", "parameters.inl", "stripped.json"],
                sorted(path.name for path in home.iterdir()))
            self.assertIn('\t.add("fog_color", HandlerTypes::Color, 0.9f, 1.f, 0.95f);\n',
                          (home / "handlers.inl").read_text(encoding="utf-8"))
            for line in ('\t.add("refract_ior", "float texture", 0, 1.5f)\n',
                         '\t{ "MeshFile", {"file"}}\n', '\t\t{ "fog_depth", {} }\n'):
                self.assertIn(line, (home / "parameters.inl").read_text(encoding="utf-8"))
            # The schema that the document names is where it says, and finds nothing wrong.
            stripped = home / "stripped.json"
            schema = json.loads(stripped.read_text(encoding="utf-8"))["$schema"]
            self.assertEqual(f"file://{prefix}/share/metagen/schemas/stripped.schema.json", schema)
            self.assertEqual([], refusals(pathlib.Path(schema.removeprefix("file://")), stripped))


if __name__ == "__main__":
    unittest.main()

"""The example host: whole runs, with the tables that its build generated and with broken ones."""

import os
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "commands"))
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "oracle"))
import genh  # noqa: E402
import genm  # noqa: E402
from harness import GOLDEN, LAUNCHER, environment_of_run  # noqa: E402

AGREE = "The compiled-in and the loaded tables agree."
DIFFER = "The compiled-in and the loaded tables differ."


class HostTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="metagen-test-"))
        self.addCleanup(shutil.rmtree, self.folder)

    def copy_tables(self, host):
        for name in ("handlers.bin", "meta.bin"):
            shutil.copy(pathlib.Path(os.environ[f"{host}_TABLES"]) / name, self.folder)

    def run_host(self, host, *arguments):
        finished = subprocess.run(
            [*LAUNCHER, os.environ[f"{host}_HOST"], *arguments], cwd=self.folder,
            env=environment_of_run({}), stdin=subprocess.DEVNULL, capture_output=True,
            timeout=300, check=False)
        texts = [output.decode("utf-8").replace("\r\n", "\n")
                 for output in (finished.stdout, finished.stderr)]
        return finished.returncode, *texts


class ExampleHost(HostTest):
    """With the demo's document."""

    def setUp(self):
        super().setUp()
        self.copy_tables("EXAMPLE")

    def compare(self, *arguments):
        return self.run_host("EXAMPLE", "handlers.bin", "meta.bin", *arguments)

    def assert_different(self, *lines):
        status, printed, errors = self.compare()
        self.assertEqual((1, ""), (status, errors))
        self.assertEqual([*lines, DIFFER], printed.splitlines()[-len(lines) - 1:])

    def assert_unusable(self, message, status, printed, errors):
        self.assertEqual((2, message), (status, errors))
        self.assertNotIn(AGREE, printed)

    def test_its_tables_are_those_that_the_rules_give(self):
        document = genm.read_document(GOLDEN / "combine" / "bundled" / "combined.json")
        self.assertEqual(genh.genh(document)[1], (self.folder / "handlers.bin").read_bytes())
        self.assertEqual(genm.genm(document).binary, (self.folder / "meta.bin").read_bytes())

    def test_the_tables_agree(self):
        status, printed, errors = self.compare()
        self.assertEqual((0, ""), (status, errors))
        lines = printed.splitlines()
        self.assertEqual(["plugin", "category", "parameters", "handlers", "files", "scaling"],
                         lines[0].split())
        self.assertEqual(["SkyDomeLight", "light", "27", "2", "1", "1"],
                         next(line for line in lines if line.startswith("SkyDomeLight ")).split())
        self.assertEqual(AGREE, lines[-1])

    def test_one_plugin_in_full(self):
        status, printed, errors = self.compare("SpotLight")
        self.assertEqual((0, ""), (status, errors))
        self.assertEqual(SPOT_LIGHT + AGREE + "\n", printed)

    def test_a_plugin_that_is_not_there(self):
        self.assert_unusable("there is no plugin X\n", *self.compare("X"))

    def test_the_command_line(self):
        usage = "usage: example_host <handlers.bin> <meta.bin> [plugin]\n"
        self.assertEqual((2, "", usage), self.run_host("EXAMPLE"))
        self.assertEqual((2, "", usage), self.run_host("EXAMPLE", "handlers.bin"))
        self.assertEqual((2, "", usage), self.run_host("EXAMPLE", *"abcd"))

    def test_a_file_that_is_not_there(self):
        (self.folder / "meta.bin").unlink()
        self.assert_unusable("meta.bin: can't be opened\n", *self.compare())

    def test_a_file_of_the_other_kind(self):
        shutil.copy(self.folder / "meta.bin", self.folder / "handlers.bin")
        self.assert_unusable("handlers.bin: at byte 0: the table is no HDLR table\n",
                             *self.compare())

    def test_a_file_that_ends_early(self):
        table = (self.folder / "meta.bin").read_bytes()
        (self.folder / "meta.bin").write_bytes(table[:1000])
        status, printed, errors = self.compare()
        self.assert_unusable(errors, status, printed, errors)
        self.assertRegex(errors, r"^meta\.bin: at byte [0-9]+: the table ends too early\n$")

    def test_a_changed_default(self):
        old = b"\x06\0\0\0radius\x05\0\0\0float\0\0\0\0\x01\0\0\0"
        place = (self.folder / "meta.bin").read_bytes().index(old, self.place_of("SphereLight"))
        self.patch("meta.bin", place + len(old), struct.pack("<f", 42))
        self.assert_different("SphereLight.radius: default is 0.1 in the source, 42 in the table")

    def place_of(self, plugin):
        name = plugin.encode("ascii")
        return (self.folder / "meta.bin").read_bytes().index(
            struct.pack("<I", len(name)) + name)

    def patch(self, name, place, new):
        table = bytearray((self.folder / name).read_bytes())
        table[place:place + len(new)] = new
        (self.folder / name).write_bytes(table)

    def test_a_changed_version(self):
        self.patch("handlers.bin", 4, struct.pack("<i", 9))
        self.assert_different("handlers: version is 7.000000 in the source, 9.000000 in the table")


class AwkwardHost(HostTest):
    """With a document full of what is hard to hold in source text."""

    def setUp(self):
        super().setUp()
        self.copy_tables("AWKWARD")

    def test_the_tables_agree(self):
        status, printed, errors = self.run_host("AWKWARD", "handlers.bin", "meta.bin")
        self.assertEqual((0, ""), (status, errors))
        self.assertEqual(AGREE, printed.splitlines()[-1])

    def test_no_list_of_integers_is_beyond_an_int(self):
        _, printed, _ = self.run_host("AWKWARD", "handlers.bin", "meta.bin", "Numbers")
        self.assertIn("(2147483647, 16777216, -2147483648, 0)", printed)


SPOT_LIGHT = """\
light SpotLight
    barn_doors                   bool           list of integers (1, 0, 1)
    color                        color          3 floats (1, 1, 1)
    cone_angle                   float          0.6
    decay                        integer        2
    decay_radius                 float          1
    drop_off                     float          0
    enabled                      bool           1
    intensity                    float          1
    penumbra_angle               float          0.05
    projector_map                texture        3 floats (0.5, 0.5, 0.5)
    projector_map_color          acolor         "" user data
    projector_map_res_mult       float          1 user data
    projector_map_tex            texture        "" user data
    projector_map_tex_mult       float          1 user data
    projector_map_tex_on         bool           1 user data
    texture_multiplier_mode      integer        1 user data
    projector_map is handled: color (0.5)
    decay_radius scales: with the scene, where decay is 2 and enabled is 1
"""


if __name__ == "__main__":
    unittest.main()

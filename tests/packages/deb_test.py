"""The .deb: what it says of itself, and how it installs, runs and goes in a clean root."""

import os
import pathlib
import shutil
import subprocess
import unittest

from clean_root import CleanRoot

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("METAGEN_BUILD", ROOT / "build" / "release"))
GOLDEN = ROOT / "tests" / "golden"
REPLAY_SDK = "/usr/lib/metagen/replay_sdk"


def package():
    [path] = (BUILD / "packages").glob("metagen_*.deb")
    return path


def field(name):
    return subprocess.run(["dpkg-deb", "--field", package(), name], text=True,
                          capture_output=True, check=True).stdout.strip()


class DebTest(unittest.TestCase):
    maxDiff = None

    def test_lintian_finds_no_error(self):
        found = subprocess.run(
            ["lintian", "--allow-root", "--fail-on", "error", package()], text=True,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        self.assertEqual(0, found.returncode, found.stdout)

    def test_it_depends_on_what_the_programs_need(self):
        names = {item.split()[0] for item in field("Depends").split(",")}
        self.assertEqual({"libc6", "libgcc-s1", "libstdc++6", "python3"}, names)

    def test_dpkg_refuses_it_where_a_dependency_is_missing(self):
        with CleanRoot() as root:
            self.assertNotIn("python3", root.packages)
            shutil.copy(package(), root.folder / "tmp/metagen.deb")
            status, printed = root.run("dpkg", "--install", "/tmp/metagen.deb")
        self.assertEqual(1, status, printed)
        self.assertIn("metagen depends on python3; however:\n  Package python3 is not installed.",
                      printed)

    def test_it_installs_runs_and_goes(self):
        with CleanRoot(field("Depends")) as root:
            before = root.files()
            shutil.copy(package(), root.folder / "tmp/metagen.deb")
            self.assert_runs(root, "dpkg", "--install", "/tmp/metagen.deb")
            # What dpkg puts off for the end of a whole installation.
            self.assert_runs(root, "dpkg", "--configure", "--pending")
            self.assertEqual("", self.assert_runs(root, "dpkg", "--audit"))
            self.assertTrue((root.folder / "usr/share/man/man1/metagen.1.gz").is_file())
            self.check_commands(root)
            self.assert_runs(root, "dpkg", "--purge", "metagen")
            self.assertEqual(set(), before ^ root.files())

    def assert_runs(self, root, *command, **environment):
        status, printed = root.run(*command, **environment)
        self.assertEqual(0, status, f"{command}: {printed}")
        return printed

    def check_commands(self, root):
        """The road from the SDK to the tables, on the replay SDK that the package brings along."""
        golden = GOLDEN / "combine" / "bundled"
        shutil.copy(ROOT / "examples" / "stripped.json", root.folder / "tmp")
        self.assert_runs(root, "metagen", "dump", "-o", "/tmp/base.json", QYRA_SDK=REPLAY_SDK)
        self.assert_written(root, "base.json", GOLDEN / "dump" / "bundled" / "base.json")
        summary = self.assert_runs(root, "metagen", "combine", "-i", "/tmp/stripped.json",
                                   "-o", "/tmp/combined.json", QYRA_SDK=REPLAY_SDK)
        self.assertEqual((golden / "summary.txt").read_text(encoding="utf-8"), summary)
        self.assert_written(root, "combined.json", golden / "combined.json")
        for command in ("genh", "genm"):
            self.assert_runs(root, "metagen", command, "-i", "/tmp/combined.json",
                             "-o", f"/tmp/{command}", QYRA_SDK=REPLAY_SDK)
        self.assert_written(root, "genm.bin", GOLDEN / "genm" / "bundled" / "meta.bin")
        self.assert_runs(root, "metagen-report", "/tmp/base.json", "/tmp/combined.json",
                         "-o", "/tmp/page.html")
        self.assertEqual((1, "Cannot load Qyra SDK Library file. [libQyraSDKLibrary.so: cannot open"
                             " shared object file: No such file or directory]\n"),
                         root.run("metagen", "dump", "-o", "/tmp/x.json"))

    def assert_written(self, root, name, expected):
        self.assertEqual(expected.read_bytes(), (root.folder / "tmp" / name).read_bytes())


if __name__ == "__main__":
    unittest.main()

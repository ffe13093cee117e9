"""The .deb: what it says of itself, and how it installs, runs and goes in a clean root."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[1]
BUILD = pathlib.Path(os.environ.get("METAGEN_BUILD", ROOT / "build" / "release"))
GOLDEN = ROOT / "tests" / "golden"

# What the system keeps for itself: records and caches.
KEPT = re.compile(r"/var/(lib/dpkg|log|cache)/|/usr/lib/python3.*/__pycache__")


def package():
    [path] = (BUILD / "packages").glob("metagen_*.deb")
    return path


def field(name):
    return subprocess.run(["dpkg-deb", "--field", package(), name], text=True,
                          capture_output=True, check=True).stdout.strip()


def dependencies():
    return {item.split()[0] for item in field("Depends").split(",")}


class DebTest(unittest.TestCase):
    maxDiff = None

    def test_lintian_finds_no_error(self):
        found = subprocess.run(
            ["lintian", "--allow-root", "--fail-on", "error", package()], text=True,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        self.assertEqual(0, found.returncode, found.stdout)

    def test_it_depends_on_what_the_programs_need(self):
        self.assertEqual({"libc6", "libgcc-s1", "libstdc++6", "python3"}, dependencies())

    def run_in_clean_root(self, folder):
        """Runs try_package.sh in a root of Debian's essential packages and the dependencies, which
        takes a mirror of Debian, and the rights of root or user namespaces."""
        shutil.copy(package(), folder / "metagen.deb")
        shutil.copy(ROOT / "examples" / "stripped.json", folder)
        shutil.copy(HERE / "try_package.sh", folder)
        run = subprocess.run(
            ["mmdebstrap", "--quiet", "--variant=essential", "--dpkgopt=force-unsafe-io",
             f"--include={','.join(dependencies())}", '--customize-hook=mkdir "$1/try"',
             f"--customize-hook=sync-in {folder} /try",
             '--customize-hook=chroot "$1" sh /try/try_package.sh',
             f"--customize-hook=sync-out /try {folder}", "bookworm", "/dev/null"],
            text=True, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
            check=False)
        self.assertEqual(0, run.returncode, f"no clean root, or a fault in it: {run.stdout}")

    def test_it_installs_runs_and_goes(self):
        with tempfile.TemporaryDirectory(prefix="metagen-test-") as name:
            folder = pathlib.Path(name)
            folder.chmod(0o755)
            self.run_in_clean_root(folder)
            self.check_results({path.name: path.read_bytes() for path in folder.iterdir()})

    def check_results(self, results):
        golden = GOLDEN / "combine" / "bundled"
        for name, expected in {"base.json": GOLDEN / "dump" / "bundled" / "base.json",
                               "combined.json": golden / "combined.json",
                               "summary.txt": golden / "summary.txt",
                               "genm.bin": GOLDEN / "genm" / "bundled" / "meta.bin",
                               "genm.txt": GOLDEN / "genm" / "bundled" / "meta.txt"}.items():
            with self.subTest(name):
                self.assertEqual(expected.read_bytes(), results[name])
        self.assertIn(b"<!doctype html>", results["page.html"].lower())
        self.assertIn(b'"MeshFile": {', results["s.schema.json"])
        self.assertEqual(b"Cannot load Qyra SDK Library file. [libQyraSDKLibrary.so: cannot open"
                         b" shared object file: No such file or directory]\nstatus 1\n",
                         results["no_sdk.txt"])
        self.assertEqual(b"", results["audit.txt"])
        self.assertEqual(b"", results["findings.txt"])
        before, after = (set(results[name].decode().splitlines())
                         for name in ("before.txt", "after.txt"))
        self.assertGreater(len(before), 1000)
        self.assertEqual([], [path for path in sorted(before ^ after) if not KEPT.match(path)])


if __name__ == "__main__":
    unittest.main()

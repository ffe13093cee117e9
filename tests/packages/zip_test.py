"""The .zip for Windows: unpacked, it has what it should, and the tool in it runs."""

import os
import pathlib
import subprocess
import tempfile
import unittest
import zipfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("METAGEN_BUILD", ROOT / "build" / "windows"))
LAUNCHER = [word for word in [os.environ.get("METAGEN_LAUNCHER")] if word]
GOLDEN = ROOT / "tests" / "golden"

TOOL = {
    "bin/metagen.exe", "bin/metagen-lint.exe", "bin/metagen-report", "bin/metagen-schema",
    "bin/metagen-show",
    "lib/cmake/metagen/metagenConfig.cmake",
    "share/doc/metagen/manual.html", "share/doc/metagen/lint.html", "share/doc/metagen/LICENSE",
    "share/doc/metagen/examples/host/main.cpp", "share/metagen/schemas/stripped.schema.json",
}
REPLAY_SDK = "lib/metagen/replay_sdk"
REPLAY_SDK_FILES = {f"{REPLAY_SDK}/README.md", f"{REPLAY_SDK}/bin/catalogue.json",
                    f"{REPLAY_SDK}/bin/QyraSDKLibrary.dll"}


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\") if LAUNCHER else str(path)


class ZipTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="metagen test ")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def unpack(self, name):
        """Unpacks a package into a folder of its own. Gives the folder that it holds, and the
        files below that."""
        [package] = (BUILD / "packages").glob(f"{name}-[0-9]*.zip")
        folder = self.folder / name
        with zipfile.ZipFile(package) as archive:
            archive.extractall(folder)
        [top] = folder.iterdir()
        return top, {path.relative_to(top).as_posix() for path in top.rglob("*")
                     if path.is_file()}

    def run_metagen(self, top, *arguments, sdk=None):
        """Runs the unpacked tool; gives its status and what it printed on both outputs."""
        environment = {name: value for name, value in os.environ.items()
                       if not name.startswith("QYRA_")}
        if sdk is not None:
            environment["QYRA_SDK"] = windows_path(sdk)
        finished = subprocess.run([*LAUNCHER, str(top / "bin" / "metagen.exe"), *arguments],
                                  cwd=self.folder, env=environment, stdin=subprocess.DEVNULL,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        return finished.returncode, finished.stdout.decode("utf-8").replace("\r\n", "\n")

    def test_the_tool_and_the_replay_sdk_are_packed_apart(self):
        _, tool = self.unpack("metagen")
        self.assertEqual(set(), TOOL - tool)
        self.assertEqual(set(), {name for name in tool if name.startswith("lib/metagen")})
        self.assertEqual(REPLAY_SDK_FILES, self.unpack("metagen-replay-sdk")[1])

    def test_the_tool_runs_by_itself(self):
        top, _ = self.unpack("metagen")
        status, printed = self.run_metagen(top)
        self.assertEqual((0, " Usage:"), (status, printed.splitlines()[0]))
        status, printed = self.run_metagen(top, "dump", "-o", "base.json")
        self.assertEqual(1, status)
        self.assertRegex(printed, r"^Cannot load Qyra SDK Library file\. \[.*\]\n$")

    def test_the_tool_runs_with_the_replay_sdk(self):
        top, _ = self.unpack("metagen")
        sdk = self.unpack("metagen-replay-sdk")[0] / REPLAY_SDK
        self.assertEqual((0, ""), self.run_metagen(top, "dump", "-o", "base.json", sdk=sdk))
        self.assertEqual((GOLDEN / "dump" / "bundled" / "base.json").read_bytes(),
                         (self.folder / "base.json").read_bytes())
        (self.folder / "stripped.json").write_bytes((ROOT / "examples/stripped.json").read_bytes())
        status, printed = self.run_metagen(top, "combine", "-i", "stripped.json",
                                           "-o", "combined.json", sdk=sdk)
        self.assertEqual(0, status)
        self.assertEqual((GOLDEN / "combine/bundled/summary.txt").read_text("utf-8"), printed)

    def test_the_manual_is_a_page(self):
        top, _ = self.unpack("metagen")
        page = (top / "share/doc/metagen/manual.html").read_text(encoding="utf-8")
        self.assertIn("<h1 id=\"messages\">Messages</h1>", page)


if __name__ == "__main__":
    unittest.main()

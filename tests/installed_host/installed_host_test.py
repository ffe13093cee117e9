"""A project outside the tree finds an installed metagen and builds its tables with it."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "commands"))
from harness import BINARY, GOLDEN, LAUNCHER, ROOT  # noqa: E402

CMAKE = os.environ.get("CMAKE_COMMAND", "cmake")
BUILD = os.environ.get("METAGEN_BUILD", ROOT / "build" / "release")
CLEAN = '{"version": 1, "plugins": {"OptionSettings": {"params": {"log_level": ' \
        '{"defaultValue": "3"}}}}}'
AGREE = "The compiled-in and the loaded tables agree."


def environment():
    """That of the test, without a place for the SDK but a wrong one: what the project names has to
    do."""
    values = {name: value for name, value in os.environ.items()
              if not name.startswith("QYRA_") and value}
    return {**values, "QYRA_APPSDK_BIN": "/nowhere"}


class InstalledHost(unittest.TestCase):
    """The folders have a blank in their names, as they may have elsewhere."""

    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="metagen test "))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.prefix = cls.folder / "installed"
        cls.project = cls.folder / "host"
        cls.document = cls.folder / "combined.json"
        cls.build_folder = cls.folder / "build"
        cls.run_cmake("--install", BUILD, "--prefix", cls.prefix)
        shutil.copytree(ROOT / "examples" / "host", cls.project)
        shutil.copy(GOLDEN / "combine" / "bundled" / "combined.json", cls.document)
        cls.stripped = cls.folder / "stripped.json"
        cls.stripped.write_text(CLEAN, encoding="utf-8")
        cls.run_cmake("-S", cls.project, "-B", cls.build_folder, "-DCMAKE_BUILD_TYPE=Debug",
                      f"-Dmetagen_DIR={cls.package_folder()}",
                      f"-DEXAMPLE_HOST_DOCUMENT={cls.document}",
                      f"-DEXAMPLE_HOST_STRIPPED={cls.stripped}",
                      f"-DEXAMPLE_HOST_BASE={GOLDEN / 'dump' / 'bundled' / 'base.json'}")

    @classmethod
    def run_cmake(cls, *arguments, fails=False):
        """Runs CMake and gives what it printed."""
        finished = subprocess.run([CMAKE, *map(str, arguments)], env=environment(), text=True,
                                  stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                  stderr=subprocess.STDOUT, timeout=800, check=False)
        if (finished.returncode != 0) != fails:
            raise AssertionError(f"{finished.returncode}: {finished.stdout}")
        return finished.stdout

    @classmethod
    def package_folder(cls):
        return next(cls.prefix.glob("lib*/**/cmake/metagen"))

    def build(self, fails=False):
        return self.run_cmake("--build", self.build_folder, fails=fails)

    def tables(self):
        return self.build_folder / "example_host_tables"

    def run_host(self, host, *arguments, folder):
        """The lines that the host prints."""
        finished = subprocess.run(
            [*LAUNCHER, str(host) + BINARY.suffix, *arguments], cwd=folder, env=environment(),
            capture_output=True, text=True, timeout=300, check=False)
        self.assertEqual((0, ""), (finished.returncode, finished.stderr), finished.stdout)
        return finished.stdout.splitlines()

    def assert_host_agrees(self):
        lines = self.run_host(self.build_folder / "example_host", "handlers.bin", "meta.bin",
                              folder=self.tables())
        self.assertEqual(AGREE, lines[-1])

    def test_what_is_installed(self):
        files = {path.relative_to(self.prefix).name for path in self.prefix.rglob("*")
                 if path.is_file()}
        library = "QyraSDKLibrary.dll" if BINARY.suffix else "libQyraSDKLibrary.so"
        self.assertLessEqual(
            {BINARY.name, "metagen-lint" + BINARY.suffix, "check-tables" + BINARY.suffix, library,
             "catalogue.json", "metagenConfig.cmake", "metagenConfigVersion.cmake", "metagenTargets.cmake",
             "MetagenHost.cmake", "MetagenTables.cmake", "handlers.h", "load.h", "meta.h",
             "table_reader.h", "LICENSE"}, files)
        for path in self.package_folder().glob("*.cmake"):
            self.assertNotIn(str(ROOT), path.read_text(encoding="utf-8"), path)

    @staticmethod
    def ninja(*tool):
        return subprocess.run(["ninja", "-C", BUILD, "-t", *tool], capture_output=True, text=True,
                              check=True).stdout

    def test_what_is_packed_is_built_for_it(self):
        script = (pathlib.Path(BUILD) / "cmake_install.cmake").read_text(encoding="utf-8")
        laid_down = set(re.findall(f'"{re.escape(str(BUILD))}/([^"]+)"', script))
        made = {line.split(": ")[0] for line in self.ninja("targets", "all").splitlines()}
        packed = set(re.findall('label="([^"]+)"', self.ninja("graph", "packed")))
        self.assertLessEqual({BINARY.name, "check-tables" + BINARY.suffix}, laid_down & made)
        self.assertEqual(set(), (laid_down & made) - packed)

    def test_the_build_follows_the_document_and_the_tool(self):
        self.build()
        self.assert_host_agrees()
        self.assertIn("no work to do", self.build())

        text = self.document.read_text(encoding="utf-8")
        self.document.write_text(text.replace('"version":7', '"version":8'), encoding="utf-8")
        self.assertIn("Generating meta.inl", self.build())
        self.assertEqual(b"META\x08\0\0\0", (self.tables() / "meta.bin").read_bytes()[:8])
        self.assert_host_agrees()

        os.utime(self.prefix / "bin" / BINARY.name)
        self.assertIn("Generating handlers.inl", self.build())
        self.assertIn("no work to do", self.build())

    def test_the_stripped_document_is_checked(self):
        finding = ('stripped.json:1:58: error: the SDK\'s "OptionSettings" has no parameter '
                   '"log_levle"')
        lint = ("--build", self.build_folder, "--target", "stripped_lint")
        ctest = [CMAKE.replace("cmake", "ctest"), "--test-dir", self.build_folder,
                 "--output-on-failure"]
        self.run_cmake(*lint)
        for text, fails in ((CLEAN, False), (CLEAN.replace("level", "levle"), True)):
            self.stripped.write_text(text, encoding="utf-8")
            finished = subprocess.run(ctest, env=environment(), text=True, capture_output=True,
                                      check=False)
            self.assertEqual(fails, finished.returncode != 0, finished.stdout)
        self.assertIn(finding, finished.stdout)
        self.assertIn(finding, self.run_cmake(*lint, fails=True))

    def test_a_host_of_few_lines_reads_its_first_record(self):
        project = pathlib.Path(__file__).resolve().parent / "first_record"
        lines = [line for path in project.iterdir() for line in path.read_text().splitlines()]
        self.assertLess(len(lines), 40)
        folder = self.folder / "first record"
        self.run_cmake("-S", project, "-B", folder, f"-Dmetagen_DIR={self.package_folder()}",
                       f"-DDOCUMENT={GOLDEN / 'combine' / 'bundled' / 'combined.json'}",
                       "-DCMAKE_CXX_FLAGS=-std=c++17 -Wall -Wextra -Wpedantic -Wconversion -Werror")
        self.run_cmake("--build", folder)
        self.assertEqual(["light AmbientLight: color color"] * 2,
                         self.run_host(folder / "first_record", folder=folder))

    def configure_host(self, call, fails=False):
        """Configures a host whose target is called "host"; what that prints, and its build folder."""
        project = pathlib.Path(tempfile.mkdtemp(dir=self.folder))
        (project / "main.cpp").write_text("int main() {}\n", encoding="utf-8")
        (project / "CMakeLists.txt").write_text(f"""\
cmake_minimum_required(VERSION 3.25)
project(host LANGUAGES CXX)
find_package(metagen REQUIRED)
add_executable(host main.cpp)
metagen_generate_tables({call})
""", encoding="utf-8")
        return self.run_cmake("-S", project, "-B", project / "build",
                              f"-Dmetagen_DIR={self.package_folder()}",
                              fails=fails), project / "build"

    def test_an_empty_sdk_root_is_refused(self):
        for argument in ('SDK_ROOT ""', "SDK_ROOT", "SDK_ROOT ${QYRA_ROOT}"):
            with self.subTest(argument):
                printed, _ = self.configure_host(f"TARGET host DOCUMENT combined.json {argument}",
                                                 fails=True)
                self.assertIn("metagen_generate_tables(TARGET host): SDK_ROOT is empty.", printed)
                self.assertIn("METAGEN_REPLAY_SDK_ROOT", printed)
                self.assertIn("QYRA_SDK", printed)

    def test_a_target_that_does_not_exist_is_refused(self):
        printed, _ = self.configure_host("TARGET hots DOCUMENT combined.json", fails=True)
        self.assertIn("there is no target hots above this", " ".join(printed.split()))

    def test_an_sdk_that_is_not_there_fails_the_build(self):
        _, folder = self.configure_host(
            f'TARGET host DOCUMENT "{self.document.as_posix()}" SDK_ROOT /nowhere')
        printed = self.run_cmake("--build", folder, fails=True)
        self.assertIn("metagen genm: Cannot load Qyra SDK Library file.", printed)
        self.assertIn("SDK_ROOT of metagen_generate_tables", " ".join(printed.split()))
        self.assertNotIn("metagen-lint", printed)

    def replace_document(self, text):
        """For the rest of the test."""
        old = self.document.read_text(encoding="utf-8")
        self.document.write_text(text, encoding="utf-8")
        self.addCleanup(self.build)
        self.addCleanup(self.document.write_text, old, encoding="utf-8")

    def assert_names_document_and_linter(self, printed):
        self.assertIn(f"  {self.document}\n", printed)
        self.assertIn("  metagen-lint --base <base.json> <stripped.json>\n", printed)

    def test_a_document_that_is_refused_fails_the_build(self):
        self.build()
        self.replace_document(self.document.read_text(encoding="utf-8")[:1000])
        printed = self.build(fails=True)
        self.assertIn("metagen genm: the given json file has errors inside\n", printed)
        self.assert_names_document_and_linter(printed)
        self.build(fails=True)  # and not only at first
        self.doCleanups()
        self.assert_host_agrees()

    def test_a_table_that_nobody_can_read_fails_the_build(self):
        self.replace_document(json.dumps({"version": 1, "plugins": {"Light": {"params": {
            "on": {"type": "bool"},
            "size": {"type": "float", "defaultValue": "1", "scaling": {
                "unit": 1, "conditions": [{"op": 1, "ref": "on", "value": True}]}}}}}}))
        printed = self.build(fails=True)
        self.assertIn("meta.generated.bin: at byte 128: the table ends too early\n", printed)
        self.assertIn('scaling condition whose "value" is', printed)
        self.assert_names_document_and_linter(printed)
        self.build(fails=True)


if __name__ == "__main__":
    unittest.main()

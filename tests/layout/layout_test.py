"""Holds the architecture of the sources: who includes whom, and where platform code stands."""

import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
# The folders whose sources are held to the rules, each with the prefix of its files' paths: an
# include is written from src, or from the root for what stands beside it.
SOURCE_FOLDERS = {ROOT / "src": "", ROOT / "replay_sdk": "replay_sdk/",
                  ROOT / "benchmarks": "benchmarks/"}

# The folders that each folder may include from, besides itself.
ALLOWED = {
    "support": set(),
    "sdk": {"support"},
    "json": {"support"},
    "diff": {"json", "support"},
    "metadata": {"sdk", "support"},
    "model": {"json", "metadata", "sdk", "support"},
    "dump": {"metadata", "support"},
    "combine": {"json", "metadata", "model", "sdk", "support"},
    "genh": {"json", "model", "support"},
    "genm": {"json", "model", "metadata", "sdk", "support"},
    "cli": {"combine", "diff", "dump", "genh", "genm", "sdk", "support"},
    "lint": {"combine", "genm", "json", "metadata", "model", "sdk", "support"},
    "main.cpp": {"cli", "support"},
    "lint_main.cpp": {"lint", "support"},
    "replay_sdk": {"json", "sdk", "support"},
    "benchmarks": {"json", "replay_sdk", "sdk", "support"},
}

PLATFORM_HEADERS = {
    "conio.h", "direct.h", "dirent.h", "dlfcn.h", "fcntl.h", "io.h", "process.h", "pthread.h",
    "strings.h", "tchar.h", "unistd.h", "wchar.h", "windows.h",
}
PLATFORM_FOLDERS = ("sys/", "linux/", "winsock", "ws2")
PLATFORM_MACRO = re.compile(
    r"\b(_WIN32|_WIN64|WIN32|_MSC_VER|__MINGW32__|__MINGW64__|__linux__|__unix__|__APPLE__"
    r"|__declspec|__stdcall|__cdecl|WINAPI)\b")
PLATFORM_FILE = re.compile(r"_(win32|posix)\.cpp$")

# Who may name the SDK's entry points; everybody else asks the classes of src/sdk.
ENTRY_POINT_FOLDERS = {"sdk", "replay_sdk", "benchmarks"}
ENTRY_POINT = re.compile(r"\bentryPoints\(|\bQyra_\w+|\bC_memory_free\b")

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)

LONGEST_FILE = 350
LONGEST_LINE = 100


def violations(path, text):
    """What is wrong with a file, given its path ("sdk/loader.cpp") as an include would name it."""
    found = []
    for bracket, target in INCLUDE.findall(text):
        if bracket == '"':
            found += wrong_direction(path, target)
        elif is_platform_header(target) and not PLATFORM_FILE.search(path):
            found.append(f"{path}: <{target}> belongs in a _win32.cpp or _posix.cpp file")
    if not PLATFORM_FILE.search(path):
        found += [f"{path}: {macro} belongs in a _win32.cpp or _posix.cpp file"
                  for macro in sorted(set(PLATFORM_MACRO.findall(text)))]
    if path.split("/")[0] not in ENTRY_POINT_FOLDERS:
        found += [f"{path}: {name} belongs in src/sdk"
                  for name in sorted(set(ENTRY_POINT.findall(text)))]
    return found + oversizes(path, text)


def wrong_direction(path, target):
    folder = path.split("/")[0]
    target_folder = target.split("/")[0]
    if "/" not in target or target_folder not in ALLOWED:
        return [f'{path}: "{target}" names no folder of the project']
    if folder not in ALLOWED:
        return [f"{path}: the table of folders lacks {folder}"]
    if target_folder != folder and target_folder not in ALLOWED[folder]:
        return [f"{path}: {folder} may not include {target}"]
    return []


def is_platform_header(target):
    return target.lower() in PLATFORM_HEADERS or target.lower().startswith(PLATFORM_FOLDERS)


def oversizes(path, text):
    lines = text.splitlines()
    found = [f"{path}:{number}: {len(line)} columns" for number, line in enumerate(lines, 1)
             if len(line) > LONGEST_LINE]
    if len(lines) > LONGEST_FILE:
        found.append(f"{path}: {len(lines)} lines")
    return found


class SourceTree(unittest.TestCase):
    def test_every_source_keeps_the_layout(self):
        for folder, prefix in SOURCE_FOLDERS.items():
            with self.subTest(folder=folder):
                paths = [path for suffix in ("*.h", "*.cpp") for path in folder.rglob(suffix)]
                self.assertGreater(len(paths), 10)
                self.assertEqual([], [
                    violation for path in sorted(paths)
                    for violation in violations(prefix + path.relative_to(folder).as_posix(),
                                                path.read_text(encoding="utf-8"))])


class Rules(unittest.TestCase):
    def assert_violations(self, expected, path, text):
        self.assertEqual(expected, violations(path, text))

    def test_a_folder_may_include_itself_and_those_below(self):
        self.assert_violations(
            [], "genm/genm.cpp", '#include "genm/a.h"\n#include "model/b.h"\n#include <vector>\n')

    def test_a_folder_may_not_include_one_above(self):
        self.assert_violations(["support/a.cpp: support may not include sdk/b.h"],
                               "support/a.cpp", '#include "sdk/b.h"\n')

    def test_the_generators_do_not_know_each_other(self):
        self.assert_violations(["genh/a.cpp: genh may not include genm/b.h"],
                               "genh/a.cpp", '#include "genm/b.h"\n')

    def test_only_main_knows_the_driver(self):
        self.assert_violations([], "main.cpp", '#include "cli/driver.h"\n')
        self.assert_violations(["sdk/a.h: sdk may not include cli/driver.h"],
                               "sdk/a.h", '#include "cli/driver.h"\n')

    def test_includes_name_their_folder(self):
        self.assert_violations(['sdk/a.cpp: "a.h" names no folder of the project'],
                               "sdk/a.cpp", '#include "a.h"\n')

    def test_platform_headers_stand_in_platform_files(self):
        self.assert_violations([], "sdk/a_posix.cpp", "#include <dlfcn.h>\n")
        self.assert_violations([], "sdk/a_win32.cpp", "#include <windows.h>\n")
        self.assert_violations(["sdk/a.h: <Windows.h> belongs in a _win32.cpp or _posix.cpp file"],
                               "sdk/a.h", "#include <Windows.h>\n")
        self.assert_violations(
            ["sdk/a.cpp: <sys/stat.h> belongs in a _win32.cpp or _posix.cpp file"],
            "sdk/a.cpp", "#  include <sys/stat.h>\n")

    def test_platform_macros_stand_in_platform_files(self):
        self.assert_violations([], "sdk/a_win32.cpp", "#ifdef _WIN32\n")
        self.assert_violations(["sdk/a.cpp: _WIN32 belongs in a _win32.cpp or _posix.cpp file"],
                               "sdk/a.cpp", "#ifdef _WIN32\n#if defined(_WIN32)\n")

    def test_the_entry_points_stand_behind_one_wall(self):
        self.assert_violations([], "sdk/a.cpp", "entryPoints().Qyra_enableFrameBuffer(false);\n")
        self.assert_violations(
            ["metadata/a.cpp: Qyra_enableFrameBuffer belongs in src/sdk",
             "metadata/a.cpp: entryPoints( belongs in src/sdk"],
            "metadata/a.cpp", "entryPoints().Qyra_enableFrameBuffer(false);\n")

    def test_files_and_lines_are_bounded(self):
        self.assert_violations(["diff/a.cpp:1: 101 columns"], "diff/a.cpp", "/" * 101 + "\n")
        self.assert_violations([], "diff/a.cpp", "\n" * 350)
        self.assert_violations(["diff/a.cpp: 351 lines"], "diff/a.cpp", "\n" * 351)


if __name__ == "__main__":
    unittest.main()

"""What command tests share: whole runs of the metagen binary against the replay SDK.

Expected texts are written with "\\n" line ends; on Windows, where standard output, standard error
and text files are in text mode, they are compared with "\\r\\n". Paths may be given as
pathlib.Path: they are passed in the form that the binary's platform understands.

CMake hands over where things are; run by hand, a test takes them from build/release.
"""

import dataclasses
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
GOLDEN = ROOT / "tests" / "golden"

_BUILD = pathlib.Path(os.environ.get("METAGEN_BUILD", ROOT / "build" / "release"))
BINARY = pathlib.Path(os.environ.get("METAGEN_BINARY", _BUILD / "metagen"))
LINTER = BINARY.with_name("metagen-lint").with_suffix(BINARY.suffix)
REPLAY_SDK = pathlib.Path(os.environ.get("METAGEN_REPLAY_SDK", _BUILD / "sdk"))
TEST_LIBRARIES = pathlib.Path(
    os.environ.get("METAGEN_TEST_LIBRARIES", _BUILD / "tests" / "commands"))
LAUNCHER = [word for word in [os.environ.get("METAGEN_LAUNCHER")] if word]

WINDOWS = BINARY.suffix == ".exe"

# Exit statuses, as a run's status is given here: -1 keeps its low eight bits, and abort() has a
# status of its own on Windows.
FAILURE = 1
BROKEN_METADATA = 255
ABORTED = 3 if WINDOWS else -signal.SIGABRT

# What the driver prints when no place has the library: the system's own words in brackets.
if not WINDOWS:
    _NOT_FOUND = ("libQyraSDKLibrary.so: cannot open shared object file: "
                  "No such file or directory")
elif LAUNCHER:
    _NOT_FOUND = "Module not found."
else:
    _NOT_FOUND = "The specified module could not be found."
LOAD_FAILURE = f"Cannot load Qyra SDK Library file. [{_NOT_FOUND}]\n"

RUN_SECONDS = 300

USAGE = """\
 Usage:
 dump -o <base.json>
 combine -i <stripped.json> -o <combined.json>
 diff -l <left.json> -r <right.json> -o <diff.txt>
 genh -i <combined.json> -o <code>
 genm -i <combined.json> -o <code>
"""


@dataclasses.dataclass
class Run:
    """What a finished run left: its exit status and its two outputs, byte by byte."""

    status: int
    stdout: bytes
    stderr: bytes


def text_bytes(text):
    """The bytes of a text as the binary's platform writes it in text mode."""
    line_end = "\r\n" if WINDOWS else "\n"
    return text.replace("\n", line_end).encode("utf-8", "surrogateescape")


def golden_bytes(*place):
    """A file below tests/golden, given by its command, case and name."""
    return GOLDEN.joinpath(*place).read_bytes()


def golden_text(*place):
    """The text of such a file, for assert_run and assert_text_file."""
    return golden_bytes(*place).decode("utf-8", "surrogateescape")


def native(value):
    """A path in the form of the binary's platform; any other text as it is."""
    if not isinstance(value, pathlib.PurePath):
        return value
    if WINDOWS and LAUNCHER and value.is_absolute():
        return "Z:" + str(value).replace("/", "\\")
    return str(value)


def comparable_status(status):
    return BROKEN_METADATA if status == 0xFFFFFFFF else status


def _without_core_file():
    import resource
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def environment_of_run(values):
    """The environment of a run: nothing of the caller's but what programs need to start, and the
    values given. Those that are None are left out."""
    kept = ("PATH", "HOME", "SYSTEMROOT", "TEMP", "TMP", "TMPDIR", "WINEPREFIX",
            "ASAN_OPTIONS", "UBSAN_OPTIONS")
    environment = {name: os.environ[name] for name in kept if name in os.environ}
    environment["LANG"] = "C.UTF-8"
    environment.update((name, native(value)) for name, value in values.items()
                       if value is not None)
    return environment


def ledger_fault(ledger, status):
    """What a run did wrong with the SDK, by the ledger that it left; none when all is well. A run
    that returns gives everything back. One that ends the process in the middle may still hold what
    it was working with, but has misused nothing."""
    if not ledger.exists():
        return None
    text = ledger.read_text(encoding="utf-8")
    state, *lines = text.split("\n")
    findings = [line for line in lines if line.startswith("finding ")]
    if status in (FAILURE, BROKEN_METADATA):
        findings = [line for line in findings if " not released: " not in line]
        state = "clean" if not findings else state
    is_started = status != 0 or "start-up reference counted, frame buffer off" in lines
    expected = "unfinished" if status == ABORTED else "clean"
    return None if (state, findings, is_started) == (expected, [], True) else text


class CommandTest(unittest.TestCase):
    """Each test has a temporary folder, in which its runs take place."""

    maxDiff = None

    def setUp(self):
        self.folder = self._temporary_folder()
        self._ledger = self._temporary_folder() / "ledger.txt"

    def _temporary_folder(self):
        folder = tempfile.mkdtemp(prefix="metagen-test-")
        self.addCleanup(shutil.rmtree, folder)
        return pathlib.Path(folder)

    def run_metagen(self, *arguments, environment=None, catalogue=None, binary=BINARY):
        """Runs the binary in the test's folder. The environment's values are added to one in
        which QYRA_SDK names the replay SDK; None takes a variable away. The ledger of the replay
        SDK, when it wrote one, must be clean."""
        self._ledger.unlink(missing_ok=True)
        values = {"QYRA_SDK": REPLAY_SDK, "QYRA_REPLAY_LEDGER": self._ledger,
                  "QYRA_REPLAY_CATALOGUE": catalogue, **(environment or {})}
        finished = subprocess.run(
            [*LAUNCHER, str(binary), *map(native, arguments)],
            cwd=self.folder, env=environment_of_run(values), stdin=subprocess.DEVNULL,
            capture_output=True, timeout=RUN_SECONDS, check=False,
            preexec_fn=None if os.name == "nt" else _without_core_file)
        run = Run(comparable_status(finished.returncode), finished.stdout, finished.stderr)
        self.assertIsNone(ledger_fault(self._ledger, run.status), run)
        return run

    def calls_of(self, entry_point):
        """How often the last run called it."""
        calls = re.search(rf"^calls (\d+) {entry_point}$", self._ledger.read_text(), re.MULTILINE)
        return int(calls[1])

    def assert_run(self, arguments, *, status=0, stdout="", stderr="", environment=None,
                   catalogue=None):
        """Runs the binary and compares its status and both outputs whole."""
        run = self.run_metagen(*arguments, environment=environment, catalogue=catalogue)
        self.assertEqual(Run(status, text_bytes(stdout), text_bytes(stderr)), run)

    def write(self, name, content):
        """Writes a file of the test's folder, byte by byte, and gives its path."""
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content if isinstance(content, bytes) else content.encode("utf-8"))
        return path

    def read_text(self, name):
        """The text of a file that the binary wrote in text mode, with "\\n" line ends."""
        text = (self.folder / name).read_bytes().decode("utf-8", "surrogateescape")
        return text.replace("\r\n", "\n") if WINDOWS else text

    def assert_text_file(self, name, expected):
        """The file, written in text mode, holds exactly the text."""
        self.assertEqual(text_bytes(expected), (self.folder / name).read_bytes())

    def assert_binary_file(self, name, expected):
        """The file holds exactly the bytes."""
        self.assertEqual(expected, (self.folder / name).read_bytes())

    def assert_files(self, *names):
        """The test's folder holds these files and no others."""
        found = sorted(path.relative_to(self.folder).as_posix()
                       for path in self.folder.rglob("*") if path.is_file())
        self.assertEqual(sorted(names), found)

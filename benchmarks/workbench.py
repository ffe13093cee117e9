"""Where the benchmarks' programs and documents are, and how the programs are run."""

import dataclasses
import json
import os
import pathlib
import subprocess

from stripped_document import stripped_document

ROOT = pathlib.Path(__file__).resolve().parents[1]


class Failure(Exception):
    """The benchmark can't go on; the text says why."""


@dataclasses.dataclass(frozen=True)
class Cost:
    """What one run of a program took: seconds, and bytes at its peak."""

    time: float  # wall time, or processor time where the workbench takes that
    user: float
    peak: float


class Workbench:
    """The programs of one build, and the documents of one scale, which it makes when they are
    missing or older than the programs."""

    def __init__(self, build, folder, scale, *, seed=1, takes_processor_time=False):
        self.build = pathlib.Path(build)
        self.takes_processor_time = takes_processor_time
        self.scale = scale
        self.seed = seed
        self.folder = pathlib.Path(folder) / f"{scale:g}"
        self.metagen = self.build / "metagen"
        self.sdk = self.build / "benchmarks" / "sdk"
        self.sdk_library = next((self.sdk / "bin").iterdir())
        self.environment = {
            "PATH": os.environ["PATH"], "LANG": "C.UTF-8", "QYRA_SDK": str(self.sdk),
            "QYRA_INVENTED_SCALE": f"{scale:g}", "QYRA_INVENTED_SEED": str(seed)}

    def program(self, name):
        return self.build / "benchmarks" / name

    def path(self, name):
        """A file of this scale's folder."""
        return self.folder / name

    def make_documents(self, *, combined=True):
        """base.json and revised.json, which the tool dumps, stripped.json, and combined.json."""
        self.folder.mkdir(parents=True, exist_ok=True)
        if not self._stands("stripped.json", self.metagen, self.sdk_library):
            self.run([self.metagen, "dump", "-o", self.path("base.json")])
            self.run([self.metagen, "dump", "-o", self.path("revised.json")],
                     environment={"QYRA_INVENTED_REVISION": "2"})
            base = json.loads(self.path("base.json").read_bytes())
            self.path("stripped.json").write_text(
                json.dumps(stripped_document(base, self.seed), indent=2, ensure_ascii=False),
                encoding="utf-8")
        if combined and not self._stands("combined.json", self.metagen, self.path("stripped.json")):
            self.run([self.metagen, "combine", "-i", self.path("stripped.json"),
                      "-o", self.path("combined.json")])

    def _stands(self, name, *origins):
        made_of = self.path(name + ".made-of")
        origin = f"seed {self.seed}" + "".join(f", {path.stat().st_mtime_ns}" for path in origins)
        if self.path(name).exists() and made_of.exists() and made_of.read_text() == origin:
            return True
        made_of.write_text(origin)
        return False

    def _megabytes(self):
        """What the hungriest program and its files take at this scale, where the machine has it."""
        machine = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES")
        return int(min(20 * self.scale, machine / 4 / 1e6))

    def run(self, command, *, environment=None, statuses=(0,)):
        """Runs a program; any other status is a failure. Gives its standard output."""
        finished = subprocess.run(
            list(map(str, command)), env={**self.environment, **(environment or {})},
            stdin=subprocess.DEVNULL, capture_output=True, check=False)
        if finished.returncode not in statuses:
            raise Failure(f"status {finished.returncode}: {' '.join(map(str, command))}\n"
                          + (finished.stdout + finished.stderr).decode(errors="replace"))
        return finished.stdout

    def measure(self, command, *, outputs=(), statuses=(0,)):
        """Runs a program, its outputs out of the way before, and gives its cost."""
        for name in outputs:
            self.path(name).unlink(missing_ok=True)
        line = self.run([self.program("measure"), self._megabytes(), self.path("stdout.txt"),
                         *command])
        status, wall, user, system, peak = map(int, line.split())
        if status not in statuses:
            raise Failure(f"status {status}: {' '.join(map(str, command))}")
        time = user + system if self.takes_processor_time else wall
        return Cost(time=time * 1e-6, user=user * 1e-6, peak=peak * 1024.0)

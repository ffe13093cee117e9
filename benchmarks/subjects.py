"""What is measured: each command of the tool, the floor below it, and what else one could use."""

import dataclasses

from peers import peers_of

# Wall time over the floor's. Held at scale 10 and above, where the start of a process is little
# beside the work; start is held at every scale.
TIME_BARS = {"dump": 5.0, "combine": 0.65, "diff": 0.45, "genh": 0.45, "genm": 0.85, "start": 1.5}
PEAK_BARS = {"dump": 1.5, "combine": 0.6, "diff": 0.45, "genh": 0.5, "genm": 0.75}
# The same over the limit's: only what does nothing else is held to it.
LIMIT_TIME_BARS = {"parse": 1.5}
LIMIT_PEAK_BARS = {"parse": 1.0}
GROWTH_BAR = 11.0  # for ten times the document, time and memory
PEER_BAR = 2.5  # a peer's wall time over the tool's
BARS_FROM_SCALE = 10


@dataclasses.dataclass(frozen=True)
class Program:
    """A command line, the files that it writes, and the statuses that it may end with."""

    command: list
    outputs: tuple = ()
    statuses: tuple = (0,)

    def measure(self, bench):
        return bench.measure(self.command, outputs=self.outputs, statuses=self.statuses)


@dataclasses.dataclass(frozen=True)
class Subject:
    """A command at one scale. `asks`, where the command asks the SDK, are the runs that ask it
    everything and nothing; their difference is the library's own time."""

    name: str
    tool: Program
    floor: Program
    asks: tuple = ()
    limit: Program = None  # a SIMD parser that makes trees of the command's documents
    peers: dict = dataclasses.field(default_factory=dict)


def tool(bench, word, options, *outputs):
    return Program([bench.metagen, word, *options], outputs)


def floor(bench, work, documents, *outputs):
    return Program([bench.program("floor"), work, *map(bench.path, documents)], outputs)


def limit(bench, *documents):
    """None where the program was not built."""
    program = bench.program("limit")
    return Program([program, *map(bench.path, documents)]) if program.exists() else None


def parse(bench):
    """What every command begins with, alone."""
    return Subject("parse", Program([bench.program("parse"), bench.path("base.json")]),
                   floor(bench, "parse", ["base.json"]), limit=limit(bench, "base.json"))


def asks(bench):
    return tuple(Program([bench.program("ask_sdk"), extent])
                 for extent in ("everything", "nothing"))


def dump(bench):
    return Subject("dump", tool(bench, "dump", ["-o", bench.path("dump.json")], "dump.json"),
                   floor(bench, "copy", ["base.json", "copy.json"], "copy.json"), asks(bench))


def combine(bench):
    options = ["-i", bench.path("stripped.json"), "-o", bench.path("merged.json")]
    return Subject(
        "combine", tool(bench, "combine", options, "merged.json"),
        floor(bench, "merge", ["base.json", "stripped.json", "floor.json"], "floor.json"),
        asks(bench), limit(bench, "base.json", "stripped.json"))


def diff(bench):
    options = ["-l", bench.path("base.json"), "-r", bench.path("revised.json"),
               "-o", bench.path("diff.txt")]
    return Subject("diff", tool(bench, "diff", options, "diff.txt"),
                   floor(bench, "parse", ["base.json", "revised.json"]),
                   limit=limit(bench, "base.json", "revised.json"))


def generator(bench, word, document, code):
    options = ["-i", bench.path(document), "-o", bench.path(code)]
    return tool(bench, word, options, f"{code}.inl", f"{code}.bin")


def genh(bench):
    return Subject("genh", generator(bench, "genh", "combined.json", "genh"),
                   floor(bench, "parse", ["combined.json"]), limit=limit(bench, "combined.json"))


def genm(bench):
    return Subject("genm", generator(bench, "genm", "combined.json", "genm"),
                   floor(bench, "parse", ["combined.json"]), limit=limit(bench, "combined.json"))


def start(bench):
    """The work is as small as it gets: what is left is the start."""
    bench.path("empty.json").write_text('{"version":1,"plugins":{}}', encoding="utf-8")
    return Subject("start", generator(bench, "genh", "empty.json", "empty"),
                   Program([bench.program("floor_start"), bench.sdk_library]))


SUBJECTS = {"parse": parse, "dump": dump, "combine": combine, "diff": diff, "genh": genh, "genm": genm,
            "start": start}
COMMANDS = tuple(SUBJECTS)


def subject(name, bench):
    return SUBJECTS[name](bench)


def with_peers(found, bench):
    peers = {peer: Program(*program) for peer, program in peers_of(found.name, bench).items()}
    return dataclasses.replace(found, peers=peers)

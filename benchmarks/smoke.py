"""Everything runs once, and every output is what it should be."""

import json
import pathlib
import sys

import subjects
from workbench import ROOT, Failure

# What the commands must make of documents, reckoned without the tool.
sys.path.append(str(ROOT / "tests" / "oracle"))
import base_document  # noqa: E402
import combine  # noqa: E402
import diff  # noqa: E402
import genh  # noqa: E402
import genm  # noqa: E402


def read(path):
    return pathlib.Path(path).read_bytes()


def document(bench, name):
    return json.loads(read(bench.path(name)).decode("utf-8"))


def check(condition, what):
    if not condition:
        raise Failure(f"not as it should be: {what}")


def check_file(bench, name, content):
    check(read(bench.path(name)) == content, bench.path(name))


def check_extent(bench):
    """The documents are as large as their scale says."""
    plugins = document(bench, "base.json")["plugins"]
    parameters = sum(len(plugin["params"]) for plugin in plugins.values())
    check((len(plugins), parameters) == (600, 15000), "the extent of the base document")
    size = bench.path("base.json").stat().st_size
    check(1.5e6 <= size <= 2e6, f"the size of the base document, {size}")


def check_dump(bench):
    base = read(bench.path("base.json"))
    check(base_document.base_document(document(bench, "base.json")) == base, "base.json")
    check_file(bench, "dump.json", base)
    check_file(bench, "copy.json", base)


def check_ledgers(bench):
    """The library is asked the same by the tool and by what takes the library's time."""
    ledgers = []
    for command in ([bench.metagen, "dump", "-o", bench.path("dump.json")],
                    [bench.program("ask_sdk"), "everything"]):
        ledger = bench.path("ledger.txt")
        bench.run(command, environment={"QYRA_REPLAY_LEDGER": str(ledger)})
        ledgers.append(read(ledger))
    check(ledgers[0].startswith(b"clean\n"), "the ledger of dump")
    check(ledgers[0] == ledgers[1], "the ledger of ask_sdk")


def check_combine(bench):
    base, stripped = (read(bench.path(name)).decode("utf-8")
                      for name in ("base.json", "stripped.json"))
    outcome = combine.combine(base, stripped)
    check((outcome.status, outcome.stderr) == (0, ""), f"the documents: {outcome.stderr}")
    check_file(bench, "merged.json", outcome.document.encode("utf-8"))
    check_file(bench, "summary.txt", outcome.stdout.encode("utf-8"))
    check(document(bench, "floor.json") == json.loads(outcome.document),
          "what the floor of combine writes")


def check_diff(bench):
    report = diff.diff(*(read(bench.path(name)).decode("utf-8")
                         for name in ("base.json", "revised.json")))
    check_file(bench, "diff.txt", report.encode("utf-8"))


def check_genh(bench):
    source, binary = genh.genh(document(bench, "combined.json"))
    check_file(bench, "genh.inl", source)
    check_file(bench, "genh.bin", binary)


def check_genm(bench):
    outputs = genm.genm(document(bench, "combined.json"))
    check(outputs.end is None, f"the combined document: {outputs.end}")
    check_file(bench, "genm.inl", outputs.source)
    check_file(bench, "genm.bin", outputs.binary)


def check_start(bench):
    check_file(bench, "empty.inl", b"HandlerMeta m(1);\n\nreturn m;\n")


CHECKS = {
    "parse": (),
    "dump": (check_dump, check_ledgers),
    "combine": (check_combine,),
    "diff": (check_diff,),
    "genh": (check_genh,),
    "genm": (check_genm,),
    "start": (check_start,),
}


def run_once(subject, bench):
    """Every program; what the tool prints is kept as the summary."""
    limit = [subject.limit] if subject.limit else []
    for program in (subject.floor, *limit, *subject.asks, *subject.peers.values()):
        program.measure(bench)
    subject.tool.measure(bench)
    bench.path("stdout.txt").replace(bench.path("summary.txt"))


def run(bench, *, with_peers):
    bench.make_documents()
    check_extent(bench)
    for command in subjects.COMMANDS:
        subject = subjects.subject(command, bench)
        if with_peers:
            subject = subjects.with_peers(subject, bench)
        run_once(subject, bench)
        for each in CHECKS[command]:
            each(bench)
        print(f"{command}: the outputs are as they should be")

"""Holds metagen against the independent accounts of its commands, on any number of random
documents:

    python3 -B tests/oracle/agreement.py --command combine --seeds 0 20000

A seed on which the two disagree is printed with what differs and with its documents, cut down to
the members that the disagreement takes. The exit status is 0 only when all agree. Where the binary
is, the environment tells, as it does for the command tests.
"""

import argparse
import copy
import dataclasses
import json
import multiprocessing
import os
import pathlib
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "tests" / "oracle"), str(ROOT / "tests" / "commands")]
import base_document  # noqa: E402
import combine  # noqa: E402
import diff  # noqa: E402
import genh  # noqa: E402
import genm  # noqa: E402
import harness  # noqa: E402
import lint  # noqa: E402
from random_catalogue import random_catalogue  # noqa: E402
from random_combined import random_combined  # noqa: E402
from random_lint import random_lint  # noqa: E402
from random_meta import random_meta  # noqa: E402
from random_stripped import Documents  # noqa: E402


@dataclasses.dataclass
class End:
    """How a run ends: its status, its outputs and the files that it writes. An output or a file
    that is None is not looked at."""

    status: int = 0
    stdout: bytes = b""
    stderr: bytes = b""
    files: dict = dataclasses.field(default_factory=dict)


@dataclasses.dataclass
class Case:
    """One run: its arguments, its input documents by file name, and how it should end."""

    arguments: list
    documents: dict
    expect: object  # from the texts of the documents, in their order
    catalogue: str = None
    binary: pathlib.Path = harness.BINARY
    ascii: bool = True
    indent: object = None
    observe: object = None  # instead of one run: gives its end from the texts and the folder

    def texts(self):
        return {name: json.dumps(document, ensure_ascii=self.ascii, indent=self.indent)
                for name, document in self.documents.items()}


def line_ends(data):
    return data.replace(b"\n", b"\r\n") if harness.WINDOWS else data


# --- what the accounts say ------------------------------------------------------------------------

def expect_dump(catalogue):
    return End(files={"base.json": base_document.base_document(json.loads(catalogue))})


def expect_combine(base, stripped):
    outcome = combine.combine(base, stripped)
    status = harness.ABORTED if outcome.status == combine.ABORTED else outcome.status
    return End(status, harness.text_bytes(outcome.stdout), harness.text_bytes(outcome.stderr),
               {"combined.json": harness.text_bytes(outcome.document)})


def expect_diff(left, right):
    return End(files={"diff.txt": harness.text_bytes(diff.diff(left, right))})


def expect_genh(combined):
    try:
        source, table = genh.genh(json.loads(combined))
    except genh.Failure as failure:
        return End(1, b"", str(failure).encode(), {"code.inl": b"", "code.bin": b""})
    except genh.AbnormalEnd as end:
        return End(harness.ABORTED, b"", harness.text_bytes(f"{end}\n"),
                   {"code.inl": b"", "code.bin": b""})
    return End(files={"code.inl": line_ends(source), "code.bin": table})


def expect_genm(combined):
    outputs = genm.genm(json.loads(combined))
    files = {"code.inl": line_ends(outputs.source), "code.bin": outputs.binary}
    if outputs.end is None:
        return End(files=files)
    if isinstance(outputs.end, genm.Stop):
        return End(outputs.end.status, harness.text_bytes(outputs.end.stdout),
                   harness.text_bytes(outputs.end.stderr), files)
    return End(harness.ABORTED, b"", harness.text_bytes(f"{outputs.end}\n"), files)


def expect_lint(base, stripped):
    return End(1 if lint.reason(base, stripped) else 0, stdout=None)


def expect_fix(base, stripped):
    """The fixed document is combined to the same, and a second run has nothing to do."""
    return End(files={"combined.json": combine.combine(base, stripped).document,
                      "second run": "", "fixable": 0})


# --- cases ----------------------------------------------------------------------------------------

def dump_case(seed):
    return Case(["dump", "-o", "base.json"], {"catalogue.json": random_catalogue(seed)},
                expect_dump, "catalogue.json")


def combine_case(seed):
    documents = Documents(seed)
    return Case(["combine", "-i", "stripped.json", "-o", "combined.json"],
                {"catalogue.json": {"plugins": documents.live},
                 "stripped.json": documents.stripped}, expect_combine, "catalogue.json")


def diff_case(seed):
    documents = Documents(seed)
    return Case(["diff", "-l", "left.json", "-r", "right.json", "-o", "diff.txt"],
                {"left.json": {"plugins": documents.live, "notes": {"b": 1}, "a": [0, True]},
                 "right.json": {"a": [-0.0, 1], **documents.stripped}}, expect_diff)


def generator_case(command, make, expect):
    return lambda seed: Case([command, "-i", "combined.json", "-o", "code"],
                             {"combined.json": make(seed)}, expect)


def lint_case(seed):
    base, stripped = random_lint(seed)
    if seed % 2 == 0:
        return Case(["stripped.json"], {"catalogue.json": base, "stripped.json": stripped},
                    expect_lint, "catalogue.json", binary=harness.LINTER)
    return Case(["--base", "base.json", "stripped.json"],
                {"base.json": base, "stripped.json": stripped}, expect_lint, binary=harness.LINTER)


FIXABLE = ("duplicate-of-sdk", "null-of-unknown")


def observe_fix(case, texts, folder):
    """The end of two runs that fix, in the form of expect_fix."""
    ends = [run(case, texts, folder), None]
    fixed = (folder / "stripped.json").read_bytes()
    ends[1] = run(case, {**texts, "stripped.json": fixed.decode("utf-8", "surrogatepass")}, folder)
    again = (folder / "stripped.json").read_bytes()
    left = [finding for finding in json.loads(ends[1].stdout)["findings"]
            if finding["rule"] in FIXABLE]
    failed = [end.stderr for end in ends if end.status not in (0, 1)]
    return End(files={
        "combined.json": combine.combine(texts["base.json"], fixed.decode()).document,
        "second run": "" if again == fixed and not failed else f"{fixed} {again} {failed}",
        "fixable": len(left)})


def fix_case(seed):
    base, stripped = random_lint(seed)
    return Case(["--fix", "--format", "json", "--base", "base.json", "stripped.json"],
                {"base.json": base, "stripped.json": stripped}, expect_fix, binary=harness.LINTER,
                observe=observe_fix)


CASES = {
    "dump": dump_case,
    "combine": combine_case,
    "diff": diff_case,
    "genh": generator_case("genh", random_combined, expect_genh),
    "genm": generator_case("genm", random_meta, expect_genm),
    "lint": lint_case,
    "fix": fix_case,
}


def case_of(command, seed):
    case = CASES[command](seed)
    case.ascii = seed % 2 == 0
    case.indent = (None, 2, "\t")[seed % 3]
    return case


# --- runs -----------------------------------------------------------------------------------------

def run(case, texts, folder):
    """The end of the tool's run, with the files of the folder that are not its inputs."""
    for path in folder.iterdir():
        path.unlink()
    for name, text in texts.items():
        (folder / name).write_bytes(text.encode("utf-8", "surrogatepass"))
    ledger = folder / "ledger.txt"
    environment = harness.environment_of_run({
        "QYRA_SDK": harness.REPLAY_SDK, "QYRA_REPLAY_LEDGER": ledger,
        "QYRA_REPLAY_CATALOGUE": case.catalogue and folder / case.catalogue,
        "LC_ALL": os.environ.get("METAGEN_RUN_LOCALE") or None,
        "LOCPATH": os.environ.get("LOCPATH")})
    finished = subprocess.run(
        [*harness.LAUNCHER, str(case.binary), *case.arguments], cwd=folder, env=environment,
        stdin=subprocess.DEVNULL, capture_output=True, timeout=harness.RUN_SECONDS, check=False)
    status = harness.comparable_status(finished.returncode)
    finished.stderr += (harness.ledger_fault(ledger, status) or "").encode()
    files = {path.name: path.read_bytes() for path in folder.iterdir()
             if path.name not in texts and path != ledger}
    return End(status, finished.stdout, finished.stderr, files)


def difference(case, folder):
    """What the two say differently, as a text; none when they agree."""
    texts = case.texts()
    expected = case.expect(*texts.values())
    actual = (case.observe or run)(case, texts, folder)
    for output in ("stdout", "stderr"):
        if getattr(expected, output) is None:
            setattr(actual, output, None)
    for name, content in expected.files.items():
        if content is None:
            actual.files.pop(name, None)
    expected.files = {name: content for name, content in expected.files.items()
                      if content is not None}
    return None if expected == actual else f"expected {expected}\n     got {actual}"


# --- shrinking ------------------------------------------------------------------------------------

def removals(value):
    """Every way to take one member or element out: (container, key)."""
    if isinstance(value, (dict, list)):
        keys = list(value) if isinstance(value, dict) else range(len(value) - 1, -1, -1)
        for key in keys:
            yield value, key
        for key in keys:
            yield from removals(value[key])


def expected_status(case):
    return case.expect(*case.texts().values()).status


def still_differs(case, folder, status):
    """Whether the two still disagree on a run that should end in the same way."""
    try:
        return expected_status(case) == status and difference(case, folder) is not None
    except Exception:  # the account itself can't take what is left
        return False


def shrink(case, folder, seconds=60):
    """The case with every member taken out without which the two still disagree."""
    case = dataclasses.replace(case, documents=copy.deepcopy(case.documents))
    status = expected_status(case)
    until = time.monotonic() + seconds
    smaller = True
    while smaller and time.monotonic() < until:
        smaller = False
        for document in case.documents.values():
            for container, key in list(removals(document)):
                if time.monotonic() > until:
                    return case
                if isinstance(container, dict) and key not in container:
                    continue
                kept = copy.copy(container)
                try:
                    del container[key]
                except (IndexError, KeyError):
                    continue
                if still_differs(case, folder, status):
                    smaller = True
                    continue
                container.clear()
                container.update(kept) if isinstance(kept, dict) else container.extend(kept)
    return case


# --- the whole ------------------------------------------------------------------------------------

def check(work):
    """The report on one seed; none when the two agree."""
    command, seed = work
    with tempfile.TemporaryDirectory(prefix="metagen-agreement-") as name:
        folder = pathlib.Path(name)
        case = case_of(command, seed)
        try:
            found = difference(case, folder)
        except Exception as error:
            return f"{command}, seed {seed}: {type(error).__name__}: {error}"
        if found is None:
            return None
        smaller = shrink(case, folder)
        return (f"{command}, seed {seed}: {found}\nshrunk to {smaller.texts()}:\n"
                f"{difference(smaller, folder)}")


def read_arguments():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--command", action="append", choices=CASES)
    parser.add_argument("--seeds", nargs=2, type=int, default=(0, 100), metavar=("FROM", "TO"))
    parser.add_argument("--jobs", type=int, default=2)
    return parser.parse_args()


def main():
    arguments = read_arguments()
    failed = False
    with multiprocessing.Pool(arguments.jobs) as pool:
        for command in arguments.command or CASES:
            began = time.monotonic()
            work = [(command, seed) for seed in range(*arguments.seeds)]
            reports = []
            for done, report in enumerate(pool.imap(check, work, chunksize=20), 1):
                if report:
                    reports.append(report)
                    print(report, flush=True)
                if done % 1000 == 0:
                    print(f"{command}: {done} compared", flush=True)
            print(f"{command}: {len(work)} documents, {len(reports)} disagreements, "
                  f"{time.monotonic() - began:.0f} s", flush=True)
            failed = failed or bool(reports)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())

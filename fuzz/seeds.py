"""Writes the seed corpus of the fuzzers, from the goldens and the random documents of the tests:
seeds.py <folder> makes <folder>/<target>/."""

import json
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
GOLDEN = ROOT / "tests" / "golden"
sys.path.insert(0, str(ROOT / "tests" / "oracle"))
from random_catalogue import random_catalogue  # noqa: E402
from random_combined import random_combined  # noqa: E402
from random_lint import random_lint  # noqa: E402
from random_meta import random_meta  # noqa: E402
from random_stripped import Documents  # noqa: E402

SEEDS = range(60)
LARGEST = 40_000  # bytes; larger seeds only slow a fuzzer down


def json_bytes(document):
    return json.dumps(document, ensure_ascii=False).encode("utf-8", "surrogatepass")


def golden_documents(*commands):
    for command in commands:
        for path in sorted((GOLDEN / command).rglob("*.json")):
            yield path.read_bytes()


def plugins_of(text):
    """A document for each plugin of one: small enough to be changed thousands of times a second."""
    document = json.loads(text)
    for name, plugin in document.get("plugins", {}).items():
        yield json_bytes({"plugins": {name: plugin}, "version": 3})


def default_texts():
    for text in golden_documents("combine", "dump", "genh", "genm"):
        for found in re.findall(rb'"defaultValue":"((?:[^"\\]|\\.)*)"', text):
            yield json.loads(b'"' + found + b'"').encode()


def stripped_and_live():
    for seed in SEEDS:
        documents = Documents(seed)
        yield b"\f".join([json_bytes(documents.stripped), json_bytes({"plugins": documents.live})])


def stripped_and_base():
    for seed in SEEDS:
        base, stripped = random_lint(seed)
        yield b"\f".join([json_bytes(stripped), json_bytes(base)])


def combined():
    for text in golden_documents("combine", "genh", "genm"):
        yield from plugins_of(text)
    for seed in SEEDS:
        yield json_bytes(random_combined(seed))
        yield json_bytes(random_meta(seed))


def catalogues():
    yield from plugins_of((ROOT / "replay_sdk" / "catalogue.json").read_bytes())
    for seed in SEEDS:
        yield json_bytes(random_catalogue(seed))


def tables():
    for path in sorted(GOLDEN.rglob("*.bin")):
        yield path.read_bytes()


TARGETS = {
    "catalogue": catalogues,
    "combine": stripped_and_live,
    "default_texts": default_texts,
    "diff": stripped_and_live,
    "generators": combined,
    "host_tables": tables,
    "json": lambda: (text for make in (combined, stripped_and_live) for text in make()),
    "lint": stripped_and_base,
}


def main():
    for target, make in TARGETS.items():
        folder = pathlib.Path(sys.argv[1]) / target
        folder.mkdir(parents=True, exist_ok=True)
        for number, seed in enumerate(sorted({seed for seed in make() if len(seed) <= LARGEST})):
            (folder / f"seed{number:04}").write_bytes(seed)


if __name__ == "__main__":
    main()

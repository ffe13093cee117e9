"""What a user would reach for instead of each command, as far as it is installed."""

import pathlib
import shutil
import sys

FOLDER = pathlib.Path(__file__).resolve().parent / "peers"

# Both documents in one order, line by line, and their difference; it is 1 when there is one.
SORTED_DIFF = 'jq -S . "$1" >left.txt && jq -S . "$2" >right.txt && diff left.txt right.txt'


def node_packages(bench):
    """The installed packages, which ./bench puts beside the documents; None without them."""
    packages = bench.folder.parent / "peers"
    there = shutil.which("node") and (packages / "node_modules").is_dir()
    return packages if there else None


def peers_of_diff(bench):
    base, revised = bench.path("base.json"), bench.path("revised.json")
    peers = {}
    if shutil.which("jq"):
        script = f'cd "$0" && {SORTED_DIFF}'
        peers["jq -S, diff"] = (["sh", "-c", script, bench.folder, base, revised],
                                ("left.txt", "right.txt"), (1,))
    packages = node_packages(bench)
    if packages:
        shutil.copy(FOLDER / "jsondiffpatch.mjs", packages)
        peers["jsondiffpatch"] = (["node", packages / "jsondiffpatch.mjs", base, revised,
                                   bench.path("peer.json")], ("peer.json",))
        peers["json-diff"] = (["node", packages / "node_modules/json-diff/bin/json-diff.js",
                               base, revised], (), (1,))
    return peers


def peers_of(name, bench):
    """Each peer's command line, outputs and statuses, by its name."""
    if name == "combine" and shutil.which("jq"):
        command = ["jq", "-c", "-s", ".[0] * .[1]", bench.path("base.json"),
                   bench.path("stripped.json")]
        return {"jq merge": (command,)}
    if name == "diff":
        return peers_of_diff(bench)
    tables = {"genh": "handlers", "genm": "parameters"}
    if name in tables:
        command = [sys.executable, FOLDER / "tables.py", tables[name], bench.path("combined.json"),
                   bench.path("peer")]
        return {"Python script": (command, ("peer.inl", "peer.bin"))}
    return {}

"""Keeps in fuzz/corpus the fewest inputs that together reach whatever any of them reaches of the
project's own sources: every region of code, and both ways of every condition.

keep.py <build> <folder>... takes the fuzz targets of a build that counts what they reach, and the
inputs in <folder>/<target>/ beside those in fuzz/corpus.
"""

import hashlib
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[1]
CORPUS = ROOT / "fuzz" / "corpus"
SOURCES = [ROOT / name for name in ("src", "replay_sdk", "include")]


def reached(program, file):
    """The places that the program reaches with that input."""
    with tempfile.TemporaryDirectory() as folder:
        raw = os.path.join(folder, "raw")
        profile = os.path.join(folder, "profile")
        subprocess.run([program, file], env={**os.environ, "LLVM_PROFILE_FILE": raw},
                       stdout=subprocess.DEVNULL, check=True)
        subprocess.run(["llvm-profdata", "merge", "-sparse", raw, "-o", profile], check=True)
        exported = subprocess.run(
            ["llvm-cov", "export", "-skip-functions", f"-instr-profile={profile}", program,
             *SOURCES], stdout=subprocess.PIPE, check=True).stdout
    places = set()
    for source in json.loads(exported)["data"][0]["files"]:
        name = source["filename"]
        for line, column, count, has_count, begins_region, _ in source["segments"]:
            if has_count and begins_region and count:
                places.add((name, line, column))
        for *span, true_count, false_count, _, _, _ in source["branches"]:
            places.update((name, *span, way) for way, count in
                          ((True, true_count), (False, false_count)) if count)
    return places


def fewest(inputs):
    """Of a dictionary from inputs to the places that each reaches. Always the input that reaches
    most of what is left, the smaller of equals; then none that the others make superfluous."""
    left = set().union(*inputs.values())
    kept = []
    while left:
        kept.append(min(inputs, key=lambda text: (-len(inputs[text] & left), len(text), text)))
        left -= inputs[kept[-1]]
    for text in list(kept):
        others = set().union(*(inputs[other] for other in kept if other != text))
        if inputs[text] <= others:
            kept.remove(text)
    return kept


def main():
    build, *folders = map(pathlib.Path, sys.argv[1:])
    for program in sorted(build.glob("fuzz/fuzz_*")):
        target = program.name.removeprefix("fuzz_")
        files = {file.read_bytes(): file for folder in [CORPUS, *folders]
                 for file in sorted((folder / target).glob("*"))}
        inputs = {text: reached(program, file) for text, file in files.items()}
        kept = fewest(inputs)
        shutil.rmtree(CORPUS / target, ignore_errors=True)
        (CORPUS / target).mkdir(parents=True)
        for text in kept:
            (CORPUS / target / hashlib.sha1(text).hexdigest()).write_bytes(text)
        places = len(set().union(*inputs.values()))
        print(f"{target:14} {len(kept):4} of {len(inputs):5} inputs reach {places:5} places",
              flush=True)


if __name__ == "__main__":
    main()

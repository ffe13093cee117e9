"""Holds builds of metagen against each other: the same documents give the same bytes, line ends of
text files on Windows aside, whatever the compiler, its optimisation and the locale.

    same_bytes.py [--documents N] BUILD...

takes the build folders, the first of which the others are compared with. It runs every command on
the goldens and on N random documents for each, twice with the first build, and with the first build
under every installed locale, those in build/locales included, that changes the decimal point.
"""

import argparse
import concurrent.futures
import hashlib
import json
import os
import pathlib
import subprocess
import sys
import tempfile

import agreement
from agreement import Case, case_of
from harness import ABORTED, GOLDEN, ROOT, WINDOWS

LOCALES = ROOT / "build" / "locales"


# --- one build ------------------------------------------------------------------------------------

def golden(*names):
    return {file: json.loads((GOLDEN / path).read_bytes()) for file, path in names}


def golden_cases():
    base, combined = "dump/bundled/base.json", "combine/bundled/combined.json"
    stripped = json.loads((ROOT / "examples" / "stripped.json").read_bytes())
    catalogue = {"catalogue.json": json.loads((GOLDEN / base).read_bytes())}
    yield Case(["dump", "-o", "base.json"], catalogue, None, "catalogue.json")
    yield Case(["combine", "-i", "stripped.json", "-o", "combined.json"],
               {**catalogue, "stripped.json": stripped}, None, "catalogue.json")
    yield Case(["diff", "-l", "left.json", "-r", "right.json", "-o", "diff.txt"],
               golden(("left.json", base), ("right.json", combined)), None)
    for command in ("genh", "genm"):
        yield Case([command, "-i", "combined.json", "-o", "code"],
                   golden(("combined.json", combined)), None)


def cases(count):
    yield from ((f"golden {case.arguments[0]}", case) for case in golden_cases())
    for command in agreement.CASES:
        yield from ((f"{command}, seed {seed}", case_of(command, seed)) for seed in range(count))


def plain(name, content):
    """The bytes with Linux's line ends, of a text."""
    return content.replace(b"\r\n", b"\n") if WINDOWS and not name.endswith(".bin") else content


def digest(end):
    status = "aborted" if end.status == ABORTED else end.status
    parts = {"stdout": end.stdout, "stderr": end.stderr, **end.files}
    return {"status": status, **{name: hashlib.sha256(plain(name, content)).hexdigest()
                                 for name, content in sorted(parts.items())}}


def print_digests(count):
    with tempfile.TemporaryDirectory(prefix="metagen-same-bytes-") as name:
        folder = pathlib.Path(name)
        print(json.dumps({label: digest(agreement.run(case, case.texts(), folder))
                          for label, case in cases(count)}))


# --- all builds -----------------------------------------------------------------------------------

def environment(build, locale=None):
    windows = (build / "metagen.exe").exists()
    values = {"METAGEN_BINARY": build / ("metagen.exe" if windows else "metagen"),
              "METAGEN_REPLAY_SDK": build / "sdk", "METAGEN_RUN_LOCALE": locale or "",
              "METAGEN_LAUNCHER": ROOT / "scripts" / "run-in-wine" if windows else "",
              "WINEPREFIX": build / "wine", "LOCPATH": LOCALES}
    return {**os.environ, **{name: str(value) for name, value in values.items()}}


def digests(build, count, locale=None):
    values = environment(build, locale)
    launcher = values["METAGEN_LAUNCHER"]
    if launcher:
        subprocess.run([launcher, "--start"], env=values, check=True)
    try:
        finished = subprocess.run(
            [sys.executable, "-B", __file__, "--digests", "--documents", str(count)], env=values,
            stdout=subprocess.PIPE, check=True)
    finally:
        if launcher:
            subprocess.run([launcher, "--stop"], env=values, check=False)
    return json.loads(finished.stdout)


def decimal_point(locale):
    values = {**os.environ, "LOCPATH": str(LOCALES), "LC_ALL": locale}
    return subprocess.run(["locale", "decimal_point"], env=values, capture_output=True, text=True,
                          check=False).stdout.strip()


def other_locales():
    listed = subprocess.run(["locale", "-a"], capture_output=True, text=True, check=True).stdout
    own = [path.name for path in LOCALES.iterdir()] if LOCALES.is_dir() else []
    return sorted(name for name in {*listed.split("\n"), *own}
                  if name and decimal_point(name) not in ("", "."))


def report(label, expected, found):
    different = [name for name in expected if expected[name] != found.get(name)]
    print(f"{label}: {len(found)} runs, {len(different)} differences", flush=True)
    for name in different[:5]:
        parts = {part for part in {**expected[name], **found.get(name, {})}
                 if expected[name].get(part) != found.get(name, {}).get(part)}
        print(f"  {name}: {', '.join(sorted(parts))}")
    return bool(different)


def compare(builds, count):
    locales = other_locales()
    if not locales:
        print("no locale that changes the decimal point")
        return 1
    variants = [(str(builds[0].name) + " again", builds[0], None)]
    variants += [(build.name, build, None) for build in builds[1:]]
    variants += [(f"{builds[0].name} in {locale}", builds[0], locale) for locale in locales]
    with concurrent.futures.ThreadPoolExecutor(max_workers=2) as pool:
        first = pool.submit(digests, builds[0], count)
        others = [pool.submit(digests, build, count, locale) for _, build, locale in variants]
        results = [report(label, first.result(), other.result())
                   for (label, _, _), other in zip(variants, others)]
    return 1 if any(results) else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--documents", type=int, default=100)
    parser.add_argument("--digests", action="store_true")
    parser.add_argument("builds", nargs="*", type=pathlib.Path)
    arguments = parser.parse_args()
    if arguments.digests:
        return print_digests(arguments.documents)
    return compare([build.resolve() for build in arguments.builds], arguments.documents)


if __name__ == "__main__":
    sys.exit(main())

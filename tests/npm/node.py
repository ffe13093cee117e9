"""Runs a file of tests in JavaScript with the npm packages of package-lock.json, which it installs
when they are not there yet; its exit status is that of the tests.

    node.py <file.js>
"""

import fcntl
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
FILES = ("package.json", "package-lock.json")
# One folder for all presets: the packages are the same.
PACKAGES = HERE.parents[1] / "build" / "npm"


def program(name):
    return shutil.which(name) or sys.exit(f"{name} is missing: install Node.js (Debian: nodejs, npm)")


def is_installed():
    return all((PACKAGES / name).is_file()
               and (PACKAGES / name).read_bytes() == (HERE / name).read_bytes() for name in FILES)


def install():
    """Does nothing, and needs neither npm nor a network, when exactly these packages are there. Of
    tests that run at the same time one installs them, and the others wait."""
    PACKAGES.parent.mkdir(parents=True, exist_ok=True)
    with open(PACKAGES.parent / f"{PACKAGES.name}.lock", "wb") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        if not is_installed():
            install_anew()


def install_anew():
    npm = program("npm")
    # By itself npm tries for minutes.
    ping = subprocess.run([npm, "ping", "--fetch-retries=0", "--fetch-timeout=10000"],
                          capture_output=True, check=False)
    if ping.returncode != 0:
        sys.exit("npm does not reach its registry, from which this test takes packages")
    # Put in place in one step, so that a folder that is there is complete.
    staging = pathlib.Path(tempfile.mkdtemp(prefix=f"{PACKAGES.name}-", dir=PACKAGES.parent))
    try:
        for name in FILES:
            shutil.copy(HERE / name, staging)
        subprocess.run([npm, "ci", "--prefer-offline", "--no-audit", "--no-fund",
                        "--ignore-scripts"], cwd=staging, check=True)
        shutil.rmtree(PACKAGES, ignore_errors=True)
        os.replace(staging, PACKAGES)
    finally:
        shutil.rmtree(staging, ignore_errors=True)


def main():
    install()
    environment = {**os.environ, "NODE_PATH": str(PACKAGES / "node_modules")}
    sys.exit(subprocess.run([program("node"), sys.argv[1]], env=environment,
                            check=False).returncode)


if __name__ == "__main__":
    main()

"""Installs the npm packages of package-lock.json."""

import fcntl
import os
import pathlib
import shutil
import subprocess
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
FILES = ("package.json", "package-lock.json")


def is_installed(folder):
    return all((folder / name).is_file()
               and (folder / name).read_bytes() == (HERE / name).read_bytes() for name in FILES)


def install(folder):
    """Installs them below the folder. Does nothing, and needs neither npm nor a network, when
    exactly these are there already. Of tests that run at the same time one does it, and the others
    wait."""
    folder.parent.mkdir(parents=True, exist_ok=True)
    with open(folder.parent / f"{folder.name}.lock", "wb") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        if not is_installed(folder):
            install_anew(folder)


def install_anew(folder):
    npm = shutil.which("npm")
    if npm is None:
        raise FileNotFoundError("npm is missing: install Node.js with it (Debian: nodejs, npm)")
    # Put in place in one step, so that a folder that is there is complete.
    staging = pathlib.Path(tempfile.mkdtemp(prefix=f"{folder.name}-", dir=folder.parent))
    try:
        for name in FILES:
            shutil.copy(HERE / name, staging)
        subprocess.run([npm, "ci", "--prefer-offline", "--fetch-retries=5", "--no-audit",
                        "--no-fund", "--ignore-scripts"], cwd=staging, check=True)
        shutil.rmtree(folder, ignore_errors=True)
        os.replace(staging, folder)
    finally:
        shutil.rmtree(staging, ignore_errors=True)

"""Installs the npm packages of package-lock.json."""

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
    exactly these are there already."""
    if is_installed(folder):
        return
    npm = shutil.which("npm")
    if npm is None:
        raise FileNotFoundError("npm is missing: install Node.js with it (Debian: nodejs, npm)")
    folder.parent.mkdir(parents=True, exist_ok=True)
    # Put in place in one step, so that a folder that is there is complete.
    staging = pathlib.Path(tempfile.mkdtemp(prefix=f"{folder.name}-", dir=folder.parent))
    try:
        for name in FILES:
            shutil.copy(HERE / name, staging)
        subprocess.run([npm, "ci", "--prefer-offline", "--no-audit", "--no-fund",
                        "--ignore-scripts"], cwd=staging, check=True)
        shutil.rmtree(folder, ignore_errors=True)
        os.replace(staging, folder)
    finally:
        shutil.rmtree(staging, ignore_errors=True)

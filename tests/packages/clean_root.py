"""A root folder for chroot that holds what a small Debian holds: the essential packages, those that
are asked for, and what they depend on, as they are installed on this machine. dpkg runs in it with
a database that knows these packages and no others."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile

_FIELDS = "${Package}\\t${Essential}\\t${Provides}\\t${Pre-Depends}\\t${Depends}\\n"
_KEPT_BY_THE_SYSTEM = re.compile(
    r"tmp/|var/(lib/dpkg|log|cache)/|var/lib/shells.state$|etc/ld.so.cache$"
    r"|usr/lib/python3.*/__pycache__")
_DPKG = pathlib.Path("/var/lib/dpkg")


def _names(relation):
    """The package names of a relation field: a list of alternatives for each of its items."""
    return [[re.match(r"[a-z0-9.+-]+", name.strip())[0] for name in item.split("|")]
            for item in relation.split(",") if item.strip()]


class _Installed:
    """What is installed on this machine."""

    def __init__(self):
        lines = subprocess.run(["dpkg-query", "--show", "--showformat", _FIELDS], text=True,
                               capture_output=True, check=True).stdout.splitlines()
        self.essential, self.needs, self._providers = [], {}, {}
        for line in lines:
            package, essential, provides, *depends = line.split("\t")
            if essential == "yes":
                self.essential.append(package)
            self.needs[package] = [item for field in depends for item in _names(field)]
            for virtual in [package] + [item[0] for item in _names(provides)]:
                self._providers.setdefault(virtual, []).append(package)

    def closure(self, packages):
        """These packages and all that they need."""
        found, waiting = set(), list(packages)
        while waiting:
            package = waiting.pop()
            if package not in found:
                found.add(package)
                waiting += [self._first_present(item) for item in self.needs[package]]
        return sorted(found)

    def _first_present(self, alternatives):
        for name in alternatives:
            if name in self._providers:
                return self._providers[name][0]
        raise LookupError(f"none is installed of {alternatives}")


class CleanRoot:
    """The packages are asked for by a relation field, like "libc6 (>= 2.34), python3". Use it in a
    with statement."""

    def __init__(self, relation=""):
        self._relation = relation

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="metagen-root-"))
        installed = _Installed()
        asked = [names[0] for names in _names(self._relation)]
        self.packages = installed.closure(installed.essential + asked)
        for link in ("bin", "sbin", "lib", "lib64"):
            if (place := pathlib.Path("/", link)).is_symlink():
                (self.folder / link).symlink_to(place.readlink())
                (self.folder / place.readlink()).mkdir(parents=True, exist_ok=True)
        self._copy_files()
        self._copy_database()
        for name in ("passwd", "group", "shells"):  # made by the packages at their installation
            shutil.copy(f"/etc/{name}", self.folder / "etc")
        for folder in ("dev", "proc", "tmp", "root", "var/log"):
            (self.folder / folder).mkdir(parents=True, exist_ok=True)
        null = self.folder / "dev/null"
        try:
            os.mknod(null, 0o20666, os.makedev(1, 3))
        except PermissionError:  # no superuser, or one without this right; a file does as well
            null.touch()
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.folder)

    def _copy_files(self):
        listed = subprocess.run(["dpkg-query", "--listfiles", *self.packages], text=True,
                                capture_output=True, check=True).stdout.splitlines()
        # What was diverted or left out at its installation isn't there.
        present = {path for path in listed if path.startswith("/") and os.path.lexists(path)}
        # A few folders are the superuser's alone. What they hold is of no package.
        closed = {path for path in present if os.path.isdir(path) and not os.access(path, os.R_OK)}
        # Hard links are stored relative to the root, as everything is.
        names = "\0".join(path[1:] for path in sorted(present - closed))
        with tempfile.TemporaryFile() as archive:
            subprocess.run(["tar", "--create", "--directory=/", "--no-recursion", "--null",
                            "--files-from=-"], input=names.encode(), stdout=archive, check=True)
            archive.seek(0)
            subprocess.run(["tar", "--extract", "--keep-directory-symlink",
                            f"--directory={self.folder}"], stdin=archive, check=True)
        for path in closed:
            (self.folder / path[1:]).mkdir(parents=True, exist_ok=True)

    def _copy_database(self):
        database = self.folder / _DPKG.relative_to("/")
        for folder in ("info", "updates", "triggers", "parts", "alternatives"):
            (database / folder).mkdir(parents=True, exist_ok=True)
        status = subprocess.run(["dpkg-query", "--status", *self.packages], text=True,
                                capture_output=True, check=True).stdout
        (database / "status").write_text(status, encoding="utf-8")
        (database / "available").touch()
        for package in self.packages:
            for path in [*_DPKG.glob(f"info/{package}.*"), *_DPKG.glob(f"info/{package}:*")]:
                shutil.copy(path, database / "info")
        shutil.copy(_DPKG / "info" / "format", database / "info")

    def run(self, *command, **environment):
        """Runs a command in the root; gives its status and what it printed on both outputs."""
        enter = ["chroot", self.folder]
        if os.geteuid() != 0:
            # Without the rights of root, in a name space in which the user is root.
            enter = ["unshare", "--map-root-user", "--mount", "sh", "-c",
                     'mount --bind /dev/null "$0/dev/null" && exec chroot "$0" "$@"', self.folder]
        finished = subprocess.run(
            [*enter, *command], text=True, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT, check=False,
            env={"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "HOME": "/root", "LC_ALL": "C.UTF-8",
                 "DEBIAN_FRONTEND": "noninteractive", **environment})
        return finished.returncode, finished.stdout

    def files(self):
        """All the paths in the root, but records and caches that the system keeps for itself."""
        found = {path.relative_to(self.folder).as_posix() for path in self.folder.rglob("*")}
        return {path for path in found if not _KEPT_BY_THE_SYSTEM.match(path)}

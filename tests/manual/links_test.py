"""Every link in the project's pages leads somewhere, in the sources and where they are installed."""

import os
import pathlib
import re
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("METAGEN_BUILD", ROOT / "build" / "release"))

_LINK = re.compile(r"\]\((?!https?:)([^)#]*)(?:#([^)]*))?\)")


def anchors(page):
    """The anchors that a forge makes of a page's headings."""
    headings = re.findall(r"^#+ (.*)$", page.read_text(encoding="utf-8"), re.MULTILINE)
    return {re.sub(r"[^\w -]", "", heading).lower().replace(" ", "-") for heading in headings}


def dead_links(pages):
    found = []
    for page in pages:
        for target, anchor in _LINK.findall(page.read_text(encoding="utf-8")):
            place = page.parent / target if target else page
            if not place.exists() or (anchor and anchor not in anchors(place)):
                found.append(f"{page}: {target}#{anchor}")
    return found


def linked_from(page, found=None):
    """The page, and all pages that links lead to from it."""
    found = {page} if found is None else found
    for target, _ in _LINK.findall(page.read_text(encoding="utf-8")):
        place = (page.parent / target).resolve()
        if place.suffix == ".md" and place not in found:
            found.add(place)
            linked_from(place, found)
    return found


def is_source(path):
    """Neither built nor in a hidden folder, such as a version control keeps."""
    folders = path.relative_to(ROOT).parts[:-1]
    return folders[:1] != ("build",) and not any(name.startswith(".") for name in folders)


class LinksTest(unittest.TestCase):
    def test_a_dead_link_is_found(self):
        with tempfile.TemporaryDirectory() as folder:
            page = pathlib.Path(folder, "page.md")
            page.write_text("# A b\n[x](page.md#a-b) [y](page.md#c) [z](none.md) [w](https://w)",
                            encoding="utf-8")
            self.assertEqual([f"{page}: page.md#c", f"{page}: none.md#"], dead_links([page]))

    def test_in_the_sources(self):
        pages = sorted(path for path in ROOT.rglob("*.md") if is_source(path))
        self.assertGreater(len(pages), 5)
        self.assertEqual([], dead_links(pages))

    def test_every_page_is_found_from_the_first(self):
        pages = {path for path in ROOT.rglob("*.md") if is_source(path)}
        self.assertEqual(set(), pages - linked_from(ROOT / "README.md"))

    def test_where_they_are_installed(self):
        with tempfile.TemporaryDirectory(prefix="metagen-test-") as prefix:
            subprocess.run(["cmake", "--install", BUILD, "--prefix", prefix], check=True,
                           stdout=subprocess.DEVNULL)
            pages = sorted(pathlib.Path(prefix).rglob("*.md"))
            self.assertGreater(len(pages), 3)
            self.assertEqual([], dead_links(pages))


if __name__ == "__main__":
    unittest.main()

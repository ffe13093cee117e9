"""The page of metagen-report, in a headless Chromium."""

import html
import itertools
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

from selenium.webdriver.common.keys import Keys

from browser import Browser
from summary_text import SUMMARY

ROOT = pathlib.Path(__file__).resolve().parents[2]
TOOL = ROOT / "tools" / "metagen-report"
SHOTS = pathlib.Path(os.environ.get("METAGEN_BUILD", ROOT / "build" / "release")) / "report"
GOLDEN = ROOT / "tests" / "golden"
BUNDLED = GOLDEN / "dump" / "bundled" / "base.json"
COMBINED = GOLDEN / "combine" / "bundled" / "combined.json"
BUNDLED_SUMMARY = COMBINED.with_name("summary.txt")

# What the page shows: for each visible group its name and badges, and for each visible entry of it
# kind, name, section, and rows of cell texts. A row of folded entries is its label and these.
READ_PAGE = """
(() => {
  const badges = (part) =>
    [...part.querySelectorAll(".badge")].map(one => one.textContent).join(", ");
  const cells = (row) => row.className === "folded"
    ? [row.querySelector("summary").textContent, ...entries(row.querySelector("table"))]
    : [...row.querySelectorAll("td")].map(cell => cell.textContent);
  const entries = (table) => [...table.children].filter(body => !body.hidden).map(body => [
    body.dataset.kind, body.querySelector("b").textContent,
    body.rows[0].querySelector(".section")?.textContent ?? "", [...body.rows].map(cells)]);
  const groups = [...document.querySelectorAll("main > details:not([hidden])")];
  return groups.map(group => [group.querySelector(".name").textContent,
    badges(group.querySelector("summary")), entries(group.querySelector("table"))]);
})()
"""

# The index: the name of each plugin with its badges.
READ_INDEX = """
[...document.querySelectorAll("nav li:not([hidden])")].map(item => [
  item.querySelector(".name").textContent,
  [...item.querySelectorAll(".badge")].map(one => one.textContent).join(", ")])
"""

# The words that stand on two lines, at a width in which the page is shown within this one.
READ_BROKEN_WORDS = """
(() => {
  const page = document.querySelector("iframe").contentDocument;
  for (const element of page.querySelectorAll("details")) {
    element.open = true;
    element.style.contentVisibility = "visible";
  }
  const broken = [];
  const walker = page.createTreeWalker(page.body, NodeFilter.SHOW_TEXT);
  while (walker.nextNode()) {
    if (walker.currentNode.parentElement.closest("script, style")) continue;
    for (const word of walker.currentNode.data.matchAll(/\\S+/g)) {
      const range = page.createRange();
      range.setStart(walker.currentNode, word.index);
      range.setEnd(walker.currentNode, word.index + word[0].length);
      if (new Set([...range.getClientRects()].map(line => line.top)).size > 1) broken.push(word[0]);
    }
  }
  return [page.documentElement.scrollWidth, page.querySelectorAll(".value").length, broken];
})()
"""

HOSTILE = '"><img src=x onerror=alert(1)></script><script>alert(2)</script>'


def light(**params):
    return {"type": "light", "params": params}


LEFT = {"plugins": {
    "Gone": {"type": None, "params": {"size": {"type": "float", "defaultValue": "1"}}},
    "Lamp": {"type": "light", "userData": {},
             "params": {"color": {"type": "color", "defaultValue": "Color(1, 0.5, 0)"},
                        "old": {"type": "bool"},
                        "same": {"type": "integer", "defaultValue": "7"}}},
    "Same": light()}}
RIGHT = {"version": 3, "plugins": {
    "Lamp": {"type": None, "userData": {"note": {"type": "string", "defaultValue": ""},
                                        "color_tex": {"type": "texture"}},
             "params": {"color": {"type": "color", "defaultValue": "Color(0, 0, 2)",
                                  "handler": "ColorTexFrameHandler"},
                        "same": {"type": "integer", "defaultValue": "7"}}},
    "New": light(**{HOSTILE: {"type": "string", "defaultValue": HOSTILE}}),
    "Same": light()}}

SHOWN = [
    ["the document itself", "1 added", [["added", "version", "", [["", "—", "3"]]]]],
    ["Gone", "plugin removed", [
        ["removed", "", "plugin", [
            ["", ""],
            ["1 parameter", ["removed", "size", "", [["type", "float", "—"],
                                                     ["defaultValue", "1", "—"]]]]]]]],
    ["Lamp", "1 added, 1 removed, 2 changed", [
        ["changed", "type", "plugin", [["", "light", "null"]]],
        ["changed", "color", "", [
            ["defaultValue", "Color(1, 0.5, 0)", "Color(0, 0, 2)"],
            ["handler", "—", "ColorTexFrameHandler"],
            ["1 user data entry", ["added", "color_tex", "user data",
                                   [["type", "—", "texture"]]]]]],
        ["removed", "old", "", [["type", "bool", "—"]]],
        ["added", "note", "user data", [["type", "—", "string"],
                                        ["defaultValue", "—", "empty text"]]]]],
    ["New", "plugin added", [
        ["added", "", "plugin", [
            ["type", "—", "light"],
            ["1 parameter", ["added", HOSTILE, "", [["type", "—", "string"],
                                                    ["defaultValue", "—", HOSTILE]]]]]]]],
]


def names(shown):
    """The groups and entries of what a page shows, without their values."""
    return [(group, [entry[1] for entry in entries]) for group, _, entries in shown]


class PageTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.browser = cls.enterClassContext(Browser())

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="metagen-test-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def make_page(self, left, right):
        paths = [self.folder / "left.json", self.folder / "right.json"]
        for path, document in zip(paths, (left, right)):
            path.write_text(json.dumps(document), encoding="utf-8")
        page = self.folder / "page.html"
        subprocess.run([sys.executable, TOOL, *paths, "-o", page], check=True)
        return page

    def open(self, page):
        """Opens a page, which must be silent and load nothing; gives the seconds of work."""
        seconds = self.browser.open(page)
        self.assertEqual([], self.browser.complaints())
        self.assertEqual([page.resolve().as_uri()], self.browser.requests())
        return seconds

    def shown(self):
        return self.browser.evaluate(READ_PAGE)

    def text(self, selector):
        return self.browser.evaluate(f"document.querySelector('{selector}').innerText")

    def filter(self, text):
        self.browser.evaluate("document.getElementById('filter').focus()")
        return self.browser.type(text)

    def refilter(self, text):
        """Filters everything by another text; gives the seconds of work until the page
        shows it."""
        self.browser.evaluate("document.getElementById('filter').select()")
        return self.filter(text)

    def assert_quick(self, action):
        """The action is less than a second's work. The best of some tries counts, since a busy
        machine slows its processors' every step."""
        seconds = min(action() for _ in range(5))
        self.assertGreater(seconds, 0)
        self.assertLess(seconds, 1)

    def test_it_shows_what_the_documents_hold_and_runs_nothing_of_it(self):
        self.open(self.make_page(LEFT, RIGHT))
        self.assertEqual(SHOWN, self.shown())
        self.assertEqual("From left.json to right.json", self.text("h1"))
        self.assertTrue(self.text("#overview").startswith("7 entries in 3 plugins. An entry is "))
        self.assertEqual("3 added\n2 removed\n2 changed", self.text("#kinds"))
        self.assertEqual("7 of 7 entries shown", self.text("#shown"))
        self.assertEqual(1, self.browser.evaluate("document.scripts.length"))
        self.assertEqual(0, self.browser.evaluate("document.images.length"))
        self.assertEqual([], self.browser.complaints())

    def test_it_could_load_nothing_if_it_wanted_to(self):
        self.open(self.make_page(LEFT, RIGHT))
        self.assertEqual("img-src", self.browser.evaluate("""new Promise(done => {
            addEventListener("securitypolicyviolation", event => done(event.effectiveDirective));
            setTimeout(() => done("loaded"), 60000);
            new Image().src = "page.png";
        })"""))

    def test_a_colour_has_a_swatch(self):
        self.open(self.make_page(LEFT, RIGHT))
        self.assertEqual(
            [["rgb(255 128 0 / 1)", "Color(1, 0.5, 0)"], ["rgb(0 0 255 / 1)", "Color(0, 0, 2)"]],
            self.browser.evaluate("""[...document.querySelectorAll(".swatch")].map(
                swatch => [swatch.style.getPropertyValue("--color"),
                           swatch.parentElement.innerText])"""))
        self.assertIn("rgb(255, 128, 0)", self.browser.evaluate(
            "getComputedStyle(document.querySelector('.swatch')).backgroundImage"))

    def test_the_filter_takes_words_of_names_and_values(self):
        self.open(self.make_page(LEFT, RIGHT))
        self.filter("lamp COLOR")
        self.assertEqual([("Lamp", ["color"])], names(self.shown()))
        self.assertEqual("1 of 7 entries shown", self.text("#shown"))
        self.browser.press(Keys.ESCAPE)
        self.assertEqual(names(SHOWN), names(self.shown()))
        self.filter("colortexframe")
        self.assertEqual([("Lamp", ["color"])], names(self.shown()))
        self.browser.press(Keys.ESCAPE)
        self.filter("nowhere")
        self.assertEqual([], self.shown())
        self.assertEqual("Nothing fits the filter.", self.text("#nothing"))

    def test_the_slash_key_leads_to_the_filter(self):
        self.open(self.make_page(LEFT, RIGHT))
        self.browser.press("/")
        self.browser.type("size")
        self.assertEqual([("Gone", [""])], names(self.shown()))

    def test_the_boxes_choose_kinds(self):
        self.open(self.make_page(LEFT, RIGHT))
        self.browser.click("#kinds input[value=added]")
        self.browser.click("#kinds input[value=changed]")
        self.assertEqual([("Gone", [""]), ("Lamp", ["old"])], names(self.shown()))

    def test_what_is_folded_opens_for_a_word_in_it(self):
        opened = "[...document.querySelectorAll('.folded details')].map(one => one.open)"
        self.open(self.make_page(LEFT, RIGHT))
        self.filter("lamp color_tex")
        self.assertEqual([("Lamp", ["color"])], names(self.shown()))
        self.assertEqual([False, True, False], self.browser.evaluate(opened))
        self.refilter("lamp")
        self.assertEqual([False] * 3, self.browser.evaluate(opened))

    def test_the_index_tells_what_happened_and_leads_there(self):
        page = self.make_page(json.loads(BUNDLED.read_text("utf-8")),
                              json.loads(COMBINED.read_text("utf-8")))
        self.open(page)
        self.assertEqual([entry[:2] for entry in self.shown()],
                         self.browser.evaluate(READ_INDEX))
        place = "document.querySelectorAll('main > details')[20].getBoundingClientRect().top"
        self.assertGreater(self.browser.evaluate(place), 1000)
        self.browser.click("nav li:nth-child(21) a")
        bar = self.browser.evaluate("document.getElementById('bar').offsetHeight")
        self.assertTrue(bar <= self.browser.evaluate(place) <= bar + 50)
        self.filter("portal_mode")
        self.assertEqual([["AreaLight", "1 removed, 3 changed"]],
                         self.browser.evaluate(READ_INDEX))

    def test_no_word_is_broken(self):
        summary = self.folder / "summary.html"
        subprocess.run([sys.executable, TOOL, "-s", BUNDLED_SUMMARY, "-o", summary], check=True)
        page = self.make_page(json.loads(BUNDLED.read_text("utf-8")),
                              json.loads(COMBINED.read_text("utf-8")))
        for path, width in itertools.product((page, summary), (400, 910, 1250)):
            frame = self.folder / "frame.html"
            frame.write_text('<meta charset="utf-8">'
                             f'<iframe style="width: {width}px; height: 900px"'
                             f' srcdoc="{html.escape(path.read_text("utf-8"))}"></iframe>',
                             encoding="utf-8")
            self.browser.open(frame)
            shown_width, values, broken = self.browser.evaluate(READ_BROKEN_WORDS)
            self.assertEqual((width, []), (shown_width, broken))
            self.assertGreater(values, 50)
            self.browser.screenshot(SHOTS / f"{path.stem}-{width}.png")

    def test_equal_documents_have_no_differences(self):
        self.open(self.make_page(LEFT, LEFT))
        self.assertEqual([], self.shown())
        self.assertEqual("No differences.", self.text("#overview"))

    def test_the_bundled_catalogue_against_a_changed_one(self):
        text = BUNDLED.read_text(encoding="utf-8")
        base = json.loads(text)
        changed = json.loads(text.replace("Color(1, ", "Color(0.2, "))
        del changed["plugins"]["SunLight"]
        page = self.make_page(base, changed)
        self.open(page)
        shown = {group for group, _, _ in self.shown()}
        differing = {name for name, plugin in base["plugins"].items()
                     if plugin != changed["plugins"].get(name)}
        self.assertEqual(differing, shown)
        self.browser.screenshot(SHOTS / "bundled.png")

    def test_a_summary(self):
        page = self.folder / "page.html"
        summary = self.folder / "summary.txt"
        summary.write_text(SUMMARY, encoding="utf-8")
        subprocess.run([sys.executable, TOOL, "-s", summary, "-o", page], check=True)
        self.open(page)
        self.assertEqual([("Lamp", ["", "color", "", "", "color", "old", "size", "size"]),
                          ("Gone", [""]), ("Map", ["a", "b"]), ("Own", [""]), ("Sun", ["", "size"]),
                          ("Two  blanks", ["new"]), ("Zoo", ["a"])], names(self.shown()))
        self.assertTrue(self.text("#overview").startswith("16 entries in 7 plugins."))
        self.assertEqual("2 failed, 1 removed, 3 changed, 2 duplicated", self.shown()[0][1])
        self.assertEqual("Lamp has an odd default", self.text("#notes"))
        self.browser.screenshot(SHOTS / "summary.png")

    def test_600_plugins_open_and_filter_within_a_second(self):
        def document(value):
            params = {f"parameter_{number}": {"type": "color",
                                              "defaultValue": f"Color({value}, 0.5, 0.{number})"}
                      for number in range(20)}
            return {"plugins": {f"Plugin{number}": light(**params) for number in range(600)}}

        page = self.make_page(document(0), document(1))
        self.assert_quick(lambda: self.open(page))
        self.assertEqual("12000 of 12000 entries shown", self.text("#shown"))
        self.browser.screenshot(SHOTS / "600.png")
        self.assert_quick(lambda: self.refilter("plugin599 parameter_19"))
        self.assertEqual([("Plugin599", ["parameter_19"])], names(self.shown()))
        self.assert_quick(lambda: self.refilter("parameter_7"))
        self.assertEqual("600 of 12000 entries shown", self.text("#shown"))


if __name__ == "__main__":
    unittest.main()

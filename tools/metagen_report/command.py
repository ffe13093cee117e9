"""The command line of metagen-report."""

import argparse
import pathlib
import sys
import time

from . import VERSION
from .documents import UnreadableDocument, compare_documents, parse_document
from .page import render_page
from .summary import UnreadableSummary, read_summary

_DESCRIPTION = """\
Makes a page to look at of what changed: from two JSON documents, which may be base, combined or
stripped ones, or from the summary that metagen combine prints. The page is one HTML file that
needs no network."""


def _parser():
    parser = argparse.ArgumentParser(
        prog="metagen-report", description=_DESCRIPTION,
        usage="metagen-report [-h] (LEFT.json RIGHT.json | -s SUMMARY.txt) -o PAGE.html")
    parser.add_argument("documents", nargs="*", metavar="DOCUMENT.json",
                        help="the two documents, the older one first")
    parser.add_argument("-s", "--summary", metavar="SUMMARY.txt",
                        help="what metagen combine printed, instead of the documents")
    parser.add_argument("-o", "--output", metavar="PAGE.html", required=True,
                        help="the page to write")
    return parser


def _read(path):
    """The file's text. Bytes that aren't UTF-8 are shown as replacement characters."""
    return pathlib.Path(path).read_bytes().decode("utf-8", "replace")


def _names(left, right):
    """What the page calls two files: their names, or the paths when the names are equal."""
    names = pathlib.Path(left).name, pathlib.Path(right).name
    return names if names[0] != names[1] else (left, right)


def _dated(path, name):
    changed = time.localtime(pathlib.Path(path).stat().st_mtime)
    return f"{name} of {time.strftime('%Y-%m-%d %H:%M', changed)}"


def _report(arguments):
    if arguments.summary is not None:
        paths = [arguments.summary]
        names = [pathlib.Path(arguments.summary).name]
        report = read_summary(_read(*paths), *names)
    else:
        paths = arguments.documents
        names = _names(*paths)
        report = compare_documents(*(parse_document(_read(path), path) for path in paths), *names)
    report.files = [*map(_dated, paths, names), f"metagen {VERSION}"]
    return report


def main(words):
    """Runs the command line; gives the exit status."""
    parser = _parser()
    arguments = parser.parse_args(words)
    if len(arguments.documents) != (2 if arguments.summary is None else 0):
        parser.error("name two documents, or one summary with -s")
    try:
        page = render_page(_report(arguments))
        pathlib.Path(arguments.output).write_bytes(page.encode("utf-8", "replace"))
    except OSError as error:
        print(f"metagen-report: {error.filename}: {error.strerror}", file=sys.stderr)
    except UnreadableDocument as error:
        print(f"metagen-report: {error}", file=sys.stderr)
    except UnreadableSummary as error:
        print(f"metagen-report: {arguments.summary} is no summary of metagen combine: {error}",
              file=sys.stderr)
    else:
        return 0
    return 1

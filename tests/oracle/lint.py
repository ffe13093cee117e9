"""When `metagen-lint` has an error: when the accounts of combine, genh and genm show one.

    lint.py <base.json> <stripped.json>

tells the first reason, or nothing.
"""

import json
import pathlib
import re
import sys

import combine
import genh
import genm

FAILURES = re.compile("^Number of handler integrity checks failures: ([0-9]+)$", re.MULTILINE)


def left_out(document):
    """The handler parameters that genh doesn't tell the host of."""
    told = {(plugin, name) for plugin, handlers in genh.read_plugins(document)
            for name, *_ in handlers}
    for plugin, members in document["plugins"].items():
        for name, parameter in members.get("params", {}).items():
            handler = parameter.get("handler") if isinstance(parameter, dict) else None
            if isinstance(handler, str) and handler in genh.HANDLERS:
                if (genh.plain_bytes(plugin), genh.plain_bytes(name)) not in told:
                    yield f"{plugin}::{name}"


def unreadable_conditions(document):
    """The conditions of which the table holds no value."""
    for name, (_, parameters) in genm.scaling_table(genm.read_model(document)).items():
        for parameter_name, parameter in parameters:
            if any(condition.value is None for condition in parameter.conditions):
                yield f"{name}::{parameter_name}"


def check_shape(base):
    """Raises for what is no base document."""
    for plugin in base["plugins"].values():
        for parameter in plugin["params"].values():
            parameter["type"].encode()


def reason(base_text, stripped_text):
    """Why there is an error; none when there is none."""
    check_shape(json.loads(base_text))
    combined = combine.combine(base_text, stripped_text)
    if combined.status != 0:
        return f"combine ends with {combined.status}: {combined.stdout}{combined.stderr}"
    if FAILURES.search(combined.stdout)[1] != "0":
        return combined.stdout
    try:
        document, _ = json.JSONDecoder(parse_int=float).raw_decode(combined.document)
    except json.JSONDecodeError as error:
        return f"the combined document: {error}"
    try:
        genh.genh(document)
    except (genh.Failure, genh.AbnormalEnd) as end:
        return f"genh ends: {end}"
    end = genm.genm(document).end
    if end is not None:
        return f"genm ends: {type(end).__name__} {end}"
    for problem in (left_out, unreadable_conditions):
        found = list(problem(document))
        if found:
            return f"{problem.__name__}: {found}"
    return None


def main():
    texts = [pathlib.Path(path).read_text(encoding="utf-8") for path in sys.argv[1:]]
    print(reason(*texts) or "")


if __name__ == "__main__":
    main()

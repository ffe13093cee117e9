"""`combine` told a second time, in plain Python, for metagen to be compared with.

It takes the base document of the live metadata and the text of a stripped document, and knows
nothing of metagen but the formats. By hand: combine.py base.json stripped.json combined.json
prints the summary and writes the combined document.
"""

import dataclasses
import json
import pathlib
import sys

BROKEN_METADATA = 255  # -1 as the system keeps it
ABORTED = "aborted"

SECTIONS = (
    ("plugin types", "Number of changed plugin types: ", True),
    ("parameter types", "Changed parameter types: ", True),
    ("defaults", "Overriding defaultValue:", True),
    ("failures", "Number of handler integrity checks failures: ", True),
    ("deprecations", "Number of deprecations: ", False),
    ("duplications", "Number of duplications: ", False),
)

READABLE_LIST_TYPES = frozenset((
    "integer", "bool", "float", "float texture", "vector", "color", "acolor", "matrix",
    "transform", "plugin", "texture", "acolor texture", "color texture"))


@dataclasses.dataclass
class Outcome:
    """What a run leaves: its status, its two outputs and the text of the output file."""

    status: object = 0
    stdout: str = ""
    stderr: str = ""
    document: str = ""


class Stop(Exception):
    """The run ends here."""

    def __init__(self, status, stderr=""):
        super().__init__(stderr)
        self.status = status
        self.stderr = stderr


def wrong_kind(kind):
    return Stop(ABORTED, f'"type mismatch! call is<type>() before get<type>()" && is<{kind}>()\n')


def in_byte_order(names):
    return sorted(names, key=lambda name: name.encode())


def members(value):
    """The members of an object, in byte order of their names."""
    if not isinstance(value, dict):
        raise wrong_kind("object")
    return [(name, value[name]) for name in in_byte_order(value)]


# JSON texts

ESCAPES = {'"': '\\"', "\\": "\\\\", "/": "\\/", "\b": "\\b", "\f": "\\f", "\n": "\\n",
           "\r": "\\r", "\t": "\\t"}


def text_literal(text):
    def escaped(letter):
        code = ord(letter)
        return ESCAPES.get(letter) or (f"\\u{code:04x}" if code < 32 or code == 127 else letter)
    return '"' + "".join(map(escaped, text)) + '"'


def number_literal(number):
    whole = number == int(number) and abs(number) < 2 ** 53
    return "%.0f" % number if whole else "%.17g" % number


def compact(value):
    if value is None or isinstance(value, bool):
        return {None: "null", True: "true", False: "false"}[value]
    if isinstance(value, (int, float)):
        return number_literal(float(value))
    if isinstance(value, str):
        return text_literal(value)
    if isinstance(value, list):
        return "[" + ",".join(map(compact, value)) + "]"
    return "{" + ",".join(f"{text_literal(name)}:{compact(member)}"
                          for name, member in members(value)) + "}"


def folded(name):
    """The place of a name in the combined key order: "type", then by signed folded bytes."""
    codes = [ord(".") if code == ord("_") else code for code in name.encode().lower()]
    return name != "type", [code - 256 if code > 127 else code for code in codes]


def combined_text(value):
    if not isinstance(value, dict):
        return compact(value)
    kept = {}
    for name, member in members(value):
        kept.setdefault(str(folded(name)), (name, member))
    ordered = sorted(kept.values(), key=lambda pair: folded(pair[0]))
    return "{" + ",".join(f'"{name}":{combined_text(member)}' for name, member in ordered) + "}"


# The merge

class Merge:
    def __init__(self):
        self.entries = {key: [] for key, _, _ in SECTIONS}
        self.plugin = ""
        self.parameter = ""

    def changed(self, key, depth, new, old):
        if key not in ("type", "defaultValue"):
            return
        change = f"  {old} -> {compact(new)}"
        if key == "type" and depth < 3:
            self.entries["plugin types"].append(self.plugin + change)
        else:
            section = "parameter types" if key == "type" else "defaults"
            self.entries[section].append(f"{self.plugin}::{self.parameter}{change}")

    def merged(self, stripped, live, depth=0):
        """A new object: the live one with the stripped one over it."""
        if not isinstance(live, dict):
            raise wrong_kind("object")
        result = dict(live)
        for key, value in members(stripped):
            if depth == 1:
                self.plugin, self.parameter = key, ""
            elif depth == 3:
                self.parameter = key
            if value is None and depth in (1, 3):
                if key in result:
                    del result[key]
                    self.entries["deprecations"].append(f"{self.plugin}::{self.parameter}")
            elif key in result:
                result[key] = self.over(key, value, result[key], depth)
            else:
                result[key] = self.added(key, value, depth)
        return result

    def over(self, key, value, live, depth):
        if isinstance(value, dict):
            return self.merged(value, live, depth + 1)
        if compact(value) == compact(live):
            self.entries["duplications"].append(
                f"{self.plugin}::{self.parameter}::{key}::{compact(live)}")
            return live
        self.changed(key, depth, value, compact(live))
        return value

    def added(self, key, value, depth):
        if not isinstance(value, dict):
            self.changed(key, depth, value, "")
            return value
        for inner in ("type", "defaultValue"):
            if inner in value:
                self.changed(inner, depth, value[inner], "")
        return value


# The checks

def clash_lines(plugins):
    lines = []
    for name, plugin in members(plugins):
        if not isinstance(plugin, dict) or not {"params", "userData"} <= set(plugin):
            continue
        both = ({key for key, _ in members(plugin["params"])}
                & {key for key, _ in members(plugin["userData"])})
        if both:
            lines.append(f"{name} has duplicated named param and userdata - "
                         + "".join(key + " " for key in in_byte_order(both)) + "\n")
    return lines


def default_lines(plugins):
    for name, plugin in members(plugins):
        for group in [member for key, member in members(plugin) if key in ("params", "userData")]:
            for entry_name, entry in members(group):
                if lacks_default(dict(members(entry))):
                    yield (f"{name}::{entry_name} : Unexpected defautValue format for type "
                           + " = \n")


def lacks_default(entry):
    for key in ("type", "defaultValue", "listType"):
        if key in entry and not isinstance(entry[key], str):
            raise wrong_kind("std::string")
    bare = not {"type", "defaultValue"} & set(entry)
    return bare and entry.get("listType") in READABLE_LIST_TYPES


def parameter_failures(name, parameter, user_data):
    """What the pass over the parameters finds, and whether there is a handler."""
    exists = {suffix: name + suffix in user_data
              for suffix in ("_tex", "_tex_on", "_tex_mult", "_res_mult", "_color", "_float")}
    if not any(exists.values()):
        return [], False
    if "handler" not in dict(members(parameter)):
        return ["Userdata for handler exist, but no handler was defined"], False
    found = []
    if not all(exists[suffix] for suffix in ("_tex", "_tex_on", "_tex_mult", "_res_mult")):
        found.append("_tex_* user data is missing")
    if exists["_float"] == exists["_color"]:
        found.append(f"expecting exactly one {name}_float or {name}_color")
    expected = ("FloatTexFrameHandler" if exists["_float"] else
                "ColorTexFrameHandler" if exists["_color"] else None)
    handler = parameter["handler"]
    if isinstance(handler, str) and expected and handler != expected:
        found.append(f'mismatch handler type "{handler}", expecting "{expected}"')
    return found, True


def user_data_failure(name, suffix, params):
    if name not in params:
        return f"Texture handler userdata seem to be defined: {name}{suffix}"
    parameter = dict(members(params[name]))
    if "handler" not in parameter:
        return "Expecting a handler"
    handler = parameter["handler"]
    if not isinstance(handler, str):
        return None
    if handler == "ColorTexFrameHandler":
        wanted, finding = "_color", 'Color texture frame handler defined, but no "_color" user data'
    elif handler == "FloatTexFrameHandler":
        wanted, finding = "_float", 'Float texture frame handler defined, but no "_float" user data'
    else:
        wanted, finding = None, "Texture frame handler user data exist, but no handler defined"
    return None if suffix == wanted else finding


def handler_suffix(user_name):
    for suffix in ("_color", "_float", "_tex", "_tex_on", "_tex_mult", "_res_mult"):
        if user_name.endswith(suffix):
            return suffix
    return None


def handler_failures(plugins):
    for plugin_name, plugin in members(plugins):
        if not isinstance(plugin, dict) or not {"params", "userData"} <= set(plugin):
            continue
        params, user_data = dict(members(plugin["params"])), dict(members(plugin["userData"]))
        any_handler = False
        for name, parameter in members(params):
            found, has_handler = parameter_failures(name, parameter, user_data)
            any_handler |= has_handler
            yield from (f"{plugin_name}::{name}: {text}" for text in found)
        if any_handler and "texture_multiplier_mode" not in user_data:
            yield (f"{plugin_name}: the plugin has float texture handler(s) but no "
                   "'texture_multiplier_mode' \"")
        first_suffixes = {}
        for user_name, _ in members(user_data):
            suffix = handler_suffix(user_name)
            if suffix:
                first_suffixes.setdefault(user_name[:-len(suffix)], suffix)
        for name, suffix in members(first_suffixes):
            finding = user_data_failure(name, suffix, params)
            if finding:
                yield f"{plugin_name}::{name}: {finding}"


# The command

def summary(entries):
    sections = []
    for key, heading, is_sorted in SECTIONS:
        listed = in_byte_order(entries[key]) if is_sorted else entries[key]
        sections.append(f"{heading}{len(listed)}\n" + "".join(
            f"{number}. {entry}\n" for number, entry in enumerate(listed, 1)))
    return "\n".join(sections)


def steps(base, stripped, outcome):
    if not isinstance(stripped, dict):
        raise Stop(1, "stripped json is not an object")
    merge = Merge()
    document = merge.merged(stripped, base)
    text = combined_text(document)
    if "plugins" not in document:
        raise Stop(ABORTED, "invalid map<K, T> key\n")
    plugins = document["plugins"]
    clashes = clash_lines(plugins)
    outcome.stdout += "".join(clashes)
    for line in default_lines(plugins):
        outcome.stdout += line
    if clashes:
        raise Stop(BROKEN_METADATA)
    merge.entries["failures"] = list(handler_failures(plugins))
    outcome.stdout += summary(merge.entries)
    outcome.document = text


def combine(base_text, stripped_text):
    """The outcome of a run on these two documents."""
    outcome = Outcome()
    try:
        stripped, _ = json.JSONDecoder(parse_int=float).raw_decode(stripped_text.lstrip())
        steps(json.loads(base_text), stripped, outcome)
    except json.JSONDecodeError:
        outcome.status, outcome.stderr = 1, "the given json file has errors inside"
    except Stop as stop:
        outcome.status, outcome.stderr = stop.status, stop.stderr
    return outcome


def main(base_path, stripped_path, combined_path):
    outcome = combine(*(pathlib.Path(path).read_text(encoding="utf-8")
                        for path in (base_path, stripped_path)))
    sys.stdout.write(outcome.stdout)
    sys.stderr.write(outcome.stderr)
    pathlib.Path(combined_path).write_bytes(outcome.document.encode())
    return outcome.status if isinstance(outcome.status, int) else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))

"""What `metagen genh` must make of a combined document.

Worked out from the rules of the outputs alone, without the program, so that the two can be held
against each other:

    genh.py <combined.json> <code>

writes <code>.inl, with line feeds as line ends, and <code>.bin.
"""

import json
import pathlib
import struct
import sys

from number_texts import (StandardError, atof, f32, float_literal, general, narrowed, stof,
                          truncated)

HANDLERS = {"ColorTexFrameHandler": "Color", "FloatTexFrameHandler": "Float",
            "DuplicateHandler": "Duplicate"}
KIND_CODES = {"Float": 1, "Color": 2, "Duplicate": 6}
COMPANIONS = {"Float": ["_tex", "_tex_on", "_tex_mult", "_float"],
              "Color": ["_tex", "_tex_on", "_tex_mult", "_color"],
              "Duplicate": ["_duplicate", "_duplicate_output"]}


class Failure(Exception):
    """The program ends in an orderly way and leaves empty outputs; the message is its last."""


class AbnormalEnd(Exception):
    """The same, but nothing catches the error."""


# --- reading --------------------------------------------------------------------------------------

def plain_bytes(text):
    return text.encode("utf-8", "surrogateescape")


def in_byte_order(members):
    return sorted(members.items(), key=lambda member: plain_bytes(member[0]))


def as_object(value):
    if not isinstance(value, dict):
        raise AbnormalEnd('"type mismatch! call is<type>() before get<type>()" && is<object>()')
    return value


def as_bytes(value):
    if not isinstance(value, str):
        raise AbnormalEnd('"type mismatch! call is<type>() before get<type>()" && is<std::string>()')
    return plain_bytes(value)


def member(members, key):
    if key not in members:
        raise AbnormalEnd("invalid map<K, T> key")
    return members[key]


def field(text, number):
    """The text after the number-th "(" or "," up to the next one; None when there is none."""
    fields = text.split(b"\0")[0].replace(b"(", b",").split(b",")
    return fields[number] if number < len(fields) else None


def read_color(text):
    """r, g and b: the alpha is never written."""
    fields = [field(text, number) for number in (1, 2, 3)]
    if None not in fields:
        return [narrowed(atof(part)) for part in fields]
    return [stof(text)] * 3


def neutral_left_out(values):
    """A grey colour is one number, and the host knows the number 1."""
    grey = all(value == values[0] for value in values)
    if not grey and len(values) > 1:
        return values
    return [] if values[0] == 1 else values[:1]


def read_handler(parameter, name, user_data):
    """The kind and its arguments; None when the parameter is no handler parameter."""
    if not isinstance(parameter, dict) or "handler" not in parameter:
        return None
    kind = HANDLERS.get(as_bytes(parameter["handler"]).decode("utf-8", "surrogateescape"))
    if kind is None or any(name + suffix not in user_data for suffix in COMPANIONS[kind]):
        return None
    if kind == "Duplicate":
        return kind, []
    entry = as_object(user_data[name + COMPANIONS[kind][-1]])
    text = as_bytes(member(entry, "defaultValue"))
    values = read_color(text) if kind == "Color" else [stof(text)]
    return kind, neutral_left_out(values)


def read_plugins(document):
    """Plugin names with their handler parameters: names, kinds, arguments."""
    plugins = []
    for plugin_name, plugin in in_byte_order(document["plugins"]):
        if "params" not in as_object(plugin) or "userData" not in plugin:
            continue
        user_data = as_object(plugin["userData"])
        handlers = []
        for name, parameter in in_byte_order(as_object(plugin["params"])):
            handler = read_handler(parameter, name, user_data)
            if handler is not None:
                handlers.append((plain_bytes(name), *handler))
        if handlers:
            plugins.append((plain_bytes(plugin_name), handlers))
    return plugins


def check_document(document):
    if not isinstance(document, dict) or not isinstance(member(document, "plugins"), dict):
        raise Failure("JSON is not an object")
    version = member(document, "version")
    if isinstance(version, bool) or not isinstance(version, (int, float)):
        raise Failure("There is no version in the combined file")


# --- writing --------------------------------------------------------------------------------------

def source_text(version, plugins):
    blocks = [b"HandlerMeta m(" + general(float(version)) + b");\n"]
    for plugin, handlers in plugins:
        lines = [b'm.add("' + plugin + b'")']
        for name, kind, arguments in handlers:
            call = [b'"' + name + b'"', b"HandlerTypes::" + kind.encode("ascii")]
            call += [float_literal(argument) for argument in arguments]
            lines.append(b"\t.add(" + b", ".join(call) + b")")
        blocks.append(b"\n".join(lines) + b";\n")
    return b"\n".join(blocks + [b"return m;\n"])


def text_field(text):
    return struct.pack("<I", len(text)) + text


def table(version, plugins):
    out = [b"HDLR", struct.pack("<iI", truncated(version), len(plugins))]
    for plugin, handlers in plugins:
        out += [text_field(plugin), struct.pack("<I", len(handlers))]
        for name, kind, arguments in handlers:
            out += [text_field(name), struct.pack("<II", KIND_CODES[kind], len(arguments))]
            out += [f32(argument) for argument in arguments]
    return b"".join(out)


def genh(document):
    """The .inl, with line feeds, and the .bin."""
    check_document(document)
    try:
        plugins = read_plugins(document)
    except StandardError as error:
        raise AbnormalEnd(*error.args) from error
    return source_text(document["version"], plugins), table(document["version"], plugins)


def read_document(path):
    return json.loads(pathlib.Path(path).read_bytes().decode("utf-8", "surrogateescape"))


def main():
    source, binary = genh(read_document(sys.argv[1]))
    pathlib.Path(sys.argv[2] + ".inl").write_bytes(source)
    pathlib.Path(sys.argv[2] + ".bin").write_bytes(binary)


if __name__ == "__main__":
    main()

"""Lists the fields of a generated .bin file, one on each line, in the order in which they stand.

    dump_bin.py <file.bin>

Reads both kinds of files, that of genh (HDLR) and that of genm (META), by their layout alone,
without the program. A file that ends early, has bytes to spare or holds an unknown code is an
error that tells the offset.
"""

import json
import pathlib
import struct
import sys

HANDLER_KINDS = {1: "Float", 2: "Color", 6: "Duplicate"}

REPRESENTATIONS = {1: "float", 2: "int", 4: "string"}
SHAPES = {8: "single", 16: "array3", 32: "array4", 64: "array9", 128: "array12"}
SEQUENCES = {256: "single", 512: "list"}

FLAGS = {1: "user data", 2: "file browser", 4: "load mode 1"}

FLOAT_CONDITION = 265
INTEGER_CONDITION = 266


class BadFile(Exception):
    """The bytes are no file of either kind."""


class Reader:
    """Takes the primitives from the front of the bytes."""

    def __init__(self, data):
        self.data = data
        self.offset = 0

    def fail(self, problem):
        raise BadFile(f"at byte {self.offset}: {problem}")

    def take(self, length):
        if length > len(self.data) - self.offset:
            self.fail(f"{length} bytes wanted, {len(self.data) - self.offset} left")
        taken = self.data[self.offset:self.offset + length]
        self.offset += length
        return taken

    def number(self, form):
        return struct.unpack("<" + form, self.take(struct.calcsize(form)))[0]

    def tag(self):
        return self.take(4).decode("ascii", "replace")

    def u8(self):
        return self.number("B")

    def u32(self):
        return self.number("I")

    def i32(self):
        return self.number("i")

    def f32(self):
        """Nine digits tell every float from its neighbours."""
        return "%.9g" % self.number("f")

    def text(self):
        """Quoted, in ASCII; a byte that is no UTF-8 is shown as \\udcXX."""
        return json.dumps(self.take(self.u32()).decode("utf-8", "surrogateescape"))

    def one_of(self, names, what):
        code = self.u32()
        if code not in names:
            self.fail(f"{code} is no {what}")
        return code, f"{code} {names[code]}"

    def end(self):
        if self.offset != len(self.data):
            self.fail(f"{len(self.data) - self.offset} bytes to spare")


class Listing:
    """The lines, indented by how deep their field lies."""

    def __init__(self):
        self.lines = []

    def add(self, depth, name, value):
        self.lines.append("  " * depth + f"{name} {value}")

    def text(self):
        return "".join(line + "\n" for line in self.lines)


def counted(reader, out, depth, name):
    """Adds the count of the things and walks through them."""
    count = reader.u32()
    out.add(depth, name, count)
    return range(count)


# --- genh -----------------------------------------------------------------------------------------

def list_handlers(reader, out):
    out.add(0, "version", reader.i32())
    for _ in counted(reader, out, 0, "plugins"):
        out.add(1, "plugin", reader.text())
        for _ in counted(reader, out, 2, "parameters"):
            out.add(3, "parameter", reader.text())
            out.add(4, "kind", reader.one_of(HANDLER_KINDS, "kind of handler")[1])
            for _ in counted(reader, out, 4, "arguments"):
                out.add(5, "argument", reader.f32())


# --- genm -----------------------------------------------------------------------------------------

def flag_names(flags):
    names = [name for bit, name in FLAGS.items() if flags & bit]
    return ", ".join(names)


def descriptor(reader):
    code = reader.u32()
    names = []
    rest = code
    for group in (REPRESENTATIONS, SHAPES, SEQUENCES):
        bits = [bit for bit in group if code & bit]
        if len(bits) != 1:
            reader.fail(f"{code} is no descriptor")
        names.append(group[bits[0]])
        rest -= bits[0]
    if rest:
        reader.fail(f"{code} is no descriptor")
    return f"{code} {' '.join(names)}"


def list_default(reader, out, depth):
    kinds = {0: "integer", 1: "float", 2: "string", 3: "descriptor", 4: "integers", 5: "floats"}
    kind, shown = reader.one_of(kinds, "kind of default")
    out.add(depth, "default", shown)
    if kind >= 3:
        out.add(depth + 1, "descriptor", descriptor(reader))
    if kind in (4, 5):
        for _ in counted(reader, out, depth + 1, "elements"):
            out.add(depth + 2, "element", reader.i32() if kind == 4 else reader.f32())
    if kind < 3:
        out.add(depth + 1, "value", [reader.i32, reader.f32, reader.text][kind]())


def list_files(reader, out, name):
    for _ in counted(reader, out, 0, name):
        out.add(1, "plugin", reader.text())
        for _ in counted(reader, out, 2, "parameters"):
            out.add(3, "parameter", reader.text())


def list_condition(reader, out, depth):
    out.add(depth, "condition on", reader.text())
    out.add(depth + 1, "operation", reader.i32())
    names = {FLOAT_CONDITION: "float", INTEGER_CONDITION: "integer"}
    tag, shown = reader.one_of(names, "tag of a condition's value")
    out.add(depth + 1, "tag", shown)
    # A value that is no number in the document is left out; such a file can't be read back.
    out.add(depth + 1, "value", reader.f32() if tag == FLOAT_CONDITION else reader.i32())


def list_scaling(reader, out):
    for _ in counted(reader, out, 0, "scaling plugins"):
        out.add(1, "plugin", reader.text())
        for _ in counted(reader, out, 2, "parameters"):
            out.add(3, "parameter", reader.text())
            out.add(4, "unit", reader.i32())
            out.add(4, "power", reader.i32())
            out.add(4, "inverse", reader.u8())
            for _ in counted(reader, out, 4, "conditions"):
                list_condition(reader, out, 5)


def list_meta(reader, out):
    out.add(0, "version", reader.i32())
    for _ in counted(reader, out, 0, "plugins"):
        out.add(1, "plugin", reader.text())
        out.add(2, "category", reader.text())
        for _ in counted(reader, out, 2, "parameters"):
            out.add(3, "parameter", reader.text())
            out.add(4, "type", reader.text())
            flags = reader.u32()
            out.add(4, "flags", f"{flags} {flag_names(flags)}".rstrip())
            list_default(reader, out, 4)
    list_files(reader, out, "file plugins")
    list_files(reader, out, "input file plugins")
    list_scaling(reader, out)


# --------------------------------------------------------------------------------------------------

def listing(data):
    """The fields of the file's bytes, as text."""
    reader = Reader(data)
    out = Listing()
    tag = reader.tag()
    out.add(0, "tag", tag)
    if tag not in ("HDLR", "META"):
        reader.fail(f"the tag {tag!r} is unknown")
    (list_handlers if tag == "HDLR" else list_meta)(reader, out)
    reader.end()
    return out.text()


def main():
    try:
        sys.stdout.write(listing(pathlib.Path(sys.argv[1]).read_bytes()))
    except BadFile as problem:
        sys.exit(f"{sys.argv[1]}: {problem}")


if __name__ == "__main__":
    main()

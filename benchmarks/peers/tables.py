"""The generated tables as somebody without the tool would write them, in plain Python:

    tables.py handlers|parameters <combined.json> <code>

writes <code>.inl and <code>.bin, much as the tool does, though not to the byte: it goes the short
way wherever the tool's rules are long.
"""

import json
import struct
import sys

HANDLERS = {"FloatTexFrameHandler": ("Float", "_float", 1),
            "ColorTexFrameHandler": ("Color", "_color", 2),
            "DuplicateHandler": ("Duplicate", "_duplicate", 6)}
GROUPS = {"vector": "vec", "color": "clr", "acolor": "aclr", "texture": "aclr", "matrix": "matr",
          "transform": "trans"}
BRACKETS = str.maketrans("()", ",,")


def numbers(text):
    """The numbers of a text like "Color(1, 0.5, 0)"."""
    found = []
    for field in text.translate(BRACKETS).split(","):
        try:
            found.append(float(field))
        except ValueError:
            pass
    return found


def literal(number):
    return f"{number:g}.f" if number == int(number) and abs(number) < 1e6 else f"{number:g}f"


def text_field(text):
    data = text.encode("utf-8")
    return struct.pack("<I", len(data)) + data


def floats_field(values):
    return struct.pack(f"<I{len(values)}f", len(values), *values)


def handlers_of(plugin):
    """Name, handler and arguments of the parameters that have a handler."""
    data = plugin.get("userData", {})
    for name, entry in sorted(plugin.get("params", {}).items()):
        handler = HANDLERS.get(entry.get("handler"))
        if handler and name + handler[1] in data:
            yield name, handler, numbers(data[name + handler[1]].get("defaultValue", ""))[:3]


def handlers(document):
    lines, records = ["HandlerMeta m;"], [b"HDLR"]
    for plugin_name, plugin in sorted(document["plugins"].items()):
        served = list(handlers_of(plugin))
        if not served:
            continue
        lines.append(f'\nm.add("{plugin_name}")')
        records += [text_field(plugin_name), struct.pack("<I", len(served))]
        for name, (kind, _, code), values in served:
            arguments = "".join(", " + literal(value) for value in values)
            lines.append(f'\t.add("{name}", HandlerTypes::{kind}{arguments})')
            records += [text_field(name), struct.pack("<I", code), floats_field(values)]
        lines[-1] += ";"
    return lines, records


class Parameters:
    def __init__(self):
        self.arrays = {}
        self.blocks, self.files, self.scaling = ["Meta m;"], ["m.fileParams = {"], ["m.scaling = {"]
        self.records = [b"META"]

    def array(self, prefix, values):
        group = self.arrays.setdefault(prefix, {})
        return f"{prefix}{group.setdefault(tuple(values), len(group))}"

    def default(self, entry):
        """The default of a parameter as source text and as a record."""
        kind, text = entry["type"], entry.get("defaultValue", "")
        if kind == "list":
            values = numbers(text)
            return self.array(entry["listType"].split()[0] + "_list", values), floats_field(values)
        if kind in GROUPS:
            values = numbers(text)
            return self.array(GROUPS[kind], values), floats_field(values)
        if kind.startswith("float"):
            number = float(text or 0)
            return literal(number), struct.pack("<f", number)
        if kind in ("integer", "bool"):
            return text or "0", struct.pack("<i", int(text or 0))
        return json.dumps(text), text_field(text)

    def add(self, plugin_name, plugin):
        entries = {**plugin.get("userData", {}), **plugin.get("params", {})}
        lines = [f'm.add("{plugin_name}", "{plugin.get("type") or ""}")']
        self.records += [text_field(plugin_name), struct.pack("<I", len(entries))]
        for name, entry in sorted(entries.items()):
            text, record = self.default(entry)
            lines.append(f'\t.add("{name}", "{entry["type"]}", {text})')
            self.records += [text_field(name), text_field(entry["type"]), record]
            if entry.get("handler") == "FileBrowserHandler":
                self.files.append(f'\t{{ "{plugin_name}", "{name}" }},')
            if "scaling" in entry:
                self.scaling.append(
                    f'\t{{ "{plugin_name}", "{name}", {json.dumps(entry["scaling"])} }},')
        self.blocks.append("\n".join(lines) + ";\n")

    def lines(self):
        arrays = [f"static constexpr float {prefix}{number}[] = {{ "
                  + ", ".join(map(literal, values)) + " };"
                  for prefix, group in self.arrays.items() for values, number in group.items()]
        return [*arrays, *self.blocks, *self.files, "};", *self.scaling, "};"]


def parameters(document):
    tables = Parameters()
    for plugin_name, plugin in sorted(document["plugins"].items()):
        tables.add(plugin_name, plugin)
    return tables.lines(), tables.records


def main():
    with open(sys.argv[2], encoding="utf-8") as file:
        document = json.load(file)
    lines, records = {"handlers": handlers, "parameters": parameters}[sys.argv[1]](document)
    with open(sys.argv[3] + ".inl", "w", encoding="utf-8") as file:
        file.write("\n".join([*lines, "return m;\n"]))
    with open(sys.argv[3] + ".bin", "wb") as file:
        file.write(b"".join(records))


if __name__ == "__main__":
    main()

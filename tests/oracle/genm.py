"""What `metagen genm` must make of a combined document.

Worked out from the rules of the outputs alone, without the program, so that the two can be held
against each other:

    genm.py <combined.json> <code>

writes <code>.inl, with line feeds as line ends, and <code>.bin. The source text is written as the
rules tell it: every item with its separator, which is then stepped back over.
"""

import pathlib
import struct
import sys

from default_texts import (acolor, compound_list, float_list, integer_list, matrix, transform,
                           vector3)
from genh import (AbnormalEnd, as_bytes, as_object, in_byte_order, member, plain_bytes,
                  read_document, text_field)
from number_texts import StandardError, f32, float_literal, general, narrowed, stof, truncated

FROM_USER_DATA, FILE_BROWSER, LOAD_MODE_ONE = 1, 2, 4

ELEMENT_CODES = {
    "integer": 0, "float": 1, "double": 2, "bool": 3, "vector": 4, "color": 5, "acolor": 6,
    "matrix": 7, "transform": 8, "string": 9, "plugin": 10, "texture": 11, "acolor texture": 11,
    "color texture": 11, "float texture": 13, "integer texture": 14, "vector texture": 15,
    "matrix texture": 16, "transform texture": 17}

CONSTANTS = {"RDT_FLOAT": 1, "RDT_INT": 2, "RDT_STRING": 4, "STDT_SINGLE": 8, "STDT_ARRAY_3": 16,
             "STDT_ARRAY_4": 32, "STDT_ARRAY_9": 64, "STDT_ARRAY_12": 128, "SQDT_SINGLE": 256,
             "SQDT_LIST": 512}

INTEGER, FLOAT, STRING, DESCRIPTOR, INTEGERS, FLOATS = range(6)  # the kinds of default records


class Stop(Exception):
    """The program ends itself, with a status and a message on one of its outputs."""

    def __init__(self, status, stdout="", stderr=""):
        super().__init__(status, stdout, stderr)
        self.status, self.stdout, self.stderr = status, stdout, stderr


class SteppingStream:
    """A text stream whose place can be moved back; what is written then overwrites."""

    def __init__(self):
        self.text = bytearray()
        self.place = 0

    def put(self, *parts):
        for part in parts:
            self.text[self.place:self.place + len(part)] = part
            self.place += len(part)

    def step_back(self, count):
        self.place -= count


# --- the model ------------------------------------------------------------------------------------

def is_number(value):
    return isinstance(value, (int, float)) and not isinstance(value, bool)


def type_code(name, list_name):
    if name != "list":
        return ELEMENT_CODES.get(name, -1)
    if list_name == "list":
        return 12
    return ELEMENT_CODES[list_name] + 100 if list_name in ELEMENT_CODES else -1


class Parameter:
    """One parameter or user data entry."""

    def __init__(self, entry, flags):
        self.flags = flags
        self.file_mode = -1
        self.unit, self.power, self.inverse, self.conditions = 0, 1, False, []
        self.type = self.type_name = member(entry, "type")
        as_bytes(self.type)
        self.is_list = self.type == "list"
        if self.is_list and "listType" in entry:
            self.type_name = entry["listType"]
            as_bytes(self.type_name)
        self._read_file_browser(entry)
        self._read_scaling(entry)
        self.code = type_code(self.type, self.type_name)
        if self.code == -1:
            raise Stop(1, stdout=f"Type: {self.type} converts to an error\n")
        self.text = None
        if "defaultValue" in entry:
            self.text = as_bytes(entry["defaultValue"])

    def _read_file_browser(self, entry):
        if "handler" not in entry or "handlerinfo" not in entry:
            return
        if as_bytes(entry["handler"]) != b"FileBrowserHandler":
            return
        self.flags |= FILE_BROWSER
        self.file_mode = 1
        info = as_object(entry["handlerinfo"])
        if "loadMode" in info and as_bytes(info["loadMode"]) == b"1":
            self.flags |= LOAD_MODE_ONE
            self.file_mode = 2

    def _read_scaling(self, entry):
        if "scaling" not in entry:
            return
        scaling = as_object(entry["scaling"])
        if is_number(scaling.get("unit")):
            self.unit = truncated(scaling["unit"])
        if is_number(scaling.get("power")):
            self.power = truncated(scaling["power"])
        if isinstance(scaling.get("inverse"), bool):
            self.inverse = scaling["inverse"]
        if isinstance(scaling.get("conditions"), list):
            self.conditions = [Condition(item) for item in scaling["conditions"]
                               if isinstance(item, dict)]


class Condition:
    def __init__(self, item):
        self.operation = truncated(item["op"]) if is_number(item.get("op")) else 0
        self.ref = item["ref"] if isinstance(item.get("ref"), str) else ""
        self.value = item["value"] if is_number(item.get("value")) else None


class Plugin:
    def __init__(self, value):
        plugin = as_object(value)
        self.parameters = {}
        for section, flags in (("params", 0), ("userData", FROM_USER_DATA)):
            for name, entry in in_byte_order(as_object(plugin.get(section, {}))):
                parameter = Parameter(as_object(entry), flags)
                self.parameters.setdefault(name, parameter)
        category = plugin.get("type")
        self.category = plain_bytes(category) if isinstance(category, str) else None

    def in_order(self):
        return [(plain_bytes(name), parameter)
                for name, parameter in in_byte_order(self.parameters)]


def read_model(document):
    return [(plain_bytes(name), Plugin(value))
            for name, value in in_byte_order(document["plugins"])]


# --- defaults -------------------------------------------------------------------------------------

def descriptor(representation, shape, sequence):
    names = (f"RDT_{representation}", f"STDT_{shape}", f"SQDT_{sequence}")
    text = "1, " + " | ".join(f"qymat::{name}" for name in names)
    return text.encode("ascii"), sum(CONSTANTS[name] for name in names)


D3, D4, D9, D12 = (descriptor("FLOAT", f"ARRAY_{count}", "SINGLE") for count in (3, 4, 9, 12))
L3, L4, L9, L12 = (descriptor("FLOAT", f"ARRAY_{count}", "LIST") for count in (3, 4, 9, 12))
LF = descriptor("FLOAT", "SINGLE", "LIST")
LI = descriptor("INT", "SINGLE", "LIST")
LS = descriptor("STRING", "SINGLE", "LIST")

SINGLES = {4: (vector3, D3, b"vec"), 5: (vector3, D3, b"clr"), 6: (acolor, D4, b"aclr"),
           7: (matrix, D9, b"matr"), 8: (transform, D12, b"trans")}

# Reader, descriptor, prefix, descriptor when that fails, whether an empty list fails, too.
LISTS = {
    100: (integer_list, LI, b"inte", LI, True),
    101: (float_list, LF, b"flt", LF, True),
    103: (integer_list, LI, b"inte", LI, True),
    104: (compound_list(vector3), L3, b"vec", L3, False),
    105: (compound_list(vector3), L3, b"clr", L3, False),
    106: (compound_list(acolor), L4, b"aclr", L4, False),
    107: (compound_list(matrix), L9, b"matr", L9, False),
    108: (compound_list(transform), L12, b"trans", L12, False),
    110: (float_list, LF, b"flt", LS, True),
    113: (float_list, LF, b"flt", LS, True),
    114: (integer_list, LI, b"inte", LS, False),
    115: (compound_list(vector3), L3, b"vec", LS, False),
    116: (compound_list(matrix), L9, b"matr", LS, False),
    117: (compound_list(transform), L12, b"trans", LS, False)}


def stoi(text):
    digits = text.split(b"\0")[0].lstrip(b" \t\n\v\f\r")
    sign = digits[:1] if digits[:1] in (b"+", b"-") else b""
    length = len(sign)
    while digits[length:length + 1].isdigit():
        length += 1
    if length == len(sign):
        raise StandardError("invalid stoi argument")
    number = int(digits[:length])
    if not -2 ** 31 <= number < 2 ** 31:
        raise StandardError("stoi argument out of range")
    return number


def texture(text):
    for reader, shape, prefix in ((acolor, D4, b"aclr"), (vector3, D3, b"clr")):
        values = reader(text)
        if values is not None:
            return FLOATS, shape, prefix, values
    return STRING, b""


def list_default(code, text):
    reader, shape, prefix, fallback, empty_fails = LISTS[code]
    values = None if text is None else reader(text)
    if values is None or (empty_fails and not values):
        return DESCRIPTOR, fallback
    return (INTEGERS if shape is LI else FLOATS), shape, prefix, values


def default_of(parameter):
    """The kind of the default record and what belongs to it."""
    code, text = parameter.code, parameter.text
    if text is None and not parameter.is_list:
        return (INTEGER, 0) if code == 0 else (STRING, b"")
    if code in (0, 3):
        return INTEGER, stoi(text)
    if code in (1, 13):
        return FLOAT, stof(text)
    if code in SINGLES:
        reader, shape, prefix = SINGLES[code]
        return FLOATS, shape, prefix, reader(text) or []
    if code == 9:
        return STRING, text
    if code in (10, 11):
        return texture(text)
    if code in (14, 15, 16, 17):
        return STRING, b""
    if code in (12, 109, 111):
        return DESCRIPTOR, LS
    if code in LISTS:
        return list_default(code, text)
    raise Stop(255, stdout="unsupported type\n")


class ValueArrays:
    """The groups by prefix in the order of first use; each a list of its arrays."""

    def __init__(self):
        self.groups = {}

    def intern(self, prefix, values):
        stored = [narrowed(float(value)) for value in values]
        group = self.groups.setdefault(prefix, {})
        for name in sorted(group):
            same = len(group[name]) == len(stored) and all(
                mine == its for mine, its in zip(group[name], stored))
            if same:
                return name
        name = prefix + str(len(group)).encode("ascii")
        group[name] = stored
        return name

    def definitions(self):
        out = SteppingStream()
        for prefix, group in self.groups.items():
            integers = prefix == b"inte"
            for name in sorted(group):
                out.put(b"static constexpr ", b"int " if integers else b"float ", name, b"[] = { ")
                for value in group[name]:
                    out.put(b"%d" % int(value) if integers else float_literal(value), b", ")
                out.step_back(2)
                out.put(b"};\n")
        return bytes(out.text)


SHORT_ESCAPES = {8: b"\\b", 9: b"\\t", 10: b"\\n", 12: b"\\f", 13: b"\\r", 34: b'\\"', 92: b"\\\\"}


def escaped(text):
    out = b""
    for byte in text:
        if byte in SHORT_ESCAPES:
            out += SHORT_ESCAPES[byte]
        else:
            out += b"\\u%04x" % byte if byte < 32 else bytes([byte])
    return out


def integer_literal(number):
    return b"INT_MIN" if number == -2 ** 31 else b"%d" % number


def default_text(default, arrays):
    kind = default[0]
    if kind == INTEGER:
        return integer_literal(default[1])
    if kind == FLOAT:
        return float_literal(default[1])
    if kind == STRING:
        return b'"' + escaped(default[1]) + b'"'
    if kind == DESCRIPTOR:
        return default[1][0]
    _, shape, prefix, values = default
    if not values and shape in (D3, D4, D9, D12):
        return b'""'
    return shape[0] + b", " + arrays.intern(prefix, values)


def default_bytes(default):
    kind = default[0]
    head = struct.pack("<I", kind)
    if kind == INTEGER:
        return head + struct.pack("<i", default[1])
    if kind == FLOAT:
        return head + f32(default[1])
    if kind == STRING:
        return head + text_field(default[1])
    if kind == DESCRIPTOR:
        return head + struct.pack("<I", default[1][1])
    _, shape, _, values = default
    elements = [struct.pack("<i", value) if kind == INTEGERS else f32(value) for value in values]
    return head + struct.pack("<II", shape[1], len(values)) + b"".join(elements)


# --- the source text ------------------------------------------------------------------------------

def registration(name, plugin, arrays):
    out = SteppingStream()
    out.put(b'm.add("', name, b'", "', plugin.category or b"", b'")')
    parameters = plugin.in_order()
    if not parameters:
        out.put(b";\n")
        return bytes(out.text)
    out.put(b"\n")
    for parameter_name, parameter in parameters:
        piece = b'.add("%s", "%s", %d, %s);' % (
            parameter_name, plain_bytes(parameter.type_name), parameter.flags,
            default_text(default_of(parameter), arrays))
        out.put(b"\t", piece)
        out.step_back(1)
        out.put(b"\n")
    out.step_back(1)
    out.put(b";\n")
    return bytes(out.text)


def file_tables(model):
    tables = ({}, {})
    for name, plugin in model:
        for parameter_name, parameter in plugin.in_order():
            for table, mode in zip(tables, (1, 2)):
                if parameter.file_mode >= mode:
                    table.setdefault(name, []).append(parameter_name)
    return tables


def file_table_text(name, table):
    out = SteppingStream()
    out.put(name, b" = {")
    for plugin, parameters in table.items():
        out.put(b'\n\t{ "', plugin, b'", {')
        for parameter in parameters:
            out.put(b'"', parameter, b'", ')
        out.step_back(2)
        out.put(b"}},")
    out.step_back(1)
    out.put(b"\n};\n")
    return bytes(out.text)


def scaling_table(model):
    table = {}
    for name, plugin in model:
        scaled = [item for item in plugin.in_order() if item[1].unit != 0]
        if scaled:
            table[name] = (plugin, scaled)
    return table


def condition_type(condition, plugin):
    if condition.ref not in plugin.parameters:
        raise AbnormalEnd("invalid map<K, T> key")
    parameter = plugin.parameters[condition.ref]
    if parameter.is_list:
        raise Stop(255, stdout="Error: Scalling conditions do not support list types\n")
    code = type_code(parameter.type_name, "none")
    if code not in (0, 1, 3):
        raise Stop(255, stdout="Error: Scalling conditions unsuported value type\n")
    return FLOAT if code == 1 else INTEGER


def condition_text(condition, plugin):
    if condition.operation != 1:
        raise Stop(255, stdout="Error: Unsupported scalling condiiton operation type\n")
    value = b""
    if condition.value is not None:
        if condition_type(condition, plugin) == FLOAT:
            value = float_literal(narrowed(float(condition.value)))
        else:
            value = integer_literal(truncated(condition.value))
    return b'{ "%s", Scaling::Operation::Equals, %s },' % (plain_bytes(condition.ref), value)


def scaled_parameter(out, name, parameter, plugin):
    out.put(b'\n\t\t{ "', name, b'"')
    flag = parameter.inverse or bool(parameter.conditions)
    group = parameter.unit != 1 or flag or parameter.power != 1
    if group:
        if parameter.unit != 1:
            raise Stop(255, stdout="Error: Unsupported scaling condition unit type\n")
        out.put(b", { Scaling::UnitType::Scene")
        if flag or parameter.power != 1:
            out.put(b", %d" % parameter.power)
    if flag:
        out.put(b", true" if parameter.inverse else b", false")
    out.put(b", {")
    for condition in parameter.conditions:
        out.put(b"\n\t\t\t", condition_text(condition, plugin))
    if parameter.conditions:
        out.step_back(1)
        out.put(b"\n\t\t}")
    else:
        out.put(b"} ")
    if group:
        out.put(b"}")
    out.put(b"},")


def scaling_text(table):
    if not table:
        return b""
    out = SteppingStream()
    out.put(b"m.scalingParams = {")
    for name, (plugin, parameters) in table.items():
        out.put(b'\n\t{ "', name, b'", {')
        for parameter_name, parameter in parameters:
            scaled_parameter(out, parameter_name, parameter, plugin)
        out.step_back(1)
        out.put(b"\n\t}},")
    out.step_back(1)
    out.put(b"\n};\n")
    return bytes(out.text)


# --- the binary table -----------------------------------------------------------------------------

def counted(items):
    return struct.pack("<I", len(items)) + b"".join(items)


def plugin_record(name, plugin):
    category = b'""' if plugin.category is None else plugin.category
    parameters = [
        text_field(parameter_name) + text_field(plain_bytes(parameter.type_name))
        + struct.pack("<I", parameter.flags) + default_bytes(default_of(parameter))
        for parameter_name, parameter in plugin.in_order()]
    return text_field(name) + text_field(category) + counted(parameters)


def file_table_bytes(table):
    return counted([text_field(plugin) + counted([text_field(name) for name in names])
                    for plugin, names in table.items()])


def condition_bytes(condition, plugin):
    kind = condition_type(condition, plugin)
    head = text_field(plain_bytes(condition.ref)) + struct.pack(
        "<iI", condition.operation, 265 if kind == FLOAT else 266)
    if condition.value is None:
        return head
    if kind == FLOAT:
        return head + f32(narrowed(float(condition.value)))
    return head + struct.pack("<i", truncated(condition.value))


def scaling_bytes(table):
    plugins = []
    for name, (plugin, parameters) in table.items():
        records = [
            text_field(parameter_name)
            + struct.pack("<iiB", parameter.unit, parameter.power, parameter.inverse)
            + counted([condition_bytes(condition, plugin) for condition in parameter.conditions])
            for parameter_name, parameter in parameters]
        plugins.append(text_field(name) + counted(records))
    return counted(plugins)


def binary_table(document, model):
    files, input_files = file_tables(model)
    head = b"META" + struct.pack("<i", truncated(document["version"]))
    return (head + counted([plugin_record(*plugin) for plugin in model])
            + file_table_bytes(files) + file_table_bytes(input_files)
            + scaling_bytes(scaling_table(model)))


# --------------------------------------------------------------------------------------------------

def check_document(document):
    is_document = isinstance(document, dict) and isinstance(document.get("plugins"), dict)
    if not is_document:
        raise Stop(1, stderr="JSON is not an object")
    if not is_number(document.get("version")):
        raise Stop(1, stderr="no version number")


class Outputs:
    """What a run makes of a document: its end, and the files that it leaves."""

    def __init__(self):
        self.end = None     # the Stop, AbnormalEnd or StandardError that ends it
        self.source = b""   # the .inl, with line feeds
        self.binary = b""   # the .bin; None when it may be cut anywhere


def sections(document, outputs):
    """The text of the .inl; on the way the .bin comes to stand in the outputs."""
    check_document(document)
    model = read_model(document)
    arrays = ValueArrays()
    body = b"Meta m(" + general(float(document["version"])) + b");\n\n"
    body += b"".join(registration(*plugin, arrays) + b"\n" for plugin in model)
    outputs.binary = None
    outputs.binary = binary_table(document, model)
    files, input_files = file_tables(model)
    body += file_table_text(b"m.fileParams", files) + b"\n"
    body += file_table_text(b"m.inputFileParams", input_files) + b"\n"
    body += scaling_text(scaling_table(model)) + b"\nreturn m;\n"
    return b"//unique value arrays\n" + arrays.definitions() + b"\n" + body


def genm(document):
    outputs = Outputs()
    try:
        outputs.source = sections(document, outputs)
    except (Stop, AbnormalEnd, StandardError) as end:
        outputs.end = end
    return outputs


def main():
    outputs = genm(read_document(sys.argv[1]))
    if outputs.end:
        sys.exit(str(outputs.end))
    pathlib.Path(sys.argv[2] + ".inl").write_bytes(outputs.source)
    pathlib.Path(sys.argv[2] + ".bin").write_bytes(outputs.binary)


if __name__ == "__main__":
    main()

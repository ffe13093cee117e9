// Holds docs/bin-formats.md to the Kaitai Struct descriptions: the same fields in the same order,
// and the same codes.
"use strict";

const assert = require("node:assert");
const fs = require("node:fs");
const path = require("node:path");
const { test } = require("node:test");

const YAML = require("yaml");

const DOCUMENTS = path.join(__dirname, "..", "..", "docs");
const read = (name) => fs.readFileSync(path.join(DOCUMENTS, name), "utf8");
const [handlers, meta] = ["handlers.ksy", "meta.ksy"].map((name) => YAML.parse(read(name)));
const page = read("bin-formats.md");

const PRIMITIVES = { u1: "u8", u4: "u32", s4: "i32", f4: "f32", text: "text" };

/** The rows of the page's table under such a heading row, as lists of cells. */
function tableOf(heading, section) {
  const text = page.slice(page.indexOf(`\n## ${section}`.replace("## ###", "###")));
  const rows = text.slice(text.indexOf(`\n| ${heading} |\n`) + 1).split("\n\n")[0].split("\n");
  assert.ok(rows.length > 2, heading);
  return rows.slice(2).map((row) => row.split("|").slice(1, -1).map((cell) => cell.trim()));
}

const fieldsOf = (section) => tableOf("field | type | meaning", section)
  .map(([name, type]) => [name.split("&emsp;").length - 1, name.replace(/&emsp;/g, ""), type]);

/** What the page calls a field of the descriptions. */
const words = (id) => (id === "type_name" ? "type"
  : id.replace(/^num_(.*)s$/, "$1 count").replaceAll("_", " "));

function typeWord(field) {
  if (field.contents) return "tag";
  const types = field.type["switch-on"] ? Object.values(field.type.cases) : [field.type];
  return types.map((type) => PRIMITIVES[type] ?? words(type)).join(" or ");
}

/** The fields of a description: depth, name and type of each. */
function described(types, fields, depth = 0) {
  return fields.flatMap((field) => {
    if (!field.repeat) return [[depth, words(field.id), typeWord(field)]];
    if (!PRIMITIVES[field.type]) return described(types, types[field.type].seq, depth + 1);
    const name = field.type === "text" ? "name" : words(field.id).replace(/s$/, "");
    return [[depth + 1, name, typeWord(field)]];
  });
}

/** The numbers in a text. */
const numbers = (text) => text.match(/\b\d+\b/g).map(Number);

test("the fields of each table", () => {
  assert.deepStrictEqual(fieldsOf("Handlers"), described(handlers.types, handlers.seq));
  assert.deepStrictEqual(fieldsOf("Metadata"), described(meta.types, meta.seq));
  for (const [section, name] of [["### File", "file_table"], ["### Scaling", "scaling_table"]]) {
    assert.deepStrictEqual(fieldsOf(section), described(meta.types, meta.types[name].seq));
  }
});

test("the codes within the fields", () => {
  const meaning = (section, name) => tableOf("field | type | meaning", section)
    .find((row) => row[0].endsWith(name))[2];
  const kinds = Object.entries(handlers.enums.kind).map((kind) => kind.join(" ")).join(", ");
  assert.strictEqual(meaning("Handlers", "kind").replace("colour", "color"), kinds);
  const counts = handlers.types.parameter.seq.find((field) => field.id === "num_arguments").valid;
  assert.deepStrictEqual(numbers(meaning("Handlers", "argument count")), counts["any-of"]);
  const flags = meta.types.parameter.seq.find((field) => field.id === "flags").valid.max;
  assert.deepStrictEqual(meaning("Metadata", "flags").match(/\d(?= )/g).map(Number)
    .reduce((sum, flag) => sum + flag), flags);
  const tags = Object.entries(meta.enums.value_tag)
    .map(([tag, name]) => `${tag}: ${name === "float" ? "a float" : "an integer"} follows`);
  assert.strictEqual(meaning("### Scaling", "tag"), tags.join("; "));
});

test("what follows each kind of default", () => {
  const [kind, descriptor, value] = meta.types.default_value.seq;
  assert.deepStrictEqual([kind.type, descriptor.type, descriptor.if],
    ["u4", "u4", "kind.to_i >= 3"]);
  const expected = Object.entries(meta.enums.default_kind).map(([code, name]) => {
    const type = value.type.cases[`default_kind::${name}`];
    const parts = code >= 3 ? ["u32 descriptor"] : [];
    if (PRIMITIVES[type]) parts.push(PRIMITIVES[type]);
    else if (type) {
      const [count, element] = meta.types[type].seq;
      parts.push(`${PRIMITIVES[count.type]} count`, `count times ${PRIMITIVES[element.type]}`);
    }
    return [code, parts.join(", ")];
  });
  assert.deepStrictEqual(
    tableOf("kind | | followed by", "### Default").map(([code, , then]) => [code, then]), expected);
});

test("every descriptor, as a sum of one number from each column", () => {
  const codes = Object.keys(meta.enums.descriptor).map(Number);
  const listed = tableOf("descriptor | what it describes", "### Default");
  assert.deepStrictEqual(listed.map((row) => Number(row[0])), codes);
  const rows = tableOf("representation | shape | sequence", "### Default");
  const column = (index) => rows.map((row) => parseInt(row[index], 10)).filter(Number.isFinite);
  const [representations, shapes, sequences] = [0, 1, 2].map(column);
  const sums = representations.flatMap((one) => shapes.flatMap((two) =>
    sequences.map((three) => one + two + three)));
  assert.deepStrictEqual(codes.filter((code) => !sums.includes(code)), []);
});

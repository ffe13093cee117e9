// Holds the Kaitai Struct descriptions of the .bin files to every golden of the generators, and to
// small files in literals.
"use strict";

const assert = require("node:assert");
const fs = require("node:fs");
const path = require("node:path");
const { before, test } = require("node:test");

const { readerOf, readWhole } = require("./description.js");
const { general, listHandlers, listMeta } = require("./listing.js");

const GOLDEN = path.join(__dirname, "..", "golden");
const LISTS = { handlers: listHandlers, meta: listMeta };
const NAMES = { HDLR: "handlers", META: "meta" };

const readers = {};

before(async () => {
  for (const name of Object.keys(LISTS)) readers[name] = await readerOf(name);
});

/** What the description of the file's tag makes of it. */
function listingOf(bytes) {
  const name = NAMES[bytes.toString("latin1", 0, 4)];
  assert.ok(name, "the tag is unknown");
  return LISTS[name](readWhole(readers[name], bytes));
}

/** The .bin files of <command>/<case>. */
function goldens() {
  const entries = (folder) => fs.readdirSync(folder).map((name) => path.join(folder, name));
  const cases = entries(GOLDEN).flatMap(entries);
  return cases.flatMap(entries).filter((file) => file.endsWith(".bin"));
}

function bytesOf(...parts) {
  const number = (value) => Buffer.from(Int32Array.of(value).buffer);
  return Buffer.concat(parts.map(
    (part) => (typeof part === "number" ? number(part) : Buffer.from(part, "latin1"))));
}

const HANDLERS = ["HDLR", -2, 1, 4, "MtlA", 1, 4, "tint", 2, 1, "\0\0\0\x3f"];
const META = ["META", 3, 1, 1, "P", 2, '""', 1, 1, "a", 5, "color", 6,
  5, 273, 3, "\0\0\x80\x3f", 0, 0, 1, 1, "P", 1, 1, "a", 0,
  1, 1, "P", 1, 1, "a", 1, -2, "\x01", 1, 1, "b", 1, 266, -7];

test("goldens are read to their last byte and hold what their listings say", () => {
  const files = goldens();
  assert.ok(files.length > 0);
  for (const file of files) {
    const listing = fs.readFileSync(file.replace(/bin$/, "txt"), "utf8");
    assert.strictEqual(listingOf(fs.readFileSync(file)), listing, file);
  }
});

test("handlers in literals", () => {
  assert.strictEqual(listingOf(bytesOf(...HANDLERS)), `tag HDLR
version -2
plugins 1
  plugin "MtlA"
    parameters 1
      parameter "tint"
        kind 2 Color
        arguments 1
          argument 0.5
`);
});

test("metadata in literals", () => {
  assert.strictEqual(listingOf(bytesOf(...META)), `tag META
version 3
plugins 1
  plugin "P"
    category "\\"\\""
    parameters 1
      parameter "a"
        type "color"
        flags 6 file browser, load mode 1
        default 5 floats
          descriptor 273 float array3 single
          elements 3
            element 1
            element 0
            element 0
file plugins 1
  plugin "P"
    parameters 1
      parameter "a"
input file plugins 0
scaling plugins 1
  plugin "P"
    parameters 1
      parameter "a"
        unit 1
        power -2
        inverse 1
        conditions 1
          condition on "b"
            operation 1
            tag 266 integer
            value -7
`);
});

test("files that end early or late are refused", () => {
  for (const parts of [HANDLERS, META]) {
    const bytes = bytesOf(...parts);
    for (let length = 4; length < bytes.length; ++length) {
      assert.throws(() => listingOf(bytes.subarray(0, length)), `${length} bytes`);
    }
    assert.throws(() => listingOf(bytesOf(...parts, "\0")), { message: "1 bytes to spare" });
  }
});

test("codes that don't occur are refused", () => {
  const withPart = (parts, index, value) => bytesOf(...Object.assign([...parts], {[index]: value}));
  assert.throws(() => listingOf(withPart(HANDLERS, 8, 3)), /3/, "a kind of handler");
  assert.throws(() => listingOf(withPart(HANDLERS, 9, 2)), /2/, "a count of arguments");
  assert.throws(() => listingOf(withPart(META, 12, 8)), /8/, "flags");
  assert.throws(() => listingOf(withPart(META, 13, 6)), /6/, "a kind of default");
  assert.throws(() => listingOf(withPart(META, 14, 272)), /272/, "a descriptor");
  assert.throws(() => listingOf(withPart(META, META.indexOf(266), 267)), /267/, "a value's tag");
});

test("each description takes its own tag alone", () => {
  assert.throws(() => readWhole(readers.handlers, bytesOf("META", 3, 0)));
  assert.throws(() => readWhole(readers.meta, bytesOf("HDLR", 3, 0, 0, 0, 0)));
});

test("every descriptor is taken", () => {
  for (const descriptor of [273, 289, 321, 385, 521, 522, 524, 529, 545, 577, 641]) {
    const bytes = bytesOf("META", 3, 1, 0, 0, 1, 0, 0, 0, 3, descriptor, 0, 0, 0);
    assert.match(listingOf(bytes), new RegExp(`descriptor ${descriptor} `));
  }
});

test("numbers are listed with nine digits", () => {
  const texts = [0.1, 1, -0, 1e-7, 123456789, 1234567890, 0.0001, 16777216, 3.4e38, -2.5]
    .map((number) => general(Math.fround(number)));
  assert.deepStrictEqual(texts, ["0.100000001", "1", "-0", "1.00000001e-07", "123456792",
    "1.23456794e+09", "9.99999975e-05", "16777216", "3.39999995e+38", "-2.5"]);
});

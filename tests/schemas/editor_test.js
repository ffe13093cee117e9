// What an editor makes of the schema of stripped documents.
"use strict";

const assert = require("node:assert");
const fs = require("node:fs");
const path = require("node:path");
const { test } = require("node:test");

const { editor } = require("./editor.js");

const ROOT = path.join(__dirname, "..", "..");
const schema = JSON.parse(
  fs.readFileSync(path.join(ROOT, "schemas", "stripped.schema.json"), "utf8"));

const { offered, shown, marked, said } = editor({ schema });

const inPlugin = (text) => `{"plugins": {"A": {${text}}}}`;
const inParameter = (text) => inPlugin(`"params": {"p": {${text}}}`);

test("the keys of a document, a plugin and a parameter are offered", async () => {
  const parameterKeys = ["defaultValue", "handler", "handlerinfo", "listType", "scaling", "type"];
  assert.deepStrictEqual(await offered("{|}"), ["$schema", "plugins", "version"]);
  assert.deepStrictEqual(await offered(inPlugin("|")), ["params", "type", "userData"]);
  assert.deepStrictEqual(await offered(inParameter("|")), parameterKeys);
  assert.deepStrictEqual(await offered(inPlugin('"userData": {"x_tex": {|}}')), parameterKeys);
  assert.deepStrictEqual(await offered(inParameter('"scaling": {|}')),
    ["conditions", "inverse", "power", "unit"]);
});

test("keys that are there already are not offered again", async () => {
  assert.deepStrictEqual(await offered(inPlugin('"type": "light", "params": {}, |')), ["userData"]);
});

test("types, categories and handlers are offered", async () => {
  const types = await offered(inParameter('"type": |'));
  assert.deepStrictEqual(types, [...schema.$defs.typeName.enum].sort());
  assert.ok((await offered(inPlugin('"type": |'))).includes("light"));
  const handlers = await offered(inParameter('"handler": |'));
  for (const name of ["ColorTexFrameHandler", "DuplicateHandler", "FileBrowserHandler",
    "FloatTexFrameHandler"]) {
    assert.ok(handlers.includes(name), name);
  }
});

test("what a key means is shown", async () => {
  assert.match(await shown('{"ver|sion": 1}'), /^The version of the host's metadata/);
  assert.match(await shown(inParameter('"handler|info": {}')), /^What the handler needs to know/);
  assert.match(await shown(inPlugin('"userData": {"gloss_te|x": {"type": "texture"}}')),
    /^The texture of the parameter that the rest of the name gives/);
});

test("mistakes are marked where they stand", async () => {
  assert.deepStrictEqual(await marked(inParameter('"type": "Float"')), ['"Float"']);
  assert.deepStrictEqual(await marked(inParameter('"defaultValue": 1')), ["1"]);
  assert.deepStrictEqual(
    await marked(inParameter('"type": "color", "defaultValue": "Color(1, 1)"')), ['"Color(1, 1)"']);
  assert.deepStrictEqual(await marked(inParameter('"scaling": {"unit": 2}')), ["2"]);
  assert.deepStrictEqual(await marked('{"plugins": {"A": null, "B": 1}}'), ["1"]);
});

test("what a default has to look like is said in words", async () => {
  const needed = {
    integer: /^An integer is needed/, bool: /^An integer is needed/,
    float: /^A number is needed/, "float texture": /^A number is needed/,
    vector: /^Three numbers are needed/, color: /^Three numbers are needed/,
    acolor: /^Four numbers are needed/, matrix: /^Three vectors are needed/,
    transform: /^A matrix and a vector are needed/,
  };
  for (const [type, message] of Object.entries(needed)) {
    const [first, ...others] = await said(
      inParameter(`"type": "${type}", "defaultValue": "wrong"`));
    assert.match(first, message);
    assert.deepStrictEqual(others, []);
  }
  const [colour] = await said(
    inPlugin('"userData": {"x_color": {"type": "acolor", "defaultValue": "red"}}'));
  assert.match(colour, /^A colour is needed, or one number for a grey/);
});

test("nothing is marked in the example", async () => {
  const example = fs.readFileSync(path.join(ROOT, "examples", "stripped.json"), "utf8");
  assert.deepStrictEqual(await marked(example), []);
});

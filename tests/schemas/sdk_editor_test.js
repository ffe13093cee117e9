// What an editor makes of the schemas that metagen-schema makes: of that for the bundled catalogue,
// and of one for an SDK of 600 classes with 15,000 parameters, which may not slow it down.
"use strict";

const assert = require("node:assert");
const { execFileSync } = require("node:child_process");
const fs = require("node:fs");
const os = require("node:os");
const path = require("node:path");
const { after, test } = require("node:test");

const { editor } = require("./editor.js");

const ROOT = path.join(__dirname, "..", "..");
const BUILD = process.env.METAGEN_BUILD ?? path.join(ROOT, "build", "release");
const BUNDLED = path.join(ROOT, "tests", "golden", "dump", "bundled", "base.json");
const SLOWEST = 1000; // milliseconds: somebody is typing

const folder = fs.mkdtempSync(path.join(os.tmpdir(), "metagen-test-"));
after(() => fs.rmSync(folder, { recursive: true }));

const read = (file) => JSON.parse(fs.readFileSync(file, "utf8"));

/** The schema for the base document in a file. It stays in the folder. */
function schemaFor(base) {
  const made = path.join(folder, "stripped.schema.json");
  execFileSync(path.join(ROOT, "tools", "metagen-schema"), ["--base", base, "-o", made]);
  return read(made);
}

const plugins = read(BUNDLED).plugins;
const { offered, shown, findings, marked, said } = editor({ schema: schemaFor(BUNDLED) });

const inGlass = (text) => `{"plugins": {"GlassMaterial": {"params": {${text}}}}}`;

test("the SDK's plugins are offered, and in each its parameters", async () => {
  assert.deepStrictEqual(await offered('{"plugins": {|}}'), Object.keys(plugins).sort());
  assert.deepStrictEqual(await offered('{"plugins": {"GlassMaterial": {|}}}'),
    ["params", "type", "userData"]);
  assert.deepStrictEqual(await offered(inGlass("|")),
    Object.keys(plugins.GlassMaterial.params).sort());
});

test("in a parameter of any type the same keys are offered", async () => {
  const keys = ["defaultValue", "handler", "handlerinfo", "listType", "scaling", "type"];
  for (const name of ["fog_color", "fog_depth", "thin_walled", "hosts_own"]) {
    assert.deepStrictEqual(await offered(inGlass(`"${name}": {|}`)), keys);
  }
  assert.ok((await offered(inGlass('"fog_color": {"handler": |}')))
    .includes("ColorTexFrameHandler"));
});

test("category, type and default of the SDK are shown", async () => {
  const material = "The SDK's plugin class of category material.";
  assert.strictEqual(await shown('{"plugins": {"Glass|Material": {}}}'), material);
  assert.strictEqual(await shown('{"plugins": {"GlassMaterial|": null}}'), material);
  assert.strictEqual(await shown('{"plugins": {"Debug|Probe": {}}}'),
    "The SDK's plugin class without category.");
  assert.strictEqual(await shown(inGlass('"fog|_color": {}')),
    'texture; the SDK\'s default: "AColor(1, 1, 1, 1)"');
  assert.strictEqual(await shown(inGlass('"refract_ior|": null')),
    'float texture; the SDK\'s default: "1.517"');
  assert.match(await shown(inGlass('"fog_color": {"default|Value": ""}')), /^The default value/);
});

test("what the SDK lacks is shown as the host's own", async () => {
  assert.match(await shown('{"plugins": {"Glas|": {}}}'), /^A plugin class that the SDK lacks: /);
  assert.match(await shown(inGlass('"fog_colour|": {}')), /^A parameter that the SDK lacks: /);
  assert.match(await shown('{"plugins": {"Glas": {"params": {"fog_color|": {}}}}}'),
    /^A parameter that the SDK lacks: /);
});

test("a name that the SDK lacks is marked at its line, unless it is null or typed", async () => {
  const document = `{
  "plugins": {
    "GlasMaterial": {},
    "GlassMaterial": {
      "params": {
        "fog_colour": {
          "defaultValue": "AColor(0, 0, 0, 1)"
        },
        "host_layer": {"type": "integer"},
        "fog_dept": null
      }
    },
    "HostProxy": {"type": null},
    "OldMaterial": null
  }
}`;
  const message = 'Missing property "type".';
  assert.deepStrictEqual(await findings(document), [
    { line: 3, text: '"GlasMaterial"', message },
    { line: 6, text: '"fog_colour"', message },
  ]);
});

test("a default is held to the SDK's type, or to the one that the document gives", async () => {
  const wrong = (name, keys = "") => said(inGlass(`"${name}": {${keys}"defaultValue": "wrong"}`));
  for (const [name, message] of [["refract_depth", /^An integer is needed/],
    ["thin_walled", /^An integer is needed/], ["fog_depth", /^A number is needed/],
    ["refract_ior", /^A number is needed/]]) {
    const [first, ...others] = await wrong(name);
    assert.match(first, message);
    assert.deepStrictEqual(others, []);
  }
  assert.deepStrictEqual(await wrong("fog_color"), []);
  assert.deepStrictEqual(await wrong("fog_depth", '"type": "string", '), []);
  const [vector] = await wrong("fog_depth", '"type": "vector", ');
  assert.match(vector, /^Three numbers are needed/);
});

test("what the static schema marks is marked", async () => {
  assert.deepStrictEqual(await marked(inGlass('"fog_depth": {"scaling": {"unit": 2}}')), ["2"]);
  assert.deepStrictEqual(await marked(inGlass('"fog_depth": {"type": "Float"}')), ['"Float"']);
  assert.deepStrictEqual(
    await marked('{"plugins": {"GlassMaterial": {"userData": {"x_tex": {"type": 1}}}}}'), ["1"]);
});

test("nothing is marked in the example", async () => {
  const example = fs.readFileSync(path.join(ROOT, "examples", "stripped.json"), "utf8");
  assert.deepStrictEqual(await marked(example), []);
});

test("the document can name the schema beside it", async () => {
  schemaFor(BUNDLED);
  const key = '"$schema": "./stripped.schema.json"';
  const names = await editor({ folder }).offered(`{${key}, "plugins": {|}}`);
  assert.deepStrictEqual(names, Object.keys(plugins).sort());
});

/** What an editor offers that has just been opened and still has to read the schema. Of three the
 * fastest must be in time: the machine may have other work. */
async function offeredInTime(schema, text) {
  const times = [];
  let names;
  for (let run = 0; run < 3; run += 1) {
    const large = editor({ schema: structuredClone(schema) });
    const began = performance.now();
    names = await large.offered(text);
    times.push(performance.now() - began);
  }
  console.log(`# ${text.length} bytes, milliseconds: ${times.map(Math.round).join(", ")}`);
  assert.ok(Math.min(...times) < SLOWEST, `${times}`);
  return names;
}

test("with 600 classes and 15,000 parameters a completion takes less than a second", async () => {
  const base = path.join(folder, "base.json");
  execFileSync(path.join(BUILD, "metagen"), ["dump", "-o", base], { env: {
    ...process.env, QYRA_SDK: path.join(BUILD, "benchmarks", "sdk"), QYRA_INVENTED_SCALE: "1" } });
  const { plugins: large } = read(base);
  const names = Object.keys(large);
  const count = names.reduce((sum, name) => sum + Object.keys(large[name].params).length, 0);
  assert.deepStrictEqual([names.length, count], [600, 15000]);

  // The document names everything that the SDK has, but for what is to be offered.
  const schema = schemaFor(base);
  const missing = names[300];
  const expected = Object.keys(large[missing].params).sort();
  large[missing].params = {};
  const inMissing = `"${missing}":{"type":${JSON.stringify(large[missing].type)},"params":{`;
  assert.deepStrictEqual(expected,
    await offeredInTime(schema, JSON.stringify({ plugins: large }).replace(inMissing, "$&|")));
  delete large[missing];
  assert.deepStrictEqual([missing],
    await offeredInTime(schema, JSON.stringify({ plugins: large }).replace(/}}$/, ",|$&")));
});

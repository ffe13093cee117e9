// Readers made from the Kaitai Struct descriptions of the .bin files.
"use strict";

const fs = require("node:fs");
const path = require("node:path");
const vm = require("node:vm");

const compiler = require("kaitai-struct-compiler");
const { KaitaiStream } = require("kaitai-struct");
const YAML = require("yaml");

const DOCUMENTS = path.join(__dirname, "..", "..", "docs");

const noImports = {
  importYaml(name) {
    throw new Error(`${name} is not a description of its own`);
  },
};

/** The class that the compiler makes of docs/<name>.ksy. */
async function readerOf(name) {
  const description = YAML.parse(fs.readFileSync(path.join(DOCUMENTS, `${name}.ksy`), "utf8"));
  const sources = await compiler.compile("javascript", description, noImports, false);
  const [[fileName, source]] = Object.entries(sources);
  // The source is a module in the form that web browsers take too.
  const module = { exports: {} };
  vm.runInThisContext(`(function (exports, require, module) {${source}\n})`)(
    module.exports, require, module);
  const className = fileName.replace(/\.js$/, "");
  return module.exports[className] ?? module.exports;
}

/** Reads the bytes, to the last of them. */
function readWhole(Reader, bytes) {
  const stream = new KaitaiStream(new Uint8Array(bytes).buffer);
  const content = new Reader(stream);
  if (!stream.isEof()) throw new Error(`${stream.size - stream.pos} bytes to spare`);
  return content;
}

module.exports = { readerOf, readWhole };

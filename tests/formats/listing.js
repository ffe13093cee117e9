// Lists what a Kaitai Struct reader made of a .bin file, in the form of tools/metagen-show.
"use strict";

const HANDLER_KINDS = { 1: "Float", 2: "Color", 6: "Duplicate" };
const DEFAULT_KINDS = ["integer", "float", "string", "descriptor", "integers", "floats"];
const VALUE_TAGS = { 265: "float", 266: "integer" };

/** In quotes and in ASCII. */
function quoted(text) {
  return JSON.stringify(text.value).replace(/[\u007f-\uffff]/g,
    (letter) => "\\u" + letter.charCodeAt(0).toString(16).padStart(4, "0"));
}

/** Nine significant digits, shortest general form, as printf's %.9g. */
function general(number) {
  if (!Number.isFinite(number)) return String(number).replace("Infinity", "inf").toLowerCase();
  if (number === 0) return Object.is(number, -0) ? "-0" : "0";
  const [digits, exponent] = number.toExponential(8).split("e");
  const tidy = (text) => (text.includes(".") ? text.replace(/\.?0+$/, "") : text);
  if (exponent >= -4 && exponent < 9) return tidy(number.toFixed(8 - exponent));
  return `${tidy(digits)}e${exponent[0]}${exponent.slice(1).padStart(2, "0")}`;
}

function flagsText(parameter) {
  const names = [];
  if (parameter.isUserData) names.push("user data");
  if (parameter.isFile) names.push("file browser");
  if (parameter.isInputFile) names.push("load mode 1");
  return `${parameter.flags} ${names.join(", ")}`.trimEnd();
}

/** The three parts of a descriptor's number. */
function descriptorText(code) {
  const representation = { 1: "float", 2: "int", 4: "string" }[code & 7];
  const shape = { 8: "single", 16: "array3", 32: "array4", 64: "array9", 128: "array12" };
  const sequence = { 256: "single", 512: "list" };
  return `${code} ${representation} ${shape[code & 0xf8]} ${sequence[code & 0x300]}`;
}

class Listing {
  constructor() {
    this.lines = [];
  }

  add(depth, name, value) {
    this.lines.push(`${"  ".repeat(depth)}${name} ${value}\n`);
  }

  /** The count of the items, and each of them. */
  addAll(depth, name, count, items, addItem) {
    this.add(depth, name, count);
    items.forEach(addItem);
  }

  addDefault(depth, content) {
    this.add(depth, "default", `${content.kind} ${DEFAULT_KINDS[content.kind]}`);
    if (content.kind >= 3) this.add(depth + 1, "descriptor", descriptorText(content.descriptor));
    const show = [String, general, quoted, undefined, String, general][content.kind];
    if (content.kind >= 4) {
      this.addAll(depth + 1, "elements", content.value.numElements, content.value.elements,
        (element) => this.add(depth + 2, "element", show(element)));
    } else if (content.kind < 3) {
      this.add(depth + 1, "value", show(content.value));
    }
  }

  addFiles(name, table) {
    this.addAll(0, name, table.numPlugins, table.plugins, (plugin) => {
      this.add(1, "plugin", quoted(plugin.name));
      this.addAll(2, "parameters", plugin.numParameters, plugin.parameters,
        (parameter) => this.add(3, "parameter", quoted(parameter)));
    });
  }

  addScaling(parameter) {
    this.add(3, "parameter", quoted(parameter.name));
    this.add(4, "unit", parameter.unit);
    this.add(4, "power", parameter.power);
    this.add(4, "inverse", parameter.inverse);
    this.addAll(4, "conditions", parameter.numConditions, parameter.conditions, (condition) => {
      const isFloat = VALUE_TAGS[condition.tag] === "float";
      this.add(5, "condition on", quoted(condition.parameter));
      this.add(6, "operation", condition.operation);
      this.add(6, "tag", `${condition.tag} ${VALUE_TAGS[condition.tag]}`);
      this.add(6, "value", isFloat ? general(condition.value) : condition.value);
    });
  }

  text() {
    return this.lines.join("");
  }
}

function listHandlers(content) {
  const out = new Listing();
  out.add(0, "tag", "HDLR");
  out.add(0, "version", content.version);
  out.addAll(0, "plugins", content.numPlugins, content.plugins, (plugin) => {
    out.add(1, "plugin", quoted(plugin.name));
    out.addAll(2, "parameters", plugin.numParameters, plugin.parameters, (parameter) => {
      out.add(3, "parameter", quoted(parameter.name));
      out.add(4, "kind", `${parameter.kind} ${HANDLER_KINDS[parameter.kind]}`);
      out.addAll(4, "arguments", parameter.numArguments, parameter.arguments,
        (argument) => out.add(5, "argument", general(argument)));
    });
  });
  return out.text();
}

function listMeta(content) {
  const out = new Listing();
  out.add(0, "tag", "META");
  out.add(0, "version", content.version);
  out.addAll(0, "plugins", content.numPlugins, content.plugins, (plugin) => {
    out.add(1, "plugin", quoted(plugin.name));
    out.add(2, "category", quoted(plugin.category));
    out.addAll(2, "parameters", plugin.numParameters, plugin.parameters, (parameter) => {
      out.add(3, "parameter", quoted(parameter.name));
      out.add(4, "type", quoted(parameter.typeName));
      out.add(4, "flags", flagsText(parameter));
      out.addDefault(4, parameter.default);
    });
  });
  out.addFiles("file plugins", content.files);
  out.addFiles("input file plugins", content.inputFiles);
  out.addAll(0, "scaling plugins", content.scaling.numPlugins, content.scaling.plugins,
    (plugin) => {
      out.add(1, "plugin", quoted(plugin.name));
      out.addAll(2, "parameters", plugin.numParameters, plugin.parameters,
        (parameter) => out.addScaling(parameter));
    });
  return out.text();
}

module.exports = { general, listHandlers, listMeta };

// An editor with the JSON language service that common editors share: completions, hovers and
// findings in a document's text, in which a "|" stands for the cursor.
"use strict";

const fs = require("node:fs");
const url = require("node:url");

const { getLanguageService, TextDocument } = require("vscode-json-languageservice");

/** What the editor makes of texts of a file stripped.json, by the schema, or without one by that
 * which the text names, relative to the folder. */
exports.editor = ({ schema, folder = "/" }) => {
  const uri = url.pathToFileURL(`${folder}/stripped.json`).href;
  const service = getLanguageService({
    schemaRequestService: (file) => fs.promises.readFile(new URL(file), "utf8"),
    workspaceContext: { resolveRelativePath: (name, from) => new URL(name, from).href },
  });
  service.configure({
    validate: true,
    schemas: schema
      ? [{ uri: "file:///stripped.schema.json", fileMatch: ["*.json"], schema }] : [],
  });

  /** The document of a text, the place of the "|" in it, and the parsed document. */
  function open(text) {
    const [before, after = ""] = text.split("|");
    const document = TextDocument.create(uri, "json", 1, before + after);
    return { document, position: document.positionAt(before.length), parsed:
      service.parseJSONDocument(document) };
  }

  /** What is offered at the "|", in order. */
  async function offered(text) {
    const { document, position, parsed } = open(text);
    const { items } = await service.doComplete(document, position, parsed);
    return items.map((item) => item.label.replaceAll('"', "")).sort();
  }

  /** What is shown of the key or value at the "|". */
  async function shown(text) {
    const { document, position, parsed } = open(text);
    const hover = await service.doHover(document, position, parsed);
    return [hover?.contents ?? []].flat().join("\n").replaceAll("\\", "");
  }

  /** What is marked as wrong, by lines counted from 1: its text, and what is said of it. */
  async function findings(text) {
    const { document, parsed } = open(text);
    return (await service.doValidation(document, parsed)).map(({ range, message }) =>
      ({ line: range.start.line + 1, text: document.getText(range), message }))
      .sort((left, right) => left.line - right.line);
  }

  const marked = async (text) => (await findings(text)).map((finding) => finding.text);
  const said = async (text) => (await findings(text)).map((finding) => finding.message);

  return { offered, shown, findings, marked, said };
};

// An editor with the JSON language service that common editors share: completions, hovers and
// findings in a document's text, in which a "|" stands for the cursor.
"use strict";

const { getLanguageService, TextDocument } = require("vscode-json-languageservice");

/** What the editor makes of texts of stripped.json, by the schema. */
exports.editor = ({ schema }) => {
  const service = getLanguageService({});
  service.configure({
    validate: true,
    schemas: [{ uri: "file:///stripped.schema.json", fileMatch: ["*.json"], schema }],
  });

  /** The document of a text, the place of the "|" in it, and the parsed document. */
  function open(text) {
    const [before, after = ""] = text.split("|");
    const document = TextDocument.create("file:///stripped.json", "json", 1, before + after);
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

  /** The texts that are marked as wrong. */
  async function marked(text) {
    const { document, parsed } = open(text);
    const findings = await service.doValidation(document, parsed);
    return findings.map((finding) => document.getText(finding.range));
  }

  /** What is said of the texts that are marked. */
  async function said(text) {
    const { document, parsed } = open(text);
    return (await service.doValidation(document, parsed)).map((finding) => finding.message);
  }

  return { offered, shown, marked, said };
};

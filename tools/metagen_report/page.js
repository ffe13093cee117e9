"use strict";
// Filters the plugins and their entries. The page reads without it, too.

const filterBox = document.getElementById("filter");
const kindBoxes = [...document.querySelectorAll("#kinds input")];
const links = document.querySelectorAll("nav li");

const groups = [...document.querySelectorAll("main > details")].map((element, number) => ({
  elements: [element, links[number]],
  name: element.querySelector(".name").textContent.toLowerCase(),
  entries: [...element.querySelectorAll(":scope > table > tbody")].map((body) => ({
    element: body,
    kind: body.dataset.kind,
    text: body.textContent.toLowerCase(),
    folded: body.querySelector("details"),
  })),
}));

// Every word must occur, in the group's name or in the entry. What is folded opens for a word.
function fits(group, entry, words, kinds) {
  if (entry.folded) {
    const text = entry.folded.textContent.toLowerCase();
    entry.folded.open = words.some((word) => text.includes(word));
  }
  return kinds.has(entry.kind) &&
    words.every((word) => group.name.includes(word) || entry.text.includes(word));
}

function filter() {
  const words = filterBox.value.toLowerCase().split(/\s+/).filter(Boolean);
  const kinds = new Set(kindBoxes.filter((box) => box.checked).map((box) => box.value));
  let shown = 0;
  let all = 0;
  for (const group of groups) {
    for (const entry of group.entries) entry.element.hidden = !fits(group, entry, words, kinds);
    const visible = group.entries.filter((entry) => !entry.element.hidden).length;
    for (const element of group.elements) element.hidden = visible === 0;
    shown += visible;
    all += group.entries.length;
  }
  document.getElementById("shown").textContent = `${shown} of ${all} entries shown`;
  document.getElementById("nothing").hidden = shown > 0 || all === 0;
}

filterBox.addEventListener("input", filter);
for (const box of kindBoxes) box.addEventListener("change", filter);
document.addEventListener("keydown", (event) => {
  if (event.key === "/" && document.activeElement !== filterBox) {
    event.preventDefault();
    filterBox.focus();
  } else if (event.key === "Escape" && document.activeElement === filterBox) {
    filterBox.value = "";
    filter();
  }
});
filter();

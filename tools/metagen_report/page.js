"use strict";
// Filters the groups and their entries. The page reads without it, too.

const filterBox = document.getElementById("filter");
const kindBoxes = [...document.querySelectorAll("#kinds input")];

const groups = [...document.querySelectorAll("main > details")].map((element) => ({
  element,
  count: element.querySelector(".count"),
  name: element.querySelector(".name").textContent.toLowerCase(),
  entries: [...element.querySelectorAll("tbody")].map((body) => ({
    element: body,
    kind: body.dataset.kind,
    text: body.textContent.toLowerCase(),
  })),
}));

// Every word must occur, in the group's name or in the entry.
function fits(group, entry, words, kinds) {
  return kinds.has(entry.kind) &&
    words.every((word) => group.name.includes(word) || entry.text.includes(word));
}

function filterGroup(group, words, kinds) {
  let shown = 0;
  for (const entry of group.entries) {
    const visible = fits(group, entry, words, kinds);
    entry.element.hidden = !visible;
    shown += visible ? 1 : 0;
  }
  group.element.hidden = shown === 0;
  group.count.textContent =
    shown === group.entries.length ? `${shown}` : `${shown} of ${group.entries.length}`;
  return shown;
}

function filter() {
  const words = filterBox.value.toLowerCase().split(/\s+/).filter(Boolean);
  const kinds = new Set(kindBoxes.filter((box) => box.checked).map((box) => box.value));
  let shown = 0;
  let all = 0;
  for (const group of groups) {
    shown += filterGroup(group, words, kinds);
    all += group.entries.length;
  }
  document.getElementById("shown").textContent = `${shown} of ${all} entries`;
  document.getElementById("nothing").hidden = shown > 0 || all === 0;
}

function setOpen(open) {
  for (const group of groups) group.element.open = open;
}

filterBox.addEventListener("input", filter);
for (const box of kindBoxes) box.addEventListener("change", filter);
document.getElementById("open").addEventListener("click", () => setOpen(true));
document.getElementById("close").addEventListener("click", () => setOpen(false));
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

// In a page of frames: tells of each frame's document, one line a frame with tabs between: its address as given, its
// encoding, its number of scripts, its number of table cells, and the texts that are not wholly to be seen.
"use strict";

// Part of a pixel is rounding.
const kTolerance = 1;

function sticksOut(inner, outer) {
  return inner.left < outer.left - kTolerance || inner.right > outer.right + kTolerance ||
         inner.top < outer.top - kTolerance || inner.bottom > outer.bottom + kTolerance;
}

function textBox(element) {
  const range = element.ownerDocument.createRange();
  range.selectNodeContents(element);
  return range.getBoundingClientRect();
}

// Whether an element cuts off what reaches over its box; asked of each element once, as styles are dear.
const cutting = new WeakMap();
function cuts(element) {
  if (!cutting.has(element)) {
    const style = element.ownerDocument.defaultView.getComputedStyle(element);
    cutting.set(element, style.overflowX !== "visible" || style.overflowY !== "visible" || style.clipPath !== "none");
  }
  return cutting.get(element);
}

function isCutOff(element, box) {
  for (let around = element; around !== element.ownerDocument.body; around = around.parentElement) {
    if (cuts(around) && sticksOut(box, around.getBoundingClientRect())) return true;
  }
  return false;
}

function isClipped(element) {
  const box = textBox(element);
  if (box.width === 0) return element.textContent.trim() !== "";  // hidden altogether
  return sticksOut(box, element.getBoundingClientRect()) || isCutOff(element, box);
}

// Cells whose boxes lie over each other in a row hide one another's texts.
function overlapsNext(cell) {
  const next = cell.nextElementSibling;
  return next !== null && cell.getBoundingClientRect().right > next.getBoundingClientRect().left + kTolerance;
}

function report(frame) {
  const name = frame.getAttribute("title");
  const page = frame.contentDocument;
  if (page === null || page.body === null) return name + "\tunreadable\t0\t0\t";
  const cells = [...page.querySelectorAll("th, td")];
  const texts = [...cells, ...page.querySelectorAll("caption, h1, h2, p, li")];
  const clipped = [...texts.filter(isClipped), ...cells.filter(overlapsNext)];
  const words = clipped.map((element) => element.textContent.replace(/\s+/g, " ")).join("; ");
  return [name, page.characterSet, page.scripts.length, cells.length, words].join("\t");
}

addEventListener("load", () => {
  const lines = [...document.querySelectorAll("iframe")].map(report);
  document.body.replaceChildren(document.createElement("pre"));
  document.body.firstChild.textContent = lines.join("\n") + "\n";
});

// Typesets pages: each page.typ becomes page.svg and page.txt beside it.
//
//   node typeset.mjs <resources folder> <page.typ ...>
//
// Fails for a page that does not compile without a warning or does not fit its size.

import { NodeCompiler } from "@myriaddreamin/typst-ts-node-compiler";
import crypto from "node:crypto";
import fs from "node:fs";
import path from "node:path";
import { simplify } from "./svg.mjs";

const [resources, ...pages] = process.argv.slice(2).map((name) => path.resolve(name));
const compiler = NodeCompiler.create({ workspace: resources });

// A file as a source names it: from the resources on, or beside itself.
function place(name, folder) {
  return name.startsWith("/") ? path.join(resources, name) : path.join(folder, name);
}

// The page, what it imports or reads, and what those do.
function sourcesOf(file, found = []) {
  if (found.includes(file)) return found;
  found.push(file);
  if (!file.endsWith(".typ")) return found;
  for (const [, name] of fs.readFileSync(file, "utf8").matchAll(/"([^"\n]+\.(?:typ|json|csv))"/g)) {
    const named = place(name, path.dirname(file));
    if (fs.existsSync(named)) sourcesOf(named, found);
  }
  return found;
}

// The SHA-256 of the SHA-256s of the files, each as hexadecimal digits. tests/pictures computes it
// too.
function fingerprint(files) {
  const sha256 = (data) => crypto.createHash("sha256").update(data).digest("hex");
  return sha256(files.map((file) => sha256(fs.readFileSync(file))).join(""));
}

function writeIfNew(file, text) {
  if (fs.existsSync(file) && fs.readFileSync(file, "utf8") === text) return 0;
  fs.writeFileSync(file, text);
  return 1;
}

function typeset(page) {
  const result = compiler.compile({ mainFilePath: page });
  if (result.hasError() || result.takeDiagnostics()) {
    result.printDiagnostics();
    throw new Error("the page does not compile cleanly");
  }
  const document = result.result;
  if (document.numOfPages !== 1) {
    throw new Error(`it fills ${document.numOfPages} pages: shorten it`);
  }
  const images = compiler.query(document, { selector: "image", field: "source" });
  const files = [...new Set([
    ...sourcesOf(page),
    ...images.map((name) => place(name, path.dirname(page))).sort(),
  ])];
  const names = files.map((file) => path.relative(resources, file).replaceAll("\\", "/"));
  const svg = simplify(compiler.plainSvg(document),
    `Typeset from ${names.join(" ")} ${fingerprint(files)}`);
  const [text] = compiler.query(document, { selector: "<texto>", field: "value" });
  const plain = text.split("\n").map((line) => line.trim().replace(/[ \u00a0]+/g, " ")).join("\n")
    .replace(/\n{3,}/g, "\n\n").trim() + "\n";
  const written = writeIfNew(page.replace(/typ$/, "svg"), svg) +
    writeIfNew(page.replace(/typ$/, "txt"), plain);
  return written > 0;
}

let failures = 0;
let changed = 0;
for (const page of pages) {
  try {
    changed += typeset(page) ? 1 : 0;
  } catch (error) {
    failures += 1;
    console.error(`${path.relative(process.cwd(), page)}: ${error.message ?? error}`);
  }
}
console.log(`${pages.length} pages: ${changed} changed, ${failures} failed.`);
process.exitCode = failures > 0 ? 1 : 0;

// Rewrites the typesetter's SVG into the small part of SVG that Qt draws: groups, paths, uses and
// pictures, with the definitions before their first use. On the way it drops what changes nothing
// (nested groups, default attributes, digits beyond a thousandth of a point).

import { DOMParser, onErrorStopParsing } from "@xmldom/xmldom";

const Unsupported = ["text", "style", "script", "foreignObject", "filter", "mask", "pattern"];
const DefaultAttributes = {
  "fill-rule": "nonzero",
  "stroke-linecap": "butt",
  "stroke-linejoin": "miter",
  "stroke-miterlimit": "4",
  "stroke-dashoffset": "0",
  preserveAspectRatio: "none",
  y: "0",
};

// The elements of a document as a tree of {name, attributes, children}; attributes keep the order of
// the document. Text between elements is left out: the typesetter writes none, and nested pictures
// may hold none (see inline). Throws for a document that is no XML.
function parse(document) {
  const treeOf = (element) => ({
    name: element.tagName,
    attributes: Object.fromEntries(Array.from(element.attributes, ({ name, value }) => [name, value])),
    children: Array.from(element.childNodes).filter(({ nodeType, ELEMENT_NODE }) =>
      nodeType === ELEMENT_NODE).map(treeOf),
  });
  const parser = new DOMParser({ onError: onErrorStopParsing });
  return treeOf(parser.parseFromString(document, "image/svg+xml").documentElement);
}

function short(number) {
  const text = String(Math.round(Number(number) * 1000) / 1000);
  return text === "-0" ? "0" : text.replace(/^(-?)0\./, "$1.");
}

const escaped = (text) => text.replace(/&/g, "&amp;").replace(/</g, "&lt;").replace(/"/g, "&quot;");

const shortNumbers = (text) => text.replace(/-?\d*\.?\d+(e-?\d+)?/gi, short);

function shortPath(path) {
  let result = "";
  let command = "";
  let afterNumber = false;
  for (const [token] of path.matchAll(/[a-df-z]|-?\d*\.?\d+(?:e-?\d+)?/gi)) {
    if (/^[a-z]$/i.test(token)) {
      // A repeated command need not be named again; after a move it would mean a line.
      if (token !== command || /[mz]/i.test(token)) {
        result += token;
        afterNumber = false;
      }
      command = token;
    } else {
      const number = short(token);
      result += (afterNumber && !number.startsWith("-") ? " " : "") + number;
      afterNumber = true;
    }
  }
  return result;
}

function matrixOf(transform) {
  const matrix = transform?.match(/^\s*matrix\(([^)]*)\)\s*$/);
  return matrix ? matrix[1].trim().split(/[\s,]+/).map(Number) : [1, 0, 0, 1, 0, 0];
}

function product([a, b, c, d, e, f], [g, h, i, j, k, l]) {
  return [
    a * g + c * h, b * g + d * h, a * i + c * j, b * i + d * j,
    a * k + c * l + e, b * k + d * l + f,
  ];
}

// A picture within the picture. A vector picture becomes a group of the page, as Qt would draw it
// as coarse as its nominal size; a raster one stays as it is.
function inline(image, prefix) {
  const { "xlink:href": href, width, height, transform } = image.attributes;
  const vector = href.match(/^data:image\/svg\+xml;base64,(.*)$/);
  if (!vector) return image;
  const document = Buffer.from(vector[1], "base64").toString();
  const picture = parse(document);
  const box = (picture.attributes.viewBox ??
    `0 0 ${parseFloat(picture.attributes.width)} ${parseFloat(picture.attributes.height)}`)
    .trim().split(/[\s,]+/).map(Number);
  const [x, y] = [width / box[2], height / box[3]];
  const rename = (element) => {
    const names = element.attributes;
    if (names.id) names.id = prefix + names.id;
    for (const key of Object.keys(names)) {
      names[key] = names[key].replace(/^#(?=.)(?![0-9a-f]{3,8}$)/i, "#" + prefix)
        .replace(/url\(#/g, "url(#" + prefix);
    }
    if (names["xlink:href"] === undefined && names.href) {
      names["xlink:href"] = names.href;
      delete names.href;
    }
    element.children.forEach(rename);
  };
  picture.children.forEach(rename);
  const inherited = { ...picture.attributes };
  for (const key of Object.keys(inherited)) {
    if (/^(xmlns|width$|height$|viewBox$|version$|id$|class$)/.test(key)) delete inherited[key];
  }
  const place = product(matrixOf(transform), [x, 0, 0, y, -box[0] * x, -box[1] * y]);
  return {
    name: "g",
    attributes: { ...inherited, transform: `matrix(${place.join(" ")})` },
    children: picture.children,
  };
}

// Returns the page's drawing; throws where something cannot be drawn or lies outside the page.
export function simplify(document, comment) {
  const root = parse(document);
  const [, , width, height] = root.attributes.viewBox.split(" ").map(Number);
  const shapes = [];
  const names = new Map();
  let pictures = 0;

  const collect = (element) => {
    if (element.name === "symbol") {
      names.set(element.attributes.id, "g" + names.size.toString(36));
      const [path] = element.children;
      shapes.push(`<path id="${names.get(element.attributes.id)}" d="${shortPath(path.attributes.d)}"/>`);
    }
    element.children.forEach(collect);
  };
  collect(root);

  const write = (element, outer) => {
    if (element.name === "image") element = inline(element, `p${pictures++}`);
    const { name, children } = element;
    if (Unsupported.includes(name)) throw new Error(`<${name}> cannot be drawn`);
    if (["symbol", "title", "desc", "metadata"].includes(name)) return "";
    const attributes = { ...element.attributes };
    delete attributes.class;
    if (name === "defs" && children.every((child) => child.name === "symbol")) return "";
    const matrix = product(outer, matrixOf(attributes.transform));
    if (name === "use") {
      const [x, y] = [Number(attributes.x ?? 0), Number(attributes.y ?? 0)];
      const across = matrix[0] * x + matrix[2] * y + matrix[4];
      const down = matrix[1] * x + matrix[3] * y + matrix[5];
      if (across < 0 || across > width || down < 0 || down > height) {
        throw new Error(`text runs out of the page at ${short(across)}, ${short(down)} pt`);
      }
      const id = attributes["xlink:href"].slice(1);
      attributes["xlink:href"] = "#" + (names.get(id) ?? id);
      if (x === 0) delete attributes.x;
    }
    // All letters of a run have one colour: it is said once.
    if (name === "g" && children.length > 0 && children.every((child) => child.name === "use") &&
        new Set(children.map((child) => child.attributes.fill)).size === 1) {
      attributes.fill = children[0].attributes.fill;
      for (const child of children) delete child.attributes.fill;
    }
    let text = "";
    for (const [key, value] of Object.entries(attributes)) {
      if (DefaultAttributes[key] === value || key.startsWith("xmlns")) continue;
      const numeric = ["transform", "x", "y", "width", "height", "points"].includes(key);
      const shown = key === "d" ? shortPath(value) : numeric ? shortNumbers(value) : value;
      text += ` ${key}="${escaped(shown)}"`;
    }
    const inside = children.map((child) => write(child, matrix)).join("");
    if (name === "g" && inside === "") return "";
    if (name === "g" && text === "") return inside;
    return inside === "" ? `<${name}${text}/>\n` : `<${name}${text}>${inside}</${name}>\n`;
  };

  const drawing = root.children.map((child) => write(child, [1, 0, 0, 1, 0, 0])).join("");
  // A point is 4/3 of a pixel.
  const [across, down] = [short((width * 4) / 3), short((height * 4) / 3)];
  return `<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" ` +
    `width="${across}" height="${down}" viewBox="0 0 ${short(width)} ${short(height)}">\n` +
    `<!-- ${comment} -->\n<defs>\n${shapes.join("\n")}\n</defs>\n${drawing}</svg>\n`;
}

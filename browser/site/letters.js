import { fontOf } from "./screen.js";

// Of 255: a pixel of a sharp letter is black from this cover on.
const SharpCover = 100;

/** By font and sign. @type {Map<string, number>} */
const crispShifts = new Map();

const context = /** @type {CanvasRenderingContext2D} */ (
  document.createElement("canvas").getContext("2d", { willReadFrequently: true })
);

/**
 * Paints a black text into a white raster, with its upper left corner at (x, y).
 * @param {Uint8Array} bytes four of a pixel
 * @param {number} width @param {number} height @param {number} x @param {number} y
 * @param {string} text @param {LettersState} letters
 */
export function paintText(bytes, width, height, x, y, text, letters) {
  const { canvas } = context;
  canvas.width = Math.max(canvas.width, width);
  canvas.height = Math.max(canvas.height, height);
  context.font = fontOf(letters.comic, letters.bold, letters.size);
  const base = Math.round(context.measureText(text).fontBoundingBoxAscent);
  const signs = letters.sharp ? [...text] : [text];
  const shifts = signs.map((sign) => (letters.sharp ? crispShift(sign, letters) : 0));
  context.resetTransform();
  context.clearRect(0, 0, canvas.width, canvas.height);
  let left = x;
  signs.forEach((sign, i) => {
    paint(sign, left + shifts[i], y + base, letters.stretch);
    left += Math.round(context.measureText(sign).width * letters.stretch);
  });
  const painted = context.getImageData(0, 0, width, height).data;
  for (let at = 0; at < painted.length; at += 4) {
    const cover = painted[at + 3];
    const black = letters.sharp ? (cover >= SharpCover ? 255 : 0) : cover;
    bytes.fill(255 - black, at, at + 3);
  }
}

/** @param {string} sign @param {number} x @param {number} y @param {number} stretch */
function paint(sign, x, y, stretch) {
  context.setTransform(stretch, 0, 0, 1, x, y);
  context.fillText(sign, 0, 0);
}

/**
 * How far a sign is to be moved to the right, by less than a pixel, for its strokes to fall on
 * whole pixels: so that the fewest pixels are neither black nor white.
 * @param {string} sign @param {LettersState} letters
 */
function crispShift(sign, letters) {
  const key = `${context.font} ${letters.stretch} ${sign}`;
  const known = crispShifts.get(key);
  if (known !== undefined) {
    return known;
  }
  const side = 3 * letters.size;
  const greys = [0, 0.25, 0.5, 0.75].map((shift) => {
    context.resetTransform();
    context.clearRect(0, 0, side, side);
    paint(sign, letters.size + shift, 2 * letters.size, letters.stretch);
    const { data } = context.getImageData(0, 0, side, side);
    let grey = 0;
    for (let at = 3; at < data.length; at += 4) {
      grey += Math.min(data[at], 255 - data[at]);
    }
    return { shift, grey };
  });
  const { shift } = greys.reduce((best, each) => (each.grey < best.grey ? each : best));
  crispShifts.set(key, shift);
  return shift;
}

import { fontOf } from "./screen.js";

// Of 255: a pixel of a sharp letter is black from this cover on.
const SharpCover = 85;

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
  context.resetTransform();
  context.clearRect(0, 0, width, height);
  context.font = fontOf(letters.comic, letters.bold, letters.size);
  const { fontBoundingBoxAscent } = context.measureText(text);
  context.setTransform(letters.stretch, 0, 0, 1, x, y + Math.round(fontBoundingBoxAscent));
  let left = 0;
  // Each sharp letter stands on whole pixels, so that it looks the same everywhere.
  for (const part of letters.sharp ? text : [text]) {
    context.fillText(part, left / letters.stretch, 0);
    left += Math.round(context.measureText(part).width * letters.stretch);
  }
  const painted = context.getImageData(0, 0, width, height).data;
  for (let at = 0; at < painted.length; at += 4) {
    const cover = painted[at + 3];
    const black = letters.sharp ? (cover >= SharpCover ? 255 : 0) : cover;
    bytes.fill(255 - black, at, at + 3);
  }
}

// How the layout of 1024x768 fits the window: as large as possible, in the middle. Places are whole
// device pixels, so that surfaces and lines are sharp.

export const LayoutWidth = 1024;
export const LayoutHeight = 768;
const SmallestZoom = 0.1;

export class Screen {
  zoom = 1;
  ratio = 1;
  #stage;

  /** @param {HTMLElement} stage what holds the layout */
  constructor(stage) {
    this.#stage = stage;
  }

  fit() {
    const { clientWidth, clientHeight } = document.documentElement;
    this.ratio = devicePixelRatio;
    this.zoom = Math.max(
      SmallestZoom,
      Math.min(clientWidth / LayoutWidth, clientHeight / LayoutHeight),
    );
    const whole = (/** @type {number} */ length) => Math.round(length * this.ratio) / this.ratio;
    const { style } = this.#stage;
    style.left = `${whole((clientWidth - LayoutWidth * this.zoom) / 2)}px`;
    style.top = `${whole((clientHeight - LayoutHeight * this.zoom) / 2)}px`;
    style.width = this.length(LayoutWidth);
    style.height = this.length(LayoutHeight);
    const root = document.documentElement.style;
    root.setProperty("--zoom", `${this.zoom}`);
    root.setProperty("--line", `${Math.max(1, Math.floor(this.density)) / this.ratio}px`);
  }

  /** Device pixels to a logical pixel. */
  get density() {
    return this.zoom * this.ratio;
  }

  /** A length in logical pixels as CSS, in whole device pixels. @param {number} pixels */
  length(pixels) {
    return `${Math.round(pixels * this.density) / this.ratio}px`;
  }

  /**
   * A font as CSS. Its size is rounded down, so that no text outgrows the place that the layout
   * gives it.
   * @param {FontState} font
   */
  font(font) {
    const size = Math.max(1, Math.floor(font.size * this.density + 1e-6)) / this.ratio;
    return fontOf(font.comic, font.bold, size);
  }
}

/** @param {boolean} comic @param {boolean} bold @param {number} size */
export function fontOf(comic, bold, size) {
  return `${bold ? "bold " : ""}${size}px ${comic ? '"Comic Neue", ' : ""}"DejaVu Sans"`;
}

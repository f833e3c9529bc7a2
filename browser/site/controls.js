import { makeSpeedBar } from "./speed_bar.js";
import { EventKind } from "./queue.js";

// The elements that show controls, one function for each kind.

/** @typedef {import("./page.js").PageView} PageView */
/** @typedef {import("./screen.js").Screen} Screen */

/**
 * @typedef {object} Parts
 * @property {HTMLElement} element
 * @property {HTMLElement} [input] what takes the keyboard, where it is not the element
 * @property {boolean} [words] whether it is a picture of a text
 * @property {(state: any, screen: Screen) => void} [show] what only this kind has
 * @property {() => void} [lock] before it is locked or hidden
 */

const LongestText = 32767; // as on the desktop

const MillisecondsToLoadAgain = 3000;

/** The words of pictures, by the pictures' names. @type {Record<string, string>} */
let words = {};

/** @param {Record<string, string>} all */
export function setWords(all) {
  words = all;
}

export class ControlView {
  /** @param {State} state @param {PageView} page */
  constructor(state, page) {
    this.state = state;
    /** @type {Parts} */
    this.parts = Makers[state.kind](state, page);
    this.element = this.parts.element;
    this.input = this.parts.input ?? this.element;
    this.element.dataset.name = state.name;
  }

  /** Whether the user can reach the control. */
  get free() {
    return !this.input.matches(":disabled") && this.input.getClientRects().length > 0;
  }

  /** Shows what the control now says. @param {State} state @param {Screen} screen */
  show(state, screen) {
    const before = this.state;
    this.state = state;
    const { element, input } = this;
    if (
      before.left !== state.left ||
      before.top !== state.top ||
      before.width !== state.width ||
      before.height !== state.height
    ) {
      this.place(screen);
    }
    this.parts.show?.(state, screen);
    if (!state.visible || !state.enabled) {
      this.parts.lock?.();
    }
    element.hidden = !state.visible;
    element.title = state.tip;
    if ("disabled" in input) {
      input.disabled = !state.enabled;
    } else {
      element.classList.toggle("disabled", !state.enabled);
    }
  }

  /** @param {Screen} screen */
  place(screen) {
    const { left, top, width, height } = this.state;
    const { style } = this.element;
    style.left = screen.length(left);
    style.top = screen.length(top);
    style.width = screen.length(width);
    style.height = screen.length(height);
  }
}

/** @type {Record<string, (state: any, page: PageView) => Parts>} */
const Makers = {
  // What is spoken otherwise than it is written has its words twice.
  label(/** @type {LabelState} */ { number }, page) {
    const element = document.createElement("div");
    element.className = "label";
    const seen = element.appendChild(document.createElement("span"));
    const heard = element.appendChild(document.createElement("span"));
    heard.className = "unseen";
    element.addEventListener("click", () => page.tell(EventKind.Click, number));
    element.addEventListener("dblclick", () => page.tell(EventKind.DoubleClick, number));
    let look = "";
    return {
      element,
      show(/** @type {LabelState} */ state, screen) {
        const { font, color, alignment, bordered, inMiddle } = state;
        // A motion changes the text with each step, and nothing else.
        const now = `${screen.font(font)} ${color} ${alignment} ${bordered} ${inMiddle}`;
        if (look !== now) {
          look = now;
          element.classList.toggle("bordered", bordered);
          element.classList.toggle("middle", inMiddle);
          element.style.font = screen.font(font);
          element.style.color = color;
          element.style.textAlign = element.style.justifyContent = alignment;
        }
        const alike = state.text === "" || state.text === state.spoken;
        seen.ariaHidden = alike ? null : "true";
        seen.textContent = state.text;
        heard.textContent = alike ? "" : state.spoken;
      },
    };
  },

  text(/** @type {TextState} */ { number }, page) {
    const element = document.createElement("input");
    element.type = "text";
    element.autocomplete = "off";
    element.autocapitalize = "off";
    element.setAttribute("autocorrect", "off");
    element.spellcheck = false;
    element.maxLength = LongestText;
    element.addEventListener("input", () => page.tell(EventKind.Type, number, 0, element.value));
    return {
      element,
      show(/** @type {TextState} */ state, screen) {
        element.ariaLabel = state.spoken;
        element.style.font = screen.font(state.font);
        // What the user has typed since then is still to be told.
        if (element.value !== state.text && !page.queue.holds(number)) {
          element.value = state.text;
        }
      },
    };
  },

  button(/** @type {ButtonState} */ { number, picture }, page) {
    const element = document.createElement("button");
    const icon = makePicture();
    const caption = document.createElement("span");
    if (picture !== "") {
      icon.src = pathOf(picture);
      element.append(icon);
    }
    element.append(caption);
    element.addEventListener("click", () => page.tell(EventKind.Click, number));
    return {
      element,
      show(/** @type {ButtonState} */ state, screen) {
        const Border = 6;
        const LineHeight = 1.17;
        element.ariaLabel = state.spoken;
        element.style.font = screen.font(state.font);
        caption.textContent = state.text;
        const line = state.text === "" ? 0 : state.font.size * LineHeight + Border;
        const side = Math.max(0, Math.min(state.width, state.height - line) - Border);
        icon.style.width = icon.style.height = screen.length(side);
      },
    };
  },

  // The page keeps the rule of one mark at most; the group is for the arrow keys.
  option(/** @type {OptionState} */ { number }, page) {
    const element = document.createElement("label");
    element.className = "option";
    const input = element.appendChild(document.createElement("input"));
    input.type = "radio";
    input.name = `options of ${page.number}`;
    const caption = element.appendChild(document.createElement("span"));
    input.addEventListener("click", () => page.tell(EventKind.Click, number));
    return {
      element,
      input,
      show(/** @type {OptionState} */ state) {
        caption.textContent = state.text;
        input.ariaLabel = state.spoken;
        input.checked = state.on;
      },
    };
  },

  check(/** @type {CheckState} */ { number }, page) {
    const element = document.createElement("input");
    element.type = "checkbox";
    element.addEventListener("change", () => {
      page.tell(EventKind.Click, number, Number(element.checked));
    });
    return {
      element,
      show(/** @type {CheckState} */ state) {
        element.ariaLabel = state.spoken;
        element.checked = state.on;
      },
    };
  },

  frame() {
    const element = document.createElement("fieldset");
    const legend = element.appendChild(document.createElement("legend"));
    return {
      element,
      show(/** @type {FrameState} */ state) {
        legend.textContent = state.text;
        legend.hidden = state.text === "";
        legend.style.color = state.color;
        element.ariaLabel = state.text === "" ? state.spoken : null;
      },
    };
  },

  // A picture is loaded when it is first seen. That of a text is read as the text.
  image(/** @type {ImageState} */ { picture, spoken }) {
    const image = makePicture();
    const load = (/** @type {ImageState} */ state) => {
      if (state.visible && picture !== "" && !image.hasAttribute("src")) {
        image.src = pathOf(picture);
      }
    };
    if (words[picture] === undefined) {
      image.className = "image";
      image.alt = spoken;
      return { element: image, show: load };
    }
    const element = document.createElement("div");
    element.className = "image";
    element.role = "document";
    element.tabIndex = 0;
    const text = document.createElement("p");
    text.className = "unseen";
    text.textContent = words[picture];
    element.append(image, text);
    return { element, words: true, show: load };
  },

  bar(/** @type {BarState} */ { number, steps }, page) {
    const { element, input, show, letGo } = makeSpeedBar(
      steps,
      (step) => page.tell(EventKind.Scroll, number, step),
      (held) => page.tell(EventKind.Hold, number, Number(held)),
    );
    return {
      element,
      input,
      lock: letGo,
      show(/** @type {BarState} */ state) {
        input.ariaLabel = state.spoken;
        if (!page.queue.holds(number)) {
          show(state.step);
        }
      },
    };
  },

  picture(/** @type {State} */ { spoken }) {
    const element = document.createElement("div");
    element.className = "surface";
    const canvas = element.appendChild(document.createElement("canvas"));
    canvas.role = "img";
    canvas.ariaLabel = spoken;
    return { element };
  },
};

// Without a network a picture is asked for again.
function makePicture() {
  const image = document.createElement("img");
  image.alt = "";
  image.draggable = false;
  image.addEventListener("error", () => {
    setTimeout(() => (image.src = image.src), MillisecondsToLoadAgain);
  });
  return image;
}

/** @param {string} picture */
function pathOf(picture) {
  return `resources/${picture}.svg`;
}

/** The words of a control that is a picture of a text. @param {ControlView} control */
export function wordsOf(control) {
  return words[/** @type {ImageState} */ (control.state).picture];
}

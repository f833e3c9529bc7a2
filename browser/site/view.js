import { chooseColor, showBox, showEnd } from "./dialogs.js";
import { paintText } from "./letters.js";
import { PageView } from "./page.js";
import { EventKind, Queue } from "./queue.js";
import { Screen } from "./screen.js";

// The document as the program sees it: what document.cpp calls.

/** @typedef {import("./controls.js").ControlView} ControlView */

// News are told together: one is lost when another follows at once.
const MillisecondsToAnnounce = 100;
const MillisecondsToRest = 150;

export class View {
  queue = new Queue();
  /** From the lowest to the highest. @type {PageView[]} */
  #pages = [];
  /** The page that has been told to be the active one. @type {PageView | undefined} */
  #active;
  /** What the last press on a page behind the others was on. @type {Element | null} */
  #pressed = null;
  /** Those of values, to be announced. @type {Set<ControlView>} */
  #values = new Set();
  /** What is told next. @type {string[]} */
  #news = [];
  #stage = /** @type {HTMLElement} */ (document.getElementById("stage"));
  screen = new Screen(this.#stage);
  #ended = false;
  #announcer = /** @type {HTMLElement} */ (document.getElementById("announcer"));

  paintText = paintText;

  constructor() {
    this.#watchSize();
    this.#watchPresses();
    this.#watchKeys();
  }

  #watchSize() {
    let resting = 0;
    const fit = () => {
      this.screen.fit();
      this.#pages.forEach((page) => page.fit());
      // Surfaces are scaled until the size rests, as painting them anew takes time.
      clearTimeout(resting);
      resting = setTimeout(() => {
        this.#pages.forEach((page) => page.tell(EventKind.Fit, page.number));
      }, MillisecondsToRest);
    };
    addEventListener("resize", fit);
    // A graphics card may lose what it holds, as in a sleep.
    this.#stage.addEventListener("contextrestored", fit, true);
    fit();
  }

  #watchPresses() {
    this.#stage.addEventListener("pointerdown", (event) => this.#pressBehind(event));
    this.#stage.addEventListener("click", (event) => this.#clickBehind(event));
    // A press beside the controls leaves the keyboard where it is, or brings it back to the page,
    // from a menu or from the browser.
    addEventListener("mousedown", (event) => {
      const target = /** @type {Element} */ (event.target);
      if (target.closest(":not(header) > button, input, label, [tabindex='0']") === null) {
        event.preventDefault();
        this.top?.takeKeyboard();
      }
    });
    // A finger that rests asks for nothing, but in a text box.
    addEventListener("contextmenu", (event) => {
      const { pointerType, target } = /** @type {PointerEvent} */ (event);
      if (pointerType === "touch" && !(target instanceof HTMLInputElement)) {
        event.preventDefault();
      }
    });
    // The browser would open what is dropped on the program. A text may be dropped on a text box.
    for (const type of ["dragover", "drop"]) {
      addEventListener(type, (event) => {
        const { target, dataTransfer } = /** @type {DragEvent} */ (event);
        if (!(target instanceof HTMLInputElement) || dataTransfer?.types.includes("Files")) {
          event.preventDefault();
        }
      });
    }
  }

  #watchKeys() {
    for (const type of ["keydown", "keyup", "blur"]) {
      addEventListener(type, (event) => {
        const { altKey } = /** @type {KeyboardEvent} */ (event);
        this.#stage.classList.toggle("letters", Boolean(altKey));
      });
    }
    // A key that is held presses a button once.
    addEventListener("keydown", (event) => {
      if (event.repeat && event.key === "Enter" && event.target instanceof HTMLButtonElement) {
        event.preventDefault();
      }
    });
  }

  density() {
    return this.screen.density;
  }

  // Pages.

  /** @param {PageTree} state */
  create(state) {
    const page = new PageView(state, this);
    this.#pages.push(page);
    this.#stage.append(page.section);
  }

  /** @param {number} number */
  show(number) {
    const page = this.#page(number);
    if (page !== undefined) {
      page.section.hidden = false;
      this.#raise(page);
      this.#active = page;
    }
  }

  /** @param {number} number */
  hide(number) {
    const page = this.#page(number);
    if (page !== undefined) {
      page.section.hidden = true;
      this.#arrange();
    }
  }

  /** @param {number} number */
  drop(number) {
    const page = this.#page(number);
    if (page !== undefined) {
      page.section.remove();
      this.#pages = this.#pages.filter((other) => other !== page);
      this.#arrange();
    }
  }

  /** The page in front. */
  get top() {
    return this.#pages.findLast((page) => page.shown);
  }

  /** @param {number} number */
  #page(number) {
    return this.#pages.find((page) => page.number === number);
  }

  /** @param {PageView} page */
  #raise(page) {
    this.#pages = [...this.#pages.filter((other) => other !== page), page];
    this.#arrange();
  }

  // Only the page in front can be reached; the others are before it in the order of painting.
  #arrange() {
    this.#pages.forEach((page, index) => {
      page.section.style.zIndex = `${index}`;
      page.section.inert = page !== this.top;
    });
    this.top?.takeKeyboard();
    // The program may show yet another page before it waits.
    queueMicrotask(() => {
      const { top } = this;
      if (top !== this.#active) {
        this.#active = top;
        top?.tell(EventKind.Activate, top.number);
      }
    });
  }

  // A press on a page behind another one brings it to the front, and is a press on what lies there.
  /** @param {PointerEvent} event */
  #pressBehind({ target, clientX, clientY }) {
    this.#pressed = null;
    if (target !== this.#stage) {
      return;
    }
    const page = this.#pages.findLast(({ section, shown }) => {
      const { left, right, top, bottom } = section.getBoundingClientRect();
      return shown && clientX >= left && clientX < right && clientY >= top && clientY < bottom;
    });
    if (page !== undefined) {
      this.#raise(page);
      this.#pressed = document.elementFromPoint(clientX, clientY);
    }
  }

  // As that press was on the stage, so is the click.
  /** @param {MouseEvent} event */
  #clickBehind({ target, clientX, clientY }) {
    const pressed = document.elementFromPoint(clientX, clientY);
    if (target === this.#stage && pressed === this.#pressed && pressed instanceof HTMLElement) {
      pressed.click();
    }
  }

  // Controls.

  /** @param {State[]} states */
  update(states) {
    for (const state of states) {
      const control = this.#control(state.number);
      if (state.kind === "page") {
        this.#page(state.number)?.showPage(/** @type {PageState} */ (state));
      } else if (control !== undefined) {
        if (/** @type {LabelState} */ (state).bordered && isOtherText(control.state, state)) {
          this.#values.add(control);
        }
        this.#pages.forEach((page) => page.show(state));
      }
    }
    this.top?.takeBack();
  }

  /** @param {number} number */
  focus(number) {
    for (const page of this.#pages) {
      const control = page.control(number);
      if (control !== undefined) {
        page.focus(control);
      }
    }
  }

  /** @param {number} number */
  #control(number) {
    return this.#pages.map((page) => page.control(number)).find((control) => control !== undefined);
  }

  /**
   * Shows a part of a surface.
   * @param {number} number @param {ImageData} part @param {number} x @param {number} y
   * @param {number} width @param {number} height of the whole surface
   */
  put(number, part, x, y, width, height) {
    const canvas = this.#control(number)?.element.querySelector("canvas");
    if (canvas) {
      if (canvas.width !== width || canvas.height !== height) {
        canvas.width = width;
        canvas.height = height;
      }
      canvas.getContext("2d", { alpha: false })?.putImageData(part, x, y);
    }
  }

  // What nobody has asked for.

  /** @param {string[]} words */
  announce(...words) {
    if (words.length > 0 && this.#news.length === 0) {
      setTimeout(() => {
        this.#announcer.textContent = this.#news.join("\n");
        this.#news = [];
      }, MillisecondsToAnnounce);
    }
    this.#news.push(...words);
  }

  /** No handler is on the stack: the values of a motion have come to their end. */
  atRest() {
    const values = [...this.#values]
      .filter(({ element }) => element.isConnected)
      .map(({ state }) => /** @type {LabelState} */ (state));
    this.#values.clear();
    this.announce(...values.filter(({ text }) => text !== "").map(({ spoken }) => spoken));
  }

  // Boxes.

  /** @param {string} text @param {boolean} information @param {string} title */
  box(text, information, title) {
    return this.#alone(showBox(text, information, title));
  }

  /** @param {number} now */
  chooseColor(now) {
    return this.#alone(chooseColor(now));
  }

  // A box is to be answered first: what the user pressed on a page before it came is not done, and
  // marks show again what the program knows.
  /** @template T @param {Promise<T>} answer */
  async #alone(answer) {
    this.queue.dropPresses();
    this.#pages.forEach((page) => page.fit());
    await answer;
    this.top?.takeKeyboard();
    return answer;
  }

  /** The end of the program. @param {string} words */
  end(words = "O programa terminou.") {
    if (!this.#ended) {
      this.#ended = true;
      this.queue.end();
      showEnd(words);
    }
    return new Promise(() => {});
  }
}

/** @param {State} before @param {State} now */
function isOtherText(before, now) {
  return /** @type {LabelState} */ (before).text !== /** @type {LabelState} */ (now).text;
}

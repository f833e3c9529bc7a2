import { ControlView, wordsOf } from "./controls.js";
import { MenuBar } from "./menu_bar.js";
import { EventKind } from "./queue.js";
import { LayoutHeight, LayoutWidth } from "./screen.js";

// A page: its title bar, its menu bar, a view of each control, its keys, and who has the keyboard.

/** @typedef {import("./view.js").View} View */

// The layout leaves so much above the client area of a page.
const TitleHeight = 22;
const BarHeight = 24;

const Tabbable = 'input, button:not([tabindex="-1"]), [tabindex="0"]';

export class PageView {
  section = document.createElement("section");
  #title = document.createElement("h1");
  #client = document.createElement("div");
  /** @type {MenuBar | null} */
  #bar = null;
  /** @type {Map<number, ControlView>} */
  #controls = new Map();
  // The control that has the keyboard, or had it when it was locked or hidden.
  /** @type {ControlView | null} */
  #holder = null;
  #parked = false;
  // How far the user has dragged the page, in logical pixels.
  #moved = { x: 0, y: 0 };

  /** @param {PageTree} state @param {View} view */
  constructor(state, view) {
    this.state = state;
    this.number = state.number;
    this.queue = view.queue;
    this.view = view;
    this.section.dataset.name = state.name;
    this.section.hidden = true;
    this.#client.className = "client";
    this.#client.tabIndex = -1;
    this.section.append(this.#makeTitle());
    if (state.menu.length > 0) {
      this.#bar = new MenuBar(
        state.menu,
        (number) => this.tell(EventKind.Click, number),
        () => this.takeKeyboard(),
      );
      this.section.append(this.#bar.element);
    }
    this.section.append(this.#client);
    this.#add(state.children, this.#client);
    this.#watchKeyboard();
    this.showPage(state);
    this.place();
  }

  /** @param {number} kind @param {number} number @param {number} value @param {string} text */
  tell(kind, number, value = 0, text = "") {
    this.queue.put(kind, number, value, text);
  }

  get shown() {
    return !this.section.hidden;
  }

  /** Shows what the page itself now says. @param {PageState} state */
  showPage(state) {
    this.#title.textContent = state.text;
    this.section.ariaLabel = state.spoken;
    this.section.classList.toggle("busy", state.busy);
  }

  /** Shows what a control now says. @param {State} state */
  show(state) {
    const control = this.#controls.get(state.number);
    if (control === undefined) {
      return;
    }
    const wasVisible = control.state.visible;
    if (!state.visible || !state.enabled) {
      this.#park(control);
    }
    control.show(state, this.view.screen);
    if (state.visible && !wasVisible && control.parts.words) {
      this.view.announce(wordsOf(control));
    }
  }

  /** The control of a number. @param {number} number */
  control(number) {
    return this.#controls.get(number);
  }

  /** Gives a control the keyboard. @param {ControlView} control */
  focus(control) {
    this.#holder = control;
    this.#parked = false;
    this.takeKeyboard();
  }

  /** The page has come to the front. */
  takeKeyboard() {
    if (this.view.top === this) {
      (this.#parked ? this.#client : (this.#holder?.input ?? this.#client)).focus();
      this.takeBack();
    }
  }

  // The browser would drop the keyboard. It stays on the empty ground of the page instead, until
  // its control is free again.
  /** @param {ControlView} control */
  #park(control) {
    if (!this.#parked && this.#holder !== null && control.element.contains(this.#holder.input)) {
      this.#parked = true;
      if (this.section.contains(document.activeElement)) {
        this.#client.focus();
      }
    }
  }

  /** Controls may be free again. */
  takeBack() {
    if (!this.#parked || this.#holder === null) {
      return;
    }
    const free = this.#holder.free ? this.#holder : this.#inPlaceOf(this.#holder);
    if (free?.free) {
      this.#holder = free;
      this.#parked = false;
      if (document.activeElement === this.#client) {
        free.input.focus();
      }
    }
  }

  // The twin of a button, or the page of a text that is seen instead of another one.
  /** @param {ControlView} control */
  #inPlaceOf(control) {
    if (control.parts.words) {
      return [...this.#controls.values()].find((other) => other.parts.words && other.state.visible);
    }
    return this.#controls.get(/** @type {ButtonState} */ (control.state).twin);
  }

  #watchKeyboard() {
    this.section.addEventListener("focusin", (event) => {
      for (const control of this.#controls.values()) {
        if (control.input === event.target) {
          this.#holder = control;
          this.#parked = false;
        }
      }
    });
    // Safari gives no keyboard to what is pressed.
    this.#client.addEventListener("click", (event) => {
      const target = /** @type {Element} */ (event.target);
      /** @type {HTMLElement | null} */ (target.closest(Tabbable))?.focus();
    });
    this.section.addEventListener("keydown", (event) => this.#key(event), true);
  }

  /** @param {KeyboardEvent} event */
  #key(event) {
    const letter = event.key.toLowerCase();
    /** @type {Record<string, number>} */
    const buttons = { PageUp: this.state.pageUp, PageDown: this.state.pageDown };
    const alone = !event.ctrlKey && !event.altKey && !event.shiftKey && !event.metaKey;
    const inMenu = this.#bar?.element.contains(/** @type {Node} */ (event.target));
    if (alone && buttons[event.key]) {
      this.#once(event, () => this.tell(EventKind.Click, buttons[event.key]));
    } else if (
      (alone && event.key === "Escape" && this.state.closedByEscape && !inMenu) ||
      (letter === "w" && event.ctrlKey)
    ) {
      this.#once(event, () => this.#close());
    } else if (alone && event.key === "F10" && this.#bar !== null) {
      event.preventDefault();
      this.#bar.open();
    } else if (event.altKey && !event.ctrlKey && this.#bar?.press(letter)) {
      event.preventDefault();
      event.stopPropagation();
    } else if (event.key === "Tab" && this.#parked && event.target === this.#client) {
      this.#tabOnwards(event);
    }
  }

  /** @param {KeyboardEvent} event @param {() => void} act */
  #once(event, act) {
    event.preventDefault();
    event.stopPropagation();
    if (!event.repeat) {
      act();
    }
  }

  // A bar that is held is let go first: the motion that it holds could not end otherwise.
  #close() {
    for (const { parts } of this.#controls.values()) {
      parts.lock?.();
    }
    this.tell(EventKind.Close, this.number);
  }

  // From the empty ground the tabulator goes on where the keyboard was.
  /** @param {KeyboardEvent} event */
  #tabOnwards(event) {
    const from = /** @type {ControlView} */ (this.#holder).input;
    const side = event.shiftKey
      ? Node.DOCUMENT_POSITION_PRECEDING
      : Node.DOCUMENT_POSITION_FOLLOWING;
    /** @type {HTMLElement[]} */
    const others = [...this.#client.querySelectorAll(/** @type {"input"} */ (Tabbable))].filter(
      (element) =>
        (from.compareDocumentPosition(element) & side) !== 0 &&
        !element.matches(":disabled") &&
        element.getClientRects().length > 0,
    );
    const next = event.shiftKey ? others.at(-1) : others[0];
    if (next !== undefined) {
      event.preventDefault();
      next.focus();
    }
  }

  #makeTitle() {
    const header = document.createElement("header");
    const close = document.createElement("button");
    close.textContent = "✕";
    close.ariaLabel = close.title = "Fechar";
    close.tabIndex = -1;
    close.addEventListener("click", () => this.#close());
    header.append(this.#title, close);
    let from = { x: 0, y: 0 };
    header.addEventListener("pointerdown", (event) => {
      if (event.isPrimary && event.button === 0 && event.target !== close) {
        header.setPointerCapture(event.pointerId);
        from = { x: event.clientX, y: event.clientY };
      }
    });
    header.addEventListener("pointermove", (event) => {
      if (header.hasPointerCapture(event.pointerId)) {
        this.#moved.x += (event.clientX - from.x) / this.view.screen.zoom;
        this.#moved.y += (event.clientY - from.y) / this.view.screen.zoom;
        from = { x: event.clientX, y: event.clientY };
        this.place();
      }
    });
    return header;
  }

  /** @param {Tree[]} children @param {HTMLElement} parent */
  #add(children, parent) {
    for (const state of children) {
      const control = new ControlView(state, this);
      this.#controls.set(state.number, control);
      parent.append(control.element);
      this.#add(state.children, control.element);
      control.place(this.view.screen);
      control.show(state, this.view.screen);
    }
  }

  /** Takes the place for the window as it is now. */
  place() {
    const { screen } = this.view;
    const { left, top, width, height } = this.state;
    const above = TitleHeight + (this.#bar === null ? 0 : BarHeight);
    // The title bar can always be reached.
    const within = (/** @type {number} */ at, /** @type {number} */ most) =>
      Math.max(0, Math.min(at, most));
    this.#moved.x = within(left + this.#moved.x + width / 2, LayoutWidth) - left - width / 2;
    this.#moved.y = within(top - above + this.#moved.y, LayoutHeight - above) - top + above;
    const { style } = this.section;
    style.left = screen.length(left + this.#moved.x);
    style.top = screen.length(top - above + this.#moved.y);
    style.width = screen.length(width);
    style.height = screen.length(height + above);
    this.#client.style.top = screen.length(above);
    this.#client.style.height = screen.length(height);
  }

  /** Takes another size with all its controls. */
  fit() {
    this.place();
    for (const control of this.#controls.values()) {
      control.place(this.view.screen);
      control.show(control.state, this.view.screen);
    }
  }
}

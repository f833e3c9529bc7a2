// The menu bar of a page, for mouse, touch and keys: F10 opens its first menu, Alt with a letter
// the menu of that letter, and arrows move in it.

export class MenuBar {
  element = document.createElement("div");
  #bar = document.createElement("div");
  /** @type {{button: HTMLButtonElement, menu: HTMLElement | null}[]} */
  #items = [];
  #choose;
  #leave;

  /**
   * @param {MenuState[]} items
   * @param {(number: number) => void} choose does what an item is for
   * @param {() => void} leave gives the keyboard back to the page
   */
  constructor(items, choose, leave) {
    this.#choose = choose;
    this.#leave = leave;
    this.element.className = "bar";
    this.#bar.role = "menubar";
    this.element.append(this.#bar);
    for (const item of items) {
      this.#items.push(this.#add(item));
    }
    // Safari would take the keyboard away from an item that is pressed, and so close the menu.
    this.element.addEventListener("mousedown", (event) => event.preventDefault());
    this.element.addEventListener("keydown", (event) => this.#key(event));
    this.element.addEventListener("focusout", (event) => {
      if (!this.element.contains(/** @type {Node | null} */ (event.relatedTarget))) {
        this.#close();
      }
    });
    this.#items[0].button.tabIndex = 0;
  }

  /** Opens the first menu. */
  open() {
    this.#open(0);
  }

  /** Opens the menu of a letter, or does what its item is for. @param {string} letter */
  press(letter) {
    const index = this.#items.findIndex((item) => item.button.dataset.letter === letter);
    if (index < 0) {
      return false;
    }
    this.#items[index].menu === null ? this.#items[index].button.click() : this.#open(index);
    return true;
  }

  /** @param {MenuState} item */
  #add(item) {
    const button = this.#bar.appendChild(menuItem(item));
    if (item.items.length === 0) {
      button.addEventListener("click", () => this.#done(item.number));
      return { button, menu: null };
    }
    const menu = this.element.appendChild(document.createElement("div"));
    menu.role = "menu";
    menu.ariaLabel = button.textContent;
    menu.hidden = true;
    button.ariaHasPopup = "menu";
    button.ariaExpanded = "false";
    for (const inner of item.items) {
      const choice = menu.appendChild(menuItem(inner));
      choice.addEventListener("click", () => this.#done(inner.number));
    }
    button.addEventListener("click", () => {
      menu.hidden ? this.#open(this.#items.findIndex((each) => each.menu === menu)) : this.#leave();
    });
    return { button, menu };
  }

  /** @param {number} number */
  #done(number) {
    this.#close();
    this.#leave();
    this.#choose(number);
  }

  #close() {
    for (const { button, menu } of this.#items) {
      if (menu !== null) {
        menu.hidden = true;
        button.ariaExpanded = "false";
      }
    }
  }

  /** @param {number} index */
  #open(index) {
    this.#close();
    const { button, menu } = this.#items[index];
    if (menu === null) {
      button.focus();
      return;
    }
    menu.style.left = `${button.offsetLeft}px`;
    menu.hidden = false;
    button.ariaExpanded = "true";
    choicesOf(menu)[0].focus();
  }

  /** @param {KeyboardEvent} event */
  #key(event) {
    const target = /** @type {HTMLButtonElement} */ (event.target);
    const at = this.#items.findIndex(
      ({ button, menu }) => button === target || menu?.contains(target),
    );
    if (at < 0 || event.altKey || event.ctrlKey) {
      return;
    }
    const { button, menu } = this.#items[at];
    const choices = menu === null || menu.hidden ? [] : choicesOf(menu);
    const choice = choices.indexOf(target);
    const letter = event.key.toLowerCase();
    const sideways = (/** @type {number} */ by) => {
      const next = (at + by + this.#items.length) % this.#items.length;
      choices.length > 0 ? this.#open(next) : this.#items[next].button.focus();
    };
    const updown = (/** @type {number} */ to) => {
      const { length } = choices;
      length === 0 ? this.#open(at) : choices[(to + length) % length].focus();
    };
    const inMenu = choices.find((each) => each.dataset.letter === letter);
    if (event.key === "ArrowRight") {
      sideways(1);
    } else if (event.key === "ArrowLeft") {
      sideways(-1);
    } else if (event.key === "ArrowDown") {
      updown(choice + 1);
    } else if (event.key === "ArrowUp") {
      updown(choice < 0 ? -1 : choice - 1);
    } else if (event.key === "Home" || event.key === "End") {
      updown(event.key === "Home" ? 0 : -1);
    } else if (event.key === "Escape") {
      this.#close();
      choices.length > 0 && choice >= 0 ? button.focus() : this.#leave();
    } else if (inMenu !== undefined) {
      inMenu.click();
    } else if (choices.length > 0 || !this.press(letter)) {
      return;
    }
    event.preventDefault();
    event.stopPropagation();
  }
}

/** @param {MenuState} item */
function menuItem(item) {
  const button = document.createElement("button");
  button.role = "menuitem";
  button.tabIndex = -1;
  button.dataset.name = item.name;
  button.dataset.letter = item.letter.toLowerCase();
  const letter = document.createElement("span");
  letter.className = "letter";
  letter.textContent = item.letter;
  button.append(item.before, letter, item.after);
  return button;
}

/** @param {HTMLElement} menu @returns {HTMLButtonElement[]} */
function choicesOf(menu) {
  return [...menu.querySelectorAll("button")];
}

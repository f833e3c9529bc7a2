// The boxes that stand before a page until the user closes them.

/**
 * Shows a box, and resolves with the value of the button that the user chose, or "".
 * @param {string} title
 * @param {(Node | string)[]} content
 * @param {[text: string, value: string][]} buttons the first is what the return key chooses
 * @returns {Promise<string>}
 */
function ask(title, content, buttons) {
  const dialog = document.createElement("dialog");
  const heading = dialog.appendChild(document.createElement("h2"));
  heading.textContent = title;
  heading.id = "title-of-box";
  dialog.setAttribute("aria-labelledby", heading.id);
  dialog.append(...content);
  const row = dialog.appendChild(document.createElement("div"));
  row.className = "buttons";
  for (const [text, value] of buttons) {
    const button = row.appendChild(document.createElement("button"));
    button.textContent = text;
    button.autofocus = value === buttons[0][1];
    button.addEventListener("click", () => dialog.close(value));
  }
  dialog.addEventListener("keydown", (event) => {
    if (event.key === "Enter" && event.target instanceof HTMLInputElement) {
      event.preventDefault(); // or else what gets the keyboard now takes it
      dialog.close(buttons[0][1]);
    }
  });
  return new Promise((resolve) => {
    dialog.addEventListener("close", () => {
      dialog.remove();
      resolve(dialog.returnValue);
    });
    document.body.append(dialog);
    dialog.showModal();
  });
}

/** @param {string} text @param {boolean} information @param {string} title */
export async function showBox(text, information, title) {
  const words = document.createElement("p");
  words.textContent = text;
  words.classList.toggle("information", information);
  await ask(title, [words], [["OK", "ok"]]);
}

const Channels = ["Vermelho", "Verde", "Azul"];

/**
 * Lets the user choose a colour, 0xRRGGBB; -1 when the user cancels. The browser's own chooser
 * would speak the browser's language.
 * @param {number} now
 */
export async function chooseColor(now) {
  const shown = document.createElement("div");
  shown.className = "chosen";
  shown.role = "img";
  /** @type {HTMLInputElement[]} */
  const sliders = [];
  const color = () => sliders.reduce((sum, slider) => sum * 256 + slider.valueAsNumber, 0);
  const show = () => {
    shown.style.background = inHex(color());
    shown.ariaLabel = `Cor escolhida: ${inWords(color())}`;
  };
  const set = (/** @type {number} */ color) => {
    sliders.forEach((slider, i) => (slider.valueAsNumber = channel(color, i)));
    show();
  };
  const rows = Channels.map((name) => {
    const row = document.createElement("label");
    row.className = "channel";
    const slider = document.createElement("input");
    slider.type = "range";
    slider.max = "255";
    slider.addEventListener("input", show);
    sliders.push(slider);
    row.append(name, slider);
    return row;
  });
  const basic = document.createElement("div");
  basic.className = "basic";
  basic.role = "group";
  basic.ariaLabel = "Cores básicas";
  for (const each of basicColors()) {
    const button = basic.appendChild(document.createElement("button"));
    button.style.background = inHex(each);
    button.ariaLabel = button.title = inWords(each);
    button.addEventListener("click", () => set(each));
  }
  set(now);
  const answer = await ask(
    "Escolher a cor",
    [basic, ...rows, shown],
    [
      ["OK", "ok"],
      ["Cancelar", ""],
    ],
  );
  return answer === "ok" ? color() : -1;
}

// All mixtures of four steps of red and green and three of blue.
function basicColors() {
  const colors = [];
  for (const green of [0, 85, 170, 255]) {
    for (const blue of [0, 127, 255]) {
      for (const red of [0, 85, 170, 255]) {
        colors.push((red << 16) | (green << 8) | blue);
      }
    }
  }
  return colors;
}

/** @param {number} color @param {number} index of Channels */
function channel(color, index) {
  return (color >> (16 - 8 * index)) & 255;
}

/** @param {number} color */
function inHex(color) {
  return `#${color.toString(16).padStart(6, "0")}`;
}

/** @param {number} color */
function inWords(color) {
  return Channels.map((name, i) => `${name.toLowerCase()} ${channel(color, i)}`).join(", ");
}

/**
 * The quiet screen at the end, with a button that starts the program again.
 * @param {string} words
 */
export function showEnd(words) {
  const end = document.createElement("main");
  end.className = "end";
  const heading = end.appendChild(document.createElement("h1"));
  heading.textContent = "Clinorama";
  end.appendChild(document.createElement("p")).textContent = words;
  const again = end.appendChild(document.createElement("button"));
  again.textContent = "Iniciar de novo";
  again.addEventListener("click", () => location.reload());
  document.body.replaceChildren(end);
  again.focus();
}

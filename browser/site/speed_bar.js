// A slider with arrows at its ends that tells when the user holds it, by mouse, pen, finger or key,
// and when the user lets go of it.

const MovingKeys = /^(Arrow(Left|Right|Up|Down)|Home|End|Page(Up|Down))$/;

/**
 * @param {number} steps
 * @param {(step: number) => void} scroll
 * @param {(held: boolean) => void} hold
 */
export function makeSpeedBar(steps, scroll, hold) {
  const element = document.createElement("div");
  element.className = "speed";
  const input = document.createElement("input");
  input.type = "range";
  input.max = `${steps}`;

  let held = false;
  const setHeld = (/** @type {boolean} */ now) => {
    if (held !== now) {
      held = now;
      hold(now);
    }
  };
  const show = (/** @type {number} */ step) => {
    input.valueAsNumber = step;
    input.setAttribute("aria-valuetext", `${step} de ${steps}`);
  };
  const move = (/** @type {number} */ by) => {
    show(Math.min(steps, Math.max(0, input.valueAsNumber + by)));
    scroll(input.valueAsNumber);
  };
  const arrow = (/** @type {string} */ sign, /** @type {number} */ by) => {
    const button = document.createElement("button");
    button.textContent = sign;
    button.tabIndex = -1;
    button.ariaHidden = "true";
    button.addEventListener("mousedown", (event) => {
      event.preventDefault();
      input.focus();
    });
    button.addEventListener("click", () => move(by));
    return button;
  };
  element.append(arrow("◂", -1), input, arrow("▸", 1));

  input.addEventListener("input", () => move(0));
  element.addEventListener("pointerdown", (event) => {
    if (event.button !== 0 || input.matches(":disabled")) {
      return;
    }
    setHeld(true);
    // Wherever the pointer is by then.
    const over = new AbortController();
    for (const type of ["pointerup", "pointercancel"]) {
      const release = () => {
        over.abort();
        setHeld(false);
      };
      addEventListener(type, release, { signal: over.signal });
    }
  });
  input.addEventListener("keydown", (event) => {
    if (MovingKeys.test(event.key)) {
      setHeld(true);
    }
  });
  input.addEventListener("keyup", () => setHeld(false));
  input.addEventListener("blur", () => setHeld(false));
  return { element, input, show, letGo: () => setHeld(false) };
}

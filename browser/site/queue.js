// What the user did, until the program takes it, and the program's waits. Only the program delivers
// events; here they are put down, with numbers that the program knows.

// As in document.h.
export const EventKind = {
  Click: 0,
  DoubleClick: 1,
  Type: 2,
  Scroll: 3,
  Hold: 4,
  Close: 5,
  Activate: 6,
  Fit: 7,
};

export class Queue {
  /** @type {{kind: number, number: number, value: number, text: string}[]} */
  #events = [];
  /** @type {(() => void) | null} */
  #wake = null;
  #ended = false;
  #frameDue = true;
  // Browsers stretch timers that timers have set, but not messages.
  #channel = new MessageChannel();

  /** @param {number} kind @param {number} number @param {number} value @param {string} text */
  put(kind, number, value = 0, text = "") {
    if (!this.#ended) {
      this.#events.push({ kind, number, value, text });
      this.#wake?.();
    }
  }

  take() {
    return this.#events.shift();
  }

  /** Forgets what was pressed. */
  dropPresses() {
    const { Click, DoubleClick, Close } = EventKind;
    this.#events = this.#events.filter(({ kind }) => ![Click, DoubleClick, Close].includes(kind));
  }

  /** Whether something that the user did to a control waits. @param {number} number */
  holds(number) {
    return this.#events.some((event) => event.number === number);
  }

  /** The program has ended: nothing wakes it. */
  end() {
    this.#ended = true;
    this.#wake = null;
  }

  /** Resumes when the time is over or an event comes. @param {number} milliseconds */
  turn(milliseconds) {
    if (milliseconds <= 0 || this.#events.length > 0) {
      return this.#message();
    }
    /** @type {Promise<void>} */
    const over = new Promise((resolve) => {
      const timer = setTimeout(resolve, milliseconds);
      this.#wake = () => {
        clearTimeout(timer);
        resolve();
      };
    });
    return over.then(() => this.#resume());
  }

  /** Resumes when there is an event. */
  async event() {
    if (this.#events.length === 0) {
      await new Promise((resolve) => {
        this.#wake = () => resolve(undefined);
      });
    }
    return this.#resume();
  }

  /** Resumes when the screen has shown a frame, or when nothing is to be seen. */
  async frame() {
    if (!document.hidden) {
      await new Promise((resolve) => {
        requestAnimationFrame(resolve);
        document.onvisibilitychange = resolve;
      });
    }
    return this.#resume();
  }

  /** Whether the screen has shown a frame since this was true. */
  isFrameDue() {
    const due = this.#frameDue;
    if (due) {
      this.#frameDue = false;
      requestAnimationFrame(() => (this.#frameDue = true));
    }
    return due;
  }

  #resume() {
    this.#wake = null;
    return this.#message();
  }

  /** @returns {Promise<void>} */
  #message() {
    return new Promise((resolve) => {
      this.#channel.port1.onmessage = () => {
        if (!this.#ended) {
          resolve();
        }
      };
      this.#channel.port2.postMessage(0);
    });
  }
}

import start from "./clinorama.js";
import { setWords } from "./controls.js";
import { View } from "./view.js";

// Starts the program when all is there that its first page needs, and shows how it has ended.

const Fonts = ['16px "DejaVu Sans"', 'bold 16px "DejaVu Sans"', 'bold 16px "Comic Neue"'];

const view = new View();

const fail = (/** @type {unknown} */ reason) => {
  console.error(reason);
  view.end("O programa parou por causa de um erro. Pode iniciá-lo de novo.");
};
addEventListener("error", (event) => fail(event.error ?? event.message));
addEventListener("unhandledrejection", (event) => fail(event.reason));

// Some schools let no fonts through: then the browser's own must do.
const fonts = Promise.allSettled(Fonts.map((font) => document.fonts.load(font)));
setWords(await (await fetch("words.json")).json());
await fonts;
await start({ view, onAbort: fail });

try {
  await navigator.serviceWorker.register("worker.js");
} catch (reason) {
  console.warn(reason); // as without a secure connection: the program runs all the same
}

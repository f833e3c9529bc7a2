// The built program in a real browser: what only a browser can break. The rules of the program are
// tested where they are, without one. tests/browser/run runs this; CLINORAMA_SURFACES is the folder
// of what surfaces.cpp writes.
import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { after, afterEach, before, test } from "node:test";
import { setTimeout as sleep } from "node:timers/promises";
import { launch, Program, serve } from "./browser.mjs";

let browser;
let site;
let program;

before(async () => {
  [browser, site] = await Promise.all([launch(), serve()]);
});
after(async () => {
  await browser.close();
  site.close();
});
afterEach(async () => {
  const { errors } = program;
  await program.close();
  assert.deepEqual(errors, []);
});

async function start(options) {
  program = await Program.open(browser, site.url, options);
}

async function startOnWorkPage(options) {
  await start(options);
  await program.choose("Form2", "Clinorama");
  await program.pageOf("Form12").waitFor();
}

const control = (...names) => program.control(...names);
const free = (form, name) => control(form, name).and(program.page.locator(":enabled"));
const press = (key) => program.page.keyboard.press(key);

/** The name of the control that has the keyboard; "" for the empty ground of a page. */
const holder = () =>
  program.page.evaluate(() => {
    const control = document.activeElement.closest("[data-name]:not(section)");
    return control?.dataset.name ?? "";
  });

async function plot() {
  await control("Form12", "DesenharGráfico").click();
  await control("Form12", "Picture2").waitFor({ state: "hidden" });
}

/** Moves the bar of a page to its quick end. */
async function hurry(form) {
  await control(form, "HScroll1").locator("input").focus();
  await press("End");
}

/** A print of what a page's first surface shows. */
const surface = (form) =>
  control(form, "Picture1")
    .locator("canvas")
    .evaluate((canvas) => {
      const { data } = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height);
      return data.reduce((print, byte) => (print * 31 + byte) % 1_000_000_007, 7);
    });

async function goesOn(form) {
  const before = await surface(form);
  await sleep(150);
  return (await surface(form)) !== before;
}

const expectMotion = async (form) => assert.ok(await goesOn(form), "the motion stands still");

async function expectStandstill(form) {
  await sleep(50);
  assert.ok(!(await goesOn(form)), "the motion goes on");
}

test("surfaces look as on the desktop", async () => {
  // Letters look different on each system.
  await startOnWorkPage({
    prepare: () => (CanvasRenderingContext2D.prototype.fillText = () => {}),
  });
  const expectSurface = async (form, name, file) => {
    const expected = await readFile(`${process.env.CLINORAMA_SURFACES}/${file}.rgb`);
    const drawn = await control(form, name)
      .locator("canvas")
      .evaluate((canvas) => {
        const { data } = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height);
        const bytes = [...data].filter((_, at) => at % 4 !== 3);
        return bytes.map((byte) => String.fromCharCode(byte)).join("");
      });
    const pixels = Buffer.from(drawn, "latin1");
    let different = 0;
    assert.equal(pixels.length, expected.length, file);
    for (let at = 0; at < pixels.length; at += 3) {
      different += [0, 1, 2].some((i) => pixels[at + i] !== expected[at + i]);
    }
    // The mathematics of another system differs in the last bit.
    assert.ok(different <= pixels.length / 3 / 1000, `${file}: ${different} pixels differ`);
  };
  await plot();
  await hurry("Form12");
  for (const side of ["DerivadaEsquerda", "DerivadaDireita"]) {
    await control("Form12", side).click();
    await free("Form12", "Calcular").waitFor();
  }
  const { page } = program;
  await page.locator("#announcer").getByText(/Valor da derivada à direita: 1,62$/).waitFor();
  await expectSurface("Form12", "Picture1", "derivatives");
  await control("Form12", "Calcular").click();
  await free("Form12", "Calcular").waitFor({ timeout: 30_000 });
  await expectSurface("Form12", "Picture1", "sweep");
  await control("Form12", "Relacionar").click();
  for (const button of [
    "DesenharGráfico",
    "ColocarCoresFunção",
    "DesenharPrimeira",
    "ColocarCoresPrimeira1",
    "DesenharSegunda",
  ]) {
    await control("Form13", button).click();
  }
  // What the user does next comes when all that is done.
  await control("Form13", "CorSegunda").dblclick();
  const box = page.locator("dialog");
  await box.waitFor();
  for (const number of [1, 3, 5]) {
    await expectSurface("Form13", `Picture1(${number})`, `relations_${number}`);
  }
  await press("Escape");
  await sleep(100);
  assert.equal(await box.count(), 0, "the second press came before the box");
});

test("a sweep pauses, and the keyboard resumes it", async () => {
  await startOnWorkPage();
  await plot();
  await control("Form12", "Calcular").focus();
  await press("Enter");
  await expectMotion("Form12");
  assert.equal(await holder(), "", "where Calcular is locked");
  await control("Form12", "Parar1").focus();
  await press("Space");
  await control("Form12", "Continuar1").waitFor();
  assert.equal(await holder(), "Continuar1");
  await expectStandstill("Form12");
  await press("Space");
  await expectMotion("Form12");
  assert.equal(await holder(), "Parar1");
});

test("a held bar holds the motion", async () => {
  await startOnWorkPage();
  await plot();
  await control("Form12", "Calcular").click();
  const { page } = program;
  const bar = await control("Form12", "HScroll1").locator("input").boundingBox();
  await page.mouse.move(bar.x + bar.width / 2, bar.y + bar.height / 2);
  await page.mouse.down();
  await expectStandstill("Form12");
  await page.mouse.move(bar.x + bar.width / 2, bar.y + 100);
  await page.mouse.up();
  await expectMotion("Form12");
  await page.keyboard.down("ArrowLeft");
  await expectStandstill("Form12");
  await page.keyboard.up("ArrowLeft");
  await expectMotion("Form12");
});

test("a finger holds the motion, and two zoom", async () => {
  await startOnWorkPage({ hasTouch: true, isMobile: true });
  const { context, page } = program;
  const session = await context.newCDPSession(page);
  const touch = (type, ...touchPoints) =>
    session.send("Input.dispatchTouchEvent", { type, touchPoints });
  await plot();
  await control("Form12", "Calcular").tap();
  const bar = await control("Form12", "HScroll1").locator("input").boundingBox();
  await touch("touchStart", { x: bar.x + bar.width / 2, y: bar.y + bar.height / 2 });
  await expectStandstill("Form12");
  await touch("touchCancel");
  await expectMotion("Form12");
  const { x, y } = await program.pageOf("Form12").boundingBox();
  const two = (apart) => [-apart, apart].map((by, id) => ({ x: 300 + by, y: y + 10, id }));
  await touch("touchStart", ...two(40));
  for (const apart of [60, 80, 100]) {
    await touch("touchMove", ...two(apart));
  }
  await touch("touchEnd");
  await page.waitForFunction(() => visualViewport.scale > 1.2);
  const left = await program.pageOf("Form12").evaluate((section) => parseFloat(section.style.left));
  assert.ok(Math.abs(left - x) < 40, "the page was dragged away");
});

test("a page closes in a pause inside a motion", async () => {
  await startOnWorkPage();
  await plot();
  await control("Form12", "Calcular").click();
  await control("Form12", "Parar1").click();
  await control("Form12", "Continuar1").waitFor();
  await program.closePage("Form12");
  await program.pageOf("Form12").waitFor({ state: "detached" });
  await program.choose("Form2", "Clinorama");
  await plot();
});

test("clicks nest in a motion of the lesson, and all of them end with it", async () => {
  await start();
  await program.choose("Form2", "Conceito de derivada");
  await hurry("Form9");
  for (let turned = 0; turned < 23; ++turned) {
    await free("Form9", "Seguinte").click();
    await control("Form9", "Label3").getByText(`${turned + 1}`, { exact: true }).waitFor();
  }
  // Page 23 lets the user turn pages in its motion.
  await control("Form9", "HScroll1").locator("input").focus();
  await press("Home");
  for (let nested = 0; nested < 5; ++nested) {
    await free("Form9", "Anterior").click();
    await control("Form9", "Label3").getByText("22", { exact: true }).waitFor();
    await free("Form9", "Seguinte").click();
    await control("Form9", "Label3").getByText("23", { exact: true }).waitFor();
  }
  await expectMotion("Form9");
  await program.closePage("Form9");
  await program.pageOf("Form9").waitFor({ state: "detached" });
  await program.choose("Form2", "Conceito de derivada");
  await control("Form9", "Label3").getByText("0", { exact: true }).waitFor();
});

test("boxes wait for the user", async () => {
  await startOnWorkPage();
  const box = program.page.locator("dialog");
  await control("Form12", "Calcular").click();
  await box.getByText("Deve desenhar primeiro o gráfico da função.").waitFor();
  await press("Enter");
  await box.waitFor({ state: "detached" });
  assert.equal(await holder(), "Calcular");
  const ground = () =>
    control("Form12", "Picture1")
      .locator("canvas")
      .evaluate((canvas) => [...canvas.getContext("2d").getImageData(5, 5, 1, 1).data]);
  await control("Form12", "CorFundo").click();
  const yellow = box.getByLabel("vermelho 255, verde 255, azul 0", { exact: true });
  await yellow.click();
  await box.getByText("Cancelar").click();
  await box.waitFor({ state: "detached" });
  assert.deepEqual(await ground(), [255, 255, 255, 255]);
  await control("Form12", "CorFundo").click();
  await yellow.click();
  await box.getByText("OK").click();
  await box.waitFor({ state: "detached" });
  assert.deepEqual(await ground(), [255, 255, 0, 255]);
});

test("a page fits the window in the middle of a motion", async () => {
  await startOnWorkPage();
  await plot();
  await control("Form12", "Calcular").click();
  await program.page.setViewportSize({ width: 768, height: 1024 });
  await expectMotion("Form12");
  const page = await program.pageOf("Form12").boundingBox();
  assert.ok(page.x >= 0 && page.width <= 768, "the page is cut off");
  assert.ok(page.width > 700, "the page is small");
  assert.equal(await control("Form12", "Função1").inputValue(), "x*(1-cos(x))/2");
  // As many pixels as the screen has there, when the size has come to rest.
  const picture = control("Form12", "Picture1");
  const width = Math.round((await picture.boundingBox()).width);
  await picture.locator(`canvas[width="${width}"]`).waitFor();
});

test("keys and presses do what they do on the desktop", async () => {
  await start();
  await press("F10");
  await press("ArrowRight");
  await press("Enter"); // Conceito de derivada
  await program.pageOf("Form9").waitFor();
  await press("PageDown");
  await control("Form9", "Label3").getByText("1", { exact: true }).waitFor();
  await program.page.locator("#announcer").getByText(/derivada/).waitFor();
  await press("Control+w");
  await program.pageOf("Form9").waitFor({ state: "detached" });
  await press("Alt+l"); // Clinorama
  await control("Form12", "Exemplos").click();
  await program.pageOf("Form5").waitFor();
  assert.ok(await program.pageOf("Form12").evaluate((page) => page.inert));
  // A press on a page behind another one, which is a click only where it ends on the same control.
  const radians = control("Form12", "EixosRad");
  const { x, y, width } = await radians.boundingBox();
  const { mouse } = program.page;
  await mouse.move(x + width - 5, y + 20);
  await mouse.down();
  await mouse.move(x + width - 5, y + 120);
  await mouse.up();
  await radians.getByText("Radianos").waitFor();
  await control("Form12", "Exemplos").click();
  await program.pageOf("Form5").and(program.page.locator(":not([inert])")).waitFor();
  await mouse.click(x + width - 5, y + 20);
  await radians.getByText("Unidades").waitFor();
  assert.equal(await holder(), "EixosRad");
  const close = program.pageOf("Form12").getByRole("menuitem", { name: "Fechar esta página" });
  await program.choose("Form12", "Ficheiro");
  await close.waitFor();
  await control("Form12", "Picture1").click();
  await close.waitFor({ state: "hidden" });
  assert.equal(await holder(), "EixosRad");
  await press("Alt+f"); // Ficheiro
  await press("f"); // Fechar esta página
  await program.pageOf("Form12").waitFor({ state: "detached" });
  await press("Escape");
  await program.pageOf("Form5").waitFor({ state: "detached" });
});

test("the program ends, and starts again", async () => {
  await startOnWorkPage();
  await plot();
  await control("Form12", "Calcular").click();
  await program.choose("Form12", "Ficheiro", "Abandonar o programa");
  await program.page.getByText("O programa terminou.").waitFor();
  await program.page.getByRole("button", { name: "Iniciar de novo" }).click();
  await program.pageOf("Form2").waitFor();
});

test("an error ends the program with a sentence", async () => {
  await startOnWorkPage();
  await program.page.evaluate(() => setTimeout(() => Promise.reject(new Error("made up"))));
  await program.page.getByText("O programa parou por causa de um erro.").waitFor();
  assert.match(program.errors.join(), /made up/);
  program.errors = [];
});

test("the program works without a network", async () => {
  const own = await serve();
  program = await Program.open(browser, own.url);
  const { page } = program;
  await page.evaluate(async () => {
    const { active } = await navigator.serviceWorker.ready;
    if (active.state !== "activated") {
      await new Promise((resolve) => active.addEventListener("statechange", resolve));
    }
  });
  own.close();
  const expectPicture = async (item, form) => {
    await program.choose("Form2", item);
    const picture = program.pageOf(form).locator(".image:visible > img");
    await picture.evaluate((image) => image.decode());
    assert.ok((await program.pageOf(form).getByRole("document").textContent()).length > 100);
  };
  await expectPicture("Sintaxe", "Form3"); // in the tab of the first visit too
  await page.reload();
  await expectPicture("Instruções", "Form6");
});

test("assistive technology finds its way on each page", async () => {
  await start();
  const { page } = program;
  await page.evaluate(
    await readFile(new URL("node_modules/axe-core/axe.min.js", import.meta.url), "utf8"),
  );
  const scan = async (what) => {
    const { violations } = await page.evaluate(() => axe.run());
    const told = violations.map(({ id, nodes }) => `${id}: ${nodes.map(({ html }) => html)}`);
    assert.deepEqual(told, [], what);
  };
  await scan("Form2");
  for (const [item, form] of [
    ["Instruções", "Form6"],
    ["Comentários", "Form11"],
    ["Sintaxe", "Form3"],
    ["Funções definidas", "Form4"],
    ["Conceito de derivada", "Form9"],
    ["Clinorama", "Form12"],
  ]) {
    await program.choose("Form2", item);
    await program.pageOf(form).waitFor();
    await scan(form);
    if (form !== "Form12") {
      await program.closePage(form);
    }
  }
  await control("Form12", "Exemplos").click();
  await program.pageOf("Form5").waitFor();
  await scan("Form5");
  await press("Escape");
  await control("Form12", "Calcular").click();
  await page.locator("dialog").waitFor();
  await scan("a box");
  await press("Escape");
  await control("Form12", "CorFundo").click();
  await page.locator("dialog").waitFor();
  await scan("the chooser");
  await press("Escape");
  await control("Form12", "Relacionar").click();
  await program.pageOf("Form13").waitFor();
  await scan("Form13");
});

// Opens the built program in Debian's Chromium, and finds its pages and controls by their names.
import { createReadStream } from "node:fs";
import { stat } from "node:fs/promises";
import { createServer } from "node:http";
import { extname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { chromium } from "playwright-core";

const Site = fileURLToPath(new URL("../../build/browser", import.meta.url));
const Types = {
  ".css": "text/css",
  ".html": "text/html",
  ".js": "text/javascript",
  ".json": "application/json",
  ".svg": "image/svg+xml",
  ".wasm": "application/wasm",
};
const Arguments = [
  "--no-sandbox",
  "--disable-gpu",
  "--disable-quic",
  "--no-first-run",
  "--disable-background-networking",
  "--disable-component-update",
  "--disable-sync",
];

/** Serves the built folder on a free port; `close` ends it. */
export async function serve() {
  const server = createServer(async (request, response) => {
    const path = decodeURI(new URL(request.url, "http://localhost").pathname);
    const file = join(Site, path.endsWith("/") ? `${path}index.html` : path);
    const found = await stat(file).catch(() => null);
    response.writeHead(found ? 200 : 404, {
      "content-type": Types[extname(file)] ?? "application/octet-stream",
    });
    found ? createReadStream(file).pipe(response) : response.end();
  });
  await new Promise((resolve) => server.listen(0, "localhost", resolve));
  const close = () => {
    server.close();
    server.closeAllConnections();
  };
  return { url: `http://localhost:${server.address().port}/`, close };
}

// Each context has a profile of its own that is gone afterwards.
export const launch = () =>
  chromium.launch({ executablePath: "/usr/bin/chromium", args: Arguments });

/** The program in a window of its own. */
export class Program {
  /** Opens it; `prepare` runs in the document before all else. */
  static async open(browser, url, { prepare, ...options } = {}) {
    const context = await browser.newContext({
      viewport: { width: 1024, height: 768 },
      ...options,
    });
    const program = new Program(context, await context.newPage());
    if (prepare) {
      await program.page.addInitScript(prepare);
    }
    await program.page.goto(url);
    await program.pageOf("Form2").waitFor();
    return program;
  }

  errors = [];

  constructor(context, page) {
    this.context = context;
    this.page = page;
    page.setDefaultTimeout(10_000);
    page.on("pageerror", (error) => this.errors.push(error.stack));
    page.on("console", (message) => {
      if (message.type() === "error") {
        this.errors.push(message.text());
      }
    });
  }

  pageOf(form) {
    return this.page.locator(`section[data-name="${form}"]:visible`);
  }

  control(form, name) {
    return this.pageOf(form).locator(`.client [data-name="${name}"]`);
  }

  async choose(form, ...items) {
    for (const item of items) {
      await this.pageOf(form).getByRole("menuitem", { name: item, exact: true }).click();
    }
  }

  /** By the close button of its title bar. */
  closePage(form) {
    return this.pageOf(form).locator("header button").click();
  }

  close() {
    return this.context.close();
  }
}

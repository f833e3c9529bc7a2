#!/usr/bin/python3
"""Puts the program for a browser into a folder that any web server can serve:

  /usr/bin/python3 browser/make_site.py COMPILED FOLDER

COMPILED is the folder of the preset "wasm", when it has been built. The folder is made anew. The
fonts come from Debian's packages.
"""
import hashlib
import json
import shutil
import subprocess
import sys
from pathlib import Path

root = Path(__file__).resolve().parent.parent
site = root / "browser" / "site"
resources = root / "resources"

# The signs of the program's texts: Latin, Greek, superscripts, arrows, mathematics, shapes.
SIGNS = ("U+20-7E,U+A0-17F,U+370-3FF,U+2010-2026,U+2032,U+2070-209F,U+2190-2193,U+2200-226F,"
         "U+25A0-25FF,U+2715")
FONTS = {
    "/usr/share/fonts/truetype/dejavu": ["DejaVuSans.ttf", "DejaVuSans-Bold.ttf"],
    "/usr/share/fonts/opentype/comic-neue": ["ComicNeue-Bold.otf"],
}
ICON_SIZES = [180, 192, 512]


def run(*command):
    subprocess.run([str(part) for part in command], check=True)


def make_fonts(folder):
    folder.mkdir()
    for place, names in FONTS.items():
        for name in names:
            font = folder / Path(name).with_suffix(".woff2")
            run(sys.executable, "-m", "fontTools.subset", Path(place) / name,
                f"--unicodes={SIGNS}", "--flavor=woff2", f"--output-file={font}",
                "--layout-features=kern,liga", "--drop-tables+=FFTM")


def copy_pictures(source, folder):
    """Copies the pictures that pages name, and returns the words of those that show a text."""
    words = {}
    for picture in sorted(source.rglob("*.svg")):
        name = picture.relative_to(source)
        if name.is_relative_to("manual/graphs"):
            continue  # they are part of the manual's pages already
        (folder / name.parent).mkdir(parents=True, exist_ok=True)
        shutil.copyfile(picture, folder / name)
        text = picture.with_suffix(".txt")
        if text.exists():
            words[name.with_suffix("").as_posix()] = text.read_text(encoding="utf-8")
    return words


def name_files(folder):
    """Tells the worker which files there are; the version is a print of them all."""
    worker = folder / "worker.js"
    files = sorted(path for path in folder.rglob("*") if path.is_file() and path != worker)
    version = hashlib.sha256()
    for path in [worker, *files]:
        version.update(path.relative_to(folder).as_posix().encode())
        version.update(path.read_bytes())
    names = [path.relative_to(folder).as_posix() for path in files]
    names[names.index("index.html")] = "./"
    text = worker.read_text(encoding="utf-8")
    text = text.replace('"VERSION"', json.dumps("clinorama-" + version.hexdigest()[:12]))
    worker.write_text(text.replace('["FILES"]', json.dumps(names)), encoding="utf-8")


def main():
    compiled, folder = Path(sys.argv[1]), Path(sys.argv[2])
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    for path in site.iterdir():
        if path.name not in ("jsconfig.json", "types.d.ts"):
            shutil.copyfile(path, folder / path.name)
    for name in ("clinorama.js", "clinorama.wasm"):
        shutil.copyfile(compiled / "browser" / name, folder / name)
    make_fonts(folder / "fonts")
    words = copy_pictures(resources, folder / "resources")
    words |= copy_pictures(compiled / "generated" / "resources", folder / "resources")
    (folder / "words.json").write_text(json.dumps(words, ensure_ascii=False), encoding="utf-8")
    for size in ICON_SIZES:
        run("rsvg-convert", "-w", size, "-h", size, resources / "icons" / "clinorama.svg",
            "-o", folder / f"icon-{size}.png")
    name_files(folder)


main()

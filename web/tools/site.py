#!/usr/bin/env python3
"""Puts the browser front together: page, program, faces and pack in one folder of static files.

usage: site.py NATIVE_BUILD WEB_BUILD PACK SITE
"""
import gzip
import hashlib
import json
import os
import shutil
import subprocess
import sys
from pathlib import Path

PAGE = Path(__file__).resolve().parent.parent / "page"
PAGE_FILES = ("*.html", "*.css", "*.js", "*.webmanifest")
# Every letter that the program's bytes can show.
LETTERS = "U+0020-024F,U+0259,U+0283,U+028C,U+0292,U+014B,U+03B8,U+1EA0-1EF9,U+2000-206F,U+20AC,U+2122"


def face_files(build):
    """The faces that the desktop program carries along."""
    lines = (build / "CMakeCache.txt").read_text().splitlines()
    return [Path(line.split("=", 1)[1]) for line in lines
            if line.startswith("TALVORA_FONT_") and ":FILEPATH=" in line]


def put_fonts(build, site):
    (site / "fonts").mkdir(exist_ok=True)
    for face in face_files(build):
        out = site / "fonts" / (face.stem + ".woff2")
        if out.exists():
            continue
        subprocess.run(
            ["pyftsubset", face, f"--unicodes={LETTERS}", "--layout-features=kern", "--flavor=woff2",
             f"--output-file={out}"], check=True)


def put_pack(pack, site):
    """Each file compressed, with its content in its name, so that it can be kept for ever."""
    folder = site / "pack"
    folder.mkdir(exist_ok=True)
    entries = []
    for source in sorted(pack.iterdir()):
        if not source.is_file() or source.name in ("data.c", "data.Kcu", "Yes1"):
            continue
        content = source.read_bytes()
        name = f"{source.name}.{hashlib.sha256(content).hexdigest()[:12]}.gz"
        out = folder / name
        if not out.exists():
            out.write_bytes(gzip.compress(content, 9, mtime=0))
        entries.append({"name": source.name, "size": len(content), "file": name, "packed": out.stat().st_size})
    wanted = {entry["file"] for entry in entries}
    for old in folder.glob("*.gz"):
        if old.name not in wanted:
            old.unlink()
    (folder / "pack.json").write_text(json.dumps(entries))


def main():
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    native, web, pack, site = map(Path, sys.argv[1:])
    site.mkdir(parents=True, exist_ok=True)
    for pattern in PAGE_FILES:
        for source in PAGE.glob(pattern):
            if not source.name.startswith("eslint"):
                shutil.copy(source, site)
    for name in ("talvora.js", "talvora.wasm"):
        shutil.copy(web / "web" / "core" / name, site)
    assets = native / "web" / "assets" / "talvora-web-assets"
    measures = site / "faces.bin"
    if not measures.exists() or measures.stat().st_mtime < assets.stat().st_mtime:
        subprocess.run([assets, site], check=True, env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
    put_fonts(native, site)
    put_pack(pack, site)


main()

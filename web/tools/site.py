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
# When a file is fetched: ahead of the menu, behind it, last and only to be kept, or when it is wanted.
FIRST, LATE, KEPT, WANTED = range(4)
# The menu opens before the dictionary is there, which is most of the pack.
STAGES = {"data.avt": LATE, "data.mtd": LATE}
# Not for a browser: what is the learner's own, and what is for the compiler alone.
LEFT_OUT = ("data.c", "data.Kcu", "Yes1", "dictionary.made")
# The clearest voice is the one in use.
VOICES = {"slt": KEPT, "rms": WANTED, "awb": WANTED}
SPEECH_KBITS = "32"
# In the order of `Face`.
FACES = ("Lato-Regular", "Lato-Semibold", "Lato-Bold", "Lato-Italic", "Lato-SemiboldItalic",
         "texgyreschola-regular", "texgyreschola-bold")
# Every letter that the program's bytes can show.
LETTERS = "U+0020-024F,U+0259,U+0283,U+028C,U+0292,U+014B,U+03B8,U+1EA0-1EF9,U+2000-206F,U+20AC,U+2122"


def face_files(build):
    """The faces that the desktop program carries along."""
    lines = (build / "CMakeCache.txt").read_text().splitlines()
    return [Path(line.split("=", 1)[1]) for line in lines
            if line.startswith("TALVORA_FONT_") and ":FILEPATH=" in line]


def put_fonts(build, site):
    (site / "fonts").mkdir(exist_ok=True)
    style = ""
    faces = {face.stem: face for face in face_files(build)}
    for number, face in enumerate(faces[name] for name in FACES):
        style += f"@font-face {{ font-family: F{number}; src: url('{face.stem}.woff2'); }}\n"
        out = site / "fonts" / (face.stem + ".woff2")
        if out.exists():
            continue
        subprocess.run(
            ["pyftsubset", face, f"--unicodes={LETTERS}", "--layout-features=kern", "--flavor=woff2",
             f"--output-file={out}"], check=True)
    (site / "fonts" / "faces.css").write_text(style)


def voice_of(name, made):
    """A voice as flite reads it."""
    file = made / f"{name}.flitevox"
    if not file.exists():
        subprocess.run(["flite", "-voice", name, "-voicedump", file], check=True,
                       stdout=subprocess.DEVNULL)
    return file.read_bytes()


def recording_of(source, made):
    """A recording as it travels: a twelfth of its size, in time to the millisecond."""
    opus = made / f"{source.name}.opus"
    if not opus.exists() or opus.stat().st_mtime < source.stat().st_mtime:
        subprocess.run(["opusenc", "--quiet", "--speech", "--bitrate", SPEECH_KBITS, source, opus],
                       check=True)
    return opus.read_bytes()


def contents_of(pack, made):
    """What is fetched: a name, its stage, its bytes, and whether they are to be compressed."""
    for source in sorted(pack.iterdir()):
        if source.is_file() and source.name not in LEFT_OUT:
            yield source.name, STAGES.get(source.name, FIRST), source.read_bytes(), True
    for name, stage in VOICES.items():
        yield f"{name}.flitevox", stage, voice_of(name, made), True
    for source in sorted((pack / "sound").glob("*.wav")):
        yield f"sound/{source.name}", KEPT, recording_of(source, made), False


def put_pack(pack, site):
    """Each file with its content in its name, so that it can be kept for ever."""
    folder = site / "pack"
    made = site.with_name(site.name + "-made")
    for each in (folder, made):
        each.mkdir(exist_ok=True)
    entries = []
    for name, stage, content, packed in contents_of(pack, made):
        file = f"{name.replace('/', '-')}.{hashlib.sha256(content).hexdigest()[:12]}.bin"
        out = folder / file
        if not out.exists():
            out.write_bytes(gzip.compress(content, 9, mtime=0) if packed else content)
        entries.append({"name": name, "size": len(content), "file": file, "packed": out.stat().st_size,
                        "stage": stage})
    wanted = {entry["file"] for entry in entries}
    for old in folder.glob("*.bin"):
        if old.name not in wanted:
            old.unlink()
    (folder / "pack.json").write_text(json.dumps(entries))


def put_service(site):
    """The service worker knows the page's files and a version that changes with any of them."""
    files = sorted(str(path.relative_to(site)) for path in site.rglob("*")
                   if path.is_file() and path.name != "service.js" and path.parent.name != "pack")
    version = hashlib.sha256()
    for name in [*files, "pack/pack.json"]:
        version.update((site / name).read_bytes())
    script = (PAGE / "service.js").read_text()
    script = script.replace("@version@", version.hexdigest()[:12]).replace("@files@", " ".join(files))
    (site / "service.js").write_text(script)


def main():
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    native, web, pack, site = map(Path, sys.argv[1:])
    site.mkdir(parents=True, exist_ok=True)
    for pattern in PAGE_FILES:
        for source in PAGE.glob(pattern):
            shutil.copy(source, site)
    for folder, name in (("core", "talvora"), ("voice", "voice")):
        for ending in ("js", "wasm"):
            shutil.copy(web / "web" / folder / f"{name}.{ending}", site)
    assets = native / "web" / "assets" / "talvora-web-assets"
    measures = site / "faces.bin"
    if not measures.exists() or measures.stat().st_mtime < assets.stat().st_mtime:
        subprocess.run([assets, site], check=True, env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
    put_fonts(native, site)
    put_pack(pack, site)
    put_service(site)


main()

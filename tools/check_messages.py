#!/usr/bin/env python3
"""Checks that people can read every message of the compiler in their language.

usage: check_messages.py [REPOSITORY]

All that it says must be marked for translation, and each translation be there and take the same
values. Needs xgettext, msgfmt and msgcmp.
Exit code 0 when all is well, 1 with a line `file:line: message` for each fault, 2 on a wrong call.
"""

import re
import subprocess
import sys
import tempfile
from pathlib import Path

from repository import repository_of

TOKEN = re.compile(
    r'(?P<skip>//[^\n]*|/\*.*?\*/|R"(?P<ends>\w*)\(.*?\)(?P=ends)"|\'(?:[^\'\\\n]|\\.)+\')|'
    r'"(?P<text>(?:[^"\\\n]|\\.)*)"|[A-Za-z_]\w*|\d[\w\'.]*|[^\s]', re.DOTALL)
# A text of two words in a row is for people's eyes.
WORDS = re.compile(r"[a-zà-ỹ]{2,},? [a-zà-ỹ]{2,}")
# In tables stand words as well, but no row of English ones.
ENGLISH_ROW = re.compile(r"\b[a-z]+ [a-z]+ [a-z]+ [a-z]+\b")
# Calls whose texts are marked, are the learner's own or are for a developer alone.
SETTLED = {"said", "saidOf", "toSay", "ownText", "logic_error"}
# What is compared with, written to files or read by learners.
WORKED_WITH = {" is required", "This text is coming soon.",
               "Phần này đúng:", "(quá khứ phân từ)", r"#guid column:1\n#columns:"}
VALUE = re.compile(r"\{(\d*)\}")


def literals(text):
    """Each text of a source with its line and the calls and tables around it: a call as its name, a
    table as "{". Texts that follow each other are one; raw ones are whole files and left out."""
    around = []
    before = ""
    whole = None
    for token in TOKEN.finditer(text):
        part = token["text"]
        if token["skip"]:
            continue
        if part is not None:
            if whole is None:
                whole = [text.count("\n", 0, token.start()) + 1, "", tuple(around)]
            whole[1] += part
            continue
        if whole is not None:
            yield whole
            whole = None
        if token[0] == "(":
            around.append(before)
        elif token[0] == "{":
            around.append("{" if before in ("=", "{", "array") else "")
        elif token[0] in ")}" and around:
            around.pop()
        before = token[0]


def unmarked(text):
    """The messages of a source that nobody will translate, with their lines. Tables of words and
    texts between blanks are what the compiler works with."""
    for line, content, around in literals(text):
        listed = content.startswith(" ") and content.endswith(" ")
        table = "{" in around and not any(call not in ("", "{") for call in around)
        if listed or content in WORKED_WITH or SETTLED & set(around):
            continue
        if (ENGLISH_ROW if table else WORDS).search(content):
            yield line, content


def unmarked_in(root):
    for path in sorted([*(root / "pack").rglob("*.cpp"), *(root / "pack").rglob("*.h")]):
        for line, content in unmarked(path.read_text(encoding="utf-8")):
            yield f"{path.relative_to(root)}:{line}: not marked for translation: {content}"


def quoted(text):
    return "".join(re.findall(r'"((?:[^"\\]|\\.)*)"', text))


def entries(translation):
    """Each message with its translation."""
    for block in translation.read_text(encoding="utf-8").split("\n\n"):
        message = re.search(r'^msgid ((?:".*"\n?)+)', block, re.M)
        answers = re.findall(r'^msgstr(?:\[\d\])? ((?:".*"\n?)+)', block, re.M)
        if message and quoted(message[1]):
            yield quoted(message[1]), [quoted(answer) for answer in answers]


def values_in(text):
    bare = text.replace("{{", "").replace("}}", "")
    names = VALUE.findall(bare)
    left = VALUE.sub("", bare)
    return None if "{" in left or "}" in left else sorted(
        name or str(number) for number, name in enumerate(names))


def wrong_values(translation):
    for message, answers in entries(translation):
        for answer in answers:
            if values_in(answer) != values_in(message):
                yield f"{translation.name}: other values than in the message: {message}"


def missing(translation, template):
    compared = subprocess.run(["msgcmp", str(translation), str(template)], capture_output=True,
                              text=True, check=False)
    if compared.returncode != 0:
        yield f"{translation.name} (pack/po/update.sh adds what is new):\n{compared.stderr.strip()}"
    checked = subprocess.run(["msgfmt", "--check", "--statistics", "-o", "/dev/null",
                              str(translation)], capture_output=True, text=True, check=False)
    if checked.returncode != 0 or "fuzzy" in checked.stderr or "untranslated" in checked.stderr:
        yield f"{translation.name}: {checked.stderr.strip()}"


def main():
    root = repository_of(__doc__)
    translations = root / "pack" / "po"
    faults = list(unmarked_in(root))
    with tempfile.TemporaryDirectory() as folder:
        template = Path(folder) / "messages.pot"
        subprocess.run([str(translations / "extract.sh"), str(template)], check=True)
        for translation in sorted(translations.glob("*.po")):
            faults += missing(translation, template)
            faults += wrong_values(translation)
        messages = sum(1 for _ in entries(template))
    print("\n".join(faults) if faults else f"messages: {messages}, all can be read in each language")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())

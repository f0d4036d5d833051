#!/usr/bin/env python3
"""The compiler speaks Vietnamese where the locale is Vietnamese, though the system may not have that
locale, and English elsewhere: its help, what is wrong with a command line, with a source, with a disk.

usage: language.py --compiler TALVORA-PACK --content FOLDER
"""
import argparse
import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

VIETNAMESE = {"LC_ALL": "vi_VN.UTF-8"}
ENGLISH = {"LC_ALL": "C"}
SPEAKING = ("LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE")
# Three words of small English letters in a row are a sentence.
SENTENCE = re.compile(r"[a-z]{2,}[,;:]? [a-z]{2,}[,;:]? [a-z]{2,}")


def require(holds, what):
    if not holds:
        sys.exit(f"FAILED: {what}")


def say(options, locale, *arguments, code=0):
    """What a command tells in a locale, on both of its outputs."""
    environment = {name: value for name, value in os.environ.items() if name not in SPEAKING}
    done = subprocess.run([options.compiler, *map(str, arguments)], env=environment | locale,
                          capture_output=True, text=True, encoding="utf-8", check=False)
    told = done.stdout + done.stderr
    require(done.returncode == code, f"{arguments} gave {done.returncode}: {told}")
    return told


def commands(options):
    """The commands with their own commands, as the help lists them."""
    def listed(*ahead):
        text = say(options, ENGLISH, *ahead, "--help")
        behind = text.partition("\nCommands:\n")[2]
        return [[*ahead, name] for name in re.findall(r"^  ([a-z]+)\s", behind, re.M)]

    first = listed()
    require(len(first) >= 12, f"commands: {first}")
    return [[], *first, *listed("words"), *listed("text"), *listed("folder")]


def check_help(options):
    for command in commands(options):
        english = say(options, ENGLISH, *command, "--help").splitlines()
        vietnamese = say(options, VIETNAMESE, *command, "--help").splitlines()
        require(any(SENTENCE.search(line) for line in english), f"{command}: help in English")
        for line in vietnamese:
            require(not line.startswith(("Options:", "Commands:")), f"{command} in English: {line}")
            require(line not in english or not SENTENCE.search(line), f"{command} in English: {line}")


def check_locales(options):
    for locale in ({"LANG": "vi_VN.UTF-8"}, {"LANG": "vi_VN"}, {"LC_MESSAGES": "vi_VN.UTF-8"},
                   {"LANG": "C.UTF-8", "LANGUAGE": "vi"}):
        require("Cách dùng:" in say(options, locale, "--help"), f"Vietnamese for {locale}")
    for locale in ({}, {"LANG": "en_US.UTF-8"}, {"LANG": "de_DE.UTF-8"},
                   {"LANG": "vi_VN.UTF-8", "LC_ALL": "C"}):
        require("Usage:" in say(options, locale, "--help"), f"English for {locale}")


def check_faults(options, folder):
    content = folder / "content"
    shutil.copytree(options.content, content)
    text = next((content / "reading").glob("0*.txt"))
    text.write_text("title: One\n\nIt rains today.\n", encoding="utf-8")
    for locale, told in ((ENGLISH, 'a translation ("= ...") is missing here'),
                         (VIETNAMESE, 'ở đây thiếu lời dịch ("= ...")')):
        wrong = say(options, locale, "check", content, "--only", "reading", code=1)
        require(f"{text}:4:1: {told}" in wrong, wrong)

    require("thiếu một lệnh" in say(options, VIETNAMESE, code=2), "no command")
    require("không hiểu: chek" in say(options, VIETNAMESE, "chek", code=2), "no such command")
    for told, line in (('không thuộc analysis|', ("check", content, "--only", "read")),
                       ("--words cần một giá trị", ("check", content, "--words")),
                       ("không hiểu: --words = few", ("check", content, "--words", "few")),
                       ("không phải là số từ 1 đến", ("plan", content, "0")),
                       ("không phải là thư mục", ("compress", folder / "nowhere"))):
        wrong = say(options, VIETNAMESE, *line, code=2)
        require(told in wrong, wrong)
    require("thiếu SOURCE" in say(options, VIETNAMESE, "check", code=2), "no argument")
    require("không hiểu: --x" in say(options, VIETNAMESE, "check", content, "--x", code=2), "extra")
    missing = say(options, VIETNAMESE, "show", folder / "no.txt", code=1)
    require(f"{folder / 'no.txt'}: không đọc được" in missing, missing)
    unwritable = folder / "file" / "text.txt"
    unwritable.parent.write_text("no folder", encoding="utf-8")
    refused = say(options, VIETNAMESE, "new", "text", unwritable, code=2)
    require(f"Không ghi được: {unwritable}: không lần theo được: " in refused, refused)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--compiler", required=True)
    parser.add_argument("--content", required=True)
    options = parser.parse_args()
    check_help(options)
    check_locales(options)
    with tempfile.TemporaryDirectory() as folder:
        check_faults(options, Path(folder))
    print("ok: English and Vietnamese")


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Stands for a screen reader: asks the running program over the accessibility bus, and listens.

Called by reader.sh with the program's menu on the screen. A step that does not happen ends it with
exit code 1.
"""

import re
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 30  # seconds; a busy machine takes its time

context = GLib.MainContext.default()
carets = []  # (name, caret) as told
announced = []  # names of alerts that came up


def fail(what):
    sys.exit(f"FAILED: {what}")


def passed(what):
    print(f"ok: {what}", flush=True)


def until(condition, what):
    """Waits, hearing events, until a condition gives a value that holds; fails after a while."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        while context.iteration(False):
            pass
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    return fail(what)


def press(*keys):
    subprocess.run(["xdotool", "key", "--delay", "60", *keys], check=True)


# -- What is told.


def hear_caret(event):
    carets.append((event.source.get_name(), event.detail1))


def hear_showing(event):
    if event.detail1 and event.source.get_role() in (Atspi.Role.ALERT, Atspi.Role.NOTIFICATION):
        announced.append(event.source.get_name())


def listen(hear, *kinds):
    listener = Atspi.EventListener.new(hear)
    for kind in kinds:
        listener.register(kind)
    return listener


def expect_announcement(part, what):
    until(lambda: any(part in name for name in announced), f"{what} is not announced: {announced}")


# -- What is there.


def children(node):
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield child


def everything(node):
    yield node
    for child in children(node):
        yield from everything(child)


def program():
    for application in children(Atspi.get_desktop(0)):
        if application.get_name().lower() == "talvora":
            return application
    return None


def sought(condition, what):
    def look():
        Atspi.Accessible.clear_cache(tutor)
        try:
            return next((node for node in everything(tutor) if condition(node)), None)
        except GLib.Error:
            return None  # something went while it was looked at

    return until(look, f"there is no {what}")


def page(name):
    """The page of a name, once it has the keyboard."""
    return sought(
        lambda node: node.get_name() == name
        and node.get_state_set().contains(Atspi.StateType.FOCUSED),
        f"page \"{name}\" with the keyboard",
    )


def button(meaning):
    return sought(lambda node: node.get_description() == meaning, f"button \"{meaning}\"")


def act(node, name):
    action = node.get_action_iface()
    names = [action.get_action_name(each) for each in range(action.get_n_actions())]
    if name not in names:
        fail(f"{node.get_name()} does {names}, not {name}")
    action.do_action(names.index(name))


def text_of(node):
    text = node.get_text_iface()
    return text.get_text(0, text.get_character_count())


def put_caret(node, word):
    """Puts the caret into a word as a reader's own cursor would; a list goes to its line."""
    found = until(
        lambda: re.search(rf"\b{word}\b", text_of(node)), f"{node.get_name()} has no \"{word}\""
    )
    at = found.start()
    line = text_of(node).rfind("\n", 0, at) + 1
    node.get_text_iface().set_caret_offset(at + 1)
    until(
        lambda: line <= node.get_text_iface().get_caret_offset() <= at + 1,
        f"the caret of {node.get_name()} does not go to {word}",
    )


# -- The steps.


def press_a_menu_button():
    reading = button("Đọc bài tiếng Anh, bấm vào từ để tra nghĩa và nghe")
    if reading.get_role() != Atspi.Role.PUSH_BUTTON:
        fail(f"a menu button is a {reading.get_role_name()}")
    act(reading, "Press")
    page("Danh sách bài")
    passed("the action of a menu button opens its page, which has a Vietnamese name")


def read_by_line():
    titles = page("Danh sách bài")
    lines = text_of(titles).split("\n")
    if len(lines) < 3:
        fail(f"the list has {len(lines)} lines")
    text = titles.get_text_iface()
    start = 0
    for line in lines[:3]:
        # Qt 6.4 does not answer the newer question for a string.
        read = text.get_text_at_offset(start, Atspi.TextBoundaryType.LINE_START)
        if read.content.rstrip("\n") != line:
            fail(f"the line \"{line}\" is read as \"{read.content}\"")
        start += len(line) + 1
    passed("a page is read line by line")


def be_told():
    """The program hears from the bus, in its own time, what somebody listens to; before that it tells
    no move of a caret."""
    page("Danh sách bài")

    def move():
        press("Down")
        return carets

    until(move, "no move of the caret is told")


def hear_the_caret():
    titles = page("Danh sách bài")
    press("ctrl+Home")
    until(lambda: titles.get_text_iface().get_caret_offset() == 0, "the caret is not at the top")
    carets.clear()
    press("Down")
    until(
        lambda: any(name == "Danh sách bài" and caret > 0 for name, caret in carets),
        f"the caret's way is not told: {carets}",
    )
    passed("a move of the caret is told")


def hear_an_entry():
    titles = page("Danh sách bài")
    put_caret(titles, "River")
    press("Return")
    text = page("Bài đọc")
    put_caret(text, "bank")
    announced.clear()
    act(text, "Press")
    expect_announcement("bank", "the entry of a word")
    press("Escape")
    press("Escape")
    page("Danh sách bài")
    press("Escape")
    passed("an entry is announced when it comes up")


def hear_a_verdict():
    act(button("Các bài văn phạm; bấm phải để đánh dấu bài cần luyện"), "Press")
    lessons = page("Danh sách bài văn phạm")
    put_caret(lessons, "tại")
    act(lessons, "ShowMenu")
    press("Return")
    page("Bài tập điền từ")
    announced.clear()
    subprocess.run(["xdotool", "type", "--delay", "60", "goes"], check=True)
    press("Return")
    expect_announcement("Đúng", "the verdict on a blank")
    press("Return")
    choice = page("Bài tập chọn câu đúng")
    for option, verdict in (("a", "Chưa đúng"), ("b", "Đúng")):
        announced.clear()
        put_caret(choice, option)
        act(choice, "Press")
        expect_announcement(verdict, f"the verdict on option {option}")
    passed("the verdict on an item of a lesson is announced")


Atspi.init()
tutor = until(program, "the program is not on the accessibility bus")
# Whoever comes to the bus later may miss who listened before.
listeners = [
    listen(hear_caret, "object:text-caret-moved"),
    listen(hear_showing, "object:state-changed:showing"),
]
press_a_menu_button()
read_by_line()
be_told()
hear_the_caret()
hear_an_entry()
hear_a_verdict()

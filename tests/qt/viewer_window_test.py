#!/usr/bin/env python3
"""The viewer's window on a display of its own: it opens, shows a picture, follows a new size, is used, and closes.

    viewer_window_test.py VORNIX_VIEW

Ends with 77, which means "left out", only where Xvfb or xdotool is not installed.
"""

import os
import shutil
import struct
import subprocess
import sys
import tempfile
import time

PATIENCE = 60  # seconds, for a build with sanitizers on a busy machine
LEFT_OUT = 77
DOUBLE_CLICK = 0.6  # seconds after which another click is one of its own


class Display:
    """An X server without a screen that keeps its picture in a file."""

    def __enter__(self):
        self.folder = tempfile.TemporaryDirectory()
        read_end, write_end = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1400x900x24", "-fbdir", self.folder.name,
             "-nocursor", "-nolisten", "tcp", "-noreset"],
            pass_fds=[write_end], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        self.name = ":" + number
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait()
        self.folder.cleanup()

    def picture(self):
        """Rows of 32-bit pixels."""
        with open(os.path.join(self.folder.name, "Xvfb_screen0"), "rb") as file:
            data = file.read()
        header = struct.unpack(">25I", data[:100])
        header_size, width, height, line, colors = header[0], header[4], header[5], header[12], header[19]
        start = header_size + colors * 12
        return [struct.unpack_from(f"<{width}I", data, start + row * line) for row in range(height)]


def xdotool(display, *arguments):
    done = subprocess.run(["xdotool", *arguments], env={**os.environ, "DISPLAY": display.name},
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, timeout=PATIENCE, check=False)
    return done.stdout


def wait_for(what, condition, program):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        if program.poll() is not None:
            raise AssertionError(f"the program ended with {program.returncode} before: {what}")
        result = condition()
        if result:
            return result
        time.sleep(0.1)
    raise AssertionError(f"did not happen within {PATIENCE} s: {what}")


def geometry(display, window):
    lines = dict(line.split("=", 1) for line in xdotool(display, "getwindowgeometry", "--shell", window).split())
    return int(lines.get("WIDTH", 0)), int(lines.get("HEIGHT", 0))


def colours(display, left, top, width, height):
    return {pixel & 0xFFFFFF for row in display.picture()[top:top + height] for pixel in row[left:left + width]}


class User:
    """Pointer and keys on the window at the corner of the display, and what is seen of it."""

    # Of the table in the window at 900 by 600, below the menu bar: the scrolling cells without the bars, and one row number.
    CELLS = (50, 82, 820, 458)
    FIRST_ROW_NUMBER = (10, 84, 30, 20)
    # Below the table, where the current cell and the extent of the selection are told.
    STATUS = (0, 581, 400, 17)

    def __init__(self, display, program):
        self.display = display
        self.program = program

    def seen(self, left, top, width, height):
        return [row[left:left + width] for row in self.display.picture()[top:top + height]]

    def do(self, *arguments):
        xdotool(self.display, *map(str, arguments))

    def drag(self, start, end, steps=8):
        self.do("mousemove", *start, "mousedown", 1)
        for step in range(1, steps + 1):
            self.do("mousemove", *(a + (b - a) * step // steps for a, b in zip(start, end)))
        self.do("mouseup", 1)

    def sees_change(self, what, area, before):
        """What is seen then."""
        wait_for(what, lambda: self.seen(*area) != before, self.program)
        return self.settled(area)

    def sees_again(self, what, area, before):
        wait_for(what, lambda: self.seen(*area) == before, self.program)

    def settled(self, area):
        seen = self.seen(*area)
        while True:
            time.sleep(0.3)
            now = self.seen(*area)
            if now == seen:
                return now
            seen = now


def use(user):
    start = user.settled(user.CELLS)
    number = user.seen(*user.FIRST_ROW_NUMBER)

    user.do("mousemove", 300, 300, "click", 5)
    user.sees_change("the wheel scrolls the rows", user.FIRST_ROW_NUMBER, number)
    user.do("click", 4)
    user.sees_again("the wheel scrolls back", user.CELLS, start)

    user.do("keydown", "shift", "click", 5, "keyup", "shift")
    user.sees_change("with Shift it scrolls the columns", user.CELLS, start)
    user.do("keydown", "shift", "click", 4, "keyup", "shift")
    user.sees_again("and back", user.CELLS, start)

    user.drag((891, 87), (891, 300))
    user.sees_change("the thumb scrolls the rows", user.FIRST_ROW_NUMBER, number)
    user.drag((891, 300), (891, 62))
    user.sees_again("and back to the first one", user.CELLS, start)

    first_cell = user.settled(user.STATUS)
    user.do("key", "Right")
    second_cell = user.sees_change("the line below names the cell that a key has moved to", user.STATUS, first_cell)
    user.do("key", "Left")
    user.sees_again("and the first cell again", user.STATUS, first_cell)

    start = user.settled(user.CELLS)
    user.do("mousemove", 300, 150, "click", 1)
    clicked = user.sees_change("a click selects a cell", user.CELLS, start)
    user.do("key", "Down")
    moved = user.sees_change("a key moves the current cell and takes the selection away", user.CELLS, clicked)
    user.do("key", "Down")
    user.sees_change("the next one moves it on", user.CELLS, moved)
    user.do("key", "Up")
    user.sees_again("and another one back", user.CELLS, moved)

    one_cell = user.sees_change("the line below has followed the mouse and the keys", user.STATUS, second_cell)
    selected = (210, 180, 100, 100)
    plain = user.seen(*selected)
    user.drag((300, 150), (340, 300))
    user.sees_change("dragging selects cells", selected, plain)
    user.sees_change("the line below tells how many", user.STATUS, one_cell)
    user.do("mousemove", 600, 450, "click", 1)
    user.sees_again("a click takes the selection away", selected, plain)

    headers = (50, 58, 820, 20)
    before = user.seen(*headers)
    edge = edge_of_column(before) + headers[0]
    user.drag((edge - 1, 68), (edge + 30, 68))
    sized = user.sees_change("an edge of a column is dragged", headers, before)
    # The line at the edge is the column's own last pixel, left of the pointer.
    assert edge_of_column(sized) + headers[0] == edge + 29, "the edge is where it was let go"

    # A double click on the edge fits the column, which is as wide as it was.
    user.do("mousemove", edge + 29, 68, "click", "--repeat", 2, "--delay", 60, 1)
    wait_for("a double click fits the column", lambda: edge_of_column(user.seen(*headers)) + headers[0] < edge + 29,
             user.program)

    time.sleep(DOUBLE_CLICK)
    user.do("mousemove", headers[0] + 20, 68)
    titles = user.settled(headers)
    user.do("click", 1)
    upward = user.sees_change("a click on a title marks it, and sorts", headers, titles)
    time.sleep(DOUBLE_CLICK)
    user.do("click", 1)
    user.sees_change("a second one turns it round", headers, upward)
    time.sleep(DOUBLE_CLICK)
    user.do("click", 1)
    user.sees_again("a third one takes the mark away", headers, titles)

    status = user.settled(user.STATUS)
    user.do("key", "ctrl+f")
    user.settled(user.CELLS)
    user.do("type", "a")
    user.sees_change("what is found is the current cell", user.STATUS, status)
    user.do("key", "Escape")
    user.settled(user.CELLS)

    line = (60, 82, 300, 100)
    assert not upright_line(user.seen(*line)), "nothing is split yet"
    user.drag((2, 568), (150, 400))
    wait_for("the split is where its handle was let go", lambda: upright_line(user.seen(*line)), user.program)


def edge_of_column(headers):
    """The first column of one colour, other than the ground beside it, from top to bottom."""
    for x in range(1, len(headers[0])):
        colour = headers[0][x]
        if colour != headers[0][x - 1] and all(row[x] == colour for row in headers):
            return x
    raise AssertionError("the headers have no edge")


def upright_line(picture):
    """Whether a black line goes through from top to bottom."""
    return any(all(row[x] & 0xFFFFFF == 0 for row in picture) for x in range(len(picture[0])))


def check(program_path, display):
    environment = {**os.environ, "DISPLAY": display.name, "QT_QPA_PLATFORM": "xcb"}
    for name in ("WAYLAND_DISPLAY", "QT_SCALE_FACTOR"):
        environment.pop(name, None)
    program = subprocess.Popen([program_path, "--size", "900x600"], env=environment)
    try:
        window = wait_for("a window with the program's title",
                          lambda: xdotool(display, "search", "--onlyvisible", "--name", " - Vornix$").split(), program)[0]
        wait_for("the size that was asked for", lambda: geometry(display, window) == (900, 600), program)
        # Grounds, lines and smoothed letters; an empty window has one colour.
        wait_for("a picture in the window", lambda: len(colours(display, 0, 0, 900, 560)) > 50, program)
        assert colours(display, 950, 650, 400, 200) == {0}, "nothing is drawn beside the window"

        xdotool(display, "windowfocus", "--sync", window)
        use(User(display, program))

        xdotool(display, "windowsize", window, "1300", "850")
        wait_for("the new size", lambda: geometry(display, window) == (1300, 850), program)
        wait_for("a picture in the new room", lambda: len(colours(display, 950, 100, 300, 700)) > 20, program)
        xdotool(display, "windowsize", window, "300", "200")
        wait_for("a small size", lambda: geometry(display, window) == (300, 200), program)
        wait_for("a picture in the small window", lambda: len(colours(display, 0, 0, 300, 160)) > 20, program)

        xdotool(display, "windowfocus", "--sync", window)
        xdotool(display, "key", "ctrl+q")
        status = program.wait(timeout=PATIENCE)
        assert status == 0, f"closing ends the program with 0, not {status}"
    finally:
        if program.poll() is None:
            program.kill()
            program.wait()


def main():
    missing = [name for name in ("Xvfb", "xdotool") if not shutil.which(name)]
    if missing:
        print("left out: not installed: " + ", ".join(missing))
        return LEFT_OUT
    with Display() as display:
        check(sys.argv[1], display)
    print("the window opened, was used, showed its picture at three sizes, and closed")
    return 0


if __name__ == "__main__":
    sys.exit(main())

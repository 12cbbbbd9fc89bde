#!/usr/bin/env python3
"""The viewer's window on a display of its own: it opens, shows a picture, follows a new size, and closes.

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


class Display:
    """An X server without a screen that keeps its picture in a file."""

    def __enter__(self):
        self.folder = tempfile.TemporaryDirectory()
        read_end, write_end = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1400x900x24", "-fbdir", self.folder.name,
             "-nolisten", "tcp", "-noreset"],
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
    print("the window opened, showed its picture at three sizes, and closed")
    return 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""The viewer's window for changing a table, on a display of its own: typing, choosing, clicking,
saving, closing.

    editor_window_test.py VORNIX_VIEW

With KEEP_PICTURES=FOLDER in the environment the display is kept as PNG files after each step. Ends with 77, which means
"left out", only where Xvfb or xdotool is not installed.
"""

import contextlib
import os
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import zlib
from struct import pack

from viewer_window_test import LEFT_OUT, PATIENCE, Display, User, geometry, wait_for, xdotool

CSV = "id;city;paid;note\r\n1;Oslo;yes;plain\r\n2;\"Roma\";no;\"a \"\"b\"\"\"\r\n3;Bern;yes;last"


def write_png(path, rows):
    """Rows of 32-bit pixels as a picture."""

    def chunk(kind, data):
        return pack(">I", len(data)) + kind + data + pack(">I", zlib.crc32(kind + data))

    lines = b"".join(
        b"\0" + b"".join(pack(">I", (pixel & 0xFFFFFF) << 8)[:3] for pixel in row) for row in rows)
    header = pack(">IIBBBBB", len(rows[0]), len(rows), 8, 2, 0, 0, 0)
    with open(path, "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(lines)) +
                   chunk(b"IEND", b""))


class Editor(User):
    """The program with a file open for changing, and the person in front of it."""

    def __init__(self, display, program, step_name):
        super().__init__(display, program)
        self.window = wait_for("a window with the program's title", lambda: self.windows(" - Vornix$"), program)[0]
        wait_for("the size that was asked for", lambda: geometry(display, self.window) == (900, 600), program)
        self.do("windowfocus", "--sync", self.window)
        self.settled(self.CELLS)
        self.step_name = step_name

    def windows(self, name):
        return xdotool(self.display, "search", "--onlyvisible", "--name", name).split()

    def title(self):
        return xdotool(self.display, "getwindowname", self.window).strip()

    def sees_title(self, what, title):
        wait_for(what, lambda: self.title() == title, self.program)
        self.keep_picture(what)

    def keep_picture(self, what):
        folder = os.environ.get("KEEP_PICTURES")
        if folder:
            name = f"{self.step_name} {what}.png".replace(" ", "_").replace("/", "_")
            write_png(os.path.join(folder, name), self.display.picture())

    def types(self, text):
        self.do("type", "--delay", "20", text)

    def keys(self, *names):
        self.do("key", "--delay", "20", *names)

    def box(self):
        """The question or message that is shown, in the keyboard's focus."""
        window = wait_for("a box", lambda: self.windows("^Vornix$"), self.program)[0]
        self.do("windowfocus", "--sync", window)
        self.settled((0, 0, 900, 600))
        return window

    def box_is_gone(self):
        wait_for("the box is gone", lambda: not self.windows("^Vornix$"), self.program)
        self.do("windowfocus", "--sync", self.window)

    def ends(self):
        status = self.program.wait(timeout=PATIENCE)
        assert status == 0, f"closing ends the program with 0, not {status}"


@contextlib.contextmanager
def editing(program_path, display, step_name, *arguments):
    environment = {**os.environ, "DISPLAY": display.name, "QT_QPA_PLATFORM": "xcb"}
    for name in ("WAYLAND_DISPLAY", "QT_SCALE_FACTOR"):
        environment.pop(name, None)
    program = subprocess.Popen([program_path, "--edit", "--size", "900x600", *arguments], env=environment)
    try:
        yield Editor(display, program, step_name)
    finally:
        if program.poll() is None:
            program.kill()
            program.wait()


JOBS = "status,due\n" + "open,2024-12-31\nlate,2024-02-29\ndone,\n" * 3


def choose_and_date(program_path, display, path):
    with open(path, "w", newline="", encoding="utf-8") as file:
        file.write(JOBS)
    with editing(program_path, display, "lists", path) as user:
        user.keys("F2")
        user.keys("alt+Down")
        user.settled((0, 0, 900, 600))
        user.keep_picture("the list is open")
        user.keys("Up", "Return")
        user.sees_title("picking marks the title", "jobs.csv* - Vornix")
        user.keys("ctrl+s")
        user.sees_title("the choice is saved", "jobs.csv - Vornix")
        saved = JOBS.replace("open", "late", 1)
        assert read(path) == saved, read(path)

        user.keys("Escape", "Right", "Home")
        user.types("20251")
        user.sees_title("the first digits give a date", "jobs.csv* - Vornix")
        user.keys("BackSpace")
        user.sees_title("an unfinished date is no change", "jobs.csv - Vornix")
        user.keys("ctrl+s")
        user.settled((0, 0, 900, 600))
        user.keep_picture("why it is not saved")
        assert read(path) == saved, read(path)
        user.types("0115")
        user.sees_title("the date is whole", "jobs.csv* - Vornix")
        user.keys("ctrl+s")
        user.sees_title("the date is saved", "jobs.csv - Vornix")
        saved = saved.replace("2024-12-31", "2025-01-15", 1)
        assert read(path) == saved, read(path)

        user.keys("Home", "Delete", "Escape")
        user.settled((0, 0, 900, 600))
        user.keep_picture("what was not taken")
        user.keys("ctrl+q")
        user.ends()
    assert read(path) == saved, read(path)


def choose_key(program_path, display, path):
    connection = sqlite3.connect(path)
    connection.executescript("""
        CREATE TABLE countries(code TEXT PRIMARY KEY);
        INSERT INTO countries VALUES('at'), ('ch'), ('no');
        CREATE TABLE cities(country TEXT REFERENCES countries, name TEXT);
        INSERT INTO cities VALUES('at', 'Bern'), ('ch', 'Atlantis');""")
    with editing(program_path, display, "keys", path, "--table", "cities") as user:
        user.keys("F2")
        user.types("c")
        user.sees_title("typing finds a key", "cities* - Vornix")
        user.keys("Escape", "Down")
        user.keys("alt+Down")
        user.settled((0, 0, 900, 600))
        user.keep_picture("the keys")
        user.keys("Home", "Return")
        user.settled(user.CELLS)
        user.keys("ctrl+s")
        user.sees_title("the keys are saved", "cities - Vornix")
        rows = connection.execute("SELECT * FROM cities").fetchall()
        assert rows == [("ch", "Bern"), (None, "Atlantis")], rows
        user.keys("ctrl+q")
        user.ends()
    connection.close()


PEOPLE = "city;people\r\nOslo;709\r\nBern;134\r\nRoma;2800\r\n"


def sort_and_change_rows(program_path, display, path):
    with open(path, "w", newline="", encoding="utf-8") as file:
        file.write(PEOPLE)
    with editing(program_path, display, "rows", path) as user:
        user.do("mousemove", 110, 68, "click", 1)
        user.settled((0, 0, 900, 600))
        user.keep_picture("sorted by people")
        user.keys("Down", "ctrl+a")
        user.types("5")
        user.sees_title("the least one is changed", "people.csv* - Vornix")
        user.keys("ctrl+plus")
        user.types("77")
        user.settled((0, 0, 900, 600))
        user.keep_picture("a new row")
        user.keys("ctrl+s")
        user.sees_title("the rows are saved", "people.csv - Vornix")
        saved = "city;people\r\nOslo;709\r\n;77\r\nBern;5\r\nRoma;2800\r\n"
        assert read(path) == saved, read(path)

        user.keys("ctrl+minus")
        user.sees_title("the row is deleted", "people.csv* - Vornix")
        user.keys("ctrl+z")
        user.sees_title("and back", "people.csv - Vornix")

        user.keys("ctrl+0", "ctrl+Home", "shift+Down", "shift+Right", "ctrl+c")
        user.keys("Down", "Down", "ctrl+v")
        user.sees_title("the block is pasted", "people.csv* - Vornix")
        user.keep_picture("pasted below")
        user.keys("ctrl+s")
        user.sees_title("the block is saved", "people.csv - Vornix")
        saved = "city;people\r\nOslo;709\r\n;77\r\nOslo;709\r\n;77\r\n"
        assert read(path) == saved, read(path)
        user.keys("ctrl+q")
        user.ends()


def read(path):
    with open(path, newline="", encoding="utf-8") as file:
        return file.read()


def edit_text_file(program_path, display, path):
    with open(path, "w", newline="", encoding="utf-8") as file:
        file.write(CSV)
    with editing(program_path, display, "text file", path) as user:
        user.sees_title("it begins without changes", "cities.csv - Vornix")
        user.keys("Right")
        user.keys("F2")
        user.keys("End")
        user.types(", Norway; north")
        user.sees_title("typing marks the title", "cities.csv* - Vornix")
        assert read(path) == CSV, "nothing is written before it is saved"
        user.keys("Down")
        user.keys("End")
        user.types("!")
        user.keys("ctrl+s")
        user.sees_title("saving takes the mark away", "cities.csv - Vornix")
        saved = CSV.replace("Oslo", "\"Oslo, Norway; north\"").replace("Roma", "Roma!")
        assert read(path) == saved, read(path)

        user.types("?")
        user.sees_title("the editor is still open", "cities.csv* - Vornix")
        user.keys("BackSpace")
        user.sees_title("what has its saved text again is no change", "cities.csv - Vornix")

        user.keys("Escape")
        user.keys("Right")
        user.keys("space")
        user.sees_title("a check box is switched", "cities.csv* - Vornix")
        user.keys("ctrl+q")
        user.box()
        user.keep_picture("the question when closing")
        user.keys("Escape")
        user.box_is_gone()
        assert user.program.poll() is None, "it stays open"
        assert read(path) == saved, "nothing was saved"
        user.keys("ctrl+q")
        user.box()
        user.keys("Return")
        user.ends()
        assert read(path) == saved.replace(";no;", ";yes;"), read(path)


def edit_database(program_path, display, path):
    connection = sqlite3.connect(path)
    connection.execute("CREATE TABLE cities(name TEXT, people INTEGER, note TEXT, primary key(name)) WITHOUT ROWID")
    connection.executemany("INSERT INTO cities VALUES(?, ?, ?)", [("Bern", 134591, None), ("Oslo", 709037, "n")])
    connection.commit()
    with editing(program_path, display, "database", path, "--table", "cities") as user:
        user.keys("Right", "F2")
        user.keys("ctrl+a")
        user.types("00134")
        user.sees_title("typing marks the title", "cities* - Vornix")
        user.keys("ctrl+s")
        user.sees_title("saving takes the mark away", "cities - Vornix")
        rows = connection.execute("SELECT * FROM cities").fetchall()
        assert rows == [("Bern", 134, None), ("Oslo", 709037, "n")], rows

        user.keys("F2")
        user.types("5")
        user.sees_title("it can be changed again", "cities* - Vornix")
        connection.execute("UPDATE cities SET note = 'other' WHERE name = 'Bern'")
        connection.commit()
        user.keys("ctrl+s")
        user.box()
        user.keep_picture("why it is not saved")
        user.keys("Return")
        user.box_is_gone()
        user.sees_title("the change is still there", "cities* - Vornix")
        user.keys("ctrl+q")
        user.box()
        user.keys("Tab", "space")
        user.ends()
    rows = connection.execute("SELECT * FROM cities").fetchall()
    assert rows == [("Bern", 134, "other"), ("Oslo", 709037, "n")], rows
    connection.close()


def main():
    missing = [name for name in ("Xvfb", "xdotool") if not shutil.which(name)]
    if missing:
        print("left out: not installed: " + ", ".join(missing))
        return LEFT_OUT
    with tempfile.TemporaryDirectory() as folder:
        with Display() as display:
            edit_text_file(sys.argv[1], display, os.path.join(folder, "cities.csv"))
        with Display() as display:
            edit_database(sys.argv[1], display, os.path.join(folder, "cities.db"))
        with Display() as display:
            choose_and_date(sys.argv[1], display, os.path.join(folder, "jobs.csv"))
        with Display() as display:
            choose_key(sys.argv[1], display, os.path.join(folder, "keys.db"))
        with Display() as display:
            sort_and_change_rows(sys.argv[1], display, os.path.join(folder, "people.csv"))
    print("text files and databases were changed, saved and closed")
    return 0


if __name__ == "__main__":
    sys.exit(main())

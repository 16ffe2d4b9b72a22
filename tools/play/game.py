"""The program in a real window.

Nothing of the program is linked or replaced. The player reads the screen's pixels, and the accessibility bus as a
screen reader does.
"""

import os
import subprocess
import tempfile

from .player import DEADLINE, Player, wait
from .screen import atspi, children


class Game(Player):
    """Starts the program and waits for its first window."""

    KEYS = {"Enter": "Return", " ": "space", "PageUp": "Prior", "PageDown": "Next"}
    BUTTONS = {"+left": ("mousedown", 1), "-left": ("mouseup", 1), "+right": ("mousedown", 3), "-right": ("mouseup", 3)}

    def __init__(self, screen, *command):
        self.screen = screen
        self.factor = float(screen.environment.get("QT_SCALE_FACTOR", 1))
        self.said = tempfile.TemporaryFile()
        self.process = screen.start(*command, stdout=self.said, stderr=subprocess.STDOUT)
        self.window = None
        self.in_front("Tumble Options")

    def in_front(self, title):
        """Waits until a window other than the last, with this title, is active and has the input focus."""

        def found():
            window = self.screen.xdotool("getwindowfocus")
            active = self.screen.xdotool("getactivewindow")
            return active == window != self.window and self.screen.xdotool("getwindowname", window) == title and window

        self.window = wait(f"the window {title}", found)
        self.title = title
        lines = self.screen.run("xwininfo", "-id", self.window).decode().splitlines()
        self.left, self.top = (int(line.split()[-1]) for line in lines if "Absolute" in line)

    def key(self, key):
        self.screen.xdotool("key", self.KEYS.get(key, key.removeprefix("Arrow")))

    def pixel(self, x, y):
        """The pixel on the screen at a place of the window, in twips."""
        return [int(origin + twips * self.factor / 15 + 0.5) for origin, twips in ((self.left, x), (self.top, y))]

    def on_table(self, x, y):
        return self.pixel(240 + x, 120 + y)

    def click(self, x, y):
        self.screen.xdotool("mousemove", *self.pixel(x, y), "click", 1)

    def mouse(self, *steps):
        """Each step is a place on the table to move to, or a button to press or release there."""
        commands = [self.BUTTONS.get(step) or ("mousemove", *self.on_table(*step)) for step in steps]
        self.screen.xdotool(*sum(commands, ()))

    def vanish(self):
        """Hides the window and shows it again; the button is released meanwhile."""
        self.screen.xdotool("windowminimize", self.window)
        wait("the bare screen", lambda: self.screen.xdotool("getactivewindow") != self.window)
        self.mouse("-left")
        self.screen.xdotool("windowmap", self.window, "windowactivate", self.window)

    def label(self):
        return " ".join(self.read("label")[1:])

    def look(self, place):
        """The pixels right of and below a place on the table: the inside of a card that is held there."""
        return self.screen.photograph(part=(60, 90, *self.on_table(*place)))

    def read(self, role):
        """The names of everything with the role in the active window. Empty while the program does not answer."""
        try:
            return [seen.get_name() for seen in self.seen(role)]
        except RuntimeError:
            return []

    def seen(self, role):
        found = [window for program in self.screen.programs() for window in children(program)
                 if window.get_name() == self.title]
        for parent in found:
            found += children(parent)  # the loop visits these as well
        return [seen for seen in found if seen.get_role_name() == role]

    def described(self, role):
        """The names and descriptions of everything with the role in the active window that has a description."""
        return {seen.get_name(): seen.get_description() for seen in self.seen(role) if seen.get_description()}

    def press(self, caption, role="push button"):
        """Clicks on a button at the place that the accessibility bus reports."""
        wait(f"the button {caption}", lambda: caption in self.read(role))
        button = next(button for button in self.seen(role) if button.get_name() == caption)
        place = button.get_extents(atspi().CoordType.SCREEN)
        self.screen.xdotool("mousemove", place.x + place.width // 2, place.y + place.height // 2, "click", 1)

    def message(self, title):
        """Waits for the message box with the title and returns its text."""
        self.in_front(title)
        return wait("the message", lambda: "".join(self.read("label")))

    def end(self):
        """Waits for the end. Returns the exit status, the output, and whether a process of the program is left."""
        status = self.process.wait(DEADLINE)
        with self.said as said:
            said.seek(0)
            words = said.read().decode()
        try:
            os.killpg(self.process.pid, 0)
            left = True
        except ProcessLookupError:
            left = False
        return status, words, left

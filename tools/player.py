"""Plays the real program: a virtual screen with a window manager, and a player with mouse, keyboard and eyes.

Of keys the browser's names are used; buttons of the mouse are pressed by "+left" and "+right", released by "-left" and
"-right". Nothing of the program is linked or replaced. What it shows is read off the screen, or through the
accessibility bus as a screen reader does. The player waits until something holds, never for a time.
"""

import contextlib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

PACKAGES = {
    "Xvfb": "xvfb",
    "openbox": "openbox",
    "xdotool": "xdotool",
    "xwininfo": "x11-utils",
    "import": "imagemagick",
    "dbus-daemon": "dbus",
    "/usr/libexec/at-spi-bus-launcher": "at-spi2-core",
}
SKIPPED = 77  # the exit status of a test that cannot run here
DEADLINE = 60  # seconds, for a machine under load

# Alt+F4 closes a window. No click is the window manager's: while it held one back to look at it, the screen would mix
# up what the player does next.
WINDOW_MANAGER = """<openbox_config xmlns="http://openbox.org/3.4/rc">
<keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>
<mouse/>
</openbox_config>"""

# Where a drag ends that lays a card of the natural size on a corner; by the suit's place in the natural order.
CORNERS = [(200, 400), (7900, 400), (200, 4400), (7900, 4400)]

FREE = (4500, 510)  # where no card lies


def in_spread(card):
    """Where a card of the spread natural order shows, by its number."""
    return 1375 + 150 * (card % 36), 1200 + 1000 * (card // 36)


def atspi():
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi

    return Atspi


def require_packages(*more):
    """Ends the process as a skipped test where a program is missing that the player needs, or another named one."""
    wanted = PACKAGES | {name: name for name in more}
    missing = [package for command, package in wanted.items() if shutil.which(command) is None]
    try:
        atspi()
    except (ImportError, ValueError):
        missing.append("python3-pyatspi")
    if missing:
        print("Nobody can play here without", ", ".join(missing))
        sys.exit(SKIPPED)


def wait(for_what, condition):
    """The condition's answer, as soon as it is a true one."""
    end = time.monotonic() + DEADLINE
    while not (answer := condition()):
        if time.monotonic() > end:
            raise TimeoutError(f"waited in vain for {for_what}")
        time.sleep(0.02)
    return answer


def first_line(process):
    with process.stdout as output:
        return output.readline().decode().strip()


def stop(process):
    process.terminate()
    try:
        process.wait(DEADLINE)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


class Player:
    """What is done in the same way wherever the game runs. Places are in twips of the table."""

    def wait_for_label(self, name):
        wait(f"the label {name}", lambda: self.label() == name)

    def lift(self, place, to):
        """From a place to another, the button still held; waits until the card is there. Its inside."""
        ground = self.look(to)
        self.mouse(place, "+left", to)
        wait("the card", lambda: self.look(to) != ground)
        self.label()  # answered when the painting is done
        return self.look(to)

    def strike(self, *keys):
        for key in keys:
            self.key(key)

    def drag(self, place, to):
        self.mouse(place, "+left", to, "-left")

    def to_corner(self, card, place):
        """Drags a card, by its number in the natural order, to the corner of its suit."""
        self.drag(place, CORNERS[card % 4])

    def play_spread(self, cards):
        for card in cards:
            self.to_corner(card, in_spread(card))


class Screen:
    """A screen with a window manager, a session bus and an accessibility bus of its own, while the `with` lasts. On one
    of this size the game opens at scale 1. A process can read the accessibility bus of its first screen only."""

    def __init__(self, width=800, height=600, **settings):
        with contextlib.ExitStack() as started:
            self.home = started.enter_context(tempfile.TemporaryDirectory())
            bus = f"unix:path={self.home}/bus"
            kept = {name: value for name, value in os.environ.items() if name == "PATH" or name.endswith("SAN_OPTIONS")}
            self.environment = kept | settings | {
                "HOME": self.home,
                "XDG_RUNTIME_DIR": self.home,
                "LANG": "C.UTF-8",
                "DBUS_SESSION_BUS_ADDRESS": bus,
                "QT_QPA_PLATFORM": "xcb",
                "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            }
            self._started = started
            xvfb = self.start("Xvfb", "-displayfd", "1", "-noreset", "-nolisten", "tcp", "-screen", "0",
                              f"{width}x{height}x24", stdout=subprocess.PIPE)
            self.environment["DISPLAY"] = ":" + first_line(xvfb)
            dbus = self.start("dbus-daemon", "--session", "--nofork", "--nosyslog", "--address", bus,
                              "--print-address=1", stdout=subprocess.PIPE)
            first_line(dbus)
            settings_file = pathlib.Path(self.home, "openbox.xml")
            settings_file.write_text(WINDOW_MANAGER)
            self.start("openbox", "--config-file", settings_file)
            wait("the window manager", lambda: b"window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"))
            self._started = started.pop_all()

    def __enter__(self):
        return self

    def __exit__(self, *failure):
        self.close()

    def close(self):
        self._started.close()

    def start(self, *command, **how):
        """A process that ends with the screen, if not before."""
        quiet = {name: subprocess.DEVNULL for name in ("stdin", "stdout", "stderr")}
        process = subprocess.Popen(command, env=self.environment, start_new_session=True, **quiet | how)
        self._started.callback(stop, process)
        return process

    def run(self, *command):
        words = [str(word) for word in command]
        return subprocess.run(words, env=self.environment, timeout=DEADLINE, check=False, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL).stdout

    def xdotool(self, *commands):
        return self.run("xdotool", *commands).decode().strip()

    def photograph(self, file="ppm:-", part=None):
        """A picture of the screen, or of a part of it: width, height, left, top."""
        crop = ["-crop", "{}x{}+{}+{}".format(*part), "+repage"] if part else []
        return self.run("import", "-window", "root", *crop, file)

    def reader(self):
        """What a screen reader on this screen works with."""
        os.environ.update(self.environment)
        return atspi()

    @contextlib.contextmanager
    def listen(self):
        """A function that returns the names of all that has got the focus since, as a screen reader is told of it.

        While somebody listens, programs ask for leave to handle a key: one that is left by a key may not live to hear.
        """
        from gi.repository import GLib

        heard = []
        listener = self.reader().EventListener.new(
            lambda event: event.detail1 and heard.append(event.source.get_name()))

        def names():
            while GLib.MainContext.default().iteration(False):
                pass
            return heard

        listener.register("object:state-changed:focused")
        try:
            yield names
        finally:
            listener.deregister("object:state-changed:focused")

    def programs(self):
        reader = self.reader()
        desktop = reader.get_desktop(0)
        desktop.set_cache_mask(reader.Cache.NONE)
        return children(desktop)


def children(seen):
    return [child for i in range(seen.get_child_count()) if (child := seen.get_child_at_index(i))]


class Game(Player):
    """The running program, at its first window."""

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
        """Waits until another window than before, with the title, takes the input."""

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
        """Where a place of the window, in twips, lies on the screen."""
        return [int(origin + twips * self.factor / 15 + 0.5) for origin, twips in ((self.left, x), (self.top, y))]

    def on_table(self, x, y):
        return self.pixel(240 + x, 120 + y)

    def click(self, x, y):
        self.screen.xdotool("mousemove", *self.pixel(x, y), "click", 1)

    def mouse(self, *steps):
        """Places on the table to move to, and what to do there with a button."""
        commands = [self.BUTTONS.get(step) or ("mousemove", *self.on_table(*step)) for step in steps]
        self.screen.xdotool(*sum(commands, ()))

    def vanish(self):
        """Goes from the screen and comes back; the button is let go meanwhile."""
        self.screen.xdotool("windowminimize", self.window)
        wait("the bare screen", lambda: self.screen.xdotool("getactivewindow") != self.window)
        self.mouse("-left")
        self.screen.xdotool("windowmap", self.window, "windowactivate", self.window)

    def label(self):
        return " ".join(self.read("label")[1:])

    def look(self, place):
        """What shows right of and below a place on the table: the inside of a card that is held there."""
        return self.screen.photograph(part=(60, 90, *self.on_table(*place)))

    def read(self, role):
        """The names of all that has the role in the window in front; nothing while the program has no answer."""
        try:
            return [seen.get_name() for seen in self.seen(role)]
        except RuntimeError:
            return []

    def seen(self, role):
        found = [window for program in self.screen.programs() for window in children(program)
                 if window.get_name() == self.title]
        for parent in found:
            found += children(parent)  # while it is gone through
        return [seen for seen in found if seen.get_role_name() == role]

    def described(self, role):
        """What the accessibility bus has of those with the role in the window in front that have a description."""
        return {seen.get_name(): seen.get_description() for seen in self.seen(role) if seen.get_description()}

    def press(self, caption, role="push button"):
        """Clicks on a button, where the accessibility bus has it."""
        wait(f"the button {caption}", lambda: caption in self.read(role))
        button = next(button for button in self.seen(role) if button.get_name() == caption)
        place = button.get_extents(atspi().CoordType.SCREEN)
        self.screen.xdotool("mousemove", place.x + place.width // 2, place.y + place.height // 2, "click", 1)

    def message(self, title):
        """Waits for the message box with the title; its text."""
        self.in_front(title)
        return wait("the message", lambda: "".join(self.read("label")))

    def end(self):
        """Waits for its end: its exit status, what it said, and whether a process of it is left."""
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

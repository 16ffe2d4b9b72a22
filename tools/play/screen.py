"""A virtual screen with a window manager, a session bus and an accessibility bus."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

from .player import DEADLINE, wait

PROGRAMS = ("Xvfb", "openbox", "xdotool", "xwininfo", "import", "dbus-daemon", "/usr/libexec/at-spi-bus-launcher")
SKIPPED = 77  # the exit status of a test that cannot run here

# Alt+F4 closes a window. The mouse is not bound: the window manager would hold clicks back while it examines them, so
# that they arrived after the player's next input.
WINDOW_MANAGER = """<openbox_config xmlns="http://openbox.org/3.4/rc">
<keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>
<mouse/>
</openbox_config>"""


def atspi():
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi

    return Atspi


def require_programs(*more, purpose="play-window"):
    """Ends the process as a skipped test if a program that a player needs is missing, or one of those named."""
    missing = [program for program in (*PROGRAMS, *more) if shutil.which(program) is None]
    try:
        atspi()
    except (ImportError, ValueError):
        missing.append("Atspi for Python")
    if missing:
        print(f"Missing: {', '.join(missing)}. tools/install-packages {purpose} installs all that is needed.")
        sys.exit(SKIPPED)


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


class Screen:
    """Runs until closed. The game opens at scale 1 on the default size. A process can read the accessibility bus of its
    first screen only."""

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
        """Starts a process that is stopped with the screen."""
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
        """Returns a picture of the screen, or of a part: width, height, left, top."""
        crop = ["-crop", "{}x{}+{}+{}".format(*part), "+repage"] if part else []
        return self.run("import", "-window", "root", *crop, file)

    def reader(self):
        """The interface that screen readers use, on this screen's bus."""
        os.environ.update(self.environment)
        return atspi()

    @contextlib.contextmanager
    def listen(self):
        """Yields a function that returns the names of everything focused since, as a screen reader receives them.

        With a listener, a program asks the bus before it handles a key; it may have ended when the answer arrives.
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

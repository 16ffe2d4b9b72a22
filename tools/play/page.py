"""The page in Chromium."""

import base64
import contextlib
import io
import json
import tempfile

from PIL import Image
from selenium import webdriver
from selenium.webdriver.chrome.service import Service

from .player import FREE, Player, wait

SWITCHES = ("--headless=new --no-sandbox --disable-gpu --disable-quic --no-first-run --disable-background-networking "
            "--disable-component-update --disable-sync").split()
KEYS = {"Enter": 13, "Escape": 27, "Tab": 9, " ": 32, "PageUp": 33, "PageDown": 34, "End": 35, "Home": 36,
        "ArrowLeft": 37, "ArrowUp": 38, "ArrowRight": 39, "ArrowDown": 40, "F1": 112}
BUTTONS = {"left": 1, "right": 2}


class Page(Player):
    """The game in Chromium. `ratio` is the device pixel ratio."""

    LOGS = {"browser": "ALL", "performance": "ALL"}

    def __init__(self, address, ratio=1):
        options = webdriver.ChromeOptions()
        self.profile = tempfile.TemporaryDirectory()
        for switch in [*SWITCHES, f"--user-data-dir={self.profile.name}", f"--force-device-scale-factor={ratio}"]:
            options.add_argument(switch)
        options.set_capability("goog:loggingPrefs", self.LOGS)
        self.browser = webdriver.Chrome(options=options, service=Service("/usr/bin/chromedriver"))
        self.address = address
        self.down = 0
        self.at = (0, 0)

    def close(self):
        self.browser.quit()
        self.profile.cleanup()

    def screen(self, width=1000, height=700):
        """Sets the size of the page, in CSS pixels at zoom 1."""
        self.tell("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=0, mobile=False)
        self.frames(2)

    def frames(self, count):
        """Waits until as many frames were shown."""
        self.browser.execute_async_script("""
            const [count, done] = arguments;
            const next = (left) => left ? requestAnimationFrame(() => next(left - 1)) : done();
            next(count);""", count)

    def zoom(self, factor):
        """Sets the browser's zoom."""
        with self.hidden():
            self.browser.get("chrome://settings")
            self.browser.execute_async_script("chrome.settingsPrivate.setDefaultZoom(...arguments)", factor)

    def tell(self, command, **values):
        return self.browser.execute_cdp_cmd(command, values)

    @contextlib.contextmanager
    def before(self, script):
        """Runs a script before the scripts of each page that is loaded meanwhile."""
        number = self.tell("Page.addScriptToEvaluateOnNewDocument", source=script)["identifier"]
        yield
        self.tell("Page.removeScriptToEvaluateOnNewDocument", identifier=number)

    def ask(self, expression):
        return self.browser.execute_script(f"return {expression}")

    def open(self):
        self.browser.get(self.address)
        self.wait_for_form("cmdPlay")
        self.down = 0

    def open_table(self):
        self.open()
        self.key("Enter")
        self.in_front("Tumble")

    def wait_for_form(self, control):
        """Waits until the control is placed."""
        wait(control, lambda: self.ask(f"!!document.querySelector('[data-name={control}]')?.style.width"))

    def in_front(self, title):
        """Waits until the dialog with the title is open, or the form with it and no dialog, and the deal is done."""
        wait(title, lambda: [title] == (self.box()[:1] or self.ask("[document.title]")))
        wait("the deal", lambda: not self.ask("!!document.querySelector('.busy')"))

    def message(self, title):
        """Waits for the message box with the title and returns its text."""
        self.in_front(title)
        return self.box()[1]

    def block(self, element):
        """Left, top, width and height of an element, in CSS pixels."""
        return self.ask(f"(r => [r.x, r.y, r.width, r.height])({element}.getBoundingClientRect())")

    def control(self, name):
        return self.block(f"document.querySelector('[data-name={name}]')")

    def on_table(self, place):
        left, top, width, _ = self.control("picTable")
        return round(left + place[0] * width / 9015), round(top + place[1] * width / 9015)

    def pointer(self, kind, at, button="none"):
        self.at = at
        self.tell("Input.dispatchMouseEvent", type=kind, x=at[0], y=at[1], button=button, buttons=self.down,
                  clickCount=1)

    def mouse(self, *steps):
        """Each step is a place on the table to move to, or a button to press or release there."""
        for step in steps:
            if isinstance(step, tuple):
                held = next((name for name, bit in BUTTONS.items() if self.down & bit), "none")
                self.pointer("mouseMoved", self.on_table(step), held)
            else:
                self.down ^= BUTTONS[step[1:]]
                self.pointer("mousePressed" if step[0] == "+" else "mouseReleased", self.at, step[1:])

    def touch(self, kind, *places):
        """Sends a touch event such as "touchStart", with a touch at each place of the page."""
        self.tell("Input.dispatchTouchEvent", type=kind, touchPoints=[dict(zip("xy", place)) for place in places])

    def drag_by_finger(self, place, to, end="touchEnd"):
        at, *ways = (self.on_table(each) for each in (place, FREE, to))
        self.touch("touchStart", at)
        for way in ways:
            self.touch("touchMove", way)
        self.frames(8)  # else the browser starts a fling, which the next tap would only stop
        self.touch(end)

    def middle(self, element):
        left, top, width, height = self.block(element)
        return [left + width / 2, top + height / 2]

    def click(self, selector):
        self.click_at(self.middle(f"document.querySelector('{selector}')"))

    def click_at(self, place):
        self.at = place
        self.mouse("+left", "-left")

    def button(self, caption):
        """The middle of the topmost button with the caption."""
        return self.middle("[...document.querySelectorAll('button')]"
                           f".findLast(button => button.clientWidth && button.innerText.trim() === '{caption}')")

    def press(self, caption):
        self.click_at(self.button(caption))

    def tap(self, caption):
        self.touch("touchStart", self.button(caption))
        self.touch("touchEnd")

    def key(self, key, repeated=False):
        """Presses and releases a key, such as "Enter", " " or "alt+x"."""
        *alt, key = key.split("+")
        code = f"Key{key.upper()}" if len(key) == 1 and key.isalpha() else {" ": "Space"}.get(key, key)
        named = {"key": key, "code": code, "modifiers": len(alt),
                 "windowsVirtualKeyCode": KEYS.get(key) or ord(key.upper())}
        text = "" if alt else {"Enter": "\r", " ": " "}.get(key, "")
        self.tell("Input.dispatchKeyEvent", type="keyDown" if text else "rawKeyDown", text=text, autoRepeat=repeated,
                  **named)
        self.tell("Input.dispatchKeyEvent", type="keyUp", **named)

    def vanish(self):
        """Hides the page and shows it again; the button is released meanwhile."""
        with self.hidden():
            self.down = 0

    @contextlib.contextmanager
    def hidden(self):
        """Shows another tab meanwhile."""
        handle = self.browser.current_window_handle
        self.browser.switch_to.new_window("tab")
        yield
        self.browser.close()
        self.browser.switch_to.window(handle)

    def label(self):
        return self.ask("document.querySelector('[data-name=lblCurrentCard]').innerText")

    def box(self):
        """Title and text of the open dialog; empty if there is none."""
        return self.ask("""[...document.querySelectorAll('dialog')].flatMap(dialog =>
            [dialog.ariaLabel, ...[...dialog.querySelectorAll('[data-name=lblText]')].map(text => text.innerText)])""")

    def focus(self):
        return self.ask("(e => e.dataset.name ?? e.parentElement.dataset.name ?? e.innerText)(document.activeElement)")

    def look(self, place):
        """The colour near a place on the table, where the face of a card held there is blank."""
        left, top = self.on_table(place)
        return self.photograph().getpixel((left + 2, top + 90))

    def photograph(self):
        return Image.open(io.BytesIO(base64.b64decode(self.tell("Page.captureScreenshot")["data"]))).convert("RGB")

    def over(self):
        return "The game is over." in self.ask("document.body.innerText")

    def requests(self):
        messages = [json.loads(entry["message"])["message"] for entry in self.browser.get_log("performance")]
        return {message["params"]["request"]["url"] for message in messages
                if message["method"] == "Network.requestWillBeSent"}

#!/usr/bin/python3
"""Plays the page in Chromium, by mouse, keys and fingers: web_test.py FOLDER"""

import base64
import functools
import http.server
import io
import json
import pathlib
import sys
import tempfile
import threading
import time
import unittest

from PIL import Image
from selenium import webdriver
from selenium.webdriver.chrome.service import Service

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
from player import CORNERS, FREE, in_spread, wait

LOWEST = "You must play the lowest ranking card, a Two"
BELOW = (2400, 4200)  # below the spread, as
ASIDE = (5400, 4300)
BLANK = (255, 255, 255)  # of a face
TABLE = (30, 90, 64)
OUTSIDE = ((5400, 9000), (12000, 9000), (12000, -3000))  # of the page, by the edge below
SWITCHES = ("--headless=new --no-sandbox --disable-gpu --disable-quic --no-first-run --disable-background-networking "
            "--disable-component-update --disable-sync").split()
KEYS = {"Enter": 13, "Escape": 27, "Tab": 9, " ": 32, "ArrowUp": 38, "ArrowDown": 40, "ArrowRight": 39, "End": 35,
        "F1": 112}
BUTTONS = {"left": 1, "right": 2}


class Server(http.server.ThreadingHTTPServer):
    """Serves a folder under a path of its own."""

    def __init__(self, folder):
        class Handler(http.server.SimpleHTTPRequestHandler):
            def translate_path(self, path):
                return super().translate_path(path.removeprefix("/some/where"))

            def log_message(self, *words):
                pass

        super().__init__(("127.0.0.1", 0), functools.partial(Handler, directory=folder))
        self.address = f"http://127.0.0.1:{self.server_port}/some/where/"
        threading.Thread(target=self.serve_forever, daemon=True).start()


class Page:
    """The game in a browser. Places are in twips of the table."""

    def __init__(self, address, ratio=1):
        options = webdriver.ChromeOptions()
        self.profile = tempfile.TemporaryDirectory()
        for switch in [*SWITCHES, f"--user-data-dir={self.profile.name}", f"--force-device-scale-factor={ratio}"]:
            options.add_argument(switch)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        self.browser = webdriver.Chrome(options=options, service=Service("/usr/bin/chromedriver"))
        self.address = address
        self.down = 0
        self.at = (0, 0)

    def close(self):
        self.browser.quit()
        self.profile.cleanup()

    def screen(self, width=1000, height=700):
        """The size of the page, in its own pixels."""
        self.tell("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=0, mobile=False)
        self.browser.execute_async_script("requestAnimationFrame(() => requestAnimationFrame(arguments[0]))")

    def tell(self, command, **values):
        return self.browser.execute_cdp_cmd(command, values)

    def ask(self, expression):
        return self.browser.execute_script(f"return {expression}")

    def open(self):
        self.browser.get(self.address)
        self.wait_for_form("cmdPlay")
        self.down = 0

    def open_table(self):
        self.open()
        self.key("Enter")
        self.wait_for_form("cmdHelp")
        wait("the deal", lambda: not self.ask("document.querySelector('.busy')"))

    def wait_for_form(self, control):
        wait(control, lambda: self.ask(f"!!document.querySelector('[data-name={control}]')?.clientWidth"))

    def middle(self, selector):
        return self.ask(f"(r => [r.x + r.width / 2, r.y + r.height / 2])"
                        f"(document.querySelector('{selector}').getBoundingClientRect())")

    def on_table(self, place):
        left, top, unit = self.ask("(r => [r.x, r.y, r.width / 9015])"
                                   "(document.querySelector('[data-name=picTable]').getBoundingClientRect())")
        return round(left + place[0] * unit), round(top + place[1] * unit)

    def pointer(self, kind, at, button="none"):
        self.at = at
        self.tell("Input.dispatchMouseEvent", type=kind, x=at[0], y=at[1], button=button, buttons=self.down,
                  clickCount=1)

    def mouse(self, *steps):
        """Places on the table to move to, and buttons to press ("+left") or to release ("-left")."""
        for step in steps:
            if isinstance(step, tuple):
                held = next((name for name, bit in BUTTONS.items() if self.down & bit), "none")
                self.pointer("mouseMoved", self.on_table(step), held)
            else:
                self.down ^= BUTTONS[step[1:]]
                self.pointer("mousePressed" if step[0] == "+" else "mouseReleased", self.at, step[1:])

    def drag(self, place, to):
        self.mouse(place, "+left", to, "-left")

    def click(self, selector):
        at = self.middle(selector)
        self.down = 1
        self.pointer("mousePressed", at, "left")
        self.down = 0
        self.pointer("mouseReleased", at, "left")

    def key(self, key, alt=False, repeated=False):
        code = f"Key{key.upper()}" if len(key) == 1 and key.isalpha() else {" ": "Space"}.get(key, key)
        named = {"key": key, "code": code, "modifiers": 1 if alt else 0,
                 "windowsVirtualKeyCode": KEYS.get(key) or ord(key.upper())}
        self.tell("Input.dispatchKeyEvent", type="rawKeyDown", autoRepeat=repeated, **named)
        self.tell("Input.dispatchKeyEvent", type="keyUp", **named)

    def label(self):
        return self.ask("document.querySelector('[data-name=lblCurrentCard]').innerText")

    def box(self):
        """Title and text of the dialog that is open."""
        return self.ask("[...document.querySelectorAll('dialog h1, dialog p')].map(part => part.innerText)")

    def focus(self):
        return self.ask("(e => e.dataset.name ?? e.parentElement.dataset.name ?? e.innerText)(document.activeElement)")

    def look(self, place):
        """The colour under a place on the table, where a face held there is blank."""
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


class WebTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.server = Server(FOLDER)
        cls.addClassCleanup(cls.server.shutdown)
        cls.page = Page(cls.server.address)
        cls.addClassCleanup(cls.page.close)

    def setUp(self):
        self.page.screen()
        self.page.browser.get("about:blank")
        self.page.requests()

    def tearDown(self):
        self.assertEqual(self.page.browser.get_log("browser"), [], "the console")
        self.assertEqual({address for address in self.page.requests()
                          if not address.startswith(self.server.address)}, set())

    def assert_told(self, text, title="Invalid Move!"):
        self.assertEqual(self.page.box(), [title, text])

    def test_game_ends_in_every_way_and_begins_again(self):
        for way in ("Exit", "Escape", "x"):
            with self.subTest(way):
                self.page.open()
                self.page.click("[data-name=cmdExit]") if way == "Exit" else self.page.key(way, alt=way == "x")
                self.assertTrue(self.page.over())
                self.page.click("#over a")
                self.page.wait_for_form("cmdPlay")
        for way in ("Exit", "Enter", "x"):
            with self.subTest(way):
                self.page.open_table()
                self.page.click("[data-name=cmdExit]") if way == "Exit" else self.page.key(way, alt=way == "x")
                self.assertTrue(self.page.over())

    def test_default_game_is_refused_and_won_by_the_mouse(self):
        page = self.page
        page.open()
        page.click("[data-name=cmdPlay]")
        page.wait_for_form("cmdHelp")
        wait("the deal", lambda: not page.ask("document.querySelector('.busy')"))
        page.drag(in_spread(4), CORNERS[0])
        self.assert_told(LOWEST)
        page.click("dialog button")
        self.assertEqual(page.box(), [])
        page.drag(CORNERS[0], ASIDE)
        for card in range(51):
            page.drag(ASIDE if card == 4 else in_spread(card), CORNERS[card % 4])
        page.drag(in_spread(51), CORNERS[3])
        self.assert_told("CONGRATULATIONS!", "YOU WIN")
        page.key("Enter")
        self.assertEqual(page.box(), [])

    def test_boxes_block_and_give_the_focus_back(self):
        page = self.page
        page.open_table()
        for open_box, title in ((lambda: page.key("F1"), "Tumble Instructions"),
                                (lambda: page.key("a", alt=True), "About Tumble")):
            for close in (lambda: page.key("Enter"), lambda: page.key("Escape"), lambda: page.click("dialog button")):
                page.mouse(FREE)
                self.assertEqual((page.label(), page.focus()), ("None", "picTable"))
                open_box()
                self.assertEqual(page.box()[0], title)
                self.assertIn(page.focus(), ("OK", "cmdOK"))
                page.drag(in_spread(51), BELOW)
                page.key("x", alt=True)
                page.key("F1")
                self.assertEqual((page.label(), page.box()[0]), ("None", title))
                page.screen(800, 600)
                page.screen()
                close()
                self.assertEqual((page.box(), page.label(), page.focus()), ([], "None", "picTable"))
                page.mouse(in_spread(51))
                self.assertEqual(page.label(), "Ace of Spades")
        page.key("F1")
        page.open_table()  # in the middle of a box
        self.assertEqual(page.box(), [])

    def test_keys_choose_and_a_held_one_counts_once(self):
        page = self.page
        page.open()
        tabs = []
        for _ in range(5):
            tabs.append(page.focus())
            page.key("Tab")
        self.assertEqual(tabs, ["cmdPlay", "cmdExit", "optCardNormal", "sldBackDesign", "optNaturalOrder"])
        page.ask("document.querySelector('[data-name=sldBackDesign]').focus()")
        for key, value in (("ArrowDown", "2"), ("ArrowRight", "3"), ("ArrowUp", "2"), ("End", "4"), ("ArrowDown", "4")):
            page.key(key)
            self.assertEqual(page.ask("document.activeElement.value"), value)
        page.ask("document.querySelector('[data-name=optDeckStandard] input').focus()")
        for key, choice in (("ArrowUp", "optDeckStandard"), ("ArrowDown", "optDeckStandardWithJokers"),
                            ("ArrowDown", "optDeck36Card"), ("ArrowUp", "optDeckStandardWithJokers")):
            page.key(key)
            self.assertEqual((page.focus(), page.ask("document.activeElement.checked")), (choice, True))
        self.assertEqual(page.ask("document.querySelector('[data-name=lblDeckDescription]').innerText"),
                         "Standard 52-card deck plus two jokers")
        page.key("Enter")
        page.key("Enter", repeated=True)
        page.wait_for_form("cmdHelp")
        page.key("Enter", repeated=True)
        self.assertFalse(page.over())

    def test_keyboards_pointer_carries_a_card(self):
        page = self.page
        page.open_table()
        for key in ("End", "ArrowUp", " ", "ArrowDown", " "):
            page.key(key)
        self.assertTrue(page.ask("document.querySelector('.ring').clientWidth > 0"))
        self.assertNotEqual(page.label(), "None")
        page.mouse(FREE, BELOW)
        self.assertFalse(page.ask("document.querySelector('.ring').clientWidth > 0"))

    def test_drag_survives_the_pages_edge_a_box_and_a_second_button(self):
        page = self.page
        page.open_table()
        page.mouse(in_spread(51), "+left", *OUTSIDE, ASIDE)
        self.assertEqual(page.look(ASIDE), BLANK)
        page.mouse("+right")
        self.assertNotIn(page.look(ASIDE), (BLANK, TABLE))
        page.mouse("-right", FREE, "-left", ASIDE, "+right", "-right")
        self.assertEqual(page.look(ASIDE), BLANK)
        page.mouse(in_spread(4), "+left", (7875, 405), (7875, -30))
        self.assert_told(LOWEST)
        page.key("Enter")
        page.mouse(*OUTSIDE, BELOW)
        self.assertEqual(page.look(BELOW), BLANK)
        page.mouse("-left", FREE)
        self.assertEqual((page.look(BELOW), page.label()), (BLANK, "None"))

    def test_card_follows_when_the_button_is_let_go_while_the_refusal_is_open(self):
        page = self.page
        page.open_table()
        page.mouse(in_spread(4), "+left", (7875, 405), (7875, -30))
        self.assert_told(LOWEST)
        page.mouse("-left")
        page.key("Enter")
        page.mouse(BELOW)
        self.assertEqual(page.look(BELOW), BLANK)
        page.mouse("+left", "-left", CORNERS[3])
        self.assertEqual((page.look(BELOW), page.label()), (BLANK, "Pile (empty)"))

    def test_card_is_dropped_when_the_page_was_hidden(self):
        page = self.page
        page.open_table()
        page.mouse(in_spread(51), "+left", BELOW)
        table = page.browser.current_window_handle
        page.browser.switch_to.new_window("tab")
        page.browser.close()
        page.browser.switch_to.window(table)
        page.down = 0
        wait("the label", lambda: page.mouse(FREE) or page.label() == "None")
        self.assertEqual(page.look(BELOW), BLANK)

    def test_deal_goes_on_while_the_page_is_hidden(self):
        page = self.page
        page.open()
        page.browser.execute_script("""
            const watched = {subtree: true, childList: true, attributes: true};
            new MutationObserver(() => {
                if (document.querySelector('[data-name=picTable]') && !document.querySelector('.busy')) {
                    document.title = `hidden: ${document.hidden}`;
                }
            }).observe(document.querySelector('main'), watched);
            document.addEventListener('visibilitychange', () => document.querySelector('[data-name=cmdPlay]').click(),
                                      {once: true});""")
        table = page.browser.current_window_handle
        page.browser.switch_to.new_window("tab")
        wait("the deal", lambda: any(target["title"] == "hidden: true"
                                     for target in page.tell("Target.getTargets")["targetInfos"]))
        page.browser.close()
        page.browser.switch_to.window(table)

    def test_fingers_drag_and_flip(self):
        page = self.page
        page.open_table()

        def touch(kind, *places):
            page.tell("Input.dispatchTouchEvent", type=kind,
                      touchPoints=[dict(zip("xy", page.on_table(place))) for place in places])

        touch("touchStart", in_spread(51))
        touch("touchMove", BELOW)
        touch("touchEnd")
        self.assertEqual(page.look(BELOW), BLANK)
        touch("touchStart", (BELOW[0] + 300, BELOW[1] + 300))
        wait("the back", lambda: page.look(BELOW) != BLANK)
        touch("touchEnd")

    def test_every_pixel_is_the_screens_own(self):
        for ratio in (1, 1.5, 2, 3):
            page = Page(self.server.address, ratio)
            self.addCleanup(page.close)
            page.screen()
            page.open_table()
            for width, height in ((1280, 801), (390, 844), (700, 340), (1000, 700)):
                if width * ratio < 480:
                    continue  # shrunk
                with self.subTest((width, height, ratio)):
                    page.screen(width, height)
                    self.check_pixels(page, min(width * ratio / 635, height * ratio / 442))

    def check_pixels(self, page, scale):
        """Waits until the table shows at the scale, looks at the left borders of cards, and for bars to scroll with."""
        def table():
            return page.ask("""(canvas => {
                const {x, y, width} = canvas.getBoundingClientRect();
                return [...[x, y, width].map(length => length * devicePixelRatio), canvas.width];
            })(document.querySelector('[data-name=picTable]'))""")

        wait("the table", lambda: abs(table()[3] - scale * 601) < 1.5)
        left, top, width, pixels = table()
        self.assertAlmostEqual(width, pixels, delta=0.1)
        scale = pixels / 601
        shown = page.photograph()

        def pixel(twips):
            return shown.getpixel((round(left) + round(twips * scale / 15), round(top) + int(1700 * scale / 15)))

        for card in (0, 5):
            edge = 1300 + 150 * card
            colours = [pixel(edge + twips) for twips in range(-30, 100, 3)]
            self.assertIn((0, 0, 0), colours)
            self.assertEqual(set(colours) - {(0, 0, 0), BLANK, TABLE}, set(), "nothing between black and white")
        self.assertLessEqual(page.ask("document.documentElement.scrollWidth - innerWidth"), 0)
        self.assertLessEqual(page.ask("document.documentElement.scrollHeight - innerHeight"), 0)


if __name__ == "__main__":
    FOLDER = sys.argv.pop(1)
    unittest.main(failfast=True)

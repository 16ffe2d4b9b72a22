#!/usr/bin/python3
"""Plays the page in WebKit and in Firefox, by mouse, keys and fingers: engines_test.py FOLDER"""

import base64
import glob
import io
import json
import pathlib
import socket
import sys
import unittest
import urllib.request

import websocket
from PIL import Image

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from scenarios import ASIDE, CORNERS, LOWEST, Scenarios, in_spread, wait
from page import Page, Server
import web_test
from player import Screen

KEYS = {"Enter": "\ue007", "Escape": "\ue00c", "PageUp": "\ue00e", "PageDown": "\ue00f", "End": "\ue010",
        "Home": "\ue011", "ArrowLeft": "\ue012", "ArrowUp": "\ue013", "ArrowRight": "\ue014", "ArrowDown": "\ue015"}
WATCH = """
    window.faults = [];
    for (const kind of ['error', 'unhandledrejection', 'securitypolicyviolation']) {
        addEventListener(kind, (event) => faults.push(String(event.message ?? event.reason ?? event.blockedURI)), true);
    }
    console.error = console.warn = (...words) => faults.push(words.join(' '));"""


class Driven(Page):
    """The game in a browser on a screen of the player's that takes a standard driver's actions."""

    def open(self):
        self.visit(self.address)
        self.run(WATCH)
        self.wait_for_form("cmdPlay")

    def ask(self, expression):
        return json.loads(self.run(f"return JSON.stringify({expression} ?? null)"))

    def act(self, kind, *actions, by=None):
        source = {"parameters": {"pointerType": by}} if by else {}
        self.perform([{"type": kind, "id": by or kind, **source,
                       "actions": [{"type": kind + name, **more} for name, more in actions]}])

    def hold(self, *places, by="mouse"):
        """With the button or finger down from the first place to the last, in the page's pixels."""
        at, *to = [("Move", {"x": round(x), "y": round(y)}) for x, y in places]
        self.act("pointer", at, ("Down", {"button": 0}), *to, ("Up", {"button": 0}), by=by)

    def drag(self, *places, by="mouse"):
        self.hold(*map(self.on_table, places), by=by)

    def click(self, selector):
        self.hold(self.middle(f"document.querySelector('{selector}')"))

    def key(self, key):
        value = KEYS.get(key, key)
        self.act("key", ("Down", {"value": value}), ("Up", {"value": value}))

    def photograph(self):
        return Image.open(io.BytesIO(base64.b64decode(self.picture()))).convert("RGB")


class WebKit(Driven):
    def __init__(self, screen, address, _):
        self.address = address
        with socket.create_server(("127.0.0.1", 0)) as free:
            port = free.getsockname()[1]
        screen.start("WebKitWebDriver", f"--port={port}")

        def ready():
            with socket.socket() as caller:
                return caller.connect_ex(("127.0.0.1", port)) == 0

        wait("the driver", ready)
        self.session = f"http://127.0.0.1:{port}/session"
        [browser] = glob.glob("/usr/lib/*/webkit2gtk-4.*/MiniBrowser")
        options = {"webkitgtk:browserOptions": {"binary": browser, "args": ["--automation"]}}
        self.session += "/" + self.tell("", capabilities={"alwaysMatch": options})["sessionId"]

    def tell(self, command, **values):
        body = json.dumps(values).encode() if values else None
        with urllib.request.urlopen(self.session + command, body) as answer:
            return json.load(answer)["value"]

    def visit(self, address):
        self.tell("/url", url=address)

    def run(self, script):
        return self.tell("/execute/sync", script=script, args=[])

    def perform(self, actions):
        self.tell("/actions", actions=actions)

    def picture(self):
        return self.tell("/screenshot")


class Firefox(Driven):
    def __init__(self, screen, address, ratio):
        self.address = address
        profile = pathlib.Path(screen.home, "firefox")
        profile.mkdir()
        (profile / "user.js").write_text('user_pref("network.dns.disabled", true);')  # it would call home
        screen.start("firefox-esr", "--headless", "--profile", profile, "--remote-debugging-port=0")
        told = profile / "WebDriverBiDiServer.json"
        port = json.loads(wait("Firefox", lambda: told.exists() and told.read_text()))["ws_port"]
        self.socket = websocket.create_connection(f"ws://127.0.0.1:{port}/session", suppress_origin=True)
        self.here = {}
        self.tell("session.new", capabilities={})
        self.here = {"context": self.tell("browsingContext.getTree")["contexts"][0]["context"]}
        self.tell("browsingContext.setViewport", viewport={"width": 1000, "height": 700}, devicePixelRatio=ratio)

    def tell(self, command, **values):
        self.socket.send(json.dumps({"id": 1, "method": command, "params": values | self.here}))
        return json.loads(self.socket.recv())["result"]

    def visit(self, address):
        self.tell("browsingContext.navigate", url=address, wait="complete")

    def run(self, script):
        return self.tell("script.evaluate", expression=f"(() => {{{script}}})()", target=self.here,
                         awaitPromise=False)["result"].get("value")

    def perform(self, actions):
        self.tell("input.performActions", actions=actions)

    def picture(self):
        return self.tell("browsingContext.captureScreenshot")["data"]


class EnginesTest(unittest.TestCase):
    def test_default_game_is_chosen_by_keys_refused_and_won_by_mouse_keys_and_fingers(self):
        server = Server(FOLDER)
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        for engine, ratio in ((WebKit, 1), (WebKit, 2), (Firefox, 1), (Firefox, 2)):
            with self.subTest(engine.__name__, ratio=ratio), Screen(1280, 900, GDK_SCALE=str(ratio)) as screen:
                self.page = page = engine(screen, server.address, ratio)
                self.leave(page)
                self.choose(page)
                page.in_front("Tumble")
                self.win(page, "mouse")
                if ratio == 1:
                    Scenarios.test_default_game_is_won_by_keys_and_ear(self)
                if engine is Firefox:  # WebKit's driver makes a mouse of a finger
                    self.win(self.start_table(), "touch")

    def start_table(self):
        self.page.open()
        self.page.key("Enter")
        self.page.in_front("Tumble")
        return self.page

    def listen(self):
        return web_test.WebTest.listen(self)

    @staticmethod
    def close(page, way):
        page.key(way)

    def assert_won(self, page):
        Scenarios.assert_told(self, page, "CONGRATULATIONS!", title="YOU WIN")
        self.assertEqual(page.ask("faults"), [])

    def leave(self, page):
        page.open()
        page.key("Escape")
        wait("the end", page.over)

    def choose(self, page):
        def wait_for(choice):
            wait(choice, lambda: page.focus() == choice and page.ask("document.activeElement.checked"))

        def wait_for_value(value):
            wait(f"the value {value}", lambda: page.ask("document.activeElement.value") == value)

        page.open()
        page.click("[data-name=optDeckStandard]")
        wait_for("optDeckStandard")
        for key, choice in (("ArrowDown", "optDeckStandardWithJokers"), ("ArrowDown", "optDeck36Card"),
                            ("ArrowUp", "optDeckStandardWithJokers"), ("ArrowUp", "optDeckStandard")):
            page.key(key)
            wait_for(choice)
        left, top, width, height = page.control("sldBackDesign")
        for part, value in ((.96, "4"), (.35, "2"), (.04, "1")):
            page.hold((left + width / 2, top + height * part))
            wait_for_value(value)
        for key, value in (("ArrowDown", "2"), ("ArrowRight", "3"), ("ArrowUp", "2"), ("ArrowUp", "1")):
            page.key(key)
            wait_for_value(value)
        page.key("Enter")

    def win(self, page, by):
        width, height, ratio = page.ask("[innerWidth, innerHeight, devicePixelRatio]")
        web_test.WebTest.check_pixels(self, page, min(width * ratio / 635, height * ratio / 442))
        page.drag(in_spread(4), CORNERS[0], by=by)
        self.assertEqual(page.message("Invalid Move!"), LOWEST)
        page.click("dialog button")
        page.in_front("Tumble")
        page.drag(CORNERS[0], ASIDE, by=by)
        for card in range(51):
            page.drag(ASIDE if card == 4 else in_spread(card), CORNERS[card % 4], by=by)
        page.drag(in_spread(51), CORNERS[3], by=by)
        self.assert_won(page)


if __name__ == "__main__":
    FOLDER = sys.argv.pop(1)
    unittest.main()

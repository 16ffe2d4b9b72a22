"""The page in WebKit and Firefox, by their standard drivers."""

import base64
import glob
import io
import json
import pathlib
import socket
import urllib.request

import websocket
from PIL import Image

from .page import Page
from .player import wait

KEYS = {"Enter": "\ue007", "Escape": "\ue00c", "PageUp": "\ue00e", "PageDown": "\ue00f", "End": "\ue010",
        "Home": "\ue011", "ArrowLeft": "\ue012", "ArrowUp": "\ue013", "ArrowRight": "\ue014", "ArrowDown": "\ue015"}
WATCH = """
    window.faults = [];
    for (const kind of ['error', 'unhandledrejection', 'securitypolicyviolation']) {
        addEventListener(kind, (event) => faults.push(String(event.message ?? event.reason ?? event.blockedURI)), true);
    }
    console.error = console.warn = (...words) => faults.push(words.join(' '));"""


class Driven(Page):
    """The game in a browser that a standard driver controls. Derived classes provide visit(), run(), perform() and
    picture()."""

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
        """Presses the button or touches at the first place, moves to the others and releases; in CSS pixels."""
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
        (profile / "user.js").write_text('user_pref("network.dns.disabled", true);')  # no background requests
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

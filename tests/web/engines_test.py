"""Plays the page in WebKit and in Firefox: /usr/bin/python3 -m tests.web.engines_test FOLDER"""

import sys
import unittest

from tools.play.drivers import Firefox, WebKit
from tools.play.player import CORNERS, in_spread, wait
from tests.scenarios import ASIDE, LOWEST, PageSteps
from tools.play.screen import Screen
from tools.play.server import Server


class EnginesTest(PageSteps, unittest.TestCase):
    def test_default_game_is_won_by_mouse_keys_and_touch(self):
        server = Server(FOLDER)
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        for engine, ratio in ((WebKit, 1), (WebKit, 2), (Firefox, 1), (Firefox, 2)):
            with self.subTest(engine.__name__, ratio=ratio), Screen(1280, 900, GDK_SCALE=str(ratio)) as screen:
                self.page = engine(screen, server.address, ratio)
                self.leave(self.start(), "Escape")
                self.choose(self.start())
                self.win(self.start_table(), "mouse")
                if ratio == 1:
                    self.win_by_keys()
                if engine is Firefox:  # WebKit's driver turns touches into mouse events
                    self.win(self.start_table(), "touch")

    def start(self):
        self.page.open()
        return self.page

    def assert_over(self, page):
        wait("the end", page.over)
        self.assertEqual(page.ask("faults"), [])

    def choose(self, page):
        def wait_for(choice):
            wait(choice, lambda: page.focus() == choice and page.ask("document.activeElement.checked"))

        def wait_for_value(value):
            wait(f"the value {value}", lambda: page.ask("document.activeElement.value") == value)

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
        page.in_front("Tumble")

    def win(self, page, by):
        width, height, ratio = page.ask("[innerWidth, innerHeight, devicePixelRatio]")
        self.check_pixels(page, min(width * ratio / 635, height * ratio / 442))
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

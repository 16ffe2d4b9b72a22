"""Plays the page in Chromium by mouse, keys and touch: /usr/bin/python3 -m tests.web.web_test FOLDER"""

import itertools
import pathlib
import sys
import unittest

from tools.play.page import Page
from tools.play.player import CORNERS, FREE, in_spread, wait
from tests.scenarios import ASIDE, BELOW, BLANK, TABLE, PageSteps, Scenarios
from tools.play.server import Server

AXE = pathlib.Path(__file__).with_name("node_modules") / "axe-core/axe.min.js"


class WebTest(PageSteps, Scenarios, unittest.TestCase):
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

    def start(self):
        self.page.open()
        return self.page

    def assert_over(self, game):
        wait("the end", game.over)
        game.click("#over a")
        game.wait_for_form("cmdPlay")

    def test_previews_show_at_the_start(self):
        page = self.start()
        for name in ("pctCardSize", "pctBackDesign"):
            left, top, width, height = page.control(name)
            colours = page.photograph().crop((left, top, left + width, top + height)).getcolors(width * height)
            self.assertGreater(len(colours), 2, name)
        places = [page.block(f"document.querySelector('[data-name=cmdPlay] {part}')") for part in ("svg", "span")]
        (_, top, _, height), (_, caption, *_) = places
        self.assertLessEqual(top + height, caption, "the icon above the caption")

    def test_page_states_a_missing_requirement(self):
        page = self.page
        home = self.server.address

        def visit(address, words):
            page.browser.get(address)
            wait(words, lambda: words in page.ask("document.querySelector('main').innerText"))
            page.browser.get_log("browser")

        visit(FOLDER.joinpath("index.html").resolve().as_uri(), "opened from a disk")
        for missing in ("WebAssembly", "HTMLDialogElement"):
            with page.before(f"delete window.{missing}"):
                visit(home, "a current browser")
        self.addCleanup(page.tell, "Emulation.setScriptExecutionDisabled", value=False)
        page.tell("Emulation.setScriptExecutionDisabled", value=True)
        visit(home, "scripts, which are switched off")
        page.requests()

    def test_page_is_resized_and_reloaded_while_a_box_is_open(self):
        def part_of_table():
            return page.block("document.querySelector('dialog')")[2] / page.control("picTable")[2]

        page = self.start_table()
        page.key("F1")
        part = part_of_table()
        page.screen(390, 844)
        self.assertAlmostEqual(part_of_table(), part, delta=0.02)
        page.key("Enter")
        page.in_front("Tumble")
        page.key("F1")
        page.open_table()
        self.assertEqual(page.box(), [])

    def test_keys_choose_options_and_a_held_key_counts_once(self):
        page = self.start()
        tabs = []
        for _ in range(5):
            tabs.append(page.focus())
            page.key("Tab")
        self.assertEqual(tabs, ["cmdPlay", "cmdExit", "optCardNormal", "sldBackDesign", "optNaturalOrder"])
        page.ask("document.querySelector('[data-name=sldBackDesign]').focus()")
        for key, value in (("ArrowDown", "2"), ("ArrowRight", "3"), ("ArrowUp", "2"), ("End", "4"), ("ArrowDown", "4")):
            page.key(key)
            self.assertEqual(page.ask("document.activeElement.value"), value)
        page.ask("document.querySelector('[data-name=optDeckStandard]').focus()")
        for key, choice in (("ArrowUp", "optDeckStandard"), ("ArrowDown", "optDeckStandardWithJokers"),
                            ("ArrowDown", "optDeck36Card"), ("ArrowUp", "optDeckStandardWithJokers")):
            page.key(key)
            self.assertEqual((page.focus(), page.ask("document.activeElement.checked")), (choice, True))
        self.assertEqual(page.ask("document.querySelector('[data-name=lblDeckDescription]').innerText"),
                         "Standard 52-card deck plus two jokers")
        page.key("Enter")
        page.key("Enter", repeated=True)
        page.in_front("Tumble")
        page.key("Enter", repeated=True)
        self.assertFalse(page.over())

    def test_held_space_keeps_the_card_that_a_held_key_moves(self):
        page = self.start_table()
        page.strike("End", "ArrowUp")
        card = page.label()
        for key, repeated in ((" ", False), (" ", True), ("End", True)):
            page.key(key, repeated)
        self.assertEqual(page.label(), card)
        self.assertTrue(page.ask("document.querySelector('[data-name=picTable] + .mark').clientWidth > 0"))
        page.mouse(FREE, BELOW)
        self.assertFalse(page.ask("document.querySelector('[data-name=picTable] + .mark').clientWidth > 0"))

    def test_deal_shows_the_hourglass_and_continues_while_the_page_is_hidden(self):
        page = self.start()
        page.browser.execute_script("""
            const states = new Set();
            new MutationObserver(() => {
                const table = document.querySelector('[data-name=picTable]');
                if (table) {
                    states.add(`${getComputedStyle(table).cursor} ${document.hidden}`);
                    document.title = [...states];
                }
            }).observe(document.querySelector('main'), {subtree: true, childList: true, attributes: true});
            document.addEventListener('visibilitychange', () => document.querySelector('[data-name=cmdPlay]').click(),
                                      {once: true});""")
        with page.hidden():
            wait("the deal", lambda: any(target["title"] == "wait true,default true"
                                         for target in page.tell("Target.getTargets")["targetInfos"]))

    def test_long_press_flips_and_a_cancelled_drag_drops_the_card(self):
        page = self.start_table()
        for end, place, to in (("touchEnd", in_spread(51), BELOW), ("touchCancel", BELOW, ASIDE)):
            page.drag_by_finger(place, to, end)
            self.assertEqual(page.look(to), BLANK)
        page.touch("touchStart", page.on_table((ASIDE[0] + 300, ASIDE[1] + 300)))
        wait("the back", lambda: page.look(ASIDE) != BLANK)
        page.touch("touchEnd")
        page.lift(in_spread(50), BELOW)
        page.ask("document.querySelector('[data-name=picTable]').dispatchEvent("
                 "new PointerEvent('pointercancel', {pointerId: 1, bubbles: true}))")
        page.mouse(FREE)
        self.assertEqual((page.look(BELOW), page.label()), (BLANK, "None"))

    def test_default_game_is_won_by_touch(self):
        page = self.start()
        page.tap("Play")
        page.in_front("Tumble")
        page.key("F1")
        under = page.button("OK")
        page.key("Enter")
        page.touch("touchStart", under)
        page.key("F1")
        page.touch("touchEnd")
        page.in_front("Tumble Instructions")
        page.tap("OK")
        page.in_front("Tumble")
        for card in range(52):
            page.drag_by_finger(in_spread(card), CORNERS[card % 4])
        self.assertEqual(page.message("YOU WIN"), "CONGRATULATIONS!")
        page.tap("OK")
        page.in_front("Tumble")
        page.tap("Exit")
        self.assert_over(page)

    def test_touch_drags_the_card_under_it_on_an_enlarged_table(self):
        page = self.page
        page.screen(390, 844)
        page.open_table()
        x, y = page.on_table(in_spread(30))
        page.tell("Input.synthesizePinchGesture", x=x, y=y, scaleFactor=2.5)
        enlarged = page.ask("[visualViewport.scale, visualViewport.offsetLeft, visualViewport.offsetTop]")
        self.assertGreater(enlarged[0], 2)
        card, way, to = ([x - enlarged[1], y - enlarged[2]] for x, y in map(page.on_table, (in_spread(33), FREE, BELOW)))
        page.touch("touchStart", card)
        page.touch("touchMove", way)
        page.touch("touchMove", to)
        page.frames(8)
        page.touch("touchEnd")
        self.assertEqual(page.label(), "Ten of Clubs")
        self.assertEqual(page.ask("[visualViewport.scale, visualViewport.offsetLeft, visualViewport.offsetTop]"), enlarged)

    def test_colours_follow_the_theme(self):
        self.addCleanup(self.page.tell, "Emulation.setEmulatedMedia")

        page = self.start()
        page.screen(1000, 900)

        def corner(element):
            return page.ask(f"(r => [r.x + 3, r.y + 3])(document.querySelector('{element}').getBoundingClientRect())")

        def check(place, light, dark):
            """Compares the page, the window and another place in both themes."""
            places = [corner("main"), corner(".content"), place]
            for theme, *colours in (("light", (199,) * 3, (239,) * 3, light), ("dark", (36,) * 3, (50,) * 3, dark)):
                page.tell("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": theme}])
                wait(theme, lambda: [page.photograph().getpixel((int(x), int(y))) for x, y in places] == colours)

        check(corner("[data-name=pctCardSize]"), (239,) * 3, (50,) * 3)
        page.press("Play")
        page.in_front("Tumble")
        page.lift(in_spread(51), BELOW)
        check(page.on_table(FREE), TABLE, TABLE)
        self.assertEqual(page.look(BELOW), BLANK)

    def test_page_is_accessible_in_both_themes(self):
        self.addCleanup(self.page.tell, "Emulation.setEmulatedMedia")
        deck, card = "Standard 52-card deck", "Two of Diamonds"
        for theme in ("light", "dark"):
            self.page.tell("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": theme}])
            page = self.start()
            self.assert_accessible(page, ("group", "Deck Type", deck), ("", deck))
            page.key("Enter")
            page.in_front("Tumble")
            page.drag(in_spread(0), CORNERS[0])
            self.assert_accessible(page, ("image", "Table", card), ("", card))
            page.drag(in_spread(1), CORNERS[0])
            self.assert_accessible(page, ("alertdialog", "Invalid Move!", "You must follow suit with a Diamond"))
            page.key("Enter")
            page.key("alt+a")
            self.assert_accessible(page, ("dialog", "About Tumble", ""))
            page.key("Enter")
            page.key("alt+x")
            self.assert_accessible(page, ("link", "Play again", ""))

    def assert_accessible(self, page, *shown):
        """Expects no violation, and each (role, name, description) or ("", text of a live region) that is shown."""
        page.tell("Runtime.evaluate", expression=AXE.read_text())
        self.assertEqual(page.browser.execute_async_script("""
            axe.run().then(({violations}) => arguments[0](
                violations.map(({id, nodes}) => [id, ...nodes.map(({html}) => html)])));"""), [])
        nodes = page.tell("Accessibility.getFullAXTree")["nodes"]
        told = {tuple(node.get(part, {}).get("value", "") for part in ("role", "name", "description"))
                for node in nodes if not node["ignored"]}
        told |= {("", text) for text in page.ask("[...document.querySelectorAll('[aria-live=polite]')]"
                                                 ".map(element => element.innerText)")}
        self.assertLessEqual(set(shown), told)

    def test_pixels_are_device_pixels_at_every_zoom(self):
        for ratio in (1, 2):
            page = Page(self.server.address, ratio)
            self.addCleanup(page.close)
            page.open_table()
            for zoom in (1.5, 1):
                page.zoom(zoom)
                for width, height in ((1280, 801), (390, 844), (700, 340), (1000, 700)):
                    with self.subTest((ratio, zoom, width, height)):
                        page.screen(width, height)
                        if width * ratio >= 480:  # else the table is scaled down
                            self.check_pixels(page, min(width * ratio / 635, height * ratio / 442))

    def test_slider_ticks_are_alike_at_a_fractional_ratio(self):
        page = Page(self.server.address, 1.25)
        self.addCleanup(page.close)
        for size in ((700, 340), (640, 360), (801, 600)):
            with self.subTest(size):
                page.screen(*size)
                page.open()
                left, top, _, height = (round(1.25 * length) for length in page.control("sldBackDesign"))
                shown = page.photograph()
                column = [shown.getpixel((left + 3, top + y)) for y in range(height)]
                runs = [(colour, len(list(run))) for colour, run in itertools.groupby(column)]
                self.assertEqual([length for colour, length in runs if colour != runs[0][0]], [1] * 4)


if __name__ == "__main__":
    FOLDER = pathlib.Path(sys.argv.pop(1))
    unittest.main(failfast=True)

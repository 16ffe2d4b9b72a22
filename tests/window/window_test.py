"""Plays the program in a real window: /usr/bin/python3 -m tests.window.window_test PROGRAM"""

import itertools
import sys
import unittest

from tools.play.game import Game
from tools.play.player import CORNERS, FREE, in_spread, wait
from tests.scenarios import BELOW, Scenarios
from tools.play.screen import Screen, require_programs, stop

CHOICES = ["Small", "Medium", "Normal", "Natural", "Shuffled", "By rank then suit, ascending",
           "By rank then suit, descending", "By suit then rank, ascending", "By suit then rank, descending",
           "Face Up", "Face Down", "Spread", "In Pile"]
DECKS = {
    "Standard with Jokers": "Standard 52-card deck plus two jokers",
    "36-card deck": "Standard 52-card deck without any 2, 3, 4, or 5s",
    "32-card deck": "Standard 52-card deck without any 2, 3, 4, 5, or 6s",
    "24-card deck": "Standard 52-card deck without any 2, 3, 4, 5, 6, 7, or 8s",
    "Double": "Two standard 52-card decks",
    "Pinochle": "Two 24-card decks",
    "Big Pinochle": "Two 32-card decks",
    "Standard": "Standard 52-card deck",
}


class WindowTest(Scenarios, unittest.TestCase):
    FRAME = ["alt+F4"]

    @classmethod
    def setUpClass(cls):
        cls.screen = Screen(XDG_CURRENT_DESKTOP="GNOME")  # its theme gives Enter to the focused button
        cls.addClassCleanup(cls.screen.close)

    def start(self):
        game = Game(self.screen, PROGRAM)
        self.addCleanup(stop, game.process)
        return game

    def listen(self):
        heard = self.enterContext(self.screen.listen())
        game = self.start_table()
        wait("the table", lambda: heard()[-1:] == ["Table"])
        return game, heard

    def assert_over(self, game):
        self.assertEqual(game.end(), (0, "", False), "exit status, output, whether a process is left")

    def test_boxes_block_input_close_in_every_way_and_return_the_focus(self):
        """With a screen reader that listens."""
        listener = self.screen.reader().EventListener.new(lambda event: None)
        listener.register("window")
        self.addCleanup(listener.deregister, "window")
        super().test_boxes_block_input_close_in_every_way_and_return_the_focus()

    def test_screen_reader_receives_what_shows(self):
        game = self.start()
        wait("the options", lambda: game.read("slider") == ["Back design"])
        self.assertEqual(game.read("image"), ["Card size preview", "Back design preview"])
        self.assertEqual(sorted(game.read("radio button")), sorted([*CHOICES, *DECKS]))
        for deck, cards in DECKS.items():
            game.press(deck, "radio button")
            wait(cards, lambda: game.read("label") == [cards])
            self.assertEqual(game.described("radio button"), {deck: cards})
        game.press("Play")
        game.in_front("Tumble")
        wait("the table", lambda: game.read("image") == ["Table"])
        heard = self.enterContext(self.screen.listen())
        places = ((in_spread(0), "Two of Diamonds"), (in_spread(51), "Ace of Spades"), (FREE, "None"),
                  (CORNERS[3], "Pile (empty)"), (CORNERS[0], "Pile (empty)"), (in_spread(0), "Two of Diamonds"))
        for place, name in places:
            game.mouse(place)
            game.wait_for_label(name)
            wait(f"the word {name}", lambda: heard()[-1:] == [name])
            self.assertEqual(game.described("image"), {"Table": name})
            self.assertEqual(game.read("list item"), [name])
        game.key("Tab")
        game.mouse(FREE)
        game.wait_for_label("None")
        self.assertEqual(heard(), [name for name, _ in itertools.groupby(name for _, name in places)] + ["Exit"])
        for key, role, title in ((None, "frame", "Tumble"), ("alt+h", "alert", "Tumble Instructions"),
                                 ("alt+a", "dialog", "About Tumble")):
            if key:
                game.key(key)
                game.in_front(title)
                wait(title, lambda: game.read("push button") == ["OK"])
            self.assertEqual(game.read(role), [title])
            self.assertEqual(game.read("filler"), [])
            if key:
                self.close(game, "Return")
                game.in_front("Tumble")
        self.leave(game)

    def test_drag_survives_another_window(self):
        game = self.start_table()
        game.lift(in_spread(51), BELOW)
        table = (601, 401, *game.on_table(0, 0))
        painted = self.screen.photograph(part=table)
        other = self.screen.start("xev", "-geometry", "2000x2000+0+0")
        wait("the other window", lambda: self.screen.photograph(part=table) != painted)
        stop(other)
        wait("the table as it was", lambda: self.screen.photograph(part=table) == painted)
        game.mouse("-left", in_spread(50))
        game.wait_for_label("Ace of Hearts")
        self.leave(game)


if __name__ == "__main__":
    require_programs()
    PROGRAM = sys.argv.pop(1)
    unittest.main(failfast=True)

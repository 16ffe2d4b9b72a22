#!/usr/bin/python3
"""Plays the program in a real window and leaves it in every way: window_test.py PROGRAM"""

import itertools
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
from player import CORNERS, FREE, Game, Screen, in_spread, require_packages, stop, wait

LOWEST = "You must play the lowest ranking card, a Two"
BELOW = (3900, 4200)  # below the spread
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
RANKS = ["Two", "Three", "Four", "Five", "Six", "Seven", "Eight", "Nine", "Ten", "Jack", "Queen", "King", "Ace"]
CORNER_KEYS = {"Diamonds": "Home", "Clubs": "Prior", "Hearts": "End", "Spades": "Next"}


class WindowTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.screen = Screen()
        cls.addClassCleanup(cls.screen.close)

    def start(self):
        game = Game(self.screen, PROGRAM)
        self.addCleanup(stop, game.process)
        return game

    def start_table(self):
        game = self.start()
        game.key("Return")
        game.in_front("Tumble")
        return game

    def leave(self, game, way="Return"):
        self.close(game, way)
        self.assertEqual(game.end(), (0, "", False), "exit status, what it said, whether a process is left")

    @staticmethod
    def close(game, way):
        game.press(way) if way in ("Exit", "OK") else game.key(way)

    def assert_told(self, game, text, way, title="Invalid Move!"):
        self.assertEqual(game.message(title), text)
        self.close(game, way)

    def test_options_are_left_in_every_way(self):
        for way in ("Exit", "Escape", "alt+x", "alt+F4"):
            with self.subTest(way):
                self.leave(self.start(), way)

    def test_table_is_left_in_every_way(self):
        for way in ("Exit", "Return", "alt+x", "alt+F4"):
            with self.subTest(way):
                self.leave(self.start_table(), way)

    def test_enter_is_the_default_buttons_whatever_has_the_focus(self):
        screen = Screen(XDG_CURRENT_DESKTOP="GNOME")  # whose theme gives Enter to the button with the focus
        self.addCleanup(screen.close)
        for keys in (["Tab"], ["Tab", "Tab"]):  # Exit, the sizes
            with self.subTest(keys):
                game = Game(screen, PROGRAM)
                screen.xdotool("key", *keys, "Return")
                game.in_front("Tumble")
                screen.xdotool("key", "Tab", "Tab", "space")  # Help
                game.in_front("Tumble Instructions")
                self.close(game, "Return")
                game.in_front("Tumble")
                self.leave(game)

    def test_boxes_close_in_every_way_while_a_screen_reader_listens(self):
        listener = self.screen.reader().EventListener.new(lambda event: None)
        listener.register("window")
        self.addCleanup(listener.deregister, "window")
        game = self.start_table()
        for button, letter, title in (("Help", "alt+h", "Tumble Instructions"), ("About", "alt+a", "About Tumble")):
            for way in ("OK", "Return", "Escape", "alt+F4"):
                game.press(button) if way == "OK" else game.key(letter)
                game.in_front(title)
                self.close(game, way)
                game.in_front("Tumble")
        self.leave(game)

    def test_screen_reader_is_told_what_shows(self):
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

    def test_default_game_is_refused_and_won(self):
        game = self.start_table()
        places = [in_spread(card) for card in range(52)]

        def refused(card, corner, aside, text, way):
            game.drag(places[card], corner)
            self.assert_told(game, text, way)
            game.in_front("Tumble")
            game.drag(corner, aside)
            places[card] = aside

        refused(4, CORNERS[0], (3900, 4400), LOWEST, "OK")
        game.to_corner(0, places[0])
        refused(1, CORNERS[0], (5400, 4400), "You must follow suit with a Diamond", "Escape")
        refused(8, CORNERS[0], (2400, 4400),
                "You must play either a Two of Diamonds or a Three of Diamonds or a Joker", "alt+F4")
        for card in range(1, 52):
            game.to_corner(card, places[card])
        self.assert_told(game, "CONGRATULATIONS!", "Return", "YOU WIN")
        game.in_front("Tumble")
        self.leave(game)

    def test_default_game_is_won_by_keys_and_ear(self):
        heard = self.enterContext(self.screen.listen())
        game = self.start_table()
        playable = {f"Two of {suit}" for suit in CORNER_KEYS}

        def hear(*keys):
            known = len(heard())
            self.screen.xdotool("key", *keys)
            wait(f"a word after {keys}", lambda: len(heard()) > known)
            return heard()[-1]

        wait("the table", lambda: heard()[-1:] == ["Table"])
        hear("Home")  # only shows the pointer, in the middle
        word = hear("Home")
        while playable:
            arrow = "Left"
            while word not in playable:  # along the spread, and back from the corner at its end
                if word.startswith("Pile"):
                    arrow = "Left" if arrow == "Right" else "Right"
                word = hear(arrow)
            playable.remove(word)
            rank, _, suit = word.partition(" of ")
            if rank != "Ace":
                playable.add(f"{RANKS[RANKS.index(rank) + 1]} of {suit}")
            laid = hear("space", CORNER_KEYS[suit], "space")
            if playable:
                self.assertEqual(laid, f"Pile ({word})")
                word = laid if suit == "Diamonds" else hear("Home")
        self.assert_told(game, "CONGRATULATIONS!", "Return", "YOU WIN")
        game.in_front("Tumble")
        self.leave(game)

    def test_release_beyond_the_limits_is_refused_twice(self):
        game = self.start_table()
        game.drag(in_spread(4), (7875, 405))
        self.assert_told(game, LOWEST, "Return")
        game.in_front("Tumble")
        game.mouse((8970, 405), "mousedown 1", "mouseup 1")
        self.assert_told(game, LOWEST, "Return")
        self.assert_told(game, LOWEST, "Return")
        game.in_front("Tumble")
        self.leave(game)

    def test_card_follows_when_the_button_is_let_go_while_the_refusal_is_open(self):
        game = self.start_table()
        card = game.lift(in_spread(4), (7875, 405))
        game.mouse((7875, -30))
        self.assertEqual(game.message("Invalid Move!"), LOWEST)
        game.mouse("mouseup 1")
        game.key("Return")
        game.in_front("Tumble")
        game.mouse(BELOW)
        wait("the card under the mouse", lambda: game.look(BELOW) == card)
        game.mouse("click 1", CORNERS[3])
        game.wait_for_label("Pile (empty)")
        self.leave(game)

    def test_card_thrown_out_of_the_table_comes_back_under_the_hand(self):
        game = self.start_table()
        card = game.lift(in_spread(51), BELOW)
        game.mouse((3900, 9000), (8500, 9000), (8500, -900), (5400, 4300))
        wait("the card under the hand", lambda: game.look((5400, 4300)) == card)
        game.mouse("mouseup 1")
        self.leave(game)

    def test_drag_goes_on_when_a_box_was_closed_by_key(self):
        game = self.start_table()
        card = game.lift(in_spread(4), (7875, 405))
        game.mouse((7875, -30))
        self.assert_told(game, LOWEST, "Return")
        game.in_front("Tumble")
        game.mouse(BELOW)
        wait("the card under the hand", lambda: game.look(BELOW) == card)
        game.key("alt+h")
        game.in_front("Tumble Instructions")
        game.key("Return")
        game.in_front("Tumble")
        game.mouse((5400, 4300), "mouseup 1", FREE)
        game.wait_for_label("None")
        self.assertEqual(game.look((5400, 4300)), card)
        self.leave(game)

    def test_card_is_dropped_when_its_window_went_from_the_screen(self):
        game = self.start_table()
        card = game.lift(in_spread(51), BELOW)
        self.screen.xdotool("windowminimize", game.window)
        wait("the bare screen", lambda: self.screen.xdotool("getactivewindow") != game.window)
        game.mouse("mouseup 1")
        self.screen.xdotool("windowmap", game.window, "windowactivate", game.window)
        wait("the table", lambda: game.look(BELOW) == card)
        game.mouse(FREE)
        game.wait_for_label("None")
        self.assertEqual(game.look(BELOW), card)
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
        game.mouse("mouseup 1", in_spread(50))
        game.wait_for_label("Ace of Hearts")
        self.leave(game)

    def test_second_button_flips_the_dragged_card_and_its_release_ends_the_drag(self):
        game = self.start_table()
        face = game.lift(in_spread(51), BELOW)
        game.mouse("mousedown 3")
        wait("the back", lambda: game.look(BELOW) != face)
        game.mouse("mouseup 3", CORNERS[3])
        game.wait_for_label("Pile (empty)")
        game.mouse("mouseup 1", BELOW, "click 3")
        wait("the face", lambda: game.look(BELOW) == face)
        self.leave(game)


if __name__ == "__main__":
    require_packages()
    PROGRAM = sys.argv.pop(1)
    unittest.main(failfast=True)

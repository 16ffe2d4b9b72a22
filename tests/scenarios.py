"""Steps and tests of a game, wherever it runs."""

from tools.play.player import CORNERS, FREE, in_spread, wait

LOWEST = "You must play the lowest ranking card, a Two"
# Two places below the spread.
BELOW = (3900, 4200)
ASIDE = (5400, 4300)
# Outside the table. No way between two of them crosses a corner, even if a move is skipped.
OUTSIDE = ((3900, 9000), (3900, 12000), (5400, 9000))
BEYOND = ((7875, 405), (7875, -30))  # a corner, and then beyond the limits of a drag
RANKS = ["Two", "Three", "Four", "Five", "Six", "Seven", "Eight", "Nine", "Ten", "Jack", "Queen", "King", "Ace"]
CORNER_KEYS = {"Diamonds": "Home", "Clubs": "PageUp", "Hearts": "End", "Spades": "PageDown"}
BLANK = (255, 255, 255)  # the colour of a face
TABLE = (30, 90, 64)


class Steps:
    """For a test case with start(), which returns a game that shows its options; assert_over(game), which expects its
    end; and listen(), which returns a game that shows its table and a function for all the names announced since."""

    def start_table(self, way="Enter"):
        game = self.start()
        self.close(game, way)
        game.in_front("Tumble")
        return game

    @staticmethod
    def close(game, way):
        game.press(way) if way in ("Play", "Exit", "OK") else game.key(way)

    def leave(self, game, way="Enter"):
        self.close(game, way)
        self.assert_over(game)

    def assert_told(self, game, text, way="Enter", title="Invalid Move!", times=1):
        for _ in range(times):
            self.assertEqual(game.message(title), text)
            self.close(game, way)
        game.in_front("Tumble")

    def assert_won(self, game):
        self.assert_told(game, "CONGRATULATIONS!", title="YOU WIN")
        self.leave(game)

    def win_by_keys(self):
        """Plays without looking at the screen, by announced names only."""
        game, heard = self.listen()
        playable = {f"Two of {suit}" for suit in CORNER_KEYS}

        def hear(*keys):
            known = len(heard())
            game.strike(*keys)
            wait(f"a word after {keys}", lambda: len(heard()) > known)
            return heard()[-1]

        hear("Home")  # the first key only shows the pointer
        word = hear("Home")
        while playable:
            arrow = "ArrowLeft"
            while word not in playable:  # along the spread; the corner at its end reverses
                if word.startswith("Pile"):
                    arrow = "ArrowLeft" if arrow == "ArrowRight" else "ArrowRight"
                word = hear(arrow)
            playable.remove(word)
            rank, _, suit = word.partition(" of ")
            if rank != "Ace":
                playable.add(f"{RANKS[RANKS.index(rank) + 1]} of {suit}")
            laid = hear(" ", CORNER_KEYS[suit], " ")
            if playable:
                self.assertEqual(laid, f"Pile ({word})")
                word = laid if suit == "Diamonds" else hear("Home")
        self.assert_won(game)


class PageSteps(Steps):
    """Steps on a page in any browser."""

    def listen(self):
        page = self.start_table()
        names = []

        def heard():
            name, *_ = page.box() or [page.label()]
            if name not in names[-1:]:
                names.append(name)
            return names

        return page, heard

    def check_pixels(self, page, scale):
        """Expects the table at the scale, sharp left borders of cards, and no control outside the page."""
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
        self.assertEqual(page.ask("""[...document.querySelectorAll('[data-name]')].filter((element) => {
            const {left, top, right, bottom} = element.getBoundingClientRect();
            return Math.min(left, top, innerWidth - right, innerHeight - bottom) <= -1;
        }).map(element => element.dataset.name)"""), [], "cut off")


class Scenarios(Steps):
    """Tests of a game wherever it runs."""

    FRAME = []  # keys that close a window

    def test_game_is_left_in_every_way(self):
        for start, key in ((self.start, "Escape"), (self.start_table, "Enter")):
            for way in (key, "Exit", "alt+x", *self.FRAME):
                with self.subTest((start.__name__, way)):
                    self.leave(start(), way)

    def test_enter_presses_the_default_button_whatever_has_the_focus(self):
        for keys in (["Tab"], ["Tab", "Tab"]):  # Exit, the sizes
            with self.subTest(keys):
                game = self.start()
                game.strike(*keys, "Enter")
                game.in_front("Tumble")
                game.strike("Tab", "Tab", " ")  # Help
                game.in_front("Tumble Instructions")
                game.key("Enter")
                game.in_front("Tumble")
                self.leave(game)

    def test_boxes_block_input_close_in_every_way_and_return_the_focus(self):
        game = self.start_table()
        for button, key, title in (("Help", "F1", "Tumble Instructions"), ("About", "alt+a", "About Tumble")):
            for way in ("OK", "Enter", "Escape", " ", *self.FRAME):
                game.press(button) if way == "OK" else game.key(key)
                game.in_front(title)
                game.drag(in_spread(51), BELOW)
                game.key("alt+x")
                self.close(game, way)
                game.in_front("Tumble")
                game.mouse(FREE)
                game.wait_for_label("None")
                if way == "OK":
                    game.mouse("+left", "-left")  # the button has the focus
                game.strike("End", "End")
                game.wait_for_label("Pile (empty)")
                game.mouse(BELOW, "+left", "-left", in_spread(51))
                game.wait_for_label("Ace of Spades")
        self.leave(game)

    def test_default_game_refuses_cards_and_is_won(self):
        game = self.start_table("Play")
        places = [in_spread(card) for card in range(52)]

        def refused(card, aside, text, way):
            game.drag(places[card], CORNERS[0])
            self.assert_told(game, text, way)
            game.drag(CORNERS[0], aside)
            places[card] = aside

        refused(4, (3900, 4400), LOWEST, "OK")
        game.to_corner(0, places[0])
        refused(1, (5400, 4400), "You must follow suit with a Diamond", "Escape")
        refused(8, (2400, 4400), "You must play either a Two of Diamonds or a Three of Diamonds or a Joker", "Enter")
        for card in range(1, 52):
            game.to_corner(card, places[card])
        self.assert_won(game)

    def test_default_game_is_won_by_keys(self):
        self.win_by_keys()

    def test_release_beyond_the_limits_is_refused_twice(self):
        game = self.start_table()
        game.drag(in_spread(4), BEYOND[0])
        self.assert_told(game, LOWEST)
        game.mouse((8970, 405), "+left", "-left")
        self.assert_told(game, LOWEST, times=2)
        self.leave(game)

    def test_drag_continues_outside_and_after_boxes(self):
        game = self.start_table()
        card = game.lift(in_spread(4), BELOW)

        def carried(*steps):
            game.mouse(*steps)
            wait("the card under the mouse", lambda: game.look(steps[-1]) == card)

        carried(*OUTSIDE, ASIDE)
        game.mouse(*BEYOND)
        self.assert_told(game, LOWEST)
        carried(*OUTSIDE, BELOW)
        game.key("alt+h")
        game.in_front("Tumble Instructions")
        game.key("Enter")
        game.in_front("Tumble")
        carried(*OUTSIDE, ASIDE)
        game.mouse(*BEYOND)
        self.assertEqual(game.message("Invalid Move!"), LOWEST)
        game.mouse("-left")
        game.key("Enter")
        game.in_front("Tumble")
        carried(BELOW)
        game.mouse("+left", "-left", CORNERS[3])
        game.wait_for_label("Pile (empty)")
        self.assertEqual(game.look(BELOW), card)
        self.leave(game)

    def test_card_is_dropped_when_the_game_is_hidden(self):
        game = self.start_table()
        card = game.lift(in_spread(51), BELOW)
        game.vanish()
        wait("the table", lambda: game.look(BELOW) == card)
        wait("the label", lambda: game.mouse(FREE) or game.label() == "None")
        self.assertEqual(game.look(BELOW), card)
        self.leave(game)

    def test_second_button_flips_the_dragged_card_and_its_release_ends_the_drag(self):
        game = self.start_table()
        face = game.lift(in_spread(51), BELOW)
        game.mouse("+right")
        wait("the back", lambda: game.look(BELOW) != face)
        game.mouse("-right", CORNERS[3])
        game.wait_for_label("Pile (empty)")
        game.mouse("-left", BELOW, "+right", "-right")
        wait("the face", lambda: game.look(BELOW) == face)
        self.leave(game)

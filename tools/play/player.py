"""The part of a player that does not depend on where the game runs.

Keys have the browser's names; "+left" and "+right" press a button of the mouse, "-left" and "-right" release it. Places
on the table are in twips. A player waits for a condition, never for a time.
"""

import time

DEADLINE = 60  # seconds, for a machine under load

# A card of the natural size dragged here lies on the corner; in the natural order of the suits.
CORNERS = [(200, 400), (7900, 400), (200, 4400), (7900, 4400)]

FREE = (4500, 510)  # no card lies here


def in_spread(card):
    """A place where a card of the spread natural order shows. Cards are numbered from 0."""
    return 1375 + 150 * (card % 36), 1200 + 1000 * (card // 36)


def wait(for_what, condition):
    """Returns the first true result of the condition. Raises TimeoutError after the deadline."""
    end = time.monotonic() + DEADLINE
    while not (answer := condition()):
        if time.monotonic() > end:
            raise TimeoutError(f"waited in vain for {for_what}")
        time.sleep(0.02)
    return answer


class Player:
    """Derived classes provide key(), mouse(), label() and look()."""

    def wait_for_label(self, name):
        wait(f"the label {name}", lambda: self.label() == name)

    def lift(self, place, to):
        """Drags from one place to another without releasing the button. Returns how the card looks there."""
        ground = self.look(to)
        self.mouse(place, "+left", to)
        wait("the card", lambda: self.look(to) != ground)
        self.label()  # answered when the painting is done
        return self.look(to)

    def strike(self, *keys):
        for key in keys:
            self.key(key)

    def drag(self, place, to):
        self.mouse(place, "+left", to, "-left")

    def to_corner(self, card, place):
        """Drags the card with this number in the natural order to the corner of its suit."""
        self.drag(place, CORNERS[card % 4])

    def play_spread(self, cards):
        for card in cards:
            self.to_corner(card, in_spread(card))

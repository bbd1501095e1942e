"""reader.py PROGRAM: answers a question of every exercise as who hears the program does.

All that it knows are the roles, names, values and events that the system has for screen readers (AT-SPI). It is run on
a message bus of its own.
"""

import operator
import os
import re
import sys

import counters
import gi
from installed import Installed, main
from waiting import wait_until

# A display may hold the address of another bus, which would be taken for this one.
os.environ.pop("DISPLAY", None)
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

SIGNS = {"fois": operator.mul, "plus": operator.add, "moins": operator.sub}
NOTES = {note: number for number, note in enumerate("DO RE MI FA SOL LA SI".split(), 3)}
UNKNOWN = "à trouver"
ANSWER = "Réponse : "
BUTTON, ENTRY = "push button", "spin button"


def number(word):
    if word in NOTES or word.isdigit():
        return NOTES.get(word) or int(word)
    return ord(word) - ord("A") + 1


def holds(line):
    """Whether what a line has on both sides of "égale" is known, and the same."""
    known = set()
    sides = [side for side in line.removeprefix(ANSWER).split(" égale ") if UNKNOWN not in side]
    if len(sides) < 2:
        return False
    for side in sides:
        words = side.split()
        known.add(SIGNS[words[1]](number(words[0]), number(words[2])) if len(words) == 3 else number(words[0]))
    return len(known) == 1


class Ear:
    """The page that is read, and what is told of it unasked."""

    def __init__(self):
        self.told = []
        self._listener = Atspi.EventListener.new(lambda event: self.told.append(event.source.get_name()))
        self._listener.register("object:property-change:accessible-name")

    def items(self):
        desktop = Atspi.get_desktop(0)
        desktop.set_cache_mask(Atspi.Cache.NONE)
        pages = [child.get_child_at_index(0) for child in map(desktop.get_child_at_index, range(desktop.get_child_count()))]
        return [page.get_child_at_index(i) for page in pages if page for i in range(page.get_child_count())]

    def names(self):
        return [item.get_name() for item in self.items()]

    def find(self, beginning, role=None):
        found = [i for i in self.items() if i.get_name().startswith(beginning) and role in (None, i.get_role_name())]
        return found[0] if found else None

    def wait_for(self, beginning):
        assert wait_until(lambda: self.find(beginning)), (beginning, self.names())

    def do(self, item, action):
        """Acts on something, and waits until the page reads otherwise."""
        before = self.names()
        print(f"{action:8} {item.get_role_name()} « {item.get_name()} »", flush=True)
        Atspi.Action.do_action(item, {"Press": 0, "Increase": 2, "Decrease": 3}[action])
        assert wait_until(lambda: self._listen() or self.names() != before), item.get_name()

    def _listen(self):
        while GLib.MainContext.default().iteration(False):
            pass

    def enter(self, *answers):
        """Enters the answers of a line, and has them corrected."""
        for answer in answers:
            self.turn(answer)
        self.do(answers[0], "Press")

    def turn(self, item):
        """Raises an answer until its line is right as far as it is known, or lowers it from the top on."""
        way = "Increase"
        self.do(item, way)
        while not (holds(item.get_name()) or self.leads_on(item)):
            if Atspi.Value.get_current_value(item) == Atspi.Value.get_maximum_value(item):
                way = "Decrease"
            self.do(item, way)

    def leads_on(self, item):
        """Whether an answer is the number of a table that the question asks for."""
        asked = re.search(r"puis-je trouver (\d+) \? (\d+)$", item.get_name())
        return asked and int(asked[2]) > 1 and int(asked[1]) % int(asked[2]) == 0

    def choose(self):
        """Says yes or no to what is asked."""
        names = "\n".join(self.names())
        if asked := re.search(r"somme de (\d+) plus (\d+) .* multiple de (\d+)", names):
            first, second, table = map(int, asked.groups())
            yes = (first + second) % table == 0
        else:
            product, table = map(int, re.search(r"(\d+)\sest-il un résultat de la Table de (\d+)", names).groups())
            yes = product % table == 0
        self.do(self.find("OUI" if yes else "NON", BUTTON), "Press")

    def answer_all(self):
        while to_enter := [item for item in self.items() if item.get_role_name() == ENTRY]:
            line = to_enter[0].get_name()
            self.enter(*[item for item in to_enter if item.get_name() == line])
        if self.find("OUI", BUTTON):
            self.choose()
            self.answer_all()


class ByEar(Installed):
    def test_every_exercise_is_answered(self):
        before = self.file.read_bytes()
        ear = Ear()
        program = self.start(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        for opener, exercises in (("Jouons avec la Table de 7", 4), ("Envie de vous exercer", 6)):
            ear.wait_for(opener)
            ear.do(ear.find(opener), "Press")
            ear.wait_for("RETOUR")
            ear.answer_all()
            names = ear.names()
            print(*names, sep="\n")
            self.assertEqual(names.count("Continuer"), exercises)
            for wrong in ("Erreur", "Perdu", "C'est faux"):
                self.assertNotIn(wrong, "\n".join([*names, *ear.told]))
            ear.do(ear.find("RETOUR"), "Press")
        self.assertGreater(sum(told.endswith("Cliquez sur Continuer pour un autre exercice.") for told in ear.told), 5)
        ear.wait_for("SORTIE")
        Atspi.Action.do_action(ear.find("SORTIE"), 0)
        self.assertEqual(program.wait(), 0)
        counted = counters.changes(before, self.file.read_bytes())
        of_table = counters.of_table(7)
        self.assertEqual([counted[number] for number in of_table[:3]], [1, 4, 4])
        self.assertEqual([counted[n] for n in (counters.PUZZLE_COUNT, counters.PUZZLE_RIGHT)], [6, 6])


if __name__ == "__main__":
    sys.exit(main(ByEar, *sys.argv[1:]))

"""What a pupil does on every host and what is counted for it, written once: a test that has `start`, `quit` and the
counters as `file` inherits it."""

import collections

import counters
import page as at
from waiting import wait_until

# What the start screen's places open, in the order of the page's design, and what is counted.
REPORT, EXERCISES = (at.REPORT_SCREEN, []), (at.EXERCISES_SCREEN, [])
PYTHAGORAS = at.PYTHAGORAS_SCREEN, [counters.PYTHAGORE_CONSULTATIONS]
LESSONS = at.LESSONS_SCREEN, [counters.LESSON_CONSULTATIONS]
PUZZLES = 6  # exercises on all tables
TABLES = [(at.LEARNING, [counters.of_table(table)[0]]) for table in range(2, 13)]
OPENED = [*TABLES, PYTHAGORAS, LESSONS, EXERCISES, REPORT, PYTHAGORAS, LESSONS, EXERCISES, REPORT, REPORT, REPORT]


class Visits:
    ENVIRONMENTS = ({},)

    def test_a_visit_is_counted(self):
        before = self.file.read_bytes()
        program = self.start()
        page = program.page
        for screen, opener in at.WAYS.items():
            page.go(opener, screen)
            # Within a page a double click is two clicks; the second round finds answers entered, and their corrections.
            page.double_click(at.NOTHING, *2 * [at.middle(box) for box in at.clickable(screen)])
            page.back()
        page.go(at.TABLE_OF_7, at.LEARNING)
        self.check_arrows_step_twice(page)
        page.back()
        self.quit(program)
        opened = {counters.of_table(7)[0]: 2, counters.PYTHAGORE_CONSULTATIONS: 1, counters.LESSON_CONSULTATIONS: 1}
        self.check_counted(before, opened, exercises=2 * 4 + 1, puzzles=2 * PUZZLES, solves=2 * 11)

    def check_counted(self, before, others, exercises=0, puzzles=0, solves=0):
        """What was counted: exercises of the table of 7 and puzzles, each with a verdict, and solves, some of them but
        no more than these; and all others."""
        counted = counters.changes(before, self.file.read_bytes())
        puzzle = counters.PUZZLE_COUNT, counters.PUZZLE_RIGHT, counters.PUZZLE_WRONG
        for most, numbers in ((exercises, counters.of_table(7)[1:]), (puzzles, puzzle)):
            done, right, wrong = (counted.pop(number, 0) for number in numbers)
            self.assertIn(done, range(min(1, most), most + 1))
            self.assertEqual(done, right + wrong)
        self.assertIn(counted.pop(counters.PYTHAGORE_SOLVES, 0), range(min(1, solves), solves + 1))
        self.assertEqual(counted, {counters.SAVED_ONCE: 1, **others})

    def check_arrows_step_twice(self, page):
        unanswered, task = page.look(at.FACTORING_BOX), page.look(at.FACTORING_TEXT)
        page.click(at.FACTORING_MORE)
        self.assertTrue(wait_until(lambda: page.look(at.FACTORING_BOX) != unanswered))
        one = page.look(at.FACTORING_BOX)
        page.double_click(at.FACTORING_MORE)
        page.click(at.FACTORING_LESS, at.NOTHING, at.FACTORING_LESS, at.FACTORING_ANSWER)
        self.assertTrue(wait_until(lambda: page.look(at.FACTORING_TEXT) != task))
        self.assertEqual(page.look(at.FACTORING_BOX), one)

    def test_a_double_click_opens_a_page_and_does_nothing_there(self):
        before = self.file.read_bytes()
        program = self.start()
        opened = collections.Counter()
        for opener, (screen, counter) in zip(at.clickable(at.START), OPENED, strict=True):
            under = [part for place in at.clickable(screen) for part in at.shared(opener, place)]
            for place in map(at.middle, [opener, *under]):
                program.page.double_click(place, at.BACK)
                opened.update(counter)
        program.page.wait_for(at.START)
        self.quit(program)
        self.check_counted(before, opened)

    def test_nothing_done_changes_nothing(self):
        worn = counters.worn()
        self.file.write_bytes(worn)
        for environment in self.ENVIRONMENTS:
            self.quit(self.start(**environment))
            self.assertEqual(self.file.read_bytes(), worn)

    def test_a_visit_by_keys_alone_is_counted(self):
        before = self.file.read_bytes()
        program = self.start()
        page = program.page
        page.press("Tab Right Right Right Right Right Return", at.LEARNING)
        # The first exercise, NON, the letter that stands there, a sign.
        page.press("1 Return Tab Tab Tab shift+Tab Return Tab Return Tab minus Return")
        page.press("Escape", at.START)
        page.press("Left Return", at.LEARNING)
        page.press("Escape", at.START)
        page.press("Tab Tab Tab Tab Tab Tab Tab Return", at.PYTHAGORAS_SCREEN)
        page.press("Down Return Right Return")
        page.press("Escape", at.START)
        page.press("Tab Return", at.LESSONS_SCREEN)
        page.press("Escape", at.START)
        page.press("Tab Return", at.EXERCISES_SCREEN)
        # The first two, the third or its first half and more, OUI.
        page.press("1 Return Tab 2 Return Tab 3 Return 4 Return Tab Return")
        page.press("Escape", at.START)
        page.press("Tab Return", at.REPORT_SCREEN)
        page.press("Escape", at.START)
        page.press("Escape Return")
        self.assertEqual(program.wait(), 0)
        tables = {counters.of_table(table)[0]: 1 for table in (6, 7)}
        others = {**tables, counters.PYTHAGORE_CONSULTATIONS: 1, counters.LESSON_CONSULTATIONS: 1}
        self.check_counted(before, others, exercises=4, puzzles=5, solves=1)

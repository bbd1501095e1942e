"""web.py ENGINE FOLDER SAVER TEST...: what the browser edition does in a browser. FOLDER holds its site and its one file,
SAVER is Linux's program that loads the counters and saves them."""

import os
import sys
import unittest
from pathlib import Path

from in_browser import InBrowser
from keeping import Keeping  # found by its name
from monkey import Monkey
from visits import Visits
from waiting import wait_until


class Visiting(Visits, InBrowser):
    pass


class Offline(Visits, InBrowser):
    """The same once the network is off."""

    def start(self):
        program = super().start()
        self.assertTrue(wait_until(program.is_kept))
        self.site.stop()
        program.open(self.address)
        return program

    def quit(self, browser):
        super().quit(browser)
        super().start()  # a visit later
        self.assertTrue(self.file.exists())


class OneFile(Visits, InBrowser):
    """From a disk, with a start of the browser anew before the counters are looked at."""

    def setUp(self):
        super().setUp()
        self.address = (self.web / "onze-tables.html").as_uri()
        self.browser.driver.get(self.address)

    def quit(self, browser):
        super().quit(browser)
        browser.close()
        self.begin()
        self.assertTrue(self.file.exists())


class Random(InBrowser):
    def test_a_monkey_finds_no_trouble(self):
        program = self.start()
        Monkey(program).play(float(os.environ.get("ONZE_MONKEY_MINUTES", "0.1")))
        self.assertEqual(program.troubles(), [])


def main(engine, web, saver, *tests):
    InBrowser.engine, InBrowser.web, InBrowser.saver = engine, Path(web), Path(saver)
    suite = unittest.defaultTestLoader.loadTestsFromNames(tests, sys.modules[__name__])
    return not unittest.TextTestRunner(verbosity=2).run(suite).wasSuccessful()


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))

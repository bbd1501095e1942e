"""What every test of the browser edition begins with: a server, and a browser that knows nothing of it."""

import tempfile
import unittest
from pathlib import Path

import counters
import page as at
from browser import Browser, KeptCounters
from site_server import Site


class InBrowser(unittest.TestCase):
    def setUp(self):
        self.scratch = Path(self.enterContext(tempfile.TemporaryDirectory(ignore_cleanup_errors=True)))
        self.site = self.enterContext(Site(self.web / "site"))
        self.address = self.site.address
        self.begin()

    def begin(self, **settings):
        """Starts a browser, which may have been there before."""
        self.browser = self.enterContext(Browser(self.engine, self.scratch / "profile", **settings))
        self.file = KeptCounters(self.browser)
        self.browser.driver.get(self.address)

    def start(self):
        self.assertEqual(self.browser.open(self.address), [])
        return self.browser

    def quit(self, browser):
        self.leave()
        self.assertEqual(browser.told(), "")
        self.assertEqual(browser.troubles(), [])

    def leave(self):
        self.browser.page.click(at.QUIT)
        self.assertEqual(self.browser.wait(), 0)

    def consult(self):
        self.browser.page.go(at.TABLE_OF_7, at.LEARNING)
        self.browser.page.back()

    def check_consulted(self, before, times=1):
        changes = counters.changes(before, self.file.read_bytes())
        self.assertEqual(changes, {counters.SAVED_ONCE: 1, counters.of_table(7)[0]: times})

"""What becomes of the counters in a browser, and what the site promises beside that."""

import gzip
import hashlib
import shutil
import struct
import subprocess
import tempfile
from pathlib import Path

import counters
import page as at
from browser import DELIVERED
from in_browser import InBrowser
from programs import ROOT, install
from site_server import Site
from waiting import wait_until

AXE = ROOT / "build" / "npm" / "node_modules" / "axe-core" / "axe.min.js"
CONSULTED_ONCE = {counters.SAVED_ONCE: 1, counters.of_table(7)[0]: 1}
NOTHING_KEPT = {"profile.default_content_setting_values.cookies": 2}
FOREIGN = """
const [address, done] = arguments;
addEventListener('securitypolicyviolation', (event) => done(event.blockedURI));
fetch(address).then(() => done('not refused'), () => {});
"""
FILL = """
for (let number = 0, size = 2 ** 20; size >= 1; ++number) {
    try {
        localStorage.setItem(number, 'x'.repeat(size));
    } catch {
        size /= 2;
    }
}
"""
# What becomes of the version that the server has now.
UPDATE = """
const [done] = arguments;
navigator.serviceWorker.getRegistration().then(async (registration) => {
    await registration.update();
    const found = registration.installing;
    found.onstatechange = () => done(found.state);
});
"""
NOTE_FIRST_PAGE = """
new MutationObserver(() => {
    if (!document.querySelector('#marge:not([hidden])')) return;
    window.firstPage ??= performance.getEntriesByType('resource').map((entry) => new URL(entry.name).pathname);
}).observe(document, { attributes: true, childList: true, subtree: true });
"""


class Keeping(InBrowser):
    def test_counters_are_files_of_the_other_hosts(self):
        self.start()
        self.consult()
        own = self.browser.download("enregistrer")
        self.assertEqual(counters.changes(DELIVERED, own), CONSULTED_ONCE)
        self.assertEqual(self.saved_on_linux(own), own)

        theirs = self.saved_on_linux(counters.worn())
        self.browser.page.go(at.PYTHAGORAS, at.PYTHAGORAS_SCREEN)
        self.browser.choose(self.scratch / "linux" / "datas" / "18")
        self.browser.driver.switch_to.alert.accept()  # what was counted is lost
        self.assertTrue(wait_until(lambda: self.file.read_bytes() == theirs))
        self.browser.wait_until_started()
        self.leave()
        self.assertEqual(self.file.read_bytes(), theirs)

    def saved_on_linux(self, content):
        """What the program for Linux makes of counters that it loads and saves."""
        folder = self.scratch / "linux"
        shutil.rmtree(folder, ignore_errors=True)
        saver = install(self.saver, folder)
        file = folder / "datas" / "18"
        file.write_bytes(content)
        subprocess.run([saver], input=b"", check=True, stdout=subprocess.DEVNULL)
        return file.read_bytes()

    def test_what_is_no_counters_file_changes_nothing(self):
        before = self.file.read_bytes()
        self.start()
        self.consult()
        file = self.scratch / "18"
        for content in b"", b"Bonjour", (ROOT / "datas" / "15").read_bytes():
            with self.subTest(content[:9]):
                file.write_bytes(content)
                self.browser.choose(file)
                self.assertTrue(wait_until(lambda: "n'est pas un fichier de compteurs" in self.browser.told()))
                self.browser.driver.find_element("id", "fermer").click()
                self.assertEqual(self.browser.told(), "")
        self.leave()
        self.check_consulted(before)

    def test_leaving_otherwise_saves_nothing(self):
        self.start()
        self.assertFalse(self.browser.would_ask())
        self.consult()
        self.assertTrue(self.browser.would_ask())
        self.start()
        self.assertFalse(self.file.exists())
        self.assertFalse(self.browser.would_ask())

    def test_a_full_storage_loses_nothing_while_the_page_is_open(self):
        before = self.file.read_bytes()
        self.browser.run(FILL)
        self.start()
        self.consult()
        self.leave()
        self.assertFalse(self.file.exists())
        self.assertTrue(self.browser.told() and self.browser.would_ask())
        self.browser.run("localStorage.clear()")
        self.browser.begin_again()
        self.consult()
        self.leave()
        self.check_consulted(before, 2)
        self.assertFalse(self.browser.would_ask())

    def test_a_refused_storage_is_told(self):
        self.browser.close()
        self.begin(prefs=NOTHING_KEPT)
        self.start()
        self.assertTrue(self.browser.told())
        self.consult()
        self.leave()
        self.assertTrue(self.browser.told())

    def test_of_two_tabs_one_has_the_counters(self):
        before = self.file.read_bytes()
        self.start()
        self.consult()
        first = self.browser.driver.current_window_handle
        self.browser.driver.switch_to.new_window("tab")
        self.start()
        self.assertTrue(wait_until(self.browser.told))
        self.consult()
        self.leave()
        self.assertFalse(self.file.exists())
        self.browser.driver.switch_to.window(first)
        self.assertEqual(self.browser.told(), "")
        self.leave()
        self.check_consulted(before)

    def test_a_newer_version_waits_until_no_page_has_the_old_one(self):
        before = self.file.read_bytes()
        old = self.start().version()
        self.assertTrue(wait_until(self.browser.is_kept))
        self.consult()
        for torn, state in ((True, "redundant"), (False, "installed")):
            self.site.folder = self.newer_site(old, torn)
            self.assertEqual(self.browser.driver.execute_async_script(UPDATE), state)
        self.consult()
        first = self.browser.driver.current_window_handle
        self.browser.driver.switch_to.new_window("tab")
        self.assertEqual(self.start().version(), old)
        self.browser.driver.close()
        self.browser.driver.switch_to.window(first)
        self.leave()
        self.check_consulted(before, 2)
        self.site.stop()
        self.assertTrue(wait_until(lambda: self.version_of_a_new_page() == old[::-1]))
        self.check_consulted(before, 2)

    def version_of_a_new_page(self):
        self.browser.driver.get("about:blank")
        return self.start().version()

    def newer_site(self, old, torn):
        """The site in another version; a torn one has a file of yet another."""
        folder = self.copy_of_site()
        index, worker = folder / "index.html", folder / "service_worker.js"
        digest = [hashlib.sha256(index.read_bytes()).hexdigest()]
        index.write_text(index.read_text().replace(old, old[::-1]))
        digest.append(hashlib.sha256(index.read_bytes()).hexdigest())
        worker.write_text(worker.read_text().replace(old, old[::-1]).replace(*digest))
        if torn:
            shutil.copy(folder / "datas" / "1", folder / "datas" / "2")
        return folder

    def copy_of_site(self):
        folder = Path(tempfile.mkdtemp(dir=self.scratch)) / "site"
        return Path(shutil.copytree(self.web / "site", folder))

    def test_what_cannot_be_read_stops_the_start(self):
        for name in "15", "18":
            folder = self.copy_of_site()
            (folder / "datas" / name).unlink()
            with self.subTest(name), Site(folder) as site:
                self.browser.driver.get(site.address)
                self.assertTrue(wait_until(self.browser.told))
                self.assertIn("introuvable ou illisible", self.browser.told())
                self.assertIn(f"datas/{name} »", self.browser.told())

    def test_a_full_counter_ends_the_run(self):
        consultations, *_ = counters.of_table(7)
        full = DELIVERED[:consultations] + struct.pack("<h", 32767) + DELIVERED[consultations + 2 :]
        self.file.write_bytes(full)
        self.start().page.click(at.TABLE_OF_7)
        self.assertTrue(wait_until(self.browser.told))
        self.assertEqual(self.browser.told(), "Dépassement de capacité du compteur « TableConsultations(5) ».")
        self.assertEqual(self.file.read_bytes(), full)

    def test_it_is_small(self):
        self.browser.driver.execute_cdp_cmd("Page.addScriptToEvaluateOnNewDocument", {"source": NOTE_FIRST_PAGE})
        self.start()
        wires = {name: self.on_the_wire(name) for name in ["/index.html", *self.browser.run("return firstPage")]}
        self.assertLess(sum(wires.values()), 400_000, wires)
        self.assertLess(wires["/index.html"] + wires["/onze-tables.wasm"], 180_000)
        self.assertLess((self.web / "onze-tables.html").stat().st_size, 3_500_000)

    def on_the_wire(self, name):
        content = (self.web / "site" / name[1:]).read_bytes()
        return min(len(content), len(gzip.compress(content, 6)))

    def test_no_address_but_its_own_is_asked(self):
        self.start()
        self.consult()
        asked = self.browser.run("return performance.getEntriesByType('resource').map((entry) => entry.name)")
        self.assertEqual([name for name in asked if not name.startswith((self.address, "blob:" + self.address))], [])
        foreign = "https://exemple.invalid/"
        self.assertEqual(self.browser.driver.execute_async_script(FOREIGN, foreign), foreign)

    def test_readers_have_all_that_it_takes(self):
        """Only elements, their names and values, and what is announced."""
        self.start()
        self.press_element("Jouons avec la Table de 7")
        heading = "return document.querySelector('#lecture h2')?.textContent"
        self.assertTrue(wait_until(lambda: self.browser.run(heading) == "Jouons avec la Table de 7"))
        answer = self.browser.driver.find_element("css selector", "#lecture [role=spinbutton]")
        self.assertTrue(answer.get_attribute("aria-label").endswith("à trouver"))
        self.assertEqual(self.browser.driver.switch_to.active_element, answer)
        self.browser.press("0")
        self.assertTrue(wait_until(lambda: answer.get_attribute("aria-valuetext") == "0"))
        self.assertEqual([answer.get_attribute("aria-value" + each) for each in ("now", "min", "max")], ["0", "0", "50"])
        self.browser.run("arguments[0].click()", answer)
        self.assertIn("Cliquez sur Continuer", self.browser.run("return document.getElementById('annonces').textContent"))
        self.assertEqual(self.browser.driver.switch_to.active_element.get_attribute("aria-label"), "Continuer")

    def press_element(self, name):
        elements = self.browser.driver.find_elements("css selector", "#lecture button")
        (found,) = [each for each in elements if each.get_attribute("aria-label") == name]
        self.browser.run("arguments[0].focus()", found)
        self.browser.press("Return")

    def test_every_page_is_accessible(self):
        program = self.start()
        self.check_accessible(at.START)
        for screen, opener in at.WAYS.items():
            program.page.go(opener, screen)
            self.check_accessible(screen)
            program.page.back()
        self.browser.choose(ROOT / "datas" / "15")
        self.assertTrue(wait_until(self.browser.told))
        self.check_accessible("trouble")
        self.leave()
        self.check_accessible("farewell")

    def check_accessible(self, page):
        with self.subTest(page):
            self.browser.run(AXE.read_text())
            found = self.browser.driver.execute_async_script("axe.run().then((found) => arguments[0](found.violations))")
            told = [(each["id"], each["help"], [node["html"] for node in each["nodes"]]) for each in found]
            self.assertEqual(told, [])

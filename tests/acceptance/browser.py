"""The browsers, each driven with events that it takes for a user's, and the program as a tab of theirs."""

import base64
import os
import subprocess
from pathlib import Path

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.actions.action_builder import ActionBuilder
from selenium.webdriver.common.actions.pointer_input import PointerInput
from selenium.webdriver.common.keys import Keys

from marionette import Marionette
from page import START, Page
from waiting import PATIENCE, wait_until

DELIVERED = (Path(__file__).parents[2] / "datas" / "18").read_bytes()
KEPT_AS = "onze-tables/18"
DOWNLOADS = "downloads"
ARROWS = {way: getattr(Keys, "ARROW_" + way.upper()) for way in ("Left", "Right", "Up", "Down")}
KEYS = {"Return": Keys.ENTER, "minus": "-", **ARROWS}
ROOT = os.geteuid() == 0

# Two clicks at one place are a double click, however long the machine takes for them.
SLOW = "Object.defineProperty(Event.prototype, 'timeStamp', { get: () => 0 })"

# What goes wrong in a page, from the time on that it is asked for first.
TROUBLES = """
if (!window.troubles) {
    window.troubles = [];
    const note = (...what) => troubles.push(what.map(String).join(' '));
    console.error = note;
    addEventListener('error', (e) => note(e.message, e.filename, e.lineno), true);
    addEventListener('unhandledrejection', (e) => note(e.reason));
    addEventListener('securitypolicyviolation', (e) => note('refused', e.blockedURI, e.violatedDirective));
}
return window.troubles;
"""


HEADLESS = "--headless=new", "--window-size=1024,768"


def chromium(profile, window=HEADLESS, prefs={}, **settings):
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    for argument in (*window, f"--user-data-dir={profile}", *["--no-sandbox"] * ROOT):
        options.add_argument(argument)
    settings["prefs"] = {"download.default_directory": str(profile / DOWNLOADS), **prefs}
    for name, value in settings.items():
        options.add_experimental_option(name, value)
    return webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)


def of_glass(width, height, ratio):
    """A phone or a tablet."""
    metrics = {"width": width, "height": height, "pixelRatio": ratio, "touch": True, "mobile": True}
    return lambda profile: chromium(profile, mobileEmulation={"deviceMetrics": metrics})


def firefox(profile):
    return webdriver.Remote(Marionette(profile), options=webdriver.FirefoxOptions())


def webkit(_):
    *_, mini_browser = sorted(Path("/usr/lib").glob("*/webkit2gtk-4.*/MiniBrowser"))
    options = webdriver.WebKitGTKOptions()
    options.binary_location = str(mini_browser)
    options.add_argument("--automation")
    os.environ.update({"WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS": "1"} if ROOT else {})
    return webdriver.WebKitGTK(executable_path="/usr/bin/WebKitWebDriver", options=options)


ENGINES = {
    "chromium": chromium,
    "phone": of_glass(360, 740, 3),
    "tablet": of_glass(1024, 768, 2),
    "firefox": firefox,
    "webkit": webkit,
}


class Browser:
    """A desk of its own, whose only program is what its tab shows."""

    def __init__(self, engine, profile, **settings):
        self._downloads = profile / DOWNLOADS
        self.driver = ENGINES[engine](profile, **settings)
        self.is_touched = engine in ("phone", "tablet")
        self.driver.set_script_timeout(PATIENCE)
        self.page = Page(self, self.has_ended)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        self.driver, driver = None, self.driver
        if driver:
            driver.quit()

    def open(self, address):
        """Tells what went wrong until the first page was there."""
        self.driver.get(address)
        return self.wait_until_started()

    def begin_again(self):
        self.driver.find_element("id", "recommencer").click()
        assert wait_until(lambda: not self.has_ended()), "it does not begin again"
        self.wait_until_started()

    def choose(self, file):
        """Takes counters up from a file."""
        self.driver.find_element("id", "fichier").send_keys(str(file))

    def download(self, button):
        """What a button has the browser save."""
        self.driver.find_element("id", button).click()
        file = self._downloads / "18"
        assert wait_until(file.exists), "nothing was saved"
        return file.read_bytes()

    def would_ask(self):
        """Whether the user would be asked before the page is left."""
        leave = "const leave = new Event('beforeunload', { cancelable: true }); window.dispatchEvent(leave);"
        return self.run(leave + "return leave.defaultPrevented")

    def version(self):
        return self.run("return document.documentElement.dataset.version")

    def is_kept(self):
        """Whether the page needs no server any more."""
        return self.run("return !!navigator.serviceWorker.controller")

    def wait_until_started(self):
        assert wait_until(lambda: self.run("return !!window.onzeTables") or self.told()), "nothing is there"
        self.run(SLOW)
        self.run(TROUBLES)
        self.page.wait_for(START)
        return self.troubles()

    def run(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def is_shown(self, element):
        found = "const found = document.getElementById(arguments[0]);"
        return self.run(found + "return !!found && found.getClientRects().length > 0", element)

    def told(self):
        """The sentence that tells of trouble."""
        return self.run("return document.getElementById('message')?.textContent") if self.is_shown("message") else ""

    def has_ended(self):
        return self.is_shown("adieu")

    def wait(self):
        """What the program ended with."""
        return 0 if wait_until(self.has_ended) else self.told()

    def troubles(self):
        logged = self.driver.get_log("browser") if "chrome" in self.driver.capabilities else []
        return self.run(TROUBLES) + [entry["message"] for entry in logged if entry["level"] == "SEVERE"]

    def view(self):
        view = self.run("return window.onzeTables.view()")
        return view["left"], view["top"], view["scale"]

    def actions(self):
        kind = "touch" if self.is_touched else "mouse"
        return ActionBuilder(self.driver, mouse=PointerInput(kind, kind), duration=0)

    def click(self, *places):
        actions = self.actions()
        for place in places:
            actions.pointer_action.move_to_location(*place).pointer_down().pointer_up()
        actions.perform()

    def press(self, *keys):
        chain = ActionChains(self.driver)
        for key in keys:
            name = key.removeprefix("shift+")
            if name != key:
                chain.key_down(Keys.SHIFT)
            chain.send_keys(KEYS.get(name) or getattr(Keys, name.upper(), name))
            if name != key:
                chain.key_up(Keys.SHIFT)
        chain.perform()

    def look(self, box, size):
        """The colours inside a box (left, top, width, height), brought to a size: three bytes a pixel."""
        ratio = self.run("return window.devicePixelRatio")
        left, top, width, height = (round(number * ratio) for number in box)
        crop = ["-crop", f"{width}x{height}+{left}+{top}", "+repage", "-resize", "{}x{}!".format(*size)]
        return subprocess.run(
            ["convert", "png:-", *crop, "-depth", "8", "rgb:-"],
            input=self.driver.get_screenshot_as_png(),
            check=True,
            capture_output=True,
        ).stdout


class KeptCounters:
    """The counters that a tab's site has in the browser, seen as the file that they are elsewhere."""

    def __init__(self, browser):
        self._browser = browser

    def exists(self):
        return self._kept() is not None

    def read_bytes(self):
        return base64.b64decode(self._kept()) if self.exists() else DELIVERED

    def write_bytes(self, data):
        self._browser.run("localStorage.setItem(...arguments)", KEPT_AS, base64.b64encode(data).decode())

    def _kept(self):
        return self._browser.run("return localStorage.getItem(arguments[0])", KEPT_AS)

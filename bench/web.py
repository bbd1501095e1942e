"""web.py SITE: measures the browser edition in Chromium beside a bare page that shows one picture of the same size, and
beside a page of JSXGraph, with which teachers draw; prints a table."""

import argparse
import os
import shutil
import sys
import tempfile
import time
from contextlib import contextmanager
from dataclasses import dataclass
from datetime import date
from pathlib import Path
from statistics import median

sys.path.insert(0, str(Path(__file__).parents[1] / "tests" / "acceptance"))

import page as at
import processes
from browser import chromium
from desk import Desk
from measure import START_PAUSE, Bench, machine, print_table
from screen import Screen
from site_server import Site
from waiting import wait_until

WIDTH, HEIGHT = 640, 480
KIOSK = "--kiosk", f"--window-size={WIDTH},{HEIGHT}", "--window-position=0,0"
BARE = {"excludeSwitches": ["enable-automation"]}  # which would lie over the page
JSXGRAPH = {"examples": "/usr/share/jsxgraph/examples", "distrib": "/usr/share/javascript/jsxgraph/distrib"}
FLOOR = """<!DOCTYPE html>
<title>Une image</title>
<style>body {{ margin: 0 }} img {{ position: fixed; left: {0}px; top: {1}px; width: {2}px; height: {3}px }}</style>
<img src="15" onclick="this.style.filter = this.style.filter ? '' : 'brightness(0)'">
"""


@dataclass
class Subject:
    name: str
    address: str
    settle: float = 3
    click: tuple = None
    back: tuple = None
    kept: str = "return true"  # tells whether a second visit finds all that it can


class WebBench(Bench):
    """Of a page in a browser that is there already, from the moment at which it is asked for."""

    def __init__(self, screen, scratch, *more):
        super().__init__(screen, None, *more)
        self._scratch, self._cold = scratch, True

    @contextmanager
    def _running(self, subject):
        profile = self._scratch / ("cold" if self._cold else subject.name)
        if self._cold:
            shutil.rmtree(profile, ignore_errors=True)
        self._screen.point(WIDTH - 1, HEIGHT - 1)
        driver = chromium(profile, KIOSK, **BARE)
        try:
            driver.get("about:blank")
            processes.wait_until_quiet()
            started = time.monotonic()
            driver.execute_script("location.href = arguments[0]", subject.address)
            yield driver, started
        finally:
            driver.quit()

    def learn(self, subject):
        super().learn(subject)
        self._cold = False
        with self._running(subject) as (driver, _):
            wait_until(lambda: driver.execute_script(subject.kept))
        self._cold = True

    def first_page(self, subject, cold):
        self._cold = cold
        try:
            return super().first_page(subject, cold=False)  # the machine's own cache stays as it is
        finally:
            self._cold = True

    def memory(self, subject):
        """Of the tab, and of all processes of the browser."""
        with self._shown(subject) as driver:
            time.sleep(subject.settle)
            tabs = processes.below(driver.service.process.pid, "--type=renderer")
            every = processes.below(driver.service.process.pid, "--user-data-dir", "--type=")
            return max(map(processes.proportional_megabytes, tabs)), sum(map(processes.proportional_megabytes, every))

    def _processor_percent(self, driver, seconds):
        every = processes.below(driver.service.process.pid, "--user-data-dir", "--type=")
        before = sum(map(processes.processor_seconds, every))
        time.sleep(seconds)
        return 100 * (sum(map(processes.processor_seconds, every)) - before) / seconds

    def measure(self, subjects):
        for subject in subjects:
            self.learn(subject)
        cold, warm, clicks = ({s.name: [] for s in subjects} for _ in range(3))
        for _ in range(self._rounds):  # in turn, so that a slow moment meets them all
            for subject in subjects:
                cold[subject.name].append(self.first_page(subject, True))
                warm[subject.name].append(self.first_page(subject, False))
                if subject.click:
                    clicks[subject.name].append(self.clicks(subject))
        memory = [self.memory(subject) for subject in subjects]
        idle = [self.idle(subject) for subject in subjects]
        firsts = [median([first for first, _ in clicks[s.name]]) if s.click else None for s in subjects]
        nexts = [median(sum((more for _, more in clicks[s.name]), [])) if s.click else None for s in subjects]
        return [
            ("First page, first visit (ms)", "1.5 × + 100", [median(cold[s.name]) for s in subjects]),
            ("First page, next visit (ms)", "1.5 × + 100", [median(warm[s.name]) for s in subjects]),
            ("Click to painted page, the first time (ms)", "33", firsts),
            ("Click to painted page, again (ms)", "33", nexts),
            ("Processor, idle, all of the browser (%)", None, idle),
            ("Share of memory, the tab (MB)", None, [tab for tab, _ in memory]),
            ("Share of memory, all of the browser (MB)", None, [all_ for _, all_ in memory]),
        ]


def place_of_page(address, scratch):
    """Where the page lies, and how far it is scaled."""
    driver = chromium(scratch / "place", KIOSK, **BARE)
    driver.get(address)
    wait_until(lambda: driver.execute_script("return document.querySelector('#marge:not([hidden])') !== null"))
    view = driver.execute_script("return window.onzeTables.view()")
    driver.quit()
    return view["left"], view["top"], view["scale"]


def folder_of_floor(folder, left, top, scale):
    folder.mkdir()
    shutil.copy(at.ROOT / "datas" / "15", folder)
    box = left, top, at.WIDTH * scale, at.HEIGHT * scale
    (folder / "index.html").write_text(FLOOR.format(*box))
    return folder


def folder_of_jsxgraph(folder):
    folder.mkdir()
    for name, target in JSXGRAPH.items():
        (folder / name).symlink_to(target)
    return folder


def measure(site, screen, scratch, given):
    left, top, scale = place_of_page(site.address, scratch)

    def on_screen(place):
        return round(left + place[0] * scale), round(top + place[1] * scale)

    click, back = on_screen(at.TABLE_OF_7), on_screen(at.BACK)
    with Site(folder_of_floor(scratch / "floor", left, top, scale)) as floor:
        with Site(folder_of_jsxgraph(scratch / "peer")) as peer:
            kept = "return !!navigator.serviceWorker.controller"
            subjects = [
                Subject("Onze Tables", site.address, click=click, back=back, kept=kept),
                Subject("bare page", floor.address, click=click, back=click),
                Subject("JSXGraph, a chart", peer.address + "examples/barchart.html"),
            ]
            print_table(subjects, WebBench(screen, scratch, given.rounds, given.idle_seconds).measure(subjects))


def main():
    arguments = argparse.ArgumentParser(description=__doc__)
    arguments.add_argument("site", type=lambda file: Path(file).resolve())
    arguments.add_argument("--rounds", type=int, default=9)
    arguments.add_argument("--idle-seconds", type=int, default=60)
    given = arguments.parse_args()
    print(f"{date.today()}, {machine()}, medians of {given.rounds} rounds\n")
    with tempfile.TemporaryDirectory(dir="/dev/shm") as memory, tempfile.TemporaryDirectory() as scratch:
        with Desk("-fbdir", memory, "-screen", "0", f"{WIDTH}x{HEIGHT}x24") as desk, Site(given.site) as site:
            time.sleep(1)
            os.environ["DISPLAY"] = desk.environment()["DISPLAY"]
            screen = Screen(Path(memory, "Xvfb_screen0"), os.environ["DISPLAY"], WIDTH, HEIGHT)
            measure(site, screen, Path(scratch), given)
    if processes.was_busy():
        print("The machine was busy with other things meanwhile: these figures are not to be kept.")


if __name__ == "__main__":
    main()

"""measure.py PROGRAM FLOOR WINDOWS_PROGRAM: measures programs side by side; prints a table for each platform."""

import argparse
import os
import signal
import sys
import tempfile
import time
from contextlib import contextmanager
from datetime import date
from pathlib import Path
from statistics import median

sys.path.insert(0, str(Path(__file__).parents[1] / "tests" / "acceptance"))

import processes
from desk import HEIGHT, WIDTH, Desk
from screen import Picture, Screen
from subjects import WineDesktop, linux_subjects, windows_subjects

START_PAUSE, CLICK_PAUSE = 0.001, 0.0002  # seconds from one look at the display to the next
CORNER = WIDTH - 1, HEIGHT - 1
BLINK_SECONDS = 2
CLICKS = 4  # on the same thing, in one run


class Bench:
    """Measures subjects on one display."""

    def __init__(self, screen, environment, rounds, idle_seconds, server=None):
        self._screen, self._environment = screen, environment
        self._rounds, self._idle_seconds, self._server = rounds, idle_seconds, server
        self._first, self._second = {}, {}

    @contextmanager
    def _running(self, subject):
        """The process and the moment at which it was started."""
        self._screen.point(*CORNER)
        processes.wait_until_quiet()
        started = time.monotonic()
        pid = os.posix_spawn(subject.command[0], subject.command, self._environment)
        try:
            yield pid, started
        finally:
            self._end(subject, pid)

    def _end(self, subject, pid):
        if subject.quit and sys.exc_info()[0] is None:
            self._click(subject.quit)
        else:
            os.kill(pid, signal.SIGKILL)
        os.waitpid(pid, 0)
        time.sleep(1)  # the desktop is as it was before

    @contextmanager
    def _shown(self, subject):
        with self._running(subject) as (pid, _):
            self._screen.wait_for(self._first[subject.name], START_PAUSE)
            time.sleep(1)
            yield pid

    def _click(self, place, pause=0.4):
        self._screen.point(*place)
        time.sleep(pause)
        self._screen.click()

    def learn(self, subject):
        """Learns what its pages look like."""
        before = self._screen.seen()
        firsts, seconds = [], []
        for _ in range(4):
            with self._running(subject):
                firsts.append(self._screen.settled(subject.settle, before))
                if subject.click:
                    self._screen.point(*subject.click)
                    pointed = self._screen.settled(1)
                    self._screen.click()
                    seconds.append(self._screen.settled(2, pointed[0]))
                    if subject.back:
                        self._click(subject.back)
                        time.sleep(0.5)
        self._first[subject.name] = Picture(before, firsts)
        if subject.click:
            self._second[subject.name] = Picture(pointed[0], seconds)

    def first_page(self, subject, cold):
        if cold:
            processes.drop_page_cache()
        with self._running(subject) as (_, started):
            painted = self._screen.wait_for(self._first[subject.name], START_PAUSE)
            time.sleep(0.5)
        return 1000 * (painted - started)

    def clicks(self, subject):
        """The first click on a thing, and the next ones on the same."""
        times = []
        with self._shown(subject):
            for _ in range(CLICKS if subject.back else 1):
                self._screen.point(*subject.click)
                time.sleep(0.5)
                clicked = time.monotonic()
                self._screen.click()
                times.append(1000 * (self._screen.wait_for(self._second[subject.name], CLICK_PAUSE) - clicked))
                time.sleep(0.3)
                if subject.back:
                    self._click(subject.back)
                    time.sleep(0.5)
        return times[0], times[1:]

    def memory(self, subject):
        with self._shown(subject) as pid:
            first = processes.peak_megabytes(pid), processes.proportional_megabytes(pid)
            for place in subject.visit:
                self._click(place)
                time.sleep(0.3)
            return *first, processes.peak_megabytes(pid)

    def _processor_percent(self, pid, seconds):
        watched = [pid] + ([self._server()] if self._server else [])
        before = [processes.processor_seconds(each) for each in watched]
        time.sleep(seconds)
        after = [processes.processor_seconds(each) for each in watched]
        return [100 * (b - a) / seconds for a, b in zip(before, after)]

    def idle(self, subject):
        with self._shown(subject) as pid:
            time.sleep(5)
            return self._processor_percent(pid, self._idle_seconds)

    def blink(self, subject):
        with self._shown(subject) as pid:
            for place in subject.blink:
                self._click(place)
            used = self._processor_percent(pid, BLINK_SECONDS)
            time.sleep(1)
            self._click(subject.back)
            time.sleep(0.5)
        return used

    def measure(self, subjects):
        """Rows of a name, an aim and a value for each subject, None where there is none."""
        for subject in subjects:
            self.learn(subject)
        cold, warm, clicks = ({s.name: [] for s in subjects} for _ in range(3))
        for _ in range(self._rounds):  # in turn, so that a slow moment meets them all
            for subject in subjects:
                cold[subject.name].append(self.first_page(subject, True))
            for subject in subjects:
                warm[subject.name].append(self.first_page(subject, False))
                if subject.click:
                    clicks[subject.name].append(self.clicks(subject))
        memory = [self.memory(subject) for subject in subjects]
        idle = [self.idle(subject) for subject in subjects]
        blink = [self.blink(subject) if subject.blink else [None, None] for subject in subjects]

        firsts = [median([first for first, _ in clicks[s.name]]) if s.click else None for s in subjects]
        nexts = [median(sum((more for _, more in clicks[s.name]), [])) if s.back else None for s in subjects]
        rows = [
            ("First page, cold (ms)", 1.3, [median(cold[s.name]) for s in subjects]),
            ("First page, warm (ms)", 1.3, [median(warm[s.name]) for s in subjects]),
            ("Click to painted page, the first time (ms)", "16", firsts),
            ("Click to painted page, again (ms)", "16", nexts),
            ("Peak memory, first page (MB)", 1.3, [each[0] for each in memory]),
            ("Its share of memory, first page (MB)", None, [each[1] for each in memory]),
            ("Peak memory, every page visited (MB)", 1.3, [each[2] for each in memory]),
            ("Processor, idle (%)", "0.1", [each[0] for each in idle]),
            ("Processor, while the table blinks (%)", None, [each[0] for each in blink]),
        ]
        if self._server:
            rows.append(("Wine's server meanwhile, idle (%)", None, [each[1] for each in idle]))
            rows.append(("Wine's server meanwhile, blinking (%)", None, [each[1] for each in blink]))
        rows.append(("Program (kB)", None, [kilobytes(s.program) for s in subjects]))
        aim = None if self._server else "2000"
        rows.append(("Program and data (kB)", aim, [kilobytes(s.program + s.data) for s in subjects]))
        return rows


def kilobytes(files):
    return sum(file.stat().st_size for file in files) / 1000


def shown(value):
    if value is None:
        return "–"
    digits = 0 if value >= 100 else 1 if value >= 1 else 3
    return f"{value:.{digits}f}"


def print_table(subjects, rows):
    names = [subject.name for subject in subjects]
    print("|", " | ".join(["", *names[:2], "ratio", "aim", *names[2:]]), "|")
    print("|---" + "|--:" * (len(names) + 2) + "|")
    for name, aim, (own, floor, *others) in rows:
        ratio = own / floor if own and floor else None
        aim = f"≤ {aim} ×" if isinstance(aim, float) else f"< {aim}" if aim else ""
        print("|", " | ".join([name, shown(own), shown(floor), shown(ratio), aim, *map(shown, others)]), "|")
    print()


def machine():
    lines = Path("/proc/cpuinfo").read_text().splitlines()
    model = next(line.split(": ")[1] for line in lines if line.startswith("model name"))
    return f"{os.cpu_count()} cores of {model}, Linux {os.uname().release.split('-')[0]}"


def main():
    arguments = argparse.ArgumentParser(description=__doc__)
    for name in ("program", "floor", "windows_program"):
        arguments.add_argument(name, type=lambda file: Path(file).resolve())
    arguments.add_argument("--rounds", type=int, default=9)
    arguments.add_argument("--idle-seconds", type=int, default=60)
    earlier = "an earlier build of the program, to be measured beside it"
    for option in ("--earlier-linux", "--earlier-windows"):
        arguments.add_argument(option, type=lambda file: Path(file).resolve(), nargs=1, default=[], help=earlier)
    arguments.add_argument("--only", choices=["linux", "windows"])
    given = arguments.parse_args()

    print(f"{date.today()}, {machine()}, medians of {given.rounds} rounds\n")
    with tempfile.TemporaryDirectory(dir="/dev/shm") as memory, tempfile.TemporaryDirectory() as scratch:
        os.environ["HOME"] = scratch
        with Desk("-fbdir", memory) as desk:
            time.sleep(1)
            environment = desk.environment(SDL_AUDIODRIVER="dummy")
            screen = Screen(Path(memory, "Xvfb_screen0"), environment["DISPLAY"])
            if given.only != "windows":
                subjects = linux_subjects(given.program, given.earlier_linux, given.floor, Path(scratch, "linux"))
                bench = Bench(screen, environment, given.rounds, given.idle_seconds)
                print_table(subjects, bench.measure(subjects))
            if given.only != "linux":
                with WineDesktop(desk, Path(scratch, "wine")) as wine:
                    subjects = windows_subjects(
                        given.windows_program, given.earlier_windows, Path(scratch, "windows"), wine.prefix
                    )
                    bench = Bench(screen, wine.environment, given.rounds, given.idle_seconds, wine.server)
                    print_table(subjects, bench.measure(subjects))
    if processes.was_busy():
        print("The machine was busy with other things meanwhile: these figures are not to be kept.")


if __name__ == "__main__":
    main()

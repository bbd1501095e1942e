"""faults.py PROGRAM [PROBE]: what the real program does when its folder or its disk fails it, or it is killed."""

import contextlib
import shutil
import struct
import subprocess
import sys
import unittest
from pathlib import Path

import counters
import page as at
from desk import Desk
from installed import Installed
from programs import AS_A_PUPIL, LinuxProgram, NextWindowsProgram, install
from tracing import Trace


def missing(file):
    file.unlink()


def empty(file):
    file.write_bytes(b"")


def cut_in_half(file):
    content = file.read_bytes()
    file.write_bytes(content[: len(content) // 2])


def unreadable(file):
    file.chmod(0)


def a_folder(file):
    file.unlink()
    file.mkdir()


FAULTS = missing, empty, cut_in_half, unreadable, a_folder
NOT_READ = missing, unreadable, a_folder
PICTURES = "11", "12", "13", "14", "15", "16"
SOUNDS = [*map(str, range(1, 11)), *(f"{number}.{kind}" for number in range(1, 5) for kind in ("vic", "def"))]

FULL = struct.pack("<h", 32767)


@contextlib.contextmanager
def spoiled(file, fault):
    content = file.read_bytes()
    fault(file)
    yield
    if file.is_dir():
        file.rmdir()
    file.unlink(missing_ok=True)
    file.write_bytes(content)


def state(folder):
    """Everything that a change of any file would change."""
    files = {folder, *folder.rglob("*")}
    return {file: (s.st_mode, s.st_ino, s.st_size, s.st_mtime_ns) for file in files for s in [file.lstat()]}


@contextlib.contextmanager
def small_disk(folder):
    """A disk of its own at a folder."""
    folder.mkdir()
    mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=8m", "tmpfs", folder], capture_output=True)
    if mounted.returncode != 0:
        raise unittest.SkipTest("only the root user, allowed to mount, can bring a disk that is full")
    try:
        yield folder
    finally:
        subprocess.run(["umount", "--lazy", folder], check=True)


def fill(disk):
    """To the last byte."""
    with contextlib.suppress(OSError), open(disk / "rest", "wb", buffering=0) as rest:
        while True:
            rest.write(bytes(4096))
    assert shutil.disk_usage(disk).free == 0


class Faults(Installed):
    """What both programs are put to; the classes below bring the platform."""

    @classmethod
    def setUpClass(cls):
        cls.desk = cls.enterClassContext(Desk())

    def setUp(self):
        super().setUp()
        self.old = self.file.read_bytes()
        self.new = self.old[:2] + b"\1\0" + self.old[4:]

    def run_as_pupil(self):
        return self.started(under=AS_A_PUPIL)

    def quit(self, program):
        program.page.click(at.QUIT)
        self.assertEqual(program.wait(), 0)

    def check_report(self, program, *texts):
        report = program.report()
        for text in texts:
            self.assertIn(text, report)
        self.assertEqual(program.wait(), 1, report)

    def check_start_stops(self, name, faults):
        file = self.folder / "datas" / name
        for fault in faults:
            with self.subTest(f"{name} is {fault.__name__}"), spoiled(file, fault):
                before = state(self.folder)
                with self.program(self.desk, self.executable, under=AS_A_PUPIL) as program:
                    self.check_report(program, "introuvable ou illisible", f"datas{self.separator}{name} »")
                    self.check_desk_untouched(program)
                self.assertEqual(state(self.folder), before)

    def test_a_bad_picture_stops_the_start(self):
        for name in PICTURES:
            self.check_start_stops(name, FAULTS)

    def test_counters_that_cannot_be_read_stop_the_start(self):
        self.check_start_stops("18", NOT_READ)

    def test_counters_cut_short_count_on_from_zero(self):
        worn = counters.worn()
        for content, saved in ((b"", self.new), (worn[:61], worn[:60] + bytes(62))):
            with self.subTest(content):
                self.file.write_bytes(content)
                with self.run_as_pupil() as program:
                    self.quit(program)
                self.assertEqual(self.file.read_bytes(), saved)

    def test_no_sound_is_ever_an_error(self):
        for fault in FAULTS:
            with self.subTest(fault=fault.__name__), contextlib.ExitStack() as stack:
                for name in SOUNDS:
                    stack.enter_context(spoiled(self.folder / "datas" / name, fault))
                victories = defeats = 0
                while min(victories, defeats) < 4:
                    self.file.write_bytes(self.old)
                    victories, defeats = self.play_sounds()

    def play_sounds(self):
        """A run with every click sound and, most probably, every other; the victories and defeats in it."""
        rounds = 24
        with self.run_as_pupil() as program:
            page = program.page
            page.go(at.TABLE_OF_7, at.LEARNING)
            page.click(*[at.FACTORING_MORE] * 10, *[at.MULTIPLE_NO, at.MULTIPLE_AGAIN] * rounds)
            page.back()
            self.quit(program)
        done, right, wrong = counters.values(self.file, counters.of_table(7)[1:])
        self.assertEqual((done, right + wrong), (rounds, rounds))
        return right, wrong

    def test_a_full_disk_keeps_the_old_counters(self):
        with small_disk(self.folder.with_name("disque")) as disk:
            self.executable = install(self.source, disk / "é")
            with self.run_as_pupil() as program:
                fill(disk)
                self.check_save_fails(program)

    def test_a_read_only_folder_keeps_the_old_counters(self):
        with self.run_as_pupil() as program:
            self.file.parent.chmod(0o555)
            self.check_save_fails(program)

    def check_save_fails(self, program):
        datas = self.executable.parent / "datas"
        before = state(datas)
        program.page.go(at.TABLE_OF_7, at.LEARNING)
        program.page.back()
        program.page.click(at.QUIT)
        self.check_report(program, self.SAVE_FAILED, f"datas{self.separator}18 »")
        self.check_desk_left(program)
        after = state(datas)
        before.pop(datas), after.pop(datas)  # a file was made in it, and taken away again
        self.assertEqual(after, before)

    def test_a_full_counter_ends_the_run(self):
        consultations, exercises, *_ = counters.of_table(7)
        exercises_screen = at.EXERCISES, at.EXERCISES_SCREEN
        for offset, name, way in (
            (consultations, "TableConsultations(5)", [at.TABLE_OF_7]),
            (exercises, "TableExercises(5)", [at.TABLE_OF_7, at.LEARNING, at.MULTIPLE_NO]),
            (counters.PUZZLE_COUNT, "PuzzleCount", [*exercises_screen, at.PRODUCT_MORE, at.PRODUCT_ANSWER]),
        ):
            with self.subTest(name):
                self.file.write_bytes(self.old[:offset] + FULL + self.old[offset + 2 :])
                before = state(self.folder)
                with self.run_as_pupil() as program:
                    for step in way:
                        if step in at.SCREENS:
                            program.page.wait_for(step)
                        else:
                            program.page.click(step)
                    self.check_report(program, f"Dépassement de capacité du compteur « {name} ».")
                    self.check_desk_left(program)
                self.assertEqual(state(self.folder), before)

    def test_a_tagged_counter_grows_wide(self):
        value_at = counters.LESSON_CONSULTATIONS
        self.file.write_bytes(self.old[:value_at] + FULL + self.old[value_at + 2 :])
        for value in (32768, 32769):
            with self.run_as_pupil() as program:
                program.page.go(at.LESSONS, at.LESSONS_SCREEN)
                program.page.back()
                self.quit(program)
            grown = struct.pack("<hi", 3, value)
            self.assertEqual(self.file.read_bytes(), self.new[: value_at - 2] + grown + self.new[value_at + 2 :])

    def test_killed_at_any_call_of_the_save_the_file_is_whole(self):
        # The window makes calls of the same names now and then; the quietest quit is the measure.
        killed, calls = min((self.quit_traced() for _ in range(3)), key=lambda quit: sum(n for _, n in quit[1]))
        self.assertFalse(killed)
        left = []
        for number, call in enumerate(calls):
            with self.subTest(call=call):
                self.assertTrue(any(self.is_killed_at(number, call) for _ in range(12)))
                left.append(self.file.read_bytes())
                self.assertLessEqual(len(self.left_beside()), 1)
        self.assertEqual(left, sorted(left))
        self.assertEqual(left[-1], self.new)
        names = [name for name, _ in calls]
        flush = names.index("fsync", names.index("write"))
        self.assertEqual(left[flush + 1], self.old)
        with self.run_as_pupil() as program:
            self.quit(program)

    def is_killed_at(self, number, call):
        killed, calls = self.quit_traced(*call)
        return killed and len(calls) == number + 1

    def left_beside(self):
        """Files with new content that a killed program could not take away."""
        return [*self.file.parent.glob("18?*")]

    def quit_traced(self, *last_call):
        """Quits a program that is killed before a call; tells whether it was, and its calls for the save."""
        for file in self.left_beside():
            file.unlink()
        with self.run_as_pupil() as program:
            self.file.write_bytes(self.old)
            trace = Trace(program.process, self.traced_paths(), *last_call)
            if not trace.attached:
                self.skipTest("a process may not be traced here")
            program.page.click(at.QUIT)
            program.wait()
            return trace.calls(self.folder.parent.name)


class LinuxFaults(Faults, unittest.TestCase):
    program = LinuxProgram
    separator = "/"
    SAVE_FAILED = "Enregistrement impossible"

    def check_desk_untouched(self, program):
        pass

    check_desk_left = check_desk_untouched

    def traced_paths(self):
        return []  # the new file's name is drawn


class WindowsFaults(Faults, unittest.TestCase):
    program = NextWindowsProgram
    separator = "\\"
    SAVE_FAILED = "Fichier impossible à écrire"

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.enterClassContext(cls.program.desktop(cls.desk, under=AS_A_PUPIL))

    def traced_paths(self):
        drive = self.program.prefix / "dosdevices" / "z:"
        return [root + str(self.file) + new for root in ("", str(drive)) for new in ("", ".nouveau")]

    def check_desk_untouched(self, program):
        self.assertEqual(len(self.desks(program)), 1, program.told)

    def check_desk_left(self, program):
        self.assertIn("640x480", self.desks(program)[-1])

    def desks(self, program):
        return [line for line in program.told if line.startswith("desk")]


def main(*programs):
    case = WindowsFaults if len(programs) > 1 else LinuxFaults
    return case.run_all(*programs)


if __name__ == "__main__":
    sys.exit(not main(*sys.argv[1:]))

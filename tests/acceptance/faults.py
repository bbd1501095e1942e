"""faults.py PROGRAM [PROBE]: what the real program does when its folder or its disk fails it, or it is killed."""

import contextlib
import os
import shutil
import struct
import subprocess
import sys
import unittest

import counters
import page as at
from installed import Installed, main
from programs import install
from tracing import Trace
from waiting import wait_until


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
    def setUp(self):
        super().setUp()
        self.old = self.file.read_bytes()
        self.new = self.old[:2] + b"\1\0" + self.old[4:]

    def check_start_stops(self, name, faults):
        file = self.folder / "datas" / name
        for fault in faults:
            with self.subTest(f"{name} is {fault.__name__}"), spoiled(file, fault):
                before = state(self.folder)
                with self.program() as program:
                    self.check_report(program, "introuvable ou illisible", f"datas{self.desk.SEPARATOR}{name} »")
                self.assertEqual(self.desk.states(), [self.desk.AT_REST])
                self.assertEqual(state(self.folder), before)

    def test_a_bad_picture_stops_the_start(self):
        for name in PICTURES:
            self.check_start_stops(name, FAULTS)

    def test_counters_that_cannot_be_read_stop_the_start(self):
        self.check_start_stops("18", NOT_READ)

    def test_no_sound_is_ever_an_error(self):
        page_clicks = [at.FACTORING_MORE] * 10  # every click sound, and most probably every verdict's
        rounds = 24
        for fault in FAULTS:
            with self.subTest(fault=fault.__name__), contextlib.ExitStack() as stack:
                for name in SOUNDS:
                    stack.enter_context(spoiled(self.folder / "datas" / name, fault))
                self.file.write_bytes(self.old)
                program = stack.enter_context(self.started())
                program.page.click(at.TABLE_OF_7, *page_clicks, *[at.MULTIPLE_NO, at.MULTIPLE_AGAIN] * rounds)
                program.page.back()
                self.quit(program)
                done, right, wrong = counters.of_table(7)[1:]
                counted = counters.changes(self.old, self.file.read_bytes())
                self.assertEqual((counted[done], counted[right] + counted[wrong]), (rounds, rounds))

    def test_a_full_disk_takes_the_new_counters(self):
        with small_disk(self.folder.with_name("disque")) as disk:
            self.executable = install(self.source, disk / "é")
            self.file = self.executable.parent / "datas" / "18"
            self.check_save_in_place(lambda: fill(disk))

    def test_a_read_only_folder_takes_the_new_counters(self):
        self.check_save_in_place(lambda: self.file.parent.chmod(0o555))

    def check_save_in_place(self, prevent_another_file):
        with self.started() as program:
            prevent_another_file()
            before = {file: file.stat().st_ino for file in self.file.parent.iterdir()}
            self.quit(program)
        self.assertEqual(self.file.read_bytes(), self.new)
        self.assertEqual({file: file.stat().st_ino for file in self.file.parent.iterdir()}, before)

    def test_counters_that_the_folder_does_not_take_are_the_users_own(self):
        self.give_to_another_user(self.file.parent, self.file)
        before = state(self.folder)
        for visits in (1, 2):
            with self.started() as program:
                self.assertEqual(len(self.desk.own_copies()), visits - 1)
                program.page.go(at.TABLE_OF_7, at.LEARNING)
                program.page.back()
                self.quit(program)
            (own,) = self.desk.own_copies()
            self.assertEqual(counters.changes(self.new, own.read_bytes()), {counters.of_table(7)[0]: visits})
        self.assertEqual(state(self.folder), before)

        saved = own.read_bytes()
        self.give_to_another_user(own.parent, own)
        with self.started() as program:
            program.page.click(at.QUIT)
            self.check_report(program, "Enregistrement impossible", f"{own.parent.name}{self.desk.SEPARATOR}18 »")
        self.check_desk_becomes(self.desk.AT_REST)
        self.assertEqual(own.read_bytes(), saved)

        for path in (self.file.parent, self.file, own.parent, own):
            os.chown(path, os.geteuid(), os.getegid())
        with self.started() as program:
            self.quit(program)
        self.assertEqual(self.file.read_bytes(), saved)
        self.assertEqual(self.desk.own_copies(), [])

    def give_to_another_user(self, *paths):
        if os.geteuid() != 0:
            self.skipTest("only the root user can give files away")
        for path in paths:
            os.chown(path, 65534, 65534)

    def test_read_only_counters_are_replaced(self):
        self.file.chmod(0o444)
        with self.started() as program:
            self.quit(program)
        self.assertEqual(self.file.read_bytes(), self.new)

    def test_counters_that_another_program_holds_are_saved_all_the_same(self):
        if not self.probe:
            self.skipTest("files on Linux cannot be held")
        beside = self.file.with_name("18.nouveau")
        for shared, lets_go, in_place in (
            ([], True, True),
            (["read"], True, True),
            (["read", "write"], False, True),
            ([], False, False),
        ):
            self.file.write_bytes(self.old)
            with self.subTest(shared=shared, lets_go=lets_go), self.started() as program:
                self.desk.hold(self.file, *shared)
                program.page.click(at.QUIT)
                self.assertTrue(wait_until(beside.exists))
                if lets_go:
                    self.desk.let_go()
                self.assertEqual(program.wait(), 0)
                self.desk.let_go()
                saved = [self.file] if in_place else self.desk.own_copies()
                self.assertEqual([file.read_bytes() for file in saved], [self.new])
                self.assertEqual(self.left_beside(), [])
                self.check_desk_becomes(self.desk.AT_REST)

    def test_any_home_will_do(self):
        if self.probe:
            self.skipTest("Windows tells where the user's data are")
        self.give_to_another_user(self.file.parent, self.file)
        home = self.folder.with_name(os.fsdecode(b"\xe9l\xe8ve"))
        for told in ("", "relative/data"):
            with self.started(HOME=str(home), XDG_DATA_HOME=told) as program:
                self.quit(program)
        (own,) = home.glob(".local/share/onze-tables/*/18")
        self.assertEqual(own.read_bytes(), self.new)
        self.assertFalse((self.folder / "relative").exists())

    def test_a_full_counter_ends_the_run(self):
        consultations, exercises, *_ = counters.of_table(7)
        for offset, name, way in (
            (consultations, "TableConsultations(5)", [at.TABLE_OF_7]),
            (exercises, "TableExercises(5)", [at.TABLE_OF_7, at.MULTIPLE_NO]),
            (counters.PUZZLE_COUNT, "PuzzleCount", [at.EXERCISES, at.PRODUCT_MORE, at.PRODUCT_ANSWER]),
        ):
            with self.subTest(name):
                self.file.write_bytes(self.old[:offset] + struct.pack("<h", 32767) + self.old[offset + 2 :])
                with self.started() as program:
                    self.check_run_ends(program, way, f"Dépassement de capacité du compteur « {name} ».")

    def check_run_ends(self, program, way, *texts):
        before = state(self.folder)
        program.page.click(*way)
        self.check_report(program, *texts)
        self.check_desk_becomes(self.desk.IN_USE)
        self.assertEqual(state(self.folder), before)

    def test_killed_at_any_call_of_the_save_the_file_is_whole(self):
        self.saver = install(self.source.with_stem("save"), self.folder.with_name("save"))
        self.file = self.saver.parent / "datas" / "18"
        killed, calls = self.save_traced()
        self.assertFalse(killed)
        self.assertEqual(self.file.read_bytes(), self.new)
        left = []
        for number, call in enumerate(calls):
            with self.subTest(call=call):
                self.assertEqual(self.save_traced(*call), (True, calls[: number + 1]))
                left.append(self.file.read_bytes())
                self.assertLessEqual(len(self.left_beside()), 1)
        self.assertEqual(left, sorted(left))
        self.assertEqual(left[-1], self.new)
        names = [name for name, _ in calls]
        flush = names.index("fsync", names.index("write"))
        self.assertEqual(left[flush + 1], self.old)

    def save_traced(self, *last_call):
        """Saves the counters, in a process that is killed before a call; tells whether it was, and its calls for it."""
        for file in self.left_beside():
            file.unlink()
        self.file.write_bytes(self.old)
        command, pipes = [*self.desk.starter, self.saver], dict.fromkeys(("stdin", "stdout"), subprocess.PIPE)
        with subprocess.Popen(command, env=self.desk.environment(), **pipes) as process:
            process.stdout.readline()
            trace = Trace(process.pid, *last_call, paths=self.desk.paths(self.file))
            process.stdin.close()
        return trace.calls("datas")

    def left_beside(self):
        """Files with new content that a killed program could not take away."""
        return [*self.file.parent.glob("18?*")]

    def test_killed_while_it_saves_the_program_leaves_the_old_counters(self):
        with self.started() as program:
            trace = Trace(program.process, "fsync", 1)
            program.page.click(at.QUIT)
            self.assertTrue(trace.calls("18")[0])
        self.assertEqual(self.file.read_bytes(), self.old)
        with self.started() as program:
            self.quit(program)
        self.assertEqual(self.file.read_bytes(), self.new)


if __name__ == "__main__":
    sys.exit(main(Faults, *sys.argv[1:]))

"""packages.py FOLDER PROBE: tries the packages in a folder as those do who get them."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
import zipfile
from pathlib import Path

import counters
import page as at
from desk import Desk
from installed import DeskTest, main
from programs import Program
from waiting import wait_until

CONSULTED_ONCE = {counters.SAVED_ONCE: 1, counters.of_table(7)[0]: 1}


class Packages(DeskTest):
    def setUp(self):
        self.scratch = Path(self.enterContext(tempfile.TemporaryDirectory()))

    def package(self, pattern):
        (file,) = self.source.glob(pattern)
        return file

    def consult_table_of_7(self, program):
        with program:
            program.wait_until_started()
            program.page.go(at.TABLE_OF_7, at.LEARNING)
            program.page.back()
            program.page.click(at.QUIT)
            self.assertEqual(program.wait(), 0)

    def check_counts(self, program):
        file = program.parent / "datas" / "18"
        delivered = file.read_bytes()
        self.consult_table_of_7(Program(self.desk, program))
        self.assertEqual(counters.changes(delivered, file.read_bytes()), CONSULTED_ONCE)

    def files(self, folder):
        return sorted(str(file.relative_to(folder)) for file in folder.rglob("*") if not file.is_dir())

    def test_windows_zip(self):
        folder = self.scratch / "École été"
        with zipfile.ZipFile(self.package("*-windows.zip")) as archive:
            archive.extractall(folder)
        program = folder / "Onze Tables" / "onze-tables.exe"
        self.check_counts(program)
        text = (program.parent / "LISEZMOI.txt").read_bytes()
        self.assertTrue(text.decode("utf-8-sig").startswith("ONZE TABLES\r\n"))
        self.assertNotIn("@", text.decode())

    def test_windows_installer(self):
        installer = self.package("*-installation.exe")
        (home,) = (self.desk.prefix / "drive_c" / "users").glob("[!P]*")
        folder = home / "AppData" / "Local" / "Programs" / "Onze Tables"
        start_menu = home / "AppData" / "Roaming" / "Microsoft" / "Windows" / "Start Menu" / "Programs"
        file = folder / "datas" / "18"

        self.assertEqual(self.desk.run(installer, "/S"), 0)
        self.assertTrue((start_menu / "Onze Tables.lnk").exists())
        self.assertEqual(self.uninstall_entry(), 0)
        self.check_counts(folder / "onze-tables.exe")
        used = file.read_bytes()
        (folder / "LISEZMOI.txt").unlink()
        self.assertEqual(self.desk.run(installer, "/S"), 0)
        self.assertTrue((folder / "LISEZMOI.txt").exists())
        self.assertEqual(file.read_bytes(), used)

        self.assertEqual(self.desk.run(folder / "desinstaller.exe", "/S"), 0)
        self.assertTrue(wait_until(lambda: self.uninstall_entry() != 0))
        self.assertEqual(self.files(folder), ["datas/18"])
        self.assertEqual(file.read_bytes(), used)
        self.assertFalse((start_menu / "Onze Tables.lnk").exists())

    def uninstall_entry(self):
        key = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\OnzeTables"
        return self.desk.run("reg", "query", key)

    @unittest.skipUnless(shutil.which("dpkg"), "a system without dpkg neither makes nor installs it")
    def test_debian_package(self):
        root = self.scratch / "root"
        (root / "var" / "lib" / "dpkg").mkdir(parents=True)
        self.dpkg(root, "--install", self.package("*.deb"))
        launcher = root / "usr" / "bin" / "onze-tables"
        shared = root / "usr" / "share" / "onze-tables" / "datas" / "18"
        delivered = shared.read_bytes()

        saved = []
        desk = self.enterContext(Desk())
        for user, visits in (("Zoé", 1), ("Léo", 2)):
            home = self.scratch / user
            home.mkdir()
            for _ in range(visits):
                self.consult_table_of_7(Program(desk, launcher, HOME=str(home), XDG_DATA_HOME=""))
            saved.append(home / ".local" / "share" / "onze-tables" / "datas" / "18")
        consulted = [counters.changes(delivered, file.read_bytes())[counters.of_table(7)[0]] for file in saved]
        self.assertEqual(consulted, [1, 2])
        self.assertEqual(shared.read_bytes(), delivered)

        self.dpkg(root, "--purge", "onze-tables")
        self.assertEqual(self.files(root / "usr") if (root / "usr").exists() else [], [])

    def dpkg(self, root, *command):
        """As the system's administrator would, on a system of its own."""
        alone = ["--root", str(root), "--force-not-root", "--force-depends", "--force-script-chrootless"]
        path = os.environ["PATH"] + ":/usr/sbin:/sbin"
        subprocess.run(
            ["fakeroot", "dpkg", *alone, *map(str, command)],
            env={**os.environ, "PATH": path},
            check=True,
            stdout=subprocess.DEVNULL,
        )


if __name__ == "__main__":
    sys.exit(main(Packages, *sys.argv[1:]))

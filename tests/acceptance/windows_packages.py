"""windows_packages.py FOLDER PROBE: tries the Windows packages in a folder as those do who get them."""

import re
import subprocess
import sys
import zipfile
from pathlib import Path

import counters
import page as at
from installed import main
from packages import CONSULTED_ONCE, Packages, files
from programs import ROOT, Program
from waiting import wait_until

OBJDUMP = "x86_64-w64-mingw32-objdump"
MACHINES = {"windows": "pei-x86-64", "windows-32bits": "pei-i386"}
IN_WINDOWS_7 = set(Path(__file__).with_name("windows7_imports.txt").read_text().split())

START_MENU = "Microsoft/Windows/Start Menu/Programs"
LINKS = {"Onze Tables.lnk", "Onze Tables - Guide.lnk"}
IN_USE = 32
(VERSION,) = re.findall(r"^project\(OnzeTables VERSION ([0-9.]+)", (ROOT / "CMakeLists.txt").read_text(), re.MULTILINE)


def contents(folder):
    return {name: (folder / name).read_bytes() for name in files(folder)}


class WindowsPackages(Packages):
    def check_counts(self, program):
        file = program.parent / "datas" / "18"
        before = file.read_bytes()
        self.consult_table_of_7(program)
        self.assertEqual(counters.changes(before, file.read_bytes()), CONSULTED_ONCE)

    def unzip(self, name):
        folder = self.scratch / "École été"
        with zipfile.ZipFile(self.package(f"*-{name}.zip")) as archive:
            archive.extractall(folder)
        return folder / "Onze Tables"

    def test_archives(self):
        datas = {f"datas/{name}" for name in files(ROOT / "datas")}
        for name, machine in MACHINES.items():
            with self.subTest(name):
                folder = self.unzip(name)
                self.assertEqual(files(folder), {"onze-tables.exe", "LISEZMOI.txt", "LICENCE.txt", *datas})
                guide = (folder / "LISEZMOI.txt").read_bytes().decode("utf-8-sig")
                self.assertTrue(guide.startswith("ONZE TABLES\r\n"))
                self.assertNotIn("@", guide)
                self.check_windows_7_runs(folder / "onze-tables.exe", machine)
                if name == "windows" or self.runs_32_bits():
                    self.check_counts(folder / "onze-tables.exe")
                self.check_update(name, folder)

    def check_update(self, name, folder):
        """Whatever was there is as delivered again, except the counters."""
        delivered = contents(folder)
        counted = delivered["datas/18"][:2] + b"\7\0" + delivered["datas/18"][4:]
        for file in delivered:
            (folder / file).write_bytes(b"old")
        (folder / "datas" / "18").write_bytes(counted)
        self.unzip(f"{name}-mise-a-jour")
        self.assertEqual(contents(folder), {**delivered, "datas/18": counted})

    def check_windows_7_runs(self, program, machine):
        told = subprocess.run([OBJDUMP, "-fp", program], check=True, capture_output=True, text=True).stdout
        self.assertIn(f"file format {machine}\n", told)
        libraries = map(str.lower, re.findall(r"DLL Name: (\S+)", told))
        functions = re.findall(r"^\t[0-9a-f]+\t +\d+  (\w+)", told, re.MULTILINE)
        self.assertIn("CreateWindowExW", functions)
        self.assertEqual({*libraries, *functions} - IN_WINDOWS_7, set(), "not in windows7_imports.txt")
        system = [int(re.search(rf"{part}SubsystemVersion\s+(\d+)", told)[1]) for part in ("Major", "Minor")]
        self.assertLessEqual(system, [6, 1])

    def runs_32_bits(self):
        """Whether Wine does, here."""
        return (self.desk.prefix / "drive_c" / "windows" / "syswow64" / "kernel32.dll").exists()

    def installer(self):
        """The one that is handed out, or its twin for 64 bits."""
        if self.runs_32_bits():
            return self.package("*-installation.exe")
        return self.source.parent / "packaging" / "installation-64bits.exe"

    def test_installer(self):
        (home,) = (self.desk.prefix / "drive_c" / "users").glob("[!P]*")
        for_one, for_all = home / "AppData", self.desk.prefix / "drive_c" / "ProgramData"
        for words, root, folder, links in (
            ([], "HKCU", for_one / "Local" / "Programs", for_one / "Roaming"),
            (["/ALLUSERS"], "HKLM", self.desk.prefix / "drive_c" / "Program Files", for_all),
        ):
            with self.subTest(root):
                self.check_installer(["/S", *words], root, folder / "Onze Tables", links / START_MENU)

    def entry(self, root):
        """What "Programs and features" knows of it."""
        key = rf"{root}\Software\Microsoft\Windows\CurrentVersion\Uninstall\OnzeTables"
        told = self.desk.told_by("reg", "query", key, "/reg:64")
        return dict(re.findall(r"^ +(\w+) +REG_\w+ +(.*?)\r?$", told, re.MULTILINE))

    def check_installer(self, words, root, folder, start_menu):
        def state():
            return contents(folder), self.entry(root), {link.name for link in start_menu.glob("Onze*")}

        install = [self.installer(), *words]
        self.assertEqual(self.desk.run(*install), 0)
        _, entry, links = state()
        self.assertEqual(links, LINKS)
        self.assertEqual(entry["DisplayVersion"], VERSION)
        self.assertGreater(int(entry["EstimatedSize"], 16), 1000)
        uninstall = ["cmd", "/c", self.scratch / "uninstall.bat"]
        uninstall[-1].write_text(entry["QuietUninstallString"])

        self.check_counts(folder / "onze-tables.exe")
        (folder / "LISEZMOI.txt").write_bytes(b"old")
        before = state()
        with Program(self.desk, folder / "onze-tables.exe") as running:
            running.wait_until_started()
            for command in (install, uninstall):
                self.assertEqual(self.desk.run(*command), IN_USE)
                self.assertEqual(state(), before)
            running.page.click(at.QUIT)
            self.assertEqual(running.wait(), 0)

        counted = (folder / "datas" / "18").read_bytes()
        self.assertEqual(self.desk.run(*install), 0)
        self.assertNotEqual((folder / "LISEZMOI.txt").read_bytes(), b"old")
        self.assertEqual((folder / "datas" / "18").read_bytes(), counted)
        self.assertEqual(self.desk.run(*uninstall), 0)
        self.assertTrue(wait_until(lambda: state() == ({"datas/18": counted}, {}, set())), state())


if __name__ == "__main__":
    sys.exit(main(WindowsPackages, *sys.argv[1:]))

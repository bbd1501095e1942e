"""debian_package.py FOLDER: tries the Debian package in a folder as those do who get it."""

import os
import shutil
import subprocess
import sys
import unittest

import counters
from installed import main
from packages import CONSULTED_ONCE, Packages, files


class DebianPackage(Packages):
    @unittest.skipUnless(shutil.which("dpkg"), "a system without dpkg neither makes nor installs it")
    def test_debian_package(self):
        root = self.scratch / "root"
        (root / "var" / "lib" / "dpkg").mkdir(parents=True)
        self.dpkg(root, "--install", self.package("*.deb"))
        launcher = root / "usr" / "bin" / "onze-tables"
        shared = root / "usr" / "share" / "onze-tables" / "datas" / "18"
        delivered = shared.read_bytes()

        saved = []
        for user, visits in (("Zoé", 1), ("Léo", 2)):
            home = self.scratch / user
            home.mkdir()
            for _ in range(visits):
                self.consult_table_of_7(launcher, HOME=str(home), XDG_DATA_HOME="")
            saved.append(home / ".local" / "share" / "onze-tables" / "datas" / "18")
        consulted = [counters.changes(delivered, file.read_bytes())[counters.of_table(7)[0]] for file in saved]
        self.assertEqual(consulted, [1, 2])
        self.assertEqual(shared.read_bytes(), delivered)

        self.dpkg(root, "--purge", "onze-tables")
        self.assertEqual(files(root / "usr"), set())

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
    sys.exit(main(DebianPackage, *sys.argv[1:]))

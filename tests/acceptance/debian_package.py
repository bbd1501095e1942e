"""debian_package.py FOLDER: tries the Debian package in a folder as those do who get it."""

import os
import shutil
import subprocess
import sys
import unittest

import counters
from installed import main
from packages import CONSULTED_ONCE, Packages, files

USED_BEFORE = 41  # consultations of the table of 7


@unittest.skipUnless(shutil.which("dpkg"), "a system without dpkg neither makes nor installs it")
class DebianPackage(Packages):
    def test_two_users(self):
        root = self.scratch / "root"
        (root / "var" / "lib" / "dpkg").mkdir(parents=True)
        self.dpkg(root, "--install", self.package("onze-tables_*.deb"))
        share = root / "usr" / "share"
        shared = share / "onze-tables" / "datas" / "18"
        delivered = shared.read_bytes()
        guide = (share / "doc" / "onze-tables" / "LISEZMOI.txt").read_text(encoding="utf-8")
        self.assertTrue(guide.startswith("ONZE TABLES\n"))
        self.assertNotIn("@", guide)
        self.protect(shared.parent, shared)

        place = counters.of_table(7)[0]
        used = bytearray(delivered)
        used[place] = USED_BEFORE
        for user, before in (("Zoé", delivered), ("Léo", bytes(used))):
            home = self.scratch / user
            own = home / ".local" / "share" / "onze-tables" / "datas" / "18"
            if before != delivered:
                self.lay_out_as_version_1_0_0(own, before)
            for visits in (1, 2):
                self.consult_table_of_7(root / "usr" / "bin" / "onze-tables", HOME=str(home), XDG_DATA_HOME="")
                self.assertEqual(counters.changes(before, own.read_bytes()), {**CONSULTED_ONCE, place: visits})
        self.assertEqual(shared.read_bytes(), delivered)

        self.dpkg(root, "--purge", "onze-tables")
        self.assertEqual(files(root / "usr"), set())

    def protect(self, *paths):
        """As what the administrator installs is, for users."""
        if os.geteuid() != 0:
            self.skipTest("only the root user can give files away")
        for path in paths:
            os.chown(path, 65534, 65534)

    def lay_out_as_version_1_0_0(self, own, content):
        """Which was started from a folder of links."""
        own.parent.mkdir(parents=True)
        own.write_bytes(content)
        (own.parent / "15").symlink_to("/usr/share/onze-tables/datas/15")
        (own.parents[1] / "onze-tables").symlink_to("/usr/libexec/onze-tables/onze-tables")

    def dpkg(self, root, *command):
        """As the system's administrator would, on a system of its own."""
        alone = ["--root", str(root), "--force-not-root", "--force-depends", "--force-script-chrootless"]
        environment = {**os.environ, "PATH": os.environ["PATH"] + ":/usr/sbin:/sbin"}
        command = ["fakeroot", "dpkg", *alone, *map(str, command)]
        subprocess.run(command, env=environment, check=True, stdout=subprocess.DEVNULL)


if __name__ == "__main__":
    sys.exit(main(DebianPackage, *sys.argv[1:]))

"""A Windows desktop in Wine, with a taskbar."""

import signal
import subprocess
import tempfile
import threading
from pathlib import Path

from desk import AS_A_PUPIL, DOUBLE_CLICK_MS, HEIGHT, WIDTH, Desk
from waiting import PATIENCE, wait_until

WINE = str(Path(__file__).parents[2] / "scripts" / "wine")

SETTINGS = fr"""REGEDIT4

[HKEY_CURRENT_USER\Software\Wine\Explorer]
"Desktop"="onze"
[HKEY_CURRENT_USER\Software\Wine\Explorer\Desktops]
"onze"="{WIDTH}x{HEIGHT}"
[HKEY_CURRENT_USER\Control Panel\Mouse]
"DoubleClickSpeed"="{DOUBLE_CLICK_MS}"
"""


class WineDesk(Desk):
    """Its taskbar belongs to a probe, which tells what becomes of the desktop and puts reports away."""

    SCALE = 1
    SEPARATOR = "\\"
    AT_REST, IN_USE = f"{WIDTH}x{HEIGHT} with taskbar", "640x480 without taskbar"
    starter = [*AS_A_PUPIL, WINE]

    def __init__(self, probe, *server_options):
        super().__init__(*server_options)
        self._probe_file = probe

    def __enter__(self):
        super().__enter__()
        self.prefix = self.folder / "wine"
        self.prefix.mkdir()
        self._own["WINEPREFIX"] = str(self.prefix)
        settings = self.folder / "settings.reg"
        settings.write_text(SETTINGS)
        self.run("wineboot", "-i")
        self.run("reg", "import", settings)
        self._told = []
        self._probe = subprocess.Popen(
            [*self.starter, self._probe_file],
            env=self.environment(),
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
            encoding="utf-8",
        )
        threading.Thread(target=self._listen, daemon=True).start()
        return self

    def __exit__(self, *failure):
        subprocess.run(["wineserver", "-k"], env=self.environment())
        self._probe.wait()
        super().__exit__(*failure)

    def run(self, *command, output=subprocess.DEVNULL):
        """Runs a Windows program to its end, and tells its exit status."""
        command = [*self.starter, *map(str, command)]
        environment = self.environment()
        return subprocess.run(command, env=environment, timeout=PATIENCE, stdout=output, stderr=output).returncode

    def told_by(self, *command):
        """What it writes; to a file, since Wine's own processes would hold a pipe open."""
        with tempfile.TemporaryFile("w+") as output:
            self.run(*command, output=output)
            output.seek(0)
            return output.read()

    def tidy(self):
        self._told.clear()
        self._probe.stdin.write("tidy\n")
        self._probe.stdin.flush()
        if not wait_until(lambda: "tidy" in self._told and self.states()):
            raise AssertionError("the probe does not answer")

    def states(self):
        return self._since_tidy("desk ")

    def is_in_use(self):
        return super().is_in_use() and bool(self._since_tidy("running "))

    def status(self, status):
        """Wine itself may crash when a program that has several threads is at its end; the probe knows what it was."""
        if status != -signal.SIGSEGV:
            return status
        exit_of_program = "exit {} ".format(*self._since_tidy("running "))
        wait_until(lambda: self._since_tidy(exit_of_program))
        return int(*self._since_tidy(exit_of_program))

    def put_away(self):
        return bool(self._since_tidy("report "))

    def report(self, error_stream):
        return "".join(self._since_tidy("report "))

    def paths(self, file):
        drive = self.prefix / "dosdevices" / "z:"
        return [root + str(file) + new for root in ("", str(drive)) for new in ("", ".nouveau")]

    def own_copies(self):
        return list(self.prefix.glob("drive_c/users/*/AppData/Roaming/Onze Tables/*/18"))

    def hold(self, file, *shared):
        """Opens a file as another program does, which shares it with those who "read", "write" or "delete" it."""
        self._ask(" ".join(["hold", *shared]), str(file).replace("/", "\\"))

    def let_go(self):
        """Closes the files that are held."""
        self._ask("let go")

    def _ask(self, *lines):
        answers = self._told.count("done")
        self._probe.stdin.write("\n".join([*lines, ""]))
        self._probe.stdin.flush()
        assert wait_until(lambda: self._told.count("done") > answers), "the probe does not answer"

    def _listen(self):
        for line in self._probe.stdout:
            self._told.append(line.rstrip("\n"))

    def _since_tidy(self, kind):
        told = self._told[self._told.index("tidy") :]
        return [line.removeprefix(kind) for line in told if line.startswith(kind)]

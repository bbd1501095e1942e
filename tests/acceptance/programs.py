"""The two programs, each started from a folder of its own on a desk."""

import contextlib
import os
import shutil
import subprocess
from pathlib import Path

from desk import HEIGHT, WIDTH
from page import Page
from waiting import PATIENCE, wait_until

ROOT = Path(__file__).parents[2]
WINE = ROOT / "scripts" / "wine"


def install(program, folder):
    """Copies a program and its data into a folder, with the counters as they are delivered."""
    folder.mkdir(parents=True)
    shutil.copy(program, folder)
    shutil.copytree(ROOT / "datas", folder / "datas")
    return folder / program.name


def wine(prefix, *command):
    """Runs a Windows program to its end."""
    environment = {**os.environ, "WINEPREFIX": str(prefix)}
    return subprocess.run([WINE, *map(str, command)], env=environment, timeout=PATIENCE).returncode


# What the root user alone may do and no pupil, the reading and writing of anything, is taken from a program.
AS_A_PUPIL = ["setpriv", "--bounding-set=-dac_override,-dac_read_search"] if os.geteuid() == 0 else []


class LinuxProgram:
    SCALE = WIDTH / 640

    def __init__(self, desk, executable, under=(), **environment):
        self.page = Page(desk, self.SCALE)
        self._desk, self._command = desk, [*under, str(executable)]
        self._environment = desk.environment(**environment)

    def __enter__(self):
        self._process = subprocess.Popen(
            self._command, env=self._environment, stderr=subprocess.PIPE, text=True, encoding="utf-8"
        )
        return self

    def __exit__(self, *_):
        self._process.kill()
        self._process.communicate()

    @property
    def process(self):
        return self._process.pid

    def wait(self):
        return self._process.wait(PATIENCE)

    def kill(self):
        self._process.kill()
        self._process.wait()

    def report(self):
        """The report of an error, once it is put away."""

        def put_away():
            self._desk.move(WIDTH // 2, HEIGHT // 2)
            self._desk.press("Return")
            return self._process.poll() is not None

        wait_until(put_away)
        self._process.kill()
        return self._process.stderr.read()

    def processor_time(self):
        """Seconds of one core that the program has used."""
        fields = Path(f"/proc/{self._process.pid}/stat").read_text().rpartition(")")[2].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


class WindowsProgram:
    """Runs in a desktop with a taskbar, beside a probe that tells what becomes of both."""

    SCALE = 1
    DESKTOP = WINE, "explorer", f"/desktop=shell,{WIDTH}x{HEIGHT}"
    prefix = None

    @classmethod
    def prepare(cls, prefix, probe):
        """Makes the Wine that all of them run in."""
        cls.prefix = prefix
        prefix.mkdir()
        wine(prefix, "wineboot", "-i")
        shutil.copy(probe, prefix / "drive_c" / "probe.exe")

    @staticmethod
    def end_wine(environment):
        subprocess.run(["wineserver", "-k"], env=environment)

    def __init__(self, desk, executable, under=(), **environment):
        self.page = Page(desk, self.SCALE)
        self._under = under
        self._environment = desk.environment(WINEPREFIX=str(self.prefix), **environment)
        self._folder = executable.parent
        self.told = []

    def __enter__(self):
        self._process = subprocess.Popen(
            [*self._under, *self.DESKTOP, r"C:\probe.exe"],
            cwd=self._folder,
            env=self._environment,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
            encoding="utf-8",
        )
        return self

    def __exit__(self, *_):
        # All of them at once: whichever is left would keep the pipe open.
        self.end_wine(self._environment)
        self._process.kill()
        self._process.communicate()

    def wait(self):
        """The exit status; all that happened to the desktop has been told by then."""
        output, _ = self._process.communicate(timeout=PATIENCE)
        self.told = output.splitlines()
        return int(self.told.pop().removeprefix("exit "))

    @property
    def process(self):
        """Its number outside of Wine."""
        own = f"WINEPREFIX={self.prefix}".encode()
        for folder in Path("/proc").glob("[0-9]*"):
            with contextlib.suppress(OSError):  # it may have ended
                command, environment = ((folder / name).read_bytes().split(b"\0") for name in ("cmdline", "environ"))
                if command[0].endswith(b"onze-tables.exe") and own in environment:
                    return int(folder.name)

    def kill(self):
        self._process.stdin.write("\n")
        self._process.stdin.flush()
        self.wait()

    def report(self):
        self.wait()
        return "".join(line.removeprefix("report ") for line in self.told if line.startswith("report "))


class NextWindowsProgram(WindowsProgram):
    """Runs in a desktop that outlives it, which spares it most of Wine's start."""

    @classmethod
    @contextlib.contextmanager
    def desktop(cls, desk, under=()):
        environment = desk.environment(WINEPREFIX=str(cls.prefix))
        bottom = (0, HEIGHT - 1, 1, 1)
        empty = desk.look(bottom, (1, 1))
        cls.end_wine(environment)  # the files are opened by its server, which must run as the programs do
        explorer = subprocess.Popen([*under, *cls.DESKTOP], env=environment)
        if not wait_until(lambda: desk.look(bottom, (1, 1)) != empty):
            raise AssertionError("no taskbar is shown")
        yield
        cls.end_wine(environment)
        explorer.wait()

    def __exit__(self, *failure):
        if not self.told:  # it still runs
            super().__exit__(*failure)

"""A virtual display with a real pointer, and what can be seen on it and heard."""

import os
import subprocess
import tempfile
from pathlib import Path

WIDTH, HEIGHT = 1024, 768

SOUND_DEVICE = 'pcm.!default {{ type file slave.pcm {{ type null }} file "{}" format "raw" }}'

# Two clicks at one place are a double click, however long the machine takes for them.
DOUBLE_CLICK_MS = 3_600_000

# What the root user alone may do and no pupil, the reading, writing and changing of anything, is taken from a program.
AS_A_PUPIL = ["setpriv", "--bounding-set=-dac_override,-dac_read_search,-fowner"] if os.geteuid() == 0 else []


class Desk:
    """A Linux desktop, which no program changes."""

    SCALE = WIDTH / 640  # of the page
    SEPARATOR = "/"  # in file names
    AT_REST = IN_USE = "as it always is"
    starter = AS_A_PUPIL

    def __init__(self, *server_options):
        screen = ["-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-nolisten", "tcp", "-noreset"]
        self._command = ["Xvfb", *screen, *server_options]

    def __enter__(self):
        read, write = os.pipe()
        self._server = subprocess.Popen(
            [*self._command, "-displayfd", str(write)],
            pass_fds=[write],
            stderr=subprocess.DEVNULL,
        )
        os.close(write)
        with open(read) as numbers:
            display = ":" + numbers.readline().strip()

        self._folder = tempfile.TemporaryDirectory()
        self.folder = Path(self._folder.name)
        self.sounds = self.folder / "sounds"
        sound_device = self.folder / "asound.conf"
        sound_device.write_text(SOUND_DEVICE.format(self.sounds))
        (self.folder / "kdeglobals").write_text(f"[KDE]\nDoubleClickInterval={DOUBLE_CLICK_MS}\n")
        self._own = {
            "DISPLAY": display,
            "ALSA_CONFIG_PATH": str(sound_device),
            "SDL_AUDIODRIVER": "disk",
            "SDL_DISKAUDIOFILE": str(self.sounds),
            "XDG_CURRENT_DESKTOP": "KDE",
            "KDE_SESSION_VERSION": "5",
            "XDG_CONFIG_HOME": str(self.folder),
            "XDG_DATA_HOME": str(self.folder / "data"),
        }
        return self

    def __exit__(self, *_):
        self._server.terminate()
        self._server.wait()
        self._folder.cleanup()

    def environment(self, **more):
        shared = {k: v for k, v in os.environ.items() if k not in ("WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        return {**shared, **self._own, **more}

    def tidy(self):
        """Brings the desktop to rest, for the next program."""

    def states(self):
        """What the desktop was seen to be since then, one after the other."""
        return [self.AT_REST]

    def is_in_use(self):
        """Whether a program has made it its own."""
        return self.states()[-1] == self.IN_USE

    def status(self, status):
        """What a program ended with, by what its process ended with."""
        return status

    def put_away(self):
        """Puts a report away that is shown; tells whether there can have been one."""
        self._pointer("mousemove", WIDTH // 2, HEIGHT // 2, "key", "Return")
        return True

    def report(self, error_stream):
        """The report that was put away."""
        return error_stream

    def paths(self, file):
        """The names under which a program opens a file and the new one that takes its place, where they are known."""
        return []

    def own_copies(self):
        """The counters that the user has in a folder of his own."""
        return list(self.folder.glob("data/onze-tables/*/18"))

    def heard(self):
        """Whether any sound has reached the sound device."""
        return self.sounds.exists() and any(self.sounds.read_bytes())

    def view(self):
        """Where the page lies, and how far it is scaled."""
        return 0, 0, self.SCALE

    def click(self, *places):
        words = []
        for x, y in places:
            words += "mousemove", x, y, "mousedown", 1, "mouseup", 1
        self._pointer(*words)

    def press(self, *keys):
        self._pointer("key", "--delay", 0, *keys)

    def look(self, box, size):
        """The colours inside a box (left, top, width, height), brought to a size: three bytes a pixel."""
        return self._see(box, "-resize", f"{size[0]}x{size[1]}!", "-depth", "8", "rgb:-")

    def keep_picture(self, box, file):
        self._see(box, str(file))

    def _pointer(self, *words):
        subprocess.run(["xdotool", *map(str, words)], env=self.environment(), check=True)

    def _see(self, box, *rest):
        left, top, width, height = box
        crop = ["-window", "root", "-crop", f"{width}x{height}+{left}+{top}", "+repage"]
        return subprocess.run(["import", *crop, *rest], env=self.environment(), check=True, capture_output=True).stdout

"""A virtual display with a real pointer, and what can be seen on it and heard."""

import os
import subprocess
import tempfile
from pathlib import Path

WIDTH, HEIGHT = 1024, 768

SOUND_DEVICE = 'pcm.!default {{ type file slave.pcm {{ type null }} file "{}" format "raw" }}'


class Desk:
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
        sound_device = Path(self._folder.name, "asound.conf")
        self.sounds = sound_device.with_name("sounds")
        sound_device.write_text(SOUND_DEVICE.format(self.sounds))
        self._own = {"DISPLAY": display, "ALSA_CONFIG_PATH": str(sound_device), "SDL_AUDIODRIVER": "alsa"}
        return self

    def __exit__(self, *_):
        self._server.terminate()
        self._server.wait()
        self._folder.cleanup()

    def environment(self, **more):
        shared = {k: v for k, v in os.environ.items() if k not in ("WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        return {**shared, **self._own, **more}

    def heard(self):
        """Whether any sound has reached the sound device."""
        return self.sounds.exists() and any(self.sounds.read_bytes())

    def move(self, x, y):
        self._pointer("mousemove", x, y)

    def click(self, *places):
        words = []
        for x, y in places:
            words += "mousemove", x, y, "sleep", 0.02, "click", "--delay", 20, 1
        self._pointer(*words)

    def press(self, key):
        self._pointer("key", key)

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

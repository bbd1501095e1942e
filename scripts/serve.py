"""serve.py FOLDER: serves a site to this machine alone, and shows it in the browser that there is."""

import functools
import os
import re
import shutil
import sys
import webbrowser
from http.server import SimpleHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path

PORT = 8011  # the same each time, for browsers keep the counters by it


class Handler(SimpleHTTPRequestHandler):
    """Serves each version from a folder of its own name, so that none is shown for another."""

    def translate_path(self, path):
        return super().translate_path(re.sub("^/[0-9a-f]{12}/", "/", path))

    def log_message(self, *_):
        pass


def listen(folder):
    handler = functools.partial(Handler, directory=folder)
    try:
        return ThreadingHTTPServer(("127.0.0.1", PORT), handler)
    except OSError:  # that port is taken
        return ThreadingHTTPServer(("127.0.0.1", 0), handler)


def main(folder):
    version = re.search('data-version="([^"]*)"', Path(folder, "index.html").read_text())[1]
    with listen(folder) as server:
        address = f"http://localhost:{server.server_port}/{version}/"
        print(f"{address}  (Ctrl + C to end)", flush=True)
        if (os.environ.get("DISPLAY") or os.environ.get("WAYLAND_DISPLAY")) and shutil.which("xdg-open"):
            webbrowser.open(address)
        try:
            server.serve_forever()
        except KeyboardInterrupt:
            pass


if __name__ == "__main__":
    main(sys.argv[1])

"""A static server for a folder, as a school may have one."""

import http.server
import threading


class Site:
    """At an address of its own, where no browser knows anything yet."""

    def __init__(self, folder):
        self.folder = folder

    def __enter__(self):
        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), self._answer)
        self._server.handle_error = lambda *_: None  # a tab that is left takes no answer any more
        threading.Thread(target=self._server.serve_forever, daemon=True).start()
        self.address = f"http://localhost:{self._server.server_port}/"
        return self

    def __exit__(self, *_):
        self.stop()

    def stop(self):
        self._server.shutdown()
        self._server.server_close()

    def _answer(self, *request):
        Handler(*request, directory=str(self.folder))


class Handler(http.server.SimpleHTTPRequestHandler):
    def log_message(self, *_):
        pass

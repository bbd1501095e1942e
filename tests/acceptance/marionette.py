"""Firefox, told what to do in the protocol that it speaks itself."""

import json
import socket
import subprocess

from selenium.common.exceptions import WebDriverException

from waiting import PATIENCE, wait_until

NAMES = {
    "actions": "PerformActions",
    "clickElement": "ElementClick",
    "get": "Navigate",
    "screenshot": "TakeScreenshot",
    "sendKeysToElement": "ElementSendKeys",
    "switchToWindow": "SwitchToWindow",
    "w3cExecuteScript": "ExecuteScript",
    "w3cExecuteScriptAsync": "ExecuteAsyncScript",
}


class Marionette:
    """Carries out the commands of Selenium, which knows Firefox only by a server that Debian does not have."""

    def __init__(self, profile):
        profile.mkdir(parents=True, exist_ok=True)
        (profile / "user.js").write_text('user_pref("marionette.port", 0);\n')
        port = profile / "MarionetteActivePort"
        port.unlink(missing_ok=True)
        command = ["firefox-esr", "--headless", "--marionette", "--profile", profile]
        self._process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        assert wait_until(lambda: port.exists() and port.read_text()), "Firefox does not listen"
        self._connection = socket.create_connection(("127.0.0.1", int(port.read_text())))
        self._stream = self._connection.makefile("rwb")
        self._receive()  # its greeting

    def execute(self, command, parameters):
        if command == "quit":
            self._ask("Marionette:Quit", {"flags": ["eForceQuit"]})
            return {}
        name = NAMES.get(command, command[0].upper() + command[1:])
        parameters = parameters.get("capabilities", {}).get("alwaysMatch", parameters)
        parameters.pop("sessionId", None)
        _, _, error, result = self._ask("WebDriver:" + name, parameters)
        if error:
            raise WebDriverException(f"{command}: {error['message']}")
        return result if {"value", "sessionId"} & result.keys() else {"value": result}

    def close(self):
        self._process.wait(PATIENCE)
        self._stream.close()
        self._connection.close()

    def _ask(self, name, parameters):
        packet = json.dumps([0, 0, name, parameters]).encode()
        self._stream.write(b"%d:%s" % (len(packet), packet))
        self._stream.flush()
        return self._receive()

    def _receive(self):
        length = iter(lambda: self._stream.read(1), b":")
        return json.loads(self._stream.read(int(b"".join(length))))

"""A headless Chromium, driven over its DevTools protocol through a pipe, and one page in it."""

import base64
import fcntl
import json
import os
import select
import subprocess
import time

FLAGS = ["--headless=new", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
         "--disable-background-networking", "--disable-component-update", "--disable-sync",
         "--remote-debugging-pipe"]

# Chromium reads its commands from this descriptor and writes to the next.
COMMANDS, ANSWERS = 3, 4
ANSWER_TIME = 30


class Browser:
    def __init__(self, program, folder):
        read_commands, write_commands = _high_pipe()
        read_answers, write_answers = _high_pipe()
        os.dup2(read_commands, COMMANDS)
        os.dup2(write_answers, ANSWERS)
        self._process = subprocess.Popen(
            [program, *FLAGS, f"--user-data-dir={folder}", "about:blank"],
            pass_fds=(COMMANDS, ANSWERS), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        for descriptor in (COMMANDS, ANSWERS, read_commands, write_answers):
            os.close(descriptor)
        self._commands, self._answers = write_commands, read_answers
        self._received = b""
        self._last = 0
        self.complaints = []

    def send(self, method, session=None, **params):
        self._last += 1
        message = {"id": self._last, "method": method, "params": params}
        if session:
            message["sessionId"] = session
        os.write(self._commands, json.dumps(message).encode() + b"\0")
        deadline = time.monotonic() + ANSWER_TIME
        while True:
            answer = self._next_message(deadline)
            if answer.get("id") == self._last:
                if "error" in answer:
                    raise RuntimeError(f"{method}: {answer['error']['message']}")
                return answer["result"]
            self._note_complaint(answer)

    def close(self):
        self._process.terminate()
        self._process.wait()
        os.close(self._commands)
        os.close(self._answers)

    def _next_message(self, deadline):
        while b"\0" not in self._received:
            ready, _, _ = select.select([self._answers], [], [], max(0, deadline - time.monotonic()))
            piece = os.read(self._answers, 1 << 16) if ready else b""
            if not piece:
                raise RuntimeError("the browser does not answer")
            self._received += piece
        message, self._received = self._received.split(b"\0", 1)
        return json.loads(message)

    def _note_complaint(self, event):
        if event.get("method") == "Runtime.exceptionThrown":
            self.complaints.append(event["params"]["exceptionDetails"])
        elif event.get("method") == "Log.entryAdded" and event["params"]["entry"]["source"] == "security":
            self.complaints.append(event["params"]["entry"]["text"])


class Page:
    def __init__(self, browser, address):
        self._browser = browser
        self._target = browser.send("Target.createTarget", url="about:blank")["targetId"]
        self._session = browser.send("Target.attachToTarget", targetId=self._target, flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Log"):
            self._send(f"{domain}.enable")
        self._send("Emulation.setDeviceMetricsOverride", width=1366, height=900, deviceScaleFactor=1, mobile=False)
        self._send("Page.navigate", url=address)

    def evaluate(self, expression):
        result = self._send("Runtime.evaluate", expression=expression, awaitPromise=True, returnByValue=True)
        if "exceptionDetails" in result:
            raise RuntimeError(f"{expression}: {result['exceptionDetails']}")
        return result["result"].get("value")

    def mouse(self, kind, selector):
        x, y = self.evaluate(f"(r => [r.x + r.width / 2, r.y + r.height / 2])"
                             f"(document.querySelector({json.dumps(selector)}).getBoundingClientRect())")
        self._send("Input.dispatchMouseEvent", type=kind, x=x, y=y, button="left", clickCount=1)

    def press(self, selector):
        self.mouse("mousePressed", selector)

    def release(self, selector):
        self.mouse("mouseReleased", selector)

    def click(self, selector):
        self.press(selector)
        self.release(selector)

    def type(self, key):
        """One stroke of a key of the PC's keyboard that has the same name as its code."""
        for kind in ("keyDown", "keyUp"):
            self._send("Input.dispatchKeyEvent", type=kind, key=key, code=key)

    def save_picture(self, file_name):
        picture = self._send("Page.captureScreenshot", format="png")["data"]
        with open(file_name, "wb") as file:
            file.write(base64.b64decode(picture))

    def close(self):
        self._browser.send("Target.closeTarget", targetId=self._target)

    def _send(self, method, **params):
        return self._browser.send(method, session=self._session, **params)


def _high_pipe():
    """A pipe whose ends lie above the two descriptors that Chromium wants for itself."""
    ends = []
    for end in os.pipe():
        ends.append(fcntl.fcntl(end, fcntl.F_DUPFD_CLOEXEC, 10))
        os.close(end)
    return ends

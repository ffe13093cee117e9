"""A headless Chromium, driven through its debugging pipe: messages are JSON texts, each with a zero
byte at its end, requests written to descriptor 3 of the browser, answers read from its 4."""

import base64
import json
import os
import select
import shutil
import subprocess
import tempfile
import time

_WAIT_SECONDS = 300


class Browser:
    """One browser with one page. Use it in a with statement."""

    def __enter__(self):
        self._profile = tempfile.mkdtemp(prefix="metagen-browser-")
        request_end, self._requests = os.pipe()
        self._answers, answer_end = os.pipe()
        command = ["chromium", "--headless=new", "--disable-gpu", "--hide-scrollbars",
                   "--disable-dev-shm-usage", "--remote-debugging-pipe", "--no-first-run",
                   f"--user-data-dir={self._profile}", "--window-size=1280,1000", "about:blank"]
        if os.geteuid() == 0:
            command.insert(1, "--no-sandbox")  # Chromium's own sandbox refuses to run as root

        def place_descriptors():
            # Both ends are moved out of the way first, since they may be 3 or 4 themselves.
            high = [os.dup2(end, 100 + number)
                    for number, end in enumerate((request_end, answer_end))]
            os.dup2(high[0], 3)
            os.dup2(high[1], 4)

        self._process = subprocess.Popen(
            command, preexec_fn=place_descriptors, close_fds=False, stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(request_end)
        os.close(answer_end)
        self._buffer = b""
        self._number = 0
        self._session = None
        self.events = []
        target = next(target for target in self.call("Target.getTargets")["targetInfos"]
                      if target["type"] == "page")
        self._session = self.call("Target.attachToTarget", targetId=target["targetId"],
                                  flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Log", "Network"):
            self.call(f"{domain}.enable")
        self.call("Performance.enable", timeDomain="threadTicks")
        return self

    def __exit__(self, *_):
        self._process.terminate()
        self._process.wait()
        os.close(self._requests)
        os.close(self._answers)
        shutil.rmtree(self._profile, ignore_errors=True)

    def _receive(self):
        deadline = time.monotonic() + _WAIT_SECONDS
        while b"\0" not in self._buffer:
            if not select.select([self._answers], [], [], deadline - time.monotonic())[0]:
                raise TimeoutError("the browser doesn't answer")
            chunk = os.read(self._answers, 1 << 20)
            if not chunk:
                raise EOFError("the browser has ended")
            self._buffer += chunk
        message, self._buffer = self._buffer.split(b"\0", 1)
        return json.loads(message)

    def call(self, method, **parameters):
        """Asks the browser; gives its answer. Events that come meanwhile are kept."""
        self._number += 1
        request = {"id": self._number, "method": method, "params": parameters}
        if self._session:
            request["sessionId"] = self._session
        self._send(json.dumps(request).encode() + b"\0")
        while True:
            message = self._receive()
            if message.get("id") != self._number:
                self.events.append(message)
            elif "error" in message:
                raise RuntimeError(f"{method}: {message['error']}")
            else:
                return message["result"]

    def _send(self, data):
        while data:
            data = data[os.write(self._requests, data):]

    def open(self, path):
        """Opens a file and waits until it is loaded and painted; gives the seconds of work."""
        self.events.clear()
        self.call("Page.navigate", url=path.resolve().as_uri())
        while not any(event.get("method") == "Page.loadEventFired" for event in self.events):
            self.events.append(self._receive())
        self.painted()
        return self._seconds_of_work()

    def _seconds_of_work(self):
        """How long the page's thread has had a processor since the page was opened, which doesn't
        move with the machine's load as a clock's time would."""
        metrics = self.call("Performance.getMetrics")["metrics"]
        return next(metric["value"] for metric in metrics if metric["name"] == "ThreadTime")

    def painted(self):
        """Waits until what was changed is on the screen."""
        self.evaluate("new Promise(done => requestAnimationFrame(() => setTimeout(done)))")

    def evaluate(self, expression):
        """The value of a JavaScript expression, awaited."""
        answer = self.call("Runtime.evaluate", expression=expression, returnByValue=True,
                           awaitPromise=True)
        if "exceptionDetails" in answer:
            raise RuntimeError(answer["exceptionDetails"])
        return answer["result"].get("value")

    def click(self, selector):
        self.evaluate(f"document.querySelector({json.dumps(selector)}).click()")
        self.painted()

    def type(self, text):
        """Types a text into the element that has the focus; gives the seconds of work until it
        shows."""
        before = self._seconds_of_work()
        self.call("Input.insertText", text=text)
        self.painted()
        return self._seconds_of_work() - before

    def press(self, key, text=None):
        parameters = {"key": key, "text": text} if text else {"key": key}
        self.call("Input.dispatchKeyEvent", type="keyDown", **parameters)
        self.call("Input.dispatchKeyEvent", type="keyUp", key=key)
        self.painted()

    def complaints(self):
        """What the page has complained of since it was opened: console messages, exceptions, log
        entries and dialogs."""
        methods = ("Runtime.consoleAPICalled", "Runtime.exceptionThrown", "Log.entryAdded",
                   "Page.javascriptDialogOpening")
        return [event for event in self.events if event.get("method") in methods]

    def requests(self):
        """The addresses that were asked for since the page was opened."""
        return [event["params"]["request"]["url"] for event in self.events
                if event.get("method") == "Network.requestWillBeSent"]

    def screenshot(self, path):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(base64.b64decode(self.call("Page.captureScreenshot")["data"]))

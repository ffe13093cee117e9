"""A headless Chromium with one page, driven through Selenium."""

import json

from selenium import webdriver
from selenium.common.exceptions import WebDriverException
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.by import By

# Without its sandbox, which containers and the superuser can't give it: the pages are our own.
_ARGUMENTS = ("--headless=new", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
              "--disable-dev-shm-usage", "--no-first-run", "--window-size=1280,1000")


class Browser(webdriver.Chrome):
    """Use it in a with statement."""

    def __init__(self):
        options = webdriver.ChromeOptions()
        for argument in _ARGUMENTS:
            options.add_argument(argument)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        try:
            super().__init__(options=options)
        except WebDriverException as error:
            reason = error.msg.splitlines()[0]
            raise RuntimeError(f"the browser does not start: {reason}") from None
        self.set_script_timeout(300)
        self.execute_cdp_cmd("Performance.enable", {"timeDomain": "threadTicks"})

    def open(self, path):
        """Opens a file and waits until it is loaded and painted; gives the seconds of work."""
        self.complaints()  # of earlier pages; they are handed out once
        self.requests()
        self.get(path.resolve().as_uri())
        self.painted()
        return self._seconds_of_work()

    def _seconds_of_work(self):
        """How long the page's thread has had a processor since the page was opened, which doesn't
        move with the machine's load as a clock's time would."""
        metrics = self.execute_cdp_cmd("Performance.getMetrics", {})["metrics"]
        return next(metric["value"] for metric in metrics if metric["name"] == "ThreadTime")

    def painted(self):
        """Waits until what was changed is on the screen."""
        self.evaluate("new Promise(done => requestAnimationFrame(() => setTimeout(done)))")

    def evaluate(self, expression):
        """The value of a JavaScript expression, awaited."""
        return self.execute_script(f"return {expression.strip()}")

    def click(self, selector):
        self.find_element(By.CSS_SELECTOR, selector).click()
        self.painted()

    def type(self, text):
        """Types a text into the element that has the focus; gives the seconds of work until it
        shows."""
        before = self._seconds_of_work()
        self.execute_cdp_cmd("Input.insertText", {"text": text})
        self.painted()
        return self._seconds_of_work() - before

    def press(self, key):
        ActionChains(self).send_keys(key).perform()
        self.painted()

    def complaints(self):
        """What the page has complained of since this was asked last: console messages, exceptions
        and log entries. A dialog makes whatever is asked next fail."""
        return self.get_log("browser")

    def requests(self):
        """The addresses that were asked for since this was asked last."""
        events = [json.loads(entry["message"])["message"] for entry in self.get_log("performance")]
        return [event["params"]["request"]["url"] for event in events
                if event["method"] == "Network.requestWillBeSent"]

    def screenshot(self, path):
        path.parent.mkdir(parents=True, exist_ok=True)
        self.save_screenshot(str(path))

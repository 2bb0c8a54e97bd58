"""A phone, phoneweb and a browser together: what is done on the page happens on the phone."""

import http.client
import json
import os
import re
import subprocess
import tempfile
import time
import unittest
import urllib.parse

from devtools import Browser, Page

BIN = os.environ["PHONE_BIN"]
PICTURES = os.environ["PHONE_PICTURES"]
PATIENCE = 20

COLOURS = """(() => {
  const picture = document.getElementById("display").getContext("2d").getImageData(0, 0, 384, 160);
  return new Set(new Uint32Array(picture.data.buffer)).size;
})()"""


def program(name):
    return os.path.join(BIN, name)


class BrowserTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        os.makedirs(PICTURES, exist_ok=True)
        cls.browser_folder = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        cls.browser = Browser(os.environ["CHROMIUM"], cls.browser_folder.name)

    @classmethod
    def tearDownClass(cls):
        cls.browser.close()
        cls.browser_folder.cleanup()

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = folder.name
        self.phone = None
        self.start_phone()
        self.addCleanup(lambda: self.end(self.phone))
        self.web = subprocess.Popen([program("phoneweb"), "--home", self.home, "--port", "0"],
                                    stdout=subprocess.PIPE, text=True)
        self.addCleanup(self.end_web)
        self.address = urllib.parse.urlsplit(self.web.stdout.readline().strip())

    # -- the phone

    def start_phone(self):
        self.phone = subprocess.Popen([program("phoneui"), "--home", self.home])
        self.wait_until(lambda: self.phonectl("screen").returncode == 0, "a phone that answers")

    def end(self, process):
        if process.poll() is None:
            process.terminate()
        process.wait()

    def end_web(self):
        self.end(self.web)
        self.web.stdout.close()
        self.assertEqual(self.web.returncode, 0)

    def phonectl(self, *words):
        return subprocess.run([program("phonectl"), "--home", self.home, *words], capture_output=True, text=True)

    def screen(self):
        ended = self.phonectl("screen")
        self.assertEqual(ended.returncode, 0, ended.stderr)
        return json.loads(ended.stdout)

    def wait_for_screen(self, **wanted):
        def is_shown():
            screen = self.screen()
            return all(re.fullmatch(pattern, str(screen[field])) for field, pattern in wanted.items())
        self.wait_until(is_shown, wanted)

    def wait_until(self, holds, what):
        deadline = time.monotonic() + PATIENCE
        while not holds():
            self.assertLess(time.monotonic(), deadline, f"still waiting for {what}")
            time.sleep(0.05)

    # -- the page

    def open_page(self):
        page = Page(self.browser, self.address.geturl())
        self.addCleanup(page.close)
        self.wait_until(lambda: page.evaluate("document.body?.classList.contains('here')"), "the page to find the phone")
        self.wait_until(lambda: page.evaluate(COLOURS) > 2, "a picture that is not blank")
        return page

    def status(self, method, path, body=None, **headers):
        headers = {name.replace("_", "-"): value for name, value in headers.items()}
        connection = http.client.HTTPConnection("127.0.0.1", self.address.port, timeout=PATIENCE)
        connection.request(method, path, body, headers)
        response = connection.getresponse()
        connection.close()
        return response

    # -- the tests

    def test_only_the_token_lets_in(self):
        token = urllib.parse.parse_qs(self.address.query)["token"][0]
        door = f"/?token={token}"
        page = self.status("GET", door)
        self.assertEqual(page.status, 200)
        cookie, *attributes = page.headers["Set-Cookie"].split("; ")
        self.assertLessEqual({"HttpOnly", "SameSite=Strict"}, set(attributes))

        for path in ("/", "/page.js", "/events", "/nothing", "/?token=", "/?token=" + "0" * len(token),
                     f"/page.js?token={token}"):
            self.assertEqual(self.status("GET", path).status, 403, path)
            self.assertEqual(self.status("GET", path, Cookie=cookie + "x").status, 403, path)
        self.assertEqual(self.status("GET", door, Host=f"phone.example:{self.address.port}").status, 403)
        self.assertEqual(self.status("GET", "/page.js", Cookie=cookie).status, 200)

        keys = json.dumps([["press", "Soft1"], ["release", "Soft1"]])
        self.assertEqual(self.status("POST", "/keys", keys, Cookie=cookie).status, 403)
        self.assertEqual(self.status("POST", "/keys", keys, X_Phone_Token=token).status, 403)
        self.assertEqual(self.screen()["app"], "idle")
        allowed = {"Cookie": cookie, "X_Phone_Token": token}
        self.assertEqual(self.status("POST", "/keys", json.dumps([["launch", "contact"]]), **allowed).status, 400)
        self.assertEqual(self.status("POST", "/keys", json.dumps([["press", "Sofa"]]), **allowed).status, 409)
        self.assertEqual(self.status("POST", "/keys", keys, **allowed).status, 200)
        self.wait_for_screen(app="contact")

    def test_keys(self):
        page = self.open_page()
        page.press("[data-key=Soft1]")
        self.wait_until(lambda: page.evaluate("document.querySelector('[data-key=Soft1]').matches('.down')"), "a held key")
        self.assertEqual(self.screen()["app"], "idle")
        page.release("[data-key=Soft1]")
        self.wait_for_screen(app="contact", title=r"Contacts \| All \(1/\d+\)")

        before = self.screen()["selected"]
        page.click("[data-key=Down]")
        self.wait_until(lambda: self.screen()["selected"] != before, "another row to be selected")
        page.save_picture(os.path.join(PICTURES, "page.png"))

        page.click("[data-key=Esc]")
        self.wait_for_screen(app="idle")
        page.type("F1")
        self.wait_for_screen(app="contact")
        page.type("ArrowDown")
        self.wait_until(lambda: self.screen()["selected"] != before, "another row to be selected")
        page.type("Escape")
        self.wait_for_screen(app="idle")
        self.assertEqual(self.browser.complaints, [])

    def test_phone_goes_and_comes_back(self):
        page = self.open_page()
        self.phone.kill()
        self.phone.wait()
        self.wait_until(lambda: page.evaluate("document.getElementById('notice').textContent") == "The phone has gone",
                        "the page to tell")
        self.start_phone()
        self.wait_until(lambda: page.evaluate("document.body.classList.contains('here')"), "the page to find the phone again")
        page.click("[data-key=Soft1]")
        self.wait_for_screen(app="contact")


if __name__ == "__main__":
    unittest.main(verbosity=2)

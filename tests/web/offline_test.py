"""Plays the page in Chromium offline and through updates: /usr/bin/python3 -m tests.web.offline_test FOLDER"""

import itertools
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

from tools.play.page import Page
from tools.play.player import wait
from tools.play.server import Server

SOURCES = pathlib.Path(__file__).resolve().parents[2] / "platform/web"
SHOWN = """[document.documentElement.dataset.version,
            getComputedStyle(document.documentElement).getPropertyValue('--version'), String(window.version)]"""
# Updates the worker, and waits until the update is installed or has failed.
UPDATED = """navigator.serviceWorker.ready.then(async (registration) => {
    await registration.update();
    const worker = registration.installing ?? registration.waiting;
    while (worker?.state === 'installing') {
        await new Promise((changed) => worker.addEventListener('statechange', changed, {once: true}));
    }
    return worker?.state;
})"""
SECONDS = itertools.count(int(time.time()))  # a new modification time for each version


def publish(folder, version):
    """Copies the page to a folder and marks three of its files with the version."""
    shutil.copytree(FOLDER, folder, dirs_exist_ok=True)
    (folder / "offline.js").unlink()
    page = (folder / "index.html").read_text()
    (folder / "index.html").write_text(page.replace("<html", f'<html data-version="{version}"'))
    for file, mark in (("style.css", f":root {{ --version:{version}; }}"), ("page.js", f"window.version = {version};")):
        with open(folder / file, "a") as source:
            source.write(mark)
    files = ";".join(file.name for file in folder.iterdir() if file.is_file())
    subprocess.run(["cmake", f"-Dinput={SOURCES}/offline.js", f"-Dpage={folder}", f"-Dfiles={files}",
                    "-P", SOURCES / "digests.cmake"], check=True)
    os.utime(folder / "offline.js", (next(SECONDS),) * 2)


class OfflineTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        publish(self.folder, 1)
        self.server = Server(self.folder)
        self.addCleanup(self.go_offline)
        self.page = Page(self.server.address)
        self.addCleanup(self.page.close)
        self.page.screen()

    def result(self, promise):
        return self.page.browser.execute_async_script(f"({promise}).then(arguments[0])")

    def visit(self):
        self.page.open()
        self.result("navigator.serviceWorker.ready.then(() => true)")

    def update(self):
        wait("the update", lambda: self.result(UPDATED) == "installed")  # an earlier update may still run

    def go_offline(self):
        self.server.shutdown()
        self.server.server_close()

    def assert_plays(self, version):
        self.page.open_table()
        self.page.key("F1")
        self.assertEqual(self.page.box()[0], "Tumble Instructions")
        self.assertEqual(self.page.ask(SHOWN), [str(version)] * 3)

    def assert_taken_over(self, version):
        """Closes all pages first."""
        def start():
            self.page.browser.get("about:blank")
            self.page.open()
            return self.page.ask(SHOWN)[0] == str(version)

        wait("the version", start)
        self.assert_plays(version)

    def test_page_can_be_installed_and_plays_offline_after_one_visit(self):
        self.visit()
        self.assertEqual(self.page.tell("Page.getInstallabilityErrors")["installabilityErrors"], [])
        self.go_offline()
        self.assert_plays(1)
        home = self.page.address
        for file in ("", "?from=elsewhere", "index.html"):
            with self.subTest(file):
                self.page.address = home + file
                self.page.open()
        for file in self.folder.iterdir():
            if file.name != "offline.js":
                self.assertTrue(self.result(f"fetch('{file.name}').then(({{ok}}) => ok, () => false)"), file.name)
        self.assertEqual(self.page.browser.get_log("browser"), [])

    def test_new_version_takes_over_when_no_page_of_the_old_one_is_open(self):
        page = self.page
        self.visit()
        page.open_table()
        publish(self.folder, 2)
        self.update()
        page.key("F1")
        self.assertEqual((page.box()[0], page.ask(SHOWN)), ("Tumble Instructions", ["1"] * 3), "in the middle of a game")
        first = page.browser.current_window_handle
        page.browser.switch_to.new_window("tab")
        self.assert_plays(1)
        self.assertEqual(self.result("navigator.serviceWorker.ready.then(({waiting}) => !!waiting)"), True)
        page.browser.close()
        page.browser.switch_to.window(first)
        self.assert_taken_over(2)
        self.assertEqual(len(self.result("caches.keys()")), 1)
        self.go_offline()
        self.assert_plays(2)

    def test_broken_update_keeps_the_previous_version(self):
        def breaks_off():
            answer, answered = self.server.finish_request, iter(range(4))
            self.server.finish_request = lambda *request: None if next(answered, None) is None else answer(*request)

        for fault, cause in (("missing", lambda: (self.folder / "tumble.wasm").unlink()),
                             ("of the version before", lambda: shutil.copy(before / "style.css", self.folder)),
                             ("breaks off", breaks_off)):
            with self.subTest(fault), tempfile.TemporaryDirectory() as before:
                before = pathlib.Path(before)
                publish(self.folder, 1)
                publish(before, 1)
                self.visit()
                publish(self.folder, 2)
                cause()
                self.assertEqual(self.result(UPDATED), "redundant")
                self.assert_plays(1)
                self.server.__dict__.pop("finish_request", None)
                publish(self.folder, 3)
                self.update()
                self.assert_taken_over(3)
                publish(self.folder, 1)
                self.update()
                self.assert_taken_over(1)
        publish(self.folder, 2)
        (self.folder / "page.js").unlink()
        self.assertEqual(self.result(UPDATED), "redundant")
        self.go_offline()
        self.assert_plays(1)

    def test_page_plays_where_nothing_can_be_stored(self):
        for source in ("delete Navigator.prototype.serviceWorker",
                       "ServiceWorkerContainer.prototype.register = () => Promise.reject(new Error())"):
            with self.subTest(source), self.page.before(source):
                self.assert_plays(1)
                self.assertEqual(self.result("caches.keys()"), [])
                self.assertEqual(self.page.browser.get_log("browser"), [])

    def test_second_page_of_the_origin_keeps_its_version(self):
        home, other = self.page.address, self.page.address.replace("some/where", "other")
        publish(self.folder / "other", 5)
        for self.page.address, version in ((other, 5), (home, 1)):
            self.visit()
            self.assert_plays(version)
        publish(self.folder, 2)
        self.update()
        self.assert_taken_over(2)
        self.go_offline()
        self.page.address = other
        self.assert_plays(5)


if __name__ == "__main__":
    FOLDER = sys.argv.pop(1)
    unittest.main(failfast=True)

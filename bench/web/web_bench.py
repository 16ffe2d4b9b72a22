"""Measures the page beside minimal pages written by hand: /usr/bin/python3 -m bench.web.web_bench FOLDER"""

import gzip
import pathlib
import statistics
import sys

from tools.play.page import Page
from tools.play.player import in_spread
from tools.play.server import Server

HERE = pathlib.Path(__file__).resolve().parent
ROUNDS = 21
STEPS = 100  # about 2 seconds
# Sets `painted` to the time of the frame with the last control, in milliseconds since the navigation. Each frame is
# examined after it was painted, since the page lays out within a frame.
PAINTED = """
const look = () => requestAnimationFrame(() => setTimeout(() => {
    if (document.querySelector('[data-name=cmdPlay]')?.clientWidth) {
        window.painted = performance.now();
    } else {
        look();
    }
}));
look();"""


def start(page, address):
    page.browser.get(address)
    return page.browser.execute_async_script("""
        const done = arguments[0];
        const ask = () => window.painted ? done(window.painted) : setTimeout(ask, 5);
        ask();""")


def metrics(page):
    values = {each["name"]: each["value"] for each in page.tell("Performance.getMetrics")["metrics"]}
    return values["ScriptDuration"], values["TaskDuration"]


def steps(page):
    """Durations of script and task for one mouse step, in milliseconds."""
    before = metrics(page)
    for step in range(STEPS):
        page.pointer("mouseMoved", (300 + 2.4 * step, 300 + 0.9 * step), "left")
        page.ask("0")
    return [1000 * (after - each) / STEPS for each, after in zip(before, metrics(page))]


def compare(what, ours, theirs):
    ours, theirs = statistics.median(ours), statistics.median(theirs)
    print(f"{what}: {ours:.2f} ms beside {theirs:.2f} ms, {ours / theirs:.2f}")


def main():
    folder = pathlib.Path(sys.argv[1])
    files = [file for file in folder.iterdir() if file.suffix in (".html", ".css", ".js", ".wasm")]
    size = sum(len(gzip.compress(file.read_bytes())) for file in files)
    print(f"A first visit: {size / 1024:.1f} KiB")
    # The browser's cache serves every file without a request. Request logs would cost more for a page with more files.
    game, plain = (Server(each, [("Cache-Control", "max-age=3600")]) for each in (folder, HERE))
    Page.LOGS = {}
    for ratio in (1, 3):
        print(f"At ratio {ratio}, {ROUNDS} times:")
        page, other = (Page(server.address, ratio) for server in (game, plain))
        for each in (page, other):
            each.screen()
            each.tell("Performance.enable")
            each.tell("Network.enable")
            each.tell("Network.setBypassServiceWorker", bypass=True)
        with page.before(PAINTED):
            times = [(start(page, game.address), start(page, plain.address + "controls.html")) for _ in range(ROUNDS)]
        compare("the options on the screen", *zip(*times))
        page.open_table()
        other.browser.get(plain.address + "drag.html")
        page.mouse(in_spread(51), "+left")
        first, *rounds = [(steps(page), steps(other)) for _ in range(ROUNDS + 1)]
        for name, drags in (("the first steps", [first]), ("a step", rounds)):
            ours, theirs = zip(*drags)
            for what, mine, others in zip(("script", "task"), zip(*ours), zip(*theirs)):
                compare(f"{name} of a drag, {what}", mine, others)
        page.close()
        other.close()


main()

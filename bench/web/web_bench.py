#!/usr/bin/python3
"""What the page costs, beside pages written by hand that do as little as can be: web_bench.py FOLDER"""

import gzip
import pathlib
import statistics
import sys

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parents[1] / "tests/web"))
from web_test import Page, Server, in_spread

ROUNDS = 21
STEPS = 30
# When the frame with the last control has been painted, in milliseconds since the navigation.
PAINTED = """
const shown = () => document.querySelector('[data-name=cmdPlay]')?.clientWidth
    ? requestAnimationFrame(() => setTimeout(() => { window.painted = performance.now(); }))
    : requestAnimationFrame(shown);
requestAnimationFrame(shown);"""


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
    """Script and task of a mouse step, in milliseconds."""
    before = metrics(page)
    for step in range(STEPS):
        page.pointer("mouseMoved", (300 + 8 * step, 300 + 3 * step), "left")
        page.ask("0")
    return [1000 * (after - each) / STEPS for each, after in zip(before, metrics(page))]


def compare(what, ours, theirs):
    ours, theirs = statistics.median(ours), statistics.median(theirs)
    print(f"{what}: {ours:.2f} ms beside {theirs:.2f} ms, {ours / theirs:.2f}")


def main():
    folder = pathlib.Path(sys.argv[1])
    size = sum(len(gzip.compress(file.read_bytes())) for file in folder.iterdir() if file.suffix != ".svg")
    print(f"A first visit: {size / 1024:.1f} KiB")
    game, plain = Server(folder), Server(HERE)
    for ratio in (1, 3):
        print(f"At ratio {ratio}, {ROUNDS} times:")
        page = Page(game.address, ratio)
        page.screen()
        page.tell("Performance.enable")
        script = page.tell("Page.addScriptToEvaluateOnNewDocument", source=PAINTED)["identifier"]
        times = [(start(page, game.address), start(page, plain.address + "controls.html")) for _ in range(ROUNDS)]
        compare("the options on the screen", *zip(*times))
        page.tell("Page.removeScriptToEvaluateOnNewDocument", identifier=script)
        ours, theirs = [], []
        for _ in range(ROUNDS):
            page.open_table()
            page.mouse(in_spread(51), "+left")
            ours.append(steps(page))
            page.down = 0
            page.browser.get(plain.address + "drag.html")
            theirs.append(steps(page))
        for what, mine, others in zip(("script", "task"), zip(*ours), zip(*theirs)):
            compare(f"a step of a drag, {what}", mine, others)
        page.close()


main()

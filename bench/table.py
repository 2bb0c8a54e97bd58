#!/usr/bin/env python3
"""One table of what the benchmarks measured, from the JSON files named: the medians of their repetitions."""

import json
import math
import sys
from collections import defaultdict

# What a row is called, its peer, and the ratio to that peer that is wanted at most.
ROWS = {
    "xml": ("XML document of {} items", "pugixml", 0.65),
    "load": ("load and merge {} contacts", "SQLite", 1.5),
    "search": ("key in the search of {}", "QSortFilterProxyModel", 0.1),
    "key-grid": ("arrow in the grid of {}", "QListView", 0.7),
    "key-list": ("arrow in a list of {}", "QListView", 0.7),
    "key-form": ("arrow in a form of {}", "QListView", 0.7),
    "screen-details": ("details of {} rows, opened and closed", "QDialog", 1.0),
    "screen-form": ("form of {} rows, opened and closed", "QDialog", 1.0),
    "screen-group": ("group of {}, opened and closed", "QDialog", 1.0),
    "start": ("plug-in to its first frame, {} contacts", "QDialog", 2.0),
    "import": ("import of {} vCards", "KContacts", 1.3),
}
# Sides that are no peers: what nothing could leave out. The touching of memory is part of a floor, and takes several
# times as long when the host has to find that memory.
FLOOR, TOUCH = "floor", "touch"
# At this size the ratio is not asked for; the row tells of growth alone.
NOT_JUDGED = {("import", 300), ("search", 300)}
# The longest that one key of a hundred may take, by the clock.
SEARCH_SIZE, SEARCH_LIMIT = 10000, 5000  # us
XML_FROM, XML_TO, XML_GROWTH = 1000, 200000, 1.2
MEMORY_LIMITS = {300: ("under 4 MB", lambda added, records: added < 4e6),
                 10000: ("at most 3.00", lambda added, records: added <= 3 * records)}
HEAD = ("what", "ours", "the peer", "ratio", "wanted", "floor", "verdict", "growth")
MICROSECONDS = {"ns": 1e-3, "us": 1, "ms": 1e3, "s": 1e6}


def read(files):
    """measured[row][size][side] is one benchmark: the median of its repetitions, of TOUCH the quickest."""
    measured = defaultdict(lambda: defaultdict(dict))
    for name in files:
        with open(name, encoding="utf-8") as file:
            for run in json.load(file)["benchmarks"]:
                if run.get("error_occurred"):
                    sys.exit(f"{run['name']}: {run['error_message']}")
                row, side, size = run["run_name"].split("/")[:3]
                run["us"] = run["real_time"] * MICROSECONDS[run["time_unit"]]
                same = measured[row][int(size)]
                if side != TOUCH:
                    if run.get("aggregate_name") == "median":
                        same[side] = run
                elif run["run_type"] == "iteration" and run["us"] < same.get(side, {"us": math.inf})["us"]:
                    same[side] = run
    return measured


def duration(us):
    for unit, scale in (("us", 1), ("ms", 1e3), ("s", 1e6)):
        if us < 999.5 * scale or unit == "s":
            return f"{us / scale:.3g} {unit}"


def spaced(number):
    return f"{number:,}".replace(",", " ")


def verdict(met):
    return "met" if met else "MISSED"


def floor_of(row, sizes, size):
    """What no implementation can leave out, in us; None where nothing of that kind was measured."""
    if row == "xml" and size == XML_TO and XML_FROM in sizes:
        return size * grown_item(sizes, size)
    floor = sizes[size].get(FLOOR)
    return floor and floor["us"]


def grown_item(sizes, size):
    """An item of a large document, in us, if nothing of the reader grew but the touching of text and records."""
    each = {(at, side): sizes[at][side]["us"] / at for at in (XML_FROM, size) for side in ("ours", TOUCH)}
    return each[XML_FROM, "ours"] + each[size, TOUCH] - each[XML_FROM, TOUCH]


def growth(sizes, size):
    """Ours for each item beside that of the smallest size."""
    smallest = min(sizes)
    if size == smallest:
        return ""
    each = sizes[size]["ours"]["us"] / size
    return f"{each / (sizes[smallest]['ours']['us'] / smallest):.2f} of {spaced(smallest)}"


def judged_cells(ours, peer, floor, limit):
    """Wanted, floor and verdict, for times in us. Where the floor lies above the target, how near ours comes to it."""
    wanted, met = f"at most {limit:.2f}", ours <= limit * peer
    if not floor:
        return [wanted, "", verdict(met)]
    out_of_reach = not met and floor > limit * peer
    return [wanted, f"{floor / peer:.2f}", f"{ours / floor:.2f} of floor" if out_of_reach else verdict(met)]


def timed_lines(row, sizes):
    title, judge, limit = ROWS[row]
    for size in sorted(sizes):
        ours = sizes[size]["ours"]
        what = title.format(spaced(size))
        peers = sorted(set(sizes[size]) - {"ours", FLOOR, TOUCH}, key=lambda side: (side != judge, side))
        for side in peers or [None]:
            line = [what, duration(ours["us"]), "", "", "", "", "", growth(sizes, size)]
            if side:
                peer = sizes[size][side]["us"]
                line[2:4] = [f"{side} {duration(peer)}", f"{ours['us'] / peer:.2f}"]
                if side == judge and (row, size) not in NOT_JUDGED:
                    line[4:7] = judged_cells(ours["us"], peer, floor_of(row, sizes, size), limit)
            yield line
        if row == "search":
            slowest = ours["clock_p99_us"]
            judged = size == SEARCH_SIZE
            yield [what + ", 99th percentile", duration(slowest), "", "",
                   "under " + duration(SEARCH_LIMIT) if judged else "", "",
                   verdict(slowest < SEARCH_LIMIT) if judged else "", ""]
    if row == "xml" and {XML_FROM, XML_TO} <= set(sizes):
        at = {size: sizes[size]["ours"]["us"] / size for size in (XML_FROM, XML_TO)}
        yield [f"XML, an item of {spaced(XML_TO)}", f"{at[XML_TO] * 1e3:.0f} ns",
               f"one of {spaced(XML_FROM)}: {at[XML_FROM] * 1e3:.0f} ns", f"{at[XML_TO] / at[XML_FROM]:.2f}",
               *judged_cells(at[XML_TO], at[XML_FROM], grown_item(sizes, XML_TO), XML_GROWTH), ""]


def memory_lines(sizes):
    for size in sorted(sizes):
        run = sizes[size]["ours"]
        added, records = run["added_bytes"], run["record_bytes"]
        wanted, met = MEMORY_LIMITS[size]
        yield [f"memory with {spaced(size)} contacts", f"{added / 1e6:.2f} MB", f"records {records / 1e6:.2f} MB",
               f"{added / records:.2f}", wanted, "", verdict(met(added, records)), ""]


def main():
    measured = read(sys.argv[1:])
    lines = [line for row in ROWS if row in measured for line in timed_lines(row, measured[row])]
    if "memory" in measured:
        lines += memory_lines(measured["memory"])
    widths = [max(len(line[i]) for line in [HEAD, *lines]) for i in range(len(HEAD))]
    for line in [HEAD, ["-" * width for width in widths], *lines]:
        print("| " + " | ".join(cell.ljust(width) for cell, width in zip(line, widths)) + " |")


main()

#!/usr/bin/env python3
"""One table of what the benchmarks measured, from the JSON files named: the medians of their repetitions."""

import json
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
# At this size the ratio is not asked for; the row tells of growth alone.
NOT_JUDGED = {("import", 300), ("search", 300)}
# The longest that one key of a hundred may take, by the clock.
SEARCH_SIZE, SEARCH_LIMIT = 10000, 5000  # us
XML_FROM, XML_TO, XML_GROWTH = 1000, 200000, 1.2
MEMORY_LIMITS = {300: ("under 4 MB", lambda added, records: added < 4e6),
                 10000: ("at most 3.00", lambda added, records: added <= 3 * records)}
HEAD = ("what", "ours", "the peer", "ratio", "wanted", "verdict", "growth")
MICROSECONDS = {"ns": 1e-3, "us": 1, "ms": 1e3, "s": 1e6}


def read(files):
    """measured[row][size][side] is one benchmark."""
    measured = defaultdict(lambda: defaultdict(dict))
    for name in files:
        with open(name, encoding="utf-8") as file:
            for run in json.load(file)["benchmarks"]:
                if run.get("error_occurred"):
                    sys.exit(f"{run['name']}: {run['error_message']}")
                if run.get("aggregate_name") != "median":
                    continue
                row, side, size = run["run_name"].split("/")[:3]
                run["us"] = run["real_time"] * MICROSECONDS[run["time_unit"]]
                measured[row][int(size)][side] = run
    return measured


def duration(us):
    for unit, scale in (("us", 1), ("ms", 1e3), ("s", 1e6)):
        if us < 999.5 * scale or unit == "s":
            return f"{us / scale:.3g} {unit}"


def spaced(number):
    return f"{number:,}".replace(",", " ")


def verdict(met):
    return "met" if met else "MISSED"


def growth(sizes, size):
    """Ours for each item beside that of the smallest size."""
    smallest = min(sizes)
    if size == smallest:
        return ""
    each = sizes[size]["ours"]["us"] / size
    return f"{each / (sizes[smallest]['ours']['us'] / smallest):.2f} of {spaced(smallest)}"


def timed_lines(row, sizes):
    title, judge, limit = ROWS[row]
    for size in sorted(sizes):
        ours = sizes[size]["ours"]
        what = title.format(spaced(size))
        peers = sorted((side for side in sizes[size] if side != "ours"), key=lambda side: side != judge)
        for side in peers or [None]:
            line = [what, duration(ours["us"]), "", "", "", "", growth(sizes, size)]
            if side:
                peer = sizes[size][side]["us"]
                line[2:4] = [f"{side} {duration(peer)}", f"{ours['us'] / peer:.2f}"]
                if side == judge and (row, size) not in NOT_JUDGED:
                    line[4:6] = [f"at most {limit:.2f}", verdict(ours["us"] <= limit * peer)]
            yield line
        if row == "search":
            slowest = ours["clock_p99_us"]
            judged = size == SEARCH_SIZE
            yield [what + ", 99th percentile", duration(slowest), "", "",
                   "under " + duration(SEARCH_LIMIT) if judged else "",
                   verdict(slowest < SEARCH_LIMIT) if judged else "", ""]
    if row == "xml" and {XML_FROM, XML_TO} <= set(sizes):
        at = {size: sizes[size]["ours"]["us"] / size for size in (XML_FROM, XML_TO)}
        ratio = at[XML_TO] / at[XML_FROM]
        yield [f"XML, an item of {spaced(XML_TO)}", f"{at[XML_TO] * 1e3:.0f} ns",
               f"one of {spaced(XML_FROM)}: {at[XML_FROM] * 1e3:.0f} ns", f"{ratio:.2f}",
               f"at most {XML_GROWTH:.2f}", verdict(ratio <= XML_GROWTH), ""]


def memory_lines(sizes):
    for size in sorted(sizes):
        run = sizes[size]["ours"]
        added, records = run["added_bytes"], run["record_bytes"]
        wanted, met = MEMORY_LIMITS[size]
        yield [f"memory with {spaced(size)} contacts", f"{added / 1e6:.2f} MB", f"records {records / 1e6:.2f} MB",
               f"{added / records:.2f}", wanted, verdict(met(added, records)), ""]


def main():
    measured = read(sys.argv[1:])
    lines = [line for row in ROWS if row in measured for line in timed_lines(row, measured[row])]
    if "memory" in measured:
        lines += memory_lines(measured["memory"])
    widths = [max(len(line[i]) for line in [HEAD, *lines]) for i in range(len(HEAD))]
    for line in [HEAD, ["-" * width for width in widths], *lines]:
        print("| " + " | ".join(cell.ljust(width) for cell, width in zip(line, widths)) + " |")


main()

"""Prints the coverage of a gcovr summary: the rooms, then the files with the most lines that no test reaches."""
import collections
import json
import os
import sys

WORST = 15

with open(sys.argv[1]) as summary:
    files = json.load(summary)["files"]
rooms = collections.defaultdict(lambda: [0, 0])
for file in files:
    for room in (os.path.dirname(file["filename"]), "all"):
        rooms[room][0] += file["line_covered"]
        rooms[room][1] += file["line_total"]
for room, (covered, total) in sorted(rooms.items()):
    print(f"{room:44} {covered:6} of {total:6} lines  {100 * covered / max(total, 1):5.1f} %")
print("\nNot reached most:")
for file in sorted(files, key=lambda f: f["line_covered"] - f["line_total"])[:WORST]:
    print(f"{file['filename']:60} {file['line_total'] - file['line_covered']:4} of {file['line_total']:4} lines")

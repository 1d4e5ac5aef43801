#!/usr/bin/env python3
"""Fails unless the table of messages in docs/guide/messages.md lists exactly the messages that the
libraries log, with their levels, and when a page breaks a message across lines, where no search finds it.

    checkMessages.py <folder of the project>
"""
import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1])
logged = set()
for folder in ["store", "manage", "widgets", "inputs", "window", "companion"]:
    for source in [*root.glob(f"{folder}/**/*.cpp"), *root.glob(f"{folder}/**/*.h")]:
        text = source.read_text(encoding="utf-8")
        for level, message in re.findall(
                r'\bq(Debug|Info|Warning|Critical)\(\)(?:\.\w+\(\))*\s*<<\s*"((?:[^"\\]|\\.)*)"', text):
            logged.add((level.lower(), message))
        if re.search(r'\bq(Debug|Info|Warning|Critical)\(\s*"', text):
            sys.exit(f"{source}: a message in printf style, which this test does not read")

page = (root / "docs/guide/messages.md").read_text(encoding="utf-8")
listed = {(level, message) for level, message in re.findall(r"^\| (\w+) \| `([^`]*)` \|", page, flags=re.M)}
for level, message in sorted(logged - listed):
    print(f"logged, but not in the table: {level} {message!r}")
for level, message in sorted(listed - logged):
    print(f"in the table, but not logged: {level} {message!r}")

broken = []
for page in [*root.glob("*.md"), *sorted(root.glob("docs/**/*.md"))]:
    text = page.read_text(encoding="utf-8")
    for message in sorted({message.strip() for _, message in logged}):
        if " ".join(text.split()).count(message) > text.count(message):
            broken.append(f"{page}: broken across lines: {message!r}")
print("\n".join(broken))
sys.exit(logged != listed or bool(broken) or not logged)

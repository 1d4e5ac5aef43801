#!/usr/bin/env python3
"""Fails when a link in a page of the project leads to a file or a heading that does not exist.

    checkLinks.py <folder of the project>
"""
import pathlib
import re
import sys


def anchors(page):
    """The names under which the headings of a page are reached."""
    text = re.sub(r"^```.*?^```", "", page.read_text(encoding="utf-8"), flags=re.M | re.S)
    for heading in re.findall(r"^#+ (.*)$", text, flags=re.M):
        yield re.sub(r"[^\w\- ]", "", heading.lower()).strip().replace(" ", "-")


def problems(page):
    text = re.sub(r"^```.*?^```", "", page.read_text(encoding="utf-8"), flags=re.M | re.S)
    for link in re.findall(r"\]\(([^)\s]+)\)", text):
        if re.match(r"[a-z]+:", link):
            continue
        path, _, anchor = link.partition("#")
        target = page.parent / path if path else page
        if not target.exists():
            yield f"{page}: nothing at {link}"
        elif anchor and anchor not in anchors(target):
            yield f"{page}: no heading for {link}"


root = pathlib.Path(sys.argv[1])
found = [problem for folder in ["*.md", "docs/**/*.md", "companion/*/*.md", "tests/**/*.md"]
         for page in sorted(root.glob(folder))
         for problem in problems(page)]
print("\n".join(found))
sys.exit(bool(found))

#!/usr/bin/env python3
"""Fails when a fenced block right after a line <!-- path/of/a/file --> of README.md or of a page in
docs/ differs from that file.

    checkBlocks.py <folder of the project>
"""
import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1])
found, problems = 0, []
for page in [root / "README.md", *sorted(root.glob("docs/**/*.md"))]:
    text = page.read_text(encoding="utf-8")
    for path, block in re.findall(r"^<!-- (\S+/\S+) -->\n```\w*\n(.*?)^```$", text, flags=re.M | re.S):
        found += 1
        file = root / path
        if not file.is_file() or file.read_text(encoding="utf-8") != block:
            problems.append(f"{page}: differs from {path}")
print("\n".join(problems) or f"{found} blocks equal the files that they name")
sys.exit(bool(problems) or not found)

#!/usr/bin/env python3
"""Fails when a cpp block of README.md or of a page in docs/ uses a companion library without showing the
include. The compiler cannot notice this in a page's later blocks, which see the includes of the earlier.

    checkIncludes.py <folder of the project>
"""
import pathlib
import re
import sys

sys.dont_write_bytecode = True
from extractBlocks import blocks

root = pathlib.Path(sys.argv[1])
names = {header.stem for header in root.glob("companion/*/*")
         if header.suffix in (".h", "") and header.is_file() and not header.stem.endswith("_p")}
uses, problems = 0, []
for page in [root / "README.md", *sorted(root.glob("docs/**/*.md"))]:
    for start, _, lines in blocks(page):
        shown = {pathlib.PurePath(name).stem for line in lines
                 for name in re.findall(r"#include <(.*)>", line)}
        code = "\n".join(line for line in lines if not line.startswith("#include"))
        used = names & set(re.findall(r"\w+", re.sub(r"//.*", "", code)))
        uses += len(used)
        problems += [f"{page}:{start}: no #include for {name}" for name in sorted(used - shown)]
print("\n".join(problems) or f"{uses} uses of the companion libraries, each with its include")
sys.exit(bool(problems) or not uses)

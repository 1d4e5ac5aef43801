#!/usr/bin/env python3
"""Generates a C++ file from the cpp blocks of a page, so that they are compiled.

    extractBlocks.py <page.md> <out.cpp>

A block of statements becomes the body of a function. A block after the line <!-- file scope --> or
after the name of a file becomes a namespace, which the later blocks of the page use; after
<!-- global scope --> it stays outside of any, for specializations. #include lines of a
block are moved in front of it, so a block may use its own includes and those of earlier blocks. A block
after <!-- needs KConfig --> is at file scope, too, and compiled only if MALTO_DOCS_HAVE_KCONFIG is
defined. Blocks that must not be compiled are not tagged cpp. Compiler messages name the page and its
line.
"""
import pathlib
import re
import sys


def blocks(page):
    """Yields the cpp blocks as (number of the first line, mark before the fence, lines)."""
    lines = page.read_text(encoding="utf-8").splitlines()
    mark, start = "", None
    for number, line in enumerate(lines, 1):
        if start is None and line.strip() == "```cpp":
            start = number + 1
        elif start is not None and line.strip() == "```":
            yield start, mark, lines[start - 1:number - 1]
            mark, start = "", None
        elif start is None and line.strip():
            comment = re.fullmatch(r"<!-- (.*) -->", line.strip())
            mark = comment.group(1) if comment else ""
    if start is not None:
        sys.exit(f"{page}:{start}: the block has no end")


def compiled(page):
    parts = ['#include "docs/Prelude.h"']
    for start, mark, lines in blocks(page):
        place = f'#line {start} "{page}"'
        includes = [line for line in lines if line.startswith("#include")]
        rest = ["" if line in includes else line for line in lines]
        if mark == "global scope":
            block = [*includes, place, *rest]
        elif mark in ("file scope", "needs KConfig") or "/" in mark:
            block = [*includes, f"namespace block_{start} {{", place, *rest, "}",
                     f"using namespace block_{start};"]
        else:
            block = [*includes, f"void block_{start}()", "{", place, *rest, "}"]
        if mark == "needs KConfig":
            block = ["#ifdef MALTO_DOCS_HAVE_KCONFIG", *block, "#endif"]
        parts += block
    return "\n".join([*parts, ""])


if __name__ == "__main__":
    source, target = map(pathlib.Path, sys.argv[1:])
    target.write_text(compiled(source), encoding="utf-8")

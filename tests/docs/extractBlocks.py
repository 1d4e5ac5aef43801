#!/usr/bin/env python3
"""Makes a C++ file of the cpp blocks of one page of the documentation, so that the compiler reads them.

    extractBlocks.py <page.md> <out.cpp>

A block of statements becomes the body of a function. A block that holds an #include, or stands right
after the line <!-- file scope -->, becomes a namespace, which the later blocks of the page use; its
#include lines go to the head of the file. A block after <!-- needs KConfig --> is compiled only where
MALTO_DOCS_HAVE_KCONFIG is defined. Blocks that are not to be compiled are not tagged cpp. Messages of the
compiler name the page and its line.
"""
import pathlib
import re
import sys


def blocks(page):
    """The cpp blocks as (number of the first line, mark before the fence, lines)."""
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
    includes, body = [], []
    for start, mark, lines in blocks(page):
        place = f'#line {start} "{page}"'
        own = [line for line in lines if line.startswith("#include")]
        guard = mark == "needs KConfig"
        if guard:
            includes.append("#ifdef MALTO_DOCS_HAVE_KCONFIG")
            body.append("#ifdef MALTO_DOCS_HAVE_KCONFIG")
        includes += own
        rest = ["" if line.startswith("#include") else line for line in lines]
        if own or mark == "file scope":
            body += [f"namespace block_{start} {{", place, *rest, "}",
                     f"using namespace block_{start};"]
        else:
            body += [f"void block_{start}()", "{", place, *rest, "}"]
        if guard:
            includes.append("#endif")
            body.append("#endif")
    return "\n".join(['#include "docs/Prelude.h"', *includes, *body, ""])


if __name__ == "__main__":
    source, target = map(pathlib.Path, sys.argv[1:])
    target.write_text(compiled(source), encoding="utf-8")

#!/usr/bin/env python3
"""Prints the results of the benchmarks: the cost of the library, the bare cost, the costs of the
peers, and the ratios. The cost is that of one entry, or of all entries of a program. If the cost per
entry is the same in all rows of a work, it does not depend on the number of settings.

    printTable.py <results.json>
"""

import sys

from results import GOALS, read_medians


def text_of(value, unit):
    if unit == "bytes":
        return f"{value:.0f} B"
    for limit, name in ((1e-6, "ns"), (1e-3, "us"), (1, "ms")):
        if value < limit:
            return f"{value / limit * 1000:.1f} {name}"
    return f"{value:.2f} s"


def line(cells):
    return "| " + " | ".join(cells) + " |"


def print_table(works):
    peers = sorted({who for work in works.values() for size in work.values() for who in size}
                   - {"library", "bare"}, reverse=True)
    head = ["work", "entries", "library", "bare", "times bare", "goal"]
    for peer in peers:
        head += [peer, "times library"]
    rows = []
    for work, sizes in works.items():
        goal = GOALS.get(work)
        for size, costs in sorted(sizes.items()):
            unit, own = costs["library"]
            ratio = own / costs["bare"][1]
            row = [work, f"{size:,}", text_of(own, unit), text_of(costs["bare"][1], unit),
                   f"{ratio:.2f}", f"{goal}" if goal else ""]
            for peer in peers:
                if peer in costs:
                    row += [text_of(costs[peer][1], unit), f"{costs[peer][1] / own:.1f}"]
                else:
                    row += ["", ""]
            rows.append(row)
    widths = [max(len(row[i]) for row in [head] + rows) for i in range(len(head))]
    print(line(cell.ljust(width) for cell, width in zip(head, widths)))
    print(line("-" * width for width in widths))
    for row in rows:
        print(line([row[0].ljust(widths[0])]
                   + [cell.rjust(width) for cell, width in zip(row[1:], widths[1:])]))


if len(sys.argv) != 2:
    sys.exit(__doc__)
print("Processor time per entry, and of all entries for a program, medians. \"times bare\" is\n"
      "library / bare. \"times library\" is peer / library; above 1 the library is faster.\n")
print_table(read_medians(sys.argv[1]))

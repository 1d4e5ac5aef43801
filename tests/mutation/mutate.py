#!/usr/bin/env python3
"""Mutation test: applies many small changes to the libraries, one at a time, and reports those that
make no test fail.

Works on a private copy of the tree and can be stopped and resumed. Each mutant is built and run with
the tests named after its source, then the tests of its folder, offscreen and on an X server, then the
tests of the folders that use it, until one fails. A test that hangs or crashes counts as failed. A
mutant that does not compile does not count and is replaced by another one.
"""

import argparse
import json
import os
import random
import re
import subprocess
import sys
import threading
import time
from pathlib import Path

from mutants import mutants_of

ROOT = Path(__file__).resolve().parents[2]
# The folders whose tests cover a folder's code: its own first, then the folders that use it.
TEST_FOLDERS = {"store": ("store", "manage", "faults"),
                "manage": ("manage", "window", "widgets"),
                "widgets": ("widgets", "window"),
                "window": ("window", "demo"),
                "companion/orvutils": ("companion/orvutils", "widgets", "window"),
                "companion/iconfont": ("companion/iconfont", "window"),
                "companion/globalshortcut": ("companion/globalshortcut", "widgets")}
LIBRARIES = {"companion/orvutils": "OrvUtils", "companion/iconfont": "QIconfont",
             "companion/globalshortcut": "QxtGlobalShortcut"}
NOT_BUILT = ("createBackendNull.cpp",)  # for systems without hotkeys
TEXT_SHARE = 0.3  # share of the text mutants that is drawn from: they are many and similar


def tracked_files():
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT, check=True,
                            stdout=subprocess.PIPE, text=True).stdout
    return sorted(name for name in listed.split("\n") if name and (ROOT / name).is_file())


def sources():
    return [str(path.relative_to(ROOT)) for folder in TEST_FOLDERS
            for path in sorted((ROOT / folder).glob("*.cpp")) if path.name not in NOT_BUILT]


def mutants_in(name):
    return mutants_of(name, (ROOT / name).read_text())


def chosen(seed, count):
    """Returns for each file its mutants in the order in which they are tried, and their number."""
    drawn = {}
    for name in sources():
        draw = random.Random("%d %s" % (seed, name))
        mutants = [mutant for mutant in mutants_in(name)
                   if mutant.kind != "text" or draw.random() < TEXT_SHARE]
        draw.shuffle(mutants)
        drawn[name] = mutants
    total = sum(len(mutants) for mutants in drawn.values())
    quota = {name: max(min(len(mutants), 3), round(count * len(mutants) / total))
             for name, mutants in drawn.items()}
    return drawn, quota


class Tests:
    """The test programs of the private copy, and the duration of each without a mutant."""

    def __init__(self, build, work):
        listing = subprocess.run(["ctest", "--show-only=json-v1"], cwd=build, check=True,
                                 stdout=subprocess.PIPE).stdout
        self.commands = {}
        for test in json.loads(listing)["tests"]:
            properties = {item["name"]: item["value"] for item in test["properties"]}
            if "command" in test:
                self.commands[test["name"]] = (test["command"], properties.get("ENVIRONMENT", []),
                                               properties.get("WORKING_DIRECTORY", str(build)))
        self.times_file = work / "times.json"
        self.times = json.loads(self.times_file.read_text()) if self.times_file.exists() else {}

    def relevant(self, source):
        """Returns the names of the tests that cover `source`, the closest first."""
        folder, stem = str(Path(source).parent), Path(source).stem
        names = []
        for test_folder in TEST_FOLDERS[folder]:
            tests = [path.stem for path in (ROOT / "tests" / test_folder).glob("tst_*.cpp")
                     if path.stem in self.commands]
            named = [test for test in tests if test[4:] == stem]
            related = [test for test in tests if test not in named
                       and (test[4:].startswith(stem) or stem.startswith(test[4:]))]
            rest = [test for test in tests if test not in named + related]
            for group in (named, related, rest):
                names += sorted(group, key=lambda test: (self.times.get(test, 0), test))
            if test_folder == folder:
                names += ["x11." + name for name in names if "x11." + name in self.commands]
        return names

    def passes(self, name, limit):
        """Returns whether the test passes. Stops it at its first failure or at the time limit."""
        command, environment, folder = self.commands[name]
        variables = dict(os.environ, **dict(item.split("=", 1) for item in environment))
        # Run it in its own session, so that an X server that it starts is stopped with it.
        process = subprocess.Popen(command, env=variables, cwd=folder, stdout=subprocess.PIPE,
                                   stderr=subprocess.STDOUT, errors="replace",
                                   start_new_session=True)
        timer = threading.Timer(limit, stop, [process])
        timer.start()
        failed = False
        for line in process.stdout:
            if line.startswith(("FAIL!", "XPASS", "QFATAL")):
                failed = True
                break
        if failed:
            stop(process)
        process.stdout.close()
        process.wait()
        timer.cancel()
        return not failed and process.returncode == 0

    def measure(self, names):
        """Runs the tests without a mutant; all must pass."""
        for name in names:
            if name in self.times:
                continue
            start = time.monotonic()
            if not self.passes(name, 600):
                sys.exit("%s fails without a mutant" % name)
            self.times[name] = time.monotonic() - start
            self.times_file.write_text(json.dumps(self.times, indent=1, sort_keys=True))

    def limit(self, name):
        return 60 + 10 * self.times.get(name, 0)


def stop(process):
    try:
        os.killpg(process.pid, 9)
    except ProcessLookupError:
        pass


class Copy:
    """The private copy of the tree and its build."""

    def __init__(self, work):
        self.tree, self.build = work / "tree", work / "build"
        self.log = work / "build.log"
        self.tree.mkdir(parents=True, exist_ok=True)
        names = "\n".join(tracked_files())
        # Compare by content: modification times do not tell whether a mutant was left in a file.
        subprocess.run(["rsync", "-a", "--checksum", "--no-times", "--files-from=-",
                        str(ROOT), str(self.tree)], input=names, text=True, check=True)

    def prepare(self, qt, folders):
        if not (self.build / "build.ninja").exists():
            subprocess.run(["cmake", "-G", "Ninja", "-S", self.tree, "-B", self.build,
                            "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0",
                            "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", "-DMALTO_QT_MAJOR=" + qt],
                           check=True, stdout=subprocess.DEVNULL)
        targets = ["tests/%s/all" % folder for folder in folders]
        if not self.compiles(targets):
            sys.exit("the tree does not build without a mutant: see %s" % self.log)

    def compiles(self, targets):
        with open(self.log, "w") as log:
            return subprocess.run(["ninja", "-j2", *targets], cwd=self.build, stdout=log,
                                  stderr=log).returncode == 0

    def breaks(self, mutant):
        """Applies the mutant and builds it. Returns whether it compiles."""
        source = (ROOT / mutant.file).read_text()
        broken = source[:mutant.start] + mutant.after + source[mutant.end:]
        (self.tree / mutant.file).write_text(broken)
        # Sources of classes that are not exported are compiled into tests of the folder.
        folder = str(Path(mutant.file).parent)
        return self.compiles([LIBRARIES.get(folder, "MaltoConfiguration"), "tests/%s/all" % folder])

    def heals(self, mutant):
        (self.tree / mutant.file).write_text((ROOT / mutant.file).read_text())


class Results:
    """The results so far, in a file with one JSON object per line."""

    def __init__(self, path, forgotten):
        """Survivors in the files `forgotten` are dropped, so that they are tried again."""
        self.path = path
        self.rows = {}
        if path.exists():
            for line in path.read_text().splitlines():
                row = json.loads(line)
                self.rows[row["key"]] = row
        if forgotten:
            self.rows = {key: row for key, row in self.rows.items()
                         if row["end"] != "survived" or row["file"] not in forgotten}
            path.write_text("".join(json.dumps(row) + "\n" for row in self.rows.values()))

    def add(self, mutant, end, test):
        row = {"key": mutant.key, "file": mutant.file, "line": mutant.line, "kind": mutant.kind,
               "before": mutant.before, "after": mutant.after, "end": end, "test": test}
        self.rows[mutant.key] = row
        with open(self.path, "a") as out:
            out.write(json.dumps(row) + "\n")


def equivalents():
    """Returns the keys of equivalent mutants, which change no visible behaviour, from survivors.md."""
    path = Path(__file__).with_name("survivors.md")
    if not path.exists():
        return set()
    return set(re.findall(r"^\| `([0-9a-f]{12})`", path.read_text(), re.M))


def tried(mutant, copy, tests, results):
    """Builds and tests the mutant. Returns whether it counts."""
    if not copy.breaks(mutant):
        results.add(mutant, "uncompiled", "")
        return False
    killer = next((name for name in tests.relevant(mutant.file)
                   if not tests.passes(name, tests.limit(name))), "")
    results.add(mutant, "killed" if killer else "survived", killer)
    return True


def try_all(drawn, quota, copy, tests, results):
    """Tries one mutant of each file, then the next one of each, so that an early stop covers all
    files."""
    waiting = {name: iter(mutants) for name, mutants in drawn.items()}
    done = dict.fromkeys(drawn, 0)
    while waiting:
        for name in list(waiting):
            mutant = next(waiting[name], None) if done[name] < quota[name] else None
            if not mutant:
                del waiting[name]
            elif mutant.key in results.rows:
                done[name] += results.rows[mutant.key]["end"] != "uncompiled"
            else:
                done[name] += tried(mutant, copy, tests, results)
                copy.heals(mutant)


def report(drawn, quota, results):
    known = equivalents()
    for key in sorted(known - {mutant.key for name in sources() for mutant in mutants_in(name)}):
        print("survivors.md: no mutant has the key `%s` now: its line has changed" % key)
    killed, survivors, excused = 0, [], 0
    for name, mutants in drawn.items():
        rows = [(mutant, results.rows[mutant.key]) for mutant in mutants
                if mutant.key in results.rows]
        counted = [(mutant, row) for mutant, row in rows if row["end"] != "uncompiled"]
        for mutant, row in counted[:quota[name]]:
            if row["end"] == "killed":
                killed += 1
            elif mutant.key in known:
                excused += 1
            else:
                survivors.append(mutant)
    for mutant in sorted(survivors, key=lambda it: (it.file, it.line, it.start)):
        print("%s:%d: `%s` became `%s` (%s, %s)" % (mutant.file, mutant.line, mutant.before,
                                                   mutant.after, mutant.kind, mutant.key))
    total = killed + len(survivors)
    print("%d of %d mutants killed (%.1f %%); %d more are equivalent (survivors.md); "
          "%d of %d drawn are not tried yet"
          % (killed, total, 100.0 * killed / max(total, 1), excused,
             sum(quota.values()) - total - excused, sum(quota.values())))


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--work", type=Path, default=ROOT / "build-mutation",
                        help="folder for the private copy and the results")
    parser.add_argument("--qt", default="5", help="the Qt to build with, 5 or 6")
    parser.add_argument("--count", type=int, default=420, help="approximate number of mutants")
    parser.add_argument("--seed", type=int, default=1, help="seed of the random selection")
    parser.add_argument("--only", default="", help="only sources whose name contains this text")
    parser.add_argument("--retry", action="store_true", help="try the survivors again")
    parser.add_argument("--report", action="store_true", help="only report the known results")
    options = parser.parse_args()

    options.work.mkdir(parents=True, exist_ok=True)
    drawn, quota = chosen(options.seed, options.count)
    drawn = {name: mutants for name, mutants in drawn.items() if options.only in name}
    quota = {name: quota[name] for name in drawn}
    results = Results(options.work / "results.jsonl", set(drawn) if options.retry else set())
    if options.report:
        report(drawn, quota, results)
        return
    copy = Copy(options.work.resolve())
    copy.prepare(options.qt, {folder for name in drawn
                              for folder in TEST_FOLDERS[str(Path(name).parent)]})
    tests = Tests(copy.build, options.work)
    tests.measure(sorted({test for name in drawn for test in tests.relevant(name)}))
    try_all(drawn, quota, copy, tests, results)
    report(drawn, quota, results)


if __name__ == "__main__":
    main()

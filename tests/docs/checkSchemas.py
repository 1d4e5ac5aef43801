#!/usr/bin/env python3
"""Fails unless the schemas in docs/schemas accept what the library writes and what the pages show, and
reject documents that the library does not understand.

    checkSchemas.py <folder of the project> <writeDumps>
"""
import json
import pathlib
import re
import subprocess
import sys
import tempfile

import jsonschema

CHANGED = {f"Types.{name}" for name in ("Int", "Double", "Bool", "Text", "Color", "NoColor", "Font",
                                        "Keys", "Object", "Array")} | {"Kinds.OfSystem#s.mac"}
WRITTEN = {
    "local.json": CHANGED | {"Kinds.Restored", "Kinds.Local", "Entry.1"},
    "shared.json": CHANGED | {"Kinds.Restored", "Entry.1"},
    "changed.json": CHANGED,
}
RIGHT = {
    "local-file": [{}, {"Capture.Delay": {"t": 1700000100, "v": 5}}],
    "configuration-file": [
        {},
        {"General.Sound": False, "A.B.C": "text", "Data.Bookmarks": {"name": "an object as a value"}},
        {"A.B": {"value": 1, "subConf": {"Width": {"value": 2, "subConf": {"Unit": "px"}}}}},
    ],
}
WRONG = {
    "local-file": {
        "no object": [],
        "a bare value": {"Capture.Delay": 5},
        "neither time nor value": {"Capture.Delay": {}},
        "a time as text": {"Capture.Delay": {"t": "1700000100", "v": 5}},
        "a time in milliseconds": {"Capture.Delay": {"t": 1700000100000, "v": 5}},
        "half a second": {"Capture.Delay": {"t": 1700000100.5}},
        "removed and changed": {"Entry.1": {"d": 1700000100, "v": 5}},
        "a misspelt member": {"Capture.Delay": {"t": 1700000100, "value": 5}},
        "a number sign in the key": {"Capture#Delay": {"t": 1700000100}},
        "an empty key": {"": {"t": 1700000100}},
    },
    "configuration-file": {
        "no object": [1],
        "a key without a page": {"Delay": 5},
        "a key of four names": {"A.B.C.D": 5},
        "an empty name": {"Capture.": 5},
        "a misspelt member": {"A.B": {"value": 1, "subconf": {"Width": 2}}},
        "sub-items as a list": {"A.B": {"value": 1, "subConf": [2]}},
        "sub-items without a value": {"A.B": {"subConf": {"Width": 2}}},
        "a mistake in a sub-item": {"A.B": {"value": 1, "subConf": {"Width": {"subConf": {}}}}},
    },
}

root, program = pathlib.Path(sys.argv[1]), sys.argv[2]
checkers = {}
for name in RIGHT:
    schema = json.loads((root / f"docs/schemas/{name}.schema.json").read_text(encoding="utf-8"))
    jsonschema.Draft202012Validator.check_schema(schema)
    checkers[name] = jsonschema.Draft202012Validator(schema)

problems = []
with tempfile.TemporaryDirectory() as folder:
    subprocess.run([program, folder], check=True)
    for name, keys in WRITTEN.items():
        document = json.loads(pathlib.Path(folder, name).read_text(encoding="utf-8"))
        if set(document) != keys:
            problems.append(f"{name} has other keys: {sorted(set(document) ^ keys)}")
        problems += [f"{name}: {error.json_path}: {error.message}"
                     for error in checkers["local-file"].iter_errors(document)]
for name, checker in checkers.items():
    problems += [f"{name} rejects {document}" for document in RIGHT[name] if not checker.is_valid(document)]
    problems += [f"{name} accepts {what}" for what, document in WRONG[name].items()
                 if checker.is_valid(document)]
for page in sorted(root.glob("docs/**/*.md")):
    for block in re.findall(r"^```json\n(.*?)^```$", page.read_text(encoding="utf-8"), flags=re.M | re.S):
        if not any(checker.is_valid(json.loads(block)) for checker in checkers.values()):
            problems.append(f"{page} shows a block that no schema accepts:\n{block}")
print("\n".join(problems))
sys.exit(bool(problems))

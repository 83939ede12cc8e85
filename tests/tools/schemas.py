#!/usr/bin/env python3
"""Holds `wrenvale check` and the JSON Schemas against a validator that others wrote.

schemas.py KIT SCHEMAS SITE: every document of SITE is valid; one of each kind is then changed in one
place after the other, and both must agree on whether it still is.
"""
import copy
import json
import pathlib
import subprocess
import sys
import tempfile

from jsonschema import Draft202012Validator

KIT, SCHEMAS, SITE = sys.argv[1:]
STORE = pathlib.Path(SITE, "store")
VALUES = [None, True, False, 17, -17, 17.0, 1.5, 10**19, "", "17", "-17", "com.example.new", "a b",
          "https://a.example/b", "auto", [], {}, [17], {"bundle_id": "com.example.new"}]


def places(value, path=()):
    yield path
    pairs = value.items() if isinstance(value, dict) else enumerate(value) if isinstance(value, list) else ()
    for key, child in pairs:
        yield from places(child, path + (key,))


def changed(document, path, change):
    result = copy.deepcopy(document)
    parent = result
    for key in path[:-1]:
        parent = parent[key]
    change(parent, path[-1])
    return result


def variants(document):
    for path in places(document):
        if not path:
            continue
        yield changed(document, path, lambda parent, key: parent.pop(key))
        if isinstance(path[-1], str):
            yield changed(document, path, lambda parent, key: parent.update(unheard_of=1))
        for new in VALUES:
            yield changed(document, path, lambda parent, key: parent.__setitem__(key, new))


def schema_errors(folder, documents):
    """For each document, whether the kit finds fault with more than its sense."""
    files = [folder / name for name in documents]
    for file in files:
        file.write_text(json.dumps(documents[file.name]))
    output = subprocess.run([KIT, "check", *files], capture_output=True, text=True).stdout
    sense = ("stands here twice", "no build is from")
    wrong = {line.split(":")[0] for line in output.splitlines()
             if ": error: " in line and not any(text in line for text in sense)}
    assert f"{len(files)} documents: " in output, output
    return {file.name: str(file) in wrong for file in files}


def check(kind, sample):
    schema = json.loads(pathlib.Path(SCHEMAS, f"{kind}.schema.json").read_text())
    Draft202012Validator.check_schema(schema)
    validator = Draft202012Validator(schema)
    for file in sorted(STORE.glob(f"{kind}_*.json")):
        for error in validator.iter_errors(json.loads(file.read_text())):
            sys.exit(f"{file}: {error.message}")
    documents = {f"{kind}_{i}.json": variant for i, variant in enumerate(variants(sample))}
    with tempfile.TemporaryDirectory() as folder:
        ours = schema_errors(pathlib.Path(folder), documents)
    invalid = 0
    for name, document in documents.items():
        theirs = not validator.is_valid(document)
        invalid += theirs
        if theirs != ours[name]:
            sys.exit(f"{kind}: others say {theirs}, check says {ours[name]}: {json.dumps(document)}")
    assert 0 < invalid < len(documents)
    print(f"{kind}: {len(documents)} documents, {invalid} of them not valid, same verdicts")


check("reset", json.loads((STORE / "reset_US_en.json").read_text()))
recommender = json.loads((STORE / "recommender_US_en_U.json").read_text())
del recommender["apps"][2:]
check("recommender", recommender)

"""Validates every scenario, result and documented example against the schemas in docs/."""

import json
import pathlib
import re
import sys

import jsonschema

ROOT = pathlib.Path(__file__).resolve().parents[2]


def validator(name):
    schema = json.loads((ROOT / "docs" / name).read_text("utf-8"))
    jsonschema.Draft202012Validator.check_schema(schema)
    return jsonschema.Draft202012Validator(schema)


def documents():
    """Every document with its name and the schema that it has to fit."""
    script = validator("run-script.schema.json")
    result = validator("run-result.schema.json")
    folder = ROOT / "tests" / "scenarios"
    for file in sorted(folder.glob("*.expected.json")):
        yield file.name, json.loads(file.read_text("utf-8")), result
        twin = file.with_name(file.name.replace(".expected.json", ".json"))
        yield twin.name, json.loads(twin.read_text("utf-8")), script
    page = (ROOT / "docs" / "scripts.md").read_text("utf-8")
    for number, block in enumerate(re.findall(r"```json\n(.*?)```", page, re.DOTALL)):
        yield f"docs/scripts.md, example {number + 1}", json.loads(block), script
    for file in sorted((ROOT / "examples").glob("**/*.json")):
        yield str(file.relative_to(ROOT)), json.loads(file.read_text("utf-8")), script


def main():
    checked = failures = 0
    for name, document, schema in documents():
        checked += 1
        for error in schema.iter_errors(document):
            failures += 1
            place = "/".join(str(step) for step in error.absolute_path)
            print(f"{name}: /{place}: {error.message}", file=sys.stderr)
    print(f"{checked} documents checked")
    return 1 if failures or checked < 3 else 0


if __name__ == "__main__":
    sys.exit(main())

"""usage: validate_rows.py VRX ROWS

Holds the schemas that VRX writes against the full texts of the classes, which ROWS prints, by a validator that knows
nothing of either.
"""

import json
import subprocess
import sys

from jsonschema import Draft202012Validator

OPTIONS_OF_IGES = {"operation_type": "import", "format_type": "IGES"}

# Each with one defect.
BROKEN = [
    ("exc_log", {"message": 1}),
    ("exc_log", []),
    ("exc_log", None),
    ("exc_progress", {"progress": 1.5}),
    ("exc_progress", {"progress": 3000000000}),
    ("ExcVector3d", [1.0, 2.0]),
    ("ExcVector3d", [1.0, 2.0, 3.0, 4.0]),
    ("ExcVector3d", [1.0, 2.0, "3"]),
    ("ExcVector3d", None),
    ("ExcColor", {"rgb": [1, 2, 3], "alpha": -1}),
    ("ExcBlock", {"id": 18446744073709551616}),
    ("ExcBlock", {"id": "1"}),
    ("ExcBlock", {"is_part": 1}),
    ("ExcSubentId", {"type": "q"}),
    ("ExcPMIDimension", {"texts": ["p", "s"]}),
    ("ExcPMIDimension", {"numerical_tolerance": [0.5, "0.5"]}),
    ("ExcVisuMaterial", {"colors": {"green": [1.0, 2.0, 3.0, 4.0]}}),
    ("ExcVisuMaterial", {"colors": {"diffuse": [1.0]}}),
    ("ExcVisuNode", {"child_nodes": [{"child_nodes": [{"is_leaf": 0}]}]}),
    ("ExcBlockGeometry", {"shared_acis_buffer_name": "b"}),
    ("Result", {"message": "m"}),
    ("Command", {"command": "imports"}),
    ("Command", {"command": "import"}),
    ("Command", {"command": "import", "options": {"file": "f", "format_options": [{"format_type": "IGES"}]}}),
    (
        "Command",
        {
            "command": "import",
            "options": {"file": "f", "format_options": [dict(OPTIONS_OF_IGES, import_entities=7)]},
        },
    ),
    ("ExcMfgFeatureUnclassified", {"pattern": {"type": "square"}}),
    ("ExcMfgFeatureUnclassified", {"pattern": {"is_base": True}}),
    ("ExchangeObjectWrapper", {"exchange_object_name": "exc_log"}),
    ("ExchangeObjectWrapper", {"exchange_object_name": "exc_log", "exchange_object_data": {"message": 1}}),
    ("ExchangeObjectWrapper", {"exchange_object_name": "exc_log", "binary": True, "exchange_object_data": {}}),
    ("ExchangeObjectWrapper", {"exchange_object_name": "exc_log", "binary": True, "exchange_object_data": ""}),
    (
        "ExchangeObjectWrapper",
        {"exchange_object_name": "exc_product_structure", "exchange_object_data": {"blocks": [{"id": -1}]}},
    ),
]

# For the schema of all messages.
BROKEN_MESSAGES = [{}, [1], {"command": 3}, {"name": "n"}, {"name": 1, "version": "v"}]

# Keys of a later sender, null where it may stand, and a buffer in place of an object.
SOUND = [
    ("ExcMfgFeatureUnclassified", {"pattern": {"type": "none"}}),
    ("exc_log", {"message": "m", "level": 3}),
    ("ExcVisuFace", {"color": None}),
    ("ExchangeObjectWrapper", {"exchange_object_name": "exc_log", "exchange_object_data": {"message": "m"}}),
    (
        "ExchangeObjectWrapper",
        {"exchange_object_name": "exc_product_structure", "binary": True, "exchange_object_data": "name"},
    ),
]


def main():
    vrx, rows = sys.argv[1:]

    def validator(*words):
        text = subprocess.run([vrx, "schema", *words], check=True, capture_output=True).stdout
        schema = json.loads(text)
        Draft202012Validator.check_schema(schema)
        return Draft202012Validator(schema)

    failures = []

    def expect(is_valid, schema, value, what):
        errors = [error.message for error in schema.iter_errors(value)]
        if is_valid == bool(errors):
            failures.append(f"{what}: {errors or 'valid'}")

    whole = validator()
    count = 0
    for line in subprocess.run([rows], check=True, capture_output=True, text=True).stdout.splitlines():
        row = json.loads(line)
        own = validator(row["class"])
        for text in (row["in"], row["out"]):
            expect(True, own, text, row["class"])
            count += 1
        if row["class"] in ("Command", "Result", "FerrantInfo"):
            expect(True, whole, row["in"], row["class"])
    for name, value in BROKEN:
        expect(False, validator(name), value, f"{name} {value}")
        expect(False, whole, value, f"message {value}")
    for name, value in SOUND:
        expect(True, validator(name), value, f"{name} {value}")
        expect(name == "ExchangeObjectWrapper", whole, value, f"message {value}")
    for value in BROKEN_MESSAGES:
        expect(False, whole, value, f"message {value}")

    print(f"{count} texts, {len(BROKEN)} broken ones, {len(failures)} failures", *failures, sep="\n")
    return 1 if failures or count < 200 else 0


sys.exit(main())

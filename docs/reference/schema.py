"""The classes' own outline, as `vrx schema` tells it: the keys of each class, their kinds, and who holds whom."""

from collections.abc import Iterator
from dataclasses import dataclass
from typing import Any

INTEGERS = {-2147483648: "32-bit integer", 0: "unsigned integer"}


@dataclass(frozen=True)
class Row:
    """One key of a class; the path of a nested one names the objects around it."""

    path: str
    kind: str  # with the names of classes as {ExcBlock}
    note: str
    targets: tuple[str, ...]  # the classes that stand there
    names: tuple[str, ...] = ()  # of an enumeration

    @property
    def key(self) -> str:
        return self.path.rsplit(".", 1)[-1]


def cpp_name(definition: str) -> str:
    """The class of a definition, without the arguments of a template."""
    return definition.split(".")[0].removeprefix("imp::")


def named(reference: str) -> str:
    return "{" + cpp_name(reference.removeprefix("#/$defs/")) + "}"


def kind(shape: dict[str, Any]) -> str:
    """The kind of a value in words."""
    if "$ref" in shape:
        return named(shape["$ref"])
    if "anyOf" in shape:
        return " or ".join(dict.fromkeys(kind(each) for each in shape["anyOf"]))
    if "enum" in shape:
        return "name"
    what = shape.get("type")
    if what == "array":
        size = f"{shape['minItems']} " if "minItems" in shape else ""
        parts = [shape["items"]] if "items" in shape else shape["prefixItems"]
        inner = " and ".join(dict.fromkeys(kind(part) for part in parts))
        return f"array of {size}{inner if inner.startswith('{') else plural(inner)}"
    if what == "object" and "additionalProperties" in shape:
        names = "names" if "propertyNames" in shape else "any names"
        return f"object of {plural(kind(shape['additionalProperties']))} under {names}"
    if what == "integer":
        return INTEGERS[shape["minimum"]] if shape["maximum"] != 2**64 - 1 else "64-bit unsigned integer"
    return {"string": "text", "boolean": "true or false"}.get(what, what) if what else "any value"


def plural(inner: str) -> str:
    if inner.startswith("{") or inner in ("true or false", "text"):
        return {"text": "texts"}.get(inner, inner)
    first, _, rest = inner.partition(" of ")
    return f"{first}s of {rest}" if rest else f"{first}s"


def references(shape: object) -> Iterator[str]:
    """The classes that stand in a value, but for those under keys of its own."""
    if isinstance(shape, dict):
        if "$ref" in shape:
            yield cpp_name(shape["$ref"].removeprefix("#/$defs/"))
        for key, part in shape.items():
            if key not in ("properties", "if"):
                yield from references(part)
    elif isinstance(shape, list):
        for part in shape:
            yield from references(part)


def rows(shape: object, path: str = "") -> Iterator[Row]:
    """All keys of a class, with those of the objects in it that are no classes."""
    if isinstance(shape, list):
        for part in shape:
            yield from rows(part, path)
        return
    if not isinstance(shape, dict):
        return
    for key, part in shape.get("properties", {}).items():
        if "const" in part:
            continue  # a condition on a key of the class that stands there
        inner = f"{path}.{key}" if path else key
        names = part.get("enum") or part.get("items", {}).get("enum") or ()
        yield Row(inner, kind(part), part.get("description", ""), tuple(dict.fromkeys(references(part))), tuple(names))
        yield from rows(part, inner)
    for key in ("items", "prefixItems", "additionalProperties", "anyOf"):
        yield from rows(shape.get(key), path)


def merged(shapes: list[dict[str, Any]]) -> list[Row]:
    """The keys of all classes that one template makes."""
    found: dict[str, Row] = {}
    for row in (row for shape in shapes for row in rows(shape)):
        before = found.get(row.path, row)
        kinds = dict.fromkeys([*before.kind.split(" or "), row.kind] if before.kind != row.kind else [row.kind])
        targets = tuple(dict.fromkeys(before.targets + row.targets))
        names = tuple(dict.fromkeys(before.names + row.names))
        found[row.path] = Row(row.path, " or ".join(kinds), row.note, targets, names)
    return list(found.values())


class Schema:
    def __init__(self, document: dict[str, Any]) -> None:
        self.definitions: dict[str, list[dict[str, Any]]] = {}  # several of a template
        for name, shape in document["$defs"].items():
            self.definitions.setdefault(cpp_name(name), []).append(shape)
        self.rows = {name: merged(shapes) for name, shapes in self.definitions.items()}
        self.rows["ExchangeObjectWrapper"] = self.of_envelope(self.rows["ExchangeObjectWrapper"])
        self.holders: dict[str, list[tuple[str, Row | None]]] = {}
        for name in sorted(self.definitions):
            for row in self.rows[name]:
                for target in row.targets:
                    self.holders.setdefault(target, []).append((name, row))
            if not self.rows[name]:
                for target in dict.fromkeys(references(self.definitions[name])):
                    self.holders.setdefault(target, []).append((name, None))

    def whole(self, name: str) -> str:
        """What a value without keys looks like."""
        told = " or ".join(dict.fromkeys(kind(shape) for shape in self.definitions[name]))
        return told[:1].upper() + told[1:]

    def of_envelope(self, found: list[Row]) -> list[Row]:
        """An envelope holds the objects that its rules name."""
        rules = self.definitions["ExchangeObjectWrapper"][0].get("allOf", [])
        objects = {
            cpp_name(part["$ref"].removeprefix("#/$defs/"))
            for rule in rules
            for part in rule["then"].get("properties", {}).values()
            if "$ref" in part
        }
        return [
            Row(row.path, "an exchange object, or the name of its buffer", row.note, tuple(sorted(objects)))
            if row.key == "exchange_object_data"
            else row
            for row in found
        ]

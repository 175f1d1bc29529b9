"""How a plain value becomes an object, by the forms of JSON Schema that `vrx schema` writes."""

from enum import StrEnum
from typing import Any

from .errors import SchemaError
from .model import Choose, ChosenField, Convert, Field, Object, make_class
from .numbers import as_bulk

_REFERENCE = "#/$defs/"
_ENVELOPE = "ExchangeObjectWrapper"
_MOST_TURNS = 1000


class Conversions:
    """Makes the conversion of each definition once. What does not have the form that the schema tells stays a plain
    value: readers of the format pass over what they do not know."""

    def __init__(self, definitions: dict[str, Any]) -> None:
        self._definitions = definitions
        self._classes: dict[str, type[Object]] = {}
        self._made: dict[str, Convert] = {}

    def of_class(self, name: str) -> Convert:
        made = self._made.get(name)
        if made is None:
            made = self._made[name] = self._of_node(self._definition(name), name)
        return made

    def python_class(self, name: str) -> type[Object]:
        self.of_class(name)
        if name not in self._classes:
            raise SchemaError(f"{name} is a class without keys")
        return self._classes[name]

    def class_of_object(self, wire_name: str) -> str | None:
        """The class of an exchange object, which the envelope tells."""
        envelope = self._definitions.get(_ENVELOPE)
        members = {"exchange_object_name": wire_name, "binary": False, "exchange_object_data": {}}
        node = _chosen(envelope, "exchange_object_data", members) if isinstance(envelope, dict) else None
        return _referred(node) if node else None

    def of_choice(self, node: Any, value: Any) -> Any:
        """The value by the branch of if, then and else that it fits."""
        branch = _branch(node, value) if "if" in node else None
        return self._of_node(branch, "")(value) if isinstance(branch, dict) and isinstance(value, dict) else value

    def _definition(self, name: str) -> dict[str, Any]:
        node = self._definitions.get(name)
        if not isinstance(node, dict):
            raise SchemaError(f"the schema has no class {name!r}")
        return node

    def _of_node(self, node: dict[str, Any], place: str) -> Convert:
        if "$ref" in node:
            name = _referred(node)
            # Looked up at each use, since classes refer to each other in circles.
            return lambda value: self.of_class(name)(value)
        if "anyOf" in node:
            return self._of_any(node["anyOf"], place)
        if "enum" in node:
            return _of_names(node["enum"], place)
        if node.get("type") == "array":
            return self._of_array(node, place)
        if node.get("type") == "object":
            return self._of_object(node, place)
        return _same

    def _of_any(self, choices: list[dict[str, Any]], place: str) -> Convert:
        converts = [(choice, self._of_node(choice, place)) for choice in choices]

        def convert(value: Any) -> Any:
            for choice, one in converts:
                if self._fits(choice, value):
                    return one(value)
            return value

        return convert

    def _fits(self, node: dict[str, Any], value: Any) -> bool:
        """Whether the value has the keys that the node requires, and only names that it knows."""
        if "$ref" in node:
            node = self._definition(_referred(node))
        if node.get("type") == "object" or "properties" in node:
            return isinstance(value, dict) and _holds(node, value)
        return {"string": str, "array": list}.get(node.get("type", ""), object) is type(value)

    def _of_array(self, node: dict[str, Any], place: str) -> Convert:
        if "prefixItems" in node:
            return _of_tuple([self._of_node(one, f"{place}.{i}") for i, one in enumerate(node["prefixItems"])])
        item = node.get("items", {})
        size = node.get("maxItems")
        if "$ref" in item:
            # A list of vectors has no class for each.
            target = self._definition(_referred(item))
            item = target if target.get("type") == "array" and target.get("maxItems") else item
        if item.get("type") in ("number", "integer") and size is None:
            type_code = _type_code(item)
            return lambda value: as_bulk(value, type_code)
        convert = self._of_node(item, place)
        kind = list if size is None else tuple
        if convert is _same:
            return lambda value: kind(value) if isinstance(value, list) else value
        return lambda value: kind(map(convert, value)) if isinstance(value, list) else value

    def _of_object(self, node: dict[str, Any], place: str) -> Convert:
        if "additionalProperties" in node and "properties" not in node:
            convert = self._of_node(node["additionalProperties"], place)
            return lambda value: (
                {key: convert(one) for key, one in value.items()} if isinstance(value, dict) else value
            )
        made = self._classes[place] = self._make_class(node, place)
        return lambda value: made(value) if isinstance(value, dict) else value

    def _make_class(self, node: dict[str, Any], name: str) -> type[Object]:
        fields = {key: self._field(node, key, name) for key in node.get("properties", {})}
        return make_class(name, fields, node.get("description", ""))

    def _field(self, owner: dict[str, Any], key: str, name: str) -> Field:
        node = owner["properties"][key]
        convert = self._of_node(node, f"{name}.{key}")
        target = self._definition(_referred(node)) if "$ref" in node else node
        is_list = target.get("type") == "array" and "maxItems" not in target
        make_empty = (lambda: convert([])) if is_list else _nothing
        doc = node.get("description", "")
        if "allOf" in owner:
            return ChosenField(key, convert, doc, make_empty, self._choice(owner, key, name))
        return Field(key, convert, doc, make_empty)

    def _choice(self, node: dict[str, Any], key: str, name: str) -> Choose:
        def choose(members: dict[str, Any]) -> Convert | None:
            chosen = _chosen(node, key, members)
            return self._of_node(chosen, f"{name}.{key}") if chosen else None

        return choose


def _nothing() -> None:
    return None


def _same(value: Any) -> Any:
    return value


def _of_tuple(converts: list[Convert]) -> Convert:
    def convert(value: Any) -> Any:
        if not isinstance(value, list) or len(value) != len(converts):
            return value
        return tuple(one(item) for one, item in zip(converts, value))

    return convert


def _of_names(names: list[str], place: str) -> Convert:
    """A name that the schema does not know stays a text."""
    try:
        members = StrEnum(place, [(name, name) for name in names])  # type: ignore[misc]
    except (TypeError, ValueError) as error:
        raise SchemaError(f"{place}: {error}") from None
    known = {str(member): member for member in members}
    return lambda value: known.get(value, value) if isinstance(value, str) else value


def _type_code(item: dict[str, Any]) -> str:
    if item["type"] == "number":
        return "d"
    is_signed = item.get("minimum", -1) < 0
    is_short = item.get("maximum", 1 << 63) < (1 << 31 if is_signed else 1 << 32)
    return ("i" if is_short else "q") if is_signed else ("I" if is_short else "Q")


def _referred(node: dict[str, Any]) -> str:
    return str(node.get("$ref", "")).removeprefix(_REFERENCE)


def _holds(condition: dict[str, Any], value: dict[str, Any]) -> bool:
    """Whether required keys are there, and keys that are there have the values that they may have."""
    if any(key not in value for key in condition.get("required", ())):
        return False
    for key, node in condition.get("properties", {}).items():
        if key in value:
            if "const" in node and value[key] != node["const"]:
                return False
            if "enum" in node and value[key] not in node["enum"]:
                return False
    return True


def _branch(node: Any, value: Any) -> Any:
    """Where if, then and else lead to."""
    for _ in range(_MOST_TURNS):
        if not isinstance(node, dict) or "if" not in node:
            break
        is_so = isinstance(value, dict) and _holds(node["if"], value)
        node = node.get("then" if is_so else "else")
    return node


def _chosen(node: dict[str, Any], key: str, members: dict[str, Any]) -> dict[str, Any] | None:
    """What the rules of a class say of a key, which depends on the other members."""
    for rule in node.get("allOf", ()):
        branch = _branch(rule, members)
        found: dict[str, Any] | None = branch.get("properties", {}).get(key) if isinstance(branch, dict) else None
        if found and "const" not in found:
            return found
    return None

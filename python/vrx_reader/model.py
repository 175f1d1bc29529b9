"""Python classes for the classes of a schema. An object takes its members apart only when they are asked for."""

from collections.abc import Callable, Iterator
from typing import Any

Convert = Callable[[Any], Any]
Choose = Callable[[dict[str, Any]], Convert | None]


class Object:
    """The base of the classes that a schema makes. Each key of the class is an attribute. An absent list is empty, all
    else that is absent is None. A key that the class does not know is an attribute where the sender wrote it.
    `object["key"]` is the same for all keys, `"key" in object` tells whether the sender wrote it, and an iteration
    gives the keys that were written."""

    _fields: dict[str, "Field"] = {}

    def __init__(self, data: dict[str, Any]) -> None:
        self.__dict__["_data"] = data

    def __getattr__(self, name: str) -> Any:
        data = self.__dict__.get("_data", {})
        if name in data:
            return data[name]
        raise AttributeError(f"{type(self).__name__} has no key {name!r}")

    def __setattr__(self, name: str, value: Any) -> None:
        raise AttributeError("what was read does not change")

    def __getitem__(self, key: str) -> Any:
        data = self.__dict__["_data"]
        if key in self._fields:
            return self._fields[key].__get__(self, type(self))
        return data[key]

    def __contains__(self, key: object) -> bool:
        return key in self.__dict__["_data"]

    def __iter__(self) -> Iterator[str]:
        return iter(self.__dict__["_data"])

    def __dir__(self) -> list[str]:
        return sorted({*self._fields, *self.__dict__["_data"]})

    def __repr__(self) -> str:
        members = (f"{key}={_brief(value)}" for key, value in self.__dict__["_data"].items())
        return f"{type(self).__name__}({', '.join(members)})"


class Field:
    """An attribute that is converted at its first use, and kept in the object then."""

    def __init__(self, key: str, convert: Convert, doc: str, make_empty: Callable[[], Any]) -> None:
        self._key = key
        self._convert = convert
        self._make_empty = make_empty
        self.__doc__ = doc

    def __get__(self, one: Object | None, owner: type) -> Any:
        if one is None:
            return self
        members = one.__dict__
        known = members.get(self._key, members)
        if known is not members:
            return known
        value = members["_data"].get(self._key)
        made = self._make_empty() if value is None else self._conversion(members["_data"])(value)
        members[self._key] = made
        return made

    def _conversion(self, members: dict[str, Any]) -> Convert:
        return self._convert


class ChosenField(Field):
    """An attribute whose class depends on the other members; `choose` gives None where it does not."""

    def __init__(
        self, key: str, convert: Convert, doc: str, make_empty: Callable[[], Any], choose: Choose
    ) -> None:
        super().__init__(key, convert, doc, make_empty)
        self._choose = choose

    def _conversion(self, members: dict[str, Any]) -> Convert:
        return self._choose(members) or self._convert


def make_class(name: str, fields: dict[str, Field], doc: str) -> type[Object]:
    attributes: dict[str, Any] = {key: one for key, one in fields.items() if not key.startswith("_")}
    return type(name, (Object,), {**attributes, "_fields": fields, "__doc__": doc})


def data_of(one: Object) -> dict[str, Any]:
    """What the object was made of."""
    data: dict[str, Any] = one.__dict__["_data"]
    return data


def _brief(value: Any) -> str:
    if isinstance(value, dict):
        return "{...}" if value else "{}"
    if hasattr(value, "__len__") and not isinstance(value, str):
        return f"[{len(value)}]"
    text = repr(value)
    return text if len(text) <= 60 else text[:57] + "..."

"""Plain values: dict, list, str, int, float, bool and None, as a JSON text gives them."""

from enum import Enum
from typing import Any

from .model import Object, data_of
from .numbers import is_run


def plain(value: Any) -> Any:
    """A copy of an object, or of a value in it, as plain values."""
    root: list[Any] = [None]
    todo: list[tuple[Any, Any, Any]] = [(root, 0, value)]
    while todo:
        target, key, one = todo.pop()
        if isinstance(one, Object):
            one = data_of(one)
        if isinstance(one, dict):
            target[key] = copy = dict.fromkeys(one)
            todo.extend((copy, name, child) for name, child in one.items())
        elif isinstance(one, (list, tuple)):
            target[key] = items = [None] * len(one)
            todo.extend((items, place, child) for place, child in enumerate(one))
        elif is_run(one):
            target[key] = one.tolist()
        else:
            target[key] = one.value if isinstance(one, Enum) else one
    return root[0]

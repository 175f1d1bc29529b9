"""The binary form of JSON: tagged values, least significant byte first."""

import struct
from typing import Any

from .errors import FormatError, LimitError
from .limits import DEFAULT_LIMITS, Limits
from .numbers import read_run

_NULL, _FALSE, _TRUE, _OBJECT, _ARRAY, _STRING, _INT, _UINT, _INT64, _UINT64, _DOUBLE = range(11)
_CONSTANTS = {_NULL: None, _FALSE: False, _TRUE: True}
_NUMBERS = {tag: struct.Struct("<" + code) for tag, code in zip(range(_INT, _DOUBLE + 1), "iIqQd")}
_TAG = struct.Struct("<I")
_SIZE = struct.Struct("<Q")


def is_binary_form(data: bytes) -> bool:
    """Whether the bytes begin as the binary form of an object or an array does."""
    return len(data) >= 4 and _TAG.unpack_from(data)[0] in (_OBJECT, _ARRAY)


def decode_binary(data: bytes, limits: Limits = DEFAULT_LIMITS, *, bulk: bool = False) -> Any:
    """The value at the front of the bytes; what stands behind it is passed over. With `bulk` a long run of numbers is
    an array.array, and otherwise a list."""
    return _Decoder(data, limits, bulk).decode()


class _Decoder:
    """Goes over the values without recursion."""

    def __init__(self, data: bytes, limits: Limits, bulk: bool) -> None:
        self._data = data
        self._limits = limits
        self._bulk = bulk
        self._count = 0
        self._names: dict[bytes, str] = {}
        self._opened: tuple[Any, int] | None = None

    def decode(self) -> Any:
        root, position = self._value(0, len(self._data))
        outer: list[tuple[Any, int]] = []
        container, end = self._opened or (None, position)
        while container is not None:
            if position >= end:
                container, end = outer.pop() if outer else (None, end)
                continue
            self._opened = None
            if type(container) is dict:
                name, position = self._name(position, end)
                value, position = self._value(position, end)
                container.setdefault(name, value)
            else:
                value, position = self._value(position, end)
                container.append(value)
            if self._opened is not None:
                outer.append((container, end))
                if len(outer) >= self._limits.depth:
                    raise LimitError(f"the binary form is nested deeper than {self._limits.depth} at byte {position}")
                container, end = self._opened
        return root

    def _value(self, position: int, end: int) -> tuple[Any, int]:
        """The value and the position behind it, or that of the first child of a container, which is opened."""
        tag, position = self._take(_TAG, position, end)
        self._add(1)
        if tag in _NUMBERS:
            return self._take(_NUMBERS[tag], position, end)
        if tag == _STRING:
            units, position = self._units(position, end)
            return units.decode("utf-16-le", "surrogatepass"), position
        if tag in _CONSTANTS:
            return _CONSTANTS[tag], position
        if tag not in (_OBJECT, _ARRAY):
            raise FormatError(f"unknown tag {tag} at byte {position - 4}")
        size, position = self._take(_SIZE, position, end)
        if size > end - position:
            raise FormatError(f"an object or array at byte {position - 12} goes beyond its end")
        run = read_run(self._data, position, position + size) if tag == _ARRAY and size != 0 else None
        if run is not None:
            return self._run(run), position + size
        self._opened = ({} if tag == _OBJECT else [], position + size)
        if self._limits.depth < 1:
            raise LimitError("the binary form is nested deeper than 0")
        return self._opened[0], position

    def _run(self, run: Any) -> Any:
        if type(run) is list:
            self._add(len(run))
        elif not self._bulk:
            self._add(len(run))
            return run.tolist()
        return run

    def _name(self, position: int, end: int) -> tuple[str, int]:
        tag, position = self._take(_TAG, position, end)
        if tag != _STRING:
            raise FormatError(f"the name of a member at byte {position - 4} is no string")
        self._add(1)
        units, position = self._units(position, end)
        name = self._names.get(units)
        if name is None:
            name = self._names[units] = units.decode("utf-16-le", "surrogatepass")
        return name, position

    def _units(self, position: int, end: int) -> tuple[bytes, int]:
        count, position = self._take(_SIZE, position, end)
        behind = position + 2 * count
        if behind > end:
            raise FormatError(f"a string at byte {position - 12} goes beyond its end")
        return self._data[position:behind], behind

    def _take(self, form: struct.Struct, position: int, end: int) -> tuple[Any, int]:
        behind = position + form.size
        if behind > end:
            raise FormatError(f"the binary form ends within a value at byte {position}")
        return form.unpack_from(self._data, position)[0], behind

    def _add(self, count: int) -> None:
        self._count += count
        if self._count > self._limits.values:
            raise LimitError(f"the binary form has more than {self._limits.values} values")

"""The binary form of JSON: tagged values, least significant byte first."""

import struct
from typing import Any, NoReturn

from .errors import FormatError, LimitError
from .limits import DEFAULT_LIMITS, Limits
from .numbers import read_run

_NULL, _FALSE, _TRUE, _OBJECT, _ARRAY, _STRING, _INT, _UINT, _INT64, _UINT64, _DOUBLE = range(11)
_CONSTANTS = {_NULL: None, _FALSE: False, _TRUE: True}
_TAG = struct.Struct("<I")
_HEAD = struct.Struct("<IQ")
"""The tag and the size of an object, an array or a string."""
_NUMBERS = {tag: struct.Struct("<4x" + code) for tag, code in zip(range(_INT, _DOUBLE + 1), "iIqQd")}
"""A number behind its tag."""


def is_binary_form(data: bytes) -> bool:
    """Whether the bytes begin as the binary form of an object or an array does."""
    return len(data) >= 4 and _TAG.unpack_from(data)[0] in (_OBJECT, _ARRAY)


def decode_binary(data: bytes, limits: Limits = DEFAULT_LIMITS, *, bulk: bool = False) -> Any:
    """The value at the front of the bytes; what stands behind it is passed over. With `bulk` a long run of numbers is
    an array, numpy's where numpy is there, and otherwise a list."""
    return _Decoder(data, limits, bulk).decode()


class _Decoder:
    """Goes over the values without recursion."""

    def __init__(self, data: bytes, limits: Limits, bulk: bool) -> None:
        self._data = data
        self._limits = limits
        self._bulk = bulk
        self._left = limits.values
        self._names: dict[bytes, str] = {}
        self._opened: tuple[Any, int] | None = None

    def decode(self) -> Any:
        root, position = self._value(0, len(self._data))
        outer: list[tuple[Any, int]] = []
        container, end = self._opened or (None, position)
        self._require_depth(container is not None, position)
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
                container, end = self._opened
                self._require_depth(len(outer) + 1, position)
        return root

    def _value(self, position: int, end: int) -> tuple[Any, int]:
        """The value and the position behind it, or that of the first child of a container, which is opened."""
        data = self._data
        if end - position < _TAG.size:
            raise _cut_off(position)
        (tag,) = _TAG.unpack_from(data, position)
        self._left -= 1
        if self._left < 0:
            self._refuse_count()
        form = _NUMBERS.get(tag)
        if form is not None:
            if end - position < form.size:
                raise _cut_off(position)
            return form.unpack_from(data, position)[0], position + form.size
        if tag in _CONSTANTS:
            return _CONSTANTS[tag], position + _TAG.size
        if tag == _STRING:
            units, position = self._units(position, end)
            return units.decode("utf-16-le", "surrogatepass"), position
        if tag not in (_OBJECT, _ARRAY):
            raise FormatError(f"unknown tag {tag} at byte {position}")
        return self._container(position, end)

    def _container(self, position: int, end: int) -> tuple[Any, int]:
        if end - position < _HEAD.size:
            raise _cut_off(position)
        tag, size = _HEAD.unpack_from(self._data, position)
        position += _HEAD.size
        if size > end - position:
            raise FormatError(f"an object or array at byte {position - _HEAD.size} goes beyond its end")
        behind = position + size
        if tag == _ARRAY and size != 0:
            run = read_run(self._data, position, behind)
            if run is not None:
                return self._of_run(run), behind
        self._opened = ({} if tag == _OBJECT else [], behind)
        return self._opened[0], position

    def _of_run(self, run: Any) -> Any:
        if type(run) is not list and self._bulk:
            return run
        self._left -= len(run)
        if self._left < 0:
            self._refuse_count()
        return run if type(run) is list else run.tolist()

    def _name(self, position: int, end: int) -> tuple[str, int]:
        if end - position < _TAG.size:
            raise _cut_off(position)
        if _TAG.unpack_from(self._data, position)[0] != _STRING:
            raise FormatError(f"the name of a member at byte {position} is no string")
        self._left -= 1
        units, position = self._units(position, end)
        name = self._names.get(units)
        if name is None:
            name = self._names[units] = units.decode("utf-16-le", "surrogatepass")
        return name, position

    def _units(self, position: int, end: int) -> tuple[bytes, int]:
        if end - position < _HEAD.size:
            raise _cut_off(position)
        begin = position + _HEAD.size
        behind = begin + 2 * _HEAD.unpack_from(self._data, position)[1]
        if behind > end:
            raise FormatError(f"a string at byte {position} goes beyond its end")
        return self._data[begin:behind], behind

    def _require_depth(self, depth: int, position: int) -> None:
        if depth > self._limits.depth:
            raise LimitError(f"the binary form is nested deeper than {self._limits.depth} at byte {position}")

    def _refuse_count(self) -> NoReturn:
        raise LimitError(f"the binary form has more than {self._limits.values} values")


def _cut_off(position: int) -> FormatError:
    return FormatError(f"the binary form ends within a value at byte {position}")

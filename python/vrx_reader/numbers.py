"""Runs of numbers, as the coordinates and indices of a scene: array.array, and numpy's arrays where numpy is there."""

import struct
import sys
from array import array
from functools import lru_cache
from typing import Any

try:
    import numpy
except ImportError:
    numpy = None  # type: ignore[assignment]

# By the tags of numbers in the binary form: the type code of their arrays, and the 32-bit words of tag and number.
_TYPE_CODES = {6: "i", 7: "I", 8: "q", 9: "Q", 10: "d"}
_WORDS = {6: 2, 7: 2, 8: 3, 9: 3, 10: 3}
_FEW = 16
_IS_FAST = sys.byteorder == "little" and array("i").itemsize == 4

Run = Any
"""An array.array or numpy's array."""


def read_run(data: bytes, begin: int, end: int) -> Run | list[Any] | None:
    """The numbers between two positions of a binary form: a list of few, an array of many. None when these bytes are
    no run of numbers that all have the same tag."""
    tag = int.from_bytes(data[begin:begin + 4], "little")
    words = _WORDS.get(tag)
    if words is None or (end - begin) % (4 * words) != 0:
        return None
    count = (end - begin) // (4 * words)
    if count <= _FEW:
        flat = _few(tag, count).unpack_from(data, begin)
        return list(flat[1::2]) if flat[0::2] == (tag,) * count else None
    if numpy is not None:
        return _many_by_numpy(data, begin, tag, count)
    return _many(data[begin:end], tag, words, count) if _IS_FAST else None


@lru_cache(maxsize=None)
def _few(tag: int, count: int) -> struct.Struct:
    return struct.Struct("<" + ("I" + _TYPE_CODES[tag]) * count)


@lru_cache(maxsize=None)
def _pair(tag: int) -> Any:
    return numpy.dtype([("tag", "<u4"), ("number", numpy.dtype(_TYPE_CODES[tag]).newbyteorder("<"))])


def _many_by_numpy(data: bytes, begin: int, tag: int, count: int) -> Run | None:
    pairs = numpy.frombuffer(data, _pair(tag), count, begin)
    return pairs["number"].astype(_TYPE_CODES[tag]) if (pairs["tag"] == tag).all() else None


def _many(data: bytes, tag: int, words: int, count: int) -> Run | None:
    """All by slices: none of the numbers becomes a Python object."""
    all_words = array("I", data)
    if all_words[0::words].count(tag) != count:
        return None
    if words == 2:
        numbers = all_words[1::2]
        return numbers if tag == 7 else array("i", numbers.tobytes())
    pairs = array("I", bytes(8 * count))
    pairs[0::2] = all_words[1::3]
    pairs[1::2] = all_words[2::3]
    return array(_TYPE_CODES[tag], pairs.tobytes())


def as_bulk(value: Any, type_code: str) -> Any:
    """The numbers as an array of this type, one of numpy's where numpy is there. What is no list of such numbers stays
    as it is."""
    if is_run(value):
        code = value.typecode if isinstance(value, array) else value.dtype
        if code == type_code:
            return value
        numbers = value.tolist()
    elif isinstance(value, list):
        numbers = value
    else:
        return value
    allowed = {int, float} if type_code == "d" else {int}
    if not set(map(type, numbers)) <= allowed:
        return value
    try:
        made = array(type_code, numbers)
    except OverflowError:
        return value
    return made if numpy is None else numpy.asarray(made)


def is_run(value: Any) -> bool:
    return isinstance(value, array) or (numpy is not None and isinstance(value, numpy.ndarray))

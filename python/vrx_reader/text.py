"""JSON texts."""

import codecs
import json
import re
from typing import Any, NoReturn

from .errors import FormatError, LimitError
from .limits import DEFAULT_LIMITS, Limits

_BYTE_ORDER_MARKS = ((codecs.BOM_UTF8, "utf-8"), (codecs.BOM_UTF16_LE, "utf-16-le"), (codecs.BOM_UTF16_BE, "utf-16-be"))
# One without an end goes up to the end of the text: to look for the end of each would take forever.
_STRING = re.compile(r'"[^"\\]*(?:\\.[^"\\]*)*(?:"|\\?\Z)', re.DOTALL)
_BRACKET = re.compile(r"[\[\]{}]")


def decode_text(data: bytes, limits: Limits = DEFAULT_LIMITS) -> str:
    """The text of a file or a frame, in UTF-8 or UTF-16. A lone surrogate in UTF-16 is kept."""
    if len(data) > limits.text_bytes:
        raise LimitError(f"a text of {len(data)} bytes is above the limit of {limits.text_bytes}")
    for mark, encoding in _BYTE_ORDER_MARKS:
        if data.startswith(mark):
            return _decoded(data[len(mark):], encoding)
    # The first character of a JSON text is ASCII.
    if len(data) >= 2 and (data[0] == 0) != (data[1] == 0):
        return _decoded(data, "utf-16-le" if data[1] == 0 else "utf-16-be")
    return _decoded(data, "utf-8")


def decode_units(data: bytes) -> str:
    """The text of 16-bit units, least significant byte first. A lone surrogate is kept."""
    return _decoded(data, "utf-16-le")


def parse_json(text: str, limits: Limits = DEFAULT_LIMITS) -> Any:
    """The plain value of a JSON text. As for all readers of the format, a NUL ends the text, and of a key that an
    object has twice the first one counts."""
    text = text.partition("\0")[0]
    if len(text) > limits.text_bytes:
        raise LimitError(f"a text of {len(text)} characters is above the limit of {limits.text_bytes}")
    # Each value is the first one in a container or stands behind a comma; commas in strings make no difference.
    if text.count(",") + text.count(":") + text.count("[") + text.count("{") > limits.values:
        raise LimitError(f"the text has more than {limits.values} values")
    _require_depth(text, limits.depth)
    try:
        return json.loads(text, object_pairs_hook=_first_wins, parse_int=_integer, parse_constant=_refuse_constant)
    except RecursionError:
        raise LimitError("the text is nested deeper than Python's recursion limit") from None
    except FormatError:
        raise
    except ValueError as error:
        raise FormatError(f"no JSON: {error}") from None


def _decoded(data: bytes, encoding: str) -> str:
    try:
        return data.decode(encoding, "strict" if encoding == "utf-8" else "surrogatepass")
    except UnicodeDecodeError as error:
        raise FormatError(f"malformed {encoding.upper()} at byte {error.start}") from None


def _require_depth(text: str, most: int) -> None:
    if text.count("[") + text.count("{") <= most:
        return
    depth = 0
    for bracket in _BRACKET.finditer(_STRING.sub("", text)):
        depth += 1 if bracket.group() in "[{" else -1
        if depth > most:
            raise LimitError(f"the text is nested deeper than {most}")


def _first_wins(pairs: list[tuple[str, Any]]) -> dict[str, Any]:
    members = dict(pairs)
    if len(members) != len(pairs):
        members.update(reversed(pairs))
    return members


def _integer(digits: str) -> int | float:
    """A number that fits no integer of 64 bits is a double."""
    number = int(digits) if len(digits) <= 20 else None
    return number if number is not None and -(1 << 63) <= number < 1 << 64 else float(digits)


def _refuse_constant(name: str) -> NoReturn:
    raise FormatError(f"no JSON: {name} is no number")

"""What the tests share. The environment variable VRX names the program vrx."""

import functools
import json
import os
import struct
import subprocess
import sys
import zlib
from pathlib import Path
from typing import Any

PACKAGE = Path(__file__).resolve().parent.parent
PROJECT = PACKAGE.parent
FROZEN = PROJECT / "tests/data/frozen"
FULL_ROWS = PROJECT / "tests/data/full_rows.vrxcap"

sys.path.insert(0, str(PACKAGE))

import vrx_reader  # noqa: E402 the path to it is set above

VRX = os.environ.get("VRX", "")
if not VRX:
    raise RuntimeError("set VRX to the program vrx")


@functools.cache
def schema() -> vrx_reader.Schema:
    return vrx_reader.Schema.from_program(VRX)


def shown(*words: str | Path) -> Any:
    """What vrx itself reads."""
    done = subprocess.run([VRX, "show", "--all", "--color", "never", *words], check=True, capture_output=True)
    return json.loads(done.stdout)


def differs(one: Any, other: Any, place: str = "") -> str:
    """Where two plain values differ, or nothing. 1, 1.0 and True are different; the order of keys counts."""
    if type(one) is not type(other):
        return f"{place}: {type(one).__name__} and {type(other).__name__}"
    if isinstance(one, dict):
        if list(one) != list(other):
            return f"{place}: keys {list(one)} and {list(other)}"
        return next(filter(None, (differs(one[key], other[key], f"{place}/{key}") for key in one)), "")
    if isinstance(one, list):
        if len(one) != len(other):
            return f"{place}: {len(one)} and {len(other)} elements"
        return next(filter(None, (differs(*pair, f"{place}/{i}") for i, pair in enumerate(zip(one, other)))), "")
    return "" if one == other or (one != one and other != other) else f"{place}: {one!r} and {other!r}"


def tagged(tag: int, number: int | float) -> bytes:
    return struct.pack("<I" + "iIqQd"[tag - 6], tag, number)


def sized(tag: int, payload: bytes) -> bytes:
    return struct.pack("<IQ", tag, len(payload)) + payload


def encoded(value: Any) -> bytes:
    """The binary form. Integers are written as 64-bit ones."""
    if value is None or isinstance(value, bool):
        return struct.pack("<I", 0 if value is None else 1 + value)
    if isinstance(value, str):
        units = value.encode("utf-16-le", "surrogatepass")
        return struct.pack("<IQ", 5, len(units) // 2) + units
    if isinstance(value, dict):
        return sized(3, b"".join(encoded(key) + encoded(each) for key, each in value.items()))
    if isinstance(value, list):
        return sized(4, b"".join(map(encoded, value)))
    return tagged(10, value) if isinstance(value, float) else tagged(8, value)


def frame(kind: int, payload: bytes, time: int = 0) -> bytes:
    body = struct.pack("<IQQ", kind, time, len(payload)) + payload
    return body + struct.pack("<I", zlib.crc32(body))


def header(major: int = 1, minor: int = 1) -> bytes:
    begin = b"\x89VRX\r\n\x1a\n" + struct.pack("<HH", major, minor)
    return begin + struct.pack("<I", zlib.crc32(begin))


def documented_capture() -> bytes:
    """The bytes of the example in the description of the format."""
    text = (PROJECT / "docs/capture_format.md").read_text(encoding="utf-8")
    rows = text.split("## Example")[1].split("```")[1].strip().splitlines()
    return b"".join(bytes.fromhex("".join(split_hex(row))) for row in rows)


def split_hex(row: str) -> list[str]:
    """The bytes at the begin of a row, up to the words behind them."""
    digits = []
    for word in row.split():
        if len(word) != 2 or not set(word) <= set("0123456789ABCDEF"):
            break
        digits.append(word)
    return digits

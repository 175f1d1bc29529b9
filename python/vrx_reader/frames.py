"""The frames of a capture file, one after the other."""

import struct
import zlib
from collections.abc import Iterator
from dataclasses import dataclass, field
from enum import IntEnum
from typing import Any, BinaryIO

from .errors import DamageError, FormatError, LimitError
from .limits import DEFAULT_LIMITS, Limits
from .text import decode_text, decode_units, parse_json

MAGIC = b"\x89VRX\r\n\x1a\n"
_HEADER = struct.Struct("<8sHHI")
_HEAD = struct.Struct("<IQQ")
_SUM = struct.Struct("<I")
_VERSION = 1
_PIECE = 1 << 20


class FrameKind(IntEnum):
    START = 1
    FROM_HOST = 2
    FROM_TRANSLATOR = 3
    BUFFER = 4
    MISSING_BUFFER = 5
    UNLOADED_BUFFERS = 6
    END = 7
    STRAY_FROM_HOST = 8
    STRAY_FROM_TRANSLATOR = 9


@dataclass
class Frame:
    kind: FrameKind
    time: float
    """Seconds since the start of the recording."""
    offset: int
    """Of the frame's first byte in the file."""
    text: str = ""
    """Of a message."""
    names: list[str] = field(default_factory=list)
    """Of the buffers that the frame is about."""
    content: bytes = b""
    """Of a buffer, or the stray bytes."""
    info: Any = None
    """Of START and END: the JSON value."""


class FrameReader:
    """Iterates over the frames from where the file stands. Kinds of later versions are passed over."""

    def __init__(self, file: BinaryIO, limits: Limits = DEFAULT_LIMITS) -> None:
        self.is_cut = False
        """Whether the file has ended within a frame."""
        self._file = file
        self._limits = limits
        self._offset = _HEADER.size
        _check_header(file.read(_HEADER.size))

    def __iter__(self) -> Iterator[Frame]:
        while (raw := self._next()) is not None:
            kind, time, offset, payload = raw
            if kind in FrameKind.__members__.values():
                yield _decode(Frame(FrameKind(kind), time / 1e6, offset), payload, self._limits)

    def _next(self) -> tuple[int, int, int, bytes] | None:
        offset = self._offset
        head = self._take(_HEAD.size)
        if not head:
            return None
        kind, time, size = _HEAD.unpack(head) if len(head) == _HEAD.size else (0, 0, 0)
        payload = self._take(size)
        checksum = self._take(_SUM.size)
        if len(head) < _HEAD.size or len(payload) < size or len(checksum) < _SUM.size:
            self.is_cut = True
            return None
        if zlib.crc32(payload, zlib.crc32(head)) != _SUM.unpack(checksum)[0]:
            raise DamageError("the capture has a frame with a wrong checksum", offset)
        return kind, time, offset, payload

    def _take(self, size: int) -> bytes:
        """Fewer bytes at the end of the file. The size is no promise: memory is taken for what comes."""
        pieces = []
        left = size
        while left > 0 and (piece := self._file.read(min(left, _PIECE))):
            pieces.append(piece)
            left -= len(piece)
            if size - left > self._limits.content_bytes:
                most = self._limits.content_bytes
                raise LimitError(f"the frame at byte {self._offset - _HEAD.size} is above the limit of {most} bytes")
        self._offset += size - left
        return pieces[0] if len(pieces) == 1 else b"".join(pieces)


def read_frames(file: BinaryIO, limits: Limits = DEFAULT_LIMITS) -> FrameReader:
    """The frames of a capture that is open as a binary file, which may be a pipe."""
    return FrameReader(file, limits)


def _check_header(header: bytes) -> None:
    if len(header) < _HEADER.size or not header.startswith(MAGIC):
        raise FormatError("this is no capture")
    _, major, _, checksum = _HEADER.unpack(header)
    if zlib.crc32(header[: -_SUM.size]) != checksum:
        raise DamageError("the capture has a header with a wrong checksum", 0)
    if major != _VERSION:
        raise FormatError(f"the capture has format version {major}; this package reads {_VERSION}")


def _decode(frame: Frame, payload: bytes, limits: Limits) -> Frame:
    try:
        if frame.kind in (FrameKind.START, FrameKind.END):
            frame.info = parse_json(decode_text(payload, limits), limits)
        elif frame.kind in (FrameKind.FROM_HOST, FrameKind.FROM_TRANSLATOR):
            frame.text = decode_units(payload)
        elif frame.kind == FrameKind.MISSING_BUFFER:
            frame.names = [decode_units(payload)]
        elif frame.kind == FrameKind.BUFFER:
            name, position = _name(payload, 0)
            frame.names = [name]
            frame.content = payload[position:]
        elif frame.kind == FrameKind.UNLOADED_BUFFERS:
            position = 0
            while position < len(payload):
                name, position = _name(payload, position)
                frame.names.append(name)
        else:
            frame.content = payload
    except FormatError:
        raise DamageError(f"the capture has a frame {frame.kind.name} of a wrong form", frame.offset) from None
    return frame


def _name(payload: bytes, position: int) -> tuple[str, int]:
    begin = position + 4
    behind = begin + 2 * int.from_bytes(payload[position:begin], "little")
    if behind > len(payload):
        raise FormatError("a name goes beyond its frame")
    return decode_units(payload[begin:behind]), behind

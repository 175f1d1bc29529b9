"""The content of shared memory."""

import os
import stat
import zlib
from functools import cached_property
from typing import Any

from .binary import decode_binary
from .errors import FormatError, LimitError
from .limits import DEFAULT_LIMITS, Limits
from .schema import Schema

_SHARED_MEMORY = "/dev/shm"
_GZIP_OR_ZLIB = 32 + zlib.MAX_WBITS


class Buffer:
    """What a buffer held: an object in the binary form, or the bodies of a block in the modelling kernel's own bytes;
    both may be compressed. The buffer itself does not tell which, the message that names it does."""

    def __init__(self, content: bytes, name: str = "", limits: Limits = DEFAULT_LIMITS) -> None:
        if len(content) > limits.content_bytes:
            raise LimitError(f"a buffer of {len(content)} bytes is above the limit of {limits.content_bytes}")
        self.content = content
        """The bytes as they lay in shared memory."""
        self.name = name
        self._limits = limits

    @classmethod
    def from_file(cls, path: str | os.PathLike[str], limits: Limits = DEFAULT_LIMITS) -> "Buffer":
        with open(path, "rb") as file:
            return cls(file.read(limits.content_bytes + 1), limits=limits)

    @classmethod
    def from_shared_memory(cls, name: str, limits: Limits = DEFAULT_LIMITS) -> "Buffer":
        """The buffer of this name, which is left there. FileNotFoundError when there is none. For Linux."""
        if name in ("", ".", "..") or "/" in name or "\0" in name:
            raise FormatError(f"{name!r} is no name of a buffer")
        try:
            path = os.path.join(_SHARED_MEMORY, name).encode()
        except UnicodeEncodeError:
            raise FormatError(f"{name!r} is no name of a buffer") from None
        # Neither a link that leads elsewhere nor a pipe that never ends.
        with open(os.open(path, os.O_RDONLY | os.O_NOFOLLOW | os.O_NONBLOCK | os.O_CLOEXEC), "rb") as file:
            if not stat.S_ISREG(os.fstat(file.fileno()).st_mode):
                raise FormatError(f"{name!r} is no buffer")
            return cls(file.read(limits.content_bytes + 1), name, limits)

    @property
    def is_compressed(self) -> bool:
        begin = self.content[:3]
        return len(begin) == 3 and (begin[:2] == b"\x1f\x8b" or (begin[0] == 0x78 and begin[1] in b"\x9c\x01\xda\x5e"))

    @cached_property
    def data(self) -> bytes:
        """The bytes, decompressed if they are compressed."""
        return self._decompressed() if self.is_compressed else self.content

    def plain(self) -> Any:
        """The object as plain values."""
        return decode_binary(self.data, self._limits)

    def read(self, schema: Schema, class_name: str) -> Any:
        """The object of this class, which may be named as on the wire, such as "exc_block_visualization"."""
        return schema.read(decode_binary(self.data, self._limits, bulk=True), class_name)

    def _decompressed(self) -> bytes:
        most = self._limits.content_bytes
        stream = zlib.decompressobj(_GZIP_OR_ZLIB)
        try:
            data = stream.decompress(self.content, most + 1)
        except zlib.error as error:
            raise FormatError(f"damaged compressed data: {error}") from None
        if len(data) > most:
            raise LimitError(f"the compressed data holds more than the limit of {most} bytes")
        if not stream.eof:
            raise FormatError("the compressed data is cut off")
        return data

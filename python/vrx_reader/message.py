"""The messages between a host and a translator."""

import os
from functools import cached_property
from typing import Any

from .buffer import Buffer
from .errors import ReaderError
from .limits import DEFAULT_LIMITS, Limits
from .schema import Schema
from .text import decode_text, parse_json

_NAME, _BINARY, _DATA = "exchange_object_name", "binary", "exchange_object_data"
_BODIES = "shared_acis_buffer_name"


class Message:
    """A command, a result, what a translator tells of itself, or an envelope with an exchange object."""

    def __init__(
        self, text: str, buffer: Buffer | None = None, schema: Schema | None = None, limits: Limits = DEFAULT_LIMITS
    ) -> None:
        self.text = text
        self.buffer = buffer
        """The buffer that the message names; None when it names none, or when that is not there."""
        self.number = 0
        """In a capture, from 1."""
        self.sender = ""
        """In a capture: "host" or "translator"."""
        self.time = 0.0
        """In a capture: seconds since the start of the recording."""
        self.was_unloaded = False
        """In a capture: whether nobody had loaded the buffer by the end of the session."""
        self._schema = schema
        self._limits = limits

    @cached_property
    def json(self) -> Any:
        """The message itself, without its buffer, as plain values."""
        return parse_json(self.text, self._limits)

    @cached_property
    def kind(self) -> str:
        """ "envelope", "command", "result", "info", or "unknown" for all else, such as a text that is no JSON."""
        try:
            message = self.json
        except ReaderError:
            return "unknown"
        if not isinstance(message, dict):
            return "unknown"
        for key, kind in ((_NAME, "envelope"), ("command", "command"), ("code", "result")):
            if key in message:
                return kind
        return "info" if "name" in message and "version" in message else "unknown"

    @property
    def object_name(self) -> str:
        """Of an envelope: the name of the object's class, such as "exc_product_structure"."""
        return self._string(self.json, _NAME) if self.kind == "envelope" else ""

    @property
    def buffer_name(self) -> str:
        """The buffer that the message names, or an empty text."""
        if self.kind != "envelope":
            return ""
        data = self.json.get(_DATA)
        if isinstance(data, dict):
            return self._string(data, _BODIES)
        return self._string(self.json, _DATA) if self.json.get(_BINARY) is True else ""

    @cached_property
    def plain(self) -> Any:
        """The exchange object as plain values, or the message itself when it is no envelope. None when the object is in
        a buffer that is not there."""
        if self.kind != "envelope":
            return self.json
        if self.json.get(_BINARY) is not True:
            return self.json.get(_DATA)
        buffer = self._buffer_of_object
        return None if buffer is None else buffer.plain()

    @cached_property
    def object(self) -> Any:
        """The same by the schema. Without a schema, or when it has no such class, the plain values."""
        if self._schema is None:
            return self.plain
        if self.kind != "envelope":
            return self._schema.read_message(self.json)
        if self._schema.class_named(self.object_name) is None:
            return self.plain
        if self.json.get(_BINARY) is not True:
            return self._schema.read(self.plain, self.object_name)
        buffer = self._buffer_of_object
        return None if buffer is None else buffer.read(self._schema, self.object_name)

    @property
    def bodies(self) -> bytes | None:
        """The bodies of a block in the modelling kernel's own bytes, decompressed, where the message names them."""
        holds_bodies = self.kind == "envelope" and isinstance(self.json.get(_DATA), dict)
        return self.buffer.data if holds_bodies and self.buffer is not None else None

    @property
    def _buffer_of_object(self) -> Buffer | None:
        return self.buffer if isinstance(self.json.get(_DATA), str) else None

    @staticmethod
    def _string(members: dict[str, Any], key: str) -> str:
        value = members.get(key)
        return value if isinstance(value, str) else ""

    def __repr__(self) -> str:
        number = f" #{self.number} from the {self.sender}" if self.number else ""
        return f"<Message{number}: {self.object_name or self.kind}>"


def read_message(
    source: bytes | str | os.PathLike[str],
    buffer: Buffer | None = None,
    schema: Schema | None = None,
    limits: Limits = DEFAULT_LIMITS,
) -> Message:
    """The message of a file, or of bytes that hold its text in UTF-8 or UTF-16."""
    if isinstance(source, bytes):
        data = source
    else:
        with open(source, "rb") as file:
            data = file.read(limits.text_bytes + 1)
    return Message(decode_text(data, limits), buffer, schema, limits)

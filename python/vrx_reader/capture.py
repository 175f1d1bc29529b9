"""A capture: all that crossed between a host and its translator."""

import os
from collections.abc import Iterator
from typing import Any

from .buffer import Buffer
from .errors import DamageError
from .frames import Frame, FrameKind, FrameReader
from .limits import DEFAULT_LIMITS, Limits
from .message import Message
from .schema import Schema

_SENDERS = {FrameKind.FROM_HOST: "host", FrameKind.FROM_TRANSLATOR: "translator"}
_STRAYS = {FrameKind.STRAY_FROM_HOST: "host", FrameKind.STRAY_FROM_TRANSLATOR: "translator"}


class Capture:
    """Iterates over the messages, each with its buffer. The file is read once to look for damage and for what stands at
    its end, and once more at each iteration, frame by frame, so that it may be larger than memory."""

    def __init__(
        self,
        path: str | os.PathLike[str],
        schema: Schema | None = None,
        limits: Limits = DEFAULT_LIMITS,
        *,
        allow_damage: bool = False,
    ) -> None:
        """Raises DamageError for a damaged file, or with `allow_damage` keeps it and gives what stands before."""
        self.path = path
        self.start: Any = None
        """How the recording began: `recorder`, `system`, `started` and `command`, where they are told."""
        self.end: Any = None
        """How the translator ended: `text` and perhaps `exit_code`; None when the recorder did not come to its end."""
        self.is_cut = False
        """Whether the recording was cut off. All frames before are good."""
        self.damage: DamageError | None = None
        self.message_count = 0
        self.unloaded: set[str] = set()
        """The buffers that nobody had loaded by the end of the session."""
        self.missing: set[str] = set()
        """The buffers that were not there when the message that names them crossed."""
        self.strays = {"host": b"", "translator": b""}
        """By sender, the bytes that are no message."""
        self._schema = schema
        self._limits = limits
        for frame in self.frames():
            self._note(frame)
        self.is_cut = self.is_cut or self.end is None
        if self.damage is not None and not allow_damage:
            raise self.damage

    def frames(self) -> Iterator[Frame]:
        """All frames in their order, up to where the file is cut or damaged."""
        with open(self.path, "rb") as file:
            reader = FrameReader(file, self._limits)
            try:
                yield from reader
            except DamageError as damage:
                self.damage = damage
            self.is_cut = self.is_cut or reader.is_cut

    def __iter__(self) -> Iterator[Message]:
        buffers: dict[str, Buffer] = {}
        number = 0
        for frame in self.frames():
            if frame.kind == FrameKind.BUFFER:
                buffers[frame.names[0]] = Buffer(frame.content, frame.names[0], self._limits)
            elif frame.kind in _SENDERS:
                message = Message(frame.text, None, self._schema, self._limits)
                number += 1
                message.number = number
                message.sender = _SENDERS[frame.kind]
                message.time = frame.time
                message.buffer = buffers.pop(message.buffer_name, None)
                message.was_unloaded = message.buffer_name in self.unloaded
                yield message

    def message(self, number: int) -> Message:
        """One message; the first has the number 1."""
        for message in self:
            if message.number == number:
                return message
        raise IndexError(f"the capture has no message {number}")

    def objects(self, name: str) -> Iterator[Any]:
        """The objects of a class, such as "exc_block_mechanical_data", that came through."""
        for message in self:
            if message.object_name == name and message.object is not None:
                yield message.object

    def _note(self, frame: Frame) -> None:
        if frame.kind == FrameKind.START:
            self.start = frame.info
        elif frame.kind == FrameKind.END:
            self.end = frame.info
        elif frame.kind == FrameKind.UNLOADED_BUFFERS:
            self.unloaded.update(frame.names)
        elif frame.kind == FrameKind.MISSING_BUFFER:
            self.missing.update(frame.names)
        elif frame.kind in _STRAYS:
            self.strays[_STRAYS[frame.kind]] += frame.content
        elif frame.kind in _SENDERS:
            self.message_count += 1

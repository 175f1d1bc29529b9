"""Reads what crosses between a host and a translator: captures, messages and buffers."""

from .buffer import Buffer
from .capture import Capture
from .errors import DamageError, FormatError, LimitError, ReaderError, SchemaError
from .frames import Frame, FrameKind, read_frames
from .limits import Limits
from .message import Message, read_message
from .model import Object
from .plain import plain
from .schema import Schema, find_schema

__all__ = [
    "Buffer",
    "Capture",
    "DamageError",
    "FormatError",
    "Frame",
    "FrameKind",
    "LimitError",
    "Limits",
    "Message",
    "Object",
    "ReaderError",
    "Schema",
    "SchemaError",
    "find_schema",
    "plain",
    "read_frames",
    "read_message",
]

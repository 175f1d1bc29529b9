"""How much a reader takes from a file that may mean harm."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Limits:
    """What is above a limit raises LimitError, before memory is spent for it."""

    content_bytes: int = 1 << 30
    """The most bytes of a buffer, before and after it is decompressed, and of a frame of a capture."""

    text_bytes: int = 1 << 27
    """The most bytes of a JSON text."""

    values: int = 20_000_000
    """The most Python objects that are made of a text or a binary form. A bulk array of numbers counts as one."""

    depth: int = 100
    """The most objects and arrays within each other."""


DEFAULT_LIMITS = Limits()

"""The exceptions of this package."""


class ReaderError(ValueError):
    """The base of all exceptions that input can cause."""


class FormatError(ReaderError):
    """The bytes or the text do not have the form that they should have."""


class LimitError(ReaderError):
    """The input is larger or deeper than the limits allow."""


class SchemaError(ReaderError):
    """There is no schema, it cannot be read, or it has no such class."""


class DamageError(FormatError):
    """A capture is damaged. All frames before `offset`, a byte of the file, are good."""

    def __init__(self, what: str, offset: int) -> None:
        super().__init__(f"{what} at byte {offset}")
        self.offset = offset

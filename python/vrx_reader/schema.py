"""The schema of all classes, as `vrx schema` writes it, and the objects that are read by it."""

import json
import os
import shutil
import subprocess
from typing import Any

from .conversions import Conversions
from .errors import SchemaError
from .model import Object

_TIME_LIMIT = 60


class Schema:
    """The classes of the format. Each becomes a Python class, at its first use."""

    def __init__(self, document: Any) -> None:
        """Of a parsed JSON Schema."""
        if not isinstance(document, dict) or not isinstance(document.get("$defs"), dict):
            raise SchemaError('this is no schema of vrx: it has no "$defs"')
        self._document = document
        self._conversions = Conversions(document["$defs"])

    @classmethod
    def from_file(cls, path: str | os.PathLike[str]) -> "Schema":
        """Of a file that `vrx schema` wrote, of all classes or of one."""
        try:
            with open(path, encoding="utf-8") as file:
                return cls(json.load(file))
        except (OSError, ValueError, RecursionError) as error:
            raise SchemaError(f"{os.fspath(path)}: {error}") from None

    @classmethod
    def from_program(cls, program: str | os.PathLike[str]) -> "Schema":
        """Of all classes, as the program `vrx` tells them."""
        try:
            done = subprocess.run(
                [program, "schema"], stdin=subprocess.DEVNULL, capture_output=True, check=True, timeout=_TIME_LIMIT
            )
            return cls(json.loads(done.stdout))
        except (OSError, ValueError, RecursionError, subprocess.SubprocessError) as error:
            raise SchemaError(f"{os.fspath(program)} schema: {error}") from None

    @property
    def class_names(self) -> list[str]:
        return list(self._document["$defs"])

    def class_named(self, name: str) -> str | None:
        """The name in the schema of a class or, by its name on the wire, of an exchange object."""
        return name if name in self._document["$defs"] else self._conversions.class_of_object(name)

    def class_of(self, name: str) -> type[Object]:
        """The Python class, for `isinstance` and `help`."""
        return self._conversions.python_class(self._known(name))

    def read(self, value: Any, class_name: str) -> Any:
        """The object of this class that a plain value stands for."""
        return self._conversions.of_class(self._known(class_name))(value)

    def read_message(self, value: Any) -> Any:
        """The message that a plain value stands for; the value itself when it is none."""
        return self._conversions.of_choice(self._document, value)

    def _known(self, name: str) -> str:
        known = self.class_named(name)
        if known is None:
            raise SchemaError(f"the schema has no class {name!r}")
        return known


def find_schema(program: str | os.PathLike[str] | None = None, file: str | os.PathLike[str] | None = None) -> Schema:
    """The schema of a file or of the program `vrx`. Without arguments, what the environment names counts: VRX_SCHEMA a
    file, or VRX the program; and then a `vrx` on the PATH."""
    if program is None:
        file = file or os.environ.get("VRX_SCHEMA")
    if file:
        return Schema.from_file(file)
    program = program or os.environ.get("VRX") or shutil.which("vrx")
    if not program:
        raise SchemaError("there is no program vrx: name it, or set VRX to it or VRX_SCHEMA to a file of `vrx schema`")
    return Schema.from_program(program)

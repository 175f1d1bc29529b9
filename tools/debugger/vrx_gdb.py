"""GDB shows wide texts, JSON values and the classes of vrx_api as a reader thinks of them.

    (gdb) source vrx_gdb.py

Installed as <the library's real file name>-gdb.py, in GDB's auto-load or beside the library, it is loaded by itself.

It runs nothing in the program: it works on core dumps, too. An object that is damaged or not made yet is shown with
what is wrong with it; `print /r` shows the bare members. GDB knows the members of a class from the debug information of
the library, or of a program that GCC compiled with -femit-class-debug-always, or Clang with -fstandalone-debug.
"""

from __future__ import annotations

import re
import sys
import types
from typing import Iterator, Optional, Union

import gdb
import gdb.printing

Text = Union[str, object]  # a str, or GDB's lazy string, the type of which has no name
Child = tuple[str, Union[gdb.Value, str]]

NAME = "vrx_api"
MOST_UNITS = 200  # of a text within another text
MOST_ROOM = 1 << 46  # units that a process can address
POINTER_BITS = (1 << 48) - 1
BASES = ("vrx::IJsonObject", "mp::ISerializable")
TITLES = ("m_name", "m_productName", "m_displayName", "m_message", "m_stage", "m_id")


class Damaged(Exception):
    """What is wrong with an object, in words."""

    def __str__(self) -> str:
        return f"damaged: {self.args[0]}"


WRONG = (Damaged, gdb.error)  # the second: memory that is not there, or a value that the compiler has left out


def words(error: Exception) -> str:
    return f"<{error}>"


def require_readable(address: int, size: int, what: str) -> None:
    """The first and the last byte must be there."""
    try:
        for place in (address, address + size - 1):
            gdb.selected_inferior().read_memory(place, 1)
    except (gdb.error, OverflowError) as error:
        raise Damaged(f"{what} at {address:#x} can't be read") from error


def text_at(pointer: gdb.Value, length: int) -> str:
    """The first units of a text, to stand within another text."""
    units = min(length, MOST_UNITS)
    if units == 0:
        return ""
    memory = gdb.selected_inferior().read_memory(int(pointer), 2 * units)
    text = memory.tobytes().decode("utf-16-le", "backslashreplace")
    text = "".join(f"\\{c}" if c == '"' else c if c.isprintable() else f"\\x{ord(c):02x}" for c in text)
    return text + ("..." if length > units else "")


def shown(pointer: gdb.Value, length: int) -> Text:
    """A text as GDB shows texts: cut where the user wants it, with escapes. GDB 13 dies of units whose type is an alias
    that it has not looked through."""
    unit = pointer.type.strip_typedefs().target().strip_typedefs()
    return pointer.cast(unit.pointer()).lazy_string(length=length)


def flag(value: gdb.Value) -> bool:
    number = int(value.cast(gdb.lookup_type("unsigned char")))
    if number > 1:
        raise Damaged(f"a bool is {number}")
    return number == 1


class Shown:
    """What GDB asks: `to_string`, and `children` of what has any."""

    def __init__(self, value: gdb.Value) -> None:
        self.value = value


class WideText(Shown):
    """mp::wstring and mp::wstring_view."""

    def parts(self) -> tuple[gdb.Value, int]:
        if self.value.type.has_key("_M_len"):
            pointer, length = self.value["_M_str"], int(self.value["_M_len"])
            room = length
        else:
            pointer, length = self.value["_M_dataplus"]["_M_p"], int(self.value["_M_string_length"])
            inside = self.value["_M_local_buf"]
            if inside.address is not None and int(pointer) == int(inside.address):
                room = inside.type.strip_typedefs().range()[1]
            else:
                room = int(self.value["_M_allocated_capacity"])
        if length > room or room > MOST_ROOM:
            raise Damaged(f"a text of {length} units where {room} have room")
        return pointer, length

    def to_string(self) -> Text:
        try:
            pointer, length = self.parts()
            return shown(pointer, length)
        except WRONG as error:
            return words(error)

    def plain(self) -> str:
        return text_at(*self.parts())


class Json:
    """JsonValue and JsonDocument. The debug information tells where things lie, RapidJSON 1.1 what the flags mean."""

    NULL, FALSE, TRUE, OBJECT, ARRAY, STRING, NUMBER = range(7)
    KIND_BITS, BOOL, NUMERIC, INLINE = 0x7, 0x8, 0x10, 0x1000
    INT, UINT, INT64, UINT64, DOUBLE = 0x20, 0x40, 0x80, 0x100, 0x200

    def __init__(self, value: gdb.Value) -> None:
        self.data = value["data_"]
        self.flags = int(self.data["f"]["flags"])
        self.kind = self.flags & self.KIND_BITS

    def check_flags(self) -> None:
        rest = self.flags & ~self.KIND_BITS
        numbers = self.INT | self.UINT | self.INT64 | self.UINT64
        if self.kind == self.STRING:
            is_known = rest in (0x400, 0xC00, 0x1C00)
        elif self.kind == self.NUMBER:
            is_known = rest == self.NUMERIC | self.DOUBLE or (rest & ~numbers == self.NUMERIC and rest != self.NUMERIC)
        else:
            is_known = self.kind < self.STRING and rest == (self.BOOL if self.kind in (self.FALSE, self.TRUE) else 0)
        if not is_known:
            raise Damaged(f"the kind of a JSON value is {self.flags:#x}")

    def pointer(self, part: str, member: str) -> gdb.Value:
        """Where RapidJSON packs pointers into 48 bits, the flags lie in the upper bytes of the pointer."""
        pointer = self.data[part][member]
        place = {field.name: field.bitpos for field in self.data[part].type.fields()}[member]
        flags = {field.name: field.bitpos for field in self.data["f"].type.fields()}["flags"]
        if place <= flags < place + 8 * pointer.type.sizeof:
            pointer = gdb.Value(int(pointer) & POINTER_BITS).cast(pointer.type)
        return pointer

    def text(self) -> tuple[gdb.Value, int]:
        if self.flags & self.INLINE:
            units = self.data["ss"]["str"]
            most = units.type.strip_typedefs().range()[1]
            free = int(units[most])
            if free > most:
                raise Damaged(f"a short text with {free} units free")
            first = units[0].address
            if first is None:
                raise Damaged("a short text without an address")
            return first, most - free
        pointer, length = self.pointer("s", "str"), int(self.data["s"]["length"])
        if length != 0:
            require_readable(int(pointer), 2 * length, f"a text of {length} units")
        return pointer, length

    def entries(self) -> tuple[gdb.Value, int]:
        """The first member or element, and how many there are."""
        part, member = ("o", "members") if self.kind == self.OBJECT else ("a", "elements")
        pointer, size = self.pointer(part, member), int(self.data[part]["size"])
        what = "members" if self.kind == self.OBJECT else "elements"
        capacity = int(self.data[part]["capacity"])
        if size > capacity:
            raise Damaged(f"{size} {what} where {capacity} have room")
        if size != 0:
            require_readable(int(pointer), size * pointer.type.target().sizeof, f"{size} {what}")
        return pointer, size

    def number(self) -> str:
        number = self.data["n"]
        if self.flags & self.DOUBLE:
            return repr(float(number["d"]))
        return str(int(number["i64" if self.flags & (self.INT | self.INT64) else "u64"]))

    def to_string(self) -> Text:
        try:
            self.check_flags()
            if self.kind == self.STRING:
                pointer, length = self.text()
                return shown(pointer, length)
            if self.kind in (self.OBJECT, self.ARRAY):
                return f"JSON {'object' if self.kind == self.OBJECT else 'array'} of {self.entries()[1]}"
            return self.number() if self.kind == self.NUMBER else ("null", "false", "true")[self.kind]
        except WRONG as error:
            return words(error)

    def children(self) -> Iterator[Child]:
        try:
            self.check_flags()
            if self.kind not in (self.OBJECT, self.ARRAY):
                return
            first, count = self.entries()
        except WRONG:
            return  # to_string has told
        for i in range(count):
            entry = (first + i).dereference()
            if self.kind == self.ARRAY:
                yield f"[{i}]", entry
            else:
                yield f"[{self.name_of(entry['name'])}]", entry["value"]

    @staticmethod
    def name_of(value: gdb.Value) -> str:
        """In the binary form a name may be any value."""
        try:
            name = Json(value)
            name.check_flags()
            return f'"{text_at(*name.text())}"' if name.kind == Json.STRING else str(name.to_string())
        except WRONG as error:
            return words(error)


def elements_of(array: gdb.Value) -> list[gdb.Value]:
    """Of a std::array, whose only member each standard library names in its own way."""
    kind = array.type.strip_typedefs()
    elements = array[kind.fields()[0]]
    return [elements[i] for i in range(elements.type.strip_typedefs().range()[1] + 1)]


class Vector(Shown):
    def to_string(self) -> str:
        try:
            return "(" + ", ".join(f"{float(number):.10g}" for number in elements_of(self.value["m_components"])) + ")"
        except WRONG as error:
            return words(error)


class Transformation(Shown):
    """ExcTransformation and ExcMatrix3d: a line for each row."""

    def to_string(self) -> str:
        return str(self.value.type.unqualified().strip_typedefs())

    def children(self) -> Iterator[Child]:
        is_whole = self.value.type.has_key("m_affine")
        matrix = self.value["m_affine"] if is_whole else self.value
        for i, row in enumerate(elements_of(matrix["m_rows"])):
            yield f"row {i}", Vector(row).to_string()
        if is_whole:
            yield "translation", Vector(self.value["m_translation"]).to_string()


class Color(Shown):
    def to_string(self) -> str:
        try:
            has_rgb, has_alpha = flag(self.value["m_hasRGB"]), flag(self.value["m_hasAlpha"])
            *rgb, alpha = (str(int(channel)) for channel in elements_of(self.value["m_channels"]))
        except WRONG as error:
            return words(error)
        if has_rgb:
            return f"RGBA({', '.join(rgb)}, {alpha})" if has_alpha else f"RGB({', '.join(rgb)})"
        return f"alpha {alpha}" if has_alpha else "no colour"


class Untold(Shown):
    """A class of which the debug information gives the name alone."""

    def to_string(self) -> str:
        return f"{self.value.type.strip_typedefs().unqualified()} <no debug information of this class>"


def bases_of(kind: gdb.Type) -> Iterator[gdb.Type]:
    for field in kind.fields():
        if field.is_base_class:
            yield field.type.strip_typedefs()
            yield from bases_of(field.type.strip_typedefs())


def is_model(kind: gdb.Type) -> bool:
    return kind.code == gdb.TYPE_CODE_STRUCT and (
        kind.name in BASES or any(base.name in BASES for base in bases_of(kind))
    )


def members_of(value: gdb.Value) -> Iterator[tuple[str, gdb.Value]]:
    """The members of the bases, then those of the class."""
    for field in value.type.fields():
        if field.is_base_class:
            yield from members_of(value[field])
        elif hasattr(field, "bitpos") and field.name is not None and not field.name.startswith("_vptr"):
            yield field.name, value[field]


def table_of(value: gdb.Value) -> int:
    """The address of the table of virtual functions."""
    for field in value.type.fields():
        if field.name is not None and field.name.startswith("_vptr"):
            return int(value[field])
        if field.is_base_class:
            return table_of(value[field])
    return 0


def check_table(value: gdb.Value) -> None:
    table = table_of(value)
    if table == 0:
        raise Damaged("not made yet, or gone")
    require_readable(table, 8, "its virtual functions")
    symbol = gdb.execute(f"info symbol {table:#x}", to_string=True)
    if not symbol.startswith("No symbol") and "vtable for" not in symbol:
        raise Damaged(f"{table:#x} is no table of virtual functions")


def most_derived(value: gdb.Value) -> gdb.Value:
    """The object as what it was made, if that can be told."""
    if value.address is None:
        return value
    kind = value.type.strip_typedefs().unqualified()
    pointer = value.address.cast(kind.pointer())  # GDB does not look behind a pointer to an alias
    try:
        check_table(value)
        made = pointer.dynamic_type.target().strip_typedefs().unqualified()
        if any(base.name == kind.name for base in bases_of(made)):
            return pointer.cast(made.pointer()).dereference()
    except WRONG:
        pass
    return value


def check_container(value: gdb.Value) -> None:
    """Vectors, maps and shared pointers of the standard library, which its own printers take as they come."""
    kind = value.type.strip_typedefs()
    name = kind.name or ""
    if name.startswith("std::vector<") and not name.startswith("std::vector<bool"):
        first, last, end = (int(value["_M_impl"][part]) for part in ("_M_start", "_M_finish", "_M_end_of_storage"))
        size = kind.template_argument(0).sizeof
        if not first <= last <= end or (last - first) % size != 0:
            raise Damaged(f"a vector from {first:#x} to {last:#x}, with room to {end:#x}")
        if first != last:
            require_readable(first, last - first, f"a vector of {(last - first) // size}")
    elif name.startswith(("std::map<", "std::set<")):
        tree = value["_M_t"]["_M_impl"]
        count, root = int(tree["_M_node_count"]), int(tree["_M_header"]["_M_parent"])
        if count != 0 or root != 0:
            require_readable(root, 8, f"a map of {count}")
        if count > MOST_ROOM:
            raise Damaged(f"a map of {count}")
    elif name.startswith("std::shared_ptr<"):
        for pointer in (value["_M_ptr"], value["_M_refcount"]["_M_pi"]):
            if int(pointer) != 0:
                require_readable(int(pointer), 8, "what is shared")


def checked(value: gdb.Value) -> Union[gdb.Value, str]:
    try:
        check_container(value)
        return value
    except (Damaged, gdb.MemoryError) as error:
        return words(error)
    except (gdb.error, RuntimeError):
        return value  # another standard library


def object_name(kind: gdb.Type, text: gdb.Type) -> Optional[gdb.Value]:
    """The name of an exchange class: a constant of the class, or of its nearest base that has one."""
    for owner in (kind, *bases_of(kind)):
        try:
            return gdb.parse_and_eval(f"&'{owner.name}::s_objectName'").cast(text.pointer()).dereference()
        except gdb.error:
            continue
    return None


class Model:
    """A class that crosses: its members with those of its bases. An exchange object begins with how it travels."""

    def __init__(self, value: gdb.Value) -> None:
        self.value = most_derived(value)
        self.kind = self.value.type.strip_typedefs().unqualified()

    def to_string(self) -> str:
        name = str(self.kind)
        try:
            check_table(self.value)
        except WRONG as error:
            return f"{name} {words(error)}"
        return name

    def children(self) -> Iterator[Child]:
        members = dict(members_of(self.value))
        if "m_loaded" in members:
            name = object_name(self.kind, members["m_source"].type)
            if name is not None:
                yield "objectName", name
            members.pop("m_readRules", None)  # what was asked of a content that has been read
        for key, member in members.items():
            yield key[2:] if key.startswith("m_") else key, checked(member)

    def title(self) -> str:
        """The class, and the id and the name if it has them."""
        try:
            check_table(self.value)
            members = dict(members_of(self.value))
            parts = [str(self.kind)]
            if "m_id" in members and members["m_id"].type.strip_typedefs().code == gdb.TYPE_CODE_INT:
                parts.append(str(int(members["m_id"])))
            texts = (WideText(members[key]).plain() for key in TITLES if key in members and is_wide(members[key].type))
            parts += [f'"{text}"' for text in texts if text][:1]
            if "m_loaded" in members and not flag(members["m_loaded"]):
                source = WideText(members["m_source"]).plain()
                parts += [f"that waits in {source}"] if source else []
            return " ".join(parts)
        except WRONG as error:
            return f"{self.kind} {words(error)}"


class SharedModel(Shown):
    """std::shared_ptr to a class that crosses: what it is, and where. What it holds is shown by `print *pointer`."""

    def to_string(self) -> str:
        try:
            check_container(self.value)
            pointer = self.value["_M_ptr"]
            if int(pointer) == 0:
                return "null"
            counts = self.value["_M_refcount"]["_M_pi"]
            users = int(counts["_M_use_count"]) if int(counts) != 0 else 0
            shared = f", shared by {users}" if users != 1 else ""
            return f"{Model(pointer.dereference()).title()}{shared}"
        except WRONG as error:
            return words(error)

    def children(self) -> Iterator[Child]:
        try:
            check_container(self.value)
            pointer = self.value["_M_ptr"]
            if int(pointer) != 0:
                yield "get()", Model(pointer.dereference()).value.address
        except WRONG:
            return  # to_string has told


WIDE = re.compile(r"^std::(__cxx11::basic_string|basic_string_view)<(char16_t|wchar_t), ")
JSON = re.compile(r"^rapidjson::Generic(Value|Document)<rapidjson::UTF16<(char16_t|wchar_t)>")
VECTOR = re.compile(r"^vrx::ExcVector(Base<\d+\w*>|2d|3d)$")
OURS = re.compile(r"^(vrx|mp)::[\w:]+$")
BY_NAME = {"vrx::ExcColor": Color, "vrx::ExcMatrix3d": Transformation, "vrx::ExcTransformation": Transformation}


def is_wide(kind: gdb.Type) -> bool:
    kind = kind.strip_typedefs()
    return WIDE.match(kind.name or "") is not None and kind.template_argument(0).sizeof == 2


class Printers(gdb.printing.PrettyPrinter):
    @staticmethod
    def printer_of(value: gdb.Value) -> Optional[object]:
        kind = value.type.strip_typedefs().unqualified()
        if kind.code not in (gdb.TYPE_CODE_STRUCT, gdb.TYPE_CODE_UNION) or kind.name is None:
            return None
        name = kind.name
        if not kind.fields() and OURS.match(name) and kind.sizeof == 0:
            return Untold(value)
        if name in BY_NAME:
            return BY_NAME[name](value)
        if VECTOR.match(name):
            return Vector(value)
        if is_wide(kind):
            return WideText(value)
        if JSON.match(name):
            return Json(value)
        if name.startswith("std::shared_ptr<"):
            return SharedModel(value) if is_model(kind.template_argument(0).strip_typedefs()) else None
        return Model(value) if is_model(kind) else None

    def __call__(self, value: gdb.Value) -> Optional[object]:
        try:
            if value.type.strip_typedefs().code in (gdb.TYPE_CODE_REF, gdb.TYPE_CODE_RVALUE_REF):
                value = value.referenced_value()
            return None if value.is_optimized_out else self.printer_of(value)
        except (gdb.error, RuntimeError, KeyError):
            return None  # the type is not told in full, or is another's of that name


def register(_event: object = None) -> None:
    """With the program's own file, since the printers of a file go before those of the files behind it: otherwise the
    standard library's printers would take its strings and pointers."""
    for file in gdb.objfiles()[:1]:
        others = [known for known in file.pretty_printers if getattr(known, "name", None) != NAME]
        file.pretty_printers = [PRINTERS, *others]


PRINTERS = Printers(NAME)
if __name__ == "__main__":
    # GDB runs all scripts in one name space, where the names of another one could replace these.
    path = sys._getframe().f_code.co_filename
    with open(path, encoding="utf-8") as source:
        exec(compile(source.read(), path, "exec"), types.ModuleType("vrx_gdb").__dict__)
else:
    register()
    gdb.events.new_objfile.connect(register)

#!/usr/bin/python3
"""Plants faults in a copy of the sources.

usage: plant.py COMPILE_COMMANDS TREE FAULTS FOLDER...

Parses the sources of the folders as the compiler does, and writes them into TREE so that each fault is a choice at run
time (planted.h). All other files are copied as they are. FAULTS gets the list. Each file has numbers of its own, so
that a change to one leaves the others as they were built.
"""

import json
import pathlib
import shlex
import subprocess
import sys

from clang.cindex import Config, CursorKind as Kind, Index, TranslationUnit, TypeKind

Config.set_library_file("libclang-14.so.1")

ROOT = pathlib.Path(__file__).resolve().parents[2]

MOST_FAULTS = 1000  # of one file

TURNED = {"<": "less", "<=": "lessEqual", ">": "greater", ">=": "greaterEqual"}
EQUALITY = {"==", "!="}
ARITHMETIC = {"+": "plus", "-": "minus", "*": "times", "/": "over", "&": "both", "|": "either", "<<": "left",
              ">>": "right"}
LOGICAL = {"&&": ("((", ") || {on})"), "||": ("((", ") && !{on})")}

LITERALS = {Kind.INTEGER_LITERAL, Kind.CHARACTER_LITERAL, Kind.CXX_BOOL_LITERAL_EXPR}
NUMBERS = {TypeKind.BOOL, TypeKind.CHAR_U, TypeKind.UCHAR, TypeKind.CHAR16, TypeKind.CHAR32, TypeKind.USHORT,
           TypeKind.UINT, TypeKind.ULONG, TypeKind.ULONGLONG, TypeKind.CHAR_S, TypeKind.SCHAR, TypeKind.WCHAR,
           TypeKind.SHORT, TypeKind.INT, TypeKind.LONG, TypeKind.LONGLONG, TypeKind.FLOAT, TypeKind.DOUBLE}
# What the compiler evaluates, or what only names something.
CONSTANT = {Kind.STATIC_ASSERT, Kind.ENUM_DECL, Kind.TEMPLATE_NON_TYPE_PARAMETER, Kind.TEMPLATE_TYPE_PARAMETER,
            Kind.TEMPLATE_TEMPLATE_PARAMETER, Kind.TYPE_REF, Kind.TEMPLATE_REF, Kind.TYPE_ALIAS_DECL,
            Kind.TYPEDEF_DECL, Kind.USING_DECLARATION, Kind.CXX_UNARY_EXPR}
NAMES = {Kind.DECL_REF_EXPR, Kind.MEMBER_REF_EXPR}
STATEMENTS = {Kind.CALL_EXPR, Kind.CXX_THROW_EXPR, Kind.BREAK_STMT, Kind.CONTINUE_STMT,
              Kind.COMPOUND_ASSIGNMENT_OPERATOR, Kind.CXX_DELETE_EXPR}
STEPS = ("++", "--")


def unwrapped(node):
    """The expression within what the compiler adds around it, and within parentheses."""
    while node.kind in (Kind.UNEXPOSED_EXPR, Kind.PAREN_EXPR):
        children = list(node.get_children())
        if len(children) != 1:
            break
        node = children[0]
    return node


def begin(node):
    return node.extent.start.offset


def end(node):
    return node.extent.end.offset


class Source:
    """One file: its text, and what is put into it."""

    def __init__(self, path, first_number):
        self.name = str(path.relative_to(ROOT))
        self.bytes = path.read_bytes()
        self.first_number = first_number
        self.faults = []
        self.pieces = []
        self.replaced = {}
        self.planted = set()
        self.alike = {}
        self.macros = []
        self.constants = 0

    def text(self, start, stop):
        return self.bytes[start:stop].decode()

    def before(self, offset):
        return self.text(max(offset - 200, 0), offset).rstrip()[-1:]

    def behind(self, offset):
        return self.text(offset, offset + 200).lstrip()[:1]

    def holds(self, node):
        return node.extent.start.file is not None and node.extent.start.file.name == str(ROOT / self.name)

    def is_plain(self, node):
        """Whether a node begins and ends outside of macros."""
        start, stop = begin(node), end(node)
        return start < stop and not any(first < start < last or first < stop < last for first, last in self.macros)

    def is_macro(self, node):
        return any(first <= begin(node) and end(node) <= last for first, last in self.macros)

    def plant(self, kind, node, opening, closing="", operator=None):
        """Puts a choice around a node, and a comma in place of its operator."""
        key = (kind, begin(node), end(node))
        if key in self.planted or not self.is_plain(node):
            return
        self.planted.add(key)
        number = self.first_number + len(self.faults)
        code = " ".join(self.text(begin(node), end(node)).split())
        self.alike[kind, code] = nth = self.alike.get((kind, code), 0) + 1
        line = self.bytes.count(b"\n", 0, begin(node)) + 1
        text = self.bytes.splitlines()[line - 1].decode().strip()
        self.faults.append({"number": number, "file": self.name, "line": line, "kind": kind, "code": code, "nth": nth,
                            "text": text})
        on = f"vrx_planted::on({number})"
        # What closes stands before what opens; of what opens, the wider stands first, and of what closes, last.
        order, width = len(self.pieces), end(node) - begin(node)
        self.pieces.append((begin(node), 1, -width, order, opening.format(on=on, number=number)))
        self.pieces.append((end(node), 0, width, -order, closing.format(on=on, number=number)))
        if operator is not None:
            self.replaced[operator[0]] = (operator[1], ",")

    def planted_text(self):
        pieces = [(at, self.text(at, stop), new) for at, (stop, new) in self.replaced.items()]
        pieces = [(at, 2, 0, 0, new, len(old.encode())) for at, old, new in pieces]
        pieces += [piece + (0,) for piece in self.pieces]
        out, done = [], 0
        for at, _, _, _, new, skipped in sorted(pieces):
            out += [self.bytes[done:at], new.encode()]
            done = at + skipped
        return b"".join(out + [self.bytes[done:]])


class Planter:
    """Walks over the functions of one source."""

    def __init__(self, source):
        self.source = source

    def walk(self, node):
        kind = node.kind
        if not self.source.holds(node):
            return
        if kind in CONSTANT or self.is_constant(node):
            self.pass_over(node)
            return
        self.plant_at(node)
        children = list(node.get_children())
        name_end = node.location.offset + len(node.spelling)
        for place, child in enumerate(children):
            if kind == Kind.CASE_STMT and place == 0:
                self.pass_over(child)
            elif kind in NAMES and unwrapped(child).kind in LITERALS | {Kind.DECL_REF_EXPR}:
                self.pass_over(child)  # template arguments
            elif kind in (Kind.VAR_DECL, Kind.FIELD_DECL) and (
                    begin(child) < name_end and child.kind not in (Kind.CALL_EXPR,)
                    or self.source.before(begin(child)) in "[:"):
                self.pass_over(child)  # types, sizes of arrays, bit-fields
            elif place == 0 and self.is_constant_if(node):
                self.pass_over(child)
            else:
                self.walk(child)

    def pass_over(self, node):
        self.source.constants += sum(child.kind in LITERALS for child in node.walk_preorder())

    def is_constant(self, node):
        is_constexpr = "constexpr" in self.source.text(begin(node), node.location.offset).split()
        if node.kind == Kind.UNEXPOSED_DECL:
            return is_constexpr  # a template of a variable
        return node.kind == Kind.VAR_DECL and (
            is_constexpr or node.semantic_parent.kind in (Kind.NAMESPACE, Kind.TRANSLATION_UNIT))

    def is_constant_if(self, node):
        condition = next(node.get_children(), None)
        return node.kind == Kind.IF_STMT and "constexpr" in self.source.text(begin(node), begin(condition))

    def plant_at(self, node):
        kind = node.kind
        if kind in LITERALS:
            if not self.source.is_macro(node):
                self.constant(node)
        elif kind == Kind.DECL_REF_EXPR:
            self.named_constant(node)
        elif kind == Kind.BINARY_OPERATOR or (kind == Kind.CALL_EXPR and node.spelling.startswith("operator")):
            self.operator(node)
        elif kind == Kind.COMPOUND_STMT:
            for child in node.get_children():
                self.statement(child)
        elif kind in (Kind.CASE_STMT, Kind.DEFAULT_STMT):
            self.statement(list(node.get_children())[-1])
        elif kind in (Kind.IF_STMT, Kind.WHILE_STMT, Kind.FOR_STMT, Kind.DO_STMT, Kind.CONDITIONAL_OPERATOR):
            self.condition(node)
        elif kind == Kind.RETURN_STMT:
            self.result(node)

    def constant(self, node):
        self.source.plant("constant off by one", node, "vrx_planted::offByOne({number}, ", ")")

    def named_constant(self, node):
        target = node.referenced
        if target is None or target.kind != Kind.VAR_DECL or self.source.is_macro(node):
            return
        if target.type.is_const_qualified() and target.type.get_canonical().kind in NUMBERS and \
                target.spelling.startswith("k"):
            self.constant(node)

    def operator(self, node):
        children = list(node.get_children())
        if len(children) < 2:
            return
        left, right = children[0], children[-1]
        between = self.source.text(end(left), begin(right))
        sign = between.strip()
        start = end(left) + len(between) - len(between.lstrip())
        place = (start, start + len(sign))
        if begin(left) != begin(node) or end(right) != end(node):
            return
        if sign in TURNED:
            self.source.plant("comparison turned", node, f"vrx_planted::{TURNED[sign]}({{number}}, ", ")", place)
        elif sign in EQUALITY:
            self.source.plant("comparison turned", node, "((", ") != {on})")
        elif sign in LOGICAL:
            for operand in (left, right):
                self.source.plant("condition left out", operand, *LOGICAL[sign])
        elif sign in ARITHMETIC and all(side.type.get_canonical().kind in NUMBERS for side in (left, right)):
            self.source.plant("operator turned", node, f"vrx_planted::{ARITHMETIC[sign]}({{number}}, ", ")", place)

    def statement(self, node):
        inner = unwrapped(node)
        text = self.source.text(begin(node), end(node))
        is_assignment = inner.kind == Kind.BINARY_OPERATOR
        is_step = inner.kind == Kind.UNARY_OPERATOR and (text.startswith(STEPS) or text.endswith(STEPS))
        is_return = inner.kind == Kind.RETURN_STMT and text == "return"
        if inner.kind in STATEMENTS or is_assignment or is_step or is_return:
            self.source.plant("statement left out", node, "if (!{on}) ")

    def condition(self, node):
        if self.is_constant_if(node):
            return
        if node.kind == Kind.CONDITIONAL_OPERATOR:
            self.negate(next(node.get_children()))
            return
        for child in node.get_children():
            if child.kind == Kind.COMPOUND_STMT:
                continue
            first, last = self.source.before(begin(child)), self.source.behind(end(child))
            if child.kind in (Kind.VAR_DECL, Kind.DECL_STMT):
                if node.kind == Kind.IF_STMT and last == ")":
                    variable = child if child.kind == Kind.VAR_DECL else next(child.get_children())
                    self.source.plant("condition negated", child, "",
                                      "; static_cast<bool>(" + variable.spelling + ") != {on}")
            elif child.kind.is_expression() and (last == ")" if node.kind != Kind.FOR_STMT else first == last == ";"):
                self.negate(child)

    def negate(self, node):
        inner = unwrapped(node)
        if inner.kind not in LITERALS and not self.is_equality(inner):
            self.source.plant("condition negated", node, "(static_cast<bool>(", ") != {on})")

    def is_equality(self, node):
        """Turning such a comparison negates it already."""
        children = list(node.get_children())
        return len(children) > 1 and self.source.text(end(children[0]), begin(children[-1])).strip() in EQUALITY

    def result(self, node):
        for value in node.get_children():
            inner = unwrapped(value)
            is_converted = inner.kind == Kind.CALL_EXPR and inner.spelling.startswith("operator ")
            if inner.kind not in LITERALS and not is_converted and not self.is_equality(inner) and \
                    value.type.get_canonical().kind in NUMBERS:
                self.source.plant("result changed", value, "vrx_planted::offByOne({number}, ", ")")


def arguments_of(entry):
    words = shlex.split(entry["command"])
    words = words[next(i for i, word in enumerate(words) if word.endswith("++")) + 1:]
    return [word for word in words if word.startswith(("-I", "-D", "-std", "-isystem", "/"))
            and word != entry["file"]] + ["-w"]


def is_ours(path, folders):
    return any(path.is_relative_to(ROOT / folder) for folder in folders)


def our_files():
    names = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=ROOT,
                           check=True, capture_output=True, text=True).stdout.split("\0")
    return sorted(path for path in map(ROOT.joinpath, filter(None, names)) if path.is_file())


def write_changed(path, content):
    """What is as before keeps its time, so that nothing is built anew."""
    if not path.is_file() or path.read_bytes() != content:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)


def main():
    commands, tree, list_path, *folders = sys.argv[1:]
    files = our_files()
    numbered = [path for path in files if is_ours(path, folders)]
    sources = {}
    index = Index.create()
    for entry in json.loads(pathlib.Path(commands).read_text()):
        if not is_ours(pathlib.Path(entry["file"]), folders):
            continue
        unit = index.parse(entry["file"], arguments_of(entry),
                           options=TranslationUnit.PARSE_DETAILED_PROCESSING_RECORD)
        errors = [str(problem) for problem in unit.diagnostics if problem.severity >= 3]
        if errors:
            sys.exit("\n".join(errors))
        mine = {}
        for node in unit.cursor.get_children():
            path = pathlib.Path(node.location.file.name if node.location.file else "")
            if is_ours(path, folders):
                mine.setdefault(path, []).append(node)
        for path, nodes in mine.items():
            if path not in sources:
                sources[path] = Source(path, MOST_FAULTS * numbered.index(path))
                sources[path].macros = [(begin(node), end(node)) for node in nodes
                                        if node.kind == Kind.MACRO_INSTANTIATION]
                for node in nodes:
                    if not node.kind.is_preprocessing():
                        Planter(sources[path]).walk(node)
    for path in files:
        write_changed(pathlib.Path(tree) / path.relative_to(ROOT),
                      sources[path].planted_text() if path in sources else path.read_bytes())
    faults = [fault for source in sources.values() for fault in source.faults]
    pathlib.Path(list_path).write_text(json.dumps(faults, indent=1))
    constants = sum(source.constants for source in sources.values())
    print(f"{len(faults)} faults planted in {len(sources)} files; {constants} constants that the compiler evaluates "
          "have none")


main()

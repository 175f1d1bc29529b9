"""Small helpers to look into C++ sources that clang-format has laid out."""

import re

OPENING = "([{"
CLOSING = ")]}"


def closing(text: str, begin: int) -> int:
    """The place of the bracket that closes the one at `begin`."""
    depth = 0
    in_string = False
    place = begin
    while place < len(text):
        character = text[place]
        if in_string:
            if character == "\\":
                place += 1
            elif character == '"':
                in_string = False
        elif character == '"':
            in_string = True
        elif character in OPENING:
            depth += 1
        elif character in CLOSING:
            depth -= 1
            if depth == 0:
                return place
        place += 1
    raise ValueError(f"no closing bracket: {text[begin:begin + 60]!r}")


def arguments(text: str, begin: int) -> list[str]:
    """The arguments of the call whose bracket opens at `begin`."""
    end = closing(text, begin)
    found = [""]
    place = begin + 1
    while place < end:
        if text[place] in OPENING:
            inner = closing(text, place)
            found[-1] += text[place : inner + 1]
            place = inner
        elif text[place] == ",":
            found.append("")
        else:
            found[-1] += text[place]
        place += 1
    return [" ".join(argument.split()) for argument in found]


def body_behind(text: str, begin: int) -> str:
    """The next body in curly brackets."""
    brace = text.index("{", begin)
    return text[brace : closing(text, brace) + 1]


def without_comments(text: str) -> str:
    """The text with blanks in place of comments and of characters in quotes."""
    parts = r'"(?:\\.|[^"\\])*"|//[^\n]*|(?<!\w)\'(?:\\.|[^\'])\''
    return re.sub(parts, lambda part: part.group(0) if part.group(0)[0] == '"' else " " * len(part.group(0)), text)

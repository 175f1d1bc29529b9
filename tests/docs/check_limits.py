#!/usr/bin/python3
"""usage: check_limits.py

Looks that each test and file that docs/limits.md names is in the sources, that each promise there names one or says
that it is only a promise, and that its links lead to headings that are there.
"""

from __future__ import annotations

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
PAGE = "docs/limits.md"


def tests_of_the_sources() -> dict[str, str]:
    """By their names, Suite.Test; the values are the sources that hold them, without comments."""
    found = {}
    for path in (ROOT / "tests").rglob("*.cpp"):
        text = re.sub(r"^\s*//.*$", "", path.read_text(encoding="utf-8"), flags=re.MULTILINE)
        for suite, test in re.findall(r"^TEST(?:_F|_P)?\((\w+),\s*(\w+)\)", text, flags=re.MULTILINE):
            found[f"{suite}.{test}"] = text
    return found


def problem_of_name(name: str, tests: dict[str, str]) -> str:
    """A test, a test with the name of its row behind a slash, or a file. Empty for one that is there."""
    test, _, row = name.partition("/")
    if re.fullmatch(r"[A-Z]\w+\.\w+", test):
        if test not in tests:
            return f"no test {test}"
        return f"{test} has no row {row}" if row and f'"{row}"' not in tests[test] else ""
    return "" if (ROOT / name).is_file() else f"no file {name}"


def problem_of_link(link: str) -> str:
    target, _, anchor = link.partition("#")
    path = (ROOT / PAGE).parent / target
    if not path.is_file():
        return f"the link to {target} leads nowhere"
    headings = re.findall(r"^#+ (.*)$", path.read_text(encoding="utf-8"), flags=re.MULTILINE)
    anchors = {re.sub(r"[^\w -]", "", heading).lower().replace(" ", "-") for heading in headings}
    return f"{target} has no heading {anchor}" if anchor and anchor not in anchors else ""


def problems_of(page: str, tests: dict[str, str]) -> list[str]:
    problems = [problem_of_link(link) for link in re.findall(r"\]\(([^)]*)\)", page)]
    promises = 0
    for number, line in enumerate(page.splitlines(), 1):
        if not line.startswith("|") or line.startswith(("| Promise", "|---")):
            continue
        cells = [cell.strip() for cell in line.strip("|").split("|")]
        promises += 1
        names = re.findall(r"`([^`]*)`", cells[-1])
        found = [problem_of_name(name, tests) for name in names]
        if len(cells) != 2 or (not names and "only a promise" not in cells[-1]):
            found.append("a promise without what shows it")
        problems += [f"{PAGE}:{number}: {problem}" for problem in found if problem]
    if promises == 0:
        problems.append(f"{PAGE} has no promises")
    return [problem for problem in problems if problem]


def main() -> int:
    page = (ROOT / PAGE).read_text(encoding="utf-8")
    tests = tests_of_the_sources()
    problems = problems_of(page, tests)
    # Faults that must be seen, lest this script sees none.
    for line in ("| x | `Frames.AreNotThere` |", "| x | `Session.EndsWithNothingLeft/NoRow` |", "| x | `no/file.sh` |",
                 "| x | |", "[x](trust.md#nowhere)"):
        if not problems_of(page + line + "\n", tests)[len(problems):]:
            problems.append(f"the fault is not seen: {line}")
    print("\n".join(problems) or f"{PAGE}: all that it names is there")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())

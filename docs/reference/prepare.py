"""usage: prepare.py SCHEMA TARGET

Makes what Doxygen reads: the public headers with what the sources tell of their wire, the folders as groups, the pages.
SCHEMA is what `vrx schema` writes. The folder TARGET is replaced.
"""

import json
import re
import shutil
import sys
from pathlib import Path

from annotate import Annotator
from model import Model
from schema import Schema
from sequence import with_drawings

LISTS = ["mp", "kolt", "bridge", "vrx_api", "vrx_api/*"]
PAGES = ["README.md", "docs/*.md", "docs/reference/*.md", "docs/reference/roads/*.md", "docs/reference/namespaces.dox"]


def public_headers(root: Path) -> list[str]:
    """The headers of the file sets HEADERS."""
    found = []
    for pattern in LISTS:
        for path in sorted(root.glob(f"{pattern}/CMakeLists.txt")):
            for block in re.findall(r"^\s*FILE_SET HEADERS$(.*?)\)$", path.read_text(), re.MULTILINE | re.DOTALL):
                names = re.findall(r"^\s*(\w+\.h)$", block, re.MULTILINE)
                found += [str(path.parent.relative_to(root) / name) for name in names]
    return found


def folders(root: Path) -> dict[str, str]:
    """The folders and what they hold, from their table."""
    found = {}
    for names, holds in re.findall(r"^\| (`[^|]+) \| (.+) \|$", (root / "docs/working.md").read_text(), re.MULTILINE):
        told = re.findall(r"`([\w/]+)`", names)
        above = told[0].rsplit("/", 1)[0] + "/" if "/" in told[0] else ""
        # Two folders in one row may have a part of it each.
        parts = holds.split("; ") if holds.count("; ") == len(told) - 1 else [holds] * len(told)
        for name, part in zip(told, parts):
            found[name if name.startswith(above) else above + name] = part
    return found


def group_of(header: str) -> str:
    return str(Path(header).parent).replace("/", "_")


def with_own_links(page: Path, text: str, root: Path, pages: list[Path]) -> str:
    """A link to a page is told from the root, and one to a file that is not in the reference becomes its label.

    Doxygen has other names for the places within a page: a link leads to its start."""

    def kept(link: re.Match[str]) -> str:
        label, path = link.groups()
        target = (page.parent / path).resolve()
        if target in pages:
            return f"[{label}]({target.relative_to(root)})"
        return str(link.group(0) if path.endswith(".html") else label)

    return re.sub(r"(?<!!)\[([^\]]+)\]\((?!https?:)([^)#\s]+)(?:#[^)\s]*)?\)", kept, text)


def write(path: Path, text: str) -> None:
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text)


def main() -> int:
    root = Path.cwd()
    target = Path(sys.argv[2])
    shutil.rmtree(target, ignore_errors=True)
    model = Model(root, Schema(json.loads(Path(sys.argv[1]).read_text())))
    keys = [(name, row.path) for name in model.schema.rows for row in model.rows(name)]
    missing = [f"{name}: {path}" for name, path in keys if not model.line(name, path)]
    if missing:
        print("No description of these keys was found:", *missing, sep="\n  ", file=sys.stderr)
        return 1
    headers = public_headers(root)
    annotator = Annotator(model, root, headers)
    origins = {}
    for header in headers:
        text, origins[header] = annotator.annotated(header, group_of(header))
        write(target / header, text)
    write(target.parent / "origins.json", json.dumps(origins))

    told = folders(root)
    groups = "/** @defgroup vrx_api vrx_api\nThe library. */\n"
    for folder in dict.fromkeys(str(Path(header).parent) for header in headers):
        if folder != "vrx_api":
            if folder not in told:
                print(f"The table of folders in docs/working.md does not have {folder}.", file=sys.stderr)
                return 1
            holds = told[folder][:1].upper() + told[folder][1:] + "."
            name = folder.replace("/", "_")
            inside = "\n@ingroup vrx_api" if folder.startswith("vrx_api/") else ""
            groups += f"/** @defgroup {name} {folder}\n{holds}{inside} */\n"
    write(target / "groups.dox", groups)
    pages = [page for pattern in PAGES for page in sorted(root.glob(pattern))]
    for page in pages:
        text = page.read_text()
        if page.suffix == ".md":
            # A page with the title of the project would hide the main page.
            text = re.sub(r"\A# vrx_api$", "# README", text, flags=re.MULTILINE)
            text = with_drawings(with_own_links(page, text, root, pages))
        write(target / page.relative_to(root), text)
    return 0


if __name__ == "__main__":
    sys.exit(main())

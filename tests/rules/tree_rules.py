#!/usr/bin/env python3
"""Checks the tree against its architecture: who may use whom, where toolkits and systems may be named; and what is
written in it: words that do not belong there, and links that lead nowhere. Prints one line for each finding,
file:line: what is wrong, and fails if there is any.

    tree_rules.py ROOT
"""

import re
import sys
from pathlib import Path
from typing import Iterator, NamedTuple

# The table of rooms is the one of this page: a row for a room or several, with what they may use in the last cell.
TABLE_PAGE = "docs/architecture.md"
TABLE_ROW = re.compile(r"^\| *(`src/.*?) *\|.*\|(.*)\| *$", re.MULTILINE)

CALCULATION_ROOMS = {"supply", "drainage", "fire", "hotwater", "storage"}

# Programs have no list of their own: they link the whole host.
PROGRAMS = {"cli", "desktop"}

TOOLKIT_HEADER = re.compile(r"^Q(t|[A-Z])\w*")
SYSTEM_HEADER = re.compile(r"^(windows|shellapi|io|process|unistd|fcntl|dlfcn|spawn|sys/\w+)\.h$")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
ROOM_CALL = re.compile(r"zwt_room\(\s*(\S+)([^)]*)\)")
ROOM_KEYWORDS = {"KIND", "USES", "SOURCES", "LIBS"}
WORDS = re.compile(
    r"share[d]/spec|spec\.md|\bParts? [1-8]\.[1-6]\b|[Ss]pecification|规格[说]明|COMPAS[S]|DEVELOPERS\.md|\.\./shared"
)
LINK = re.compile(r"\]\((?!\w+:|#)([^)#\s]+)")
SKIPPED_FOLDERS = {".git", ".ci", ".cache", "build", "__pycache__"}


class Finding(NamedTuple):
    """A place, with a line from 1, and what is wrong there."""

    path: str
    line: int
    problem: str

    def __str__(self) -> str:
        return f"{self.path}:{self.line}: {self.problem}"


class Room(NamedTuple):
    """A room as its CMakeLists.txt tells of it."""

    name: str
    path: str  # of the CMakeLists.txt
    uses: dict[str, int]  # room -> line
    sources: set[str]


class Tree(NamedTuple):
    """What is known of a tree before its files are looked at."""

    root: Path
    allowed: dict[str, set[str]]  # room -> rooms that it may use
    rooms: dict[str, Room]


def read_table(root: Path) -> dict[str, set[str]]:
    """The rooms and what each may use."""
    allowed: dict[str, set[str]] = {}
    for row in TABLE_ROW.finditer((root / TABLE_PAGE).read_text(encoding="utf-8")):
        for room in re.findall(r"`src/([^`]+)`", row.group(1)):
            allowed[room] = set(re.findall(r"`([^`]+)`", row.group(2)))
    return allowed


def read_room(root: Path, cmake_file: Path) -> Room | None:
    """The room of a CMakeLists.txt, None where it makes none."""
    text = cmake_file.read_text(encoding="utf-8")
    call = ROOM_CALL.search(text)
    if call is None:
        return None
    uses: dict[str, int] = {}
    sources: set[str] = set()
    keyword = ""
    for word in re.finditer(r"\S+", call.group(2)):
        if word.group() in ROOM_KEYWORDS:
            keyword = word.group()
        elif keyword == "USES":
            uses[word.group()] = text.count("\n", 0, call.start(2) + word.start()) + 1
        elif keyword == "SOURCES":
            sources.add(word.group())
    return Room(call.group(1), cmake_file.relative_to(root).as_posix(), uses, sources)


def room_of(path: str, allowed: dict[str, set[str]]) -> str | None:
    """The room that a path below src lies in: the longest one that contains it."""
    folder = path.rpartition("/")[0]
    while folder:
        if folder in allowed:
            return folder
        folder = folder.rpartition("/")[0]
    return None


def includes_of(file: Path) -> Iterator[tuple[int, str, str]]:
    """Line, kind ('<' or '"') and name of every include."""
    for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if match:
            yield number, match.group(1), match.group(2)


def is_panel(path: str) -> bool:
    return Path(path).stem.endswith("_dialog")


def is_told_by_header(file: Path) -> bool:
    """Whether the header beside a source file tells what it is for."""
    return file.suffix == ".cpp" and file.with_suffix(".h").is_file()


def check_rooms(tree: Tree) -> Iterator[Finding]:
    """Every USES list against the table, and every source in its room's list."""
    for name, room in tree.rooms.items():
        if name not in tree.allowed:
            yield Finding(room.path, 1, f"room {name} is not in the table of {TABLE_PAGE}")
            continue
        if f"src/{name}/CMakeLists.txt" != room.path:
            yield Finding(room.path, 1, f"room {name} lies elsewhere than its name says")
        for used, line in room.uses.items():
            if used not in tree.allowed[name]:
                yield Finding(room.path, line, f"{name} may not use {used}")
        for source in sorted((tree.root / room.path).parent.glob("*.cpp")):
            # The module's own library, made in frame, has one source beside the room's.
            if source.name not in room.sources and source.name != "module_entry.cpp":
                yield Finding(f"src/{name}/{source.name}", 1, f"not among the sources of {name}")


def check_own_include(tree: Tree, path: str, line: int, name: str, room: str) -> Iterator[Finding]:
    """An include of a file of this tree."""
    listed = tree.rooms[room].uses if room in tree.rooms else {}
    target = room_of(name, tree.allowed)
    if target is None:
        yield Finding(path, line, f'"{name}" names no room: includes are written from src/')
    elif target != room and target not in (tree.allowed[room] if room in PROGRAMS else listed):
        yield Finding(path, line, f"{room} does not list {target} among what it uses")
    elif room in CALCULATION_ROOMS and not is_panel(path):
        if target in ("host/dialog", "frame/scope") or is_panel(name):
            yield Finding(path, line, f"a calculation knows no panel: {name}")


def check_outer_include(path: str, line: int, name: str, room: str) -> Iterator[Finding]:
    """An include of a library or the system."""
    if TOOLKIT_HEADER.match(name) and room != "desktop":
        yield Finding(path, line, f"only desktop knows Qt: {name}")
    if SYSTEM_HEADER.match(name) and room != "host/platform":
        yield Finding(path, line, f"only host/platform knows the system: {name}")


def check_source(tree: Tree, file: Path) -> Iterator[Finding]:
    """One file below src: its opening lines and its includes."""
    path = file.relative_to(tree.root).as_posix()
    room = room_of(file.relative_to(tree.root / "src").as_posix(), tree.allowed)
    if room is None:
        yield Finding(path, 1, "lies in no room")
        return
    if not file.read_text(encoding="utf-8").startswith("// ") and not is_told_by_header(file):
        yield Finding(path, 1, "does not open with what it is for")
    for line, kind, name in includes_of(file):
        if kind == '"' and not TOOLKIT_HEADER.match(name):
            yield from check_own_include(tree, path, line, name, room)
        else:
            yield from check_outer_include(path, line, name, room)


def check_words(root: Path) -> Iterator[Finding]:
    """Words that do not belong into the tree, in every file that is text."""
    for file in sorted(root.rglob("*")):
        parts = file.relative_to(root).parts
        if SKIPPED_FOLDERS.intersection(parts) or not file.is_file():
            continue
        content = file.read_bytes()
        if b"\0" in content:
            continue
        for number, line in enumerate(content.decode("utf-8", errors="replace").splitlines(), 1):
            match = WORDS.search(line)
            if match:
                yield Finding("/".join(parts), number, f"'{match.group()}' does not belong into the tree")


def check_links(root: Path) -> Iterator[Finding]:
    """Links between pages, and from pages to files of the tree."""
    for page in sorted([*root.glob("*.md"), *root.glob("docs/**/*.md")]):
        for number, line in enumerate(page.read_text(encoding="utf-8").splitlines(), 1):
            for target in LINK.findall(line):
                if not (page.parent / target).exists():
                    yield Finding(page.relative_to(root).as_posix(), number, f"the link leads nowhere: {target}")


def check_tree(root: Path) -> list[Finding]:
    """All findings about a tree."""
    found = (read_room(root, file) for file in sorted((root / "src").rglob("CMakeLists.txt")))
    tree = Tree(root, read_table(root), {room.name: room for room in found if room is not None})
    findings = list(check_rooms(tree))
    for file in sorted((root / "src").rglob("*")):
        if file.suffix in (".h", ".cpp"):
            findings += check_source(tree, file)
    return findings + list(check_words(root)) + list(check_links(root))


def main(arguments: list[str]) -> int:
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    findings = check_tree(Path(arguments[1]))
    for finding in findings:
        print(finding)
    print(f"{len(findings)} findings")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))

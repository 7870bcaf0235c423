#!/usr/bin/env python3
"""Checks that includes run along the arrows between the rooms, and never back.

    check_includes.py ROOT ROOM=KNOWN,KNOWN ...     the arrows come from the rooms' CMakeLists.txt files
    check_includes.py --self-check                  proves on small made-up trees that each kind of fault is found

A room is a folder; a file belongs to the room with the longest name that matches its path. It may include its own room and
those that the room knows.
"""

import re
import sys
import tempfile
from pathlib import Path

INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')
SOURCES = {".h", ".cpp", ".in"}


def room_of(path, rooms):
    """The room with the longest folder name that holds `path` (from the root, with "/"), or None."""
    holders = [room for room in rooms if path.startswith(room + "/")]
    return max(holders, key=len, default=None)


def faults_of_arrows(arrows):
    """Arrows to rooms that do not exist, and rings of rooms that know each other."""
    for room, known in arrows.items():
        for other in sorted(known - arrows.keys()):
            yield f"{room} is said to know {other}, but there is no such room."

    def reach(room, seen):
        for other in arrows.get(room, set()):
            if other not in seen:
                seen.add(other)
                reach(other, seen)
        return seen

    for room in sorted(arrows):
        if room in reach(room, set()):
            yield f"{room} knows itself by way of other rooms: the arrows between the rooms run in a ring."


def faults_of_file(root, path, arrows):
    """The includes of one file that run against the arrows or are not written from the root."""
    room = room_of(path.as_posix(), arrows)
    text = (root / path).read_text(encoding="utf-8", errors="replace")
    for number, line in enumerate(text.splitlines(), start=1):
        match = INCLUDE.match(line)
        if not match:
            continue
        quote, name = match.groups()
        place = f"{path.as_posix()}:{number}"
        target = room_of(name, arrows)
        if target is None:
            if quote == '"':
                yield f'{place}: "{name}" is not written from the root of the tree, as in "core/calendar.h".'
        elif quote == "<":
            yield f'{place}: <{name}> is a file of this tree; write "{name}".'
        elif ".." in name.split("/"):
            yield f'{place}: "{name}" goes back by "..".'
        elif target != room and target not in arrows[room]:
            known = ", ".join(sorted(arrows[room])) or "no other room"
            yield f'{place}: {room} may not include "{name}" of {target}; {room} knows {known}.'


def faults(root, arrows):
    yield from faults_of_arrows(arrows)
    checked = set()
    for room in sorted(arrows):
        for path in sorted((root / room).rglob("*")):
            if path.suffix in SOURCES and path.is_file() and path not in checked:
                checked.add(path)
                yield from faults_of_file(root, path.relative_to(root), arrows)
    if not checked:
        yield f"There is no source file in any room below {root}."


def self_check():
    """Each made-up tree has one fault, or none; the check must say exactly that."""
    arrows = {"core": set(), "weather": {"core"}, "weather/forms": {"core", "weather"}}
    ring = {"core": {"weather"}, "weather": {"core"}}
    cases = [
        ("core/a.h", '#include <vector>\n#include <sys/stat.h>\n#include "core/b.h"\n', arrows, None),
        ("weather/a.cpp", '#include "core/a.h"\n', arrows, None),
        ("weather/forms/a.cpp", '#include "weather/a.h"\n', arrows, None),
        ("core/a.h", '\n#include "weather/a.h"\n', arrows, 'core/a.h:2: core may not include "weather/a.h"'),
        ("core/deep/a.h", ' #  include "weather/a.h"\n', arrows, 'core/deep/a.h:1: core may not include'),
        ("weather/a.cpp", '#include "weather/forms/a.h"\n', arrows, "weather may not include"),
        ("weather/a.cpp", "#include <core/a.h>\n", arrows, "is a file of this tree"),
        ("core/a.cpp", '#include "a.h"\n', arrows, "is not written from the root"),
        ("core/a.cpp", '#include "core/../weather/a.h"\n', arrows, 'goes back by ".."'),
        ("core/a.cpp", "", {"core": {"wether"}}, "there is no such room"),
        ("core/a.cpp", "", ring, "run in a ring"),
        ("elsewhere/a.cpp", "", arrows, "There is no source file"),
    ]
    wrong = []
    for name, text, case_arrows, expected in cases:
        with tempfile.TemporaryDirectory() as folder:
            source = Path(folder) / name
            source.parent.mkdir(parents=True)
            source.write_text(text, encoding="utf-8")
            found = list(faults(Path(folder), case_arrows))
        as_expected = not found if expected is None else bool(found) and all(expected in fault for fault in found)
        if not as_expected:
            wrong.append(f"{name} with {text!r}: expected {expected or 'no fault'!r}, found {found}")
    return wrong


def main(arguments):
    if arguments == ["--self-check"]:
        found = self_check()
    elif len(arguments) >= 2:
        pairs = (argument.partition("=") for argument in arguments[1:])
        found = list(faults(Path(arguments[0]), {room: set(filter(None, known.split(","))) for room, _, known in pairs}))
    else:
        sys.exit(__doc__)
    for fault in found:
        print(fault, file=sys.stderr)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main(sys.argv[1:])

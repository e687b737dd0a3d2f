"""Takes drawings of every version through the program: unchanged they keep every byte, after commands only what
commands may change is other, and independent readers accept the result.

usage: round_trip.py PROBE FOLDER
"""

import os
import re
import subprocess
import sys

import make_drawings
import odd_drawings
from ezdxf import recover
from tag_diff import Diff


def escape_as_written_by_others(data):
    """ezdxf writes the digits of \\U+XXXX in lower case and does not read them so."""
    return re.sub(rb"\\U\+[0-9a-fA-F]{4}", lambda m: m.group().upper(), data)


def all_drawings(folder):
    make_drawings.main(folder)
    for name in sorted(os.listdir(folder)):
        path = os.path.join(folder, name)
        with open(path, "rb") as file:
            data = escape_as_written_by_others(file.read())
        yield name[:-4], data
    yield from odd_drawings.drawings().items()


def run(probe, action, source, target):
    result = subprocess.run([probe, action, source, target], capture_output=True, text=True, timeout=60)
    if result.returncode != 0:
        return None, f"{action}: {result.stderr.strip()}"
    with open(target, "rb") as file:
        return file.read(), result.stdout.strip()


def audit(path):
    """The auditor's errors. It takes R12 files without a code page for Western ones, where UTF-8 and GBK are read here
    as the bytes tell: what it says about their encoding is no error."""
    _, auditor = recover.readfile(path)
    return [f"audit: {error.message}" for error in auditor.errors if "unicode decoding" not in error.message]


def check(probe, folder, name, data):
    source, target = os.path.join(folder, name + ".in.dxf"), os.path.join(folder, name + ".out.dxf")
    with open(source, "wb") as file:
        file.write(data)
    problems = []
    for action in ("same", "undo"):
        saved, text = run(probe, action, source, target)
        if saved != data:
            problems.append(f"{action}: the bytes differ, or {text}")
    saved, text = run(probe, "change", source, target)
    if saved is None:
        return problems + [text]
    if saved == data:
        problems.append("change: nothing changed")
    problems += Diff().compare(data, saved)
    try:
        before, after = audit(source), audit(target)
        problems += [error for error in after if error not in before]
    except Exception as error:  # the auditor's own failures count as findings
        problems.append(f"audit failed: {error!r}")
    again, _ = run(probe, "same", target, source)
    if again != saved:
        problems.append("the saved drawing does not keep its bytes")
    print(f"{'FAILED' if problems else 'ok':7}{name}: {text}")
    return problems


def main(probe, folder):
    os.makedirs(folder, exist_ok=True)
    failed = 0
    for name, data in list(all_drawings(os.path.join(folder, "made"))):
        for problem in check(probe, folder, name, data):
            print(f"       {name}: {problem}")
            failed += 1
    print(f"{failed} problems")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))

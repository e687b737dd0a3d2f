#!/usr/bin/env python3
"""Writes the reports of both commands that have one, and reads them with a program that we did not write: every cell
must be what the panel's grids hold.

usage: check_reports.py PROGRAM
"""
import json
import pathlib
import subprocess
import sys
import tempfile

import docx


def zwtcal(*arguments):
    done = subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True, timeout=240)
    assert done.returncode == 0, done.stderr
    return done.stdout


def grids(output):
    return [result["cells"] for result in json.loads(output)["results"]]


def tables(report, corner):
    found = [table for table in docx.Document(str(report)).tables if table.cell(0, 0).text == corner]
    assert len(found) == 1, f"{len(found)} tables begin with {corner}"
    return [[cell.text for cell in row.cells] for row in found[0].rows]


def check_supply(work):
    drawing, report = work / "supply.dxf", work / "supply.docx"
    zwtcal("new", "supply", "--storeys", 7, "--risers", 2, "-o", drawing)
    shown = grids(zwtcal("calc", "ZWTGSJS", drawing, "--report", report, "--pdf", "--json"))
    assert len(shown[0]) == 15 and shown[0][1][0] == "1#-1层", shown[0][1]
    assert tables(report, "编号") == shown[0], "the table is not the grid"
    text = subprocess.run(["pdftotext", "-layout", str(work / "supply.pdf"), "-"], check=True, capture_output=True,
                          text=True, timeout=60).stdout
    for wanted in ("给水系统水力计算书", shown[0][14][4], "1#-7"):
        assert wanted in text, f"{wanted} is not in the PDF"


def check_hydrants(work):
    drawing, report = work / "hydrants.dxf", work / "hydrants.docx"
    entry = zwtcal("new", "hydrants", "--storeys", 6, "--risers", 4, "-o", drawing).split()[-1]
    values = ["hydrantFlow=30", "gunCount=6", "gunMinFlow=5", "riserMinFlow=15"]
    shown = grids(zwtcal("calc", "ZWTXFJS", drawing, *values, "--select", entry, "--report", report, "--json"))
    assert tables(report, "管段编号") == shown[0], "the table of sections is not the grid"
    assert tables(report, "节点编号") == shown[1], "the table of nodes is not the grid"
    parameters = tables(report, "消火栓用水量（L/s）")
    assert [row[1] for row in parameters] == ["30", "6", "5", "15"], parameters


if __name__ == "__main__":
    PROGRAM = sys.argv[1]
    with tempfile.TemporaryDirectory() as folder:
        check_supply(pathlib.Path(folder))
        check_hydrants(pathlib.Path(folder))
    print("the reports hold the grids")

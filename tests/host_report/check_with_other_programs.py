#!/usr/bin/env python3
"""Opens a sample report with programs that we did not write: python-docx reads its cells, LibreOffice makes a PDF of
it, and a template that LibreOffice saved anew is filled again.

usage: check_with_other_programs.py TEST_PROGRAM TEMPLATE_FOLDER
"""
import os
import pathlib
import subprocess
import sys
import tempfile

import docx


def run(*command, **environment):
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL, timeout=240, env={**os.environ, **environment})


def office(work, target, source):
    run("soffice", "--headless", f"-env:UserInstallation=file://{work}/user", "--convert-to", target, "--outdir", str(work),
        str(source))


def check_cells(report):
    tables = docx.Document(report).tables
    sections = next(table for table in tables if table.cell(0, 0).text == "S1.1")
    nodes = next(table for table in tables if table.cell(0, 0).text == "N1.1")
    assert len(sections.rows) == 40 and len(sections.columns) == 4, "section table has another shape"
    rows = [[cell.text for cell in row.cells] for row in sections.rows]
    assert rows == [[f"S{r}.{c}" for c in range(1, 5)] for r in range(1, 41)], "section cells differ"
    rows = [[cell.text for cell in row.cells] for row in nodes.rows]
    assert rows == [[f"N{r}.{c}" for c in range(1, 4)] for r in range(1, 4)], "node cells differ"
    values = [table.cell(0, 1).text for table in tables if table.cell(0, 0).text.startswith("消火栓用水量")]
    assert values == ["A&B<1"], f"bookmark 1 holds {values}"


def main():
    program, templates = sys.argv[1], pathlib.Path(sys.argv[2])
    with tempfile.TemporaryDirectory() as folder:
        work = pathlib.Path(folder)
        run(program, "--gtest_filter=WordApplication.SampleReportHoldsAllItsCells", TEST_TMPDIR=folder)
        report = work / "zwt-sample-report.docx"
        check_cells(report)
        office(work, "pdf", report)
        text = subprocess.run(["pdftotext", "-layout", str(work / "zwt-sample-report.pdf"), "-"], check=True,
                              capture_output=True, text=True, timeout=60).stdout
        for wanted in ("消火栓环状管网水力计算书", "A&B<4", "S40.4", "N3.3"):
            assert wanted in text, f"{wanted} is not in the PDF"
        source = work / "again.docx"
        source.write_bytes((templates / "ZWT-XHSJS.doc").read_bytes())
        saved = work / "saved"
        saved.mkdir()
        office(saved, "docx", source)
        run(program, "--gtest_filter=WordApplication.SampleReportHoldsAllItsCells", TEST_TMPDIR=folder,
            ZWT_HYDRANT_TEMPLATE=str(saved / "again.docx"))
        check_cells(report)
    print("other programs read the report")


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""The rules on small trees: good ones are left alone, each kind of fault is found with its file and line."""

import contextlib
import io
import tempfile
import unittest
from pathlib import Path

import tree_rules

SUPPLY = "zwt_room(supply KIND module\n  USES\n    host/text\n    host/dialog\n  SOURCES flow.cpp flow_dialog.cpp)\n"
TABLE = """
| folder | what lives there | may use |
|---|---|---|
| `src/supply`, `src/fire` | calculations | `host/text` `host/dialog` `frame/scope` |
| `src/data` | tables in `host/report` | nothing |
| `src/frame` | entry | `frame/scope` |
| `src/frame/scope` | scope | `host/dialog` |
| `src/host/text` | texts | nothing |
| `src/host/dialog` | panels | `host/text` |
| `src/host/platform` | systems | nothing |
| `src/host/report` | reports | nothing |
| `src/cli` | program | `host/report` |
| `src/desktop` | program | `host/dialog` |
"""
GOOD = {
    "docs/architecture.md": TABLE,
    "src/supply/CMakeLists.txt": SUPPLY,
    "src/supply/flow.h": "// Flow.\n#pragma once\n",
    "src/supply/flow.cpp": '#include "supply/flow.h"\n\n#include <cmath>\n\n#include "host/text/number_text.h"\n',
    "src/supply/flow_dialog.cpp": '// Panel.\n#include "supply/flow.h"\n#include "host/dialog/dialog.h"\n',
    "src/cli/main.cpp": '// Program.\n#include "cli/verbs.h"\n#include "host/report/report.h"\n',
    "src/desktop/main.cpp": '// Program.\n#include <QWidget>\n#include "host/dialog/dialog.h"\n',
    "src/host/platform/CMakeLists.txt": "zwt_room(host/platform KIND host\n  SOURCES files.cpp)\n",
    "src/host/platform/files.cpp": "// Files.\n#include <unistd.h>\n",
    "README.md": "A share for us all.\n",
}


class TreeRules(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)

    def findings_with(self, changed: dict[str, str]) -> list[str]:
        for name, text in (GOOD | changed).items():
            path = self.root / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        return [str(finding) for finding in tree_rules.check_tree(self.root)]

    def test_good_tree_has_no_findings(self) -> None:
        self.assertEqual(self.findings_with({}), [])

    def test_room_that_lists_what_it_may_not_use(self) -> None:
        bad = SUPPLY.replace("host/text\n", "host/text\n    host/platform\n")
        self.assertEqual(
            self.findings_with({"src/supply/CMakeLists.txt": bad}),
            ["src/supply/CMakeLists.txt:4: supply may not use host/platform"],
        )

    def test_second_room_of_a_row_and_cells_that_are_no_list(self) -> None:
        changed = {
            "src/fire/CMakeLists.txt": "zwt_room(fire KIND module\n  USES host/text)\n",
            "src/data/CMakeLists.txt": "zwt_room(data KIND module\n  USES host/report)\n",
        }
        self.assertEqual(self.findings_with(changed), ["src/data/CMakeLists.txt:2: data may not use host/report"])

    def test_list_on_one_line(self) -> None:
        bad = "zwt_room(host/platform KIND host USES host/text SOURCES files.cpp)\n"
        self.assertEqual(
            self.findings_with({"src/host/platform/CMakeLists.txt": bad}),
            ["src/host/platform/CMakeLists.txt:1: host/platform may not use host/text"],
        )

    def test_room_outside_the_table(self) -> None:
        self.assertEqual(
            self.findings_with({"src/extra/CMakeLists.txt": "zwt_room(extra KIND module)\n"}),
            ["src/extra/CMakeLists.txt:1: room extra is not in the table of docs/architecture.md"],
        )

    def test_room_that_lies_elsewhere(self) -> None:
        self.assertEqual(
            self.findings_with({"src/host/fire/CMakeLists.txt": "zwt_room(fire KIND module)\n"}),
            ["src/host/fire/CMakeLists.txt:1: room fire lies elsewhere than its name says"],
        )

    def test_source_that_is_not_built(self) -> None:
        self.assertEqual(
            self.findings_with({"src/supply/lost.cpp": "// Lost.\n"}),
            ["src/supply/lost.cpp:1: not among the sources of supply"],
        )

    def test_include_of_a_room_that_is_not_listed(self) -> None:
        self.assertEqual(
            self.findings_with({"src/supply/flow.h": '// Flow.\n#pragma once\n\n#include "data/materials.h"\n'}),
            ["src/supply/flow.h:4: supply does not list data among what it uses"],
        )

    def test_include_with_blanks_before_and_inside(self) -> None:
        self.assertEqual(
            self.findings_with({"src/supply/flow.h": '// Flow.\n  #  include   "data/materials.h"\n'}),
            ["src/supply/flow.h:2: supply does not list data among what it uses"],
        )

    def test_include_in_a_comment_is_none(self) -> None:
        self.assertEqual(self.findings_with({"src/supply/flow.h": '// Flow.\n// #include "data/materials.h"\n'}), [])

    def test_inner_room_is_not_its_outer_one(self) -> None:
        changed = {
            "src/frame/CMakeLists.txt": "zwt_room(frame KIND module SOURCES commands.cpp)\n",
            "src/frame/commands.cpp": '// Commands.\n#include "frame/scope/panel_command.h"\n',
        }
        self.assertEqual(
            self.findings_with(changed),
            ["src/frame/commands.cpp:2: frame does not list frame/scope among what it uses"],
        )

    def test_include_that_is_not_written_from_src(self) -> None:
        self.assertEqual(
            self.findings_with({"src/supply/flow.h": '// Flow.\n#include "number_text.h"\n'}),
            ['src/supply/flow.h:2: "number_text.h" names no room: includes are written from src/'],
        )

    def test_calculation_that_knows_the_dialogs(self) -> None:
        self.assertEqual(
            self.findings_with({"src/supply/flow.h": '// Flow.\n#include "host/dialog/dialog.h"\n'}),
            ["src/supply/flow.h:2: a calculation knows no panel: host/dialog/dialog.h"],
        )

    def test_calculation_that_knows_its_own_panel(self) -> None:
        self.assertEqual(
            self.findings_with({"src/supply/flow.cpp": '#include "supply/flow_dialog.h"\n'}),
            ["src/supply/flow.cpp:1: a calculation knows no panel: supply/flow_dialog.h"],
        )

    def test_toolkit_outside_the_desktop(self) -> None:
        for line in ("#include <QWidget>", "#include <QtWidgets/QWidget>", '#include "QString"'):
            with self.subTest(line):
                name = line[10:-1]
                self.assertEqual(
                    self.findings_with({"src/cli/main.cpp": f"// Program.\n{line}\n"}),
                    [f"src/cli/main.cpp:2: only desktop knows Qt: {name}"],
                )

    def test_system_header_outside_the_platform(self) -> None:
        for name in ("windows.h", "unistd.h", "sys/stat.h"):
            with self.subTest(name):
                self.assertEqual(
                    self.findings_with({"src/supply/flow.h": f"// Flow.\n#include <{name}>\n"}),
                    [f"src/supply/flow.h:2: only host/platform knows the system: {name}"],
                )

    def test_program_that_reaches_into_the_module(self) -> None:
        self.assertEqual(
            self.findings_with({"src/cli/main.cpp": '// Program.\n#include "supply/flow.h"\n'}),
            ["src/cli/main.cpp:2: cli does not list supply among what it uses"],
        )

    def test_file_in_no_room(self) -> None:
        self.assertEqual(self.findings_with({"src/stray.h": "// Stray.\n"}), ["src/stray.h:1: lies in no room"])

    def test_file_that_does_not_say_what_it_is_for(self) -> None:
        self.assertEqual(
            self.findings_with({"src/supply/flow.h": "#pragma once\n", "src/cli/main.cpp": "int main() {}\n"}),
            [
                "src/cli/main.cpp:1: does not open with what it is for",
                "src/supply/flow.h:1: does not open with what it is for",
            ],
        )

    def test_words_that_do_not_belong_here(self) -> None:
        words = ("spec" + ".md", "Spec" + "ification", "Part" + " 3.1", "Parts" + " 8.6", "../" + "shared/x")
        for word in words:
            with self.subTest(word):
                found = self.findings_with({"docs/page.md": f"# Page\n\nsee {word} there\n"})
                self.assertEqual(len(found), 1)
                self.assertRegex(found[0], r"^docs/page.md:3: '.+' does not belong into the tree$")

    def test_words_in_files_that_are_no_text_or_not_ours_are_left_alone(self) -> None:
        word = "spec" + ".md"
        changed = {"build/log.txt": word, "a.bin": "\0" + word, "docs/page.md": "Party 3.1, Part 9.1\n"}
        self.assertEqual(self.findings_with(changed), [])

    def test_link_that_leads_nowhere(self) -> None:
        page = "See [rooms](docs/architecture.md#rooms), [web](https://example.org/x.md) and [gone](docs/gone.md).\n"
        self.assertEqual(
            self.findings_with({"README.md": page, "docs/page.md": "[back](../README.md) [lost](README.md)\n"}),
            [
                "README.md:1: the link leads nowhere: docs/gone.md",
                "docs/page.md:1: the link leads nowhere: README.md",
            ],
        )

    def test_several_findings_are_all_told(self) -> None:
        text = '// Flow.\n#include "data/a.h"\n#include <QWidget>\n'
        self.assertEqual(len(self.findings_with({"src/supply/flow.h": text})), 2)

    def test_findings_fail_the_check(self) -> None:
        for changed, status in (({}, 0), ({"src/stray.h": "// Stray.\n"}, 1)):
            self.findings_with(changed)
            with contextlib.redirect_stdout(io.StringIO()) as printed:
                self.assertEqual(tree_rules.main(["tree_rules.py", str(self.root)]), status)
            self.assertTrue(printed.getvalue().endswith(f"{status} findings\n"))


if __name__ == "__main__":
    unittest.main()

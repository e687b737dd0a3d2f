"""Drawings that no library writes: old versions, missing parts, odd line ends. name -> bytes."""


def tags(*pairs, end="\n"):
    return "".join(f"{code:3d}{end}{value}{end}" for code, value in pairs)


def section(name, body, end="\n"):
    return tags((0, "SECTION"), (2, name), end=end) + body + tags((0, "ENDSEC"), end=end)


PIPE = [(1001, "ZWT_PIPE"), (1000, "WtSystem"), (1000, "给水"), (1000, "ELS_TYPE"), (1000, "立管"),
        (1000, "Kind"), (1000, "0")]


def old_entities(end="\n"):
    return tags((0, "LINE"), (8, "0"), (10, 0), (20, 0), (11, 0), (21, 3000), *PIPE,
                (999, "a note behind the pipe"),
                (0, "POLYLINE"), (8, "管道"), (66, 1), (70, 0),
                (0, "VERTEX"), (8, "管道"), (10, 0), (20, 3000), (42, "0.5"),
                (0, "VERTEX"), (8, "管道"), (10, 500), (20, 3000),
                (0, "SEQEND"), (8, "管道"),
                (0, "CIRCLE"), (8, "0"), (10, 5), (20, 5), (40, "1.0e+02"),
                (0, "TEXT"), (8, "0"), (10, 0), (20, 0), (40, "350"), (1, "%%c100 文字"), end=end)


def table(kind, handle, *records, modern):
    body = tags((0, "TABLE"), (2, kind))
    if modern:
        body += tags((5, handle), (100, "AcDbSymbolTable"))
    body += tags((70, len(records)))
    for record in records:
        body += tags((0, kind), *record)
    return body + tags((0, "ENDTAB"))


def old_tables():
    return section("TABLES",
                   table("LTYPE", "", [(2, "CONTINUOUS"), (70, 64), (3, "Solid line"), (72, 65), (73, 0), (40, "0.0")],
                         modern=False) +
                   table("LAYER", "", [(2, "0"), (70, 0), (62, 7), (6, "CONTINUOUS")],
                         [(2, "管道"), (70, 0), (62, -5), (6, "CONTINUOUS")], modern=False) +
                   table("STYLE", "", [(2, "STANDARD"), (70, 0), (40, "0.0"), (41, "1.0"), (50, "0.0"), (71, 0),
                                       (42, "2.5"), (3, "txt"), (4, "")], modern=False))


def record(kind, handle, name, *more):
    subclass = {"LAYER": "AcDbLayerTableRecord", "STYLE": "AcDbTextStyleTableRecord",
                "APPID": "AcDbRegAppTableRecord", "LTYPE": "AcDbLinetypeTableRecord",
                "BLOCK_RECORD": "AcDbBlockTableRecord", "VPORT": "AcDbViewportTableRecord",
                "DIMSTYLE": "AcDbDimStyleTableRecord"}[kind]
    code = 105 if kind == "DIMSTYLE" else 5
    flags = [] if kind == "BLOCK_RECORD" else [(70, 0)]
    return [(code, handle), (100, "AcDbSymbolTableRecord"), (100, subclass), (2, name), *flags, *more]


def thirteen_tables():
    line = [(3, ""), (72, 65), (73, 0), (40, "0.0")]
    return section("TABLES",
                   table("VPORT", "8", record("VPORT", "29", "*ACTIVE", (10, "0.0"), (20, "0.0"), (11, "1.0"),
                                              (21, "1.0"), (12, "0.0"), (22, "0.0"), (40, "1.0"), (41, "1.0")),
                         modern=True) +
                   table("LTYPE", "5", record("LTYPE", "13", "BYBLOCK", *line), record("LTYPE", "14", "BYLAYER", *line),
                         record("LTYPE", "15", "CONTINUOUS", *line), modern=True) +
                   table("LAYER", "2", record("LAYER", "F", "0", (62, 7), (6, "CONTINUOUS")),
                         record("LAYER", "16", "管道", (62, 5), (6, "CONTINUOUS")), modern=True) +
                   table("STYLE", "3", record("STYLE", "10", "STANDARD", (40, "0.0"), (41, "1.0"), (50, "0.0"), (71, 0),
                                              (42, "2.5"), (3, "txt"), (4, "")), modern=True) +
                   table("VIEW", "6", modern=True) + table("UCS", "7", modern=True) +
                   table("APPID", "9", record("APPID", "11", "ACAD"), record("APPID", "12", "ZWT_PIPE"), modern=True) +
                   table("DIMSTYLE", "A", record("DIMSTYLE", "1D", "STANDARD"), modern=True) +
                   table("BLOCK_RECORD", "1", record("BLOCK_RECORD", "19", "*MODEL_SPACE"),
                         record("BLOCK_RECORD", "18", "*PAPER_SPACE"), modern=True))


def thirteen_blocks():
    body = ""
    for name, begin, end, paper in (("*MODEL_SPACE", "1A", "1B", []), ("*PAPER_SPACE", "1C", "1E", [(67, 1)])):
        body += tags((0, "BLOCK"), (5, begin), (100, "AcDbEntity"), *paper, (8, "0"), (100, "AcDbBlockBegin"),
                     (2, name), (70, 0), (10, "0.0"), (20, "0.0"), (30, "0.0"), (3, name), (1, ""),
                     (0, "ENDBLK"), (5, end), (100, "AcDbEntity"), *paper, (8, "0"), (100, "AcDbBlockEnd"))
    return section("BLOCKS", body)


def thirteen_objects():
    return section("OBJECTS", tags((0, "DICTIONARY"), (5, "C"), (100, "AcDbDictionary"), (3, "ACAD_GROUP"), (350, "D"),
                                   (0, "DICTIONARY"), (5, "D"), (102, "{ACAD_REACTORS"), (330, "C"), (102, "}"),
                                   (100, "AcDbDictionary")))


def thirteen(version):
    head = section("HEADER", tags((9, "$ACADVER"), (1, version), (9, "$DWGCODEPAGE"), (3, "ansi_936"),
                                  (9, "$DIMSCALE"), (40, "50.0"), (9, "$HANDSEED"), (5, "40")))
    lines = tags((0, "LINE"), (5, "30"), (100, "AcDbEntity"), (8, "管道"), (100, "AcDbLine"), (10, "0.0"), (20, "0.0"),
                 (30, "0.0"), (11, "0.0"), (21, "3000.0"), (31, "0.0"), *PIPE)
    if version == "AC1014":
        lines += tags((0, "LWPOLYLINE"), (5, "31"), (100, "AcDbEntity"), (8, "管道"), (100, "AcDbPolyline"), (90, 2),
                      (70, 0), (10, "0.0"), (20, "3000.0"), (42, "1.0"), (10, "900.0"), (20, "3000.0"))
    return (head + section("CLASSES", "") + thirteen_tables() + thirteen_blocks() + section("ENTITIES", lines) +
            thirteen_objects() + tags((0, "EOF")))


def untidy():
    """Trailing blanks, comments between everything, lower-case code page, text behind the end."""
    body = old_entities().replace("LINE\n", "LINE  \n", 1).replace(" 21\n", " 21 \t\n")
    text = (tags((999, "written by hand")) + section("HEADER", tags((9, "$ACADVER "), (1, "AC1009"), (999, "why not"),
                                                                   (9, "$DWGCODEPAGE"), (3, "ansi_936"))) +
            tags((999, "between")) + old_tables() + section("BLOCKS", "") +
            section("ENTITIES", tags((999, "in front")) + body) + tags((0, "EOF")))
    return text + "\x1a\nwhat stands here is none of ours\n"


def drawings():
    bare = section("ENTITIES", old_entities()) + tags((0, "EOF"))
    headless = old_tables() + section("ENTITIES", old_entities()) + tags((0, "EOF"))
    header = section("HEADER", tags((9, "$ACADVER"), (1, "AC1009")))
    crlf = section("ENTITIES", old_entities("\r\n"), "\r\n") + tags((0, "EOF"), end="\r\n")
    return {
        "R12-entities-only-utf8": bare.encode("utf8"),
        "R12-entities-only-gbk": bare.encode("gbk"),
        "R12-no-header": headless.encode("gbk"),
        "R12-no-tables": (header + bare).encode("utf8"),
        "R12-handling-off": section("HEADER", tags((9, "$ACADVER"), (1, "AC1009"), (9, "$HANDLING"), (70, 0)))
        .encode() + headless.encode("gbk"),
        "R12-crlf": crlf.encode("gbk"),
        "R12-no-last-line-end": bare.encode("gbk")[:-1],
        "R12-untidy": untidy().encode("gbk"),
        "R13": thirteen("AC1012").encode("gbk"),
        "R14": thirteen("AC1014").encode("gbk"),
        "R14-crlf": thirteen("AC1014").replace("\n", "\r\n").encode("gbk"),
        "R12-no-entities": (header + old_tables() + tags((0, "EOF"))).encode("utf8"),
    }

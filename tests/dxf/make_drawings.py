"""Writes drawings with everything that a user's drawing may hold, in every version that ezdxf writes.

usage: make_drawings.py FOLDER
"""

import math
import os
import sys

import ezdxf
from ezdxf.lldxf.const import versions_supported_by_new

PIPE_DATA = [
    (1000, "WtSystem"), (1000, "给水"), (1000, "ELS_TYPE"), (1000, "立管"),
    (1000, "Diameter"), (1000, "50"), (1000, "Kind"), (1000, "0"),
]


def add_layers_and_styles(doc):
    doc.layers.add("给水管道", color=5)
    doc.layers.add("标注-管径-给水", color=3)
    doc.layers.add("frozen", color=1).freeze()
    off = doc.layers.add("off", color=2)
    off.off()
    doc.styles.add("汉字", font="simsun.ttf")
    for name in ("ZWT_PIPE", "ZWT_ATTACH", "OTHER_APP"):
        doc.appids.add(name)


def add_blocks(doc):
    inner = doc.blocks.new("内块", base_point=(1, 1))
    inner.add_circle((0, 0), 10)
    inner.add_line((0, 0), (10, 10))
    valve = doc.blocks.new("阀门")
    valve.add_lwpolyline([(0, 0, 0, 0, 0.5), (100, 0), (100, 50), (0, 50)], close=True) \
        if doc.dxfversion > "AC1009" else valve.add_polyline2d([(0, 0), (100, 0), (100, 50)])
    valve.add_blockref("内块", (50, 25), dxfattribs={"xscale": 2, "yscale": 3, "rotation": 30})
    valve.add_attdef("TAG", (0, 60), dxfattribs={"height": 20})
    valve.add_text("块中文字", dxfattribs={"height": 10})
    pipe = valve.add_line((0, -10), (100, -10))
    pipe.set_xdata("ZWT_PIPE", PIPE_DATA)


def add_simple(doc, space):
    modern = doc.dxfversion > "AC1009"
    space.add_line((0, 0), (1000, 500), dxfattribs={"layer": "给水管道"})
    space.add_circle((500, 500), 200)
    space.add_arc((500, 500), 300, 30, 200)
    space.add_point((1, 2, 3))
    space.add_solid([(0, 0), (10, 0), (0, 10), (10, 10)])
    space.add_trace([(0, 0), (10, 0), (0, 10), (10, 10)])
    space.add_3dface([(0, 0, 0), (10, 0, 5), (10, 10, 0), (0, 10, 5)])
    space.add_text("中文文字 %%c100", dxfattribs={"height": 250, "rotation": 30, "style": "汉字"})
    space.add_polyline2d([(0, 0), (100, 0), (100, 100)])
    space.add_polyline3d([(0, 0, 0), (100, 0, 50), (100, 100, 100)])
    space.add_polymesh((3, 3))
    space.add_blockref("阀门", (2000, 0), dxfattribs={"xscale": 2, "rotation": 45})
    ref = space.add_blockref("阀门", (3000, 0), dxfattribs={"column_count": 2, "row_count": 2,
                                                          "column_spacing": 500, "row_spacing": 300})
    ref.add_attrib("TAG", "编号一", (3000, 60), dxfattribs={"height": 20})
    if not modern:
        return
    space.add_lwpolyline([(0, 0, 0, 0, 1), (300, 0, 0, 0, -0.5), (300, 300)], dxfattribs={"elevation": 7})
    space.add_ellipse((0, 0), major_axis=(300, 100), ratio=0.4, start_param=0.3, end_param=5)
    space.add_spline(fit_points=[(0, 0), (100, 200), (300, 100), (400, 300)])
    space.add_open_spline([(0, 0), (100, 200), (300, 100), (400, 300)])
    space.add_mtext("多行文字\\P第二行 {\\fSimSun|b0;红}" * 30, dxfattribs={"char_height": 100, "insert": (0, 3000)})
    space.add_ray((0, 0), (1, 1))
    space.add_xline((0, 0), (1, 2))
    space.add_leader([(0, 0), (100, 100), (200, 100)])
    hatch = space.add_hatch(color=2)
    hatch.paths.add_polyline_path([(0, 0), (100, 0), (100, 100), (0, 100)], is_closed=True)
    edges = hatch.paths.add_edge_path()
    edges.add_line((200, 0), (300, 0))
    edges.add_arc((300, 50), 50, 270, 90)
    edges.add_line((300, 100), (200, 0))


def add_pipes(doc, space):
    for i in range(4):
        pipe = space.add_line((5000, i * 3000), (5000, i * 3000 + 3000), dxfattribs={"layer": "给水管道"})
        pipe.set_xdata("ZWT_PIPE", PIPE_DATA)
        pipe.set_xdata("OTHER_APP", [(1070, i), (1040, 1.5), (1002, "{"), (1000, "他人数据"), (1002, "}")])
        note = space.add_text("DN50", dxfattribs={"height": 350, "layer": "标注-管径-给水"})
        note.set_xdata("ZWT_ATTACH", [(1005, pipe.dxf.handle)])
    curved = space.add_polyline2d([(6000, 0), (6000, 3000), (9000, 3000)], dxfattribs={"extrusion": (0, 0, -1)})
    curved.set_xdata("ZWT_PIPE", PIPE_DATA)


def add_dimensions_and_objects(doc, space):
    space.add_linear_dim(base=(0, -500), p1=(0, 0), p2=(1000, 0)).render()
    space.add_radius_dim(center=(0, 0), radius=300, angle=45).render()
    if doc.dxfversion <= "AC1009":
        return
    extra = doc.rootdict.add_new_dict("公司数据")
    record = extra.add_xrecord("设置")
    record.reset([(1, "任意文字"), (90, 123), (40, 3.14), (330, "0"), (10, (1, 2, 3))])
    group = doc.groups.new("组", description="一组")
    with group.edit_data() as members:
        members.append(space[0])
        members.append(space[1])
    line = space.add_line((0, 0), (1, 1))
    line.new_extension_dict().add_xrecord("附加").reset([(1, "附加数据")])


def make(version, encoding):
    doc = ezdxf.new(version, setup=True)
    if encoding == "gbk":
        doc.encoding = "gbk"
        doc.header["$DWGCODEPAGE"] = "ANSI_936"
    add_layers_and_styles(doc)
    add_blocks(doc)
    space = doc.modelspace()
    add_simple(doc, space)
    add_pipes(doc, space)
    add_dimensions_and_objects(doc, space)
    paper = doc.layout("Layout1") if doc.dxfversion > "AC1009" else doc.layout()
    paper.add_text("图纸空间", dxfattribs={"height": 5})
    stray = paper.add_line((0, 0), (10, 10))
    stray.set_xdata("ZWT_PIPE", PIPE_DATA)
    return doc


def main(folder):
    os.makedirs(folder, exist_ok=True)
    for version in versions_supported_by_new:
        encodings = ["utf8"] if version >= "AC1021" else ["ascii", "gbk"]
        for encoding in encodings:
            make(version, encoding).saveas(os.path.join(folder, f"{version}-{encoding}.dxf"))


if __name__ == "__main__":
    main(sys.argv[1])

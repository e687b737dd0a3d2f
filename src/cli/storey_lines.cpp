// Drawing of storey lines and labels.
#include "cli/storey_lines.h"

#include "host/drawing/entities.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

constexpr double kAboveLine = 100;  // mm

}  // namespace

void DrawLabel(Drawing& drawing, const CString& content, const AcGePoint3d& position, AcDbObjectId layer) {
  TextValues label;
  label.content = content;
  label.position = position;
  label.height = drawing.AnnotationHeight();
  label.style = drawing.InitTextStyle(L"WT_TEXT");
  label.layer = layer;
  drawing.AddText(label);
}

void DrawStoreyLines(Drawing& drawing, const StoreyLines& lines) {
  const AcDbObjectId layer = drawing.InitLayer(GetZwtLayer(L"原理图", L"楼层", L""));
  for (std::int32_t storey = 0; storey <= lines.storeys; ++storey) {
    const double floor = storey * lines.storeyHeight;
    drawing.AddLine({lines.left, floor, 0}, {lines.right, floor, 0}, layer);
    const bool isRoof = storey == lines.storeys;
    DrawLabel(drawing, isRoof ? CString(L"屋面") : ZwtNum2Str(storey + 1) + L"F",
              {lines.left, floor + kAboveLine, 0}, layer);
  }
}

}  // namespace zwt

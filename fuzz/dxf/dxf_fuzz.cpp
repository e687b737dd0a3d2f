// Any bytes as a drawing: an error, or a drawing that is written as the same bytes, also after changes that
// were undone; and what is written after a change can be read again.
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "host/check/drawing_check.h"
#include "host/drawing/connections.h"
#include "host/drawing/drawing.h"
#include "host/dxf/dxf_file.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

/// Does what commands do to a drawing: pipes from lines, texts, layers, annotations, erasing.
void Change(zwt::Drawing& drawing) {
  const std::int32_t count = drawing.EntityCount();
  for (std::int32_t i = 0; i < count; ++i) {
    if (i % 2 == 0) drawing.MakePipe(i, {{L"WtSystem", L"给水"}, {L"Note", L"\\U+0041 \u00e9"}});
  }
  for (const std::int32_t pipe : drawing.Pipes()) {
    drawing.SetDiameter(pipe, 50);
    drawing.SetLayer(pipe, drawing.InitLayer(L"标注"), false);
  }
  drawing.AddPipe({0, 0, 0}, {0, 3000, 0}, {{L"Kind", L"0"}});
  zwt::TextValues text;
  text.content = L"DN50";
  text.style = drawing.InitTextStyle(L"WT_TEXT");
  drawing.AddText(text);
  if (count > 1) drawing.Erase(count / 2);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  std::unique_ptr<zwt::Drawing> drawing;
  try {
    drawing = zwt::ParseDrawing(bytes);
  } catch (const zwt::DrawingError&) {
    return 0;
  }
  Require(zwt::DrawingBytes(*drawing) == bytes);
  zwt::CheckDrawing(*drawing);
  Change(*drawing);
  const std::string changed = zwt::DrawingBytes(*drawing);
  const std::unique_ptr<zwt::Drawing> again = zwt::ParseDrawing(changed);
  Require(again->Pipes().size() == drawing->Pipes().size());
  Require(zwt::DrawingBytes(*again) == changed);
  while (drawing->CanUndo()) drawing->Undo();
  Require(zwt::DrawingBytes(*drawing) == bytes);
  return 0;
}

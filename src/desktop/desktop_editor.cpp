// Questions in the drawing.
#include "desktop/desktop_editor.h"

#include <utility>

#include "desktop/qt_text.h"
#include "host/editor/result_buffer.h"

namespace zwt {

namespace {

const auto kLookingAround = QStringLiteral("平移、缩放查看图面，Enter 或 Esc 返回：");

}  // namespace

/// Asks for a point.
class DesktopEditor::PointTool : public DrawingTool {
 public:
  explicit PointTool(QEventLoop& loop) : loop_(loop) {}

  std::int32_t Answer() const { return answer_; }
  const QPointF& Place() const { return place_; }
  double Reach() const { return reach_; }

  void Press(const PointerPlace& at) override {
    place_ = at.place;
    reach_ = at.reach;
    End(RTNORM);
  }
  void Move(const PointerPlace&) override {}
  void Release(const PointerPlace&) override {}
  void Enter() override { End(RTNONE); }
  void Escape() override { End(RTCAN); }
  void Paint(QPainter&, const ViewTransform&) const override {}

 private:
  void End(std::int32_t answer) {
    answer_ = answer;
    loop_.quit();
  }

  QEventLoop& loop_;
  std::int32_t answer_ = RTCAN;
  QPointF place_;
  double reach_ = 0;
};

DesktopEditor::DesktopEditor(DrawingArea& area, DrawingScene& scene, CommandPane& pane, NestedWaits& waits)
    : area_(area), scene_(scene), pane_(pane), waits_(waits), before_(InstallFrontEnd(this)) {}

DesktopEditor::~DesktopEditor() {
  InstallFrontEnd(before_);
}

void DesktopEditor::Ask(DrawingTool& tool, const QString& prompt, QEventLoop& loop) {
  const NestedWaits::Wait wait(waits_, [&tool] {
    // A tool may first give up what it has begun.
    tool.Escape();
    tool.Escape();
  });
  asking_ = true;
  area_.Use(&tool);
  area_.setFocus();
  pane_.SetPrompt(prompt);
  QMetaObject::invokeMethod(
      &area_,
      [this] {
        if (asking_ && onAsking) onAsking();
      },
      Qt::QueuedConnection);
  loop.exec();
  pane_.SetPrompt({});
  area_.Use(nullptr);
  asking_ = false;
}

std::optional<std::vector<AcDbObjectId>> DesktopEditor::SelectEntities(const CString& prompt,
                                                                       const EntityFilter& filter,
                                                                       bool single) {
  pane_.Print(prompt);
  if (waits_.IsCancelling()) return std::nullopt;
  QEventLoop loop;
  bool answered = false;
  SelectTool tool(
      scene_, [&](std::int32_t entity) { return filter(WorkingDrawing().IdOf(entity)); }, single);
  tool.onPicked = [&] { TellCount(tool); };
  tool.onRefused = [this] { pane_.Print(L"\n这个对象不在可选范围内。"); };
  tool.onEnded = [&](bool done) {
    answered = done;
    loop.quit();
  };
  Ask(tool, ToQt(prompt).trimmed(), loop);
  if (!answered) {
    pane_.Print(L"\n*取消*");
    return std::nullopt;
  }
  std::vector<AcDbObjectId> picked;
  for (const std::int32_t entity : tool.Picked()) picked.push_back(WorkingDrawing().IdOf(entity));
  return picked;
}

void DesktopEditor::TellCount(const SelectTool& tool) const {
  pane_.Print(L"\n已选择 " + std::to_wstring(tool.Picked().size()) + L" 个。");
}

std::int32_t DesktopEditor::GetPoint(const CString& prompt, AcGePoint3d& point) {
  if (waits_.IsCancelling()) return RTCAN;
  if (!prompt.empty()) pane_.Print(prompt);
  QEventLoop loop;
  PointTool tool(loop);
  Ask(tool, prompt.empty() ? kLookingAround : ToQt(prompt).trimmed(), loop);
  if (prompt.empty() && tool.Answer() == RTNORM && onLookedAt) onLookedAt(tool.Place(), tool.Reach());
  point = {tool.Place().x(), tool.Place().y(), 0};
  return tool.Answer();
}

void DesktopEditor::TakeLine(const QString& line) {
  DrawingTool* tool = area_.Tool();
  if (!asking_ || tool == nullptr) return;
  if (line.isEmpty()) {
    tool->Enter();
  } else if (!tool->Take(line)) {
    pane_.Print(L"\n请在图中点取，Enter 结束，Esc 取消。");
  }
  area_.update();
}

void DesktopEditor::Escape() {
  if (asking_ && area_.Tool() != nullptr) area_.Tool()->Escape();
  area_.update();
}

}  // namespace zwt

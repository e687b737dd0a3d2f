// Selection, drawing, erasing.
#include "desktop/drawing_edits.h"

#include <utility>

#include "desktop/pipe_edits.h"
#include "host/editor/pipe_marking.h"

namespace zwt {

namespace {

/// What a new pipe takes over from the one that is selected.
FieldList FieldsOfNewPipe(Entities selected) {
  FieldList fields;
  for (const wchar_t* key : {L"WtSystem", L"Material"}) {
    const std::optional<CString> text = CommonField(selected, key);
    if (text && !text->empty()) fields.emplace_back(key, *text);
  }
  return fields;
}

AcDbObjectId LayerOfNewPipe(Entities selected) {
  const Drawing& drawing = WorkingDrawing();
  return selected.empty() ? AcDbObjectId{} : drawing.LayerId(drawing.Entity(selected.front()).layer);
}

}  // namespace

DrawingEdits::DrawingEdits(DrawingArea& area, DrawingScene& scene, QWidget* parent)
    : area_(area),
      scene_(scene),
      properties_(new PropertyView(parent)),
      findings_(new FindingsView(parent)),
      selection_(
          scene, [](std::int32_t entity) { return CanBePipe(WorkingDrawing(), entity); }, false) {
  selection_.onPicked = [this] { properties_->Show(selection_.Picked()); };
  selection_.onEnded = [this](bool done) {
    if (!done) {
      Select({});
    } else if (onEnter) {
      onEnter();
    }
  };
  properties_->onNote = [this](const CString& text) {
    if (onNote) onNote(text);
  };
  findings_->onNote = properties_->onNote;
  findings_->onShow = [this](const Finding& finding) { ShowFinding(finding); };
  area_.SetStandingTool(&selection_);
}

DrawingEdits::~DrawingEdits() {
  area_.Use(nullptr);
  area_.SetStandingTool(nullptr);
}

void DrawingEdits::AddTo(QMenu& menu) {
  const auto add = [&](const QString& text, const QKeySequence& keys, const char* name, auto act) {
    QAction* action = menu.addAction(text, &menu, act);
    action->setShortcut(keys);
    action->setObjectName(QLatin1String(name));
    actions_.append(action);
  };
  add(QStringLiteral("画管道(&P)"), QKeySequence(Qt::CTRL | Qt::Key_L), "drawPipe",
      [this] { BeginDrawing(); });
  add(QStringLiteral("删除所选(&D)"), QKeySequence(), "eraseSelected", [this] { EraseSelected(); });
  add(QStringLiteral("检查图面(&C)"), QKeySequence(Qt::Key_F7), "checkDrawingAction",
      [this] { findings_->Check(); });
  area_.onDelete = [this] { EraseSelected(); };
}

void DrawingEdits::SetEnabled(bool enabled) {
  if (!enabled) EndDrawing();
  properties_->setEnabled(enabled);
  findings_->setEnabled(enabled);
  for (QAction* action : actions_) action->setEnabled(enabled);
}

void DrawingEdits::Select(std::vector<std::int32_t> entities) {
  selection_.SetPicked(std::move(entities));
  properties_->Show(selection_.Picked());
  area_.update();
}

void DrawingEdits::Follow() {
  selection_.Forget();
  properties_->Show(selection_.Picked());
  findings_->Follow();
}

void DrawingEdits::Reset() {
  EndDrawing();
  Select({});
  findings_->Reset();
}

void DrawingEdits::BeginDrawing() {
  EndDrawing();
  const std::vector<std::int32_t> selected = PipesAmong(selection_.Picked());
  drawing_ = std::make_unique<DrawPipeTool>(scene_, FieldsOfNewPipe(selected), LayerOfNewPipe(selected));
  // The tool calls from within: it goes when control is back.
  drawing_->onEnded = [this] {
    QMetaObject::invokeMethod(
        &area_, [this] { EndDrawing(); }, Qt::QueuedConnection);
  };
  area_.Use(drawing_.get());
  area_.setFocus();
  if (onPrompt) onPrompt(QStringLiteral("管道起点、下一点，Esc 断开，Enter 结束："));
}

void DrawingEdits::EndDrawing() {
  if (drawing_ == nullptr) return;
  area_.Use(nullptr);
  const std::unique_ptr<DrawPipeTool> done = std::exchange(drawing_, nullptr);
  if (onPrompt) onPrompt({});
  Select(done->Drawn());
}

void DrawingEdits::Escape() {
  if (drawing_ != nullptr) {
    drawing_->Escape();
  } else {
    Select({});
  }
  area_.update();
}

void DrawingEdits::EraseSelected() {
  if (!properties_->isEnabled() || selection_.Picked().empty()) return;
  EraseAll(selection_.Picked());
  Select({});
}

void DrawingEdits::ShowFinding(const Finding& finding) {
  std::vector<std::int32_t> entities;
  for (const std::uint64_t handle : finding.handles) {
    const std::int32_t entity = WorkingDrawing().FindHandle(handle);
    if (entity >= 0 && CanBePipe(WorkingDrawing(), entity)) entities.push_back(entity);
  }
  Select(entities);
  // Near enough to see a gap of millimetres, far enough to see where it is.
  constexpr double kAround = 150;  // mm
  const QPointF place(finding.place.x, finding.place.y);
  const QPointF around(kAround, kAround);
  area_.ZoomTo(QRectF(place - around, place + around));
}

}  // namespace zwt

// Group boxes, rows and columns of a panel's widgets.
#include "desktop/panel_layout.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "desktop/qt_text.h"

namespace zwt {

namespace {

bool IsField(const ControlTemplate& control) {
  return control.kind == ControlKind::kEdit || control.kind == ControlKind::kCombo;
}

bool IsTable(const ControlTemplate& control) {
  return control.kind == ControlKind::kGrid || control.kind == ControlKind::kList;
}

/// A text of several lines, which takes the width that there is.
bool IsNote(const ControlTemplate& control) {
  return control.kind == ControlKind::kStatic && (control.style & kMultiLine) != 0;
}

bool IsLarge(const ControlTemplate& control) {
  return IsTable(control) || (control.kind == ControlKind::kEdit && (control.style & kMultiLine) != 0);
}

/// Deals the cells of one row into the columns of a box: label, field, label, field.
class RowFiller {
 public:
  RowFiller(QGridLayout& grid, int row, const PanelLayout::ViewOf& viewOf)
      : grid_(grid), row_(row), viewOf_(viewOf) {}

  void Fill(const PanelRow& controls) {
    const ControlTemplate& first = *controls.front();
    const bool form = controls.size() > 1 && IsField(*controls[1]) && first.kind == ControlKind::kButton;
    if (std::any_of(controls.begin(), controls.end(), [](const auto* c) { return IsLarge(*c); })) {
      FillWide(controls, true);
    } else if (form || IsField(first)) {
      FillForm(controls);
    } else {
      FillWide(controls, false);
    }
  }

 private:
  void FillForm(const PanelRow& controls) {
    int column = 0;
    for (const ControlTemplate* control : controls) {
      ControlView& view = viewOf_(control->id);
      if (IsField(*control)) {
        column += column % 2 == 0 && view.LabelWidget() == nullptr ? 1 : 0;
        if (view.LabelWidget() != nullptr) AddLabel(*view.LabelWidget(), column);
      }
      grid_.addWidget(view.Widget(), row_, column++);
    }
  }

  void AddLabel(QLabel& label, int& column) {
    column += column % 2;
    grid_.addWidget(&label, row_, column++, Qt::AlignRight | Qt::AlignVCenter);
  }

  /// A row without aligned fields, over all columns of the box.
  void FillWide(const PanelRow& controls, bool large) {
    auto* line = new QHBoxLayout;
    for (const ControlTemplate* control : controls) {
      ControlView& view = viewOf_(control->id);
      const bool wide = IsLarge(*control) || IsNote(*control);
      const int stretch = wide ? std::max(view.Widget()->sizeHint().width(), 1) : 0;
      if (view.LabelWidget() != nullptr && large) {
        line->addLayout(Labelled(view), stretch);
      } else {
        if (view.LabelWidget() != nullptr) line->addWidget(view.LabelWidget());
        line->addWidget(view.Widget(), stretch);
      }
    }
    const bool note = std::any_of(controls.begin(), controls.end(), [](const auto* c) { return IsNote(*c); });
    if (!large && !note) line->addStretch(1);
    grid_.addLayout(line, row_, 0, 1, -1);
    if (large) grid_.setRowStretch(row_, 1);
  }

  /// A table or text with its caption above it.
  static QLayout* Labelled(ControlView& view) {
    auto* column = new QVBoxLayout;
    column->addWidget(view.LabelWidget());
    column->addWidget(view.Widget(), 1);
    return column;
  }

  QGridLayout& grid_;
  int row_;
  const PanelLayout::ViewOf& viewOf_;
};

/// The fields of boxes that lie below each other begin at the same place.
void AlignFields(const std::vector<QGridLayout*>& grids) {
  int widest = 0;
  for (const QGridLayout* grid : grids) {
    for (int row = 0; grid->columnCount() > 1 && row < grid->rowCount(); ++row) {
      const QLayoutItem* label = grid->itemAtPosition(row, 0);
      if (label == nullptr || label == grid->itemAtPosition(row, 1)) continue;
      widest = std::max(widest, label->sizeHint().width());
    }
  }
  for (QGridLayout* grid : grids) {
    if (grid->columnCount() > 1) grid->setColumnMinimumWidth(0, widest);
  }
}

bool HasLarge(const PanelBox& box) {
  return std::any_of(box.rows.begin(), box.rows.end(), [](const PanelRow& row) {
    return std::any_of(row.begin(), row.end(), [](const auto* control) { return IsLarge(*control); });
  });
}

bool HasLarge(const PanelBand& band) {
  return std::any_of(band.columns.begin(), band.columns.end(), [](const auto& boxes) {
    return std::any_of(boxes.begin(), boxes.end(), [](const PanelBox& box) { return HasLarge(box); });
  });
}

}  // namespace

PanelLayout::PanelLayout(QWidget& window, const PanelPlan& plan, ViewOf viewOf)
    : window_(window), viewOf_(std::move(viewOf)) {
  auto* all = new QVBoxLayout(&window);
  for (const PanelBand& band : plan.bands) {
    const bool large = HasLarge(band);
    canGrow_ = canGrow_ || large;
    all->addLayout(MakeBand(band), large ? 1 : 0);
  }
  if (!plan.buttonRow.empty()) all->addLayout(MakeButtonRow(plan.buttonRow));
  FollowVisibility();
}

QLayout* PanelLayout::MakeBand(const PanelBand& band) {
  auto* columns = new QHBoxLayout;
  for (const auto& boxes : band.columns) {
    if (!boxes.empty()) columns->addLayout(MakeColumn(boxes), 1);
  }
  return columns;
}

QLayout* PanelLayout::MakeColumn(const std::vector<PanelBox>& boxes) {
  auto* column = new QVBoxLayout;
  std::vector<QGridLayout*> grids;
  bool large = false;
  for (const PanelBox& box : boxes) {
    grids.push_back(MakeBox(box));
    column->addWidget(grids.back()->parentWidget(), HasLarge(box) ? 1 : 0);
    large = large || HasLarge(box);
  }
  if (!large) column->addStretch(1);
  AlignFields(grids);
  return column;
}

QGridLayout* PanelLayout::MakeBox(const PanelBox& box) {
  const bool framed = !std::wstring_view(box.title).empty();
  QWidget* frame = framed ? new QGroupBox(ToQt(WithoutShortcut(box.title)), &window_) : new QWidget(&window_);
  QGridLayout* grid = FillBox(*frame, box);
  Box made{.frame = frame, .controls = {}};
  for (const PanelRow& row : box.rows) {
    for (const ControlTemplate* control : row) made.controls.push_back(&viewOf_(control->id).Control());
  }
  boxes_.push_back(std::move(made));
  return grid;
}

QGridLayout* PanelLayout::FillBox(QWidget& frame, const PanelBox& box) {
  auto* grid = new QGridLayout(&frame);
  if (std::wstring_view(box.title).empty()) grid->setContentsMargins(0, 0, 0, 0);
  int row = 0;
  for (const PanelRow& controls : box.rows) RowFiller(*grid, row++, viewOf_).Fill(controls);
  for (int column = 1; column < grid->columnCount(); column += 2) grid->setColumnStretch(column, 1);
  return grid;
}

QLayout* PanelLayout::MakeButtonRow(const PanelRow& row) {
  auto* line = new QHBoxLayout;
  buttonRow_ = line;
  line->addStretch(1);
  for (const ControlTemplate* control : row) {
    ControlView& view = viewOf_(control->id);
    if (view.LabelWidget() != nullptr) line->addWidget(view.LabelWidget());
    line->addWidget(view.Widget());
  }
  return line;
}

void PanelLayout::AddAside(QWidget& widget) {
  if (buttonRow_ != nullptr) buttonRow_->insertWidget(0, &widget);
}

void PanelLayout::FollowVisibility() {
  for (const Box& box : boxes_) {
    const bool any = std::any_of(box.controls.begin(), box.controls.end(),
                                 [](const CWnd* control) { return control->IsWindowVisible(); });
    box.frame->setVisible(any);
  }
}

}  // namespace zwt

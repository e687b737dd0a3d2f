// Combo boxes.
#include "desktop/combo_view.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/qt_text.h"

namespace zwt {

namespace {

/// The wheel scrolls the panel past combo boxes; only one that has the focus turns with it.
class QuietComboBox : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }
};

}  // namespace

ComboView::ComboView(CWnd& control, PanelActions& actions, const PanelMetrics& metrics, QWidget* parent)
    : ControlView(control, actions), box_(new QuietComboBox(parent)) {
  box_->setFocusPolicy(Qt::StrongFocus);
  box_->setMinimumWidth(metrics.FieldWidth(control.Shape()));
  box_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  box_->setMaxVisibleItems(20);
  box_->setEditable(Model().IsEditable());
  box_->setInsertPolicy(QComboBox::NoInsert);
  if (box_->isEditable()) {
    box_->setCompleter(nullptr);
    QObject::connect(box_->lineEdit(), &QLineEdit::textEdited, box_, [this](const QString& text) {
      Actions().Act([&] { Control().SetWindowText(FromQt(text)); });
    });
  }
  FollowItems();
  FollowState();
  QObject::connect(box_, &QComboBox::activated, box_, [this](int index) { Pick(index); });
}

CComboBox& ComboView::Model() const {
  return dynamic_cast<CComboBox&>(Control());
}

void ComboView::Pick(int index) {
  Actions().Act([&] {
    CDialog& panel = Control().Panel();
    const int id = Control().GetDlgCtrlID();
    if (Model().GetCurSel() != index) {
      Model().SetCurSel(index);
      panel.NotifySelectionChange(id);
    }
    if (!panel.HasEnded()) panel.NotifyDropDownClosed(id);
  });
}

void ComboView::FollowItems() {
  QStringList items;
  for (const CString& item : Model().Items()) items.append(ToQt(item));
  box_->clear();
  box_->addItems(items);
  int widest = 0;
  for (const QString& item : items) {
    widest = std::max(widest, box_->fontMetrics().horizontalAdvance(item));
  }
  const int frame = box_->fontMetrics().height() * 2;
  box_->view()->setMinimumWidth(widest + frame);
  FollowSelection();
}

void ComboView::FollowSelection() {
  if (box_->currentIndex() != Model().GetCurSel()) box_->setCurrentIndex(Model().GetCurSel());
  if (!box_->isEditable()) return;
  const QString text = ToQt(Model().GetWindowText());
  if (box_->currentText() != text) box_->setEditText(text);
}

void ComboView::Follow(ControlAspect aspect) {
  if (aspect == ControlAspect::kItems) FollowItems();
  if (aspect == ControlAspect::kText || aspect == ControlAspect::kSelection) FollowSelection();
  ControlView::Follow(aspect);
}

void ComboView::TakeFocus(bool selected) {
  ControlView::TakeFocus(selected);
  if (selected && box_->isEditable()) box_->lineEdit()->selectAll();
}

}  // namespace zwt

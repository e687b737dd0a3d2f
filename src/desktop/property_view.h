// The properties of what is selected: fields of many pipes at once, lines that become pipes, proposals, and
// copying a storey upward. Every action is one undo step.
#pragma once

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QWidget>
#include <functional>
#include <map>
#include <vector>

#include "host/text/wide_text.h"

namespace zwt {

class PropertyView : public QWidget {
 public:
  explicit PropertyView(QWidget* parent);

  /// Shows these entities of the working drawing, by index.
  void Show(std::vector<std::int32_t> entities);
  /// Shows what has become of them.
  void Follow();
  const std::vector<std::int32_t>& Entities() const { return entities_; }

  /// The field of a key, null for none.
  QComboBox* FieldOf(const CString& key) const;

  /// A line for the command line.
  std::function<void(const CString&)> onNote;

 private:
  void MakeFields(QWidget& form);
  void TakeField(const CString& key);
  void ShowField(const CString& key, QComboBox& field);
  void MakePipes();
  void Propose();
  void CopyUpward();
  void Note(const CString& text) const;
  QPushButton* AddButton(const QString& text, const char* name, void (PropertyView::*act)());

  std::vector<std::int32_t> entities_;
  QLabel* summary_;
  QPushButton* makePipes_;
  QPushButton* propose_;
  QWidget* form_;
  std::map<CString, QComboBox*> fields_;
  QDoubleSpinBox* height_;
  QSpinBox* storeys_;
  QPushButton* copy_;
};

}  // namespace zwt

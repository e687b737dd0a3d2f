// The exchange between a panel's members and its controls, in one place per panel (DoDataExchange). Taking
// values in goes through the fields in the order in which they are listed and stops at the first that is
// refused; the fields before it are taken in, the refused one keeps the value last held.
#pragma once

#include <cstdint>

#include "host/text/wide_text.h"

class CDialog;
class CEdit;

class CDataExchange {
 public:
  enum class Direction : std::uint8_t {
    kShow,          // members to controls
    kTake,          // controls to members, stopping at the first refused field
    kTakeReadable,  // the same, passing over refused fields: leaving a panel always works
  };

  CDataExchange(CDialog& panel, Direction direction)
      : m_panel(panel), m_bSaveAndValidate(direction != Direction::kShow), direction_(direction) {}

  CDialog& m_panel;
  const bool m_bSaveAndValidate;

  /// Whether an earlier field was refused, so that nothing further is taken in.
  bool Stopped() const { return refused_ != nullptr && direction_ == Direction::kTake; }
  /// The first refused field, null if all were taken in.
  CEdit* Refused() const { return refused_; }
  void Refuse(CEdit& field) {
    if (refused_ == nullptr) refused_ = &field;
  }

 private:
  Direction direction_;
  CEdit* refused_ = nullptr;
};

/// Edit field with a number. A text that is none, the empty text included, is refused.
void DDX_Text(CDataExchange* exchange, int id, double& value);
/// Edit field with a whole number; "2.5" is refused.
void DDX_Text(CDataExchange* exchange, int id, std::int32_t& value);
/// Any control with a text.
void DDX_Text(CDataExchange* exchange, int id, CString& value);
/// Check box, 0 or 1.
void DDX_Check(CDataExchange* exchange, int id, std::int32_t& value);
/// Radio buttons from the first of a group on: the index of the checked one, -1 for none.
void DDX_Radio(CDataExchange* exchange, int firstId, std::int32_t& value);
void DDX_CBIndex(CDataExchange* exchange, int id, std::int32_t& index);
void DDX_CBString(CDataExchange* exchange, int id, CString& value);
/// Behind the DDX_Text of the same field: refuses a value outside the bounds, which belong to the range.
void DDV_MinMaxDouble(CDataExchange* exchange, int id, double value, double lowest, double highest);

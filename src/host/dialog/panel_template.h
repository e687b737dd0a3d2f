// Panel templates: constant tables from which a panel's controls are made, whoever shows them. Reading the
// table at the top of a panel's file is seeing the panel. The module registers its templates on load, so that
// both programs can list and explain its panels without opening them.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "host/text/wide_text.h"

namespace zwt {

enum class ControlKind : std::uint8_t { kEdit, kStatic, kButton, kRadio, kCheck, kCombo, kList, kGrid };

/// What a field holds; a number field is shown and read as a number by the exchange.
enum class ValueKind : std::uint8_t { kText, kNumber, kWholeNumber };

/// Where a control stands. Rows follow each other from the top; the button row closes the panel.
enum class Placement : std::uint8_t { kRow, kBeside, kButtonRow };

/// Bits of ControlTemplate::style.
enum ControlStyle : unsigned {
  kReadOnly = 1,         // edit: shown and copyable, not typed into
  kDisabled = 2,         // opens disabled
  kHidden = 4,           // opens hidden
  kDefaultButton = 8,    // push button pressed by Enter
  kGroupStart = 16,      // first radio button of its group
  kEditableCombo = 32,   // combo box that takes typed text as well
  kMultiLine = 64,       // edit or static of several lines
  kNumbersOnly = 128,    // edit that takes no other characters than a number's
  kReportsWrites = 256,  // grid that reports cells written by the program as changes, too
};

/// The items of a combo box, as a constant list.
using ItemList = std::span<const wchar_t* const>;

/// One control of a panel.
struct ControlTemplate {
  int id = 0;                  // public numbers lie below 3000, internal ones from 3000 on
  const wchar_t* name = L"";   // the value that it is bound to; empty where there is none
  const wchar_t* label = L"";  // the text beside it, or on it for statics, buttons, radios and checks
  ControlKind kind = ControlKind::kStatic;
  unsigned style = 0;
  ItemList items = {};        // combo box
  const wchar_t* text = L"";  // content on opening
  ValueKind value = ValueKind::kText;
  const wchar_t* group = L"";  // title of the group box around it; neighbours with the same title share it
  Placement place = Placement::kRow;
  int column = 0;   // panels with several columns of groups count them from 0
  int labelOf = 0;  // static: the control whose label it is
  int width = 0;    // wish in dialog units, 0 for the usual one
  int height = 0;   // likewise, for grids, lists and multi-line fields
};

/// One panel.
struct PanelTemplate {
  int resource = 0;
  const wchar_t* className = L"";
  const wchar_t* title = L"";
  const wchar_t* command = L"";  // the command that opens it; empty for panels that others open
  std::span<const ControlTemplate> controls = {};
  std::span<const int> calculatingButtons = {};  // in the order in which a batch run presses them
  std::span<const int> results = {};             // the controls that hold what was calculated
};

/// Makes a panel known to listing and explaining programs. The template must outlive its registration.
void RegisterPanel(const PanelTemplate& panel);

/// Takes a panel out again; unknown ones are passed over.
void UnregisterPanel(const PanelTemplate& panel);

/// The registered panels in the order of registration.
const std::vector<const PanelTemplate*>& RegisteredPanels();

/// The panel that a command opens, null if none is registered. The name compares exactly.
const PanelTemplate* FindPanelOfCommand(const CString& command);

/// A label without the mark of its shortcut: "调节容积(&A)" becomes "调节容积(A)".
CString WithoutShortcut(const CString& label);

}  // namespace zwt

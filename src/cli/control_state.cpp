// One function for each kind of control.
#include "cli/control_state.h"

#include <nlohmann/json.hpp>

#include "host/dialog/grid_control.h"
#include "host/text/wide_text.h"

namespace zwt {

namespace {

using Json = nlohmann::ordered_json;

Json Texts(const std::vector<CString>& texts) {
  Json list = Json::array();
  for (const CString& text : texts) list.push_back(Utf8FromWide(text));
  return list;
}

Json GridCells(const CGridCtrl& grid) {
  Json rows = Json::array();
  for (int row = 0; row < grid.GetRowCount(); ++row) {
    Json cells = Json::array();
    for (int column = 0; column < grid.GetColumnCount(); ++column) {
      cells.push_back(Utf8FromWide(grid.GetItemText(row, column)));
    }
    rows.push_back(std::move(cells));
  }
  return rows;
}

Json GridWidths(const CGridCtrl& grid) {
  Json widths = Json::array();
  for (int column = 0; column < grid.GetColumnCount(); ++column)
    widths.push_back(grid.GetColumnWidth(column));
  return widths;
}

/// The list of what entry(row, column) makes of the cells, without its nulls.
template <typename Entry>
Json CellList(const CGridCtrl& grid, Entry entry) {
  Json list = Json::array();
  for (int row = 0; row < grid.GetRowCount(); ++row) {
    for (int column = 0; column < grid.GetColumnCount(); ++column) {
      Json found = entry(row, column);
      if (!found.is_null()) list.push_back(std::move(found));
    }
  }
  return list;
}

Json MergedAreas(const CGridCtrl& grid) {
  Json list = Json::array();
  for (const MergedArea& area : grid.MergedAreas()) {
    if (area.rows > 1 || area.columns > 1) list.push_back({area.row, area.column, area.rows, area.columns});
  }
  return list;
}

Json SelectedRange(const CGridCtrl& grid) {
  const CCellRange range = grid.GetSelectedCellRange();
  if (!range.IsValid()) return nullptr;
  return {range.minRow, range.minColumn, range.maxRow, range.maxColumn};
}

void AddGrid(Json& state, const CGridCtrl& grid) {
  state["rows"] = grid.GetRowCount();
  state["columns"] = grid.GetColumnCount();
  state["cells"] = GridCells(grid);
  state["widths"] = GridWidths(grid);
  state["readonly"] = CellList(grid, [&](int row, int column) -> Json {
    return grid.IsReadOnly(row, column) ? Json{row, column} : Json(nullptr);
  });
  state["modified"] = CellList(grid, [&](int row, int column) -> Json {
    return grid.IsModified(row, column) ? Json{row, column} : Json(nullptr);
  });
  state["background"] = CellList(grid, [&](int row, int column) -> Json {
    const auto colour = grid.GetItemBkColour(row, column);
    return colour ? Json{row, column, *colour} : Json(nullptr);
  });
  state["choices"] = CellList(grid, [&](int row, int column) -> Json {
    const CGridBtnCellCombo* combo = grid.GetCombo(row, column);
    return combo != nullptr ? Json::array({row, column, Texts(combo->choices)}) : Json(nullptr);
  });
  state["merged"] = MergedAreas(grid);
  state["selected"] = SelectedRange(grid);
}

void AddList(Json& state, const CListCtrl& list) {
  Json rows = Json::array();
  for (int row = 0; row < list.GetItemCount(); ++row) {
    Json cells = Json::array();
    for (int column = 0; column < static_cast<int>(list.Columns().size()); ++column) {
      cells.push_back(Utf8FromWide(list.GetItemText(row, column)));
    }
    rows.push_back(std::move(cells));
  }
  state["cells"] = std::move(rows);
  Json selected = Json::array();
  for (const int row : list.SelectedRows()) selected.push_back(row);
  state["selected"] = std::move(selected);
}

}  // namespace

std::string ControlKey(const CWnd& control) {
  const ControlTemplate& shape = control.Shape();
  if (shape.id < kFirstInternalNumber) return std::to_string(shape.id);
  if (*shape.name != L'\0') return Utf8FromWide(shape.name);
  return Utf8FromWide(WithoutShortcut(control.Label()));
}

bool IsMereLabel(const CWnd& control) {
  const ControlTemplate& shape = control.Shape();
  return shape.labelOf != 0 && shape.id >= kFirstInternalNumber && *shape.name == L'\0';
}

const char* ControlKindName(ControlKind kind) {
  switch (kind) {
    case ControlKind::kEdit:
      return "edit";
    case ControlKind::kStatic:
      return "static";
    case ControlKind::kButton:
      return "button";
    case ControlKind::kRadio:
      return "radio";
    case ControlKind::kCheck:
      return "check";
    case ControlKind::kCombo:
      return "combo";
    case ControlKind::kList:
      return "list";
    case ControlKind::kGrid:
      return "grid";
  }
  return "";
}

Json ControlState(const CWnd& control) {
  Json state;
  state["kind"] = ControlKindName(control.Shape().kind);
  state["text"] = Utf8FromWide(control.GetWindowText());
  state["enabled"] = control.IsWindowEnabled();
  state["visible"] = control.IsWindowVisible();
  if (const auto* edit = dynamic_cast<const CEdit*>(&control)) {
    state["readonly"] = edit->IsReadOnly();
  } else if (const auto* combo = dynamic_cast<const CComboBox*>(&control)) {
    state["index"] = combo->GetCurSel();
    state["items"] = Texts(combo->Items());
  } else if (const auto* grid = dynamic_cast<const CGridCtrl*>(&control)) {
    AddGrid(state, *grid);
  } else if (const auto* list = dynamic_cast<const CListCtrl*>(&control)) {
    AddList(state, *list);
  } else if (const auto* button = dynamic_cast<const CButton*>(&control)) {
    if (control.Shape().kind != ControlKind::kButton) state["checked"] = button->GetCheck();
  }
  return state;
}

}  // namespace zwt

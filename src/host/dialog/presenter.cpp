// The presenter in force.
#include "host/dialog/presenter.h"

#include <utility>

namespace zwt {

namespace {

Presenter*& Current() {
  static Presenter* presenter = nullptr;
  return presenter;
}

}  // namespace

Presenter* CurrentPresenter() {
  return Current();
}

Presenter* SetPresenter(Presenter* presenter) {
  return std::exchange(Current(), presenter);
}

}  // namespace zwt

void AfxMessageBox(const CString& text) {
  if (zwt::Presenter* presenter = zwt::CurrentPresenter()) {
    presenter->ShowMessage(nullptr, text, L"", zwt::MessageIcon::kNone);
  }
}

// A presenter for tests: each panel that opens is handed to the next user function in the queue, and what the
// panels do meanwhile is recorded. A panel that is still open when its function returns is closed by its
// close box.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "host/dialog/panel_user.h"

namespace zwt::test {

class PanelRun : public Presenter, private PanelListener {
 public:
  using UserFunction = std::function<void(PanelUser& user, CDialog& panel)>;

  struct Message {
    CString text;
    CString caption;
    MessageIcon icon;
    bool operator==(const Message&) const = default;
  };
  struct Focus {
    int panel;
    int control;
    bool selected;
    bool operator==(const Focus&) const = default;
  };
  struct Closed {
    int panel;
    int code;
    bool operator==(const Closed&) const = default;
  };

  PanelRun() : before_(SetPresenter(this)) {}
  PanelRun(const PanelRun&) = delete;
  PanelRun& operator=(const PanelRun&) = delete;
  ~PanelRun() override { SetPresenter(before_); }

  /// Queues the user of the next panel that opens. A panel that opens while another is shown takes the next
  /// one.
  void User(UserFunction user) { users_.push_back(std::move(user)); }

  std::vector<Message> messages;
  std::vector<Focus> focuses;
  std::vector<CString> opened;  // titles, in the order of opening
  std::vector<Closed> closed;
  std::vector<CString> progress;  // texts of modeless panels
  int gaveWay = 0;                // how often a panel made room for the drawing
  int returned = 0;

 private:
  void RunModal(CDialog& panel) override {
    opened.emplace_back(panel.Shape().title);
    panel.AddListener(this);
    if (!users_.empty()) {
      const UserFunction act = std::move(users_.front());
      users_.pop_front();
      PanelUser user(panel);
      act(user, panel);
    }
    if (!panel.HasEnded()) panel.NotifyClose();
    panel.RemoveListener(this);
    closed.push_back({panel.Shape().resource, panel.EndCode()});
  }

  void ShowModeless(CDialog& panel) override {
    for (const auto& control : panel.Controls()) progress.push_back(control->GetWindowText());
  }
  void CloseModeless(CDialog&) override {}
  void ShowMessage(CDialog*, const CString& text, const CString& caption, MessageIcon icon) override {
    messages.push_back({text, caption, icon});
  }
  void GiveWayToDrawing(CDialog&) override { ++gaveWay; }
  void ReturnFromDrawing(CDialog&) override { ++returned; }

  void OnControlChanged(CWnd&, ControlAspect) override {}
  void OnFocusMoved(CWnd& control, bool selected) override {
    focuses.push_back({control.Panel().Shape().resource, control.GetDlgCtrlID(), selected});
  }
  void OnEnded() override {}

  Presenter* before_;
  std::deque<UserFunction> users_;
};

}  // namespace zwt::test

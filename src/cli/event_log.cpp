// Each kind of event with its keys.
#include "cli/event_log.h"

#include <nlohmann/json.hpp>

#include "cli/control_state.h"
#include "cli/explanation.h"
#include "cli/json_layout.h"
#include "host/text/wide_text.h"

namespace zwt {

using Json = nlohmann::ordered_json;

namespace {

Json Event(const char* name) {
  return {{"event", name}};
}

/// The texts of a panel's statics, one under the other.
std::string TextsOf(const CDialog& panel) {
  std::string texts;
  for (const auto& control : panel.Controls()) {
    if (control->Shape().kind != ControlKind::kStatic) continue;
    texts += (texts.empty() ? "" : "\n") + Utf8FromWide(control->Label());
  }
  return texts;
}

}  // namespace

EventLog::EventLog(bool explains) : explains_(explains), events_(std::make_unique<Json>(Json::array())) {}

EventLog::~EventLog() = default;

void EventLog::Command(const CString& name) {
  Json event = Event("command");
  event["name"] = Utf8FromWide(name);
  events_->push_back(std::move(event));
}

void EventLog::Print(const CString& text) {
  Json event = Event("print");
  event["text"] = Utf8FromWide(text);
  events_->push_back(std::move(event));
}

void EventLog::Open(const CDialog& panel) {
  Json event = Event("open");
  event["panel"] = panel.Shape().resource;
  event["class"] = Utf8FromWide(panel.Shape().className);
  event["title"] = Utf8FromWide(panel.Shape().title);
  events_->push_back(std::move(event));
}

void EventLog::Close(const CDialog& panel) {
  Json event = Event("close");
  event["panel"] = panel.Shape().resource;
  event["code"] = panel.EndCode();
  events_->push_back(std::move(event));
}

void EventLog::Read(const CDialog& panel, const std::vector<const CWnd*>& controls) {
  Json values = Json::object();
  for (const CWnd* control : controls) {
    const std::string key = ControlKey(*control);
    if (key.empty() || values.contains(key)) continue;
    Json& state = values[key] = ControlState(*control);
    if (!explains_) continue;
    Json explanation = ExplanationJson(*control);
    if (!explanation.is_null()) state["explanation"] = std::move(explanation);
  }
  Json event = Event("read");
  event["panel"] = panel.Shape().resource;
  event["values"] = std::move(values);
  events_->push_back(std::move(event));
}

void EventLog::Focus(const CWnd& control, bool selected) {
  Json event = Event("focus");
  event["panel"] = control.Panel().Shape().resource;
  const int number = control.GetDlgCtrlID();
  event["control"] = number < kFirstInternalNumber ? Json(number) : Json(ControlKey(control));
  event["selected"] = selected;
  events_->push_back(std::move(event));
}

void EventLog::Message(const CString& text, const CString& caption, MessageIcon icon) {
  Json event = Event("message");
  event["text"] = Utf8FromWide(text);
  event["caption"] = Utf8FromWide(caption);
  event["icon"] = icon == MessageIcon::kStop ? "stop" : "none";
  events_->push_back(std::move(event));
}

void EventLog::Progress(const CDialog& panel) {
  Json event = Event("progress");
  event["text"] = TextsOf(panel);
  events_->push_back(std::move(event));
}

void EventLog::Erase(std::string_view handle, const CString& type, const CString& layer,
                     const CString* text) {
  Entity("erase", handle, type, layer, text);
}

void EventLog::Add(std::string_view handle, const CString& type, const CString& layer, const CString* text) {
  Entity("add", handle, type, layer, text);
}

void EventLog::Entity(const char* name, std::string_view handle, const CString& type, const CString& layer,
                      const CString* text) {
  Json event = Event(name);
  event["handle"] = handle;
  event["type"] = Utf8FromWide(type);
  event["layer"] = Utf8FromWide(layer);
  if (text != nullptr) event["text"] = Utf8FromWide(*text);
  events_->push_back(std::move(event));
}

void EventLog::SetDiameter(std::string_view handle, double diameter) {
  Json event = Event("set-diameter");
  event["handle"] = handle;
  event["diameter"] = JsonNumber(diameter);
  events_->push_back(std::move(event));
}

void EventLog::SetField(std::string_view handle, const CString& key, const CString& text) {
  Json event = Event("set-field");
  event["handle"] = handle;
  event["key"] = Utf8FromWide(key);
  event["text"] = Utf8FromWide(text);
  events_->push_back(std::move(event));
}

void EventLog::Report(const CString& templateName, std::string_view file) {
  Json event = Event("report");
  event["template"] = Utf8FromWide(templateName);
  event["file"] = file;
  events_->push_back(std::move(event));
}

std::string EventLog::Result() const {
  Json result;
  result["events"] = *events_;
  return LayOutJson(result) + '\n';
}

}  // namespace zwt

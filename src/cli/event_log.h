// The events of a run in the order in which they happen. It knows how each is written, not where it comes
// from.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "host/dialog/dialog.h"

namespace zwt {

class EventLog {
 public:
  /// With explanations, what is read tells how it was computed.
  explicit EventLog(bool explains = false);
  EventLog(const EventLog&) = delete;
  EventLog& operator=(const EventLog&) = delete;
  ~EventLog();

  void Command(const CString& name);
  void Print(const CString& text);
  void Open(const CDialog& panel);
  void Close(const CDialog& panel);
  /// The state of controls of one panel. A control without a key is left out; of two with one key the first
  /// counts.
  void Read(const CDialog& panel, const std::vector<const CWnd*>& controls);
  void Focus(const CWnd& control, bool selected);
  void Message(const CString& text, const CString& caption, MessageIcon icon);
  void Progress(const CDialog& panel);

  /// An entity that went out of or into the drawing; text is null for entities that have none.
  void Erase(std::string_view handle, const CString& type, const CString& layer, const CString* text);
  void Add(std::string_view handle, const CString& type, const CString& layer, const CString* text);
  void SetDiameter(std::string_view handle, double diameter);
  void SetField(std::string_view handle, const CString& key, const CString& text);

  void Report(const CString& templateName, std::string_view file);

  /// The result of the run so far: {"events": [...]} as text with a line feed at its end.
  std::string Result() const;

 private:
  void Entity(const char* event, std::string_view handle, const CString& type, const CString& layer,
              const CString* text);

  bool explains_;
  std::unique_ptr<nlohmann::ordered_json> events_;
};

}  // namespace zwt

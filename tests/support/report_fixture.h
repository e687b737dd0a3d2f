// What commands print, and the reports that they hand over.
#pragma once

#include <string>
#include <vector>

#include "host/report/document_archive.h"
#include "host/report/word_application.h"
#include "host/runtime/command_line.h"

namespace zwt::test {

/// Records the command line.
class Printed : public CommandLine {
 public:
  Printed() : before_(SetCommandLine(this)) {}
  Printed(const Printed&) = delete;
  Printed& operator=(const Printed&) = delete;
  ~Printed() override { SetCommandLine(before_); }
  void Print(const CString& text) override { lines.push_back(text); }
  std::vector<CString> lines;

 private:
  CommandLine* before_;
};

/// Takes reports and keeps the markup of their bodies.
class Desk : public ReportDesk {
 public:
  Desk() : before_(SetReportDesk(this)) {}
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;
  ~Desk() override { SetReportDesk(before_); }
  bool CanWrite() override { return writable; }
  void Deliver(const CString& templatePath, const std::string& bytes) override {
    templates.push_back(templatePath);
    bodies.push_back(DocumentArchive(bytes).Find("word/document.xml")->bytes);
  }
  void Fail(const std::string&) override {}
  bool writable = true;
  std::vector<CString> templates;
  std::vector<std::string> bodies;

 private:
  ReportDesk* before_;
};

}  // namespace zwt::test

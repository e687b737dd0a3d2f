// Takes pictures of the main window and of every panel that can be reached from a command: as it opens, and
// with results. Panels are worked as a user would: fields filled, buttons pressed, inner panels visited.
// Commands that work on a drawing get one of the examples, and their questions in it are answered.
//   desktop_pictures FOLDER
#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QTextStream>
#include <algorithm>
#include <set>
#include <string_view>

#include "desktop/look.h"
#include "desktop/main_window.h"
#include "desktop/qt_text.h"
#include "desktop/select_tool.h"
#include "host/runtime/command_stack.h"
#include "host/runtime/module_runtime.h"

namespace zwt {
namespace {

class Photographer {
 public:
  Photographer(MainWindow& window, QDir folder) : window_(window), folder_(std::move(folder)) {
    window_.Panels().onPanelShown = [this](PanelWindow& panel) { Visit(panel); };
    window_.Panels().onMessageShown = [this](QMessageBox& box) {
      Take(box, QStringLiteral("message"));
      box.accept();
    };
    window_.Editor().onAsking = [this] { Answer(); };
    window_.Reports().open = [](const std::filesystem::path&) {};
    window_.Panels().onProgressShown = [this](PanelWindow& progress) { Take(progress, NameOf(progress)); };
  }

  void Take(QWidget& widget, const QString& name) {
    QCoreApplication::processEvents();
    const int number = ++taken_[name];
    const QString suffix = number == 1 ? QString() : QStringLiteral("-%1").arg(number);
    widget.grab().save(folder_.filePath(name + suffix + QStringLiteral(".png")));
  }

  /// The main window with something selected, with the layers, and with what the check finds.
  void TakeSides() {
    std::vector<std::int32_t> pipes = window_.GetDocument().Contents().Pipes();
    pipes.resize(std::min<std::size_t>(pipes.size(), 4));
    window_.Edits().Select(pipes);
    Take(window_, QStringLiteral("main-selected"));
    window_.Edits().Select({});
    for (const char* dock : {"layers", "findings"}) {
      window_.findChild<QDockWidget*>(QLatin1String(dock))->raise();
      if (dock == std::string_view("findings")) window_.Edits().Findings().Check();
      Take(window_, QStringLiteral("main-") + QLatin1String(dock));
    }
  }

  /// Opens the example that a command works on, without asking for the changes to the one before.
  void OpenExampleFor(const CString& command) {
    const std::map<CString, const char*> examples = {{L"ZWTGSJS", "dwelling-18-storeys.dxf"},
                                                     {L"ZWTGSCS", "dwelling-18-storeys.dxf"},
                                                     {L"ZWTPSJS", "drainage-stack.dxf"},
                                                     {L"ZWTXFJS", "hydrants-6-risers.dxf"}};
    const auto found = examples.find(command);
    if (found == examples.end()) return;
    window_.GetDocument().Contents().MarkSaved();
    // A copy: reports are written beside the drawing.
    const QString copy = folder_.filePath(QLatin1String(found->second));
    QFile::remove(copy);
    QFile::copy(QStringLiteral(ZWT_SOURCE_DIR "/examples/") + QLatin1String(found->second), copy);
    window_.Files().OpenFile(copy);
  }

 private:
  /// The first question of a command asks for pipes: a picture of what lights up, then all of them, or the
  /// one at the lower left end where just one is asked for. Looking around ends at once.
  void Answer() {
    DrawingArea& area = window_.Area();
    auto* tool = dynamic_cast<SelectTool*>(area.Tool());
    if (tool == nullptr) {
      window_.Editor().TakeLine({});
      return;
    }
    QTest::mouseMove(&area, area.View().ToPixel(0, 1500).toPoint());
    tool->PickAll();
    Take(window_, QStringLiteral("select-") + ToQt(window_.Session().LastCommand()));
    if (!window_.Editor().IsAsking() || tool->Picked().empty()) {
      const QPoint mainEnd = area.View().ToPixel(-3000, -1000).toPoint();
      QTest::mouseClick(&area, Qt::LeftButton, Qt::NoModifier, mainEnd);
    } else {
      window_.Editor().TakeLine({});
    }
  }

  static QString NameOf(const PanelWindow& panel) {
    return QStringLiteral("panel%1").arg(panel.Panel().Shape().resource);
  }

  void Visit(PanelWindow& window) {
    CDialog& panel = window.Panel();
    if (visited_.insert(panel.Shape().resource).second) {
      Take(window, NameOf(window));
      FillFields(window);
      PressButtons(window);
      if (!panel.HasEnded()) Take(window, NameOf(window) + QStringLiteral("-worked"));
    }
    if (!panel.HasEnded()) window.close();
  }

  static void FillFields(PanelWindow& window) {
    for (const auto& control : window.Panel().Controls()) {
      auto* field = dynamic_cast<QLineEdit*>(window.WidgetOf(control->GetDlgCtrlID()));
      const bool open = field != nullptr && field->isVisible() && field->isEnabled() && !field->isReadOnly();
      if (!open || (!field->text().isEmpty() && field->text() != QStringLiteral("0"))) continue;
      field->setFocus();
      field->selectAll();
      QTest::keyClicks(field, QStringLiteral("2"));
    }
  }

  /// Buttons that open other panels first, then the calculating ones; those that close come last of all.
  static void PressButtons(PanelWindow& window) {
    const PanelTemplate& shape = window.Panel().Shape();
    std::vector<int> buttons;
    for (const ControlTemplate& control : shape.controls) {
      QString label = ToQt(control.label);
      const bool closes =
          control.id == 1 || control.id == 2 || label.remove(QLatin1Char(' ')) == QStringLiteral("退出");
      if (control.kind == ControlKind::kButton && !closes) buttons.push_back(control.id);
    }
    for (const int id : shape.calculatingButtons) {
      std::erase(buttons, id);
      buttons.push_back(id);
    }
    for (const int id : buttons) {
      auto* button = dynamic_cast<QAbstractButton*>(window.WidgetOf(id));
      if (!window.Panel().HasEnded() && button->isVisible()) QTest::mouseClick(button, Qt::LeftButton);
    }
  }

  MainWindow& window_;
  QDir folder_;
  std::set<int> visited_;
  std::map<QString, int> taken_;
};

int TakeAll(const QString& folder) {
  ModuleRuntime module;
  module.Load();
  MainWindow window;
  window.TakeOverCommands();
  window.show();
  if (!QTest::qWaitForWindowExposed(&window)) return 2;
  Photographer photographer(window, QDir(folder));
  const auto commands = CommandStack().commands();
  for (const AcEdCommand& command : commands) {
    photographer.OpenExampleFor(command.name);
    window.Enter(ToQt(command.name));
  }
  photographer.OpenExampleFor(L"ZWTGSJS");
  photographer.Take(window, QStringLiteral("main"));
  photographer.TakeSides();
  window.GetDocument().Contents().MarkSaved();
  return 0;
}

}  // namespace
}  // namespace zwt

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  zwt::DressApplication(application);
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
    QTextStream(stderr) << "usage: desktop_pictures FOLDER\n";
    return 2;
  }
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, QString::fromLocal8Bit(argv[1]));
  return zwt::TakeAll(QString::fromLocal8Bit(argv[1]));
}

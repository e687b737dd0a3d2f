// The desktop program: arguments, the module, the main window.
#include <QApplication>
#include <QCommandLineParser>
#include <exception>

#include "desktop/look.h"
#include "desktop/main_window.h"
#include "desktop/qt_text.h"
#include "host/runtime/main_directory.h"
#include "host/runtime/module_runtime.h"

namespace {

struct Arguments {
  bool check = false;
  QString drawing;  // to open; empty: none
};

/// Loads the module; without it the program opens all the same and says why its commands are missing.
void LoadModule(zwt::ModuleRuntime& module) {
  try {
    module.Load();
  } catch (const std::exception& failure) {
    zwt::PrintText(L"\n计算模块不能载入：" + zwt::WideFromUtf8(failure.what()));
  }
}

void TakeMainDirectory(QString directory) {
  if (!directory.endsWith(QLatin1Char('/'))) directory += QLatin1Char('/');
  zwt::SetMainDirectory(zwt::FromQt(directory));
}

Arguments ReadArguments(const QApplication& application) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("建筑给水排水计算"));
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption mainDirectory(
      QStringLiteral("main-dir"), QStringLiteral("数据表与报告模板所在的文件夹"), QStringLiteral("DIR"));
  const QCommandLineOption check(QStringLiteral("check"),
                                 QStringLiteral("打开窗口后立即退出：检查安装，计算模块不能载入时返回 1"));
  parser.addOptions({mainDirectory, check});
  parser.addPositionalArgument(QStringLiteral("DRAWING"), QStringLiteral("要打开的图纸"),
                               QStringLiteral("[DRAWING]"));
  parser.process(application);
  if (parser.isSet(mainDirectory)) TakeMainDirectory(parser.value(mainDirectory));
  return {.check = parser.isSet(check), .drawing = parser.positionalArguments().value(0)};
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("zwtcal-desktop"));
  QApplication::setApplicationVersion(QStringLiteral(ZWT_VERSION));
  zwt::DressApplication(application);
  const Arguments arguments = ReadArguments(application);
  zwt::ModuleRuntime module;
  zwt::MainWindow window;
  LoadModule(module);
  window.TakeOverCommands();
  window.onShown = [&] {
    if (arguments.check) {
      QApplication::exit(module.IsLoaded() ? 0 : 1);
    } else if (!arguments.drawing.isEmpty()) {
      window.Files().OpenFile(arguments.drawing);
    }
  };
  window.show();
  return QApplication::exec();
}

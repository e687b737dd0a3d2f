// The desktop program: arguments, the module, the main window.
#include <QApplication>
#include <QCommandLineParser>
#include <algorithm>
#include <exception>
#include <iostream>
#include <string_view>

#include "desktop/look.h"
#include "desktop/main_window.h"
#include "desktop/picture_file.h"
#include "desktop/qt_text.h"
#include "host/dxf/dxf_file.h"
#include "host/platform/paths.h"
#include "host/runtime/main_directory.h"
#include "host/runtime/module_runtime.h"

namespace {

struct Arguments {
  bool check = false;
  bool render = false;
  QStringList files;  // the drawing to open, or the drawing and its picture
};

/// Whether no window is asked for: then the program needs no screen.
bool IsForRendering(int argc, char** argv) {
  return std::any_of(argv + 1, argv + argc,
                     [](const char* argument) { return std::string_view(argument) == "--render"; });
}

/// Writes the picture of a drawing; gives the program's status.
int RenderDrawing(const QStringList& files) {
  try {
    if (files.size() != 2) throw std::runtime_error("--render: expected a drawing and the picture to write");
    const auto drawing = zwt::ReadDrawing(zwt::PathFromText(zwt::FromQt(files[0])));
    zwt::WritePicture(zwt::MakeDisplayList(*drawing), files[1]);
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << '\n';
    return 2;
  }
}

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
  const QCommandLineOption render(QStringLiteral("render"),
                                  QStringLiteral("不打开窗口，把图纸画成 FILE（.png 或 .pdf）"));
  parser.addOptions({mainDirectory, check, render});
  parser.addPositionalArgument(QStringLiteral("DRAWING"), QStringLiteral("要打开的图纸"),
                               QStringLiteral("[DRAWING]"));
  parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("与 --render 同用：要写的图片"),
                               QStringLiteral("[FILE]"));
  parser.process(application);
  if (parser.isSet(mainDirectory)) TakeMainDirectory(parser.value(mainDirectory));
  return {
      .check = parser.isSet(check), .render = parser.isSet(render), .files = parser.positionalArguments()};
}

}  // namespace

int main(int argc, char** argv) {
  if (IsForRendering(argc, argv)) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("zwtcal-desktop"));
  QApplication::setApplicationVersion(QStringLiteral(ZWT_VERSION));
  zwt::DressApplication(application);
  const Arguments arguments = ReadArguments(application);
  if (arguments.render) return RenderDrawing(arguments.files);
  zwt::ModuleRuntime module;
  zwt::MainWindow window;
  LoadModule(module);
  window.TakeOverCommands();
  window.onShown = [&] {
    if (arguments.check) {
      QApplication::exit(module.IsLoaded() ? 0 : 1);
    } else if (!arguments.files.isEmpty()) {
      window.Files().OpenFile(arguments.files[0]);
    }
  };
  window.show();
  return QApplication::exec();
}

// Main window.
#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDockWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QToolBar>
#include <utility>

#include "desktop/code_edition.h"
#include "desktop/disciplines.h"
#include "desktop/drawing_area.h"
#include "desktop/icons.h"
#include "desktop/qt_text.h"
#include "host/dialog/panel_template.h"
#include "host/runtime/command_stack.h"

namespace zwt {

MainWindow::MainWindow()
    : presenter_(this, waits_),
      session_(waits_),
      pane_(new CommandPane(this)),
      state_(new QLabel(this)),
      presenterBefore_(SetPresenter(&presenter_)),
      lineBefore_(SetCommandLine(pane_)) {
  setObjectName(QStringLiteral("mainWindow"));
  setWindowTitle(QStringLiteral("建筑给水排水计算"));
  setWindowIcon(ProgramIcon());
  setCentralWidget(new DrawingArea(this));
  MakeCommandLine();
  MakeFileMenu();
  MakeCommandActions();
  MakeHelpMenu();
  MakeStatusBar();
  session_.onBegun = [this] { FollowSession(); };
  session_.onEnded = [this] { FollowSession(); };
  RestoreWindow();
  FollowSession();
}

MainWindow::~MainWindow() {
  SetPresenter(presenterBefore_);
  SetCommandLine(lineBefore_);
}

void MainWindow::MakeCommandLine() {
  auto* dock = new QDockWidget(QStringLiteral("命令行"), this);
  dock->setObjectName(QStringLiteral("commandLine"));
  dock->setAllowedAreas(Qt::TopDockWidgetArea | Qt::BottomDockWidgetArea);
  dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
  dock->setWidget(pane_);
  addDockWidget(Qt::BottomDockWidgetArea, dock);
  pane_->Input().onEntered = [this](const QString& line) { Enter(line); };
}

void MainWindow::MakeFileMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("文件(&F)"));
  QAction* quit = menu->addAction(QStringLiteral("退出(&X)"), this, [this] { close(); });
  quit->setShortcut(QKeySequence::Quit);
}

void MainWindow::MakeCommandActions() {
  QToolBar* bar = addToolBar(QStringLiteral("计算"));
  bar->setObjectName(QStringLiteral("commandBar"));
  constexpr int kIconSize = 24;
  bar->setIconSize(QSize(kIconSize, kIconSize));
  for (const Discipline& discipline : Disciplines()) {
    QMenu* menu = menuBar()->addMenu(QString::fromWCharArray(discipline.title));
    if (&discipline != &Disciplines().front()) bar->addSeparator();
    auto* title = new QLabel(QString::fromWCharArray(discipline.title), bar);
    title->setMargin(4);
    bar->addWidget(title);
    for (const CommandEntry& entry : discipline.commands) {
      const CString name = entry.command;
      auto* action = new QAction(MakeIcon(entry.icon, QColor::fromRgb(discipline.colour)), ToQt(name), this);
      action->setObjectName(ToQt(name));
      connect(action, &QAction::triggered, this, [this, name] { Enter(ToQt(name)); });
      menu->addAction(action);
      bar->addAction(action);
      actions_[name] = action;
    }
  }
}

void MainWindow::TakeOverCommands() {
  QStringList names;
  for (const AcEdCommand& command : CommandStack().commands()) names.append(ToQt(command.name));
  pane_->Input().SetCommandNames(names);
  for (const auto& [name, action] : actions_) {
    const PanelTemplate* panel = FindPanelOfCommand(name);
    if (panel == nullptr) continue;
    action->setText(ToQt(panel->title));
    action->setToolTip(QStringLiteral("%1 (%2)").arg(ToQt(panel->title), ToQt(name)));
  }
  FollowSession();
}

QAction* MainWindow::ActionOf(const CString& command) const {
  const auto found = actions_.find(command);
  return found == actions_.end() ? nullptr : found->second;
}

void MainWindow::MakeHelpMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("帮助(&H)"));
  menu->addAction(QStringLiteral("关于(&A)"), this, [this] { ShowAbout(); });
}

void MainWindow::MakeStatusBar() {
  const QString edition = EditionOfCodes();
  auto* codes = new QLabel(
      edition.isEmpty() ? QStringLiteral("缺少设计数据表") : QStringLiteral("设计规范：%1").arg(edition),
      this);
  codes->setObjectName(QStringLiteral("codeEdition"));
  statusBar()->addWidget(state_, 1);
  statusBar()->addPermanentWidget(codes);
}

void MainWindow::RestoreWindow() {
  if (!restoreGeometry(settings_.WindowGeometry())) {
    constexpr int kWidth = 1200;
    constexpr int kHeight = 800;
    constexpr int kCommandLineHeight = 130;
    resize(kWidth, kHeight);
    resizeDocks({findChild<QDockWidget*>()}, {kCommandLineHeight}, Qt::Vertical);
  }
  restoreState(settings_.WindowLayout());
}

void MainWindow::FollowSession() {
  const bool running = session_.IsRunning();
  for (const auto& [name, action] : actions_) {
    action->setEnabled(!running && CommandStack().lookupCommand(name) != nullptr);
  }
  state_->setText(running ? QStringLiteral("正在执行 %1").arg(ToQt(session_.LastCommand()))
                          : QStringLiteral("就绪"));
  if (!running && closing_) close();
}

void MainWindow::Enter(const QString& line) {
  if (session_.IsRunning()) return;
  const CString name = line.isEmpty() ? session_.LastCommand() : FromQt(line.toUpper());
  if (name.empty()) return;
  pane_->Print(L"\n命令：" + name);
  if (CommandStack().lookupCommand(name) == nullptr) {
    pane_->Print(L"\n未知命令“" + name + L"”。");
    return;
  }
  session_.Run(name);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (session_.IsRunning()) {
    event->ignore();
    closing_ = true;
    waits_.CancelAll();
    return;
  }
  settings_.KeepWindow(saveGeometry(), saveState());
  QMainWindow::closeEvent(event);
}

void MainWindow::paintEvent(QPaintEvent* event) {
  QMainWindow::paintEvent(event);
  if (onShown) QMetaObject::invokeMethod(this, std::exchange(onShown, nullptr), Qt::QueuedConnection);
}

void MainWindow::ShowAbout() {
  QMessageBox::about(this, QStringLiteral("关于"),
                     QStringLiteral("建筑给水排水计算 %1\n\n设计规范：%2")
                         .arg(QCoreApplication::applicationVersion(), EditionOfCodes()));
}

}  // namespace zwt

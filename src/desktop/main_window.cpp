// Main window.
#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDropEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QStatusBar>
#include <QToolBar>
#include <utility>

#include "desktop/code_edition.h"
#include "desktop/disciplines.h"
#include "desktop/icons.h"
#include "desktop/qt_text.h"
#include "host/dialog/panel_template.h"
#include "host/runtime/command_stack.h"

namespace zwt {

namespace {

/// The picture of an action, see icons.h.
struct ActionPicture {
  const char* action;  // its object name
  const char* drawing;
};

constexpr ActionPicture kFilePictures[] = {
    {"fileNew", R"(<path d="M5 2.5h9l5 5v14H5zM14 2.5v5h5"/>)"},
    {"fileOpen", R"(<path d="M3 19.5V4.5h6l2 2.5h8v3M3 19.5 6.5 10H22l-3.5 9.5z"/>)"},
    {"fileSave", R"(<path d="M3.5 3.5h14l3 3v14h-17zM7.5 3.5v5h8v-5M7 20.5v-7h10v7"/>)"},
    {"editUndo", R"(<path d="M4 9h10.5a5.5 5.5 0 0 1 0 11H9M8.5 4.5 4 9l4.5 4.5"/>)"},
    {"editRedo", R"(<path d="M20 9H9.5a5.5 5.5 0 0 0 0 11H15M15.5 4.5 20 9l-4.5 4.5"/>)"},
    {"viewExtents",
     R"(<path d="M3 8V3h5M16 3h5v5M21 16v5h-5M8 21H3v-5"/><rect x="8" y="8" width="8" height="8"/>)"},
};

/// The file that is dragged, where it is one drawing; otherwise empty.
QString DroppedDrawing(const QMimeData& data) {
  if (data.urls().size() != 1) return {};
  const QString path = data.urls().front().toLocalFile();
  return path.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive) ? path : QString();
}

}  // namespace

MainWindow::MainWindow()
    : presenter_(this, waits_),
      session_(waits_),
      pane_(new CommandPane(this)),
      area_(new DrawingArea(scene_, this)),
      layers_(new LayerView(scene_, this)),
      edits_(*area_, scene_, this),
      editor_(*area_, scene_, *pane_, waits_),
      files_(document_, presenter_, settings_, this),
      reports_(document_),
      state_(new QLabel(this)),
      place_(new QLabel(this)),
      presenterBefore_(SetPresenter(&presenter_)),
      lineBefore_(SetCommandLine(pane_)) {
  setObjectName(QStringLiteral("mainWindow"));
  setWindowIcon(ProgramIcon());
  setAcceptDrops(true);
  setCentralWidget(area_);
  MakeCommandLine();
  MakeFileMenu();
  MakeEditMenu();
  MakeViewMenu();
  MakeCommandActions();
  MakeFileBar();
  MakeHelpMenu();
  MakeStatusBar();
  session_.onBegun = [this] {
    ClearOverlay();
    FollowSession();
  };
  session_.onEnded = [this] { FollowSession(); };
  FollowDocument();
  FollowResults();
  RestoreWindow();
  FollowSession();
}

MainWindow::~MainWindow() {
  // A field that loses the focus with the window finds nothing left to change.
  edits_.Select({});
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
  pane_->Input().onEscape = [this] {
    if (editor_.IsAsking()) {
      editor_.Escape();
    } else if (!session_.IsRunning()) {
      edits_.Escape();
    }
  };
  area_->onTyped = [this](const QString& text) {
    pane_->Input().setFocus();
    pane_->Input().insert(text);
  };
}

void MainWindow::MakeFileMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("文件(&F)"));
  files_.AddTo(*menu);
  menu->addSeparator();
  QAction* quit = menu->addAction(QStringLiteral("退出(&X)"), this, [this] { close(); });
  quit->setShortcut(QKeySequence::Quit);
}

void MainWindow::MakeEditMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("编辑(&E)"));
  undo_ = menu->addAction(QStringLiteral("撤销(&U)"), this, [this] { document_.Contents().Undo(); });
  undo_->setShortcut(QKeySequence::Undo);
  undo_->setObjectName(QStringLiteral("editUndo"));
  redo_ = menu->addAction(QStringLiteral("重做(&R)"), this, [this] { document_.Contents().Redo(); });
  redo_->setObjectName(QStringLiteral("editRedo"));
  redo_->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
  menu->addSeparator();
  edits_.AddTo(*menu);
  // As on the command line, Enter alone repeats the last command.
  edits_.onEnter = [this] {
    QMetaObject::invokeMethod(
        this, [this] { Enter({}); }, Qt::QueuedConnection);
  };
  edits_.onPrompt = [this](const QString& prompt) { pane_->SetPrompt(prompt); };
  edits_.onNote = [this](const CString& text) { pane_->Print(text); };
}

void MainWindow::MakeViewMenu() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("视图(&V)"));
  QAction* extents =
      menu->addAction(QStringLiteral("显示全图(&E)"), area_, [this] { area_->ZoomToExtents(); });
  extents->setShortcut(Qt::Key_F6);
  extents->setObjectName(QStringLiteral("viewExtents"));
  menu->addSeparator();
  QDockWidget* properties = AddSideDock(QStringLiteral("特性"), "properties", &edits_.Properties(), *menu);
  QDockWidget* layers = AddSideDock(QStringLiteral("图层"), "layers", layers_, *menu);
  QDockWidget* findings = AddSideDock(QStringLiteral("检查"), "findings", &edits_.Findings(), *menu);
  tabifyDockWidget(properties, layers);
  tabifyDockWidget(layers, findings);
  properties->raise();
}

QDockWidget* MainWindow::AddSideDock(const QString& title, const char* name, QWidget* content, QMenu& menu) {
  auto* dock = new QDockWidget(title, this);
  dock->setObjectName(QLatin1String(name));
  dock->setWidget(content);
  addDockWidget(Qt::RightDockWidgetArea, dock);
  menu.addAction(dock->toggleViewAction());
  return dock;
}

void MainWindow::FollowDocument() {
  document_.onReplaced = [this] {
    ClearOverlay();
    scene_.Forget();
    edits_.Reset();
    FollowDrawing();
  };
  document_.onChanged = [this] {
    scene_.Forget();
    edits_.Follow();
    FollowDrawing();
  };
  document_.onRefused = [this](const CString& message) { pane_->Print(L"\n" + message); };
  document_.onFileTouched = [this] { CatchUpWithFile(); };
  files_.onOpened = [this] {
    scene_.Reset();
    FollowDrawing();
    area_->ZoomToExtents();
  };
  files_.onNote = [this](const CString& text) { pane_->Print(text); };
  area_->onPointed = [this](const QPointF& place) {
    place_->setText(QStringLiteral("%1, %2").arg(place.x(), 0, 'f', 0).arg(place.y(), 0, 'f', 0));
  };
  FollowDrawing();
}

/// Rows of the panels' tables and the drawing follow each other.
void MainWindow::FollowResults() {
  area_->SetOverlay(&overlay_);
  overlay_.onChanged = [this] {
    const Overlay* overlay = CurrentOverlay();
    presenter_.ShowProfiles(overlay == nullptr ? std::vector<OverlayProfile>() : overlay->profiles);
    area_->update();
  };
  presenter_.onRowSelected = [this](int table, int row) {
    overlay_.LightUp({table, row});
    if (const auto place = overlay_.LitPlace()) area_->BringIntoView(*place);
  };
  editor_.onLookedAt = [this](const QPointF& place, double reach) {
    if (const auto row = overlay_.RowAt(place, reach)) presenter_.SelectRow(row->table, row->row);
  };
}

void MainWindow::FollowDrawing() {
  setWindowTitle(QStringLiteral("%1[*] - 建筑给水排水计算").arg(document_.Name()));
  setWindowModified(document_.IsModified());
  undo_->setEnabled(!session_.IsRunning() && document_.Contents().CanUndo());
  redo_->setEnabled(!session_.IsRunning() && document_.Contents().CanRedo());
  layers_->Follow();
}

void MainWindow::CatchUpWithFile() {
  if (!session_.IsRunning()) files_.CatchUp();
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

void MainWindow::MakeFileBar() {
  auto* bar = new QToolBar(QStringLiteral("文件"), this);
  bar->setObjectName(QStringLiteral("fileBar"));
  for (const ActionPicture& picture : kFilePictures) {
    auto* action = findChild<QAction*>(QLatin1String(picture.action));
    action->setIcon(MakeIcon(picture.drawing, QColor(0x45, 0x5a, 0x64)));
    bar->addAction(action);
  }
  auto* commands = findChild<QToolBar*>(QStringLiteral("commandBar"));
  bar->setIconSize(commands->iconSize());
  insertToolBar(commands, bar);
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
  place_->setObjectName(QStringLiteral("pointerPlace"));
  statusBar()->addWidget(state_, 1);
  statusBar()->addPermanentWidget(place_);
  statusBar()->addPermanentWidget(codes);
}

void MainWindow::RestoreWindow() {
  if (!restoreGeometry(settings_.WindowGeometry())) {
    constexpr int kWidth = 1200;
    constexpr int kHeight = 800;
    constexpr int kCommandLineHeight = 130;
    resize(kWidth, kHeight);
    constexpr int kSideWidth = 280;
    resizeDocks({findChild<QDockWidget*>(QStringLiteral("commandLine"))}, {kCommandLineHeight}, Qt::Vertical);
    resizeDocks({findChild<QDockWidget*>(QStringLiteral("properties"))}, {kSideWidth}, Qt::Horizontal);
  }
  restoreState(settings_.WindowLayout());
}

void MainWindow::FollowSession() {
  const bool running = session_.IsRunning();
  for (const auto& [name, action] : actions_) {
    action->setEnabled(!running && CommandStack().lookupCommand(name) != nullptr);
  }
  files_.SetEnabled(!running);
  edits_.SetEnabled(!running);
  FollowDrawing();
  state_->setText(running ? QStringLiteral("正在执行 %1").arg(ToQt(session_.LastCommand()))
                          : QStringLiteral("就绪"));
  if (running) return;
  if (closing_) {
    close();
  } else {
    CatchUpWithFile();
  }
}

bool MainWindow::RunOwnCommand(const QString& name) {
  const std::map<QString, std::function<void()>> commands = {
      {QStringLiteral("NEW"), [this] { files_.New(); }},
      {QStringLiteral("OPEN"), [this] { files_.Open(); }},
      {QStringLiteral("SAVE"), [this] { files_.Save(); }},
      {QStringLiteral("SAVEAS"), [this] { files_.SaveAs(); }},
      {QStringLiteral("U"), [this] { document_.Contents().Undo(); }},
      {QStringLiteral("UNDO"), [this] { document_.Contents().Undo(); }},
      {QStringLiteral("REDO"), [this] { document_.Contents().Redo(); }},
      {QStringLiteral("PIPE"), [this] { edits_.BeginDrawing(); }},
      {QStringLiteral("ERASE"), [this] { area_->onDelete(); }},
      {QStringLiteral("ZE"), [this] { area_->ZoomToExtents(); }},
  };
  const auto found = commands.find(name);
  if (found == commands.end()) return false;
  found->second();
  return true;
}

void MainWindow::Enter(const QString& line) {
  if (editor_.IsAsking()) {
    editor_.TakeLine(line);
    return;
  }
  if (session_.IsRunning()) return;
  if (edits_.IsDrawing()) {
    edits_.EndDrawing();
    if (line.isEmpty()) return;
  }
  const CString name = line.isEmpty() ? session_.LastCommand() : FromQt(line.toUpper());
  if (name.empty()) return;
  pane_->Print(L"\n命令：" + name);
  if (RunOwnCommand(ToQt(name))) return;
  if (CommandStack().lookupCommand(name) == nullptr) {
    pane_->Print(L"\n未知命令“" + name + L"”。");
    return;
  }
  CatchUpWithFile();
  session_.Run(name);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  closing_ = session_.IsRunning();
  if (closing_) {
    event->ignore();
    waits_.CancelAll();
    return;
  }
  if (!files_.MayLeave()) {
    event->ignore();
    return;
  }
  settings_.KeepWindow(saveGeometry(), saveState());
  QMainWindow::closeEvent(event);
}

void MainWindow::paintEvent(QPaintEvent* event) {
  QMainWindow::paintEvent(event);
  if (onShown) QMetaObject::invokeMethod(this, std::exchange(onShown, nullptr), Qt::QueuedConnection);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!session_.IsRunning() && !DroppedDrawing(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const QString path = DroppedDrawing(*event->mimeData());
  if (session_.IsRunning() || path.isEmpty()) return;
  event->acceptProposedAction();
  files_.OpenFile(path);
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) CatchUpWithFile();
}

void MainWindow::ShowAbout() {
  QMessageBox::about(this, QStringLiteral("关于"),
                     QStringLiteral("建筑给水排水计算 %1\n\n设计规范：%2")
                         .arg(QCoreApplication::applicationVersion(), EditionOfCodes()));
}

}  // namespace zwt

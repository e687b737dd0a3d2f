// Files of drawings.
#include "desktop/file_actions.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QScopedValueRollback>

#include "desktop/qt_text.h"
#include "host/drawing/drawing_error.h"
#include "host/platform/paths.h"

namespace zwt {

namespace {

const auto kFileKinds = QStringLiteral("图纸 (*.dxf *.DXF)");

QString PathText(const std::filesystem::path& path) {
  return QDir::toNativeSeparators(ToQt(TextFromPath(path)));
}

/// What went wrong, with the line of the file where there is one.
QString Reason(const std::exception& error) {
  const auto* broken = dynamic_cast<const DrawingError*>(&error);
  const QString text = QString::fromUtf8(error.what());
  return broken != nullptr && broken->Line() > 0
             ? QStringLiteral("第 %1 行：\n%2").arg(broken->Line()).arg(text)
             : text;
}

}  // namespace

FileActions::FileActions(Document& document, DesktopPresenter& presenter, Settings& settings, QWidget* window)
    : document_(document), presenter_(presenter), settings_(settings), window_(window) {
  askWhatToOpen = [this] {
    const QString folder = document_.HasFile() ? PathText(document_.Path().parent_path()) : QString();
    return QFileDialog::getOpenFileName(window_, QStringLiteral("打开图纸"), folder, kFileKinds);
  };
  askWhereToSave = [this](const QString& proposed) {
    return QFileDialog::getSaveFileName(window_, QStringLiteral("图纸另存为"), proposed, kFileKinds);
  };
  recent_.setTitle(QStringLiteral("最近的图纸(&R)"));
  recent_.setObjectName(QStringLiteral("recentFiles"));
  QObject::connect(&recent_, &QMenu::aboutToShow, &recent_, [this] { FillRecent(); });
}

void FileActions::AddTo(QMenu& menu) {
  const auto add = [&](const QString& text, const QKeySequence& keys, const char* name, auto act) {
    QAction* action = menu.addAction(text, &menu, act);
    action->setShortcut(keys);
    action->setObjectName(QLatin1String(name));
    actions_.append(action);
  };
  add(QStringLiteral("新建(&N)"), QKeySequence::New, "fileNew", [this] { New(); });
  add(QStringLiteral("打开(&O)..."), QKeySequence::Open, "fileOpen", [this] { Open(); });
  menu.addMenu(&recent_);
  actions_.append(recent_.menuAction());
  menu.addSeparator();
  add(QStringLiteral("保存(&S)"), QKeySequence::Save, "fileSave", [this] { Save(); });
  add(QStringLiteral("另存为(&A)..."), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), "fileSaveAs",
      [this] { SaveAs(); });
}

void FileActions::SetEnabled(bool enabled) {
  for (QAction* action : actions_) action->setEnabled(enabled);
}

void FileActions::FillRecent() {
  recent_.clear();
  const QStringList files = settings_.RecentFiles();
  for (const QString& file : files) {
    recent_.addAction(QDir::toNativeSeparators(file), &recent_, [this, file] { OpenFile(file); });
  }
  if (files.isEmpty()) recent_.addAction(QStringLiteral("（无）"))->setEnabled(false);
}

void FileActions::New() {
  if (!MayLeave()) return;
  document_.New();
  if (onOpened) onOpened();
}

void FileActions::Open() {
  const QString path = askWhatToOpen();
  if (!path.isEmpty()) OpenFile(path);
}

bool FileActions::OpenFile(const QString& path) {
  if (!MayLeave()) return false;
  const std::filesystem::path file = PathFromText(FromQt(path));
  try {
    document_.Open(file);
  } catch (const std::exception& error) {
    settings_.RemoveRecentFile(QFileInfo(path).absoluteFilePath());
    TellUnreadable(file, error);
    return false;
  }
  settings_.AddRecentFile(path);
  if (onOpened) onOpened();
  return true;
}

bool FileActions::Save() {
  if (!document_.HasFile()) return SaveAs();
  if (document_.IsOutdated()) {
    const QString text = QStringLiteral("图纸“%1”已被另一个程序改动。要用这里的内容覆盖它吗？");
    if (presenter_.Ask(text.arg(document_.Name()), {QStringLiteral("覆盖"), QStringLiteral("取消")}) != 0) {
      return false;
    }
  }
  return WriteTo(PathText(document_.Path()));
}

bool FileActions::SaveAs() {
  const QString proposed =
      document_.HasFile() ? PathText(document_.Path()) : document_.Name() + QStringLiteral(".dxf");
  QString path = askWhereToSave(proposed);
  if (path.isEmpty()) return false;
  if (QFileInfo(path).suffix().isEmpty()) path += QStringLiteral(".dxf");
  return WriteTo(path);
}

bool FileActions::WriteTo(const QString& path) {
  try {
    document_.SaveAs(PathFromText(FromQt(path)));
  } catch (const std::exception& error) {
    Tell(QStringLiteral("图纸未能保存。\n%1").arg(Reason(error)));
    return false;
  }
  settings_.AddRecentFile(path);
  if (onNote) onNote(L"\n已保存 " + FromQt(path));
  return true;
}

bool FileActions::MayLeave() {
  if (!document_.IsModified()) return true;
  const QString text = QStringLiteral("图纸“%1”有未保存的修改。要保存吗？").arg(document_.Name());
  const int answer =
      presenter_.Ask(text, {QStringLiteral("保存"), QStringLiteral("不保存"), QStringLiteral("取消")});
  if (answer == 0) return Save();
  return answer == 1;
}

void FileActions::CatchUp() {
  if (catchingUp_ || !document_.IsOutdated()) return;
  const QScopedValueRollback working(catchingUp_, true);
  if (document_.IsModified()) {
    const QString text =
        QStringLiteral("图纸“%1”已被另一个程序改动，而这里有未保存的修改。\n重新读入会放弃这里的修改。");
    const QStringList answers = {QStringLiteral("重新读入"), QStringLiteral("保留这里的内容")};
    if (presenter_.Ask(text.arg(document_.Name()), answers) != 0) {
      document_.AcceptFileState();
      return;
    }
  }
  try {
    document_.Reload();
    if (onNote) onNote(L"\n图纸“" + FromQt(document_.Name()) + L"”已被另一个程序改动，现已重新读入。");
  } catch (const std::exception& error) {
    if (onNote) {
      onNote(L"\n图纸“" + FromQt(document_.Name()) + L"”已被另一个程序改动，但不能读入：" +
             WideFromUtf8(error.what()));
    }
  }
}

void FileActions::Tell(const QString& text) {
  presenter_.ShowMessage(nullptr, FromQt(text), L"", MessageIcon::kStop);
}

void FileActions::TellUnreadable(const std::filesystem::path& path, const std::exception& error) {
  Tell(QStringLiteral("图纸不能读入：%1\n%2").arg(PathText(path), Reason(error)));
}

}  // namespace zwt

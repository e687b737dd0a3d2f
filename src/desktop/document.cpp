// Opening, saving and watching.
#include "desktop/document.h"

#include <utility>

#include "desktop/qt_text.h"
#include "host/dxf/dxf_file.h"
#include "host/platform/paths.h"

namespace zwt {

Document::Document()
    : drawingBefore_(ReplaceWorkingDrawing(std::make_unique<Drawing>())), changed_([this] {
        if (onChanged) onChanged();
      }) {
  Contents().AddObserver(this);
  const auto touched = [this] {
    Watch();
    if (onFileTouched) onFileTouched();
  };
  // A file that is replaced, as careful programs do it, is lost from sight; its folder is not.
  QObject::connect(&watcher_, &QFileSystemWatcher::fileChanged, &watcher_, touched);
  QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &watcher_, touched);
}

Document::~Document() {
  Contents().RemoveObserver(this);
  ReplaceWorkingDrawing(std::move(drawingBefore_));
}

void Document::New() {
  Put(std::make_unique<Drawing>(), {});
}

void Document::Open(const std::filesystem::path& path) {
  const std::filesystem::path whole = std::filesystem::absolute(path);
  const std::optional<FileState> state = StateOfFile(whole);
  Put(ReadDrawing(whole), whole);
  state_ = state;
}

void Document::SaveAs(const std::filesystem::path& path) {
  const std::filesystem::path whole = std::filesystem::absolute(path);
  SaveDrawing(Contents(), whole);
  path_ = whole;
  AcceptFileState();
  Watch();
  changed_.Ask();
}

void Document::Put(std::unique_ptr<Drawing> drawing, const std::filesystem::path& path) {
  Contents().RemoveObserver(this);
  ReplaceWorkingDrawing(std::move(drawing));
  Contents().AddObserver(this);
  path_ = path;
  AcceptFileState();
  Watch();
  if (onReplaced) onReplaced();
}

QString Document::Name() const {
  return HasFile() ? ToQt(TextFromPath(path_.filename())) : QStringLiteral("未命名图纸");
}

bool Document::IsOutdated() const {
  if (!HasFile()) return false;
  const std::optional<FileState> now = StateOfFile(path_);
  return now.has_value() && now != state_;
}

void Document::Watch() {
  const QStringList watched = watcher_.files() + watcher_.directories();
  QStringList wanted;
  if (HasFile()) {
    wanted = {ToQt(TextFromPath(path_)), ToQt(TextFromPath(path_.parent_path()))};
  }
  for (const QString& path : watched) {
    if (!wanted.contains(path)) watcher_.removePath(path);
  }
  for (const QString& path : wanted) {
    if (!watched.contains(path)) watcher_.addPath(path);
  }
}

void Document::OnChange(const DrawingChange&) {
  changed_.Ask();
}

void Document::OnRefusal(const CString& message) {
  if (onRefused) onRefused(message);
}

}  // namespace zwt

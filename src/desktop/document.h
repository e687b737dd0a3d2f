// The drawing that the program works on, and its file: opening, saving, and noticing what others do to the
// file. It makes its drawing the working one for as long as it lives. It asks nobody anything: whether
// changes may be lost is decided before it is called.
#pragma once

#include <QFileSystemWatcher>
#include <QString>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "desktop/later_once.h"
#include "host/drawing/drawing.h"
#include "host/platform/files.h"

namespace zwt {

class Document : private DrawingObserver {
 public:
  /// Begins with an empty drawing without a file.
  Document();
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;
  ~Document() override;

  Drawing& Contents() const { return WorkingDrawing(); }

  /// An empty drawing without a file in place of the present one.
  void New();
  /// Another drawing in place of the present one. Throws FileError and DrawingError; then the present one
  /// stays.
  void Open(const std::filesystem::path& path);
  /// Reads the file again; changes and undo steps are lost. Throws as Open does.
  void Reload() { Open(std::filesystem::path(path_)); }
  /// Writes the drawing into its file, which it must have. Throws FileError.
  void Save() { SaveAs(std::filesystem::path(path_)); }
  /// Writes the drawing into a file that becomes its own. Throws FileError.
  void SaveAs(const std::filesystem::path& path);

  bool HasFile() const { return !path_.empty(); }
  /// Empty where the drawing has no file.
  const std::filesystem::path& Path() const { return path_; }
  /// Name of the file, or what a drawing without one is called.
  QString Name() const;
  bool IsModified() const { return Contents().IsModified(); }
  /// Whether the file is no longer what was read or written here. A file that is gone does not count.
  bool IsOutdated() const;
  /// Takes the file's present state as known, without reading it.
  void AcceptFileState() { state_ = StateOfFile(path_); }

  /// Called when another drawing has taken the place of the former.
  std::function<void()> onReplaced;
  /// Called once after changes, when control is back in the event loop.
  std::function<void()> onChanged;
  /// Called when someone may have changed the file.
  std::function<void()> onFileTouched;
  /// A change was refused, with one line why.
  std::function<void(const CString&)> onRefused;

 private:
  void OnChange(const DrawingChange& change) override;
  void OnRefusal(const CString& message) override;
  void Put(std::unique_ptr<Drawing> drawing, const std::filesystem::path& path);
  void Watch();

  std::filesystem::path path_;
  std::optional<FileState> state_;  // of the file when it was last read or written here
  std::unique_ptr<Drawing> drawingBefore_;
  QFileSystemWatcher watcher_;
  LaterOnce changed_;
};

}  // namespace zwt

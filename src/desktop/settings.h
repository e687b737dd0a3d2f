// What the program remembers between runs: the window and the files last worked on. Everything lies in one
// file of the user's settings folder.
#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <QStringList>

namespace zwt {

class Settings {
 public:
  Settings();

  QByteArray WindowGeometry() const;
  QByteArray WindowLayout() const;
  void KeepWindow(const QByteArray& geometry, const QByteArray& layout);

  /// The files last worked on, the latest first.
  QStringList RecentFiles() const;
  /// Puts a file at the head of the list; the oldest beyond ten is forgotten.
  void AddRecentFile(const QString& path);
  void RemoveRecentFile(const QString& path);

 private:
  QSettings store_;
};

}  // namespace zwt

// Keys of the settings file.
#include "desktop/settings.h"

#include <QFileInfo>

namespace zwt {

namespace {

constexpr int kMostRecentFiles = 10;
const auto kGeometry = QStringLiteral("window/geometry");
const auto kLayout = QStringLiteral("window/layout");
const auto kRecent = QStringLiteral("files/recent");

}  // namespace

Settings::Settings()
    : store_(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("zwtcal"),
             QStringLiteral("zwtcal-desktop")) {}

QByteArray Settings::WindowGeometry() const {
  return store_.value(kGeometry).toByteArray();
}

QByteArray Settings::WindowLayout() const {
  return store_.value(kLayout).toByteArray();
}

void Settings::KeepWindow(const QByteArray& geometry, const QByteArray& layout) {
  store_.setValue(kGeometry, geometry);
  store_.setValue(kLayout, layout);
}

QStringList Settings::RecentFiles() const {
  return store_.value(kRecent).toStringList();
}

void Settings::AddRecentFile(const QString& path) {
  const QString whole = QFileInfo(path).absoluteFilePath();
  QStringList files = RecentFiles();
  files.removeAll(whole);
  files.prepend(whole);
  store_.setValue(kRecent, files.mid(0, kMostRecentFiles));
}

void Settings::RemoveRecentFile(const QString& path) {
  QStringList files = RecentFiles();
  files.removeAll(path);
  store_.setValue(kRecent, files);
}

}  // namespace zwt

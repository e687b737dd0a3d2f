// Reads the head of the design tables alone.
#include "desktop/code_edition.h"

#include <QFile>
#include <QXmlStreamReader>

#include "host/platform/paths.h"
#include "host/runtime/main_directory.h"

namespace zwt {

QString EditionOfCodes() {
  QFile file(PathFromText(GetMainDirectory() + L"Common2\\ZwtDataTable.xml"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QXmlStreamReader reader(&file);
  if (!reader.readNextStartElement()) return {};
  return reader.attributes().value(QLatin1String("edition")).toString();
}

}  // namespace zwt

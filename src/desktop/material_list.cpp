// Reads the names alone.
#include "desktop/material_list.h"

#include <QFile>
#include <QXmlStreamReader>

#include "host/platform/paths.h"
#include "host/runtime/main_directory.h"

namespace zwt {

QStringList MaterialNames() {
  QStringList names;
  QFile file(PathFromText(GetMainDirectory() + L"Common2\\ZwtMaterials.xml"));
  if (!file.open(QIODevice::ReadOnly)) return names;
  QXmlStreamReader reader(&file);
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != QLatin1String("Material"))
      continue;
    names.append(reader.attributes().value(QLatin1String("Name")).toString());
  }
  return names;
}

}  // namespace zwt

// The pipe materials that the material file offers, for choosing one.
#pragma once

#include <QStringList>

namespace zwt {

/// Names in the order of Common2\ZwtMaterials.xml below the main directory; none where it cannot be read.
QStringList MaterialNames();

}  // namespace zwt

// Texts between the host's wide strings and the toolkit's.
#pragma once

#include <QString>

#include "host/text/wide_text.h"

namespace zwt {

inline QString ToQt(const CString& text) {
  return QString::fromStdWString(text);
}

inline CString FromQt(const QString& text) {
  return text.toStdWString();
}

}  // namespace zwt

// Bytes of a data file as an XML document, with findings that name the line. The grammar of each file lies
// with its reader.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include <pugixml.hpp>

#include "host/text/wide_text.h"

namespace zwt {

/// A data file is tens of kilobytes. A document takes about thirty times its bytes in memory, hence this
/// bound.
inline constexpr std::size_t kLargestDataFile = std::size_t{4} << 20;

/// A data file that cannot be read; what() is one line with the place and what was expected there.
class DataFileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The document of a file that is UTF-8 and well-formed XML, whose one outer element has the name given.
class XmlText {
 public:
  /// Throws DataFileError. The bytes must outlive the object.
  XmlText(std::string_view bytes, const char* outerElement);

  pugi::xml_node Outer() const { return outer_; }

  /// Throws DataFileError for a node that has no place here.
  [[noreturn]] void Refuse(const pugi::xml_node& node, const char* expected) const;

 private:
  std::string_view bytes_;
  pugi::xml_document document_;
  pugi::xml_node outer_;
};

/// The text of an attribute, empty where it is missing.
CString AttributeText(const pugi::xml_node& node, const char* key);

}  // namespace zwt

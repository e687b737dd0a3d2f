// The data files of the main directory as documents with their comments, which the readers pass over.
#pragma once

#include <cstring>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include <pugixml.hpp>

namespace zwt::test {

/// Comment of a row that holds a figure that nobody compared with the printed standard.
constexpr const char* kUnconfirmedMark = " 待核 ";

class DataFileText {
 public:
  explicit DataFileText(const std::string& name) {
    const std::string path = ZWT_SOURCE_DIR "/share/zwtcal/Common2/" + name;
    const auto result =
        document_.load_file(path.c_str(), pugi::parse_default | pugi::parse_comments, pugi::encoding_utf8);
    if (!result) throw std::runtime_error(path + ": " + result.description());
  }

  pugi::xml_node Outer() const { return document_.document_element(); }

 private:
  pugi::xml_document document_;
};

inline bool Is(const pugi::xml_node& node, const char* element) {
  return std::strcmp(node.name(), element) == 0;
}

inline std::vector<pugi::xml_node> Elements(const pugi::xml_node& parent) {
  std::vector<pugi::xml_node> elements;
  for (const pugi::xml_node& child : parent) {
    if (child.type() == pugi::node_element) elements.push_back(child);
  }
  return elements;
}

inline bool IsMark(const pugi::xml_node& node) {
  return node.type() == pugi::node_comment && std::strcmp(node.value(), kUnconfirmedMark) == 0;
}

inline bool IsMarked(const pugi::xml_node& element) {
  return IsMark(element.previous_sibling());
}

/// Every element below a node, in the order of the file.
inline void ForEachElement(const pugi::xml_node& parent, const std::function<void(pugi::xml_node)>& visit) {
  for (const pugi::xml_node& element : Elements(parent)) {
    visit(element);
    ForEachElement(element, visit);
  }
}

inline std::string Attribute(const pugi::xml_node& element, const char* key) {
  return element.attribute(key).value();
}

}  // namespace zwt::test

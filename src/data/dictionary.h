// The dictionary that readers of the design tables walk: tables of groups and rows, with texts by key. It is
// read from an XML file whole and knows nothing of what the tables mean.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "host/text/wide_text.h"

/// A table, a group or a row. Indices count from 0.
class ZcDtDictItem {
 public:
  static constexpr std::int32_t kTable = 3;
  static constexpr std::int32_t kGroup = 4;
  static constexpr std::int32_t kLeaf = 5;

  using Attribute = std::pair<CString, CString>;  // key, text

  ZcDtDictItem() = default;  // an empty table
  ZcDtDictItem(std::int32_t kindCode, CString name, std::vector<Attribute> attributes,
               std::vector<ZcDtDictItem> children);
  ZcDtDictItem(const ZcDtDictItem&) = default;
  ZcDtDictItem(ZcDtDictItem&&) = default;
  ZcDtDictItem& operator=(const ZcDtDictItem&) = default;
  ZcDtDictItem& operator=(ZcDtDictItem&&) = default;
  virtual ~ZcDtDictItem() = default;

  /// 5 for a row, 4 for a group and 3 for a table, also when they have no children.
  virtual std::int32_t GetKindCode() const { return kindCode_; }

  const CString& GetName() const { return name_; }
  std::int32_t GetCount() const { return static_cast<std::int32_t>(children_.size()); }
  /// Child i, null if there is none.
  const ZcDtDictItem* GetAt(std::int32_t i) const;
  /// The first child table of that name, null if there is none.
  const ZcDtDictItem* FindItem(const CString& name) const;

  /// Empty for a missing key.
  CString GetAttributeValue(const CString& key) const;
  /// The number at the front of the text, 0 for a missing key.
  double GetAttributeDoubleValue(const CString& key) const;

  const std::vector<Attribute>& Attributes() const { return attributes_; }

 private:
  std::int32_t kindCode_ = kTable;
  CString name_;
  std::vector<Attribute> attributes_;
  std::vector<ZcDtDictItem> children_;
};

/// A file of tables; it owns all its items.
class ZcDtDictionary {
 public:
  /// The platform's constructor takes the dictionary's file and parent; null for both makes an empty one.
  ZcDtDictionary(std::nullptr_t file, std::nullptr_t parent);

  /// Reads a file, whose path may have either separator, in the place of what the dictionary held. False, and
  /// the dictionary is empty, if the file cannot be read, is larger than any data file, is not UTF-8 or
  /// well-formed, or holds an element that has no place in it.
  bool ReadFromXML(const CString& path);
  /// As ReadFromXML, of the bytes of a file.
  bool ReadFromBytes(std::string_view bytes);

  /// The first table of that name, null if there is none.
  const ZcDtDictItem* FindItem(const CString& name) const { return tables_.FindItem(name); }

  /// All tables, in the order of the file.
  const ZcDtDictItem& Tables() const { return tables_; }
  /// The edition of the codes that the file names, empty if it names none.
  const CString& Edition() const { return edition_; }
  /// Why the last reading failed, one line; empty if it did not.
  const CString& Failure() const { return failure_; }

 private:
  bool Fail(const char* reason);

  ZcDtDictItem tables_;
  CString edition_;
  CString failure_;
};

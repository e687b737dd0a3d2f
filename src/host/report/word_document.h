// A word processor document (Office Open XML) grown from a template: bookmarks are filled, tables inserted,
// and everything else of the template is kept. No word processor is needed.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <pugixml.hpp>

#include "host/report/document_archive.h"

namespace zwt {

/// A table in the document. Rows and columns count from 1.
struct WordTable {
  std::vector<std::vector<pugi::xml_node>> cells;
  bool HasCell(int row, int column) const;
};

class WordDocument {
 public:
  /// Opens a document from its bytes. Throws ReportError if they hold no word processor document.
  explicit WordDocument(std::string_view bytes);

  /// The bookmarks that count, from 1: body first, then headers and footers, each in the order of the text.
  /// Those whose name begins with "_" are the word processor's own.
  int BookmarkCount() const { return static_cast<int>(bookmarks_.size()); }

  /// Puts text at a bookmark in place of what it spans; the bookmark stays, around the new text. Line feeds
  /// break lines. An index that is none changes nothing.
  void WriteBookmark(int index, const std::string& text);

  /// An empty table at a bookmark, or at the end of the document. A table without rows or columns is none.
  WordTable AddTable(int bookmark, int rows, int columns);
  WordTable AddTableAtEnd(int rows, int columns);

  /// Writes a cell; one outside the table is passed over.
  void SetCell(const WordTable& table, int row, int column, const std::string& text);

  /// The whole document as bytes of a file.
  std::string Bytes() const;

 private:
  struct StoryPart {
    std::string name;
    pugi::xml_document xml;
  };
  struct Bookmark {
    pugi::xml_node start;
    std::string id;
  };

  void LoadStories();
  void LoadStyles();
  void CollectBookmarks(pugi::xml_node story);
  WordTable BuildTable(pugi::xml_node table, int rows, int columns) const;

  DocumentArchive archive_;
  std::vector<std::unique_ptr<StoryPart>> stories_;  // the body first
  std::vector<Bookmark> bookmarks_;
  std::string tableStyle_;
  std::string headerStyle_;
  std::string textStyle_;
  std::string numberStyle_;
};

}  // namespace zwt

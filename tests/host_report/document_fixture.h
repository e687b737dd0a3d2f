// Small word processor documents for tests, made in memory.
#pragma once

#include <fstream>
#include <iterator>
#include <string>

#include "host/report/document_archive.h"

namespace zwt::test {

inline const std::string kNames =
    "xmlns:w=\"http://schemas.openxmlformats.org/wordprocessingml/2006/main\" "
    "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\"";

/// The bytes of an archive with no parts.
inline std::string EmptyArchive() {
  return std::string("PK\x05\x06", 4) + std::string(18, '\0');
}

/// A document whose body holds the given markup; header, if any, stands in a header part.
inline std::string Document(const std::string& body, const std::string& header = "",
                            const std::string& styles = "") {
  const std::string head = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>";
  const std::string relations =
      head + "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">";
  const std::string type = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
  DocumentArchive archive(EmptyArchive());
  archive.Put("[Content_Types].xml", head + "<Types/>");
  archive.Put("_rels/.rels", relations + "<Relationship Id=\"r1\" Type=\"" + type +
                                 "officeDocument\" Target=\"word/document.xml\"/></Relationships>");
  archive.Put("word/document.xml",
              head + "<w:document " + kNames + "><w:body>" + body + "<w:sectPr/></w:body></w:document>");
  std::string related = relations;
  if (!header.empty()) {
    related += "<Relationship Id=\"r2\" Type=\"" + type + "header\" Target=\"header1.xml\"/>";
    archive.Put("word/header1.xml", head + "<w:hdr " + kNames + ">" + header + "</w:hdr>");
  }
  if (!styles.empty()) {
    related += "<Relationship Id=\"r3\" Type=\"" + type + "styles\" Target=\"styles.xml\"/>";
    archive.Put("word/styles.xml", head + "<w:styles " + kNames + ">" + styles + "</w:styles>");
  }
  archive.Put("word/_rels/document.xml.rels", related + "</Relationships>");
  archive.Put("custom/kept.bin", std::string("\0\1\2", 3));
  return archive.Pack();
}

inline std::string Mark(const std::string& id, const std::string& name, const std::string& inner = "") {
  return "<w:bookmarkStart w:id=\"" + id + "\" w:name=\"" + name + "\"/>" + inner + "<w:bookmarkEnd w:id=\"" +
         id + "\"/>";
}

inline std::string TextRun(const std::string& text) {
  return "<w:r><w:t>" + text + "</w:t></w:r>";
}

/// What stands between <w:body> and the section's properties.
inline std::string BodyOf(const std::string& document) {
  const DocumentArchive archive(document);
  const std::string& xml = archive.Find("word/document.xml")->bytes;
  const std::size_t begin = xml.find("<w:body>") + 8;
  return xml.substr(begin, xml.find("<w:sectPr") - begin);
}

inline std::string ReadBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace zwt::test

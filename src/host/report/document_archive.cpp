// Packing and unpacking of documents with libzip, in memory: files are read and written by host/platform.
#include "host/report/document_archive.h"

#include <algorithm>
#include <memory>

#include <zip.h>

#include "host/report/report_error.h"

namespace zwt {

namespace {

constexpr std::size_t kLargestDocument = std::size_t{256} << 20;

/// One fixed time for all parts (1980-01-01): the same report is the same bytes whenever it is written.
constexpr zip_uint16_t kPartDate = (1 << 5) | 1;

[[noreturn]] void Fail(const std::string& reason) {
  throw ReportError("word processor document: " + reason);
}

struct CloseArchive {
  void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, CloseArchive>;

struct CloseEntry {
  void operator()(zip_file_t* entry) const { zip_fclose(entry); }
};

Archive OpenForReading(std::string_view bytes) {
  if (bytes.empty()) Fail("empty file");
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
  if (source == nullptr) Fail("not enough memory");
  zip_t* archive = zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, &error);
  if (archive == nullptr) {
    zip_source_free(source);
    Fail(std::string("no document archive: ") + zip_error_strerror(&error));
  }
  return Archive(archive);
}

DocumentArchive::Part ReadPart(zip_t* archive, zip_uint64_t index, std::size_t allowed) {
  zip_stat_t stat;
  if (zip_stat_index(archive, index, 0, &stat) != 0 || (stat.valid & ZIP_STAT_SIZE) == 0)
    Fail("damaged directory");
  if (stat.size > allowed) Fail("too large");
  DocumentArchive::Part part{stat.name, std::string(static_cast<std::size_t>(stat.size), '\0')};
  const std::unique_ptr<zip_file_t, CloseEntry> entry(zip_fopen_index(archive, index, 0));
  if (!entry) Fail("damaged part " + part.name);
  const zip_int64_t read = zip_fread(entry.get(), part.bytes.data(), stat.size);
  if (read < 0 || static_cast<zip_uint64_t>(read) != stat.size) Fail("damaged part " + part.name);
  return part;
}

void AddPart(zip_t* archive, const DocumentArchive::Part& part) {
  zip_source_t* source = zip_source_buffer(archive, part.bytes.data(), part.bytes.size(), 0);
  if (source == nullptr) Fail("not enough memory");
  const zip_int64_t index = zip_file_add(archive, part.name.c_str(), source, ZIP_FL_ENC_UTF_8);
  if (index < 0) {
    zip_source_free(source);
    Fail("cannot add part " + part.name);
  }
  zip_file_set_dostime(archive, static_cast<zip_uint64_t>(index), 0, kPartDate, 0);
}

std::string BytesOf(zip_source_t* source) {
  zip_stat_t stat;
  if (zip_source_stat(source, &stat) != 0 || zip_source_open(source) != 0) Fail("cannot be packed");
  std::string bytes(static_cast<std::size_t>(stat.size), '\0');
  const zip_int64_t read = zip_source_read(source, bytes.data(), bytes.size());
  zip_source_close(source);
  if (read < 0 || static_cast<std::size_t>(read) != bytes.size()) Fail("cannot be packed");
  return bytes;
}

}  // namespace

DocumentArchive::DocumentArchive(std::string_view bytes) {
  const Archive archive = OpenForReading(bytes);
  const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
  std::size_t allowed = kLargestDocument;
  for (zip_int64_t index = 0; index < count; ++index) {
    parts_.push_back(ReadPart(archive.get(), static_cast<zip_uint64_t>(index), allowed));
    allowed -= parts_.back().bytes.size();
  }
}

const DocumentArchive::Part* DocumentArchive::Find(std::string_view name) const {
  const auto found =
      std::find_if(parts_.begin(), parts_.end(), [&](const Part& part) { return part.name == name; });
  return found == parts_.end() ? nullptr : &*found;
}

void DocumentArchive::Put(const std::string& name, std::string bytes) {
  const auto found =
      std::find_if(parts_.begin(), parts_.end(), [&](const Part& part) { return part.name == name; });
  if (found == parts_.end()) {
    parts_.push_back({name, std::move(bytes)});
  } else {
    found->bytes = std::move(bytes);
  }
}

std::string DocumentArchive::Pack() const {
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* source = zip_source_buffer_create(nullptr, 0, 0, &error);
  if (source == nullptr) Fail("not enough memory");
  zip_source_keep(source);
  const std::unique_ptr<zip_source_t, void (*)(zip_source_t*)> kept(source, zip_source_free);
  Archive archive(zip_open_from_source(source, ZIP_CREATE | ZIP_TRUNCATE, &error));
  if (!archive) {
    zip_source_free(source);
    Fail("cannot be packed");
  }
  for (const Part& part : parts_) AddPart(archive.get(), part);
  if (zip_close(archive.get()) != 0) Fail("cannot be packed");
  static_cast<void>(archive.release());
  return BytesOf(source);
}

}  // namespace zwt

#include "host/dxf/dxf_file.h"

#include "host/platform/files.h"

namespace zwt {

std::unique_ptr<Drawing> ReadDrawing(const std::filesystem::path& path) {
  std::string bytes = ReadWholeFile(path, kLargestDrawing);
  try {
    return ParseDrawing(std::move(bytes));
  } catch (const DrawingError& error) {
    throw error.In(path.string());
  }
}

void SaveDrawing(Drawing& drawing, const std::filesystem::path& path) {
  WriteFileAtomically(path, DrawingBytes(drawing));
  drawing.MarkSaved();
}

}  // namespace zwt

// Drawings from and to DXF files in text form, AC1009 (R12) to AC1032 (R2018). What is not understood is kept
// byte for byte; a drawing that did not change is written as the bytes that were read.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "host/drawing/drawing.h"
#include "host/drawing/drawing_error.h"

namespace zwt {

/// Largest drawing that is read, in bytes.
constexpr std::size_t kLargestDrawing = std::size_t{1} << 34;

/// Drawing in a file. Throws FileError where it cannot be read; DrawingError, with the path in front, where
/// its structure is broken or a pipe misses what it needs, and where it is a DWG or binary DXF file.
std::unique_ptr<Drawing> ReadDrawing(const std::filesystem::path& path);

/// Drawing in the bytes of a file. Throws DrawingError.
std::unique_ptr<Drawing> ParseDrawing(std::string bytes);

/// Bytes of the file of a drawing. Its own changes apart they are the bytes that were read.
std::string DrawingBytes(const Drawing& drawing);

/// Writes the file of a drawing, whole or not at all, and marks the drawing as saved. Throws FileError.
void SaveDrawing(Drawing& drawing, const std::filesystem::path& path);

}  // namespace zwt

// Conversions that need an office program: a template in the old binary form, a report as PDF.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace zwt {

/// Whether the bytes are a document in the old binary form.
bool IsOldDocument(std::string_view bytes);

/// The document in the present form. Throws ReportError, saying so, where no office program is installed or
/// it fails.
std::string ConvertOldDocument(std::string_view bytes);

/// Writes a document as PDF. Throws ReportError, saying so, where no office program is installed or it fails.
void ConvertToPdf(const std::filesystem::path& document, const std::filesystem::path& pdf);

}  // namespace zwt

// Handing a document to the user's own program for it.
#pragma once

#include <filesystem>

namespace zwt {

/// Opens a document with the program that the user's system has for it, and does not wait for that program.
/// Throws FileError where the document does not exist or nothing can open documents here.
void OpenDocument(const std::filesystem::path& document);

}  // namespace zwt

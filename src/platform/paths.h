#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// The program writes paths with "\" and relies on a file system that ignores case; this turns them into the machine's
// own.
namespace platform {

// The machine's path for a path written with "\" or "/". Each folder and file name that exists is matched without
// regard to case, an exact match first, composed and decomposed accents alike; from the first name that does not exist
// on, the rest is taken as written. Nothing fails.
[[nodiscard]] std::filesystem::path machinePath(std::string_view path);

// The file names a UTF-8 text can be compared by: composed and lower case.
[[nodiscard]] std::string foldedFileName(std::string_view name);

}  // namespace platform

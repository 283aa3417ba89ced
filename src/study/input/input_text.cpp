#include "study/input/input_text.h"

#include <algorithm>
#include <array>

#include "study/input/csv_records.h"
#include "text/file_text.h"
#include "text/utf8.h"

namespace study {

namespace {

// How a character of several bytes begins, and between which values its second byte lies (the Unicode Standard,
// table 3-7, well-formed UTF-8 byte sequences).
struct Lead {
  unsigned char first, last;
  std::size_t length;
  unsigned char secondFirst, secondLast;
};
constexpr std::array<Lead, 8> kLeads{{{0xC2, 0xDF, 2, 0x80, 0xBF},
                                      {0xE0, 0xE0, 3, 0xA0, 0xBF},
                                      {0xE1, 0xEC, 3, 0x80, 0xBF},
                                      {0xED, 0xED, 3, 0x80, 0x9F},
                                      {0xEE, 0xEF, 3, 0x80, 0xBF},
                                      {0xF0, 0xF0, 4, 0x90, 0xBF},
                                      {0xF1, 0xF3, 4, 0x80, 0xBF},
                                      {0xF4, 0xF4, 4, 0x80, 0x8F}}};

constexpr std::string_view kFirmBlank = "\u00A0";

bool isBetween(char byte, unsigned char first, unsigned char last) {
  return static_cast<unsigned char>(byte) >= first && static_cast<unsigned char>(byte) <= last;
}

// The length of the character of several bytes at the beginning; 0: there is none.
std::size_t longCharacter(std::string_view bytes) {
  const auto lead = std::find_if(kLeads.begin(), kLeads.end(),
                                 [&](const Lead& l) { return isBetween(bytes.front(), l.first, l.last); });
  if (lead == kLeads.end() || bytes.size() < lead->length) return 0;
  if (!isBetween(bytes[1], lead->secondFirst, lead->secondLast)) return 0;
  for (std::size_t i = 2; i < lead->length; ++i) {
    if (!isBetween(bytes[i], 0x80, 0xBF)) return 0;
  }
  return lead->length;
}

}  // namespace

std::optional<std::size_t> firstMalformed(std::string_view bytes) {
  std::size_t at = 0;
  while (at < bytes.size()) {
    if (static_cast<unsigned char>(bytes[at]) < 0x80) {
      ++at;
      continue;
    }
    const std::size_t length = longCharacter(bytes.substr(at));
    if (length == 0) return at;
    at += length;
  }
  return std::nullopt;
}

namespace {

// The file of that name, or else of the name in other case.
std::filesystem::path pathOf(const std::filesystem::path& folder, const std::string& name) {
  std::filesystem::path path = folder / text::toPath(name);
  std::error_code error;
  if (std::filesystem::exists(path, error)) return path;
  for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
    if (text::equalsIgnoringCase(text::fromPath(entry.path().filename()), name)) return entry.path();
  }
  return path;
}

}  // namespace

std::optional<std::string> readText(const std::filesystem::path& folder, const FileFaults& faults) {
  const std::filesystem::path path = pathOf(folder, faults.file());
  std::error_code error;
  if (!std::filesystem::exists(path, error)) {
    faults.add(FaultKind::missingFile, 0, "the file is missing", "add it to the input folder");
    return std::nullopt;
  }
  std::optional<std::string> text = text::wholeFile(path);
  if (!text) {
    faults.add(FaultKind::unreadableFile, 0, "the file cannot be read", "check its permissions");
    return std::nullopt;
  }
  if (text->starts_with("\xEF\xBB\xBF")) text->erase(0, 3);
  if (const auto malformed = firstMalformed(*text)) {
    faults.add(FaultKind::notUtf8, lineEnds(std::string_view(*text).substr(0, *malformed)) + 1, "the text is not UTF-8",
               "save the file with the encoding UTF-8");
    return std::nullopt;
  }
  return text;
}

std::size_t blankAtStart(std::string_view text) {
  if (text.starts_with(' ') || text.starts_with('\t')) return 1;
  return text.starts_with(kFirmBlank) ? kFirmBlank.size() : 0;
}

std::size_t blankAtEnd(std::string_view text) {
  if (text.ends_with(' ') || text.ends_with('\t')) return 1;
  return text.ends_with(kFirmBlank) ? kFirmBlank.size() : 0;
}

std::string_view trimmed(std::string_view text) {
  while (const std::size_t blank = blankAtStart(text)) text.remove_prefix(blank);
  while (const std::size_t blank = blankAtEnd(text)) text.remove_suffix(blank);
  return text;
}

}  // namespace study

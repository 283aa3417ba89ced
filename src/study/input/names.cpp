#include "study/input/names.h"

#include <algorithm>
#include <array>

#include "study/input/input_text.h"
#include "study/model/windows1252.h"
#include "text/utf8.h"

namespace study {

namespace {

constexpr std::string_view kNoFileName = "\\/:*?<>|";

// Names of devices, which no folder may have whatever follows after a dot.
constexpr std::array<std::string_view, 22> kDevices{"con",  "prn",  "aux",  "nul",  "com1", "com2", "com3", "com4",
                                                    "com5", "com6", "com7", "com8", "com9", "lpt1", "lpt2", "lpt3",
                                                    "lpt4", "lpt5", "lpt6", "lpt7", "lpt8", "lpt9"};

bool isControl(char32_t c) { return c < 0x20 || c == 0x7F; }

// Tells the first character that windows-1252 lacks.
void checkLetters(const FileFaults& faults, std::size_t line, const std::string& subject,
                  const std::u32string& characters, const std::string& whose, FaultKind kind) {
  const auto strange = std::find_if_not(characters.begin(), characters.end(), isOfWindows1252);
  if (strange == characters.end()) return;
  faults.add(kind, line,
             subject + " holds " + inQuotes(text::encode(std::u32string(1, *strange))) + ", which " + whose +
                 "' character set windows-1252 does not have",
             "write it with letters of western Europe");
}

bool isDevice(std::string_view name) {
  const std::string stem = text::lower(name.substr(0, name.find('.')));
  return std::find(kDevices.begin(), kDevices.end(), stem) != kDevices.end();
}

}  // namespace

std::string folded(std::string_view name) { return text::lower(text::compose(name)); }

void checkProse(const FileFaults& faults, std::size_t line, std::string_view what, std::string_view text) {
  const std::string subject = std::string(what) + " " + inQuotes(text);
  const std::u32string characters = text::decode(text);
  const auto isBad = [](char32_t c) { return isControl(c) && c != '\n' && c != '\t'; };
  if (std::any_of(characters.begin(), characters.end(), isBad)) {
    faults.add(FaultKind::badText, line, subject + " holds a control character", "leave it out");
  }
  checkLetters(faults, line, subject, characters, "the documents", FaultKind::badText);
}

void checkText(const FileFaults& faults, std::size_t line, std::string_view what, std::string_view text,
               std::size_t longest, FaultKind kind) {
  const std::string subject = std::string(what) + " " + inQuotes(text);
  const std::u32string characters = text::decode(text);
  if (text.find('"') != std::string_view::npos) {
    faults.add(kind, line, subject + " holds a double quote, which would end it in the program's statements",
               "leave it out, or write another sign");
  }
  if (std::any_of(characters.begin(), characters.end(), isControl)) {
    faults.add(kind, line, subject + " holds a line end, a tab or another control character", "leave it out");
  }
  checkLetters(faults, line, subject, characters, "the tables", kind);
  if (characters.size() > longest) {
    faults.add(kind, line,
               subject + " has " + std::to_string(characters.size()) + " characters; there is room for " +
                   std::to_string(longest),
               "shorten it");
  }
}

void checkName(const FileFaults& faults, std::string_view what, std::string_view name) {
  checkText(faults, 0, what, name, kLongestName, FaultKind::badName);
  const std::string subject = std::string(what) + " " + inQuotes(name);
  if (const std::size_t at = name.find_first_of(kNoFileName); at != std::string_view::npos) {
    faults.add(FaultKind::badName, 0,
               subject + " holds " + inQuotes(name.substr(at, 1)) + ", which no file name may hold",
               "write another sign");
  }
  if (blankAtStart(name) > 0 || blankAtEnd(name) > 0 || name.ends_with('.')) {
    faults.add(FaultKind::badName, 0, subject + " begins or ends in a blank, or ends in a dot",
               "leave out what is there too much");
  }
  if (isDevice(name)) {
    faults.add(FaultKind::badName, 0, subject + " is a name that Windows keeps for a device", "write another name");
  }
}

}  // namespace study

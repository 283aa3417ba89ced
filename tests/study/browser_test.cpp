#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <utility>

#include "outside_program.h"
#include "page_table.h"
#include "sample_study.h"
#include "scratch_folder.h"
#include "text/file_text.h"

// The sample's pages, set by a browser. Each is looked at as it is, in a frame of a page that measures it.
namespace studytest {
namespace {

namespace fs = std::filesystem;

// What the browser says of a page.
struct Setting {
  std::string encoding;
  std::size_t scripts = 0;
  std::size_t cells = 0;
  std::string clipped;  // the texts that are not wholly seen
};

std::string inAddress(const std::string& path) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  std::string address = "file://";
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    if (std::isalnum(byte) != 0 || c == '/' || c == '.' || c == '-' || c == '_') {
      address += c;
    } else {
      address.append("%").append(1, kDigits[byte / 16]).append(1, kDigits[byte % 16]);
    }
  }
  return address;
}

class Browser : public testing::Test {
 protected:
  void SetUp() override {
    const auto browser = findProgram({"chromium", "chromium-browser"});
    if (!browser) {
      const char* const reason = "no browser (Debian: chromium) is installed; no page was looked at in one";
      tellAtTheEnd(reason);
      GTEST_SKIP() << reason;
    }
    browser_ = *browser;
  }

  // Shows the pages in frames of a width and returns what it finds, by path.
  [[nodiscard]] std::map<std::string, Setting> shown(const std::vector<fs::path>& pages, int width) const {
    const ScratchFolder folder;
    const fs::path frames = folder.path() / "frames.html";
    {
      std::ofstream out(frames);
      out << "<!DOCTYPE html><meta charset=\"utf-8\"><script src=\"" << inAddress(VELDORIA_MEASURE_JS)
          << "\"></script><body>";
      for (const fs::path& page : pages) {
        out << "<iframe width=\"" << width << "\" height=\"700\" title=\"" << page.string() << "\" src=\""
            << inAddress(page.string()) << "\"></iframe>\n";
      }
    }
    std::vector<std::string> command{browser_,
                                     "--headless",
                                     "--disable-gpu",
                                     "--allow-file-access-from-files",
                                     "--user-data-dir=" + (folder.path() / "profile").string(),
                                     "--dump-dom",
                                     inAddress(frames.string())};
    if (geteuid() == 0) command.insert(command.begin() + 1, "--no-sandbox");  // the administrator's has none
    const ProgramResult result = runProgram(command);
    EXPECT_EQ(result.code, 0);
    return settingsIn(result.output);
  }

 private:
  static std::map<std::string, Setting> settingsIn(const std::string& dump) {
    std::map<std::string, Setting> settings;
    const std::size_t start = dump.find("<pre>");
    const std::size_t end = dump.find("</pre>");
    if (start == dump.npos || end == dump.npos) throw std::runtime_error("the browser said nothing: " + dump);
    std::istringstream lines(dump.substr(start + 5, end - start - 5));
    for (std::string line; std::getline(lines, line);) {
      std::istringstream fields(line);
      std::string path;
      std::string number;
      Setting setting;
      std::getline(fields, path, '\t');
      std::getline(fields, setting.encoding, '\t');
      std::getline(fields, number, '\t');
      setting.scripts = std::stoul(number);
      std::getline(fields, number, '\t');
      setting.cells = std::stoul(number);
      std::getline(fields, setting.clipped);
      settings[path] = setting;
    }
    return settings;
  }

  std::string browser_;
};

std::vector<fs::path> pagesBelow(const fs::path& folder) {
  std::set<fs::path> pages;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.path().extension() == ".html") pages.insert(entry.path());
  }
  return {pages.begin(), pages.end()};
}

// The pages of a year are of every kind, list, sex, province and region; those of all years differ in digits alone.
TEST_F(Browser, SetsTablesWithoutAClippedCell) {
  for (const auto& [year, width] : {std::pair("1999", 800), std::pair("2002", 1200)}) {
    std::vector<fs::path> pages = pagesBelow(fs::path(scenarios::sampleStudy()) / "Tablas/HTML");
    std::erase_if(pages,
                  [&first = year](const fs::path& page) { return !page.filename().string().starts_with(first); });
    ASSERT_EQ(pages.size(), 6U + 54U + 3U + 3U + 3U);
    const auto settings = shown(pages, width);
    for (const fs::path& page : pages) {
      const Setting& setting = settings.at(page.string());
      EXPECT_EQ(setting.encoding, "UTF-8") << page;
      EXPECT_EQ(setting.scripts, 0U) << page;
      EXPECT_EQ(setting.clipped, "") << page << " at " << width;
      EXPECT_EQ(setting.cells, cellsIn(text::wholeFile(page).value())) << page;
      EXPECT_GT(setting.cells, 80U) << page;
    }
  }
}

TEST_F(Browser, SetsTheDocuments) {
  const fs::path sample = scenarios::sampleStudy();
  std::vector<fs::path> pages = pagesBelow(sample / "Archivos");
  pages.push_back(sample / "Ayuda/Ayuda.html");
  ASSERT_EQ(pages.size(), 5U);
  const auto settings = shown(pages, 800);
  for (const fs::path& page : pages) {
    const Setting& setting = settings.at(page.string());
    EXPECT_EQ(setting.encoding, "UTF-8") << page;
    EXPECT_EQ(setting.scripts, 0U) << page;
    EXPECT_EQ(setting.clipped, "") << page;
  }
}

// What is wrong is seen: otherwise nothing above would be.
TEST_F(Browser, FindsWhatIsClipped) {
  const ScratchFolder folder;
  const auto write = [&](const char* name, const std::string& body) {
    std::ofstream(folder.path() / name) << "<!DOCTYPE html><meta charset=\"windows-1252\"><body>" << body;
    return folder.path() / name;
  };
  const fs::path whole = write("whole.html", "<table><tr><th>Provincia<td>1.234</table>");
  const fs::path hidden = write("hidden.html",
                                "<table style=\"table-layout: fixed; width: 60px\"><tr><td style=\"overflow: hidden; "
                                "white-space: nowrap\">1.234.567.890<td>2</table>");
  const fs::path sticking = write("sticking.html",
                                  "<table style=\"table-layout: fixed; width: 60px\"><tr><td style=\"white-space: "
                                  "nowrap\">1.234.567.890<td>2</table>");
  const fs::path around = write("around.html",
                                "<div style=\"overflow: hidden; width: 50px\"><table><tr><td>1<td>Provincias</table>"
                                "</div>");
  const fs::path script = write("script.html", "<table><tr><td>1</table><script></script>");
  const fs::path missing = folder.path() / "missing.html";
  const auto settings = shown({whole, hidden, sticking, around, script, missing}, 800);
  EXPECT_EQ(settings.at(whole.string()).clipped, "");
  EXPECT_EQ(settings.at(whole.string()).cells, 2U);
  EXPECT_EQ(settings.at(whole.string()).encoding, "windows-1252");
  EXPECT_EQ(settings.at(hidden.string()).clipped, "1.234.567.890");
  EXPECT_EQ(settings.at(sticking.string()).clipped, "1.234.567.890");
  EXPECT_EQ(settings.at(around.string()).clipped, "Provincias");
  EXPECT_EQ(settings.at(script.string()).scripts, 1U);
  EXPECT_EQ(settings.at(missing.string()).encoding, "unreadable");
}

}  // namespace
}  // namespace studytest

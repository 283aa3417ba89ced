#include <QTemporaryDir>
#include <QUrl>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "hosts/desktop/pages/reading/page_text.h"
#include "hosts/desktop/pages/reading/study_folder.h"
#include "rich_text_check.h"

namespace {

using desktop::pages::PageText;
using desktop::pages::readPage;
using desktop::pages::StudyFolder;

void expect(bool holds, const char* what, const QString& which = {}) {
  if (holds) return;
  std::cerr << what << ": " << which.toStdString() << '\n';
  std::abort();
}

// A folder of a study with a few files, among others that no page may have.
class Site {
 public:
  Site() {
    for (const char* file : {"fuera.css", "estudio/hoja.css", "estudio/Tablas/hoja.css", "estudio/Tablas/mapa.png"}) {
      const std::filesystem::path path = outer_.filePath(file).toStdString();
      std::filesystem::create_directories(path.parent_path());
      std::ofstream(path) << "p{color:red}";
    }
    const std::filesystem::path study = outer_.filePath("estudio").toStdString();
    std::filesystem::create_directory_symlink(outer_.path().toStdString(), study / "enlace");
    std::filesystem::create_symlink("/dev/zero", study / "cero.css");
    folder_ = StudyFolder(outer_.filePath("estudio"));
    root_ = std::filesystem::canonical(study).string() + '/';
  }

  // The file at an address that a page in the folder "Tablas" holds; a file outside the study ends the program.
  [[nodiscard]] QString fileAt(const QString& address) const {
    const QUrl page = QUrl::fromLocalFile(outer_.filePath("estudio/Tablas/pagina.html"));
    const QString file = folder_.fileAt(page.resolved(QUrl(address)));
    expect(file.isEmpty() || file.startsWith(QString::fromStdString(root_)), "outside", file);
    return file;
  }

 private:
  QTemporaryDir outer_;
  StudyFolder folder_;
  std::string root_;
};

// Every picture and every page that a link leads to lies in the study, or nowhere.
void followAddresses(const Site& site, const QString& html) {
  for (const QLatin1String before : {QLatin1String("src=\""), QLatin1String("href=\"")}) {
    for (qsizetype at = html.indexOf(before); at >= 0; at = html.indexOf(before, at + 1)) {
      const qsizetype first = at + before.size();
      const QString address = html.sliced(first, html.indexOf(u'"', first) - first);
      static_cast<void>(site.fileAt(QString(address).replace(QLatin1String("&amp;"), QLatin1String("&"))));
    }
  }
}

}  // namespace

// The input is a page and, behind the first byte 1F, the style sheet that it gets where it asks for one of the study's.
// Whatever it is, a page comes out of it that is well formed, not much larger, the same each time, and without anything
// that does not lie in the study.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Site site;
  const QByteArray input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const qsizetype middle = input.indexOf('\x1F');
  const QByteArray page = middle < 0 ? input : input.first(middle);
  const auto sheets = [&](const QString& address) {
    return site.fileAt(address).isEmpty() || middle < 0 ? QByteArray() : input.sliced(middle + 1);
  };
  const PageText text = readPage(page, 1, sheets);

  const QString fault = faultIn(text.html);
  expect(fault.isEmpty(), "fault", fault);
  expect(text.title.isValidUtf16(), "title", text.title);
  constexpr qsizetype kForNothing = 1000;
  constexpr qsizetype kForOneByte = 1000;  // a word within a link of a long address, or in a font of long names
  expect(text.html.size() < kForNothing + kForOneByte * input.size(), "size", QString::number(text.html.size()));
  expect(std::ranges::all_of(text.margins, [](int margin) { return margin >= 0 && margin < 10'000; }), "margins");
  const bool isReadAgain = size % 4 == 0;  // it takes as long as all the rest
  expect(!isReadAgain || readPage(page, 1, sheets).html == text.html, "another page for the same bytes");
  followAddresses(site, text.html);
  return 0;
}

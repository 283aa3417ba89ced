#include <array>

#include "study/pages/page_file.h"
#include "study/pages/table_pages.h"
#include "study/pages/table_parts.h"

namespace study::pages {

namespace {

// Folders and files as the program's default page spells them: table 0 differs in its capitals.
struct ListFolder {
  std::string_view list;
  std::string_view ofTable0;
  std::string_view ofTable1;
};
constexpr std::array<ListFolder, 2> kListFolders{
    {{kBroadGroups, "Grandes Grupos", "Grandes grupos"}, {kReducedList, "Lista reducida", "Lista reducida"}}};

std::string sexInTable0(const SexChoice& sex) {
  return sex.men && sex.women ? std::string("Ambos Sexos") : std::string(sex.name);
}

std::string folderOf(std::size_t table, std::string_view list = {}) {
  std::string folder = "Tablas/HTML/" + std::to_string(table) + "/";
  if (!list.empty()) folder.append(list).append("/");
  return folder;
}

void writeListPages(const YearFigures& figures, const SexChoice& sex, const std::filesystem::path& folder) {
  const Study& study = figures.study();
  for (const ListFolder& list : kListFolders) {
    writePage(folder, folderOf(0, list.ofTable0) + figures.year() + " - " + sexInTable0(sex) + ".html",
              lifeLostPage(figures, list.list, sex));
    for (const Unit unit : regionAndProvinces(study)) {
      const std::string file = figures.year() + " - " + study.name(unit) + " - " + std::string(sex.name) + ".html";
      writePage(folder, folderOf(1, list.ofTable1) + file, deathsByAgePage(figures, unit, list.list, sex));
    }
  }
}

}  // namespace

void writeTablePages(const Study& study, const std::filesystem::path& applicationFolder) {
  for (std::size_t year = 0; year < study.years.size(); ++year) {
    const YearFigures figures(study, year);
    for (const SexChoice& sex : kSexChoices) {
      const std::string file = figures.year() + " - " + std::string(sex.name) + ".html";
      writeListPages(figures, sex, applicationFolder);
      writePage(applicationFolder, folderOf(2) + file, distributionPage(figures, sex));
      writePage(applicationFolder, folderOf(3) + file, provinceIndicatorsPage(figures, sex));
      writePage(applicationFolder, folderOf(4) + file, zoneIndicatorsPage(figures, sex));
    }
  }
}

}  // namespace study::pages

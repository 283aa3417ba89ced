#include "study/thematic/catalogue.h"

#include <map>
#include <set>

#include "study/output/column_widths.h"
#include "study/output/table_writer.h"
#include "study/output/workspace_text.h"
#include "study/thematic/thematic_palette.h"
#include "study/thematic/thematic_workspace.h"
#include "text/file_text.h"
#include "text/utf8.h"

namespace study {

namespace {

namespace fs = std::filesystem;

// The units' objects, made once for all tables.
class Objects {
 public:
  explicit Objects(const Study& study) {
    const ObjectStyle style{palette::kSignGroundLine, 1, palette::kSignGround};
    for (const Area& area : study.provinceAreas) provinces_.emplace_back(area, style);
    for (const Area& area : study.zoneAreas) zones_.emplace_back(area, style);
  }
  [[nodiscard]] const TableObject& of(Unit unit) const {
    return unit.kind == UnitKind::province ? provinces_[unit.index] : zones_[unit.index];
  }

 private:
  std::vector<TableObject> provinces_;
  std::vector<TableObject> zones_;
};

class CatalogueWriter {
 public:
  CatalogueWriter(const Study& study, const FigureBook& book, const fs::path& tables)
      : study_(study),
        book_(book),
        tables_(tables),
        projection_(mapProjection(study)),
        objects_(study),
        scales_(study, book) {}

  void write(const ThematicMap& map) {
    writeBase(map);
    const fs::path path = tables_ / thematicPath(study_, map);
    fs::create_directories(path.parent_path());
    writeTable(map, path);
    fs::path workspace = path;
    workspace += ".wor";
    writeWorkspace(workspace, thematicWorkspace(study_, map, scales_, projection_, hasFigures(map)));
  }

 private:
  void writeTable(const ThematicMap& map, const fs::path& path) const {
    using enum Column::Type;
    TableWriter table(path.parent_path(), ::text::fromPath(path.filename()),
                      {{"Nombre", text, nameWidth(study_)},
                       {"Indicador", text, static_cast<int>(::text::length(map.indicator))},
                       {"Sexo", text, sexWidth()},
                       {"Tipo", text, typeWidth()},
                       {"Valor", number}},
                      projection_);
    for (const Unit unit : unitsOf(study_, map)) {
      const Figure* figure = book_.find(map.year, unit, map.sex, map.indicator);
      if (figure == nullptr) continue;
      table.add({study_.name(unit), map.indicator, std::string(map.sex), std::string(figure->type()), figure->value},
                objects_.of(unit));
    }
    table.close();
  }

  [[nodiscard]] bool hasFigures(const ThematicMap& map) const {
    for (const Unit unit : unitsOf(study_, map)) {
      if (book_.find(map.year, unit, map.sex, map.indicator) == nullptr) return false;
    }
    return true;
  }

  void writeBase(const ThematicMap& map) {
    const fs::path path = tables_ / basePath(study_, map);
    if (!written_.insert(path).second) return;
    fs::create_directories(path.parent_path());
    TableWriter table(path.parent_path(), ::text::fromPath(path.filename()),
                      {{"Nombre", Column::Type::text, nameWidth(study_)}}, projection_);
    for (const Unit unit : unitsOf(study_, map)) table.add({study_.name(unit)}, objects_.of(unit));
    table.close();
  }

  const Study& study_;
  const FigureBook& book_;
  fs::path tables_;
  MapProjection projection_;
  Objects objects_;
  ThematicScales scales_;
  std::set<fs::path> written_;
};

}  // namespace

void writeCatalogue(const Study& study, const FigureBook& book, const fs::path& tables, const Progress& progress) {
  CatalogueWriter writer(study, book, tables);
  std::size_t year = study.years.size();
  for (const ThematicMap& map : thematicMaps(study)) {
    if (progress)
      progress(map.year == year ? "" : "Making the thematic maps of " + std::to_string(study.years[map.year]));
    year = map.year;
    writer.write(map);
  }
}

}  // namespace study

#include "study/pages/table_parts.h"

namespace study::pages {

std::vector<Unit> regionAndProvinces(const Study& study) {
  std::vector<Unit> units = study.units(UnitKind::region);
  const std::vector<Unit> provinces = study.units(UnitKind::province);
  units.insert(units.end(), provinces.begin(), provinces.end());
  return units;
}

std::vector<CauseRow> causeRowsAndTotal(const Study& study, std::string_view list, const SexChoice& sex) {
  std::vector<CauseRow> rows = causeRows(study, list, sex);
  rows.emplace_back();
  return rows;
}

Row rowOf(const CauseRow& cause) {
  return {cause.cause == nullptr ? RowKind::total : RowKind::figures, cause.name(), {}};
}

std::vector<std::string> listNotes(const Study& study, std::string_view list) {
  if (addsUp(study.causes, list)) return {};
  return {"Las causas de «" + std::string(list) +
          "» no suman el total: no abarcan todas las defunciones, o unas causas comprenden a otras."};
}

}  // namespace study::pages

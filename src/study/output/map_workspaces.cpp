#include "study/output/map_workspaces.h"

#include "study/model/study.h"
#include "study/output/palette.h"
#include "study/output/workspace_text.h"

namespace study {

namespace {

// Beyond this width of the map zones would bear their names on top of each other.
constexpr int kZoneNamesUpTo = 310;  // kilometres

constexpr LayerLook kProvinceOutlines{.display = "Graphic",
                                      .penWidth = 2,
                                      .penColour = palette::kProvinceLine,
                                      .fill = palette::kProvinceFill,
                                      .labelStyle = kBold + kHalo,
                                      .labelSize = 9,
                                      .labels = true};
constexpr LayerLook kZones{.display = "Global",
                           .penColour = palette::kZoneLine,
                           .fill = palette::kZoneFill,
                           .labelStyle = kHalo,
                           .labelSize = 8,
                           .labels = true,
                           .labelsUpTo = kZoneNamesUpTo,
                           .selectable = true};
constexpr LayerLook kHiddenRegion{.display = "Off",
                                  .penWidth = 2,
                                  .penColour = palette::kProvinceLine,
                                  .fill = palette::kProvinceFill,
                                  .labelStyle = kBold + kHalo,
                                  .labelSize = 10};
constexpr LayerLook kStatistics{.display = "Graphic",
                                .penColour = palette::kProvinceLine,
                                .fill = palette::kProvinceFill,
                                .labelStyle = kBold + kHalo,
                                .labelSize = 9,
                                .labels = true,
                                .selectable = true};

}  // namespace

std::string yearWorkspace(int year, const MapProjection& projection) {
  const std::string suffix = std::to_string(year);
  const std::string provinces = "Provincias" + suffix;
  const std::string zones = "ZonasBasicas" + suffix;
  const std::string whole = std::string(kRegion) + suffix;
  return workspaceHeader() + openTable(provinces, provinces) + openTable(zones, zones) + openTable(whole, whole) +
         mapFrom({provinces, zones, whole}, "Provincias y zonas básicas de salud, " + suffix) +
         wholeRegion(projection) + "Set Map\n" + layerLines(1, kProvinceOutlines) + layerLines(2, kZones) +
         layerLines(3, kHiddenRegion);
}

std::string statisticsWorkspace(const MapProjection& projection) {
  return workspaceHeader() + openTable("Estadisticas", "Estadisticas") +
         mapFrom({"Estadisticas"}, "Estadísticas por provincias") + wholeRegion(projection) + "Set Map\n" +
         layerLines(1, kStatistics);
}

}  // namespace study

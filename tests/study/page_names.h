#pragma once

#include <array>
#include <string>
#include <string_view>

namespace studytest {

// The two lists of causes, and the folders of their pages of the first kind.
struct ListName {
  std::string list;
  std::string folderOfKind0;
};
inline const std::array<ListName, 2> kLists{
    {{"Grandes grupos", "Grandes Grupos"}, {"Lista reducida", "Lista reducida"}}};

// The sample's pages below Tablas/HTML.
[[nodiscard]] inline std::string lifeLostPage(const std::string& year, const std::string& sex, const ListName& list) {
  const std::string name = sex == "Ambos sexos" ? "Ambos Sexos" : sex;
  return "0/" + list.folderOfKind0 + "/" + year + " - " + name + ".html";
}

[[nodiscard]] inline std::string agesPage(const std::string& year, const std::string& sex, const ListName& list,
                                          const std::string& unit) {
  return "1/" + list.list + "/" + year + " - " + unit + " - " + sex + ".html";
}

// Of the kinds 2, 3 and 4.
[[nodiscard]] inline std::string yearPage(int kind, const std::string& year, const std::string& sex) {
  return std::to_string(kind) + "/" + year + " - " + sex + ".html";
}

inline constexpr const char* kAllCauses = "Todas las causas";

}  // namespace studytest

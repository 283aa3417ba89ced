#include "study/generator/cause_lists.h"

#include <array>
#include <cstddef>

#include "study/model/causes.h"
#include "study/model/indicators.h"
#include "study/model/sexes.h"

namespace study::generator {

namespace {

constexpr std::string_view kBoth = kSexChoices[0].name;
constexpr std::string_view kMen = kSexChoices[1].name;
constexpr std::string_view kWomen = kSexChoices[2].name;

constexpr std::string_view kTumours =
    "C00-C15 C16 C18 C19-C26 C30-C32 C33-C34 C37-C49 C50 C51-C58 C61 C64-C68 C69-C80 C81-C96 D00-D48";
constexpr std::string_view kCirculatory = "I00-I15 I21 I24-I25 I26-I51 I60-I69 I70-I99";
constexpr std::string_view kRespiratory = "J00-J11 J12-J18 J40-J44 J45-J46 J60-J98";
constexpr std::string_view kDigestive = "K00-K67 K70-K76 K80-K93";

struct Line {
  std::string_view name;
  std::string_view sums;
  std::string_view sex = kBoth;
};

constexpr std::array kGroups{
    Line{"Afecciones perinatales y malformaciones congénitas", "P00-P96 Q00-Q99"},
    Line{"Causas externas de mortalidad", "V01-V89 W00-X59 X60-X84 X85-Y98"},
    Line{"Embarazo, parto y puerperio", "O00-O99", kWomen},
    Line{"Enfermedades de la piel y del sistema osteomuscular", "L00-L99 M00-M99"},
    Line{"Enfermedades de la sangre y de la inmunidad", "D50-D89"},
    Line{"Enfermedades del sistema circulatorio", kCirculatory},
    Line{"Enfermedades del sistema digestivo", kDigestive},
    Line{"Enfermedades del sistema genitourinario", "N00-N39 N40-N51"},
    Line{"Enfermedades del sistema nervioso y de los órganos de los sentidos", "G00-G29 G30-G31 G32-H95"},
    Line{"Enfermedades del sistema respiratorio", kRespiratory},
    Line{"Enfermedades endocrinas, nutricionales y metabólicas", "E10-E14 E15-E90"},
    Line{"Enfermedades infecciosas y parasitarias", "A00-B19 B20-B24 B25-B99"},
    Line{"Síntomas y estados morbosos mal definidos", "R00-R99"},
    Line{"Trastornos mentales y del comportamiento", "F00-F09 F10-F99"},
    Line{"Tumores", kTumours},
};

// Of the causes of the thematic maps, in their order.
struct Sum {
  std::string_view sums;
  std::string_view sex = kBoth;
};
constexpr std::array<Sum, kThematicCauses.size()> kReduced{{
    {"V01-V89"},
    {"E10-E14"},
    {"I60-I69"},
    {"J40-J44"},
    {kCirculatory},
    {kDigestive},
    {kRespiratory},
    {"I21"},
    {"J12-J18"},
    {"F00-F09"},
    {"C18"},
    {"C16"},
    {"C50"},
    {"C61", kMen},
    {"C33-C34"},
    {kTumours},
}};

std::string numbered(const std::string& list, std::size_t index) {
  return list + (index < 9 ? "0" : "") + std::to_string(index + 1);
}

}  // namespace

std::vector<ListedCause> listedCauses() {
  std::vector<ListedCause> causes;
  for (std::size_t i = 0; i < kGroups.size(); ++i) {
    causes.push_back({numbered("GG", i), kBroadGroups, kGroups[i].name, kGroups[i].sums, kGroups[i].sex});
  }
  for (std::size_t i = 0; i < kReduced.size(); ++i) {
    causes.push_back({numbered("LR", i), kReducedList, kThematicCauses[i], kReduced[i].sums, kReduced[i].sex});
  }
  return causes;
}

}  // namespace study::generator

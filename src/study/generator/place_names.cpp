#include "study/generator/place_names.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>

#include "study/generator/random.h"
#include "study/model/study.h"
#include "text/collation.h"
#include "text/utf8.h"

namespace study::generator {

namespace {

// The provinces of a small region, and what the names of more are made of.
constexpr std::array<std::string_view, 8> kProvinces{"Ástira",    "Corvañas", "Güelmes", "Lumbría",
                                                     "Montéjara", "Ñorza",    "Peñarda", "Zurmeña"};
constexpr std::array<std::string_view, 27> kProvinceStems{
    "Alduv", "Ambr",  "Ardov",  "Belm",   "Brid", "Caldr",  "Cervuñ", "Dauñ", "Elm",
    "Ferm",  "Galdr", "Hernav", "Ilv",    "Jarb", "Lurm",   "Maldr",  "Narv", "Ordañ",
    "Palv",  "Querm", "Ruv",    "Servañ", "Tald", "Umbrav", "Valn",   "Yerv", "Zaldr"};
constexpr std::array<std::string_view, 10> kProvinceEndings{"ania",  "orra", "úbera", "isca",   "édena",
                                                            "astra", "osa",  "ívar",  "óndara", "elda"};

// The places of a small region, and what the names of more are made of.
constexpr std::array<std::string_view, 108> kPlaces{"Abrezal de Íscaro",
                                                    "Aldeumbría",
                                                    "Almadrel",
                                                    "Ánsora del Páramo",
                                                    "Arbejuelo Alto",
                                                    "Arcenilla de los Infantes",
                                                    "Arroyoluengo",
                                                    "Azarbela",
                                                    "Bañuelarga",
                                                    "Barcalinda",
                                                    "Bercealto",
                                                    "Berrocañada",
                                                    "Boñadilla",
                                                    "Brezuela del Conde",
                                                    "Cabrañal",
                                                    "Calzadueña",
                                                    "Campoñeral",
                                                    "Candelaña",
                                                    "Cañalbina",
                                                    "Carrascoñas",
                                                    "Castrojaralejo",
                                                    "Cedaceña",
                                                    "Celdrana",
                                                    "Cigoñales",
                                                    "Cubillarga",
                                                    "Cuestaniebla",
                                                    "Dehesalbar",
                                                    "Doñaurria",
                                                    "Enebralta",
                                                    "Ermitaña de Tor",
                                                    "Espartañas",
                                                    "Esquiruela",
                                                    "Fresnalinda",
                                                    "Fuencorva",
                                                    "Fuentelarcón",
                                                    "Gargüela",
                                                    "Garrapiñuela",
                                                    "Guijosalbo",
                                                    "Güezmares",
                                                    "Herrañuela",
                                                    "Hontarresa",
                                                    "Hoyoseñor",
                                                    "Íscaro de la Ribera",
                                                    "Jabaluz",
                                                    "Jaralmedio",
                                                    "Juncarejos",
                                                    "Labradiega",
                                                    "Lagunosa de Arriba",
                                                    "Lantañer",
                                                    "Linarcos",
                                                    "Lobañuelas",
                                                    "Majadeña",
                                                    "Malpasillo",
                                                    "Manzanuela del Río",
                                                    "Matacardo",
                                                    "Membrillona",
                                                    "Mirasolana",
                                                    "Molinarcos",
                                                    "Montaraña",
                                                    "Moralgüera",
                                                    "Nabajuela",
                                                    "Navalumbre",
                                                    "Nogaleña",
                                                    "Ñáñara",
                                                    "Ñebrales",
                                                    "Ñuela de San Telmo",
                                                    "Óbranes",
                                                    "Oceñuelo",
                                                    "Olmarejo Viejo",
                                                    "Oteruña",
                                                    "Pajarescos",
                                                    "Palomiña",
                                                    "Pedernalba",
                                                    "Peñacorvo",
                                                    "Peñambroz",
                                                    "Piedraluenga",
                                                    "Pinarcedo",
                                                    "Pozohondillo",
                                                    "Quejigalto",
                                                    "Quintañera",
                                                    "Rebolluño",
                                                    "Retamaña",
                                                    "Robledueso",
                                                    "Sabinarta",
                                                    "San Ferreolo",
                                                    "San Lupo de la Vega",
                                                    "Santa Quírica",
                                                    "Santa Ubalda",
                                                    "Sardañuela",
                                                    "Serrelada",
                                                    "Sotoyermo",
                                                    "Tejarroyo",
                                                    "Tomillarga",
                                                    "Torreciñas",
                                                    "Trasmonteña",
                                                    "Úbrega",
                                                    "Ulmarcos",
                                                    "Urgüela",
                                                    "Valdelinces",
                                                    "Valdeñora",
                                                    "Vallespino",
                                                    "Vegalucía",
                                                    "Villacorneja",
                                                    "Villaumbre",
                                                    "Yelmares",
                                                    "Zambreña",
                                                    "Zarzaluenga",
                                                    "Zofraña"};
constexpr std::array<std::string_view, 91> kStems{
    "Abrez",     "Aldebr",   "Almandr", "Ambroj",    "Arcen",    "Argüell",   "Azarb",    "Bañ",      "Barcal",
    "Berrojalb", "Boñ",      "Brañalb", "Brezalm",   "Cabrañ",   "Calzal",    "Candelm",  "Cañalb",   "Carrasm",
    "Castroj",   "Cedac",    "Celdr",   "Cigoñ",     "Cornejr",  "Cubilm",    "Chozarr",  "Dehesm",   "Enebruñ",
    "Escariñ",   "Espartañ", "Esquirr", "Fontañ",    "Fresnuñ",  "Galguerr",  "Gargüel",  "Garrapiñ", "Guijosm",
    "Güezm",     "Herrañ",   "Hontarr", "Hoyuelm",   "Jabalm",   "Jaralb",    "Juncarr",  "Labradiñ", "Lantañ",
    "Linarc",    "Lobañ",    "Llamazr", "Majadr",    "Manzañ",   "Matarr",    "Membriñ",  "Miñambr",  "Molinarc",
    "Montarañ",  "Moralb",   "Nabaj",   "Navalumbr", "Nogalm",   "Ñebr",      "Ocen",     "Olmarr",   "Oteruñ",
    "Pajaresc",  "Palomiñ",  "Pederm",  "Piedralb",  "Pinarc",   "Quejid",    "Quintañ",  "Rebolluñ", "Retamb",
    "Robledm",   "Sabinc",   "Sardañ",  "Serrelm",   "Sotoyerm", "Tejarr",    "Tomilluñ", "Torreciñ", "Trasmuñ",
    "Ubriñ",     "Ulmarc",   "Urgüel",  "Valdelm",   "Vegalb",   "Villaumbr", "Yelmar",   "Zambr",    "Zarzalm",
    "Zofrañ"};
constexpr std::array<std::string_view, 40> kEndings{
    "al",    "ales", "ar",    "ares", "ana",    "anas",  "ada",   "adas",   "adilla", "ajo",
    "ajos",  "alba", "alejo", "alto", "anda",   "aña",   "añas",  "arta",   "asa",    "atilla",
    "azo",   "ola",  "olas",  "osa",  "osilla", "oso",   "ona",   "ondo",   "ote",    "uela",
    "uelas", "uelo", "ueña",  "uño",  "uja",    "urria", "umbre", "avieja", "arroyo", "alonga"};
constexpr std::array<std::string_view, 25> kQualifiers{
    "de Arriba",   "de Abajo",     "de la Ribera", "del Páramo",   "de la Vega", "de los Infantes", "del Conde",
    "del Río",     "de la Sierra", "de Tor",       "del Monte",    "de Íscaro",  "de las Eras",     "de San Telmo",
    "del Azarbe",  "de Peñacorvo", "de la Umbría", "de Fuencorva", "del Camino", "de los Molinos",  "de Ñuela",
    "del Concejo", "de la Jara",   "del Alba",     "de las Cuevas"};

// What tells names apart.
std::string bare(std::string_view name) { return text::lower(text::withoutAccents(name)); }

std::string_view any(Random& random, const auto& items) { return items[random.below(items.size())]; }

std::string composedPlace(Random& random) {
  constexpr double kQualified = 0.4;
  std::string name(any(random, kStems));
  name += any(random, kEndings);
  if (random.unit() < kQualified) name.append(" ").append(any(random, kQualifiers));
  return name;
}

// Two in a row, as in "Cigoñaña", are hard to say.
bool isHardToSay(const std::string& name) { return name.find("ñaña") != name.npos || name.find("ñueña") != name.npos; }

}  // namespace

std::vector<std::string> provinceNames(std::size_t count) {
  std::vector<std::string> names(kProvinces.begin(), kProvinces.begin() + std::min(count, kProvinces.size()));
  for (std::size_t i = 0; names.size() < count; ++i) {
    // Every stem with another ending in each round.
    const std::size_t round = i / kProvinceStems.size();
    const std::size_t stem = i % kProvinceStems.size();
    names.emplace_back(kProvinceStems[stem]).append(kProvinceEndings[(stem + round) % kProvinceEndings.size()]);
  }
  std::sort(names.begin(), names.end(), text::CollationLess());
  return names;
}

std::vector<std::string> placeNames(std::size_t count, const std::vector<std::string>& taken) {
  std::set<std::string> known{bare(kRegion)};
  for (const std::string& name : taken) known.insert(bare(name));
  std::vector<std::string> names;
  const auto add = [&](std::string name) {
    if (names.size() < count && known.insert(bare(name)).second) names.push_back(std::move(name));
  };
  for (const std::string_view name : kPlaces) add(std::string(name));
  Random random(kPlaces.size());
  while (names.size() < count) {
    std::string name = composedPlace(random);
    if (!isHardToSay(name)) add(std::move(name));
  }
  return names;
}

}  // namespace study::generator

#include "study/input/zones_file.h"

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include "study/input/testing_input.h"

namespace study {
namespace {

struct ZonesCase {
  const char* what;
  std::string from;
  std::string to;
  std::vector<std::string> expected;
};

std::string zoneText(const std::string& zone, const std::string& province) {
  return "\"zone\": \"" + zone + "\", \"province\": \"" + province + "\"";
}

// The faults of the zones file alone: others follow from it.
std::vector<std::string> zoneFaults(const TestInput& input) {
  std::vector<std::string> faults = input.faults();
  std::erase_if(faults, [](const std::string& fault) { return !fault.starts_with("zones"); });
  return faults;
}

void expectZoneFaults(const std::vector<ZonesCase>& cases) {
  for (const ZonesCase& c : cases) {
    TestInput input;
    input.replace("zones.geojson", c.from, c.to);
    EXPECT_EQ(zoneFaults(input), c.expected) << c.what;
  }
}

TEST(ZonesFile, FaultsOfNamesAreTold) {
  const std::string nava = zoneText("Nava", "Ribera");
  const std::string sixty = "N" + std::string(60, 'a');
  const std::string file = "zones.geojson: ";
  expectZoneFaults({
      {"one name twice",
       zoneText("Rubio", "Zarzal"),
       zoneText("NAVA", "Zarzal"),
       {file + "the zones \"Nava\" of \"Ribera\" and \"NAVA\" of \"Zarzal\" have one name; name them apart, for the "
               "program finds zones by name alone; the parts of one zone belong into one feature"}},
      {"provinces of two cases",
       nava,
       zoneText("Nava", "RIBERA"),
       {file + "the provinces \"RIBERA\" and \"Ribera\" differ only in case; spell them alike, or name them apart"}},
      {"province like the region",
       nava,
       zoneText("Nava", "veldoria"),
       {file + "the province \"veldoria\" is named like the region; give it another name"}},
      {"double quote",
       nava,
       zoneText("La \\\"Nava\\\"", "Ribera"),
       {file +
        "the zone \"La \"Nava\"\" holds a double quote, which would end it in the program's statements; leave it "
        "out, or write another sign"}},
      {"sign of paths",
       nava,
       zoneText("Nava", "Ribera/Alta"),
       {file + "the province \"Ribera/Alta\" holds \"/\", which no file name may hold; write another sign"}},
      {"sign of paths in a zone",
       nava,
       zoneText("Nava: centro", "Ribera"),
       {file + "the zone \"Nava: centro\" holds \":\", which no file name may hold; write another sign"}},
      {"control character",
       nava,
       zoneText("Nava\\nBaja", "Ribera"),
       {file + "the zone \"Nava?Baja\" holds a line end, a tab or another control character; leave it out"}},
      {"dot at the end",
       nava,
       zoneText("Nava", "Ribera."),
       {file + "the province \"Ribera.\" begins or ends in a blank, or ends in a dot; leave out what is there too "
               "much"}},
      {"blank at the end",
       nava,
       zoneText("Nava ", "Ribera"),
       {file + "the zone \"Nava \" begins or ends in a blank, or ends in a dot; leave out what is there too much"}},
      {"firm blank at the end",
       nava,
       zoneText("Nava\u00A0", "Ribera"),
       {file +
        "the zone \"Nava\u00A0\" begins or ends in a blank, or ends in a dot; leave out what is there too much"}},
      {"device",
       nava,
       zoneText("Nava", "Con"),
       {file + "the province \"Con\" is a name that Windows keeps for a device; write another name"}},
      {"too long",
       nava,
       zoneText(sixty, "Ribera"),
       {file + "the zone \"" + sixty + "\" has 61 characters; there is room for 60; shorten it"}},
      {"letters that tables lack",
       nava,
       zoneText("Nava", "Čechy"),
       {file + "the province \"Čechy\" holds \"Č\", which the tables' character set windows-1252 does not have; write "
               "it with letters of western Europe"}},
      {"no zone",
       nava,
       zoneText("", "Ribera"),
       {file + "the 1. feature has no name for its zone; fill in the attribute"}},
      {"no province",
       nava,
       "\"zone\": \"Nava\", \"province\": null",
       {file + "the zone \"Nava\" has no name for its province; fill in the attribute"}},
      {"no name at all",
       nava,
       "\"zone\": null",
       {file + "the 1. feature has no name for its zone; fill in the attribute",
        file + "the 1. feature has no name for its province; fill in the attribute"}},
  });
}

TEST(ZonesFile, FaultsOfOutlinesAreTold) {
  const std::string file = "zones.geojson: ";
  const std::string polygon = R"({"type": "Polygon", "coordinates": )";
  const std::string box = polygon + boxText(-3.3, 40, -3.2, 40.05) + "}";
  expectZoneFaults({
      {"no outline", box, "null", {file + "the zone \"Nava\" has no polygon; draw the zone's outline"}},
      {"a point",
       box,
       R"({"type": "Point", "coordinates": [-3.3, 40]})",
       {file + "the zone \"Nava\" has no polygon; draw the zone's outline"}},
      {"an empty polygon", box, polygon + "[]}", {file + "the zone \"Nava\" has no polygon; draw the zone's outline"}},
      {"a line there and back",
       box,
       polygon + "[[[-3.3, 40], [-3.2, 40], [-3.3, 40], [-3.3, 40]]]}",
       {file + "the zone \"Nava\" has an outline that encloses nothing; draw it again"}},
      {"no place on earth",
       box,
       polygon + boxText(-3.3, 40, -3.2, 400) + "}",
       {file + "the zone \"Nava\" lies where UTM has no coordinates; check its outline and the file's coordinate "
               "system"}},
      {"an overlap",
       box,
       polygon + boxText(-3.3, 40, -3.2, 40.06) + "}",
       {file + "the zones \"Nava\" and \"Ñora\" overlap by 9466721 square metres, around 478677 4433893 in UTM zone "
               "30; draw their border once for both"}},
      {"a sliver",
       polygon + boxText(-3.3, 40.05, -3.2, 40.1) + "}",
       polygon + boxText(-3.3, 40.04, -3.2, 40.04002) + "}",
       {file + "the zone \"Ñora\" is no more than a sliver in its neighbours; draw its outline and theirs again"}},
  });
}

TEST(ZonesFile, FaultsOfTheFileAreTold) {
  const auto faultsOf = [](const std::map<std::string, std::string>& files) {
    TestInput input;
    input.files.erase("zones.geojson");
    input.files.insert(files.begin(), files.end());
    return zoneFaults(input);
  };
  using Texts = std::vector<std::string>;
  EXPECT_EQ(faultsOf({}), Texts{"zones: the file of the zones is missing; add one of zones.gpkg, zones.geojson, "
                                "zones.shp, zones.tab"});
  EXPECT_EQ(faultsOf({{"zones.geojson", zonesText()}, {"zones.gpkg", ""}}),
            Texts{"zones.geojson: there are several files of zones: \"zones.geojson\", \"zones.gpkg\"; keep one"});
  EXPECT_EQ(faultsOf({{"zones.geojson", R"({"type": "FeatureCollection", "features": []})"}}),
            Texts{"zones.geojson: the file holds no zone; give each zone its polygon there"});
  for (const char* name : {"zones.shp", "zones.tab", "zones.gpkg"}) {
    EXPECT_EQ(
        faultsOf({{name, "nothing of a map"}}),
        Texts{std::string(name) + ": no layer of zones can be found in the file; save the zones to it as a layer, "
                                  "in the format that its name tells"});
  }
  EXPECT_EQ(faultsOf({{"zones.geojson", R"({"type": "FeatureCollection", "features": [{]})"}}),
            Texts{"zones.geojson: the map cannot be read: \"Failed to read GeoJSON data\"; save it again in the format "
                  "that its name tells"});

  std::string renamed = zonesText();
  for (std::size_t at = 0; (at = renamed.find("\"zone\":", at)) != std::string::npos; ++at) {
    renamed.replace(at, 7, "\"zona\":");
  }
  EXPECT_EQ(faultsOf({{"zones.geojson", renamed}}),
            Texts{"zones.geojson: the zones have no attribute \"zone\"; add it, with the name of each zone's zone"});
}

// A file made by the map library, with a layer for each of the names.
void makeMap(const std::filesystem::path& path, const char* driver, const std::vector<const char*>& layers) {
  GDALAllRegister();
  const GDALDatasetUniquePtr file(
      GetGDALDriverManager()->GetDriverByName(driver)->Create(path.c_str(), 0, 0, 0, GDT_Unknown, nullptr));
  ASSERT_NE(file, nullptr);
  for (const char* name : layers) {
    OGRLayer* layer = file->CreateLayer(name, nullptr, wkbPolygon);
    OGRFieldDefn zone("ZONE", OFTString);
    OGRFieldDefn province("Province", OFTString);
    ASSERT_EQ(layer->CreateField(&zone), OGRERR_NONE);
    ASSERT_EQ(layer->CreateField(&province), OGRERR_NONE);
    const OGRFeatureUniquePtr feature(OGRFeature::CreateFeature(layer->GetLayerDefn()));
    feature->SetField(0, "Nava");
    feature->SetField(1, "Ribera");
    ASSERT_EQ(layer->CreateFeature(feature.get()), OGRERR_NONE);
  }
}

std::vector<std::string> faultsOfMap(const char* name, const char* driver, const std::vector<const char*>& layers) {
  TestInput input;
  input.files.erase("zones.geojson");
  makeMap(input.folder() / name, driver, layers);
  return zoneFaults(input);
}

TEST(ZonesFile, FaultsOfLayersAreTold) {
  using Texts = std::vector<std::string>;
  EXPECT_EQ(faultsOfMap("zones.gpkg", "GPKG", {}),
            Texts{"zones.gpkg: no layer of zones can be found in the file; save the zones to it as a layer, in the "
                  "format that its name tells"});
  EXPECT_EQ(faultsOfMap("zones.gpkg", "GPKG", {"uno", "dos"}),
            Texts{"zones.gpkg: the file has several layers, none of them named \"zones\"; name the layer of the zones "
                  "\"zones\", or remove the others"});
  const Texts noSystem{
      "zones.shp: the file does not tell its coordinate system; save it with one; a shapefile needs "
      "its .prj file"};
  EXPECT_EQ(faultsOfMap("zones.shp", "ESRI Shapefile", {"zones"}), noSystem);
  EXPECT_EQ(faultsOfMap("zones.gpkg", "GPKG", {"otras", "Zones"}),
            Texts{"zones.gpkg: the file does not tell its coordinate system; save it with one; a shapefile needs its "
                  ".prj file"});
}

void setSystem(TestInput& input, const std::string& system) {
  input.replace(
      "zones.geojson", "\"FeatureCollection\", ",
      R"("FeatureCollection", "crs": {"type": "name", "properties": {"name": "urn:ogc:def:crs:)" + system + "\"}}, ");
}

TEST(ZonesFile, MapsInTheWrongPlaceAreTold) {
  using Texts = std::vector<std::string>;
  TestInput far;
  far.replace("study.toml", "utm_zone = 30", "utm_zone = 10");
  EXPECT_EQ(zoneFaults(far),
            Texts{"zones.geojson: the middle of the zones lies 40 degrees north and 3 degrees west, too far from UTM "
                  "zone 10, which the settings name; correct \"utm_zone\" in study.toml, or leave it out; let eastings "
                  "or longitudes come first in the map"});
  TestInput degrees;
  setSystem(degrees, "EPSG::25830");
  EXPECT_EQ(zoneFaults(degrees),
            Texts{"zones.geojson: its coordinates are degrees, though it says that they are metres of \"ETRS89 / UTM "
                  "zone 30N\"; give the file the coordinate system of its coordinates"});

  // Latitudes first: far from zone 30, and outside the area of the European system.
  TestInput swapped;
  for (const double west : {-3.3, -3.2, -3.1}) {
    for (const double south : {40.0, 40.05}) {
      swapped.replace("zones.geojson", boxText(west, south, west + 0.1, south + 0.05),
                      boxText(south, west, south + 0.05, west + 0.1));
    }
  }
  EXPECT_EQ(zoneFaults(swapped).size(), 1U) << "far from UTM zone 30";
  swapped.replace("study.toml", "utm_zone = 30\n", "");
  setSystem(swapped, "EPSG::4258");
  ASSERT_EQ(zoneFaults(swapped).size(), 1U);
  EXPECT_NE(zoneFaults(swapped)[0].find("where its coordinate system \"ETRS89\" is not used"), std::string::npos)
      << zoneFaults(swapped)[0];
}

TEST(ZonesFile, MapsOfImpossibleSizeAreTold) {
  TestInput input;
  for (std::size_t i = 0; i < kTestZones.size(); ++i) {
    const double west = -3.3 + 0.1 * static_cast<double>(i / 2);
    const double south = 40 + 0.05 * static_cast<double>(i % 2);
    const auto small = [](double from, double number) { return from + (number - from) / 400; };
    input.replace("zones.geojson", boxText(west, south, west + 0.1, south + 0.05),
                  boxText(small(-3.3, west), small(40, south), small(-3.3, west + 0.1), small(40, south + 0.05)));
  }
  const std::vector<std::string> faults = zoneFaults(input);
  ASSERT_EQ(faults.size(), 1U);
  EXPECT_EQ(faults[0],
            "zones.geojson: the zones cover 0.00178 square kilometres together; check that the file has the coordinate "
            "system in which the zones were drawn");
}

TEST(ZonesFile, CrossedOutlinesAreMended) {
  TestInput input;
  input.replace("zones.geojson", boxText(-3.3, 40, -3.2, 40.05),
                "[[[-3.3, 40], [-3.2, 40.05], [-3.2, 40], [-3.3, 40.05], [-3.3, 40]]]");
  EXPECT_EQ(input.faults(), std::vector<std::string>{});
}

TEST(ZonesFile, SeveralPiecesAndHolesAreKept) {
  TestInput input;
  input.replace("zones.geojson", "\"Polygon\", \"coordinates\": " + boxText(-3.3, 40, -3.2, 40.05),
                "\"MultiPolygon\", \"coordinates\": [[" + boxText(-3.3, 40, -3.2, 40.05).substr(1) + ", " +
                    boxText(-3.4, 40, -3.35, 40.05) + "]");
  input.replace("zones.geojson", "[-3.300000, 40.000000]]], ",
                "[-3.300000, 40.000000]], " + boxText(-3.26, 40.02, -3.24, 40.03).substr(1) + ", ");
  const Study study = input.read();
  ASSERT_EQ(study.zones[2].name, "Nava");
  ASSERT_EQ(study.zoneAreas[2].size(), 3U);
  EXPECT_EQ(study.regionArea.size(), 3U);
}

}  // namespace
}  // namespace study

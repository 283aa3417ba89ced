#include "study/generator/zones_file.h"

#include <array>
#include <charconv>
#include <string>

#include "study/generator/output_file.h"

namespace study::generator {

namespace {

// Two decimals, whatever the machine's language.
void appendMetres(std::string& text, double metres) {
  std::array<char, 32> digits{};
  const auto [end, error] =
      std::to_chars(digits.data(), digits.data() + digits.size(), metres, std::chars_format::fixed, 2);
  text.append(digits.data(), end);
}

std::string ringText(const Ring& ring) {
  std::string text = "[";
  for (std::size_t i = 0; i <= ring.size(); ++i) {
    const Point& p = ring[i % ring.size()];
    text += i == 0 ? "[" : ",[";
    appendMetres(text, p.x);
    text += ',';
    appendMetres(text, p.y);
    text += ']';
  }
  return text + "]";
}

// The names that are made here need no escapes.
std::string featureText(const Region& region, const RegionZone& zone) {
  std::string text = R"({"type":"Feature","properties":{"zone":")" + zone.name + R"(","province":")" +
                     region.provinces[zone.province] + R"("},"geometry":{"type":"Polygon","coordinates":[)";
  for (std::size_t ring = 0; ring < zone.area.size(); ++ring) {
    if (ring > 0) text += ',';
    text += ringText(zone.area[ring]);
  }
  return text + "]}}";
}

}  // namespace

void writeZones(const Region& region, const std::filesystem::path& file) {
  OutputFile out(file);
  out << R"({"type":"FeatureCollection","name":"zones",)"
      << R"("crs":{"type":"name","properties":{"name":"urn:ogc:def:crs:EPSG::32630"}},"features":[)";
  for (std::size_t zone = 0; zone < region.zones.size(); ++zone) {
    out << (zone > 0 ? ",\n" : "\n") << featureText(region, region.zones[zone]);
  }
  out << "\n]}\n";
  out.close();
}

}  // namespace study::generator

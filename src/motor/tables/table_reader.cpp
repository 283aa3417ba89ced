#include "motor/tables/table_reader.h"

#include <cpl_conv.h>
#include <cpl_string.h>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <mutex>

#include "motor/tables/declared_columns.h"
#include "motor/tables/object_pool.h"
#include "motor/tables/ogr_errors.h"
#include "motor/tables/read_failure.h"
#include "motor/tables/seamless_parts.h"

namespace motor {
namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

// Bytes of a table whose charset is not declared are taken as Western European ones unless they are UTF-8.
class Decoded {
 public:
  explicit Decoded(const char* bytes) : text_(bytes) {
    if (std::all_of(text_.begin(), text_.end(), [](char c) { return (static_cast<unsigned char>(c) & 0x80U) == 0; }))
      return;
    if (CPLIsUTF8(bytes, static_cast<int>(text_.size())) != 0) return;
    char* recoded = CPLRecode(bytes, "CP1252", CPL_ENC_UTF8);
    recoded_ = recoded;
    CPLFree(recoded);
    text_ = recoded_;
  }
  [[nodiscard]] std::string_view text() const { return text_; }

 private:
  std::string_view text_;
  std::string recoded_;
};

Column::Type typeOf(OGRFieldType type) {
  switch (type) {
    case OFTInteger:
    case OFTInteger64:
      return Column::Type::integer;
    case OFTReal:
      return Column::Type::number;
    case OFTDate:
    case OFTTime:
    case OFTDateTime:
      return Column::Type::date;
    default:
      return Column::Type::text;
  }
}

double logicalOf(std::string_view text) {
  constexpr std::string_view kTrue = "TtYy1";
  if (text.empty() || text.front() == ' ') return kNoNumber;
  return kTrue.find(text.front()) == std::string_view::npos ? 0 : 1;
}

std::string dateText(const OGRFeature& feature, int field, OGRFieldType type) {
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  float second = 0;
  int zone = 0;
  if (feature.GetFieldAsDateTime(field, &year, &month, &day, &hour, &minute, &second, &zone) == 0) return {};
  std::array<char, 64> text{};
  std::string result;
  if (type != OFTTime) {
    std::snprintf(text.data(), text.size(), "%04d%02d%02d", year, month, day);
    result += text.data();
  }
  if (type != OFTDate) {
    const int milliseconds = static_cast<int>(std::lround(second * 1000));
    std::snprintf(text.data(), text.size(), "%02d%02d%05d", hour, minute, milliseconds);
    result += text.data();
  }
  return result;
}

class Reader {
 public:
  explicit Reader(const OgrErrors& errors) : errors_(errors) {}

  // Appends the rows of a file's layer; a second one (of a table in several files) has the columns of the first, and
  // its rows are numbered on.
  void add(const std::filesystem::path& file, OGRLayer& layer) {
    const bool isFirst = contents_.columns.empty();
    if (isFirst) describeColumns(file, layer);
    if (layer.GetLayerDefn()->GetFieldCount() != static_cast<int>(contents_.columns.size())) failDamaged(file);
    const std::size_t rowsBefore = contents_.deleted.size();
    while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
      if (errors_.failed()) failDamaged(file);
      if (!startRow(static_cast<GIntBig>(rowsBefore) + feature->GetFID())) failDamaged(file);
      for (std::size_t i = 0; i < contents_.columns.size(); ++i) addValue(*feature, i);
      addObject(*feature);
    }
    if (errors_.failed()) failDamaged(file);
    if (isFirst) contents_.coordinateSystem = systemOf(layer);
  }

  TableContents take() {
    contents_.objects = ObjectSet(pool_.take(), std::move(objectByRow_));
    contents_.hasObjects = !contents_.objects.objects().empty();
    // The library calls some projections that it does not know degrees; coordinates that cannot be any lie on a plain
    // grid.
    const Box& bounds = contents_.objects.bounds();
    const bool fits = bounds.isEmpty() || (bounds.minX >= -kLargestDegree && bounds.maxX <= kLargestDegree &&
                                           bounds.minY >= -kLargestDegree && bounds.maxY <= kLargestDegree);
    if (contents_.coordinateSystem.isLongLat() && !fits) contents_.coordinateSystem = CoordinateSystem::fromWkt({});
    return std::move(contents_);
  }

 private:
  void describeColumns(const std::filesystem::path& file, OGRLayer& layer) {
    const OGRFeatureDefn& definition = *layer.GetLayerDefn();
    const auto count = static_cast<std::size_t>(definition.GetFieldCount());
    const std::vector<bool> logical = declaredLogical(file, count);
    for (std::size_t i = 0; i < count; ++i) {
      const OGRFieldDefn& field = *definition.GetFieldDefn(static_cast<int>(i));
      Column column;
      column.name = Decoded(field.GetNameRef()).text();
      column.type = logical[i] ? Column::Type::logical : typeOf(field.GetType());
      column.width = field.GetWidth();
      column.decimals = field.GetPrecision();
      const bool isText = column.type == Column::Type::text || column.type == Column::Type::date;
      contents_.data.push_back(isText ? TableContents::Data(TextColumn()) : TableContents::Data(std::vector<double>()));
      contents_.columns.push_back(std::move(column));
      fieldTypes_.push_back(field.GetType());
    }
  }

  // Rows are numbered by the file, with gaps where rows were deleted. False for a number that cannot be.
  bool startRow(GIntBig row) {
    constexpr GIntBig kLargestRow = 100'000'000;
    const auto next = static_cast<GIntBig>(contents_.deleted.size()) + 1;
    if (row < next || row > kLargestRow) return false;
    for (GIntBig gap = next; gap < row; ++gap) addDeletedRow();
    contents_.deleted.push_back(false);
    return true;
  }

  void addDeletedRow() {
    contents_.deleted.push_back(true);
    objectByRow_.push_back(ObjectSet::kNone);
    for (TableContents::Data& data : contents_.data) {
      if (auto* texts = std::get_if<TextColumn>(&data)) {
        texts->appendAbsent();
      } else {
        std::get<std::vector<double>>(data).push_back(kNoNumber);
      }
    }
  }

  void addValue(const OGRFeature& feature, std::size_t column) {
    const int field = static_cast<int>(column);
    TableContents::Data& data = contents_.data[column];
    const bool isSet = feature.IsFieldSetAndNotNull(field) != 0;
    if (auto* texts = std::get_if<TextColumn>(&data)) {
      if (!isSet) return texts->append({});
      if (contents_.columns[column].type == Column::Type::date) {
        return texts->append(dateText(feature, field, fieldTypes_[column]));
      }
      return texts->append(Decoded(feature.GetFieldAsString(field)).text());
    }
    auto& numbers = std::get<std::vector<double>>(data);
    if (!isSet) return numbers.push_back(kNoNumber);
    const bool isLogical = contents_.columns[column].type == Column::Type::logical;
    numbers.push_back(isLogical ? logicalOf(feature.GetFieldAsString(field)) : feature.GetFieldAsDouble(field));
  }

  void addObject(OGRFeature& feature) {
    const OGRGeometry* geometry = feature.GetGeometryRef();
    if (geometry == nullptr) return objectByRow_.push_back(ObjectSet::kNone);
    const char* style = feature.GetStyleString();
    objectByRow_.push_back(pool_.add(*geometry, style == nullptr ? "" : style));
  }

  // Coordinates without a system, as those of old MIF files, are degrees.
  static CoordinateSystem systemOf(OGRLayer& layer) {
    const OGRSpatialReference* given = layer.GetSpatialRef();
    if (given == nullptr) return {};
    char* wkt = nullptr;
    given->exportToWkt(&wkt);
    const std::string text = wkt == nullptr ? "" : wkt;
    CPLFree(wkt);
    return CoordinateSystem::fromWkt(text);
  }

  static constexpr double kLargestDegree = 720;

  const OgrErrors& errors_;
  TableContents contents_;
  std::vector<OGRFieldType> fieldTypes_;
  ObjectPool pool_;
  std::vector<std::uint32_t> objectByRow_;
};

void readFile(const std::filesystem::path& file, const OgrErrors& errors, Reader& reader) {
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(file, ignored)) failMissing(file);
  const std::u8string name = file.u8string();
  const std::string utf8Name(name.begin(), name.end());
  const char* const drivers[] = {"MapInfo File", nullptr};
  const GDALDatasetUniquePtr dataset(
      GDALDataset::Open(utf8Name.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY, drivers, nullptr, nullptr));
  if (!dataset || dataset->GetLayerCount() == 0 || errors.failed()) failDamaged(file);
  reader.add(file, *dataset->GetLayer(0));
}

}  // namespace

TableContents readTable(const std::filesystem::path& file) {
  static std::once_flag registered;
  std::call_once(registered, RegisterOGRTAB);
  const OgrErrors errors;
  Reader reader(errors);
  const std::vector<std::filesystem::path> parts = seamlessParts(file);
  if (parts.empty()) readFile(file, errors, reader);
  for (const std::filesystem::path& part : parts) {
    if (!seamlessParts(part).empty()) failDamaged(file);
    readFile(part, errors, reader);
  }
  return reader.take();
}

}  // namespace motor

#include "motor/tables/table_reader.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>

#include "motor/tables/declared_columns.h"
#include "motor/tables/files_of_table.h"
#include "motor/tables/gdal.h"
#include "motor/tables/object_pool.h"
#include "motor/tables/ogr_errors.h"
#include "motor/tables/read_failure.h"
#include "motor/tables/readable_file.h"
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
    if (gdal().CPLIsUTF8(bytes, static_cast<int>(text_.size())) != 0) return;
    recoded_ = takeGdalText(gdal().CPLRecode(bytes, "CP1252", CPL_ENC_UTF8));
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

constexpr std::array kMapEndings{".MAP", ".map", ".Map", ".MIF", ".mif"};

std::string dateText(OGRFeatureH feature, int field, OGRFieldType type) {
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  float second = 0;
  int zone = 0;
  if (gdal().OGR_F_GetFieldAsDateTimeEx(feature, field, &year, &month, &day, &hour, &minute, &second, &zone) == 0)
    return {};
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

// Whether a table has a file of objects beside it.
bool hasMapFile(const std::filesystem::path& table) {
  std::error_code ignored;
  return std::any_of(kMapEndings.begin(), kMapEndings.end(), [&](const char* ending) {
    return std::filesystem::is_regular_file(std::filesystem::path(table).replace_extension(ending), ignored);
  });
}

class Reader {
 public:
  explicit Reader(const OgrErrors& errors) : errors_(errors) {}

  // Appends the rows of a file's layer; a second one (of a table in several files) has the columns of the first, and
  // its rows are numbered on.
  void add(const std::filesystem::path& file, OGRLayerH layer, bool givesBits) {
    const bool isFirst = contents_.columns.empty();
    givesBits_ = givesBits;
    if (isFirst) describeColumns(file, layer);
    if (library_.OGR_FD_GetFieldCount(library_.OGR_L_GetLayerDefn(layer)) != static_cast<int>(contents_.columns.size()))
      failDamaged(file);
    const std::size_t rowsBefore = contents_.deleted.size();
    while (const GdalFeature feature{library_.OGR_L_GetNextFeature(layer)}) {
      if (errors_.failed()) failDamaged(file);
      if (!startRow(static_cast<GIntBig>(rowsBefore) + library_.OGR_F_GetFID(feature.get()))) failDamaged(file);
      for (std::size_t i = 0; i < contents_.columns.size(); ++i) addValue(feature.get(), i);
      addObject(feature.get());
    }
    if (errors_.failed()) failDamaged(file);
    if (!isFirst) return;
    contents_.coordinateSystem = systemOf(layer);
    hasMapFile_ = hasMapFile(file);
  }

  TableContents take() {
    contents_.objects = ObjectSet(pool_.take(), std::move(objectByRow_));
    // Without rows it is the map file that tells.
    contents_.hasObjects = !contents_.objects.objects().empty() || (hasMapFile_ && contents_.deleted.empty());
    // The library calls some projections that it does not know degrees; coordinates that cannot be any lie on a plain
    // grid.
    const Box& bounds = contents_.objects.bounds();
    const bool fits = bounds.isEmpty() || (bounds.minX >= -kLargestDegree && bounds.maxX <= kLargestDegree &&
                                           bounds.minY >= -kLargestDegree && bounds.maxY <= kLargestDegree);
    if (contents_.coordinateSystem.isLongLat() && !fits) contents_.coordinateSystem = CoordinateSystem::fromWkt({});
    return std::move(contents_);
  }

 private:
  void describeColumns(const std::filesystem::path& file, OGRLayerH layer) {
    const OGRFeatureDefnH definition = library_.OGR_L_GetLayerDefn(layer);
    const auto count = static_cast<std::size_t>(library_.OGR_FD_GetFieldCount(definition));
    std::vector<std::string> declared = declaredTypes(file);
    if (declared.size() != count) declared.assign(count, {});
    for (std::size_t i = 0; i < count; ++i) {
      const OGRFieldDefnH field = library_.OGR_FD_GetFieldDefn(definition, static_cast<int>(i));
      const OGRFieldType type = library_.OGR_Fld_GetType(field);
      Column column;
      column.name = Decoded(library_.OGR_Fld_GetNameRef(field)).text();
      isLarge_.push_back(declared[i] == "largeint");
      column.type = declared[i] == "logical" ? Column::Type::logical
                    : isLarge_.back()        ? Column::Type::integer
                                             : typeOf(type);
      column.width = library_.OGR_Fld_GetWidth(field);
      column.decimals = library_.OGR_Fld_GetPrecision(field);
      const bool isText = column.type == Column::Type::text || column.type == Column::Type::date;
      contents_.data.push_back(isText ? TableContents::Data(TextColumn()) : TableContents::Data(std::vector<double>()));
      contents_.columns.push_back(std::move(column));
      fieldTypes_.push_back(type);
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

  void addValue(OGRFeatureH feature, std::size_t column) {
    const int field = static_cast<int>(column);
    TableContents::Data& data = contents_.data[column];
    const bool isSet = library_.OGR_F_IsFieldSetAndNotNull(feature, field) != 0;
    if (auto* texts = std::get_if<TextColumn>(&data)) {
      if (!isSet) return texts->append({});
      if (contents_.columns[column].type == Column::Type::date) {
        return texts->append(dateText(feature, field, fieldTypes_[column]));
      }
      return texts->append(Decoded(library_.OGR_F_GetFieldAsString(feature, field)).text());
    }
    auto& numbers = std::get<std::vector<double>>(data);
    if (!isSet) return numbers.push_back(kNoNumber);
    const bool isLogical = contents_.columns[column].type == Column::Type::logical;
    if (isLogical) return numbers.push_back(logicalOf(library_.OGR_F_GetFieldAsString(feature, field)));
    const double number = library_.OGR_F_GetFieldAsDouble(feature, field);
    numbers.push_back(givesBits_ && isLarge_[column] ? static_cast<double>(std::bit_cast<std::int64_t>(number))
                                                     : number);
  }

  void addObject(OGRFeatureH feature) {
    const OGRGeometryH geometry = library_.OGR_F_GetGeometryRef(feature);
    if (geometry == nullptr) return objectByRow_.push_back(ObjectSet::kNone);
    const char* style = library_.OGR_F_GetStyleString(feature);
    objectByRow_.push_back(pool_.add(geometry, style == nullptr ? "" : style));
  }

  // Coordinates without a system, as those of old MIF files, are degrees.
  [[nodiscard]] CoordinateSystem systemOf(OGRLayerH layer) const {
    const OGRSpatialReferenceH given = library_.OGR_L_GetSpatialRef(layer);
    if (given == nullptr) return {};
    char* wkt = nullptr;
    library_.OSRExportToWkt(given, &wkt);
    return CoordinateSystem::fromWkt(takeGdalText(wkt));
  }

  static constexpr double kLargestDegree = 720;

  const Gdal& library_ = gdal();
  const OgrErrors& errors_;
  TableContents contents_;
  std::vector<OGRFieldType> fieldTypes_;
  std::vector<bool> isLarge_;  // by column, whether it holds 64-bit numbers
  bool givesBits_ = false;
  ObjectPool pool_;
  bool hasMapFile_ = false;
  std::vector<std::uint32_t> objectByRow_;
};

void readFile(const std::filesystem::path& file, const OgrErrors& errors, Reader& reader) {
  refuseUnreadable(file);
  const ReadableFile readable(file);
  const char* const drivers[] = {"MapInfo File", nullptr};
  const GdalDataset dataset(
      gdal().GDALOpenEx(readable.name().c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY, drivers, nullptr, nullptr));
  if (!dataset || gdal().GDALDatasetGetLayerCount(dataset.get()) == 0 || errors.failed()) failDamaged(file);
  reader.add(file, gdal().GDALDatasetGetLayer(dataset.get(), 0), readable.givesBits());
}

}  // namespace

TableContents readTable(const std::filesystem::path& file) {
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

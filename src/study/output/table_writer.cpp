#include "study/output/table_writer.h"

#include <cpl_error.h>
#include <ogrsf_frmts.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <utility>

#include "study/map_files/quiet_errors.h"
#include "study/model/study_error.h"
#include "study/model/windows1252.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace study {

namespace {

[[noreturn]] void fail(const std::string& table) {
  const std::string reason = CPLGetLastErrorMsg();
  throw StudyError("the table " + table + " could not be written" + (reason.empty() ? "" : ": " + reason));
}

OGRFieldType fieldType(Column::Type type) {
  switch (type) {
    case Column::Type::integer:
      return OFTInteger;
    case Column::Type::number:
      return OFTReal;
    case Column::Type::text:
      break;
  }
  return OFTString;
}

std::string boundsOption(const Extent& bounds) {
  std::string option = "BOUNDS=";
  for (const double edge : {bounds.minX, bounds.minY, bounds.maxX}) option += text::number(edge) + ",";
  return option + text::number(bounds.maxY);
}

// The .DAT file repeats the columns' names; the library leaves them in UTF-8 there.
void spellColumnNames(const std::filesystem::path& dat, const std::vector<Column>& columns) {
  constexpr std::size_t kHeader = 32;
  constexpr std::size_t kDescriptor = 32;
  constexpr std::size_t kName = 11;  // with a closing zero
  std::fstream file(dat, std::ios::in | std::ios::out | std::ios::binary);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    std::string name = toWindows1252(columns[i].name).substr(0, kName - 1);
    name.resize(kName, '\0');
    file.seekp(static_cast<std::streamoff>(kHeader + i * kDescriptor));
    file.write(name.data(), static_cast<std::streamsize>(name.size()));
  }
  if (!file) throw StudyError("the file " + dat.string() + " could not be completed");
}

}  // namespace

struct TableWriter::Output {
  std::unique_ptr<GDALDataset> dataset;
  OGRLayer* layer = nullptr;
};

TableWriter::TableWriter(const std::filesystem::path& folder, const std::string& name, std::vector<Column> columns,
                         const MapProjection& projection)
    : folder_(folder), name_(name), columns_(std::move(columns)), output_(std::make_unique<Output>()) {
  const QuietErrors quiet;
  RegisterOGRTAB();
  GDALDriver* driver = GetGDALDriverManager()->GetDriverByName("MapInfo File");
  if (driver == nullptr) throw StudyError("this machine's map library cannot write map tables");
  const std::string file = (folder_ / (name_ + ".tab")).string();
  output_->dataset.reset(driver->Create(file.c_str(), 0, 0, 0, GDT_Unknown, nullptr));
  if (!output_->dataset) fail(name_);

  OGRSpatialReference system;
  system.importFromMICoordSys(projection.coordSys.c_str());
  std::string encoding = "ENCODING=CP1252";
  std::string bounds = boundsOption(projection.bounds);
  std::array<char*, 3> options{encoding.data(), bounds.data(), nullptr};
  output_->layer = output_->dataset->CreateLayer(name_.c_str(), &system, wkbPolygon, options.data());
  if (output_->layer == nullptr) fail(name_);
  for (const Column& column : columns_) {
    OGRFieldDefn field(column.name.c_str(), fieldType(column.type));
    if (column.type == Column::Type::text) field.SetWidth(column.width);
    if (output_->layer->CreateField(&field) != OGRERR_NONE) fail(name_);
  }
}

TableWriter::~TableWriter() = default;

void TableWriter::add(const std::vector<Field>& fields, const TableObject& object) {
  const QuietErrors quiet;
  OGRFeature row(output_->layer->GetLayerDefn());
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const int column = static_cast<int>(i);
    if (const int* integer = std::get_if<int>(&fields[i])) {
      row.SetField(column, *integer);
    } else if (const double* number = std::get_if<double>(&fields[i])) {
      row.SetField(column, *number);
    } else {
      const std::string& words = std::get<std::string>(fields[i]);
      if (text::length(words) > static_cast<std::size_t>(columns_[i].width)) {
        throw StudyError("\"" + words + "\" is too long for column " + columns_[i].name + " of table " + name_);
      }
      row.SetField(column, words.c_str());
    }
  }
  row.SetGeometry(&object.geometry());
  row.SetStyleString(object.style().c_str());
  if (output_->layer->CreateFeature(&row) != OGRERR_NONE) fail(name_);
}

void TableWriter::close() {
  {
    const QuietErrors quiet;
    output_->dataset.reset();
    if (CPLGetLastErrorType() >= CE_Failure) fail(name_);
  }
  spellColumnNames(folder_ / (name_ + ".dat"), columns_);
  // The letter case that these files have on the study's medium.
  for (const auto& [written, wanted] :
       {std::pair{".tab", ".TAB"}, {".dat", ".DAT"}, {".map", ".MAP"}, {".id", ".ID"}}) {
    std::filesystem::rename(folder_ / (name_ + written), folder_ / (name_ + wanted));
  }
}

}  // namespace study

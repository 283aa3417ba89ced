#pragma once

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>

// Table files for tests and measurements.
namespace motor::testing_tables {

// A folder of the machine's temporary folder that is removed again.
class TemporaryFolder {
 public:
  explicit TemporaryFolder(const std::string& name) : path_(std::filesystem::temp_directory_path() / name) {
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  // A file that is written over goes to the disk at once, which takes long; so it is written anew.
  std::filesystem::path write(const std::string& name, const std::string& bytes) const {
    std::filesystem::remove(path_ / name);
    std::ofstream(path_ / name, std::ios::binary) << bytes;
    return path_ / name;
  }

 private:
  std::filesystem::path path_;
};

// Writes a TAB table in Western European text: `describe` adds the columns, `fill` the rows.
inline void writeTab(const std::filesystem::path& file, const char* coordSys,
                     const std::function<void(OGRLayer&)>& describe, const std::function<void(OGRLayer&)>& fill) {
  RegisterOGRTAB();
  GDALDriver* driver = GetGDALDriverManager()->GetDriverByName("MapInfo File");
  const GDALDatasetUniquePtr dataset(driver->Create(file.string().c_str(), 0, 0, 0, GDT_Unknown, nullptr));
  OGRSpatialReference system;
  if (coordSys != nullptr) system.importFromMICoordSys(coordSys);
  const char* const options[] = {"ENCODING=CP1252", nullptr};
  OGRLayer* layer = dataset->CreateLayer(file.stem().string().c_str(), coordSys == nullptr ? nullptr : &system,
                                         wkbUnknown, const_cast<char**>(options));
  describe(*layer);
  fill(*layer);
}

inline void addColumn(OGRLayer& layer, const char* name, OGRFieldType type, int width = 0, int decimals = 0) {
  OGRFieldDefn field(name, type);
  field.SetWidth(width);
  field.SetPrecision(decimals);
  if (layer.CreateField(&field) != OGRERR_NONE) throw std::runtime_error("column not written");
}

inline void addRow(OGRLayer& layer, OGRFeature& feature) {
  if (layer.CreateFeature(&feature) != OGRERR_NONE) throw std::runtime_error("row not written");
}

}  // namespace motor::testing_tables

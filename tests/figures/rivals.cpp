#include "rivals.h"

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <stdexcept>

namespace figures {
namespace {

GDALDatasetUniquePtr openWithGdal(const std::filesystem::path& file) {
  RegisterOGRTAB();
  GDALDatasetUniquePtr dataset(GDALDataset::Open(file.c_str(), GDAL_OF_VECTOR));
  if (!dataset) throw std::runtime_error("cannot open " + file.string());
  return dataset;
}

std::size_t pointCount(const OGRGeometry* geometry) {
  if (geometry == nullptr) return 0;
  if (wkbFlatten(geometry->getGeometryType()) == wkbPolygon) {
    std::size_t count = 0;
    for (const auto* ring : *geometry->toPolygon()) count += static_cast<std::size_t>(ring->getNumPoints());
    return count;
  }
  if (wkbFlatten(geometry->getGeometryType()) == wkbMultiPolygon) {
    std::size_t count = 0;
    for (const auto* part : *geometry->toMultiPolygon()) count += pointCount(part);
    return count;
  }
  return 1;
}

}  // namespace

SqliteStudy::SqliteStudy(const std::filesystem::path& yearFolder, const std::string& year) {
  sqlite3* database = nullptr;
  if (sqlite3_open(":memory:", &database) != SQLITE_OK) throw std::runtime_error("cannot open a database in memory");
  database_.reset(database);
  for (const char* base : {"Provincias", "ZonasBasicas", "Veldoria"}) {
    copyTable(yearFolder / (base + year + ".TAB"), base);
  }
  run("create index p on Provincias(nombre)");
  run("create index z on ZonasBasicas(nombre)");
  run("create index zn on ZonasBasicas(nombre collate nocase)");
  run("create index zp on ZonasBasicas(provincia, nombre)");
}

SqliteStudy::Statement SqliteStudy::prepare(const std::string& sql) const {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database_.get(), sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
    throw std::runtime_error(sqlite3_errmsg(database_.get()));
  }
  return Statement(statement);
}

void SqliteStudy::run(const std::string& sql) const {
  if (sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw std::runtime_error(sqlite3_errmsg(database_.get()));
  }
}

void SqliteStudy::copyTable(const std::filesystem::path& file, const std::string& name) {
  const auto dataset = openWithGdal(file);
  OGRLayer& layer = *dataset->GetLayer(0);
  const OGRFeatureDefn& definition = *layer.GetLayerDefn();
  std::string columns;
  std::string marks;
  for (int i = 0; i < definition.GetFieldCount(); ++i) {
    const OGRFieldDefn& field = *definition.GetFieldDefn(i);
    const char* type = field.GetType() == OFTString ? "text" : "real";
    columns += std::string(i == 0 ? "" : ",") + "\"" + field.GetNameRef() + "\" " + type;
    marks += i == 0 ? "?" : ",?";
  }
  run("create table " + name + "(" + columns + ")");
  const Statement insert = prepare("insert into " + name + " values(" + marks + ")");
  run("begin");
  for (const auto& feature : layer) {
    for (int i = 0; i < definition.GetFieldCount(); ++i) {
      if (definition.GetFieldDefn(i)->GetType() == OFTString) {
        sqlite3_bind_text(insert.get(), i + 1, feature->GetFieldAsString(i), -1, SQLITE_TRANSIENT);
      } else {
        sqlite3_bind_double(insert.get(), i + 1, feature->GetFieldAsDouble(i));
      }
    }
    sqlite3_step(insert.get());
    sqlite3_reset(insert.get());
  }
  run("commit");
}

std::size_t readWithGdal(const std::vector<std::filesystem::path>& files) {
  std::size_t points = 0;
  for (const auto& file : files) {
    const auto dataset = openWithGdal(file);
    for (const auto& feature : *dataset->GetLayer(0)) {
      points += pointCount(feature->GetGeometryRef());
      for (int i = 0; i < feature->GetFieldCount(); ++i) points += *feature->GetFieldAsString(i) == '\0' ? 1 : 0;
    }
  }
  return points;
}

}  // namespace figures

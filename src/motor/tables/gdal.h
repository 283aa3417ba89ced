#pragma once

#include <cpl_conv.h>
#include <cpl_error.h>
#include <cpl_string.h>
#include <cpl_vsi.h>
#include <gdal.h>
#include <ogr_api.h>
#include <ogr_srs_api.h>

#include <memory>
#include <string>

// GDAL reads the table files and knows the coordinate systems. It brings more than a hundred libraries along, which
// take longer to load than all others of the program; so nothing is linked with it, and its C interface is looked up
// by name when it is first needed.

extern "C" void RegisterOGRTAB();  // as in GDAL's header for C++

// The functions of GDAL that are used. VSIFree is what frees the texts that GDAL allocates.
#define VELDORIA_GDAL_FUNCTIONS(USE)      \
  USE(CPLGetErrorHandlerUserData)         \
  USE(CPLIsUTF8)                          \
  USE(CPLPopErrorHandler)                 \
  USE(CPLPushErrorHandlerEx)              \
  USE(CPLRecode)                          \
  USE(CSLDestroy)                         \
  USE(CSLTokenizeStringComplex)           \
  USE(GDALClose)                          \
  USE(GDALDatasetGetLayer)                \
  USE(GDALDatasetGetLayerCount)           \
  USE(GDALOpenEx)                         \
  USE(OCTDestroyCoordinateTransformation) \
  USE(OCTNewCoordinateTransformation)     \
  USE(OCTTransformEx)                     \
  USE(OGR_FD_GetFieldCount)               \
  USE(OGR_FD_GetFieldDefn)                \
  USE(OGR_F_Destroy)                      \
  USE(OGR_F_GetFID)                       \
  USE(OGR_F_GetFieldAsDateTimeEx)         \
  USE(OGR_F_GetFieldAsDouble)             \
  USE(OGR_F_GetFieldAsString)             \
  USE(OGR_F_GetGeometryRef)               \
  USE(OGR_F_GetStyleString)               \
  USE(OGR_F_IsFieldSetAndNotNull)         \
  USE(OGR_GT_Flatten)                     \
  USE(OGR_Fld_GetNameRef)                 \
  USE(OGR_Fld_GetPrecision)               \
  USE(OGR_Fld_GetType)                    \
  USE(OGR_Fld_GetWidth)                   \
  USE(OGR_G_DestroyGeometry)              \
  USE(OGR_G_GetDimension)                 \
  USE(OGR_G_GetGeometryCount)             \
  USE(OGR_G_GetGeometryRef)               \
  USE(OGR_G_GetGeometryType)              \
  USE(OGR_G_GetLinearGeometry)            \
  USE(OGR_G_GetPointCount)                \
  USE(OGR_G_GetPoints)                    \
  USE(OGR_G_HasCurveGeometry)             \
  USE(OGR_G_IsEmpty)                      \
  USE(OGR_L_GetLayerDefn)                 \
  USE(OGR_L_GetNextFeature)               \
  USE(OGR_L_GetSpatialRef)                \
  USE(OSRDestroySpatialReference)         \
  USE(OSRExportToMICoordSys)              \
  USE(OSRExportToWkt)                     \
  USE(OSRGetAttrValue)                    \
  USE(OSRGetLinearUnits)                  \
  USE(OSRImportFromMICoordSys)            \
  USE(OSRImportFromWkt)                   \
  USE(OSRIsGeographic)                    \
  USE(OSRIsLocal)                         \
  USE(OSRNewSpatialReference)             \
  USE(OSRSetAxisMappingStrategy)          \
  USE(RegisterOGRTAB)                     \
  USE(VSIFCloseL)                         \
  USE(VSIFileFromMemBuffer)               \
  USE(VSIFree)                            \
  USE(VSIUnlink)

namespace motor {

// GDAL's C interface; each function has GDAL's own name and contract.
struct Gdal {
#define VELDORIA_MEMBER(function) decltype(&::function) function = nullptr;
  VELDORIA_GDAL_FUNCTIONS(VELDORIA_MEMBER)
#undef VELDORIA_MEMBER
};

// Loads a GDAL library, which stays until the process ends, and makes it read TAB and MIF files. Throws EngineError,
// which names the file, when it cannot be loaded or lacks a function.
[[nodiscard]] Gdal loadGdal(const char* file);

// The GDAL that the program was built with, loaded at the first call, by whichever thread comes first; the others wait.
// Throws as loadGdal, and then tries again at the next call.
[[nodiscard]] const Gdal& gdal();

// Destroys what GDAL made, by one of its functions.
template <auto destroy>
struct GdalDelete {
  void operator()(void* thing) const { (gdal().*destroy)(thing); }
};

using GdalDataset = std::unique_ptr<void, GdalDelete<&Gdal::GDALClose>>;
using GdalFeature = std::unique_ptr<void, GdalDelete<&Gdal::OGR_F_Destroy>>;
using GdalGeometry = std::unique_ptr<void, GdalDelete<&Gdal::OGR_G_DestroyGeometry>>;
using GdalSystem = std::unique_ptr<void, GdalDelete<&Gdal::OSRDestroySpatialReference>>;
using GdalTransformation = std::unique_ptr<void, GdalDelete<&Gdal::OCTDestroyCoordinateTransformation>>;

// Copies a text that GDAL allocated, and frees it; nothing for null.
[[nodiscard]] std::string takeGdalText(char* text);

}  // namespace motor

#include "motor/tables/ogr_errors.h"

#include <string_view>

#include "motor/tables/gdal.h"

namespace motor {
namespace {

// A column of a type that the library passes over; said again at every row, and no damage.
constexpr std::string_view kUnknownColumn = "Unsupported field type";

void CPL_STDCALL note(CPLErr kind, CPLErrorNum, const char* message) {
  if (kind >= CE_Failure && !std::string_view(message).starts_with(kUnknownColumn))
    *static_cast<bool*>(gdal().CPLGetErrorHandlerUserData()) = true;
}

}  // namespace

OgrErrors::OgrErrors() { gdal().CPLPushErrorHandlerEx(note, &failed_); }

OgrErrors::~OgrErrors() { gdal().CPLPopErrorHandler(); }

}  // namespace motor

#include "motor/tables/ogr_errors.h"

#include <cpl_error.h>

#include <string_view>

namespace motor {
namespace {

// A column of a type that the library passes over; said again at every row, and no damage.
constexpr std::string_view kUnknownColumn = "Unsupported field type";

void CPL_STDCALL note(CPLErr kind, CPLErrorNum, const char* message) {
  if (kind >= CE_Failure && !std::string_view(message).starts_with(kUnknownColumn))
    *static_cast<bool*>(CPLGetErrorHandlerUserData()) = true;
}

}  // namespace

OgrErrors::OgrErrors() { CPLPushErrorHandlerEx(note, &failed_); }

OgrErrors::~OgrErrors() { CPLPopErrorHandler(); }

}  // namespace motor

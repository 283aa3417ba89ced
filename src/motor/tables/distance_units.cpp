#include <array>

#include "motor/language/error.h"
#include "motor/tables/coordinate_system.h"
#include "text/utf8.h"

namespace motor {
namespace {

struct DistanceUnit {
  const char* name;
  double metres;
};

constexpr double kFoot = 0.3048;
constexpr double kSurveyFoot = 12 / 39.37;

constexpr std::array kDistanceUnits = {
    DistanceUnit{"mi", 5280 * kFoot},
    DistanceUnit{"km", 1000},
    DistanceUnit{"m", 1},
    DistanceUnit{"cm", 0.01},
    DistanceUnit{"mm", 0.001},
    DistanceUnit{"ft", kFoot},
    DistanceUnit{"in", kFoot / 12},
    DistanceUnit{"yd", 3 * kFoot},
    DistanceUnit{"nmi", 1852},
    DistanceUnit{"ch", 66 * kSurveyFoot},
    DistanceUnit{"li", 0.66 * kSurveyFoot},
    DistanceUnit{"rd", 16.5 * kSurveyFoot},
    DistanceUnit{"survey ft", kSurveyFoot},
};

}  // namespace

double metresPerDistanceUnit(const std::string& unit) {
  for (const DistanceUnit& known : kDistanceUnits) {
    if (text::equalsIgnoringCase(unit, known.name)) return known.metres;
  }
  throw EngineError("No se conoce la unidad de distancia «" + unit + "»");
}

}  // namespace motor

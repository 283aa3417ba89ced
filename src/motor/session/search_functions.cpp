#include <array>

#include "motor/session/attributes.h"
#include "motor/session/session_functions.h"
#include "motor/session/session_state.h"

namespace motor {
namespace {

using HitAttribute = Attribute<SearchHit>;

constexpr std::array kAttributes{
    HitAttribute{1, [](const SearchHit& hit) -> Value { return hit.table; }},
    HitAttribute{2, [](const SearchHit& hit) -> Value { return static_cast<double>(hit.row); }},
};

}  // namespace

Value searchPoint(SessionState& session, const Arguments& arguments) {
  const Map& map = session.window(arguments.integer(0)).map();
  const Point at = toMapCoordinates(session, map, {arguments.number(1), arguments.number(2)});
  session.hits.clear();
  if (isSearched(map.cosmetic, map)) {
    for (const RowId row : rowsAt(map, map.cosmetic, at)) session.hits.push_back({map.cosmetic.name, row});
  }
  for (const Hit& hit : objectsAt(map, at)) session.hits.push_back({map.layers[hit.layer].name, hit.row});
  return static_cast<double>(session.hits.size());
}

Value searchInfo(SessionState& session, const Arguments& arguments) {
  const int number = arguments.integer(0);
  if (number < 1 || number > static_cast<int>(session.hits.size()))
    arguments.reject(0, "la búsqueda no encontró tantos objetos");
  return readAttribute(kAttributes, arguments, 1, session.hits[static_cast<std::size_t>(number - 1)]);
}

}  // namespace motor

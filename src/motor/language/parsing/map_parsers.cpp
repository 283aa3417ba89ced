#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/statement_parsers.h"
#include "motor/language/parsing/window_shape_parser.h"

// Map From, Add Map, Remove Map.
namespace motor {

Statement parseMapFrom(TokenStream& stream, Position position) {
  MapFrom map;
  map.position = position;
  map.tables = parseNames(stream, "el nombre de una tabla");
  acceptClauses(stream, windowShapeRules(), map.shape);
  return map;
}

ClauseEntries mapFromClauses() { return entriesOf("", windowShapeRules()); }

Statement parseAddMap(TokenStream& stream, Position position) {
  AddMapLayer add;
  add.position = position;
  add.window = parseWindowClause(stream);
  add.automatic = stream.acceptWord("auto");
  stream.expectWord("layer", "Layer");
  add.tables = parseNames(stream, "el nombre de una tabla");
  return add;
}

Statement parseRemoveMap(TokenStream& stream, Position position) {
  RemoveMapLayer remove;
  remove.position = position;
  remove.window = parseWindowClause(stream);
  stream.expectWord("layer", "Layer");
  do {
    remove.layers.push_back(parseLayerReference(stream));
  } while (stream.acceptSign(","));
  remove.interactive = stream.acceptWord("interactive");
  return remove;
}

}  // namespace motor

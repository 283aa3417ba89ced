#pragma once

#include "motor/language/parsing/expression_parser.h"
#include "motor/language/statements/parts.h"

// The parts that several statements share.
namespace motor {

// A name as a word or a text: of a table (`what` is told when it is missing), also `Zones(1)`.
[[nodiscard]] Name parseName(TokenStream& stream, const char* what);
[[nodiscard]] std::vector<Name> parseNames(TokenStream& stream, const char* what);

// On or Off; neither is On.
[[nodiscard]] bool parseSwitch(TokenStream& stream);

// (x, y)
[[nodiscard]] CoordinatePair parseCoordinatePair(TokenStream& stream);

// [Units "km"], or nothing.
[[nodiscard]] std::string parseUnits(TokenStream& stream);

// 300 [Units "km"]
[[nodiscard]] Measure parseMeasure(TokenStream& stream);

// (x, y) [Units "in"]
[[nodiscard]] Placement parsePlacement(TokenStream& stream);

// What follows the word Layer.
[[nodiscard]] LayerReference parseLayerReference(TokenStream& stream);

// What follows the word Window.
[[nodiscard]] WindowReference parseWindowReference(TokenStream& stream);

// [Window id], null when it is not there.
[[nodiscard]] ExpressionPtr parseWindowClause(TokenStream& stream);

// What follows the word CoordSys.
[[nodiscard]] CoordSysClause parseCoordSysClause(TokenStream& stream);

// What follows the word Position of a label or chart: Center, Above [Left | Right], Below [Left | Right], Left, Right;
// coded as LabelClause::placement.
[[nodiscard]] int parseAnchor(TokenStream& stream);

// Reads an optional `# ... #`, in which the engine keeps what its dialogs need.
void skipEditorTrailer(TokenStream& stream);

}  // namespace motor

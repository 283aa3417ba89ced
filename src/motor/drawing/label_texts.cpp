#include "motor/drawing/label_texts.h"

#include "motor/drawing/row_scope.h"
#include "motor/language/parser.h"

namespace motor {

namespace {

std::string firstText(const Table& table, RowId row) {
  const std::vector<Column>& columns = table.columns();
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].type == Column::Type::text) return table.value(row, i).toText();
  }
  return "";
}

}  // namespace

LabelTexts::LabelTexts() : functions_(pureFunctions()) {}

const Expression* LabelTexts::expression(const std::string& source) {
  const auto [entry, isNew] = parsed_.try_emplace(source);
  if (isNew) {
    try {
      entry->second = parseExpression(source);
    } catch (const LanguageError&) {
      entry->second = nullptr;
    }
  }
  return entry->second.get();
}

std::string LabelTexts::of(const Layer& layer, RowId row) {
  if (layer.label.expression.empty()) return firstText(*layer.table, row);
  const Expression* source = expression(layer.label.expression);
  if (source == nullptr) return "";
  try {
    return source->evaluate(RowScope(layer, row, functions_)).toText();
  } catch (const LanguageError&) {
    return "";
  } catch (const EngineError&) {
    return "";
  }
}

}  // namespace motor

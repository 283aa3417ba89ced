#include "motor/session/open_tables.h"

#include <algorithm>
#include <cctype>

#include "motor/language/error.h"
#include "motor/session/path_text.h"
#include "motor/tables/table_store.h"
#include "text/utf8.h"

namespace motor {
namespace {

constexpr std::string_view kSelection = "Selection";

bool isSelection(std::string_view name) { return text::equalsIgnoringCase(name, kSelection); }

// A file's name as a table's: letters, digits and underscores, no digit first.
std::string tableName(const std::filesystem::path& file) {
  std::string name;
  for (const std::string& c : text::characters(text::compose(textOf(file.stem())))) {
    const bool isSign = c.size() == 1 && std::isalnum(static_cast<unsigned char>(c[0])) == 0;
    name += isSign ? "_" : c;
  }
  if (!name.empty() && std::isdigit(static_cast<unsigned char>(name[0])) != 0) name.insert(name.begin(), '_');
  return name;
}

}  // namespace

std::size_t OpenTables::indexOf(std::string_view name) const {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const TableEntry& e) { return text::equalsIgnoringCase(e.name, name); });
  return static_cast<std::size_t>(found - entries_.begin());
}

const TableEntry* OpenTables::findEntry(std::string_view name) const {
  if (isSelection(name)) return selection_ ? &selectionEntry_ : nullptr;
  const std::size_t index = indexOf(name);
  return index == entries_.size() ? nullptr : &entries_[index];
}

TablePtr OpenTables::find(std::string_view name) const {
  const TableEntry* entry = findEntry(name);
  return entry == nullptr ? nullptr : entry->table;
}

const TableEntry& OpenTables::at(std::string_view name) const {
  const TableEntry* entry = findEntry(name);
  if (entry == nullptr) {
    throw EngineError(isSelection(name) ? "no hay nada seleccionado"
                                        : "la tabla «" + std::string(name) + "» no está abierta");
  }
  return *entry;
}

const TableEntry& OpenTables::newest() const {
  if (entries_.empty()) throw EngineError("no hay ninguna tabla abierta");
  return entries_.back();
}

void OpenTables::add(TableEntry entry) {
  cursors_.open(entry.name, entry.table);
  entries_.push_back(std::move(entry));
  ++generation_;
}

std::string OpenTables::open(const std::filesystem::path& file, const std::optional<std::string>& as) {
  if (as && isSelection(*as)) throw EngineError("una tabla no se puede llamar «Selection»");
  const auto again =
      std::find_if(entries_.begin(), entries_.end(), [&](const TableEntry& e) { return e.file == file; });
  if (again != entries_.end()) {
    if (as && !text::equalsIgnoringCase(*as, again->name))
      throw EngineError("la tabla ya está abierta con el nombre «" + again->name + "»");
    return again->name;
  }
  std::string name = as ? *as : tableName(file);
  if (as && findEntry(name) != nullptr) throw EngineError("ya hay una tabla abierta con el nombre «" + name + "»");
  const std::string stem = name;
  for (int n = 2; findEntry(name) != nullptr; ++n) name = stem + "_" + std::to_string(n);
  add({.name = name, .table = TableStore::shared().open(file), .file = file});
  return name;
}

void OpenTables::put(const std::string& name, ResultPtr result) {
  if (isSelection(name)) throw EngineError("una tabla no se puede llamar «Selection»");
  const std::size_t index = indexOf(name);
  if (index < entries_.size()) {
    const TableEntry& open = entries_[index];
    if (!open.file.empty()) throw EngineError("ya hay una tabla abierta con el nombre «" + open.name + "»");
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(index));
  }
  add({.name = name, .table = std::move(result)});
}

void OpenTables::replace(std::string_view name, TablePtr table) {
  const std::size_t index = indexOf(name);
  if (index == entries_.size()) throw EngineError("la tabla «" + std::string(name) + "» no está abierta");
  entries_[index].table = std::move(table);
  cursors_.open(entries_[index].name, entries_[index].table);
  ++generation_;
}

std::vector<TableEntry> OpenTables::close(std::string_view name) {
  if (isSelection(name)) {
    deselect();
    return {};
  }
  const TableEntry closed = at(name);
  const auto dependsOnIt = [&](const TablePtr& table) {
    const auto* result = dynamic_cast<const ResultTable*>(table.get());
    return result != nullptr && std::any_of(result->sources().begin(), result->sources().end(),
                                            [&](const ResultSource& s) { return s.table == closed.table; });
  };
  if (selection_ && dependsOnIt(selection_)) deselect();
  std::vector<TableEntry> gone;
  std::erase_if(entries_, [&](const TableEntry& e) {
    if (e.table != closed.table && !dependsOnIt(e.table)) return false;
    cursors_.close(e.name);
    gone.push_back(e);
    return true;
  });
  ++generation_;
  return gone;
}

void OpenTables::select(ResultPtr rows, const std::string& name) {
  selection_ = std::move(rows);
  selectionName_ = name;
  selectionEntry_ = {.name = std::string(kSelection), .table = selection_};
  cursors_.open(kSelection, selection_);
  ++generation_;
}

void OpenTables::deselect() {
  if (!selection_) return;
  selection_.reset();
  selectionName_.clear();
  selectionEntry_ = {};
  cursors_.close(kSelection);
  ++generation_;
}

std::string OpenTables::nameOfSelection() {
  if (!selection_) return {};
  if (selectionName_.empty() || find(selectionName_) != selection_) {
    do {
      selectionName_ = "Query" + std::to_string(++snapshots_);
    } while (find(selectionName_));
    put(selectionName_, selection_);
    entries_.back().snapshot = true;
  }
  return selectionName_;
}

}  // namespace motor

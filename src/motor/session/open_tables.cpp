#include "motor/session/open_tables.h"

#include <algorithm>
#include <cctype>

#include "motor/language/error.h"
#include "motor/session/extended_table.h"
#include "text/file_text.h"
#include "text/utf8.h"

namespace motor {
namespace {

constexpr std::string_view kSelection = "Selection";

bool isSelection(std::string_view name) { return text::equalsIgnoringCase(name, kSelection); }

// A file's name as a table's: letters, digits and underscores, no digit first.
std::string tableName(const std::filesystem::path& file) {
  std::string name;
  for (const std::string& c : text::characters(text::compose(text::fromPath(file.stem())))) {
    const bool isSign = c.size() == 1 && std::isalnum(static_cast<unsigned char>(c[0])) == 0;
    name += isSign ? "_" : c;
  }
  if (!name.empty() && std::isdigit(static_cast<unsigned char>(name[0])) != 0) name.insert(name.begin(), '_');
  return name;
}

// A table as a result of Select, also when it has got columns since; null for a table of a file.
const ResultTable* resultBehind(const Table* table) {
  if (const auto* extended = dynamic_cast<const ExtendedTable*>(table)) return resultBehind(&extended->extended());
  return dynamic_cast<const ResultTable*>(table);
}

// Whether rows of a result (or of no table) come from `source`.
bool readsFrom(const TablePtr& table, const TablePtr& source) {
  const ResultTable* result = resultBehind(table.get());
  return result != nullptr && std::any_of(result->sources().begin(), result->sources().end(),
                                          [&](const ResultSource& s) { return s.table == source; });
}

// A result whose rows come from `from`, as it is with `to` in its place; null for another table.
ResultPtr following(const TablePtr& table, const TablePtr& from, const TablePtr& to) {
  const auto result = std::dynamic_pointer_cast<const ResultTable>(table);
  if (!readsFrom(result, from)) return nullptr;
  ResultContents contents = result->contents();
  for (ResultSource& source : contents.sources) {
    if (source.table == from) source.table = to;
  }
  return std::make_shared<const ResultTable>(std::move(contents));
}

}  // namespace

OpenTables::Entries::iterator OpenTables::among(std::string_view name) {
  const auto found = byName_.find(text::lower(name));
  return found == byName_.end() ? entries_.end() : found->second;
}

const TableEntry* OpenTables::findEntry(std::string_view name) const {
  if (isSelection(name)) return selection_ ? &selectionEntry_ : nullptr;
  const auto found = byName_.find(text::lower(name));
  return found == byName_.end() ? nullptr : &*found->second;
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
  entries_.push_back(std::move(entry));
  byName_[text::lower(entries_.back().name)] = std::prev(entries_.end());
  ++generation_;
}

OpenTables::Entries::iterator OpenTables::remove(Entries::iterator entry) {
  byName_.erase(text::lower(entry->name));
  ++generation_;
  return entries_.erase(entry);
}

std::string OpenTables::open(const std::filesystem::path& file, const std::optional<std::string>& as,
                             const TableStore::MayRead& mayRead) {
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
  const TablePtr table = TableStore::shared().open(file, mayRead);
  cursors_.open(name, table);
  add({.name = name, .table = table, .file = file});
  return name;
}

void OpenTables::put(const std::string& name, ResultPtr result) {
  if (isSelection(name)) throw EngineError("una tabla no se puede llamar «Selection»");
  const auto open = among(name);
  if (open != entries_.end()) {
    if (!open->file.empty()) throw EngineError("ya hay una tabla abierta con el nombre «" + open->name + "»");
    remove(open);
  }
  cursors_.open(name, result);
  add({.name = name, .table = std::move(result)});
}

std::map<TablePtr, TablePtr> OpenTables::replace(std::string_view name, const TablePtr& table) {
  const auto open = among(name);
  if (open == entries_.end()) throw EngineError("la tabla «" + std::string(name) + "» no está abierta");
  const TablePtr old = open->table;
  std::map<TablePtr, TablePtr> replaced{{old, table}};
  for (const TableEntry& entry : entries_) {
    if (const ResultPtr follower = following(entry.table, old, table)) replaced.emplace(entry.table, follower);
  }
  if (const ResultPtr follower = following(selection_, old, table)) {
    selection_ = std::static_pointer_cast<const ResultTable>(replaced.emplace(selection_, follower).first->second);
    selectionEntry_.table = selection_;
    cursors_.replace(kSelection, selection_);
  }
  for (TableEntry& entry : entries_) {
    const auto found = replaced.find(entry.table);
    if (found == replaced.end()) continue;
    entry.table = found->second;
    cursors_.replace(entry.name, entry.table);
  }
  ++generation_;
  return replaced;
}

std::vector<TableEntry> OpenTables::close(std::string_view name) {
  if (isSelection(name)) {
    deselect();
    return {};
  }
  const TableEntry closed = at(name);
  if (readsFrom(selection_, closed.table)) deselect();
  std::vector<TableEntry> gone;
  for (auto entry = entries_.begin(); entry != entries_.end();) {
    if (entry->table != closed.table && !readsFrom(entry->table, closed.table)) {
      ++entry;
      continue;
    }
    cursors_.close(entry->name);
    gone.push_back(*entry);
    entry = remove(entry);
  }
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
    cursors_.openBeside(selectionName_, kSelection);
    add({.name = selectionName_, .table = selection_, .file = {}, .snapshot = true});
  }
  return selectionName_;
}

}  // namespace motor

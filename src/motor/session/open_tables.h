#pragma once

#include <cstdint>
#include <filesystem>
#include <list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "motor/tables/cursor.h"
#include "motor/tables/result_table.h"
#include "motor/tables/select.h"
#include "motor/tables/table_store.h"

namespace motor {

// A table as a session has it open.
struct TableEntry {
  std::string name;
  TablePtr table;
  std::filesystem::path file = {};  // empty for a result of Select
  bool snapshot = false;            // QueryN
};

// The tables that a session has open, the Selection among them, and the current row of each. Names match without regard
// to case.
class OpenTables final : public TableResolver {
 public:
  // "Selection" is the rows chosen last, if any.
  [[nodiscard]] TablePtr find(std::string_view name) const override;
  // Throws EngineError when no such table is open.
  [[nodiscard]] const TableEntry& at(std::string_view name) const;
  // In opening order, without the Selection.
  [[nodiscard]] const std::list<TableEntry>& entries() const { return entries_; }
  // The table opened last. Throws EngineError when none is open.
  [[nodiscard]] const TableEntry& newest() const;

  // Opens the table of a file and returns its name: `as`, or else the file's own. Opening a file again changes nothing,
  // unless under another name, an EngineError; so is a name that another table has. A file whose own name is taken gets
  // the next free of Name_2, Name_3, ...
  // The table may be put together from other files only where `mayRead` says so.
  std::string open(const std::filesystem::path& file, const std::optional<std::string>& as,
                   const TableStore::MayRead& mayRead);
  // The rows of a Select under a name; an earlier result of that name is replaced. Throws EngineError when a table of a
  // file has the name.
  void put(const std::string& name, ResultPtr result);
  // Puts another table in the place of an open one, with the same rows; all current rows stay. Results that were
  // selected from it follow: they read the new one from here on. Returns what took the place of what.
  std::map<TablePtr, TablePtr> replace(std::string_view name, const TablePtr& table);
  // Closes a table, and the results that were selected from it. Returns all that were closed. "Selection" deselects.
  std::vector<TableEntry> close(std::string_view name);

  // The rows chosen last; null when nothing is selected.
  [[nodiscard]] const ResultPtr& selection() const { return selection_; }
  // `name` is the open result that is selected, or empty.
  void select(ResultPtr rows, const std::string& name = {});
  void deselect();
  // The name under which the Selection's rows stay when others are selected: opens the next of Query1, Query2, ... for
  // them, unless they have a name. Empty when nothing was selected; a Select that matched no row has a name all the
  // same.
  std::string nameOfSelection();

  [[nodiscard]] const Cursors& cursors() const { return cursors_; }
  void fetch(std::string_view name, Fetch::Target target, double record) { cursors_.fetch(name, target, record); }

  // Changes whenever a name may mean another table than before.
  [[nodiscard]] std::uint64_t generation() const { return generation_; }

 private:
  using Entries = std::list<TableEntry>;

  // Among entries_, or its end.
  [[nodiscard]] Entries::iterator among(std::string_view name);
  [[nodiscard]] const TableEntry* findEntry(std::string_view name) const;
  void add(TableEntry entry);
  Entries::iterator remove(Entries::iterator entry);

  Entries entries_;
  std::unordered_map<std::string, Entries::iterator> byName_;  // by name in lower case
  TableEntry selectionEntry_;
  ResultPtr selection_;
  std::string selectionName_;
  Cursors cursors_;
  std::uint64_t generation_ = 1;
  int snapshots_ = 0;
};

}  // namespace motor

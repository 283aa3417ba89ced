#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzzed_study.h"
#include "motor/language/error.h"
#include "motor/tables/base_table.h"

// The input is a MIF file and, behind the first NUL byte, its MID file. Reading may fail with the engine's own error
// and nothing else; each value and object of a table that is read can be had.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const FuzzedStudy study;
  const std::uint8_t* const end = data + size;
  const std::uint8_t* const middle = std::find(data, end, std::uint8_t{0});
  const std::filesystem::path file = study.write("fuzz.mif", std::string(data, middle));
  study.write("fuzz.mid", std::string(middle == end ? end : middle + 1, end));
  try {
    const std::shared_ptr<const motor::BaseTable> table = motor::BaseTable::read(file);
    for (motor::RowId row = 1; row <= table->rowCount(); ++row) {
      if (table->isDeleted(row)) continue;
      for (std::size_t column = 0; column < table->columns().size(); ++column) {
        static_cast<void>(table->value(row, column));
      }
      static_cast<void>(table->object(row));
    }
  } catch (const motor::EngineError&) {  // no table
  }
  return 0;
}

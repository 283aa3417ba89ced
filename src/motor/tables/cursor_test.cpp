#include "motor/tables/cursor.h"

#include <gtest/gtest.h>

#include "motor/tables/testing_select.h"

namespace motor {
namespace {

using testing_select::TableBuilder;
using testing_select::TestSession;

class CursorsTest : public testing::Test {
 protected:
  CursorsTest() {
    table_ = TableBuilder({"a"}).row({"x"}).deletedRow().row({"y"}).row({"z"}).deletedRow().build();
    session_.open("Tabla", table_);
    cursors_.open("Tabla", table_);
  }

  void select(const std::string& statement) { cursors_.open("Selection", session_.select(statement)); }

  TestSession session_;
  Cursors cursors_;
  TablePtr table_;
};

TEST_F(CursorsTest, moveInEveryDirection) {
  EXPECT_EQ(cursors_.row("tabla"), 1U);
  struct Step {
    Fetch::Target target;
    double record;
    RowId row;
  };
  const Step steps[] = {
      {Fetch::Target::next, 0, 3},     {Fetch::Target::next, 0, 4}, {Fetch::Target::previous, 0, 3},
      {Fetch::Target::previous, 0, 1}, {Fetch::Target::last, 0, 4}, {Fetch::Target::first, 0, 1},
      {Fetch::Target::record, 3, 3},
  };
  for (const Step& step : steps) {
    cursors_.fetch("TABLA", step.target, step.record);
    EXPECT_EQ(cursors_.row("tabla"), step.row);
    EXPECT_FALSE(cursors_.atEnd("tabla"));
  }
}

TEST_F(CursorsTest, haveNoRowBeyondTheEnds) {
  cursors_.fetch("tabla", Fetch::Target::last);
  cursors_.fetch("tabla", Fetch::Target::next);
  EXPECT_TRUE(cursors_.atEnd("tabla"));
  EXPECT_EQ(cursors_.at("tabla").row, 0U);
  EXPECT_THROW(static_cast<void>(cursors_.row("tabla")), EngineError);
  cursors_.fetch("tabla", Fetch::Target::next);
  EXPECT_TRUE(cursors_.atEnd("tabla"));
  cursors_.fetch("tabla", Fetch::Target::first);
  EXPECT_FALSE(cursors_.atEnd("tabla"));
  cursors_.fetch("tabla", Fetch::Target::previous);
  EXPECT_EQ(cursors_.at("tabla").row, 0U);
}

TEST_F(CursorsTest, rejectRowsThatAreNotThere) {
  for (const double record : {0.0, 2.0, 5.0, 6.0, 1.5, -1.0}) {
    EXPECT_THROW(cursors_.fetch("tabla", Fetch::Target::record, record), EngineError) << record;
    EXPECT_EQ(cursors_.row("tabla"), 1U);
  }
  EXPECT_THROW(cursors_.fetch("otra", Fetch::Target::first), EngineError);
  EXPECT_THROW(static_cast<void>(cursors_.atEnd("otra")), EngineError);
}

TEST_F(CursorsTest, ofResultsMoveTheTableBehind) {
  select("select a from tabla order by a desc");
  EXPECT_EQ(cursors_.row("selection"), 1U);
  EXPECT_EQ(cursors_.row("tabla"), 4U);
  cursors_.fetch("Selection", Fetch::Target::next);
  EXPECT_EQ(cursors_.row("selection"), 2U);
  EXPECT_EQ(cursors_.row("tabla"), 3U);
  cursors_.fetch("Selection", Fetch::Target::last);
  EXPECT_EQ(cursors_.row("tabla"), 1U);
  cursors_.fetch("Selection", Fetch::Target::next);
  EXPECT_TRUE(cursors_.atEnd("selection"));
  EXPECT_EQ(cursors_.row("tabla"), 1U);
  cursors_.fetch("tabla", Fetch::Target::next);
  EXPECT_EQ(cursors_.at("selection").row, 0U);
}

TEST_F(CursorsTest, ofAnEmptyResultAreAtTheEnd) {
  select("select a from tabla where a=\"q\"");
  EXPECT_TRUE(cursors_.atEnd("selection"));
  cursors_.fetch("selection", Fetch::Target::first);
  EXPECT_TRUE(cursors_.atEnd("selection"));
  EXPECT_THROW(static_cast<void>(cursors_.row("selection")), EngineError);
  EXPECT_EQ(cursors_.row("tabla"), 1U);
}

TEST_F(CursorsTest, underAnotherNameMoveNothing) {
  select("select a from tabla order by a desc");
  cursors_.fetch("selection", Fetch::Target::next);
  cursors_.openBeside("Query1", "Selection");
  EXPECT_EQ(cursors_.row("query1"), 2U);
  EXPECT_EQ(cursors_.row("selection"), 2U);
  EXPECT_EQ(cursors_.row("tabla"), 3U);
  EXPECT_THROW(cursors_.openBeside("otra", "nada"), EngineError);
}

TEST_F(CursorsTest, stayWhereTheyAreInAnotherTable) {
  cursors_.fetch("tabla", Fetch::Target::last);
  const TablePtr other = TableBuilder({"b"}).row({1}).row({2}).row({3}).row({4}).row({5}).build();
  cursors_.replace("TABLA", other);
  EXPECT_EQ(cursors_.row("tabla"), 4U);
  EXPECT_EQ(cursors_.at("tabla").table, other);
}

TEST_F(CursorsTest, outliveTheTableBehind) {
  select("select a from tabla");
  cursors_.close("Tabla");
  cursors_.fetch("selection", Fetch::Target::next);
  EXPECT_EQ(cursors_.row("selection"), 2U);
  EXPECT_THROW(static_cast<void>(cursors_.row("tabla")), EngineError);
  cursors_.open("Tabla", TableBuilder({"b"}).row({1}).build());
  cursors_.fetch("selection", Fetch::Target::next);
  EXPECT_EQ(cursors_.row("tabla"), 1U);
}

}  // namespace
}  // namespace motor

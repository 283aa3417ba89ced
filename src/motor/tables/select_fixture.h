#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

#include "motor/tables/testing_select.h"

namespace motor::testing_select {

// Units with a few figures each; the third row is deleted, the last has no value and no object.
class SelectTest : public testing::Test {
 protected:
  SelectTest() {
    const ObjectPtr west = rectangle(0, 0, 10, 10);
    const ObjectPtr east = rectangle(10, 0, 20, 10);
    TableBuilder units({"Nombre", "Sexo", "Tipo", "Valor"});
    units.row({"Zamora", "Mujeres", "Lista", 3}, west)
        .row({"Ávila", "Hombres", "Lista", 10}, east)
        .deletedRow()
        .row({"Zamora", "Hombres", "Grandes", 2.5}, west)
        .row({"avilés", "Hombres", "Grandes", 7}, point(50, 50))
        .row({"Ávila", "Mujeres", "Grandes", 10}, east)
        .row({"Burgos", "Mujeres", "Lista", Value()});
    units_ = units.build();
    session_.open("Unidades", units_);
    session_.open("Provincias", TableBuilder({"Nombre", "Capital", "Valor"})
                                    .row({"ávila", "AV", 100})
                                    .row({"Zamora", "ZA", 200})
                                    .row({"León", "LE", 300})
                                    .build());
  }

  std::string rows(const std::string& statement) const { return shown(*session_.select(statement)); }

  std::string error(const std::string& statement) const {
    try {
      return "no error, but " + rows(statement);
    } catch (const std::runtime_error& e) {
      return e.what();
    }
  }

  TestSession session_;
  std::shared_ptr<const BaseTable> units_;
};

}  // namespace motor::testing_select

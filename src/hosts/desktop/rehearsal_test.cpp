#include "hosts/desktop/rehearsal.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <filesystem>
#include <fstream>

#include "motor/session/tiny_study.h"
#include "motor/tables/table_store.h"

namespace desktop {
namespace {

class Rehearsal : public ::testing::Test {
 protected:
  void SetUp() override { motor::tiny::writeStatistics(statistics); }

  QTemporaryDir folder;
  std::filesystem::path statistics = std::filesystem::path(folder.path().toStdString()) / "Tablas" / "Estadisticas";
  std::string workspace = (statistics / "Estadisticas.wor").string();
  motor::SessionOptions options{{folder.path().toStdString()}, ",", "."};
};

TEST_F(Rehearsal, TablesAreReadBeforeTheProgramOpensThem) {
  motor::TableStore::shared().clear();
  rehearse(workspace, options);
  EXPECT_EQ(motor::TableStore::shared().size(), 1U);
}

TEST_F(Rehearsal, WhatGoesWrongIsLeftToTheProgram) {
  std::ofstream(workspace) << "!Workspace\nOpen Sesame\n";
  EXPECT_NO_THROW(rehearse(workspace, options));
  EXPECT_NO_THROW(rehearse("no such file.wor", options));
}

}  // namespace
}  // namespace desktop

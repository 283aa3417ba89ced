#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "tour_study.h"

namespace desktop {
namespace {

namespace fs = std::filesystem;

// The program as a user without anything of his own has it: what it leaves in his folders once it has ended. Only the
// font library's own store of what it has read is let be.
class Traces : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {"home", "cache", "tmp", "here"}) fs::create_directory(place(name));
    testing::makeTourStudy(place("estudio"));
  }
  [[nodiscard]] fs::path place(const char* name) const { return fs::path(folder.path().toStdString()) / name; }

  // All that lies in a folder, with the sizes of the files.
  [[nodiscard]] std::map<std::string, std::uintmax_t> inside(const char* name) const {
    std::map<std::string, std::uintmax_t> all;
    for (const fs::directory_entry& each : fs::recursive_directory_iterator(place(name))) {
      all[each.path().string()] = each.is_regular_file() ? each.file_size() : 0;
    }
    return all;
  }

  // Takes the program through its modes, in which it saves a table, prints, and shows its help and its dialogs.
  [[nodiscard]] int walk() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& name : environment.keys()) {
      if (name.startsWith(QStringLiteral("XDG_"))) environment.remove(name);
    }
    environment.insert(QStringLiteral("HOME"), QString::fromStdString(place("home").string()));
    environment.insert(QStringLiteral("TMPDIR"), QString::fromStdString(place("tmp").string()));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), QString::fromStdString(place("cache").string()));
    QProcess tour;
    tour.setProcessEnvironment(environment);
    tour.setWorkingDirectory(QString::fromStdString(place("here").string()));
    tour.setProcessChannelMode(QProcess::MergedChannels);
    tour.start(QStringLiteral(VELDORIA_TOUR),
               {QString::fromStdString(place("estudio").string()), QString::fromStdString(place("fotos").string())});
    constexpr int kPatience = 120'000;  // milliseconds
    EXPECT_TRUE(tour.waitForFinished(kPatience));
    if (tour.exitCode() != 0) ADD_FAILURE() << tour.readAll().toStdString();
    return tour.exitCode();
  }

  QTemporaryDir folder;
};

TEST_F(Traces, AreNotLeftInTheUsersFoldersOrBesideTheStudy) {
  const auto study = inside("estudio");
  ASSERT_EQ(walk(), 0);
  EXPECT_TRUE(fs::exists(place("fotos") / "exportada.html"));
  EXPECT_TRUE(fs::exists(place("fotos") / "impreso.pdf"));
  for (const char* name : {"home", "tmp", "here"}) {
    for (const auto& [path, size] : inside(name)) ADD_FAILURE() << path << " is left";
  }
  EXPECT_EQ(inside("estudio"), study);
}

}  // namespace
}  // namespace desktop

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>

#include "atlas/shell/frm_inicio.h"
#include "atlas/shell/frm_principal.h"
#include "hosts/desktop/desktop_program.h"
#include "hosts/desktop/user_hands.h"
#include "picture_comparison.h"

// The program's windows on the tiny study, compared with the pictures beside this file. VELDORIA_UPDATE_GOLDEN=1 writes
// them anew, to be looked at before they are kept. A picture that differs is left in the folder of the test's run, with
// a map of the differences.
namespace {

namespace fs = std::filesystem;

constexpr QSize kWindow(1180, 780);

// Pictures of each scaling lie in a folder of their own.
fs::path goldenFolder() {
  const int percent = static_cast<int>(std::lround(qApp->devicePixelRatio() * 100));
  return fs::path(VELDORIA_PICTURES) / std::to_string(percent);
}

void expectPicture(QWidget& window, const std::string& name) {
  desktop::hands::settle();
  const QImage actual = window.grab().toImage();
  const fs::path golden = goldenFolder() / (name + ".png");
  if (std::getenv("VELDORIA_UPDATE_GOLDEN") != nullptr) {
    fs::create_directories(golden.parent_path());
    ASSERT_TRUE(actual.save(QString::fromStdString(golden.string()), "PNG", 0)) << golden;
    return;
  }
  const QImage expected(QString::fromStdString(golden.string()));
  ASSERT_FALSE(expected.isNull()) << "no picture " << golden;
  const pictures::Tolerance tolerance;
  const pictures::Difference difference = pictures::compare(expected, actual, tolerance);
  if (difference.share <= tolerance.share) return;
  actual.save(QString::fromStdString(name + ".png"));
  difference.map.save(QString::fromStdString(name + "-difference.png"));
  ADD_FAILURE() << name << ": " << difference.share * 100 << " % of the pixels are others; see " << fs::current_path();
}

class Pictures : public ::testing::Test {
 protected:
  void SetUp() override {
    program.host().setFirstSize(kWindow);
    program.start();
    desktop::hands::settle();
  }

  void user(const std::function<void()>& does) {
    program.calls().run(does);
    desktop::hands::settle();
  }
  void passSplash() { desktop::hands::doubleClick(*program.host().windowOf(program.atlas().frmInicio())); }
  [[nodiscard]] atlas::FrmPrincipal& form() { return program.atlas().frmPrincipal(); }
  [[nodiscard]] QWidget& window() { return *program.host().windowOf(form()); }

  desktop::UserPrograms programs;
  desktop::DesktopProgram program{VELDORIA_TINY_STUDY, programs};
};

TEST_F(Pictures, Splash) { expectPicture(*program.host().windowOf(program.atlas().frmInicio()), "splash"); }

TEST_F(Pictures, StatisticsMap) {
  passSplash();
  expectPicture(window(), "statistics");
}

TEST_F(Pictures, ProvinceAndZoneConsulted) {
  passSplash();
  user([this] { form().Ficha.userPick(2); });
  expectPicture(window(), "year-map");
  user([this] { form().CmbProvincias.userPick(1); });
  expectPicture(window(), "province");
  user([this] { form().CmbZonas.userPick(0); });
  user([this] { form().FichaAños.userPick(2); });
  expectPicture(window(), "zone-in-2001");
}

TEST_F(Pictures, Search) {
  passSplash();
  user([this] { form().Ficha.userPick(2); });
  user([this] { form().FichaConsultasDatos.userPick(1); });
  user([this] { form().CmbBuscar.userPick(1); });
  auto* box = window().findChild<QLineEdit*>(QStringLiteral("txtBuscar"));
  ASSERT_NE(box, nullptr);
  box->setFocus();
  QTest::keyClicks(box, QStringLiteral("enc"));
  expectPicture(window(), "search");
}

TEST_F(Pictures, Tables) {
  passSplash();
  user([this] { form().Ficha.userPick(0); });
  expectPicture(window(), "tables");
}

}  // namespace

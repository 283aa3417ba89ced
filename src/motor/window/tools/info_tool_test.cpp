#include "motor/window/tools/info_tool.h"

#include "motor/window/map_widget_fixture.h"

namespace motor {
namespace {

class Info : public MapWidgetTest {
 protected:
  Info() {
    session_->run("set map zoom entire");
    session_->run("run menu command 1707");
  }
  [[nodiscard]] const InfoTool& info() { return dynamic_cast<InfoTool&>(widget_->tool()); }
  [[nodiscard]] QString value(const char* column) {
    for (const Reading& reading : info().readings()) {
      if (reading.name == column) return reading.value;
    }
    return {};
  }
};

TEST_F(Info, AClickShowsTheRecordOfTheObject) {
  const QImage before = picture();
  click(pixelOf({-3, 42}));
  EXPECT_EQ(value("Nombre"), "Álamo");
  EXPECT_EQ(value("Provincia"), "Ñorga");
  EXPECT_EQ(value("Indicador"), "Tasa estandarizada (x100.000) de Diabetes mellitus");
  EXPECT_EQ(value("Valor"), "6,1725");
  EXPECT_EQ(info().hint(), "Registro 1 de 12 · otro clic: el siguiente");
  leave();
  EXPECT_NE(picture(), before);
}

TEST_F(Info, FurtherClicksShowTheOtherRecordsOfTheObject) {
  const QPoint at = pixelOf({-3, 42});
  click(at);
  click(at);
  EXPECT_EQ(value("Indicador"), "Fallecidos");
  EXPECT_EQ(value("Valor"), "617");
  for (int i = 0; i < 11; ++i) click(at);
  EXPECT_EQ(info().hint().left(16), "Registro 1 de 12") << "and then from the first one on";
  click(pixelOf({-1, 42}));
  EXPECT_EQ(value("Nombre"), "Pino");
}

TEST_F(Info, AClickBesideEverythingAndEscapeTakeItAway) {
  const QImage before = picture();
  for (const bool byKey : {false, true}) {
    click(pixelOf({-3, 42}));
    ASSERT_FALSE(info().readings().empty());
    if (byKey) {
      QTest::keyClick(widget_, Qt::Key_Escape);
    } else {
      click({2, 2});
    }
    EXPECT_TRUE(info().readings().empty());
    leave();
    EXPECT_EQ(picture(), before);
  }
}

}  // namespace
}  // namespace motor

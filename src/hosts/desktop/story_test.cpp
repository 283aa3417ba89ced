#include <gtest/gtest.h>

#include <QComboBox>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>
#include <filesystem>
#include <optional>

#include "atlas/shell/frm_inicio.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/thematic/frm_tematicos.h"
#include "hosts/desktop/desktop_program.h"
#include "hosts/desktop/focus_order.h"
#include "hosts/desktop/test_answers.h"
#include "hosts/desktop/user_hands.h"
#include "hosts/desktop/views/tab_row.h"
#include "hosts/desktop/views/tool_button.h"
#include "motor/session/tiny_study.h"

namespace desktop {
namespace {

using Texts = std::vector<std::string>;

// The whole program with real windows and the embedded engine, on a study of three provinces and six zones.
class Story : public ::testing::Test {
 protected:
  static constexpr const char* kYears[] = {"1999", "2000", "2001", "2002"};

  void SetUp() override {
    const std::filesystem::path tables = std::filesystem::path(folder.path().toStdString()) / "Tablas";
    for (const char* year : kYears) motor::tiny::writeYear(tables / year, year);
    motor::tiny::writeStatistics(tables / "Estadisticas");
    program.emplace(folder.path().toStdString(), programs);
    program->host().setFirstSize({1024, 768});
  }

  void startByDoubleClick() {
    program->start();
    hands::settle();
    QTest::mouseDClick(program->host().windowOf(program->atlas().frmInicio()), Qt::LeftButton, Qt::NoModifier,
                       QPoint(200, 200));
    hands::settle();
  }
  [[nodiscard]] atlas::FrmPrincipal& form() { return program->atlas().frmPrincipal(); }
  template <class Widget = QWidget>
  [[nodiscard]] Widget& widget(const char* name) {
    auto* found = program->host().windowOf(form())->findChild<Widget*>(QString::fromUtf8(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  void clickTab(const char* name, int index) {
    auto* row = qobject_cast<TabRow*>(&widget<QWidget>(name));
    if (row == nullptr) row = widget<QWidget>(name).findChild<TabRow*>();
    QTest::mouseClick(row, Qt::LeftButton, Qt::NoModifier, row->tabRect(index).center());
    hands::settle();
  }
  void pick(const char* name, const std::string& item) {
    auto& combo = widget<QComboBox>(name);
    const int index = combo.findText(QString::fromStdString(item));
    ASSERT_GE(index, 0) << item;
    hands::pick(combo, index);
  }
  [[nodiscard]] Texts roots() {
    Texts texts;
    const auto& tree = widget<QTreeWidget>("TreeView1");
    for (int i = 0; i < tree.topLevelItemCount(); ++i) texts.push_back(tree.topLevelItem(i)->text(0).toStdString());
    return texts;
  }

  QTemporaryDir folder;
  UserPrograms programs;
  std::optional<DesktopProgram> program;
};

TEST_F(Story, TheSplashHandsOverByItself) {
  program->start();
  EXPECT_TRUE(program->host().windowOf(program->atlas().frmInicio())->isVisible());
  EXPECT_TRUE(QTest::qWaitFor([this] { return form().visible(); }, 5000));
  hands::settle();
  EXPECT_EQ(program->host().windowOf(program->atlas().frmInicio()), nullptr);
}

TEST_F(Story, StatisticsMapFillsItsPlace) {
  startByDoubleClick();
  QWidget& place = widget("PictureMapa");
  ASSERT_EQ(place.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
  QWidget* map = place.findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  EXPECT_TRUE(map->isVisible());
  EXPECT_EQ(map->size(), place.size());
  program->host().windowOf(form())->resize(1300, 900);
  hands::settle();
  EXPECT_EQ(map->size(), place.size());
  EXPECT_TRUE(widget<ToolButton>("Image3(3)").isCurrent());
  EXPECT_FALSE(widget<ToolButton>("Image3(0)").isCurrent());
}

TEST_F(Story, AProvinceAZoneAnotherYear) {
  startByDoubleClick();
  clickTab("Ficha", 2);
  EXPECT_EQ(widget<QComboBox>("CmbProvincias").count(), 3);
  EXPECT_TRUE(widget("FichaConsultasDatos").isVisible());

  pick("CmbProvincias", "Brisa");
  EXPECT_EQ(roots(), (Texts{"1999", "Brisa", "Veldoria"}));
  EXPECT_TRUE(widget<QTreeWidget>("TreeView1").topLevelItem(1)->isExpanded());
  EXPECT_EQ(widget<QComboBox>("CmbZonas").count(), 2);
  EXPECT_EQ(form().Lblzonas.caption(), "Zonas Basicas de Brisa");
  EXPECT_FALSE(widget("txtEspere").isVisible());

  pick("CmbZonas", "Pino");
  EXPECT_EQ(roots(), (Texts{"1999", "Pino", "Brisa", "Veldoria"}));
  clickTab("FichaAños", 2);
  EXPECT_EQ(roots(), (Texts{"2001", "Pino", "Brisa", "Veldoria"}));
  EXPECT_FALSE(widget("Panel").isVisible());

  program->host().windowOf(form())->close();
  EXPECT_TRUE(program->isOver());
}

TEST_F(Story, AToolbarIsOneStopOfTheKeyboard) {
  startByDoubleClick();
  const QWidget& window = *program->host().windowOf(form());
  const auto stops = [&window] {
    Texts names;
    for (const QWidget* each : readingOrder(window)) {
      if (dynamic_cast<const ToolButton*>(each) != nullptr) names.push_back(each->accessibleName().toStdString());
    }
    return names;
  };
  EXPECT_EQ(stops(), Texts{"Información"});  // the tool in hand
  EXPECT_EQ(toolbarAround(window, widget("Image3(0)")).size(), 10U);
  clickTab("Ficha", 2);
  EXPECT_EQ(toolbarAround(window, widget("Image4(0)")).size(), 10U);
  clickTab("Ficha", 0);
  EXPECT_EQ(stops(), Texts{"Ver la Tabla"});
  EXPECT_EQ(toolbarAround(window, widget("ImgExportar")).size(), 2U);
}

TEST_F(Story, ResultsAreShownInWholeRows) {
  startByDoubleClick();
  clickTab("Ficha", 2);
  clickTab("FichaConsultasDatos", 1);
  for (int i = 0; i < 9; ++i) form().ListaResultado.addItem("Lugar " + std::to_string(i));
  hands::settle();
  const auto& list = widget<QListWidget>("ListaResultado");
  EXPECT_GE(list.viewport()->height(), 4 * list.sizeHintForRow(0));
  EXPECT_EQ(list.viewport()->height() % list.sizeHintForRow(0), 0);
  EXPECT_LT(list.geometry().bottom(), list.parentWidget()->height());
}

TEST_F(Story, WithoutACatalogueTheProgramStillEnds) {
  startByDoubleClick();
  const testing::MessageAnswers answers;
  clickTab("Ficha", 1);
  QTest::mouseClick(&widget("Image2(10)"), Qt::LeftButton);
  hands::settle();
  ASSERT_TRUE(program->atlas().frmTematicos().isLoaded());
  QTest::mouseClick(&widget("LblSalir"), Qt::LeftButton);
  hands::settle();
  EXPECT_TRUE(program->isOver());
}

TEST_F(Story, WithoutACatalogueTheVeilStaysUntilAYearIsShown) {
  startByDoubleClick();
  const testing::MessageAnswers answers;
  clickTab("Ficha", 1);
  clickTab("FichaAños", 1);
  clickTab("Ficha", 0);
  clickTab("Ficha", 2);
  EXPECT_TRUE(widget("Panel").isVisible());  // as the year's handler leaves it where no map is open
  clickTab("FichaAños", 2);
  EXPECT_FALSE(widget("Panel").isVisible());
}

TEST_F(Story, AMissingWorkspaceIsSaidAndTheProgramGoesOn) {
  std::filesystem::remove_all(std::filesystem::path(folder.path().toStdString()) / "Tablas" / "2002");
  startByDoubleClick();
  clickTab("Ficha", 2);
  const testing::MessageAnswers answers;
  clickTab("FichaAños", 3);
  EXPECT_EQ(answers.said(), "No existe ningún mapa para los parámetros seleccionados");
  pick("CmbProvincias", "Ávalos");
  EXPECT_FALSE(program->isOver());
}

}  // namespace
}  // namespace desktop

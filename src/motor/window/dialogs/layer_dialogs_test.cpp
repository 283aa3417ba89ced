#include <QDialogButtonBox>

#include "motor/window/dialogs/layer_chooser.h"
#include "motor/window/dialogs/layer_control.h"
#include "motor/window/dialogs/layer_name.h"
#include "motor/window/map_widget_fixture.h"

namespace motor {
namespace {

class LayerDialogs : public MapWidgetTest {
 protected:
  LayerDialogs() { widget_->show(); }

  template <typename Dialog>
  Dialog& open(int code) {
    session_->run("run menu command " + std::to_string(code));
    Dialog* dialog = nullptr;
    for (QDialog* child : widget_->findChildren<QDialog*>()) {
      if (auto* wanted = dynamic_cast<Dialog*>(child); wanted != nullptr && wanted->isVisible()) dialog = wanted;
    }
    if (dialog == nullptr) throw std::runtime_error("there is no dialog");
    return *dialog;
  }
};

TEST_F(LayerDialogs, TheChooserOffersAllLayersAndEachThatIsShown) {
  QListWidget& list = open<LayerChooser>(807).list();
  ASSERT_EQ(list.count(), 3);
  EXPECT_EQ(list.item(0)->text(), "Todas las capas");
  EXPECT_EQ(list.item(1)->text(), "Provincias2001");
  EXPECT_EQ(list.item(2)->text(), "ZonasBasicas2001");
  EXPECT_EQ(list.currentRow(), 0);
}

TEST_F(LayerDialogs, TheChosenLayerIsSeenWhole) {
  session_->run("Set Map Zoom 10 Units \"km\"");
  open<LayerChooser>(807).accept();
  EXPECT_TRUE(map().visibleBox().contains({-6, 40}) && map().visibleBox().contains({0, 43}));
  session_->run("select * from ZonasBasicas2001 where nombre=\"Lirio\"");
  session_->run("Add map layer Selection");
  LayerChooser& chooser = open<LayerChooser>(807);
  ASSERT_EQ(chooser.list().item(1)->text(), "Selección");
  QTest::keyClick(&chooser.list(), Qt::Key_Down);
  QTest::keyClick(&chooser.list(), Qt::Key_Return);
  EXPECT_NEAR(map().centre.x, -3, 0.01);
  EXPECT_NEAR(map().centre.y, 40.5, 0.01);
  EXPECT_FALSE(map().visibleBox().contains({-6, 40}));
}

TEST_F(LayerDialogs, ALayerOfSelectedObjectsHasAUsersName) {
  session_->run("select * from ZonasBasicas2001 where nombre=\"Lirio\"");
  session_->run("Add map layer Selection");
  EXPECT_EQ(map().layers[0].name, "Query1");
  EXPECT_EQ(open<LayerControl>(801).table().item(0, LayerControl::kName)->text(), "Selección");
  Layer layer;
  for (const char* name : {"Queryable", "Query", "Query2b", "Zonas"}) {
    layer.name = name;
    EXPECT_EQ(layerName(layer), name);
  }
}

TEST_F(LayerDialogs, EscapeChangesNothing) {
  session_->run("Set Map Zoom 10 Units \"km\"");
  const double zoom = map().zoomMetres;
  QTest::keyClick(&open<LayerChooser>(807), Qt::Key_Escape);
  EXPECT_EQ(map().zoomMetres, zoom);
}

TEST_F(LayerDialogs, TheControlShowsAndSwitchesWhatTheLayersDo) {
  LayerControl& control = open<LayerControl>(801);
  QTableWidget& table = control.table();
  ASSERT_EQ(table.rowCount(), 3);
  EXPECT_EQ(table.item(0, LayerControl::kName)->text(), "Provincias2001");
  EXPECT_EQ(table.item(0, LayerControl::kShown)->checkState(), Qt::Checked);
  EXPECT_EQ(table.item(0, LayerControl::kLabelled)->checkState(), Qt::Unchecked);
  EXPECT_EQ(table.item(2, LayerControl::kShown)->checkState(), Qt::Unchecked);
  EXPECT_EQ(table.item(2, LayerControl::kSelectable)->checkState(), Qt::Unchecked);
  table.item(0, LayerControl::kLabelled)->setCheckState(Qt::Checked);
  table.item(1, LayerControl::kShown)->setCheckState(Qt::Unchecked);
  table.item(1, LayerControl::kSelectable)->setCheckState(Qt::Unchecked);
  table.item(2, LayerControl::kShown)->setCheckState(Qt::Checked);
  control.accept();
  EXPECT_EQ(map().layers[0].display, Display::global);
  EXPECT_TRUE(map().layers[0].label.automatic);
  EXPECT_EQ(map().layers[1].display, Display::off);
  EXPECT_FALSE(map().layers[1].selectable);
  EXPECT_EQ(map().layers[2].display, Display::graphic);
  EXPECT_FALSE(map().layers[2].label.automatic);
}

TEST_F(LayerDialogs, AThemeIsSwitchedOffAndOn) {
  session_->run("shade 1 with Nombre values \"a\" Brush (2,1)");
  for (const auto& [state, display] :
       {std::pair(Qt::Unchecked, Display::off), std::pair(Qt::Checked, Display::value)}) {
    LayerControl& control = open<LayerControl>(801);
    EXPECT_FALSE(control.table().item(0, LayerControl::kSelectable)->flags().testFlag(Qt::ItemIsUserCheckable));
    control.table().item(0, LayerControl::kShown)->setCheckState(state);
    control.accept();
    EXPECT_EQ(map().layers[0].display, display);
  }
}

}  // namespace
}  // namespace motor

#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/combo_box.h"
#include "forms/common_dialog.h"
#include "forms/form.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "forms/progress_bar.h"
#include "forms/shape.h"
#include "forms/tabs.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "forms/tree_view.h"
#include "forms/web_browser.h"

// A form with a control of every kind, for tests; what its events raise is noted in order.
namespace desktop::testing {

class TestForm : public forms::Form {
 public:
  explicit TestForm(forms::Listener& listener, const std::string& name = "frmPrueba") : Form(listener, name) {
    setCaption("Prueba");
    place(0, 0, 9000, 7500);
    shape.place(0, 0, 9000, 600);
    menu.setCaption("Informes");
    menu.place(150, 0, 1500, 600);
    plain.setCaption("Un texto que no atiende a nadie");
    plain.place(3000, 0, 3000, 600);
    pages.captions = {"Uno", "Dos"};
    pages.place(150, 750, 4500, 4500);
    tool.putInto(pages, 0);
    tool.place(150, 450, 360, 360);
    tool.picture = "zoom-mas";
    tool.toolTipText = "Acercar";
    group.putInto(pages, 0);
    group.place(150, 900, 4000, 600);
    left.putInto(group);
    left.setCaption("Provincias");
    left.place(0, 0, 1800, 300);
    right.putInto(group);
    right.setCaption("Zonas");
    right.place(2000, 0, 1800, 300);
    list.putInto(pages, 1);
    list.place(150, 600, 3000, 1500);
    drop.place(4800, 750, 3000, 315);
    drop.accessibleName = "Provincia";
    combo.place(4800, 1200, 3000, 315);
    box.place(4800, 1650, 3000, 315);
    notice.place(4800, 2100, 3000, 315);
    notice.locked = true;
    notice.setText("Espere por favor...");
    notice.setVisible(false);
    bar.place(4800, 2500, 3000, 255);
    years.captions = {"1999", "2000", "2001"};
    years.place(4800, 2850, 3000, 390);
    tree.place(4800, 3300, 3900, 2000);
    picture.place(150, 5400, 3000, 1500);
    browser.place(3300, 5400, 3000, 1500);
    button.setCaption("Ver mapa");
    button.place(6600, 5400, 1500, 400);
    veil.place(150, 5400, 3000, 1500);
    veil.setVisible(false);
    popUp.place(150, 600, 1800, 700);
    popUp.setVisible(false);
    entry.putInto(popUp);
    entry.setCaption("Año 1999");
    entry.place(60, 60, 1600, 255);
    clock.interval = 20;
    clock.setEnabled(false);
    endDefinition();
    noteEvents();
  }

  std::vector<std::string> events;
  [[nodiscard]] std::vector<std::string> take() { return std::exchange(events, {}); }

  forms::Shape shape{*this, "ShpCabecera"};
  forms::Label menu{*this, "LblMenu"};
  forms::Label plain{*this, "lblTexto"};
  forms::TabControl pages{*this, "Ficha"};
  forms::Image tool{*this, "Image2(0)"};
  forms::Frame group{*this, "Frame1"};
  forms::OptionButton left{*this, "OptIzquierda"};
  forms::OptionButton right{*this, "OptDerecha"};
  forms::ListBox list{*this, "Lista"};
  forms::DropDownList drop{*this, "CmbLista"};
  forms::EditableCombo combo{*this, "ComboTexto"};
  forms::TextBox box{*this, "txtTexto"};
  forms::TextBox notice{*this, "txtEspere"};
  forms::ProgressBar bar{*this, "Barra"};
  forms::TabStrip years{*this, "FichaAños"};
  forms::TreeView tree{*this, "Arbol"};
  forms::PictureBox picture{*this, "PictureMapa"};
  forms::WebBrowser browser{*this, "Internet"};
  forms::CommandButton button{*this, "BtnVer"};
  forms::Frame veil{*this, "Panel"};
  forms::Frame popUp{*this, "Submenu"};
  forms::Label entry{*this, "PDF1999"};
  forms::Timer clock{*this, "Timer1"};
  forms::CommonDialog dialog{*this, "DlgExportar"};

 private:
  void note(const std::string& event) { events.push_back(event); }

  void noteEvents() {
    menu.Click.add([this] { note("menu click"); });
    menu.MouseMove.add([this] { note("menu move"); });
    entry.Click.add([this] { note("entry click"); });
    MouseMove.add([this] { note("form move"); });
    Resize.add([this] { note("resize"); });
    Unload.add([this] { note("unload"); });
    DblClick.add([this] { note("double click"); });
    pages.Click.add([this](int tabLeft) { note("pages click " + std::to_string(tabLeft)); });
    pages.MouseMove.add([this] { note("pages move"); });
    tool.Click.add([this] { note("tool click"); });
    tool.MouseMove.add([this] { note("tool move"); });
    left.MouseUp.add([this] { note("left up"); });
    right.MouseUp.add([this] { note("right up"); });
    list.Click.add([this] { note("list click " + list.text()); });
    drop.Click.add([this] { note("drop click " + drop.text()); });
    combo.Click.add([this] { note("combo click " + combo.text()); });
    combo.Change.add([this] { note("combo change " + combo.text()); });
    box.Change.add([this] { note("box change " + box.text()); });
    box.GotFocus.add([this] { note("box focus"); });
    years.Click.add([this] { note("years click " + years.selectedCaption()); });
    button.Click.add([this] { note("button click"); });
    clock.Tick.add([this] { note("tick"); });
  }
};

}  // namespace desktop::testing

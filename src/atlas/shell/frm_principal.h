#pragma once

#include <string>

#include "atlas/mapengine/toolbars.h"
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
#include "forms/tree_view.h"
#include "forms/web_browser.h"

namespace atlas {

class Atlas;

// The program's working window. The index of its main tab control `Ficha` is the program's mode: 0 tables, 1 thematic
// maps, 2 the map of one year, 3 the statistics map.
//
// The controls stand in their order on the screen, back to front; captions, places and pages are in
// frm_principal_controls.cpp, the handlers with the subsystem that each belongs to.
class FrmPrincipal : public forms::Form {
 public:
  // The atlas and the listener outlive the window.
  FrmPrincipal(Atlas& atlas, forms::Listener& listener);

  // --- decoration ---
  forms::Shape ShpFondo{*this, "ShpFondo"};        // the background of the map's side
  forms::Shape ShpCabecera{*this, "ShpCabecera"};  // the header behind the side menu
  forms::Shape ShpDerecha{*this, "ShpDerecha"};    // behind the indicator tree
  forms::Shape LineMenu{*this, "LineMenu"};        // sets the exit apart in the side menu
  forms::Image Image1{*this, "Image1"};            // the heading of the indicator tree
  forms::Image ImageEscudo{*this, "ImageEscudo"};  // the region's coat of arms

  // --- side menu ---
  forms::Label LblPresentación{*this, "LblPresentación"};
  forms::Label LblInformacion{*this, "LblInformacion"};
  forms::Label LblEstadisticas{*this, "LblEstadisticas"};
  forms::Label LblSalir{*this, "LblSalir"};

  // --- indicator tree and wait notices ---
  forms::TreeView TreeView1{*this, "TreeView1"};
  forms::TextBox txtEspere{*this, "txtEspere"};
  forms::TextBox txtespere1{*this, "txtespere1"};
  forms::Label lblComando{*this, "lblComando"};

  // --- consultations and search ---
  forms::TabControl FichaConsultasDatos{*this, "FichaConsultasDatos"};
  forms::Label LblProvincias{*this, "LblProvincias"};
  forms::DropDownList CmbProvincias{*this, "CmbProvincias"};
  forms::Label Lblzonas{*this, "Lblzonas"};
  forms::DropDownList CmbZonas{*this, "CmbZonas"};
  forms::Frame Frame1{*this, "Frame1"};
  forms::OptionButton OptProvincias{*this, "OptProvincias"};
  forms::OptionButton OptZbs{*this, "OptZbs"};
  forms::DropDownList CmbBuscar{*this, "CmbBuscar"};
  forms::TextBox txtBuscar{*this, "txtBuscar"};
  forms::ListBox ListaResultado{*this, "ListaResultado"};

  // --- main tabs: page 0 the table selectors, pages 1 to 3 a map toolbar each ---
  forms::TabControl Ficha{*this, "Ficha"};
  forms::EditableCombo ComboTabla{*this, "ComboTabla"};
  forms::EditableCombo ComboTipo{*this, "ComboTipo"};
  forms::EditableCombo ComboProvincia{*this, "ComboProvincia"};
  forms::EditableCombo ComboSexo{*this, "ComboSexo"};
  forms::EditableCombo ComboAño{*this, "ComboAño"};
  forms::Image imgBuscaTabla{*this, "imgBuscaTabla"};
  forms::Image ImgExportar{*this, "ImgExportar"};
  forms::ImageArray Image2{*this, "Image2", toolbarIndices(thematicToolbar())};
  forms::Label lblinfo{*this, "lblinfo"};
  forms::ImageArray Image4{*this, "Image4", toolbarIndices(dataToolbar())};
  forms::ImageArray Image3{*this, "Image3", toolbarIndices(statisticsToolbar())};
  forms::Label lblVeldoria{*this, "lblVeldoria"};

  // --- what the main tabs show; on the form itself, in front of Ficha ---
  forms::WebBrowser Internet{*this, "Internet"};
  forms::PictureBox PictureMapa{*this, "PictureMapa"};
  forms::Frame Panel{*this, "Panel"};
  forms::ProgressBar ProgressBar1{*this, "ProgressBar1"};
  forms::TabStrip FichaAños{*this, "FichaAños"};

  // --- pop-up frames of the side menu ---
  forms::Frame Submenu{*this, "Submenu"};
  forms::Label PDF1999{*this, "PDF1999"};
  forms::Label PDF2000{*this, "PDF2000"};
  forms::Label PDF2001{*this, "PDF2001"};
  forms::Frame SubMenu2{*this, "SubMenu2"};
  forms::Label LblMetodologia{*this, "LblMetodologia"};
  forms::Label LblUso{*this, "LblUso"};
  forms::Label Label1{*this, "Label1"};

  forms::CommonDialog DlgExportar{*this, "DlgExportar"};
  forms::CommonDialog DialogoAyuda{*this, "DialogoAyuda"};

  // Whether the table selectors answer; False while the main tabs put them back on their first items.
  bool TablasListas = false;

  // The caption of the year tab selected.
  [[nodiscard]] const std::string& year() const { return FichaAños.selectedCaption(); }

 private:
  // --- definition: frm_principal_controls.cpp ---
  void defineControls();
  void defineSideMenu();
  void defineTreeSide();
  void defineConsultations();
  void defineSearch();
  void defineTableSelectors();
  void defineToolbars();
  void defineMainArea();
  void bindWindow();
  void bindSideMenu();
  void bindDocuments();
  void bindTabsAndToolbars();
  void bindQueries();
  void bindTables();

  // --- shell ---
  void Form_Load();
  void Form_Resize();
  void Form_Unload();
  void Form_MouseMove();
  void LblSalir_Click();
  void LblSalir_MouseMove();
  void LblEstadisticas_MouseMove();
  void LblInformacion_MouseMove();
  void LblPresentación_MouseMove();
  void toolbar_MouseMove();
  void hideSubmenuIfVisible();
  void hideSubMenu2IfVisible();
  void DisponerMapa();
  void DisponerInicio();
  void placeTreeSide();
  void placeBelowTree(forms::Twips consultationsLeft, forms::Twips escudoLeft);
  void placeMap();
  void openHtmlDocument(const std::string& file);
  void openReport(const std::string& file);
  void startReport(const std::string& viewer, const std::string& file);
  void MostrarAyuda();

  // --- mapengine ---
  void Image2_Click(int index);
  void Image3_Click(int index);
  void Image4_Click(int index);
  void runToolbarButton(Toolbar toolbar, int index);
  void toggleSelector();
  void toggleLegend();
  // Takes a query's result off the front map and empties the current unit.
  void LimpiarConsulta();

  // --- thematic: the main tabs and the year tabs ---
  void Ficha_Click(int tabLeft);
  void Ficha_MouseMove();
  void FichaAños_Click();
  void FichaAños_MouseMove();
  void FichaConsultasDatos_Click();
  void clearLabelsOfTab(int tabLeft);
  // Shows what belongs to the main tab selected; gives the workspace to open, none for the tables.
  [[nodiscard]] std::string showTab();
  void showTables();
  void showYearTabsAndMap();
  void showStatisticsMap();
  void layOutMap();
  void changeYearOfData(const std::string& newYear);
  void changeYearOfThematicMap(const std::string& newYear);

  // --- queries ---
  void LlenarListasConsulta(const std::string& listYear);
  void CmbProvincias_Click();
  void CmbZonas_Click();
  void OptProvincias_MouseUp();
  void OptZbs_MouseUp();
  void ActualizarConsultaAño();
  void ActualizarObjetoTematico();
  void CmbBuscar_Click();
  void txtBuscar_GotFocus();
  void txtBuscar_Change();
  void ListaResultado_Click();
  void showPlaceFound(const std::string& name);
  void listZonesOf(const std::string& province);
  // Adds a field of every row selected, from the current row on.
  void addSelectedNames(forms::ItemList& list, const std::string& field);

  // --- tables ---
  void MostrarTabla(const std::string& indice);
  void ComboTabla_Click();
  void ComboTipo_Click();
  void ComboProvincia_Click();
  void ComboSexo_Click();
  void ComboAño_Click();
  void imgBuscaTabla_Click();
  void ImgExportar_Click();

  Atlas& atlas_;
};

}  // namespace atlas

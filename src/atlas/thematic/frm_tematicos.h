#pragma once

#include <string>

#include "forms/combo_box.h"
#include "forms/form.h"
#include "forms/label.h"

namespace atlas {

class Atlas;

// The thematic selector: a small window, always on top, in which a thematic map is chosen by frame, unit, sex and
// indicator. Every choice opens its map at once.
class FrmTematicos : public forms::Form {
 public:
  // The atlas and the listener outlive the window.
  FrmTematicos(Atlas& atlas, forms::Listener& listener);

  forms::Label LblTitulo1{*this, "LblTitulo1"};
  forms::DropDownList CmbMarco{*this, "CmbMarco"};
  forms::Label LblTitulo2{*this, "LblTitulo2"};
  forms::DropDownList CmbUnidad{*this, "CmbUnidad"};
  forms::Label LblTitulo3{*this, "LblTitulo3"};
  forms::DropDownList CmbSexo{*this, "CmbSexo"};
  forms::Label LblTitulo4{*this, "LblTitulo4"};
  forms::DropDownList CmbIndicador{*this, "CmbIndicador"};
  forms::CommandButton BtnTematico{*this, "BtnTematico"};

 private:
  void defineControls();
  void defineItems();

  void Form_Load();
  void Form_Unload();
  void BtnTematico_Click();
  void CmbMarco_Click();
  void CmbUnidad_Click();
  void CmbSexo_Click();
  void CmbIndicador_Click();

  // Opens the map of the remembered choice.
  void openRemembered();
  // Opens a map of the year tab selected, given below the year's folder.
  void openInYear(const std::string& path);

  Atlas& atlas_;
  bool Cargado = false;  // loaded: only then do the boxes answer
};

}  // namespace atlas

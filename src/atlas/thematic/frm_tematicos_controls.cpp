#include "atlas/atlas.h"
#include "atlas/thematic/catalogue.h"
#include "atlas/thematic/frm_tematicos.h"
#include "atlas/titles.h"

// The selector as stored: two low rows, so that it stands at the foot of the main window. Twips.
namespace atlas {
namespace {

// Each text is also the base name of a workspace file.
constexpr std::array kIndicators = std::to_array<const char*>({
    "Fallecidos",
    "Población",
    "Tasa bruta (x100.000)",
    "Tasa estandarizada (x100.000)",
    "Tasa estandarizada (x100.000) de Accidentes de tráfico de vehículos de motor",
    "Tasa estandarizada (x100.000) de Diabetes mellitus",
    "Tasa estandarizada (x100.000) de Enfermedades cerebrovasculares",
    "Tasa estandarizada (x100.000) de Enfermedades crónicas de las vías respiratorias inferiores excepto asma",
    "Tasa estandarizada (x100.000) de Enfermedades del sistema circulatorio",
    "Tasa estandarizada (x100.000) de Enfermedades del sistema digestivo",
    "Tasa estandarizada (x100.000) de Enfermedades del sistema respiratorio",
    "Tasa estandarizada (x100.000) de Infarto agudo de miocardio",
    "Tasa estandarizada (x100.000) de Neumonía",
    "Tasa estandarizada (x100.000) de Trastornos mentales orgánicos senil y presenil",
    "Tasa estandarizada (x100.000) de Tumor maligno de colon",
    "Tasa estandarizada (x100.000) de Tumor maligno de estómago",
    "Tasa estandarizada (x100.000) de Tumor maligno de la mama",
    "Tasa estandarizada (x100.000) de Tumor maligno de la próstata",
    "Tasa estandarizada (x100.000) de Tumor maligno de la tráquea, de los bronquios y del pulmón",
    "Tasa estandarizada (x100.000) de Tumores",
});

}  // namespace

void FrmTematicos::defineControls() {
  setCaption(kSelectorTitle);
  place(0, 0, 13560, 1380);
  for (forms::Control* control : controls()) control->font = {"Verdana", 8.25, false};

  LblTitulo1.setCaption("Marco");
  LblTitulo1.place(90, 150, 1000, 225);
  CmbMarco.place(1140, 90, 2600, 315);
  LblTitulo2.setCaption("Unidad Regional");
  LblTitulo2.place(3900, 150, 1650, 225);
  CmbUnidad.place(5600, 90, 2000, 315);
  LblTitulo3.setCaption("Sexo");
  LblTitulo3.place(7760, 150, 550, 225);
  CmbSexo.place(8360, 90, 1900, 315);
  LblTitulo4.setCaption("Indicador");
  LblTitulo4.place(90, 555, 1000, 225);
  CmbIndicador.place(1140, 495, 10900, 315);
  BtnTematico.setCaption("Ver mapa");
  BtnTematico.place(12130, 480, 1200, 345);
}

void FrmTematicos::defineItems() {
  for (const std::string& frame : catalogueFrames(atlas_.ports.files, atlas_.ports.applicationFolder)) {
    CmbMarco.addItem(frame);
  }
  for (const char* unit : {"Provincias", "Zonas básicas"}) CmbUnidad.addItem(unit);
  for (const char* sex : {"Ambos sexos", "Hombres", "Mujeres"}) CmbSexo.addItem(sex);
  for (const char* indicator : kIndicators) CmbIndicador.addItem(indicator);
  CmbMarco.accessibleName = "Marco";
  CmbUnidad.accessibleName = "Unidad Regional";
  CmbSexo.accessibleName = "Sexo";
  CmbIndicador.accessibleName = "Indicador";
}

}  // namespace atlas

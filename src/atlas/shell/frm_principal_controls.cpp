#include "atlas/atlas.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/thematic/catalogue.h"
#include "atlas/titles.h"

// The main window as stored: captions, items and places, in twips. The layout moves and sizes what depends on the
// window's size; all else stays where it is put here. Widths leave about 105 twips for each character of a text.
namespace atlas {
namespace {

constexpr forms::Color kNavy = 0x4D2B14;
constexpr forms::Color kDarkNavy = 0x800000;
constexpr forms::Color kWhite = 0xFFFFFF;
constexpr forms::Color kStage = 0xE6EEF1;

constexpr forms::Twips kHeaderHeight = 600;  // of the header with the side menu
constexpr forms::Twips kMenuTop = 30;
constexpr forms::Twips kTabsTop = 645;
constexpr forms::Twips kTabsLeft = 150;
// In the middle of Ficha, whether the map is 500 twips narrower than that (after a resize) or 550 (after a change of
// tab).
constexpr forms::Twips kMapLeft = kTabsLeft + 262;
constexpr forms::Twips kToolRowTop = 400;  // within Ficha, below its headings
constexpr forms::Twips kToolSize = 360;
constexpr forms::Twips kToolStep = 405;
constexpr forms::Twips kMapTop = kTabsTop + 770;

const forms::FontSpec kVerdana{"Verdana", 8.25, false};

// A row of toolbar images on a page of the main tabs, in the order given, with the tool tips and artwork of its table.
void defineToolbar(const forms::ImageArray& images, Toolbar toolbar, const std::vector<int>& order,
                   forms::Control& tabs, int page) {
  forms::Twips left = 150;
  for (const int index : order) {
    const ToolbarButton& button = toolbar[static_cast<std::size_t>(index)];
    forms::Image& image = images.at(index);
    image.putInto(tabs, page);
    image.place(left, kToolRowTop, kToolSize, kToolSize);
    image.toolTipText = button.toolTip;
    image.picture = button.picture;
    left += kToolStep;
  }
}

}  // namespace

void FrmPrincipal::defineControls() {
  setCaption(kProgramTitle);
  place(0, 0, 15360, 11520);
  backColor = kWhite;
  for (forms::Control* control : controls()) control->font = kVerdana;
  defineSideMenu();
  defineTreeSide();
  defineConsultations();
  defineSearch();
  defineTableSelectors();
  defineToolbars();
  defineMainArea();
}

void FrmPrincipal::defineSideMenu() {
  ShpFondo.place(0, 0, 10140, 11520);
  ShpFondo.backColor = kStage;
  ShpCabecera.place(0, 0, 10140, kHeaderHeight);
  ShpCabecera.backColor = kNavy;
  LineMenu.place(7330, 150, 15, 300);
  LineMenu.backColor = kWhite;

  struct Entry {
    forms::Label& label;
    const char* caption;
    forms::Twips left;
    forms::Twips width;
  };
  for (const Entry& entry :
       {Entry{LblPresentación, "Presentación", 150, 1800}, Entry{LblInformacion, "Información", 2000, 2400},
        Entry{LblEstadisticas, "Estadísticas de mortalidad", 4450, 2800}, Entry{LblSalir, "Salir", 7420, 1000}}) {
    entry.label.setCaption(entry.caption);
    entry.label.place(entry.left, kMenuTop, entry.width, kHeaderHeight - kMenuTop);
    entry.label.foreColor = kWhite;
  }

  // Each pop-up frame begins where its label ends, so that the pointer gets from one to the other; both may be open
  // side by side.
  Submenu.place(4450, kHeaderHeight, 1700, 960);
  SubMenu2.place(2000, kHeaderHeight, 2400, 960);
  struct PopUpEntry {
    forms::Frame& frame;
    forms::Label& label;
    const char* caption;
    forms::Twips top;
  };
  for (const PopUpEntry& entry :
       {PopUpEntry{Submenu, PDF1999, "Año 1999", 60}, PopUpEntry{Submenu, PDF2000, "Año 2000", 345},
        PopUpEntry{Submenu, PDF2001, "Año 2001", 630}, PopUpEntry{SubMenu2, LblMetodologia, "Metodología ", 60},
        PopUpEntry{SubMenu2, LblUso, "Uso de la aplicación", 345}, PopUpEntry{SubMenu2, Label1, "Créditos", 630}}) {
    entry.label.putInto(entry.frame);
    entry.label.setCaption(entry.caption);
    entry.label.place(120, entry.top, entry.frame.width() - 180, 255);
  }
  Submenu.setVisible(false);
  SubMenu2.setVisible(false);
}

void FrmPrincipal::defineTreeSide() {
  ShpDerecha.place(10230, kTabsTop, 4608, 7004);
  ShpDerecha.backColor = kStage;
  Image1.place(10430, 172, 2400, 270);
  Image1.picture = "encabezado";
  Image1.accessibleName = "Indicadores";
  Image1.setVisible(false);
  ImageEscudo.place(12369, 10667, 330, 400);
  ImageEscudo.picture = "escudo";
  ImageEscudo.accessibleName = "Escudo de Veldoria";

  TreeView1.place(10330, kTabsTop + 60, 4393, 6504);
  TreeView1.accessibleName = "Indicadores";
  txtEspere.place(10330, kTabsTop + 60, 4393, 6504);
  txtespere1.place(11426, 3777, 2200, 360);
  for (forms::TextBox* notice : {&txtEspere, &txtespere1}) {
    notice->setText("Espere por favor...");
    notice->locked = true;
    notice->setVisible(false);
  }
  txtespere1.font.bold = true;
  txtespere1.foreColor = kDarkNavy;
  lblComando.setCaption("Comando actual: ");
  lblComando.place(10510, 7269, 4000, 240);
}

void FrmPrincipal::defineConsultations() {
  FichaConsultasDatos.captions = {"Consultas", "Búsquedas"};
  FichaConsultasDatos.accessibleName = "Consultas y búsquedas";
  FichaConsultasDatos.place(10334, 7937, 4400, 2500);
  FichaConsultasDatos.setVisible(false);

  LblProvincias.setCaption("Provincias");
  LblProvincias.place(150, 480, 4100, 225);
  CmbProvincias.accessibleName = "Provincia";
  CmbProvincias.place(150, 705, 4100, 315);
  Lblzonas.setCaption("Zonas básicas");
  Lblzonas.place(150, 1110, 4100, 225);
  CmbZonas.accessibleName = "Zona básica";
  CmbZonas.place(150, 1335, 4100, 315);
  Frame1.place(150, 1800, 4100, 600);
  for (forms::Control* control :
       std::initializer_list<forms::Control*>{&LblProvincias, &CmbProvincias, &Lblzonas, &CmbZonas, &Frame1}) {
    control->putInto(FichaConsultasDatos, 0);
  }
  OptProvincias.setCaption("Provincias");
  OptProvincias.putInto(Frame1);
  OptProvincias.place(150, 180, 1700, 300);
  OptZbs.setCaption("Zonas básicas");
  OptZbs.putInto(Frame1);
  OptZbs.place(2000, 180, 1950, 300);
}

void FrmPrincipal::defineSearch() {
  CmbBuscar.addItem("Provincias");
  CmbBuscar.addItem("Zonas básicas");
  CmbBuscar.accessibleName = "Clase de lugar";
  CmbBuscar.place(150, 480, 4100, 315);
  txtBuscar.setText("Escriba el lugar que desea buscar");
  txtBuscar.accessibleName = "Lugar que desea buscar";
  txtBuscar.place(150, 870, 4100, 315);
  ListaResultado.accessibleName = "Lugares encontrados";
  ListaResultado.place(150, 1260, 4100, 1100);
  for (forms::Control* control : std::initializer_list<forms::Control*>{&CmbBuscar, &txtBuscar, &ListaResultado}) {
    control->putInto(FichaConsultasDatos, 1);
  }
}

void FrmPrincipal::defineTableSelectors() {
  struct Selector {
    forms::EditableCombo& combo;
    const char* textWhileNothingIsChosen;
    const char* accessibleName;
    forms::Twips left;
    forms::Twips width;
    std::vector<std::string> items;
  };
  const std::vector<Selector> selectors{
      {ComboTabla,
       "",
       "Tabla",
       150,
       6600,
       {"Años de vida potencialmente perdidos  y Tasas de AVPP por provincias",
        "Defunciones y Tasas específicas por provincias", "Distribución de defunciones por provincias",
        "Indicadores principales por provincias", "Indicadores principales por zonas básicas de salud"}},
      {ComboTipo, "Tipo", "Tipo", 6815, 1950, {"Grandes grupos", "Lista reducida"}},
      {ComboProvincia, "Provincia", "Provincia", 8830, 2000,
       catalogueFrames(atlas_.ports.files, atlas_.ports.applicationFolder)},
      {ComboSexo, "Sexo", "Sexo", 10895, 1650, {"Ambos sexos", "Mujeres", "Hombres"}},
      {ComboAño, "Año", "Año", 12610, 1000, {"1999", "2000", "2001", "2002"}},
  };
  for (const Selector& selector : selectors) {
    for (const std::string& item : selector.items) selector.combo.addItem(item);
    selector.combo.setText(selector.textWhileNothingIsChosen);
    selector.combo.accessibleName = selector.accessibleName;
    selector.combo.putInto(Ficha, 0);
    selector.combo.place(selector.left, kToolRowTop + 20, selector.width, 315);
  }
  ComboProvincia.setVisible(false);  // the first table is not by province

  imgBuscaTabla.toolTipText = "Ver la Tabla";
  imgBuscaTabla.picture = "ver-tabla";
  imgBuscaTabla.putInto(Ficha, 0);
  imgBuscaTabla.place(13675, kToolRowTop, kToolSize, kToolSize);
  ImgExportar.toolTipText = "Exportar Tabla";
  ImgExportar.picture = "exportar";
  ImgExportar.putInto(Ficha, 0);
  ImgExportar.place(13675 + kToolStep, kToolRowTop, kToolSize, kToolSize);
}

void FrmPrincipal::defineToolbars() {
  // The selector's button is the last one of its row: "<- Seleccione mapa" points at it.
  defineToolbar(Image2, thematicToolbar(), {0, 1, 2, 12, 3, 5, 6, 7, 8, 9, 11, 10}, Ficha, 1);
  defineToolbar(Image4, dataToolbar(), {0, 1, 2, 10, 3, 5, 6, 9, 7, 8}, Ficha, 2);
  defineToolbar(Image3, statisticsToolbar(), {0, 1, 2, 10, 3, 5, 6, 7, 8, 9}, Ficha, 3);

  lblinfo.setCaption("<- Seleccione mapa");
  lblinfo.putInto(Ficha, 1);
  lblinfo.place(150 + 12 * kToolStep + 45, kToolRowTop + 60, 2000, 240);

  // Two lines beside the row.
  lblVeldoria.setCaption("Haga clic en el fondo del mapa para ver la información de Veldoria.");
  lblVeldoria.font.points = 7.5;
  lblVeldoria.putInto(Ficha, 3);
  lblVeldoria.place(150 + 10 * kToolStep + 90, kToolRowTop - 5, 5100, 375);
  lblVeldoria.setVisible(false);
}

void FrmPrincipal::defineMainArea() {
  Ficha.captions = {"Tablas", "Mapas", "Datos", "Veldoria"};
  Ficha.accessibleName = "Modo";
  Ficha.place(kTabsLeft, kTabsTop, 9830, 9792);
  Internet.accessibleName = "Tabla";
  Internet.place(kTabsLeft + 275, kTabsTop + 790, 9280, 8972);
  PictureMapa.accessibleName = "Mapa";
  PictureMapa.place(kMapLeft, kMapTop, 9330, 8992);
  PictureMapa.setVisible(false);
  Panel.place(kMapLeft, kMapTop, 9330, 8992);
  Panel.setVisible(false);
  ProgressBar1.place(kMapLeft, kMapTop + 8992 - 255, 9330, 255);
  ProgressBar1.setVisible(false);
  ProgressBar1.accessibleName = "Progreso";
  FichaAños.captions = {"1999", "2000", "2001", "2002"};
  FichaAños.accessibleName = "Año";
  FichaAños.place(7180, kTabsTop, 2800, 390);
  FichaAños.setVisible(false);
}

}  // namespace atlas

#include <array>

#include "atlas/atlas.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/thematic/selector_window.h"
#include "atlas/titles.h"
#include "atlas/trap.h"

// Documents opened in outside programs.
namespace atlas {
namespace {

constexpr const char* kBrowser = "C:\\Archivos de Programa\\Internet Explorer\\IEXPLORE.EXE";

struct Document {
  forms::Label FrmPrincipal::*label;
  const char* file;  // below the application folder
};

constexpr std::array kHtmlDocuments = std::to_array<Document>({
    {&FrmPrincipal::Label1, "\\Archivos\\Creditos.html"},
    {&FrmPrincipal::LblMetodologia, "\\Archivos\\Medologia.html"},  // the file is spelled so
    {&FrmPrincipal::LblPresentación, "\\Archivos\\PRESENTACION.html"},
    {&FrmPrincipal::LblUso, "\\Archivos\\Uso de la aplicacion.html"},
});

// The study's fourth year has no report.
constexpr std::array kReports = std::to_array<Document>({
    {&FrmPrincipal::PDF1999, "\\Archivos\\mortalidad_1999.pdf"},
    {&FrmPrincipal::PDF2000, "\\Archivos\\mortalidad_2000.pdf"},
    {&FrmPrincipal::PDF2001, "\\Archivos\\mortalidad_2001.pdf"},
});

std::string inQuotes(const std::string& s) { return "\"" + s + "\""; }

}  // namespace

void FrmPrincipal::bindDocuments() {
  for (const Document& document : kHtmlDocuments) {
    (this->*document.label).Click.add([this, &document] { openHtmlDocument(document.file); });
  }
  for (const Document& report : kReports) {
    (this->*report.label).Click.add([this, &report] { openReport(report.file); });
  }
}

// The outside program would be covered by the selector, which is always on top: it is closed.
void FrmPrincipal::openHtmlDocument(const std::string& file) {
  silently([&] {
    atlas_.ports.programs.start(inQuotes(kBrowser) + " " + inQuotes(atlas_.ports.applicationFolder + file));
    closeSelectorIfOpen(atlas_);
  });
}

void FrmPrincipal::openReport(const std::string& file) {
  silently([&] {
    if (atlas_.AcrobatInstalado) {
      startReport(atlas_.executables.acrobatReader, file);
    } else if (atlas_.AcrobatProInstalado) {
      startReport(atlas_.executables.acrobat, file);
    } else {
      atlas_.ports.messages.show(
          "Acrobat Reader no está instalado correctamente en su equipo, instálelo mediante el acceso directo "
          "'Instalar Acrobat Reader'.",
          platform::kOkOnly, kProgramTitle);
    }
  });
}

void FrmPrincipal::startReport(const std::string& viewer, const std::string& file) {
  const std::string path = atlas_.ports.applicationFolder + file;
  if (atlas_.ports.files.lookUp(path).empty()) {
    atlas_.ports.messages.show("No se encuentra el archivo.", platform::kCritical, kProgramTitle);
    return;
  }
  atlas_.ports.programs.start(inQuotes(viewer) + " " + inQuotes(path));
  closeSelectorIfOpen(atlas_);
  hideSubmenuIfVisible();
}

void FrmPrincipal::MostrarAyuda() {
  silently([&] {
    constexpr int kContents = 3;
    DialogoAyuda.setHelpCommand(kContents);
    DialogoAyuda.setHelpFile(atlas_.ports.applicationFolder + "\\Ayuda\\Ayuda.hlp");
    atlas_.ports.dialogs.help(DialogoAyuda.helpFile(), DialogoAyuda.helpCommand());
  });
}

}  // namespace atlas

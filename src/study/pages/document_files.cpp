#include <array>

#include "study/pages/documents.h"
#include "study/pages/page_file.h"

namespace study::pages {

void writeDocuments(const Study& study, const std::filesystem::path& applicationFolder) {
  struct Document {
    const char* path;
    std::string (*page)(const Study& study);
  };
  // Spelled as the program asks for them.
  constexpr std::array kDocuments{
      Document{"Archivos/PRESENTACION.html", presentationPage},
      Document{"Archivos/Medologia.html", methodologyPage},
      Document{"Archivos/Uso de la aplicacion.html", usePage},
      Document{"Archivos/Creditos.html", creditsPage},
      Document{"Ayuda/Ayuda.html", helpPage},
  };
  for (const Document& document : kDocuments) writePage(applicationFolder, document.path, document.page(study));
}

}  // namespace study::pages

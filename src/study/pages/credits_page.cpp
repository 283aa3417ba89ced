#include "study/pages/documents.h"
#include "study/pages/prose.h"
#include "study/pages/table_page.h"

namespace study::pages {

std::string creditsPage(const Study& study) {
  Prose prose =
      opened(study, study.texts.credits, "Créditos",
             "Los datos de este estudio son de quien lo ha preparado. Las cifras de las tablas, los mapas y los "
             "informes se han calculado a partir de ellos.");
  prose.heading("Fuente de las cifras");
  prose.paragraph(sourceOf(study) + ".");
  prose.heading("Métodos y normas");
  prose.paragraph("Población estándar: " + study.standard.name +
                  ". Las publicaciones de las que proceden los métodos se citan en el documento «Metodología».");
  return prose.page(study);
}

}  // namespace study::pages

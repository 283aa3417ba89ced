#include <algorithm>
#include <iterator>

#include "study/pages/documents.h"
#include "study/pages/prose.h"
#include "study/pages/report_years.h"
#include "study/pages/table_parts.h"

namespace study::pages {

namespace {

// What the menu of the reports holds.
std::string reportsOf(const Study& study) {
  std::vector<int> reports;
  std::copy_if(study.years.begin(), study.years.end(), std::back_inserter(reports), hasReport);
  if (reports.empty()) return "no hay informes en PDF de los años de este estudio";
  if (reports.size() == 1) return "el informe en PDF del año " + std::to_string(reports.front());
  std::string years = std::to_string(reports.front());
  for (std::size_t i = 1; i < reports.size(); ++i) {
    years += (i + 1 == reports.size() ? " y " : ", ") + std::to_string(reports[i]);
  }
  return "los informes en PDF de los años " + years;
}

void describeWindow(Prose& prose, const Study& study) {
  prose.heading("La ventana principal");
  prose.paragraph(
      "Al abrirse, la aplicación muestra el mapa de estadísticas de Veldoria. Cuatro fichas cambian lo que se ve: "
      "«Tablas», «Mapas», «Datos» y «Veldoria». En las de mapas, el panel de la derecha reúne los indicadores de lo "
      "que se "
      "señala o se consulta, y «Comando actual» dice qué herramienta está en uso.");
  prose.paragraph("El menú de la parte superior abre los documentos del estudio:");
  prose.list({
      "«Presentación».",
      "«Información», al pasar el puntero: «Metodología», «Uso de la aplicación» y «Créditos».",
      "«Estadísticas de mortalidad», al pasar el puntero: " + reportsOf(study) + ".",
      "«Salir» cierra la aplicación.",
  });
}

void describeTables(Prose& prose) {
  prose.heading("Ficha «Tablas»");
  prose.paragraph(
      "Elija la tabla en la primera lista y, en las siguientes, lo que esa tabla pida: el tipo de lista de causas, la "
      "provincia, el sexo y el año. La tabla aparece en cuanto cambia una elección; «Ver la Tabla» la muestra de "
      "nuevo. "
      "Las tablas son:");
  std::vector<std::string> names;
  for (const std::string_view name : kTableNames) names.emplace_back(name);
  prose.list(names);
  prose.paragraph(
      "«Exportar Tabla» guarda una copia de la tabla que se ve. Escriba el nombre del archivo, al que se añade «.html» "
      "si "
      "no lo lleva, y confirme. Nunca se sustituye un archivo que ya exista: si lo hay, elija otro nombre.");
}

void describeMaps(Prose& prose) {
  prose.heading("Ficha «Mapas»");
  prose.paragraph(
      "Muestra mapas temáticos; el primero es el de la población por zonas básicas. La ventana «Seleccionar mapa "
      "temático» "
      "tiene cuatro listas: el marco (toda Veldoria o una provincia), la unidad regional (provincias o zonas básicas; "
      "las "
      "provincias tienen mapas solo por zonas básicas), el sexo y el indicador. Cada elección abre el mapa que le "
      "corresponde, y «Ver mapa» lo abre de nuevo. Las pestañas de los años muestran el mismo mapa en otro año.");
  prose.paragraph(
      "Con la herramienta «Información», haga clic en una unidad para leer su valor en el panel de la derecha. La "
      "leyenda "
      "dice qué representa cada color o símbolo. Las tasas por causas de muerte («Tasa x100.000» en la leyenda) son "
      "tasas estandarizadas por edad.");
}

void describeData(Prose& prose) {
  prose.heading("Ficha «Datos»");
  prose.paragraph(
      "Muestra el mapa del año elegido en las pestañas. Con la herramienta «Información», un clic en el mapa da todos "
      "los "
      "indicadores de la provincia o la zona de ese punto.");
  prose.paragraph(
      "En «Consultas», elija una provincia o una de sus zonas básicas en las listas: se resalta en el mapa y aparecen "
      "sus "
      "indicadores, seguidos de los de las unidades a las que pertenece. Las opciones «Provincias» y «Zonas básicas» "
      "cambian las unidades que el mapa muestra.");
  prose.paragraph(
      "En «Búsquedas», elija primero qué busca, provincias o zonas básicas, y escriba al menos tres letras del "
      "comienzo del "
      "nombre. Haga clic en uno de los nombres encontrados para verlo en el mapa. Al cambiar de año se repite la "
      "consulta "
      "del lugar que se esté viendo.");
}

void describeStatistics(Prose& prose) {
  prose.heading("Ficha «Veldoria»");
  prose.paragraph(
      "Muestra el mapa de estadísticas. Con la herramienta «Información», haga clic en una provincia para ver sus "
      "estadísticas, o en el fondo del mapa para ver las de Veldoria.");
}

void describeTools(Prose& prose) {
  prose.heading("Herramientas de los mapas");
  prose.paragraph(
      "Los botones acercan, alejan y desplazan el mapa, dan información, ponen etiquetas, imprimen el mapa y lo "
      "muestran "
      "completo; si el motor de mapas instalado lo permite, también miden distancias y llevan el mapa a otra "
      "aplicación. "
      "La Ayuda, que se abre con el botón «Ayuda», explica cada uno. El botón derecho del ratón sobre el mapa ofrece "
      "«Ver "
      "Toda la Capa...», «Borrar Etiquetas...» y «Quitar Selección...».");
}

}  // namespace

std::string usePage(const Study& study) {
  Prose prose =
      opened(study, study.texts.use, "Uso de la aplicación",
             "La aplicación presenta los resultados del estudio en tablas y en mapas. No modifica sus datos: lo "
             "único que escribe son las copias de las tablas que usted exporte.");
  describeWindow(prose, study);
  describeTables(prose);
  describeMaps(prose);
  describeData(prose);
  describeStatistics(prose);
  describeTools(prose);
  return prose.page(study);
}

}  // namespace study::pages

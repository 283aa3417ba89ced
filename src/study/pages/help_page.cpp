#include <array>

#include "study/pages/documents.h"
#include "study/pages/prose.h"

namespace study::pages {

namespace {

constexpr std::array<Anchor, 6> kTopics{{{"botones", "Botones de los mapas"},
                                         {"fichas", "Botones que solo tienen unas fichas"},
                                         {"menu", "Menú del botón derecho"},
                                         {"tablas", "Botones de las tablas"},
                                         {"consultas", "Consultar y buscar un lugar"},
                                         {"problemas", "Si algo no sale como espera"}}};

void begin(Prose& prose, std::size_t topic) { prose.heading(kTopics[topic].text, kTopics[topic].id); }

void explainTools(Prose& prose) {
  begin(prose, 0);
  prose.paragraph(
      "Las fichas «Mapas», «Datos» y «Veldoria» tienen estos botones. Al elegir una herramienta, «Comando actual» "
      "muestra "
      "su nombre, y sigue en uso hasta que elija otra.");
  prose.definitions({
      {"Zoom+", "Haga clic en el mapa para acercarlo en torno a ese punto."},
      {"Zoom-", "Haga clic en el mapa para alejarlo."},
      {"Desplazamiento", "Pulse sobre el mapa y arrástrelo sin soltar el botón del ratón."},
      {"Información",
       "Haga clic en una unidad del mapa; sus datos aparecen en el panel de la derecha. Es la herramienta en uso "
       "cuando se "
       "abre un mapa."},
      {"Etiquetado", "Haga clic en una unidad para escribir su nombre sobre el mapa."},
      {"Medir Distancias",
       "Haga clic en los puntos de un recorrido para conocer su longitud, si el motor de mapas instalado lo permite."},
      {"Arrastrar Mapa a otra aplicación",
       "Arrastre el mapa hasta un documento de otra aplicación, si el motor de mapas instalado lo permite."},
      {"Imprimir Mapa", "Imprime el mapa tal como se ve."},
      {"Ayuda", "Abre esta ayuda."},
      {"Ver Mapa Completo", "Muestra de nuevo el mapa entero."},
  });
}

void explainOtherTools(Prose& prose) {
  begin(prose, 1);
  prose.definitions({
      {"Mostrar/Ocultar selector de mapa (ficha «Mapas»)",
       "Abre o cierra la ventana «Seleccionar mapa temático», en la que se eligen el marco, la unidad, el sexo y el "
       "indicador."},
      {"Mostrar/Ocultar Leyenda (ficha «Mapas»)", "Abre o cierra la leyenda del mapa."},
      {"Información en la ficha «Datos»",
       "Da los indicadores del año de las unidades que hay en el punto, y resalta una de ellas."},
      {"Información en la ficha «Veldoria»",
       "Da las estadísticas de una provincia o, en el fondo del mapa, las de Veldoria."},
      {"Pestañas de los años (fichas «Mapas» y «Datos»)", "Muestran el mismo mapa o la misma consulta en otro año."},
  });
}

void explainMenu(Prose& prose) {
  begin(prose, 2);
  prose.definitions({
      {"Ver Toda la Capa...", "Muestra entera una capa del mapa."},
      {"Borrar Etiquetas...", "Quita las etiquetas que haya puesto con «Etiquetado»."},
      {"Quitar Selección...", "Quita el resaltado del mapa y vacía el panel de indicadores."},
  });
}

void explainTables(Prose& prose) {
  begin(prose, 3);
  prose.definitions({
      {"Ver la Tabla", "Muestra la tabla que corresponde a lo elegido en las listas."},
      {"Exportar Tabla",
       "Guarda una copia de la tabla, en formato HTML, con el nombre que usted escriba. Puede abrirla en un navegador, "
       "imprimirla o llevarla a una hoja de cálculo."},
  });
}

void explainQueries(Prose& prose) {
  begin(prose, 4);
  prose.paragraph(
      "En la ficha «Datos», la pestaña «Consultas» tiene una lista de provincias y otra de zonas básicas. Al elegir "
      "una "
      "provincia, la segunda lista se queda con sus zonas. La pestaña «Búsquedas» encuentra un lugar por el comienzo "
      "de su "
      "nombre: elija qué busca, escriba tres letras o más y haga clic en el nombre.");
}

void explainTroubles(Prose& prose) {
  begin(prose, 5);
  prose.definitions({
      {"«No existe ningún mapa para los parámetros seleccionados»",
       "El estudio no tiene ese mapa: elija otro indicador, sexo, marco o año."},
      {"«Pinche sobre un objeto del mapa por favor.»", "El punto está fuera de la región: haga clic dentro de ella."},
      {"En la ficha «Mapas» no se va «Espere por favor...»",
       "El punto está fuera de la región o en una unidad sin datos: haga clic en otra unidad, o elija un mapa."},
      {"«No se encuentra el archivo.»", "Falta el informe de ese año en la carpeta «Archivos» del estudio."},
      {"Una unidad aparece sin datos",
       "No tiene población de la que calcular la tasa, la causa no existe en ese sexo, o la cifra no se publica."},
  });
}

}  // namespace

std::string helpPage(const Study& study) {
  Prose prose = opened(study, study.texts.help, "Ayuda",
                       "Qué hace cada botón de la aplicación. El documento «Uso de la aplicación», en el menú "
                       "«Información», explica sus fichas una por una.");
  prose.links({kTopics.begin(), kTopics.end()});
  explainTools(prose);
  explainOtherTools(prose);
  explainMenu(prose);
  explainTables(prose);
  explainQueries(prose);
  explainTroubles(prose);
  return prose.page(study);
}

}  // namespace study::pages

#include "hosts/desktop/spanish_words.h"

#include <array>
#include <string_view>

namespace desktop {
namespace {

struct Word {
  std::string_view context;  // how it begins
  std::string_view source;
  const char* spanish;
};

constexpr std::array kWords = std::to_array<Word>({
    {"QAbstractFileIconProvider", "Folder", "Carpeta"},
    {"QAbstractFileIconProvider", "File", "Archivo"},
    {"QAbstractFileIconProvider", "%1 File", "Archivo %1"},
    {"QAbstractFileIconProvider", "Drive", "Unidad"},
    {"QAbstractFileIconProvider", "Shortcut", "Acceso directo"},
    {"QAbstractFileIconProvider", "Alias", "Alias"},
    {"QAbstractFileIconProvider", "Unknown", "Desconocido"},
    {"QPrint", "Advanced", "Avanzado"},
    {"QPrint", "Advanced Option Conflicts", "Opciones avanzadas incompatibles"},
    {"QPrint", "Banner page at end", "Página de separación al final"},
    {"QPrint", "Banner page at start", "Página de separación al principio"},
    {"QPrint", "Double Sided Printing", "Impresión a doble cara"},
    {"QPrint", "Duplex Settings Conflicts", "Ajustes de doble cara incompatibles"},
    {"QPrint", "Invalid Pages Definition", "Páginas mal indicadas"},
    {"QPrint", "Long side binding", "Encuadernación por el lado largo"},
    {"QPrint", "Off", "No"},
    {"QPrint",
     "Options 'Pages Per Sheet' and 'Page Set' cannot be used together.\nPlease turn one of those options off.",
     "«Páginas por hoja» y «Conjunto de páginas» no se pueden usar a la vez.\nQuite una de las dos opciones."},
    {"QPrint", "Page Setup Conflicts", "Ajustes de página incompatibles"},
    {"QPrint", "Pages", "Páginas"},
    {"QPrint", "Short side binding", "Encuadernación por el lado corto"},
    {"QPrint",
     "Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: "
     "3,5-7,9 prints pages 3, 5, 6, 7 and 9.",
     "Páginas o intervalos separados por comas; un intervalo son dos números separados por un guion. Por ejemplo, "
     "3,5-7,9 imprime las páginas 3, 5, 6, 7 y 9."},
    {"QPrint", "There are conflicts in duplex settings. Do you want to fix them?",
     "Los ajustes de doble cara son incompatibles. ¿Quiere corregirlos?"},
    {"QPrint", "There are conflicts in page setup options. Do you want to fix them?",
     "Los ajustes de página son incompatibles. ¿Quiere corregirlos?"},
    {"QPrint", "There are conflicts in some advanced options. Do you want to fix them?",
     "Algunas opciones avanzadas son incompatibles. ¿Quiere corregirlas?"},
    {"QPrint", "There are conflicts in some options. Please fix them.",
     "Algunas opciones son incompatibles. Corríjalas."},
});

}  // namespace

QString SpanishWords::translate(const char* context, const char* source, const char* /*remark*/, int /*n*/) const {
  const std::string_view asking(context);
  for (const Word& word : kWords) {
    if (asking.starts_with(word.context) && word.source == source) return QString::fromUtf8(word.spanish);
  }
  return {};
}

}  // namespace desktop

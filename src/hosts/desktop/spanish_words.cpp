#include "hosts/desktop/spanish_words.h"

#include <array>
#include <string_view>

namespace desktop {
namespace {

struct Word {
  std::string_view context;
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
});

}  // namespace

QString SpanishWords::translate(const char* context, const char* source, const char* /*remark*/, int /*n*/) const {
  for (const Word& word : kWords) {
    if (word.context == context && word.source == source) return QString::fromUtf8(word.spanish);
  }
  return {};
}

}  // namespace desktop

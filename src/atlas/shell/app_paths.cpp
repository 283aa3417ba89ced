#include "atlas/shell/app_paths.h"

#include <algorithm>

#include "atlas/atlas.h"
#include "atlas/shell/frm_principal.h"
#include "text/utf8.h"

namespace atlas {
namespace {

constexpr std::int32_t kNoReadableType = -1;

std::int32_t readText(platform::Registry& registry, platform::RegistryKey key, const std::string& name,
                      std::uint32_t size, platform::Variant& result) {
  const platform::Registry::Queried queried = registry.queryValue(key, name, size);
  if (queried.status != platform::kRegistrySuccess) {
    result = {};
    return queried.status;
  }
  std::string buffer(size, '\0');
  std::copy_n(queried.data.begin(), std::min(queried.data.size(), buffer.size()), buffer.begin());
  if (!buffer.empty()) buffer.pop_back();  // the terminator
  result = buffer;
  return queried.status;
}

std::int32_t readNumber(platform::Registry& registry, platform::RegistryKey key, const std::string& name,
                        platform::Variant& result) {
  const platform::Registry::Queried queried = registry.queryValue(key, name, sizeof(std::uint32_t));
  if (queried.status != platform::kRegistrySuccess) return queried.status;
  std::uint32_t value = 0;  // the lowest byte comes first
  for (std::size_t i = std::min(queried.data.size(), sizeof value); i-- > 0;) value = value << 8 | queried.data[i];
  result = static_cast<double>(static_cast<std::int32_t>(value));
  return queried.status;
}

// Reads the install folder of a program by its App Paths key. False leaves the folder as far as it was read.
bool readInstallFolder(platform::Registry& registry, const std::string& executable, platform::Variant& folder) {
  const platform::Registry::Opened opened = registry.openKey(
      "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\" + executable, platform::kKeyQueryValue);
  const std::int32_t status = LeerValorRegistro(registry, opened.key, "Path", folder);
  if (opened.key != 0) registry.closeKey(opened.key);
  return status == platform::kRegistrySuccess;
}

std::string withoutTrailingBackslash(std::string folder) {
  if (folder.ends_with('\\')) folder.pop_back();
  return folder;
}

// Whether the file is there; its name is compared in upper case.
bool isThere(platform::Files& files, const std::string& path, const std::string& upperCaseName) {
  return text::upper(files.lookUp(path)) == upperCaseName;
}

void showEngineMissing(Atlas& atlas) {
  atlas.ports.messages.show(
      "MapInfo Proviewer no esta Instalado correctamente, instálelo de nuevo a través del acceso directo "
      "'Instalar MapInfo Proviewer 6.0'.",
      platform::kExclamation, "");
}

void ComprobarAcrobat(Atlas& atlas) {
  atlas.AcrobatProInstalado = true;
  platform::Variant folder;
  if (!readInstallFolder(atlas.ports.registry, "Acrobat.exe", folder)) atlas.AcrobatProInstalado = false;
  atlas.executables.acrobat = withoutTrailingBackslash(folder.text()) + "\\Acrobat.exe";
  if (!isThere(atlas.ports.files, atlas.executables.acrobat, "ACROBAT.EXE")) atlas.AcrobatProInstalado = false;
}

}  // namespace

std::int32_t LeerValorRegistro(platform::Registry& registry, platform::RegistryKey key, const std::string& name,
                               platform::Variant& result) {
  const platform::Registry::Queried value = registry.queryValue(key, name, 0);
  if (value.status != platform::kRegistrySuccess) return kNoReadableType;
  switch (value.type) {
    case platform::kRegistryText:
      return readText(registry, key, name, value.size, result);
    case platform::kRegistryNumber:
      return readNumber(registry, key, name, result);
    default:
      return kNoReadableType;
  }
}

void ComprobarMapInfo(Atlas& atlas) {
  platform::Ports& ports = atlas.ports;
  atlas.AcrobatInstalado = true;
  platform::Variant engineFolder;
  if (!readInstallFolder(ports.registry, "Mapinfor.exe", engineFolder)) {
    showEngineMissing(atlas);
    atlas.frmPrincipal().unload();
    atlas.endProgram();
  }
  platform::Variant readerFolder;
  if (!readInstallFolder(ports.registry, "ACRORD32.exe", readerFolder)) atlas.AcrobatInstalado = false;
  atlas.executables.mapEngine = withoutTrailingBackslash(engineFolder.text()) + "\\mapinfor.exe";
  atlas.executables.acrobatReader = withoutTrailingBackslash(readerFolder.text()) + "\\ACRORD32.exe";
  if (!isThere(ports.files, atlas.executables.mapEngine, "MAPINFOR.EXE")) {
    showEngineMissing(atlas);
    atlas.endProgram();
  }
  if (!isThere(ports.files, atlas.executables.acrobatReader, "ACRORD32.EXE")) {
    atlas.AcrobatInstalado = false;
    ComprobarAcrobat(atlas);
  }
}

}  // namespace atlas

#include "replay/stage.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <stdexcept>
#include <thread>

#include "hosts/headless/installed_programs.h"
#include "hosts/headless/registry_file.h"
#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/win32/windows_h.h"
#include "text/utf8.h"

namespace wintest {
namespace {

namespace fs = std::filesystem;

// Where the program looks for the browser.
constexpr const char* kBrowser = "C:\\Archivos de Programa\\Internet Explorer\\IEXPLORE.EXE";

bool isText(const headless::RegistryValue& value) {
  return value.type == platform::kRegistryText || value.type == platform::kRegistryExpandedText;
}

void write(const headless::RegistryValue& value) {
  if (value.status != platform::kRegistrySuccess) throw std::invalid_argument("no machine refuses a query so");
  const auto* bytes = reinterpret_cast<const std::byte*>(value.data.data());
  std::size_t size = value.data.size();
  const std::wstring text = isText(value) ? windows::wide(reinterpret_cast<const char*>(bytes)) : L"";
  if (isText(value)) {
    bytes = reinterpret_cast<const std::byte*>(text.c_str());
    size = (text.size() + 1) * sizeof(wchar_t);
  }
  if (RegSetKeyValueW(HKEY_LOCAL_MACHINE, windows::wide(value.key).c_str(), windows::wide(value.name).c_str(),
                      value.type, bytes, static_cast<DWORD>(size)) != ERROR_SUCCESS) {
    throw std::runtime_error("the registry cannot be written");
  }
}

void uninstallAll() {
  std::wstring paths = windows::wide(headless::kAppPaths);
  paths.pop_back();
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, paths.c_str());
}

constexpr int kTries = 500;
constexpr auto kBlink = std::chrono::milliseconds(20);

// A copy that was made just now cannot be started until the system knows what it is.
void awaitProgram(const fs::path& path) {
  DWORD kind = 0;
  for (int tries = 0; tries < kTries && GetBinaryTypeW(path.c_str(), &kind) == FALSE; ++tries) {
    std::this_thread::sleep_for(kBlink);
  }
}

// A program that was started just now cannot be removed until it has ended. A folder that holds something else stays.
void removeSoon(const fs::path& path) {
  std::error_code problem;
  for (int tries = 0; tries < kTries && fs::is_regular_file(path, problem) && !fs::remove(path, problem); ++tries) {
    std::this_thread::sleep_for(kBlink);
  }
  if (fs::is_directory(path, problem)) fs::remove(path, problem);
}

bool isProgram(const std::string& path) { return text::lower(path).ends_with(".exe"); }

}  // namespace

Stage::~Stage() {
  std::ranges::reverse(created_);
  std::ranges::for_each(created_, removeSoon);
}

void Stage::install(const std::optional<std::string>& registryFile) {
  uninstallAll();
  putFile(kBrowser);
  if (registryFile) {
    for (const headless::RegistryValue& value : headless::registryValues(*registryFile)) write(value);
    return;
  }
  for (const headless::InstalledProgram& program : headless::kInstalledPrograms) {
    write(headless::textValue(program.key(), "Path", program.folder));
    putFile(program.path());
  }
}

void Stage::putFile(const std::string& path) {
  const fs::path file = windows::wide(path);
  for (fs::path folder = file.parent_path(); !folder.empty() && !fs::exists(folder); folder = folder.parent_path()) {
    created_.insert(created_.begin(), folder);
  }
  fs::create_directories(file.parent_path());
  removeFile(path);  // it may be there under another case
  if (isProgram(path)) {
    fs::copy_file(viewer_, file);
    awaitProgram(file);
  } else {
    std::ofstream(file, std::ios::binary) << '\n';
  }
  created_.push_back(file);
}

void Stage::removeFile(const std::string& path) {
  std::error_code ignored;
  fs::remove(fs::path(windows::wide(path)), ignored);
}

}  // namespace wintest

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace motor {

// Finds the table and workspace files that statements name, only below certain folders.
class TableFiles {
 public:
  explicit TableFiles(const std::vector<std::filesystem::path>& roots);

  // The canonical path of the file of a table, written with "\" or "/", with or without extension (then .tab, else
  // .mif): beside `workspaceFolder` if there is one, then as written, relative paths from each root. Throws EngineError
  // when there is none, when it lies outside the roots, and for a network path or a device's name.
  [[nodiscard]] std::filesystem::path table(const std::string& written,
                                            const std::optional<std::filesystem::path>& workspaceFolder) const;
  // The same for a workspace that another one names.
  [[nodiscard]] std::filesystem::path workspace(const std::string& written,
                                                const std::filesystem::path& workspaceFolder) const;
  // Whether a file lies below the roots, links followed.
  [[nodiscard]] bool mayRead(const std::filesystem::path& file) const;

 private:
  [[nodiscard]] std::filesystem::path locate(const std::string& written,
                                             const std::optional<std::filesystem::path>& workspaceFolder,
                                             const std::vector<std::string>& endings) const;
  [[nodiscard]] bool isBelowRoot(const std::filesystem::path& canonical) const;

  std::vector<std::filesystem::path> roots_;  // canonical
};

// The folders that a workspace opened by itself may read: its own, and, when that lies in an application's folder
// "Tablas", all of the application.
[[nodiscard]] std::vector<std::filesystem::path> rootsOf(const std::filesystem::path& workspace);

}  // namespace motor

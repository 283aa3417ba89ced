#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace headless {

// Where effects are written, a line each, in words that are the same on every host: handles as "<hwnd:NAME>", the
// engine's map window as "<map>", the application folder as "<app>", a blank at a line's end as "·", a line break as
// "↵".
class Transcript {
 public:
  using Sink = std::function<void(const std::string& line)>;

  explicit Transcript(Sink sink, std::string applicationFolder = "");

  // Lines of these kinds (a line's first word) are left out from now on.
  void hush(const std::set<std::string>& kinds) { hushed_ = kinds; }
  // Nothing is written any more.
  void close() { closed_ = true; }

  // The name of a handle that the host gave out.
  void nameHandle(std::int64_t handle, const std::string& name) { handles_[std::to_string(handle)] = name; }
  // The name given to a handle, or its digits.
  [[nodiscard]] std::string handleName(std::int64_t handle) const;
  [[nodiscard]] std::string handleLabel(std::int64_t handle) const { return "<hwnd:" + handleName(handle) + ">"; }
  // The number of the current engine's map window; that of an earlier engine is forgotten.
  void nameMap(const std::string& number) { map_ = number; }

  // A line as it is written.
  [[nodiscard]] std::string asWritten(std::string_view line) const;

  // Writes a line whose kind is its first word, or is named.
  void write(const std::string& line);
  void write(const std::string& kind, const std::string& line);

 private:
  [[nodiscard]] std::string withNumbersNamed(std::string_view line) const;
  [[nodiscard]] std::string numberName(const std::string& digits) const;

  Sink sink_;
  std::string applicationFolder_;
  std::set<std::string> hushed_;
  std::map<std::string, std::string> handles_;
  std::string map_;
  bool closed_ = false;
};

}  // namespace headless

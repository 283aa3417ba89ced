#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace wintest {

// Where a test under Wine finds what it needs.
struct TestPlace {
  std::string app;               // the application folder, as the program writes it
  std::string machineApp;        // the same as the relay's machine writes it
  std::filesystem::path viewer;  // what stands for outside programs
  std::uint16_t port = 0;        // of the relay
  std::wstring log;              // what the engine writes down; nothing when empty

  // As a test's script says in the environment: VELDORIA_APP, VELDORIA_MACHINE_APP, VELDORIA_VIEWER, VELDORIA_RELAY.
  // Fails with std::runtime_error.
  [[nodiscard]] static TestPlace fromEnvironment();

  // Tells the map engine where to find the relay, which run this is, and the file that it answers from; without one the
  // embedded engine answers.
  void tellEngine(const std::string& run, const std::string& machineEngineFile = {}) const;
};

}  // namespace wintest

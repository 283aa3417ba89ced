#include "motor/session/statement_words.h"

namespace motor {
namespace {

std::string wordOf(const OpenTable& /*statement*/) { return "Open"; }
std::string wordOf(const CloseTable& /*statement*/) { return "Close"; }
std::string wordOf(const CloseAll& /*statement*/) { return "Close"; }
std::string wordOf(const MapFrom& /*statement*/) { return "Map"; }
std::string wordOf(const SetMap& /*statement*/) { return "Set"; }
std::string wordOf(const AddMapLayer& /*statement*/) { return "Add"; }
std::string wordOf(const RemoveMapLayer& /*statement*/) { return "Remove"; }
std::string wordOf(const SetWindow& /*statement*/) { return "Set"; }
std::string wordOf(const OpenWindow& /*statement*/) { return "Open"; }
std::string wordOf(const CloseWindow& /*statement*/) { return "Close"; }
std::string wordOf(const SetApplicationWindow& /*statement*/) { return "Set"; }
std::string wordOf(const SetNextDocument& /*statement*/) { return "Set"; }
std::string wordOf(const CreateMenu& /*statement*/) { return "Create"; }
std::string wordOf(const CreateButtonPad& /*statement*/) { return "Create"; }
std::string wordOf(const AlterButtonPad& /*statement*/) { return "Alter"; }
std::string wordOf(const RunMenuCommand& /*statement*/) { return "Run"; }
std::string wordOf(const RunApplication& /*statement*/) { return "Run"; }
std::string wordOf(const RunCommand& /*statement*/) { return "Run"; }
std::string wordOf(const EndSession& /*statement*/) { return "End"; }
std::string wordOf(const SetCoordSys& /*statement*/) { return "Set"; }
std::string wordOf(const SetUnits& /*statement*/) { return "Set"; }
std::string wordOf(const SetFormat& /*statement*/) { return "Set"; }
std::string wordOf(const SelectStatement& /*statement*/) { return "Select"; }
std::string wordOf(const Fetch& /*statement*/) { return "Fetch"; }
std::string wordOf(const Shade& /*statement*/) { return "Shade"; }
std::string wordOf(const SetShade& /*statement*/) { return "Set"; }
std::string wordOf(const SetLegend& /*statement*/) { return "Set"; }
std::string wordOf(const CreateLegend& /*statement*/) { return "Create"; }
std::string wordOf(const CreateCartographicLegend& /*statement*/) { return "Create"; }
std::string wordOf(const AddColumn& /*statement*/) { return "Add"; }
std::string wordOf(const CreateObject& /*statement*/) { return "Create"; }
std::string wordOf(const Dim& /*statement*/) { return "Dim"; }
std::string wordOf(const Undim& /*statement*/) { return "Undim"; }
std::string wordOf(const Assignment& statement) { return statement.name.text; }
std::string wordOf(const PassedOver& statement) { return statement.name; }
std::string wordOf(const Refused& statement) { return statement.name; }

}  // namespace

Position positionOf(const Statement& statement) {
  return std::visit([](const auto& s) { return s.position; }, statement);
}

std::string firstWord(const Statement& statement) {
  return std::visit([](const auto& s) { return wordOf(s); }, statement);
}

}  // namespace motor

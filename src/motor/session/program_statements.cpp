#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>

#include "motor/language/parser.h"
#include "motor/language/workspace.h"
#include "motor/session/coord_sys.h"
#include "motor/session/executors.h"
#include "motor/session/map_view.h"
#include "motor/session/session_state.h"
#include "platform/paths.h"
#include "text/file_text.h"
#include "text/utf8.h"

namespace motor {
namespace {

// What went wrong in a workspace: its file and the place in it. The place of the statement that runs it would tell
// nothing more.
class WorkspaceError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

constexpr std::uintmax_t kLargestWorkspace = 32 * 1024 * 1024;  // bytes

std::string contentsOf(const std::filesystem::path& file, const std::string& written) {
  std::error_code failed;
  if (const auto size = std::filesystem::file_size(file, failed); !failed && size > kLargestWorkspace)
    throw EngineError("«" + written + "»: el archivo es demasiado grande");
  const auto bytes = std::filesystem::is_regular_file(file, failed) ? text::wholeFile(file) : std::nullopt;
  if (!bytes) throw EngineError("«" + written + "»: no se puede leer el archivo");
  return *bytes;
}

// Runs a workspace; errors say in which file they are.
void runWorkspace(SessionState& session, const std::filesystem::path& file, const std::string& written) {
  const std::string bytes = contentsOf(file, written);
  session.budget.spendText(bytes.size());
  struct Inside {
    std::vector<std::filesystem::path>& folders;
    Inside(std::vector<std::filesystem::path>& f, std::filesystem::path folder) : folders(f) {
      folders.push_back(std::move(folder));
    }
    ~Inside() { folders.pop_back(); }
  } const inside(session.workspaceFolders, file.parent_path());
  try {
    session.run(parseWorkspace(bytes).statements);
  } catch (const WorkspaceError& e) {
    throw WorkspaceError(text::fromPath(file.filename()) + ": " + e.what());
  } catch (const LanguageError& e) {
    throw WorkspaceError(text::fromPath(file.filename()) + ": " + e.what());
  } catch (const EngineError& e) {
    throw WorkspaceError(text::fromPath(file.filename()) + ": " + e.what());
  }
}

// Programs in the language's compiled form, and those of the machine.
bool isProgram(const std::string& file) {
  const std::string name = text::lower(file);
  constexpr std::array kEndings{".mbx", ".mbo", ".exe", ".com", ".bat", ".cmd", ".dll"};
  return std::any_of(kEndings.begin(), kEndings.end(), [&](const char* ending) { return name.ends_with(ending); });
}

Value initialValue(const std::string& type) {
  if (type == "string") return "";
  if (type == "logical") return false;
  return 0;
}

}  // namespace

void execute(SessionState& session, const RunApplication& statement) {
  const std::string written = session.text(statement.file);
  if (isProgram(written))
    throw LanguageError(statement.position, "Run Application", "no se permite ejecutar programas: «" + written + "»");
  const std::filesystem::path file = session.workspaceFolders.empty()
                                         ? platform::machinePath(written)
                                         : session.files.workspace(written, session.workspaceFolders.back());
  runWorkspace(session, file, written);
}

void execute(SessionState& session, const RunCommand& statement) {
  const std::string text = session.text(statement.text);
  session.budget.spendText(text.size());
  session.run(parseProgram(text));
}

void execute(SessionState& session, const EndSession& /*statement*/) {
  session.closeAllWindows();
  session.ended = true;
}

void execute(SessionState& session, const SetCoordSys& statement) {
  session.coordinateSystem = coordinateSystemOf(statement.coordSys, session);
  session.drawsOnLayout = statement.coordSys.kind == CoordSysClause::Kind::layout;
}

void execute(SessionState& session, const SetUnits& statement) {
  const std::string unit = session.text(statement.unit);
  switch (statement.kind) {
    case SetUnits::Kind::distance: {
      [[maybe_unused]] const double known = metresPerDistanceUnit(unit);
      session.distanceUnit = unit;
      return;
    }
    case SetUnits::Kind::paper: {
      [[maybe_unused]] const double known = paperUnitsPerInch(unit);
      session.paperUnit = unit;
      return;
    }
    case SetUnits::Kind::area:
      session.areaUnit = unit;  // of no function but the one that tells it
      return;
  }
}

void execute(SessionState& session, const SetFormat& statement) {
  if (statement.kind == SetFormat::Kind::date) return;  // dates are told as they stand in the tables
  const bool local = text::equalsIgnoringCase(session.text(statement.format), "Local");
  session.useNumberSigns(local ? NumberSigns{session.options.decimalSign, session.options.thousandsSign}
                               : NumberSigns{".", ","});
}

void execute(SessionState& session, const Dim& statement) {
  for (const Dim::Variable& variable : statement.variables)
    session.variables.declare(variable.name.text, initialValue(variable.type));
}

void execute(SessionState& session, const Undim& statement) {
  for (const Name& name : statement.names) session.variables.forget(name.text);
}

void execute(SessionState& session, const Assignment& statement) {
  if (session.variables.find(statement.name.text) == nullptr)
    throw LanguageError(statement.name.position, statement.name.text, "la variable no está declarada");
  session.variables.assign(statement.name.text, statement.value->evaluate(session.scope));
}

void execute(SessionState& session, const PassedOver& statement) {
  constexpr std::array kDocuments{"browse", "graph", "layout"};
  const bool isDocument = std::any_of(kDocuments.begin(), kDocuments.end(), [&](const char* document) {
    return text::equalsIgnoringCase(statement.name, document);
  });
  if (isDocument) session.passOverDocument();
}

void execute(SessionState& /*session*/, const Refused& statement) {
  throw LanguageError(statement.position, statement.name, statement.reason);
}

}  // namespace motor

#include <fstream>

#include "motor/language/workspace.h"
#include "motor/session/session_fixture.h"
#include "text/file_text.h"

// However much of a workspace is missing, it opens or is rejected with the place in it, and nothing else happens.
namespace motor {
namespace {

namespace fs = std::filesystem;

class CutWorkspaces : public SessionTest, public testing::WithParamInterface<const char*> {
 protected:
  CutWorkspaces() : bytes_(text::wholeFile(study().path() / GetParam()).value()) {}
  std::string bytes_;
};

TEST_P(CutWorkspaces, areParsedOrRejectedAtEveryByte) {
  int parsed = 0;
  for (std::size_t length = 0; length <= bytes_.size(); ++length) {
    try {
      static_cast<void>(parseWorkspace(bytes_.substr(0, length)));
      ++parsed;
    } catch (const LanguageError& error) {
      EXPECT_FALSE(error.reason().empty()) << length;
      EXPECT_GE(error.position().line, 1) << length;
    }
  }
  EXPECT_GT(parsed, 10);
}

TEST_P(CutWorkspaces, areRunOrRejectedInEveryWord) {
  constexpr std::size_t kStep = 5;
  const fs::path cut = (study().path() / GetParam()).replace_filename("cortada.wor");
  for (std::size_t length = 0; length <= bytes_.size(); length += kStep) {
    fs::remove(cut);
    std::ofstream(cut, std::ios::binary) << bytes_.substr(0, length);
    Session own(windows, {.roots = {study().path()}});
    const std::string said = rejection([&] { own.run("Run Application \"" + cut.string() + "\""); });
    EXPECT_TRUE(said == "accepted" || said.starts_with("cortada.wor: línea ")) << said;
  }
  fs::remove(cut);
}

INSTANTIATE_TEST_SUITE_P(Session, CutWorkspaces,
                         testing::Values("2001/Año2001.wor", "Estadisticas/Estadisticas.wor", "Tematicos/Tumores.wor"));

}  // namespace
}  // namespace motor

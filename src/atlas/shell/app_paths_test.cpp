#include "atlas/shell/app_paths.h"

#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;

const std::string kMissing =
    "msgbox 48 [] MapInfo Proviewer no esta Instalado correctamente, instálelo de nuevo a través del acceso directo "
    "'Instalar MapInfo Proviewer 6.0'.";

class RegistryValue : public testing::Program {
 protected:
  std::pair<std::int32_t, platform::Variant> read(const std::string& type, const std::string& data) {
    world.registryTexts = {{"x.exe", {type, data}}};
    const auto opened = world.openKey("\\App Paths\\x.exe", platform::kKeyQueryValue);
    platform::Variant result = "antes";
    const std::int32_t status = LeerValorRegistro(world, opened.key, "Path", result);
    return {status, result};
  }
};

TEST_F(RegistryValue, IsReadByItsType) {
  EXPECT_EQ(read("sz", "C:\\Motor"), (std::pair<std::int32_t, platform::Variant>{0, "C:\\Motor"}));
  EXPECT_EQ(read("sz", ""), (std::pair<std::int32_t, platform::Variant>{0, ""}));
  EXPECT_EQ(read("dword", "70000"), (std::pair<std::int32_t, platform::Variant>{0, 70000.0}));
  EXPECT_EQ(read("dword", "-2"), (std::pair<std::int32_t, platform::Variant>{0, -2.0}));
  EXPECT_EQ(read("binary", "abc"), (std::pair<std::int32_t, platform::Variant>{-1, "antes"}));
  EXPECT_EQ(read("status", "5"), (std::pair<std::int32_t, platform::Variant>{-1, "antes"}));
  EXPECT_EQ(read("secondstatus", "234"), (std::pair<std::int32_t, platform::Variant>{234, platform::Variant()}));
}

TEST_F(RegistryValue, OfNoKeyLeavesTheResult) {
  platform::Variant result = "antes";
  EXPECT_EQ(LeerValorRegistro(world, 0, "Path", result), -1);
  EXPECT_EQ(result, platform::Variant("antes"));
}

class AppPaths : public testing::Program {
 protected:
  void check() { ComprobarMapInfo(atlas); }
};

TEST_F(AppPaths, EngineAndReaderFound) {
  check();
  EXPECT_TRUE(atlas.AcrobatInstalado);
  EXPECT_FALSE(atlas.AcrobatProInstalado);
  EXPECT_EQ(atlas.executables.mapEngine, "C:\\Motor\\mapinfor.exe");
  EXPECT_EQ(atlas.executables.acrobatReader, "C:\\Lector\\ACRORD32.exe");
  EXPECT_EQ(
      world.take(),
      (Lines{"regopen Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Mapinfor.exe 1", "regquery Path 0",
             "regquery Path 9", "regopen Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\ACRORD32.exe 1",
             "regquery Path 0", "regquery Path 10", "dir C:\\Motor\\mapinfor.exe", "dir C:\\Lector\\ACRORD32.exe"}));
}

TEST_F(AppPaths, OneTrailingBackslashIsDropped) {
  world.registryTexts["Mapinfor.exe"] = {"sz", "C:\\Motor\\"};
  world.registryTexts["ACRORD32.exe"] = {"sz", "C:\\Lector\\"};
  check();
  EXPECT_EQ(atlas.executables.mapEngine, "C:\\Motor\\mapinfor.exe");
  EXPECT_EQ(atlas.executables.acrobatReader, "C:\\Lector\\ACRORD32.exe");
}

TEST_F(AppPaths, AnEngineThatIsNotRegisteredEndsTheProgram) {
  world.registryTexts.erase("Mapinfor.exe");
  atlas.Main();
  world.take();
  EXPECT_THROW(atlas.frmInicio().Timer1.elapse(), platform::ProgramEnd);
  EXPECT_EQ(world.take({"msgbox", "unload", "end", "create"}),
            (Lines{kMissing, "unload frmInicio", "unload frmPrincipal", "end"}));
}

TEST_F(AppPaths, AnEngineWhoseFileIsMissingEndsTheProgramWithoutUnloading) {
  world.files.erase("C:\\Motor\\mapinfor.exe");
  atlas.Main();
  world.take();
  EXPECT_THROW(atlas.frmInicio().Timer1.elapse(), platform::ProgramEnd);
  EXPECT_EQ(world.take({"msgbox", "unload", "end", "create"}), (Lines{kMissing, "end"}));
}

TEST_F(AppPaths, WithoutReaderTheFullAcrobatIsTried) {
  world.registryTexts["Acrobat.exe"] = {"sz", "C:\\Acro\\"};
  world.files["C:\\Acro\\Acrobat.exe"] = "acrobat.exe";
  world.files.erase("C:\\Lector\\ACRORD32.exe");
  check();
  EXPECT_FALSE(atlas.AcrobatInstalado);
  EXPECT_TRUE(atlas.AcrobatProInstalado);
  EXPECT_EQ(atlas.executables.acrobat, "C:\\Acro\\Acrobat.exe");
}

TEST_F(AppPaths, WithNeitherNothingIsSaid) {
  world.registryTexts.erase("ACRORD32.exe");
  check();
  EXPECT_FALSE(atlas.AcrobatInstalado);
  EXPECT_FALSE(atlas.AcrobatProInstalado);
  EXPECT_EQ(world.take({"msgbox", "dir"}),
            (Lines{"dir C:\\Motor\\mapinfor.exe", "dir \\ACRORD32.exe", "dir \\Acrobat.exe"}));
}

}  // namespace
}  // namespace atlas

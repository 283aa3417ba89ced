#include "hosts/windows/ports/native_dialogs.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "hosts/windows/ports/test_box_user.h"
#include "hosts/windows/test_help_viewer.h"
#include "hosts/windows/test_program.h"
#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/win32/window_text.h"
#include "text/failure.h"
#include "text/file_text.h"

namespace windows {
namespace {

namespace fs = std::filesystem;

constexpr int kNameBox = 0x47c;    // of a save dialog
constexpr int kFilterBox = 0x470;  // its kinds of files
constexpr const char* kTitle = "Guardar como...";
constexpr const char* kFilter = "*.html|HTML";

class Folder {
 public:
  Folder() { fs::create_directories(path_); }
  ~Folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  [[nodiscard]] std::string at(const std::string& name) const {
    return text::fromPath(fs::path(path_ / wide(name)).make_preferred());
  }
  void write(const std::string& name) const { std::ofstream(fs::path(wide(at(name)))) << name; }

 private:
  fs::path path_ = fs::temp_directory_path() / L"veldoria-diálogos";
};

class SaveDialog : public ::testing::Test {
 protected:
  SaveDialog() { SetActiveWindow(front); }

  struct Seen {
    std::string title;
    std::string name;
    std::vector<std::string> filters;
    HWND owner = nullptr;
    bool otherIsEnabled = true;
  };

  [[nodiscard]] Seen lookAt(HWND dialog) const {
    Seen it{textOf(dialog), textOf(GetDlgItem(dialog, kNameBox)), {}, GetWindow(dialog, GW_OWNER), true};
    const HWND kinds = GetDlgItem(dialog, kFilterBox);
    for (LRESULT i = 0; i < SendMessageW(kinds, CB_GETCOUNT, 0, 0); ++i) {
      std::wstring kind(static_cast<std::size_t>(SendMessageW(kinds, CB_GETLBTEXTLEN, static_cast<WPARAM>(i), 0)),
                        L'\0');
      SendMessageW(kinds, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(kind.data()));
      it.filters.push_back(utf8(kind));
    }
    it.otherIsEnabled = IsWindowEnabled(other) != FALSE;
    return it;
  }

  // Shows the dialog with a name, whose user does something with it and presses a button.
  std::string save(const std::string& name, int button, const std::function<void(HWND)>& first = nullptr) {
    const testing::BoxUser user([&](HWND dialog) {
      seen = lookAt(dialog);
      if (first) first(dialog);
      testing::press(dialog, button);
    });
    const std::string chosen = dialogs.save(kTitle, kFilter, name);
    EXPECT_EQ(user.count(), 1);
    return chosen;
  }
  std::string saveAs(const std::string& typed) {
    return save("1999 - Mujeres", IDOK,
                [&typed](HWND dialog) { SetWindowTextW(GetDlgItem(dialog, kNameBox), wide(typed).c_str()); });
  }

  Folder folder;
  testing::Program program{testing::Program::First::selector};
  HWND front = program.window(program.form);
  HWND other = program.window(program.selector);
  NativeDialogs dialogs{program.host};
  Seen seen;
};

TEST_F(SaveDialog, ShowsTitleNameAndFilter) {
  save("1999 - Añó", IDCANCEL);
  EXPECT_EQ(seen.title, kTitle);
  EXPECT_EQ(seen.name, "1999 - Añó");
  EXPECT_EQ(seen.filters, std::vector<std::string>{"HTML"});
}

TEST_F(SaveDialog, ProposesNoSignThatAFileNameCannotHold) {
  save("1999: ¿hombres/mujeres? <a|b>\t\"*\\", IDCANCEL);
  EXPECT_EQ(seen.name, "1999- ¿hombres-mujeres- -a-b-----");
}

TEST_F(SaveDialog, CancelledGivesTheNameBackAsItWas) {
  EXPECT_EQ(save("1999 - Añó", IDCANCEL), "1999 - Añó");
  EXPECT_EQ(save("1999: ¿?", IDCANCEL), "1999: ¿?");
  EXPECT_EQ(save("", IDCANCEL), "");
}

TEST_F(SaveDialog, GivesTheWholePathOfTheNameTyped) {
  EXPECT_EQ(saveAs(folder.at("tabla ñ.html")), folder.at("tabla ñ.html"));
  EXPECT_EQ(saveAs(folder.at("tabla")), folder.at("tabla")) << "the program itself adds the ending";
}

TEST_F(SaveDialog, AsksNothingAboutAFileThatIsThere) {
  folder.write("tabla.html");
  EXPECT_EQ(saveAs(folder.at("tabla.html")), folder.at("tabla.html"));
}

TEST_F(SaveDialog, LeavesTheCurrentFolderAlone) {
  const fs::path before = fs::current_path();
  saveAs(folder.at("tabla.html"));
  EXPECT_EQ(fs::current_path(), before);
}

TEST_F(SaveDialog, LiesInFrontOfTheProgramWhichTakesNoInputMeanwhile) {
  save("tabla", IDCANCEL);
  EXPECT_EQ(seen.owner, front);
  EXPECT_FALSE(seen.otherIsEnabled);
  EXPECT_TRUE(IsWindowEnabled(front));
  EXPECT_TRUE(IsWindowEnabled(other));
}

class Help : public ::testing::Test {
 protected:
  Folder folder;
  testing::Program program;
  NativeDialogs dialogs{program.host};
  testing::HelpViewer viewer;
};

TEST_F(Help, ShowsTheContentsOfTheHelpFile) {
  constexpr int kContents = 3;
  folder.write("Ayuda ñ.hlp");
  dialogs.help(folder.at("Ayuda ñ.hlp"), kContents);
  ASSERT_EQ(viewer.told().size(), 1U);
  EXPECT_EQ(viewer.told().front().command, 3U);
  EXPECT_EQ(viewer.told().front().file, folder.at("Ayuda ñ.hlp"));
  EXPECT_EQ(viewer.told().front().by, program.host.frontWindow());
}

TEST_F(Help, FailsWhereThereIsNone) {
  folder.write("Ayuda.html");
  for (const char* name : {"Otra.hlp", "Otra.chm", ""}) {
    try {
      dialogs.help(folder.at(name), 3);
      ADD_FAILURE() << name;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.number(), failures::kFileNotFound) << name;
    }
  }
  EXPECT_TRUE(viewer.told().empty());
}

// While it lives, pages are shown by the program that stands for all outside ones and lies beside this one: it writes
// down how it was started.
class PageViewer {
 public:
  PageViewer() : before_(kindOfPages()) {
    std::wstring here(MAX_PATH, L'\0');
    here.resize(GetModuleFileNameW(nullptr, here.data(), MAX_PATH));
    const fs::path viewer = fs::path(here).replace_filename(L"test_viewer.exe");
    set(std::wstring(kKind) + L"\\shell\\open\\command", L"\"" + viewer.wstring() + L"\" \"%1\"");
    set(kPages, kKind);
    fs::remove(kWritten);
  }
  ~PageViewer() {
    set(kPages, before_);
    RegDeleteTreeW(HKEY_CLASSES_ROOT, kKind);
  }
  PageViewer(const PageViewer&) = delete;
  PageViewer& operator=(const PageViewer&) = delete;

  // The command line that it was started with, waited for; empty where that does not happen in half a minute.
  [[nodiscard]] static std::string started() {
    constexpr DWORD kBlink = 10;  // milliseconds
    constexpr int kTries = 3000;
    for (int tries = 0; tries < kTries; ++tries) {
      const std::string line = text::wholeFile(kWritten).value_or("");
      if (line.ends_with('\n')) return line.substr(0, line.size() - 1);
      Sleep(kBlink);
    }
    return "";
  }

 private:
  static constexpr const wchar_t* kPages = L".html";
  static constexpr const wchar_t* kKind = L"VeldoriaTestPage";
  static inline const fs::path kWritten{L"C:\\viewers.log"};

  static std::wstring kindOfPages() {
    std::wstring kind(100, L'\0');
    auto size = static_cast<DWORD>(kind.size() * sizeof(wchar_t));
    RegGetValueW(HKEY_CLASSES_ROOT, kPages, nullptr, RRF_RT_REG_SZ, nullptr, kind.data(), &size);
    return kind.substr(0, kind.find(L'\0'));
  }
  static void set(const std::wstring& key, const std::wstring& value) {
    RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, value.c_str(),
                    static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
  }

  std::wstring before_;
};

TEST_F(Help, IsAPageInTheBrowserWhereOnlyThatIsThere) {
  const PageViewer browser;
  folder.write("Ayuda ñ.html");
  dialogs.help(folder.at("Ayuda ñ.HLP"), 3);
  const std::string started = PageViewer::started();
  EXPECT_TRUE(started.ends_with(" \"" + folder.at("Ayuda ñ.html") + "\"")) << started;
  EXPECT_TRUE(viewer.told().empty());
}

}  // namespace
}  // namespace windows

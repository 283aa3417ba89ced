#pragma once

#include <QString>
#include <memory>

#include "hosts/desktop/qt_host.h"
#include "platform/dialogs.h"
#include "platform/files.h"

namespace desktop {

namespace pages {
class HelpWindow;
}

class QtDialogs : public platform::Dialogs {
 public:
  // Both outlive this.
  QtDialogs(QtHost& host, platform::Files& files);
  ~QtDialogs() override;

  // The name chosen is that of the dialog: the question and the refusal that follow are the program's own.
  [[nodiscard]] std::string save(const std::string& title, const std::string& filter, const std::string& name) override;
  // Help files of the older format have no viewer here: their page ("Ayuda.html" for "Ayuda.hlp") is shown in a window
  // of the program, which stays beside the others until it is closed or the program ends. Fails with 53 when the page
  // is missing.
  void help(const std::string& file, int command) override;

 private:
  QtHost& host_;
  platform::Files& files_;
  std::unique_ptr<pages::HelpWindow> help_;
};

// A dialog's filter as the toolkit writes it: pairs of "|" become one line each, "Pages (*.html)|*.html" becomes "Pages
// (*.html)". A pair may stand the other way round.
[[nodiscard]] QString toolkitFilter(const std::string& filter);

}  // namespace desktop

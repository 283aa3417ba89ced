#pragma once

#include <QString>

#include "hosts/desktop/ports/known_programs.h"
#include "hosts/desktop/qt_host.h"
#include "platform/dialogs.h"
#include "platform/files.h"

namespace desktop {

class QtDialogs : public platform::Dialogs {
 public:
  // All outlive this.
  QtDialogs(QtHost& host, platform::Files& files, DesktopPrograms& programs)
      : host_(host), files_(files), programs_(programs) {}

  [[nodiscard]] std::string save(const std::string& title, const std::string& filter, const std::string& name) override;
  // Help files of the older format have no viewer here: their page ("Ayuda.html" for "Ayuda.hlp") opens in the user's
  // browser. Fails with 53 when it is missing.
  void help(const std::string& file, int command) override;

 private:
  QtHost& host_;
  platform::Files& files_;
  DesktopPrograms& programs_;
};

// A dialog's filter as the toolkit writes it: "Pages (*.html)|*.html" becomes "Pages (*.html)", one a line of "|"
// pairs.
[[nodiscard]] QString toolkitFilter(const std::string& filter);

}  // namespace desktop

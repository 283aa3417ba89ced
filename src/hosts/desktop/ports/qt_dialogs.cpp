#include "hosts/desktop/ports/qt_dialogs.h"

#include <QFileDialog>
#include <utility>

#include "hosts/desktop/pages/help_window.h"
#include "hosts/desktop/proposed_files.h"
#include "hosts/screen/file_filters.h"
#include "platform/paths.h"
#include "text/failure.h"
#include "text/utf8.h"

namespace desktop {
QtDialogs::QtDialogs(QtHost& host, platform::Files& files) : host_(host), files_(files) {}

QtDialogs::~QtDialogs() = default;

std::string QtDialogs::save(const std::string& title, const std::string& filter, const std::string& name) {
  const QString chosen = QFileDialog::getSaveFileName(host_.frontWindow(), QString::fromStdString(title),
                                                      proposedFile(QString::fromStdString(name)), toolkitFilter(filter),
                                                      nullptr, QFileDialog::DontConfirmOverwrite);
  return chosen.isEmpty() ? name : chosen.toStdString();
}

void QtDialogs::help(const std::string& file, int /*command*/) {
  constexpr std::string_view kOlderFormat = ".hlp";
  std::string page = file;
  if (text::lower(page).ends_with(kOlderFormat)) page = page.substr(0, page.size() - kOlderFormat.size()) + ".html";
  if (files_.lookUp(page).empty()) throw failures::fileNotFound();
  if (help_ == nullptr) {
    const QString path = QString::fromStdString(platform::machinePath(page).string());
    help_ = std::make_unique<pages::HelpWindow>(
        path, pages::StudyFolder(QString::fromStdString(host_.applicationFolder())), host_.frontWindow());
  }
  help_->showContents();
}

QString toolkitFilter(const std::string& filter) {
  QStringList lines;
  for (const screen::FileFilter& row : screen::fileFilters(filter)) {
    lines +=
        QStringLiteral("%1 (%2)").arg(QString::fromStdString(row.description),
                                      QString::fromStdString(row.patterns).replace(QLatin1Char(';'), QLatin1Char(' ')));
  }
  return lines.join(QStringLiteral(";;"));
}

}  // namespace desktop

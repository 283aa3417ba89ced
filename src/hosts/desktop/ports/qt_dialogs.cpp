#include "hosts/desktop/ports/qt_dialogs.h"

#include <QFileDialog>

#include "platform/paths.h"
#include "text/failure.h"
#include "text/utf8.h"

namespace desktop {

std::string QtDialogs::save(const std::string& title, const std::string& filter, const std::string& name) {
  const QString chosen = QFileDialog::getSaveFileName(host_.frontWindow(), QString::fromStdString(title),
                                                      QString::fromStdString(name), toolkitFilter(filter));
  return chosen.isEmpty() ? name : chosen.toStdString();
}

void QtDialogs::help(const std::string& file, int /*command*/) {
  constexpr std::string_view kOlderFormat = ".hlp";
  std::string page = file;
  if (text::lower(page).ends_with(kOlderFormat)) page = page.substr(0, page.size() - kOlderFormat.size()) + ".html";
  if (files_.lookUp(page).empty()) throw failures::fileNotFound();
  if (!programs_.open(platform::machinePath(page).string())) throw failures::fileNotFound();
}

QString toolkitFilter(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split(QLatin1Char('|'));
  QStringList lines;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString description = parts[i].left(parts[i].indexOf(QLatin1Char('('))).trimmed();
    lines +=
        QStringLiteral("%1 (%2)").arg(description, QString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' ')));
  }
  return lines.join(QStringLiteral(";;"));
}

}  // namespace desktop

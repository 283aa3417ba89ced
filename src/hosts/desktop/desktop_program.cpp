#include "hosts/desktop/desktop_program.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

#include "atlas/shell/frm_inicio.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/shell/statistics_workspace.h"
#include "hosts/desktop/proposed_files.h"
#include "hosts/desktop/rehearsal.h"
#include "hosts/desktop/spanish_words.h"
#include "hosts/desktop/theme.h"
#include "hosts/desktop/toolkit_dialogs.h"
#include "motor/drawing/symbol_pictures.h"
#include "platform/paths.h"

namespace desktop {
namespace {

constexpr int kSplashIsShown = 100;  // milliseconds after it is asked for

// The user's own number signs; Spanish ones where the desktop has no language of its own.
motor::SessionOptions engineOptions(const std::string& applicationFolder) {
  motor::SessionOptions options;
  options.roots = {platform::machinePath(applicationFolder)};
  const QLocale locale = QLocale::system();
  if (locale.language() == QLocale::C) return options;
  options.decimalSign = locale.decimalPoint().toStdString();
  options.thousandsSign = locale.groupSeparator().toStdString();
  return options;
}

// The toolkit would write down what its dialogs last showed, and those of the desktop which files were used.
void leaveNoTraces() {
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
    QSettings::setPath(format, QSettings::UserScope, QStringLiteral("/dev/null"));
  }
}

}  // namespace

void prepareApplication(QApplication& application) {
  leaveNoTraces();
  QApplication::setApplicationName(QStringLiteral("Mortalidad en Veldoria 1999-2002"));
  QApplication::setQuitOnLastWindowClosed(false);  // the program says when it is over
  QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
  auto* spanish = new QTranslator(&application);
  if (spanish->load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(spanish);
  }
  QApplication::installTranslator(new SpanishWords(&application));
  application.installEventFilter(new ProposedPrintFiles(&application));
  application.installEventFilter(new ToolkitDialogs(&application));
  theme::install(application);
}

DesktopProgram::DesktopProgram(const std::string& applicationFolder, DesktopPrograms& programs)
    : sessions_(mapWindows_, engineOptions(applicationFolder)),
      host_(calls_, handles_, applicationFolder),
      files_(machineFiles_, programs),
      registry_(programs),
      programs_(programs),
      dialogs_(host_, machineFiles_) {
  motor::useSymbolsOf(platform::machinePath(applicationFolder));
  calls_.ended = [this] {
    over_ = true;
    QCoreApplication::quit();
  };
  calls_.failed = [this](const std::string& description) {
    messages_.show(description, platform::kCritical, QCoreApplication::applicationName().toStdString());
  };
  const platform::Ports ports{engines_, windows_, registry_, files_, programs_, messages_, dialogs_, applicationFolder};
  atlas_ = std::make_unique<atlas::Atlas>(ports, host_);
}

// The windows go first: they show the atlas's forms. The atlas lets go of the engine, whose map lies in one of them.
DesktopProgram::~DesktopProgram() {
  atlas_->motormapa.reset();
  host_.closeAll();
  atlas_.reset();
}

void DesktopProgram::start() {
  calls_.run([this] { atlas_->Main(); });
  rehearsal_.setSingleShot(true);
  QObject::connect(&rehearsal_, &QTimer::timeout, &rehearsal_, [this] {
    const std::string& folder = atlas_->ports.applicationFolder;
    if (!atlas_->frmInicio().isLoaded()) return;
    rehearse(platform::machinePath(folder + std::string(atlas::kStatisticsWorkspace)).string(), engineOptions(folder));
    host_.prepare(atlas_->frmPrincipal());
  });
  rehearsal_.start(kSplashIsShown);
}

}  // namespace desktop

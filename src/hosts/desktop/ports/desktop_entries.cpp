#include "hosts/desktop/ports/desktop_entries.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QStandardPaths>
#include <QUrl>

namespace desktop {
namespace {

// A file of groups ("[Desktop Entry]") with a key and a value a line.
class KeyFile {
 public:
  explicit KeyFile(const QString& path) {
    constexpr qint64 kMostBytes = 4 * 1024 * 1024;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return;
    QString group;
    for (const QString& read : QString::fromUtf8(file.read(kMostBytes)).split(u'\n')) {
      const QString line = read.trimmed();
      const qsizetype equals = line.indexOf(u'=');
      if (line.startsWith(u'[') && line.endsWith(u']')) {
        group = line.sliced(1, line.size() - 2);
      } else if (equals > 0 && !line.startsWith(u'#')) {
        values_.insert(keyOf(group, line.first(equals).trimmed()), line.sliced(equals + 1).trimmed());
      }
    }
  }

  [[nodiscard]] QString value(const char* group, const QString& key) const {
    return values_.value(keyOf(QLatin1String(group), key));
  }
  [[nodiscard]] QStringList list(const char* group, const QString& key) const {
    return value(group, key).split(u';', Qt::SkipEmptyParts);
  }

 private:
  static QString keyOf(const QString& group, const QString& key) { return group + u'\n' + key; }

  QHash<QString, QString> values_;
};

QStringList applicationFolders() { return QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation); }

// Where users and desktops note their choices, the first that counts first.
QStringList choiceFiles() {
  QStringList names;
  for (const QString& name : qEnvironmentVariable("XDG_CURRENT_DESKTOP").toLower().split(u':', Qt::SkipEmptyParts)) {
    names += name + QStringLiteral("-mimeapps.list");
  }
  names += QStringLiteral("mimeapps.list");
  QStringList files;
  for (const QString& folder :
       QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation) + applicationFolders()) {
    for (const QString& name : names) files += folder + u'/' + name;
  }
  return files;
}

// The file of an entry by its name ("org.ejemplo.Lector.desktop"); a "-" in it may stand for a folder.
QString entryFile(const QString& name) {
  if (name.contains(u'/')) return {};
  for (const QString& folder : applicationFolders()) {
    QString path = name;
    for (qsizetype hyphen = -1;;) {
      const QString file = folder + u'/' + path;
      if (QFile::exists(file)) return file;
      hyphen = path.indexOf(u'-', hyphen + 1);
      if (hyphen < 0) break;
      path[hyphen] = u'/';
    }
  }
  return {};
}

bool isInstalled(const QString& program) {
  return !program.isEmpty() && !QStandardPaths::findExecutable(program).isEmpty();
}

QStringList commandOf(const QString& entry, const QString& file) {
  constexpr auto kGroup = "Desktop Entry";
  const KeyFile keys(entry);
  const auto says = [&](const char* key) { return keys.value(kGroup, QLatin1String(key)); };
  if (says("Hidden") == QLatin1String("true") || says("Terminal") == QLatin1String("true")) return {};
  if (!says("TryExec").isEmpty() && !isInstalled(says("TryExec"))) return {};
  const QStringList command = commandWithFile(says("Exec"), file);
  return !command.isEmpty() && isInstalled(command.first()) ? command : QStringList();
}

// What users and desktops have chosen for a kind of file.
struct Choices {
  QStringList entries;  // the one that counts first first
  QStringList removed;
};

Choices choicesFor(const QString& kind) {
  Choices choices;
  QStringList added;
  for (const QString& file : choiceFiles()) {
    const KeyFile keys(file);
    choices.entries += keys.list("Default Applications", kind);
    added += keys.list("Added Associations", kind);
    choices.removed += keys.list("Removed Associations", kind);
  }
  choices.entries += added;
  return choices;
}

QStringList cachedEntries(const QString& kind) {
  QStringList names;
  for (const QString& folder : applicationFolders()) {
    names += KeyFile(folder + QStringLiteral("/mimeinfo.cache")).list("MIME Cache", kind);
  }
  return names;
}

// The entries that say themselves that they open such files; all of them are read.
QStringList declaringEntries(const QString& kind) {
  QStringList names;
  for (const QString& folder : applicationFolders()) {
    for (const QString& name : QDir(folder).entryList({QStringLiteral("*.desktop")}, QDir::Files, QDir::Name)) {
      if (KeyFile(folder + u'/' + name).list("Desktop Entry", QStringLiteral("MimeType")).contains(kind)) names += name;
    }
  }
  return names;
}

// The command of the first entry that can be started.
QStringList firstCommand(const QStringList& names, const QStringList& removed, const QString& file) {
  for (const QString& name : names) {
    const QString entry = removed.contains(name) ? QString() : entryFile(name);
    const QStringList command = entry.isEmpty() ? QStringList() : commandOf(entry, file);
    if (!command.isEmpty()) return command;
  }
  return {};
}

// The words of a line; double quotes hold blanks, and a backslash in them makes the next character plain.
QStringList wordsOf(const QString& line) {
  QStringList words;
  bool inWord = false;
  bool quoted = false;
  for (qsizetype at = 0; at < line.size(); ++at) {
    QChar c = line[at];
    if (c == u'"') {
      quoted = !quoted;
      if (!inWord) words += QString();
      inWord = true;
      continue;
    }
    if (c == u' ' && !quoted) {
      inWord = false;
      continue;
    }
    if (c == u'\\' && quoted && at + 1 < line.size()) c = line[++at];
    if (!inWord) words += QString();
    inWord = true;
    words.last() += c;
  }
  return words;
}

}  // namespace

QStringList commandWithFile(const QString& line, const QString& file) {
  QStringList command;
  bool isPut = false;
  for (const QString& word : wordsOf(line)) {
    if (word == QLatin1String("%f") || word == QLatin1String("%F")) {
      command += file;
      isPut = true;
    } else if (word == QLatin1String("%u") || word == QLatin1String("%U")) {
      command += QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded);
      isPut = true;
    } else if (word.size() != 2 || word[0] != u'%') {
      command += QString(word).replace(QLatin1String("%%"), QLatin1String("%"));
    }
  }
  if (!command.isEmpty() && !isPut) command += file;
  return command;
}

QStringList commandToOpen(const QString& file, const QString& kind) {
  const Choices choices = choicesFor(kind);
  QStringList command = firstCommand(choices.entries, {}, file);
  if (command.isEmpty()) command = firstCommand(cachedEntries(kind), choices.removed, file);
  if (command.isEmpty()) command = firstCommand(declaringEntries(kind), choices.removed, file);
  return command;
}

}  // namespace desktop

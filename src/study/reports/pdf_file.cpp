#include "study/reports/pdf_file.h"

#include <QBuffer>
#include <QHashSeed>
#include <QPageSize>
#include <QPdfWriter>

#include "study/model/study_error.h"
#include "study/reports/painting.h"

namespace study::reports {

namespace {

constexpr int kResolution = 1'200;  // dots per inch

// The writer goes through its fonts in the order of a hash, which otherwise differs from run to run.
class FixedHashes {
 public:
  FixedHashes() { QHashSeed::setDeterministicGlobalSeed(); }
  ~FixedHashes() { QHashSeed::resetRandomGlobalSeed(); }
  FixedHashes(const FixedHashes&) = delete;
  FixedHashes& operator=(const FixedHashes&) = delete;
};

[[noreturn]] void failUnfinished() { throw StudyError("the report's document cannot be finished"); }

// Where `name`'s value, a text in brackets, begins and ends.
std::pair<qsizetype, qsizetype> valueOf(const QByteArray& document, const QByteArray& name) {
  const qsizetype at = document.indexOf(name);
  const qsizetype begin = at < 0 ? -1 : document.indexOf('(', at);
  const qsizetype end = begin < 0 ? -1 : document.indexOf(')', begin);
  if (end < 0) failUnfinished();
  return {begin + 1, end};
}

// Offsets in the table of objects have ten digits and are followed by a generation and "n".
void moveOffsets(QByteArray& document, qsizetype table, qsizetype from, qsizetype by) {
  constexpr qsizetype kDigits = 10;
  constexpr qsizetype kEntry = 20;
  qsizetype at = document.indexOf('\n', document.indexOf('\n', table) + 1) + 1;
  for (; at + kEntry <= document.size() && document.at(at + kDigits) == ' '; at += kEntry) {
    if (document.at(at + kEntry - 3) != 'n') continue;
    const qsizetype offset = document.mid(at, kDigits).toLongLong();
    if (offset > from) document.replace(at, kDigits, QByteArray::number(offset + by).rightJustified(kDigits, '0'));
  }
}

}  // namespace

QByteArray withCreationDate(const QByteArray& document, const QByteArray& date) {
  const auto [begin, end] = valueOf(document, "/CreationDate");
  const QByteArray start = "startxref\n";
  const qsizetype table = document.lastIndexOf("\nxref\n") + 1;
  const qsizetype startAt = document.lastIndexOf(start);
  if (table <= 0 || startAt < table) failUnfinished();
  const qsizetype by = date.size() - (end - begin);

  QByteArray result = document;
  const qsizetype number = startAt + start.size();
  const qsizetype numberEnd = result.indexOf('\n', number);
  result.replace(number, numberEnd - number, QByteArray::number(table + by));
  moveOffsets(result, table, begin, by);
  result.replace(begin, end - begin, date);
  return result;
}

QByteArray pdfOf(const std::vector<Page>& pages, const std::string& title, int year) {
  const FixedHashes hashes;
  QBuffer buffer;
  if (!buffer.open(QIODevice::WriteOnly)) failUnfinished();
  {
    QPdfWriter writer(&buffer);
    writer.setResolution(kResolution);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setTitle(QString::fromStdString(title));
    writer.setCreator("Veldoria");
    QPainter painter;
    if (!painter.begin(&writer)) failUnfinished();
    for (std::size_t i = 0; i < pages.size(); ++i) {
      if (i > 0) writer.newPage();
      paint(pages[i], painter);
    }
    if (!painter.end()) failUnfinished();
  }
  return withCreationDate(buffer.data(), "D:" + QByteArray::number(year) + "0101000000Z");
}

}  // namespace study::reports

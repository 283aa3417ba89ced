#include "hosts/desktop/pages/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "hosts/desktop/theme.h"

namespace desktop::pages {
namespace {

constexpr int kInset = 6;
constexpr int kWordsWidth = 220;

}  // namespace

FindBar::FindBar(QWidget& parent) : QFrame(&parent), words_(new QLineEdit(this)), count_(new QLabel(this)) {
  setObjectName(QStringLiteral("BarraBuscar"));
  setAccessibleName(QStringLiteral("Buscar en la página"));
  setAutoFillBackground(true);
  setFont(theme::font({.name = "Verdana", .points = 9}));
  words_->setPlaceholderText(QStringLiteral("Buscar en la página"));
  words_->setAccessibleName(QStringLiteral("Texto que se busca"));
  words_->setMaximumWidth(kWordsWidth);
  words_->setClearButtonEnabled(true);
  previous_ = button(Qt::UpArrow, QStringLiteral("Anterior (Mayúsculas+F3)"), false);
  next_ = button(Qt::DownArrow, QStringLiteral("Siguiente (F3)"), true);
  auto* close = new QToolButton(this);
  close->setText(QStringLiteral("✕"));
  close->setAutoRaise(true);
  close->setToolTip(QStringLiteral("Cerrar (Esc)"));
  close->setAccessibleName(QStringLiteral("Cerrar la búsqueda"));
  connect(close, &QToolButton::clicked, this, [this] { closed(); });
  connect(words_, &QLineEdit::textEdited, this, [this](const QString& text) { changed(text); });
  connect(words_, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (text.isEmpty()) changed(text);
  });

  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kInset, kInset / 2, kInset, kInset / 2);
  row->setSpacing(kInset);
  row->addWidget(words_, 1);
  row->addWidget(previous_);
  row->addWidget(next_);
  row->addWidget(count_);
  row->addStretch(1);
  row->addWidget(close);
}

QToolButton* FindBar::button(Qt::ArrowType arrow, const QString& name, bool forward) {
  auto* button = new QToolButton(this);
  button->setArrowType(arrow);
  button->setAutoRaise(true);
  button->setToolTip(name);
  button->setAccessibleName(name);
  connect(button, &QToolButton::clicked, this, [this, forward] { asked(forward); });
  return button;
}

QString FindBar::words() const { return words_->text(); }

void FindBar::begin(const QString& words) {
  if (!words.isEmpty()) words_->setText(words);
  words_->selectAll();
  words_->setFocus(Qt::ShortcutFocusReason);
  changed(words_->text());
}

void FindBar::show(std::size_t place, std::size_t places, bool isMore) {
  const bool isMissing = places == 0 && !words().isEmpty();
  QString text;
  if (isMissing) text = QStringLiteral("No se encuentra");
  if (places > 0) {
    text = QStringLiteral("%1 de %2")
               .arg(place)
               .arg((isMore ? QStringLiteral("más de ") : QString()) + QString::number(places));
  }
  count_->setText(text);
  QPalette palette = count_->palette();
  palette.setColor(QPalette::WindowText, isMissing ? theme::kAccent : theme::kMuted);
  count_->setPalette(palette);
  previous_->setEnabled(places > 0);
  next_->setEnabled(places > 0);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Escape:
      return closed();
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return asked(!event->modifiers().testFlag(Qt::ShiftModifier));
    default:
      QFrame::keyPressEvent(event);
  }
}

}  // namespace desktop::pages

#include "hosts/desktop/pages/reading/html_reader.h"

#include <algorithm>
#include <array>

#include "hosts/desktop/pages/reading/character_references.h"

namespace desktop::pages {
namespace {

constexpr std::size_t kMostAttributes = 64;  // of a tag; the rest is left out

// Elements whose content is text up to their end tag, whatever stands in it.
struct RawElement {
  QLatin1String name;
  enum class Content { leftOut, kept, withReferences } content;
};
constexpr std::array kRawElements{
    RawElement{QLatin1String("script"), RawElement::Content::leftOut},
    RawElement{QLatin1String("xml"), RawElement::Content::leftOut},
    RawElement{QLatin1String("style"), RawElement::Content::kept},
    RawElement{QLatin1String("title"), RawElement::Content::withReferences},
    RawElement{QLatin1String("textarea"), RawElement::Content::leftOut},
};

const RawElement* rawElement(QStringView name) {
  const auto found = std::ranges::find_if(kRawElements, [&](const RawElement& each) { return name == each.name; });
  return found == kRawElements.end() ? nullptr : &*found;
}

bool isBlank(QChar c) { return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r'; }

bool isLetter(QChar c) { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'); }

bool endsName(QChar c) { return isBlank(c) || c == u'>' || c == u'/'; }

}  // namespace

QChar HtmlReader::peek(qsizetype ahead) const {
  return at_ + ahead < html_.size() ? html_[at_ + ahead] : QChar(QChar::Null);
}

bool HtmlReader::isAt(QLatin1String text) const { return html_.sliced(at_).startsWith(text); }

void HtmlReader::skipPast(QChar c) {
  const qsizetype found = html_.indexOf(c, at_);
  at_ = found < 0 ? html_.size() : found + 1;
}

void HtmlReader::skipBlanks() {
  while (at_ < html_.size() && isBlank(html_[at_])) ++at_;
}

std::optional<HtmlToken> HtmlReader::next() {
  if (!raw_.isEmpty()) return rawText();
  while (at_ < html_.size()) {
    if (peek() != u'<') return text();
    if (auto token = markup()) return token;
  }
  return std::nullopt;
}

// What begins with "<"; nothing when it is left out.
std::optional<HtmlToken> HtmlReader::markup() {
  const QChar after = peek(1);
  if (isLetter(after)) return startTag();
  if (after == u'/') {
    if (isLetter(peek(2))) return endTag();
    skipPast(u'>');
    return std::nullopt;
  }
  if (isAt(QLatin1String("<!--"))) {
    skipComment();
    return std::nullopt;
  }
  if (after == u'!' || after == u'?') {
    skipPast(u'>');
    return std::nullopt;
  }
  return text();
}

void HtmlReader::skipComment() {
  at_ += 4;
  if (peek() == u'>' || isAt(QLatin1String("->"))) return skipPast(u'>');
  const qsizetype end = html_.indexOf(QLatin1String("-->"), at_);
  at_ = end < 0 ? html_.size() : end + 3;
}

// Up to the next "<"; the one that it may begin with is part of the text.
HtmlToken HtmlReader::text() {
  const qsizetype first = at_;
  const qsizetype next = html_.indexOf(u'<', at_ + 1);
  at_ = next < 0 ? html_.size() : next;
  HtmlToken token;
  token.text = withoutReferences(html_.sliced(first, at_ - first));
  return token;
}

HtmlToken HtmlReader::rawText() {
  const RawElement* element = rawElement(raw_);
  const QString end = QStringLiteral("</") + raw_;
  const qsizetype found = html_.indexOf(end, at_, Qt::CaseInsensitive);
  const QStringView content = html_.sliced(at_, (found < 0 ? html_.size() : found) - at_);
  at_ += content.size();
  raw_.clear();
  HtmlToken token;
  switch (element->content) {
    case RawElement::Content::leftOut:
      break;
    case RawElement::Content::kept:
      token.text = content.toString();
      break;
    case RawElement::Content::withReferences:
      token.text = withoutReferences(content);
      break;
  }
  return token;
}

HtmlToken HtmlReader::endTag() {
  at_ += 2;
  HtmlToken token;
  token.kind = HtmlToken::Kind::end;
  token.name = name();
  skipPast(u'>');
  return token;
}

HtmlToken HtmlReader::startTag() {
  ++at_;
  HtmlToken token;
  token.kind = HtmlToken::Kind::start;
  token.name = name();
  while (at_ < html_.size() && peek() != u'>') {
    if (isBlank(peek()) || peek() == u'/') {
      ++at_;
      continue;
    }
    Attribute read = attribute();
    const auto isSame = [&](const Attribute& other) { return other.name == read.name; };
    if (token.attributes.size() < kMostAttributes && std::ranges::none_of(token.attributes, isSame)) {
      token.attributes.push_back(std::move(read));
    }
  }
  skipPast(u'>');
  if (rawElement(token.name) != nullptr) raw_ = token.name;
  return token;
}

QString HtmlReader::name() {
  const qsizetype first = at_;
  while (at_ < html_.size() && !endsName(html_[at_])) ++at_;
  return html_.sliced(first, at_ - first).toString().toLower();
}

Attribute HtmlReader::attribute() {
  Attribute read;
  const qsizetype first = at_;
  ++at_;  // an "=" here belongs to the name
  while (at_ < html_.size() && !endsName(html_[at_]) && html_[at_] != u'=') ++at_;
  read.name = html_.sliced(first, at_ - first).toString().toLower();
  skipBlanks();
  if (peek() == u'=') {
    ++at_;
    read.value = attributeValue();
  }
  return read;
}

QString HtmlReader::attributeValue() {
  skipBlanks();
  const QChar quote = peek();
  qsizetype first = at_;
  if (quote == u'"' || quote == u'\'') {
    ++first;
    const qsizetype end = html_.indexOf(quote, first);
    at_ = end < 0 ? html_.size() : end + 1;
    return withoutReferences(html_.sliced(first, (end < 0 ? html_.size() : end) - first));
  }
  while (at_ < html_.size() && !isBlank(html_[at_]) && html_[at_] != u'>') ++at_;
  return withoutReferences(html_.sliced(first, at_ - first));
}

}  // namespace desktop::pages

#include "motor/language/parsing/token_stream.h"

#include <algorithm>

#include "motor/language/lexer.h"

namespace motor {

TokenStream::TokenStream(std::string_view source, Position start) : source_(source), tokens_(tokenize(source, start)) {}

const Token& TokenStream::peek(std::size_t ahead) const {
  return tokens_[std::min(index_ + ahead, tokens_.size() - 1)];
}

const Token& TokenStream::next() {
  const Token& token = tokens_[index_];
  if (token.kind != Token::Kind::end) ++index_;
  return token;
}

bool TokenStream::isAnyWord(std::initializer_list<const char*> words, std::size_t ahead) const {
  return std::any_of(words.begin(), words.end(), [this, ahead](const char* word) { return isWord(word, ahead); });
}

bool TokenStream::acceptWord(const char* word) {
  if (!isWord(word)) return false;
  next();
  return true;
}

bool TokenStream::acceptWords(const char* first, const char* second) {
  if (!isWord(first) || !isWord(second, 1)) return false;
  next();
  next();
  return true;
}

bool TokenStream::acceptSign(const char* sign) {
  if (!isSign(sign)) return false;
  next();
  return true;
}

std::size_t TokenStream::wordsNext(std::string_view phrase) const {
  std::size_t count = 0;
  while (!phrase.empty()) {
    const std::size_t end = std::min(phrase.find(' '), phrase.size());
    const Token& token = peek(count);
    if (token.kind != Token::Kind::name || token.folded != phrase.substr(0, end)) return 0;
    ++count;
    phrase.remove_prefix(std::min(end + 1, phrase.size()));
  }
  return count;
}

void TokenStream::passOver(Position position, std::string_view words) {
  if (quiet_ > 0) return;
  passedOver_.push_back({position, words.empty() ? statement_ : statement_ + " ... " + std::string(words)});
}

void TokenStream::expectWord(const char* word, const char* expected) {
  if (!acceptWord(word)) failExpecting(expected);
}

void TokenStream::expectSign(const char* sign) {
  if (!acceptSign(sign)) failExpecting("«" + std::string(sign) + "»");
}

std::string TokenStream::expectText(const char* expected) {
  if (peek().kind != Token::Kind::text) failExpecting(expected);
  return next().text;
}

std::string TokenStream::written(std::size_t first) const {
  const std::size_t begin = tokens_[first].begin;
  return index_ > first ? std::string(source_.substr(begin, tokens_[index_ - 1].end - begin)) : std::string();
}

void TokenStream::failExpecting(const std::string& expected) const { fail("se esperaba " + expected); }

void TokenStream::fail(const std::string& reason) const {
  const Token& token = peek();
  throw LanguageError(token.position, std::string(source_.substr(token.begin, token.end - token.begin)), reason);
}

TokenStream::Level::Level(TokenStream& stream) : stream_(stream) {
  if (stream.depth_ >= kMaximumDepth) stream.fail("demasiados niveles de anidamiento");
  ++stream.depth_;
}

}  // namespace motor

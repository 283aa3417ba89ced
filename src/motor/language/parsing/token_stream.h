#pragma once

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "motor/language/passed_over.h"
#include "motor/language/token.h"

namespace motor {

// The tokens of a program, read from the front. Words are given in lower case and matched without regard to case.
class TokenStream {
 public:
  // How deep expressions and statements may be nested.
  static constexpr int kMaximumDepth = 200;

  TokenStream(std::string_view source, Position start);

  [[nodiscard]] const Token& peek(std::size_t ahead = 0) const;
  const Token& next();
  [[nodiscard]] Position position() const { return peek().position; }
  // The token that was read last, of those that have been.
  [[nodiscard]] const Token& before() const { return tokens_[index_ > 0 ? index_ - 1 : 0]; }
  [[nodiscard]] bool atEnd() const { return peek().kind == Token::Kind::end; }
  [[nodiscard]] std::size_t index() const { return index_; }

  [[nodiscard]] bool isWord(const char* word, std::size_t ahead = 0) const { return peek(ahead).isWord(word); }
  [[nodiscard]] bool isAnyWord(std::initializer_list<const char*> words, std::size_t ahead = 0) const;
  [[nodiscard]] bool isSign(const char* sign, std::size_t ahead = 0) const { return peek(ahead).isSign(sign); }

  // Reads the word or sign when it comes next.
  bool acceptWord(const char* word);
  bool acceptWords(const char* first, const char* second);
  bool acceptSign(const char* sign);

  // How many words of a phrase ("auto retry"; in lower case, a blank between two) come next: all of them, or 0.
  [[nodiscard]] std::size_t wordsNext(std::string_view phrase) const;
  void skip(std::size_t tokens) { index_ = std::min(index_ + tokens, tokens_.size() - 1); }

  // What is read and without effect is written down under the words of its statement.
  void beginStatement(std::string words) { statement_ = std::move(words); }
  void passOver(Position position, std::string_view words);
  [[nodiscard]] const std::vector<PassedOverPart>& passedOver() const { return passedOver_; }

  // While it lives nothing is written down: it belongs to something that is.
  class Quiet {
   public:
    explicit Quiet(TokenStream& stream) : stream_(stream) { ++stream_.quiet_; }
    ~Quiet() { --stream_.quiet_; }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

   private:
    TokenStream& stream_;
  };

  // Reads what has to come next, or fails; `expected` is told to the user.
  void expectWord(const char* word, const char* expected);
  void expectSign(const char* sign);
  [[nodiscard]] std::string expectText(const char* expected);

  // The source from the token with index `first` up to the token read last.
  [[nodiscard]] std::string written(std::size_t first) const;

  // Throws LanguageError at the next token: "se esperaba ..." what is told.
  [[noreturn]] void failExpecting(const std::string& expected) const;
  [[noreturn]] void fail(const std::string& reason) const;

  // Counts a level of nesting while it lives; too many are an error.
  class Level {
   public:
    explicit Level(TokenStream& stream);
    ~Level() { --stream_.depth_; }
    Level(const Level&) = delete;
    Level& operator=(const Level&) = delete;

   private:
    TokenStream& stream_;
  };

 private:
  std::string_view source_;
  std::vector<Token> tokens_;
  std::size_t index_ = 0;
  int depth_ = 0;
  std::string statement_;  // the words of the one that is read
  std::vector<PassedOverPart> passedOver_;
  int quiet_ = 0;
};

}  // namespace motor

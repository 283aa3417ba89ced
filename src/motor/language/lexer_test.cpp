#include "motor/language/lexer.h"

#include <gtest/gtest.h>

namespace motor {
namespace {

// The tokens as "kind:text", without the end.
std::string shown(std::string_view source) {
  constexpr const char* kKinds[] = {"name", "number", "text", "sign", "end"};
  std::string result;
  for (const Token& token : tokenize(source)) {
    if (token.kind == Token::Kind::end) break;
    if (!result.empty()) result += ' ';
    result += std::string(kKinds[static_cast<int>(token.kind)]) + ":" + token.text;
  }
  return result;
}

TEST(LexerTest, readsTokens) {
  struct Case {
    const char* source;
    const char* tokens;
  };
  const Case cases[] = {
      {"", ""},
      {"set window 1234Max", "name:set name:window number:1234 name:Max"},
      {"65938style 1", "number:65938 name:style number:1"},
      {"center(1,2))zoom 300", "name:center sign:( number:1 sign:, number:2 sign:) sign:) name:zoom number:300"},
      {"\"a \"\"b\"\" c\"", "text:a \"b\" c"},
      {"\"\"", "text:"},
      {"\"\\\\servidor\\x\"", "text:\\\\servidor\\x"},
      {"a 'comment \"x\"\n b", "name:a name:b"},
      {"With \"\" 'House_Number", "name:With text:"},
      {"1.5 .5 1e3 1E-2 1.065814104e-014 12e",
       "number:1.5 number:.5 number:1e3 number:1E-2 number:1.065814104e-014 "
       "number:12 name:e"},
      {"&H800000 a & Hola", "number:&H800000 name:a sign:& name:Hola"},
      {"Selection.COL1", "name:Selection sign:. name:COL1"},
      {"FichaAños_ñ año Ávila", "name:FichaAños_ñ name:año name:Ávila"},
      {"Chr$(10) _x x9", "name:Chr$ sign:( number:10 sign:) name:_x name:x9"},
      {"<= >= <> < > = + - * / \\ ^ : ; #",
       "sign:<= sign:>= sign:<> sign:< sign:> sign:= sign:+ sign:- sign:* sign:/ "
       "sign:\\ sign:^ sign:: sign:; sign:#"},
      {"\r\n\t a\fb", "name:a name:b"},
  };
  for (const Case& c : cases) EXPECT_EQ(shown(c.source), c.tokens) << c.source;
}

TEST(LexerTest, readsNumbersByValue) {
  struct Case {
    const char* source;
    double value;
  };
  const Case cases[] = {{"0.25", 0.25}, {"1e3", 1000}, {"&HFF", 255}, {"&h800000", 8388608}, {"1e-400", 0}};
  for (const Case& c : cases) EXPECT_EQ(tokenize(c.source).front().number, c.value) << c.source;
}

TEST(LexerTest, countsLinesAndCharacters) {
  const auto tokens = tokenize("año \"ñ\" x\r\n  y", {3, 5});
  ASSERT_EQ(tokens.size(), 5U);
  EXPECT_EQ(tokens[0].position, (Position{3, 5}));
  EXPECT_EQ(tokens[1].position, (Position{3, 9}));
  EXPECT_EQ(tokens[2].position, (Position{3, 13}));
  EXPECT_EQ(tokens[3].position, (Position{4, 3}));
  EXPECT_EQ(tokens[4].position, (Position{4, 4}));
}

TEST(LexerTest, endsLinesAtEitherSign) {
  const auto tokens = tokenize("a ' nothing\rb\r\nc\n\rd");
  ASSERT_EQ(tokens.size(), 5U);
  EXPECT_EQ(tokens[1].position, (Position{2, 1}));
  EXPECT_EQ(tokens[2].position, (Position{3, 1}));
  EXPECT_EQ(tokens[3].position, (Position{5, 1}));
}

TEST(LexerTest, rejectsWhatIsNoToken) {
  struct Case {
    const char* source;
    const char* message;
  };
  const Case cases[] = {
      {"a \"b", "línea 1, columna 3: «\"b»: falta la comilla de cierre"},
      {"\"b\nc\"", "línea 1, columna 1: «\"b»: falta la comilla de cierre"},
      {"\"b\rc\"", "línea 1, columna 1: «\"b»: falta la comilla de cierre"},
      {"x\n  ¿", "línea 2, columna 3: «¿»: carácter que no pertenece al lenguaje"},
      {"!", "línea 1, columna 1: «!»: carácter que no pertenece al lenguaje"},
      {"1e999", "línea 1, columna 1: «1e999»: el número es demasiado grande"},
  };
  for (const Case& c : cases) {
    try {
      static_cast<void>(tokenize(c.source));
      ADD_FAILURE() << c.source;
    } catch (const LanguageError& error) {
      EXPECT_STREQ(error.what(), c.message);
    }
  }
}

}  // namespace
}  // namespace motor

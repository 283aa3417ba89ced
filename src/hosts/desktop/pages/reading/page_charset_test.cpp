#include "hosts/desktop/pages/reading/page_charset.h"

#include <gtest/gtest.h>

namespace desktop::pages {
namespace {

TEST(PageCharset, IsGuessedWhereNoneIsDeclared) {
  EXPECT_EQ(decodedPage("Población"), "Población");
  EXPECT_EQ(decodedPage("Poblaci\xF3n \x80 \x96 \xA7"), "Población € – §");
  EXPECT_EQ(decodedPage(""), "");
}

TEST(PageCharset, AByteOrderMarkCountsFirst) {
  EXPECT_EQ(decodedPage("\xEF\xBB\xBF<meta charset=iso-8859-1>\xC3\xB1"), "<meta charset=iso-8859-1>ñ");
  EXPECT_EQ(decodedPage(QByteArray("\xFF\xFE\xF1\x00o\x00", 6)), "ño");
  EXPECT_EQ(decodedPage(QByteArray("\xFE\xFF\x00\xF1\x00o", 6)), "ño");
  EXPECT_EQ(decodedPage(QByteArray("\xFF\xFE\xF1\x00\xF1", 5)), "ñ");
}

struct Declared {
  QByteArray page;
  QByteArray charset;
};

TEST(PageCharset, IsReadFromItsDeclaration) {
  for (const Declared& each : {
           Declared{"<META CHARSET = 'UTF-8'>", "utf-8"},
           Declared{"<meta http-equiv=Content-Type content=\"text/html; charset=windows-1252\">", "windows-1252"},
           Declared{"<meta http-equiv=Content-Type content=text/html;charset=iso-8859-15>", "iso-8859-15"},
           Declared{"<meta name=a content=b><meta charset=cp850>", "cp850"},
           Declared{"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>", "iso-8859-1"},
           Declared{"<title>charset=utf-8</title>", ""},
           Declared{"<meta charset", ""},
           Declared{"<meta charset=", ""},
           Declared{"<meta name=a><p>charset=x", ""},
       }) {
    EXPECT_EQ(declaredCharset(each.page), each.charset) << each.page.constData();
  }
  EXPECT_EQ(declaredCharset(QByteArray(5000, ' ') + "<meta charset=utf-8>"), "");
}

struct Read {
  const char* charset;
  const char* bytes;
  const char* text;
};

TEST(PageCharset, TablesOfTheUsualOnes) {
  for (const Read& each : {
           Read{"windows-1252", "\x93\xE1\x94 \x80", "“á” €"},
           Read{"iso-8859-1", "\x93\xE1\x94 \xA4", "“á” ¤"},
           Read{"ISO-8859-15", "\xE1 \xA4 \xBD", "á € œ"},
           Read{"windows-1250", "\xE8 \x9A", "č š"},
           Read{"windows-1251", "\xCC\xE8\xF0", "Мир"},
           Read{"cp850", "\xA4\xA0", "ñá"},
           Read{"cp437", "\xA4\xA0", "ñá"},
           Read{"cp852", "\xA0", "á"},
           Read{"utf-8", "\xC3\xB1", "ñ"},
           Read{"utf-8", "a\xF1o", "año"},
           Read{"desconocido", "\xC3\xB1", "ñ"},
           Read{"desconocido", "a\xF1o", "año"},
       }) {
    const QByteArray meta = QByteArray("<meta charset=") + each.charset + '>';
    EXPECT_EQ(decodedPage(meta + each.bytes), QString::fromLatin1(meta) + QString::fromUtf8(each.text))
        << each.charset << ' ' << each.text;
  }
}

TEST(PageCharset, WhatDocumentsUseThemselvesIsTakenOut) {
  EXPECT_EQ(decodedPage(QByteArray("a\0b\x1B"
                                   "c\td\n",
                                   8)),
            "a b c\td\n");
  EXPECT_EQ(decodedPage("\xEF\xB7\x90\xEF\xB7\x91\xEF\xBF\xBC\xE2\x80\xA9"), QString(4, QChar::ReplacementCharacter));
  EXPECT_EQ(decodedPage("\xF0\x9F\x98\x80"), "😀");
  EXPECT_EQ(decodedPage(QByteArray("\xFF\xFE\x00\xD8\x41\x00", 6)), QString(QChar::ReplacementCharacter) + "A");
  EXPECT_EQ(decodedPage("\xC2\x85\x7F"), "  ");
}

}  // namespace
}  // namespace desktop::pages

#include "hosts/desktop/pages/reading/character_references.h"

#include <gtest/gtest.h>

namespace desktop::pages {
namespace {

struct Case {
  const char* html;
  const char* text;
};

TEST(CharacterReferences, AreReplaced) {
  for (const Case& each : {
           Case{"", ""},
           Case{"A&ntilde;o &aacute;&Aacute;&yuml;", "Año áÁÿ"},
           Case{"&lt;b&gt; &amp;amp; &quot;&apos;", "<b> &amp; \"'"},
           Case{"a&nbsp;b", "a\u00A0b"},
           Case{"&#241;&#xF1;&#XF1;&#241", "ññññ"},
           Case{"&#150;&#128;&#145;", "–€‘"},
           Case{"&euro;&hellip;&mdash;&le;&Sigma;", "€…—≤Σ"},
           Case{"&ntilde &notilde; &copy2005", "ñ ¬ilde; ©2005"},
           Case{"&euro &x; & &; &# &#; &#x; &#xg", "&euro &x; & &; &# &#; &#x; &#xg"},
           Case{"R&D AT&T a&b=c&d", "R&D AT&T a&b=c&d"},
           Case{"&#0;&#1;|&#9;|&#127;|", "|\t||"},
           Case{"&#129;&#x8D;&#xFEFF;", "\uFFFD\uFFFD\uFFFD"},
           Case{"&#xD800; &#x110000; &#99999999999999; &#xFDD0; &#65535;", "\uFFFD \uFFFD \uFFFD \uFFFD \uFFFD"},
           Case{"&#128512;", "😀"},
       }) {
    EXPECT_EQ(withoutReferences(QString::fromUtf8(each.html)), QString::fromUtf8(each.text)) << each.html;
  }
}

TEST(CharacterReferences, ManyAreReadInOneGo) {
  const QString many = QStringLiteral("&amp").repeated(200000);
  EXPECT_EQ(withoutReferences(many), QString(200000, u'&'));
}

}  // namespace
}  // namespace desktop::pages

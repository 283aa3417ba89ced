#include "hosts/headless/transcript.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hosts/headless/faults.h"
#include "hosts/headless/wildcard.h"

namespace {

using Lines = std::vector<std::string>;

TEST(Wildcard, StarStandsForAnyRun) {
  struct Case {
    const char* pattern;
    const char* text;
    bool matches;
  };
  for (const Case& c : {Case{"", "", true}, Case{"", "a", false}, Case{"*", "", true}, Case{"*", "do x", true},
                        Case{"do *", "do x y", true}, Case{"do *", "do", false}, Case{"*y", "do x y", true},
                        Case{"a*b*c", "a1b2b3c", true}, Case{"a*b*c", "a1b2b3", false}, Case{"abc", "abd", false},
                        Case{"**a", "ba", true}, Case{"eval EOT(*)", "eval EOT(\"Selection\")", true}}) {
    EXPECT_EQ(headless::matchesWildcard(c.pattern, c.text), c.matches) << c.pattern << " / " << c.text;
  }
}

class TranscriptTest : public ::testing::Test {
 protected:
  Lines lines;
  headless::Transcript transcript{[this](const std::string& line) { lines.push_back(line); }, "/opt/estudio"};
};

TEST_F(TranscriptTest, NamesWhatDiffersBetweenHosts) {
  transcript.nameHandle(700001, "PictureMapa");
  transcript.nameMap("42");
  struct Case {
    const char* line;
    const char* written;
  };
  for (const Case& c : {
           Case{"do Set application Window 700001", "do Set application Window <hwnd:PictureMapa>"},
           Case{"do set window 42Max", "do set window <map>Max"},
           Case{"do set map zoom 42.5", "do set map zoom 42.5"},
           Case{"do set map zoom 1.42", "do set map zoom 1.42"},
           Case{"do set map zoom 142", "do set map zoom 142"},
           Case{"eval frontwindow() = 42", "eval frontwindow() = <map>"},
           Case{"node 1 \"42\"", "node 1 \"42\""},
           Case{"dir /opt/estudio\\Tablas\\x.wor = x.wor", "dir <app>\\Tablas\\x.wor = x.wor"},
           Case{"do set map layer 1 label default ", "do set map layer 1 label default·"},
           Case{"eval x =   ", "eval x =···"},
           Case{"msgbox 0 \"\" \"a\r\nb\nc\"", "msgbox 0 \"\" \"a↵b↵c\""},
       }) {
    EXPECT_EQ(transcript.asWritten(c.line), c.written);
  }
  transcript.nameMap("");
  EXPECT_EQ(transcript.asWritten("do set window 42Max"), "do set window 42Max");
}

TEST_F(TranscriptTest, LeavesOutHushedKindsAndEverythingOnceClosed) {
  transcript.hush({"set", "tree"});
  transcript.write("set a.Visible True");
  transcript.write("do set map zoom entire");
  transcript.write("tree", "do not show");
  transcript.close();
  transcript.write("do end mapinfo");
  EXPECT_EQ(lines, (Lines{"do set map zoom entire"}));
}

TEST(Faults, EachHappensOnceToTheEffectThatItWaitsFor) {
  headless::Faults faults;
  faults.failNext("do Select*", headless::failureNumbered(91));
  faults.failNext("do *", headless::failureNumbered(429, "no"));
  EXPECT_FALSE(faults.take("eval x", headless::CallKind::engine).has_value());
  EXPECT_EQ(faults.take("do Select * from x", headless::CallKind::engine)->number(), 91);
  EXPECT_EQ(faults.take("do Select * from x", headless::CallKind::engine)->description(), "no");
  EXPECT_FALSE(faults.take("do Select * from x", headless::CallKind::engine).has_value());
}

TEST(Faults, CallsAreCountedByKindFromWhereTheFaultWasSet) {
  headless::Faults faults;
  EXPECT_FALSE(faults.take("do a", headless::CallKind::engine).has_value());
  faults.failCall(headless::CallKind::engine, 2, headless::failureNumbered(6));
  EXPECT_FALSE(faults.take("do b", headless::CallKind::engine).has_value());
  EXPECT_FALSE(faults.take("copy a -> b", headless::CallKind::machine).has_value());
  EXPECT_EQ(faults.take("eval c", headless::CallKind::engine)->number(), 6);
  EXPECT_FALSE(faults.take("eval c", headless::CallKind::engine).has_value());
  EXPECT_EQ(faults.calls(headless::CallKind::engine), 4);
  EXPECT_EQ(faults.calls(headless::CallKind::machine), 1);
  faults.failCall(headless::CallKind::machine, 1, headless::failureNumbered(53));
  EXPECT_FALSE(faults.take("do d", headless::CallKind::engine).has_value());
  EXPECT_FALSE(faults.take("msgbox 0").has_value());
  EXPECT_EQ(faults.take("shell x", headless::CallKind::machine)->number(), 53);
}

TEST(Faults, KnownNumbersHaveTheirDescriptions) {
  EXPECT_EQ(headless::failureNumbered(13).description(), "No coinciden los tipos");
  EXPECT_EQ(headless::failureNumbered(13, "otra cosa").description(), "otra cosa");
  EXPECT_EQ(headless::failureNumbered(7).description(), "Error definido por la aplicación o el objeto");
}

}  // namespace

#include "base/strings.h"
#include <gtest/gtest.h>

TEST(OrEmpty, NullIsEmpty)
{
  const char *text = "text";
  EXPECT_EQ(text, orEmpty(text));
  EXPECT_STREQ("", orEmpty(nullptr));
}

TEST(Between, NullIsEmpty)
{
  std::string text = "old";
  EXPECT_EQ(&between(text, "a%", "b", "c"), &text);
  EXPECT_EQ(text, "a%bc");
  EXPECT_EQ(between(text, nullptr, "b", "c"), "bc");
  EXPECT_EQ(between(text, "a", "b", nullptr), "ab");
  EXPECT_EQ(between(text, nullptr, "", nullptr), "");
}

TEST(Between, PartsOfTheDestination)
{
  std::string text = "a text beyond the room inside of a string object";
  std::string old = text;
  between(text, text.c_str(), text, text.c_str());
  EXPECT_EQ(text, old + old + old);
}

TEST(FormatText, AsPrintf)
{
  EXPECT_EQ("a 5%", formatText("%s %d%%", "a", 5));
  EXPECT_EQ("", formatText("%s", ""));
  EXPECT_EQ("no format", formatText("no format"));
}

TEST(FormatText, Long)
{
  std::string text(100000, 'x');
  EXPECT_EQ(text + "y", formatText("%sy", text.c_str()));
}

// All 256 characters against the "C" locale's classes by number.
TEST(CharClass, AllCharacters)
{
  for (int code = 0; code < 256; ++code) {
    char c = static_cast<char>(code);
    bool capital = code >= 65 && code <= 90;
    bool small = code >= 97 && code <= 122;
    bool digit = code >= 48 && code <= 57;
    EXPECT_EQ(code >= 32 && code <= 126, isPrintableChar(c)) << code;
    EXPECT_EQ(code == 32 || (code >= 9 && code <= 13), isSpaceChar(c)) << code;
    EXPECT_EQ(capital, isCapitalChar(c)) << code;
    EXPECT_EQ(small, isSmallChar(c)) << code;
    EXPECT_EQ(capital || small, isLetterChar(c)) << code;
    EXPECT_EQ(digit, isDigitChar(c)) << code;
    EXPECT_EQ(capital || small || digit, isLetterOrDigitChar(c)) << code;
    EXPECT_EQ(static_cast<char>(small ? code - 32 : code), upperChar(c));
    EXPECT_EQ(static_cast<char>(capital ? code + 32 : code), lowerChar(c));
  }
}

TEST(Strcmp16, Order)
{
  EXPECT_EQ(0, strcmp16(u"", u""));
  EXPECT_EQ(0, strcmp16(u"ab\u4e00", u"ab\u4e00"));
  EXPECT_LT(strcmp16(u"ab", u"ac"), 0);
  EXPECT_GT(strcmp16(u"ac", u"ab"), 0);
  EXPECT_LT(strcmp16(u"a", u"ab"), 0);
  EXPECT_GT(strcmp16(u"ab", u"a"), 0);
  EXPECT_LT(strcmp16(u"", u"a"), 0);
  EXPECT_GT(strcmp16(u"\uff00", u"\u0001"), 0);
  EXPECT_NE(0, strcmp16(u"\u0161", u"\u0061"));  // same low octet
}

TEST(Strcmp32, OnlyEqualOrNot)
{
  EXPECT_EQ(0, strcmp32(U"", U""));
  EXPECT_EQ(0, strcmp32(U"a\U0001F600", U"a\U0001F600"));
  EXPECT_EQ(1, strcmp32(U"a", U"b"));
  EXPECT_EQ(1, strcmp32(U"b", U"a"));
  EXPECT_EQ(1, strcmp32(U"a", U"ab"));
  EXPECT_EQ(1, strcmp32(U"ab", U"a"));
  EXPECT_EQ(1, strcmp32(U"\U00010041", U"A"));  // same low half
}

TEST(Strchr16, FirstOrTerminator)
{
  const char16_t *text = u"abcb";
  EXPECT_EQ(text + 1, strchr16(text, u'b'));
  EXPECT_EQ(text + 4, strchr16(text, 0));
  EXPECT_EQ(nullptr, strchr16(text, u'x'));
  EXPECT_EQ(nullptr, strchr16(u"", u'x'));
}

TEST(Strchr32, FirstOrTerminator)
{
  const char32_t *text = U"abcb";
  EXPECT_EQ(text + 1, strchr32(text, U'b'));
  EXPECT_EQ(text + 4, strchr32(text, 0));
  EXPECT_EQ(nullptr, strchr32(text, U'x'));
  EXPECT_EQ(nullptr, strchr32(U"", U'x'));
}

TEST(Strcpy16, CopiesAndAppends)
{
  char16_t text[8] = u"zzzzzzz";
  EXPECT_EQ(text, strcpy16(text, u"abc"));
  EXPECT_EQ(0, strcmp16(u"abc", text));
  EXPECT_EQ(u'z', text[4]);
  EXPECT_EQ(text, strcat16(text, u"de"));
  EXPECT_EQ(0, strcmp16(u"abcde", text));
  EXPECT_EQ(u'z', text[6]);
  strcat16(text, u"");
  EXPECT_EQ(5u, strlen16(text));
  strcpy16(text, u"");
  EXPECT_EQ(0u, strlen16(text));
}

TEST(Strcpy32, CopiesAndAppends)
{
  char32_t text[8] = U"zzzzzzz";
  EXPECT_EQ(text, strcpy32(text, U"abc"));
  EXPECT_EQ(0, strcmp32(U"abc", text));
  EXPECT_EQ(U'z', text[4]);
  EXPECT_EQ(text, strcat32(text, U"de"));
  EXPECT_EQ(0, strcmp32(U"abcde", text));
  EXPECT_EQ(U'z', text[6]);
  strcat32(text, U"");
  EXPECT_EQ(5u, strlen32(text));
  strcpy32(text, U"");
  EXPECT_EQ(0u, strlen32(text));
}

TEST(StrLower, InPlace)
{
  std::string text = "aBZ-9_\xC4";
  EXPECT_EQ(&text, &strLower(text));
  EXPECT_EQ("abz-9_\xC4", text);
}

TEST(StrUpper, InPlace)
{
  std::string text = "Abz-9_\xE4";
  EXPECT_EQ(&text, &strUpper(text));
  EXPECT_EQ("ABZ-9_\xE4", text);
}

TEST(StrCaseComp, IgnoresCase)
{
  EXPECT_EQ(0, strCaseComp("aBc", "AbC"));
  EXPECT_EQ(0, strCaseComp("", ""));
  EXPECT_LT(strCaseComp("abc", "ABD"), 0);
  EXPECT_GT(strCaseComp("ABD", "abc"), 0);
  EXPECT_LT(strCaseComp("ab", "ABC"), 0);
  EXPECT_GT(strCaseComp("abc", "AB"), 0);
}

// "_" (95) lies between the capitals and the small letters.
TEST(StrCaseComp, RaisesToCapitals)
{
  EXPECT_GT(strCaseComp("_", "a"), 0);
  EXPECT_LT(strCaseComp("a", "_"), 0);
}

TEST(StrCaseComp, HighCharactersAreUnsigned)
{
  EXPECT_GT(strCaseComp("\xE4", "a"), 0);
  EXPECT_NE(0, strCaseComp("\xE4", "\xC4"));
}

TEST(StrnCaseComp, Length)
{
  EXPECT_EQ(0, strnCaseComp("abcX", "ABCy", 3));
  EXPECT_LT(strnCaseComp("abcX", "ABCy", 4), 0);
  EXPECT_EQ(0, strnCaseComp("abc", "xyz", 0));
  EXPECT_EQ(0, strnCaseComp("ab", "AB", 100));
  EXPECT_LT(strnCaseComp("ab", "ABC", 3), 0);
  EXPECT_EQ(0, strnCaseComp("ab", "ABC", 2));
}

TEST(StartsWith, Exactly)
{
  EXPECT_TRUE(startsWith("-VERBOSE", "-VER"));
  EXPECT_TRUE(startsWith("abc", "abc"));
  EXPECT_TRUE(startsWith("abc", ""));
  EXPECT_FALSE(startsWith("abc", "aBc"));
  EXPECT_FALSE(startsWith("ab", "abc"));
  EXPECT_FALSE(startsWith("", "a"));
}

TEST(ConvertHyphens, BothWays)
{
  std::string text = "-a-b_c-";
  EXPECT_EQ(&text, &convertHyphens(text));
  EXPECT_EQ("_a_b_c_", text);
  EXPECT_EQ(&text, &convertUnderscores(text));
  EXPECT_EQ("-a-b-c-", text);
}

TEST(ConvertHyphens, OthersStay)
{
  std::string text = "a.b+c";
  EXPECT_EQ("a.b+c", convertHyphens(text));
  EXPECT_EQ("a.b+c", convertUnderscores(text));
}

TEST(RemSpaces, BothEnds)
{
  std::string text = " \t\r\n\v\fa b\t c \n";
  EXPECT_EQ(&text, &remSpaces(text));
  EXPECT_EQ("a b\t c", text);
}

TEST(RemSpaces, NothingToDo)
{
  std::string text = "a";
  EXPECT_EQ("a", remSpaces(text));
  text = "\xA0x\xA0";  // no blank in the "C" locale
  EXPECT_EQ("\xA0x\xA0", remSpaces(text));
}

TEST(RemSpaces, NothingLeft)
{
  std::string text = " \t ";
  EXPECT_EQ("", remSpaces(text));
  EXPECT_EQ("", remSpaces(text));
}

TEST(Str2Prefix, FiveCharacters)
{
  EXPECT_EQ("my-mo", str2prefix("My_Module"));
  EXPECT_EQ("abcde", str2prefix("ABCDE"));
  EXPECT_EQ("a-b", str2prefix("A-b"));
  EXPECT_EQ("", str2prefix(""));
}

static std::string fileName(const char *text, const char *suffix, bool cut)
{
  std::string variable = "old";
  EXPECT_EQ(&variable, &setFileName(variable, text, suffix, cut));
  return variable;
}

TEST(SetFileName, CutReplacesExtension)
{
  EXPECT_EQ("abc.stx", fileName("abc.asn", ".stx", true));
  EXPECT_EQ("dir/abc.stx", fileName("dir/abc.asn", ".stx", true));
  EXPECT_EQ("a.b.stx", fileName("a.b.c", ".stx", true));
  EXPECT_EQ("abc", fileName("abc.asn", "", true));
  EXPECT_EQ(".stx", fileName(".asn", ".stx", true));
  EXPECT_EQ("abc.stx", fileName("abc", ".stx", true));
}

TEST(SetFileName, CutLeavesDirectory)
{
  EXPECT_EQ("a.b/c", fileName("a.b/c", "", true));
  EXPECT_EQ("a.b/c.stx", fileName("a.b/c", ".stx", true));
  EXPECT_EQ("a.b/c.stx", fileName("a.b/c.d", ".stx", true));
}

TEST(SetFileName, CutLimitsLength)
{
  std::string name(1020, 'n');
  EXPECT_EQ(name + ".stx", fileName(name.c_str(), ".stx", true));
  EXPECT_EQ(name + ".stx", fileName((name + "abc").c_str(), ".stx", true));
  // The limit cuts first: what is left of the extension goes then.
  std::string dotted = name.substr(0, 1000) + "." + std::string(100, 'e');
  EXPECT_EQ(name.substr(0, 1000) + ".stx",
            fileName(dotted.c_str(), ".stx", true));
}

TEST(SetFileName, AddsMissingSuffix)
{
  EXPECT_EQ("abc.stx", fileName("abc", ".stx", false));
  EXPECT_EQ("a.b/c.stx", fileName("a.b/c", ".stx", false));
}

TEST(SetFileName, KeepsExtension)
{
  EXPECT_EQ("abc.asn", fileName("abc.asn", ".stx", false));
  EXPECT_EQ("a/b.", fileName("a/b.", ".stx", false));
}

TEST(SetFileName, NoLimitWithoutCut)
{
  std::string name(2000, 'n');
  EXPECT_EQ(name + ".stx", fileName(name.c_str(), ".stx", false));
  EXPECT_EQ(name + ".asn", fileName((name + ".asn").c_str(), ".stx", false));
}

TEST(SetFileName, TextIsVariable)
{
  std::string variable = "some/name.asn";
  setFileName(variable, variable.c_str(), ".stx", true);
  EXPECT_EQ("some/name.stx", variable);
}

TEST(NewStriVal, Pieces)
{
  std::string variable = "old";
  EXPECT_EQ(&variable, &newStriVal(variable, "<", 2, "abcd", ">"));
  EXPECT_EQ("<ab>", variable);
  EXPECT_EQ("<>", newStriVal(variable, "<", 0, "abcd", ">"));
}

TEST(NewStriVal, ShortText)
{
  std::string variable;
  EXPECT_EQ("<ab>", newStriVal(variable, "<", 10, "ab", ">"));
}

TEST(NewStriVal, NullPieces)
{
  std::string variable = "old";
  EXPECT_EQ("ab", newStriVal(variable, nullptr, 2, "ab", nullptr));
  EXPECT_EQ("<>", newStriVal(variable, "<", 2, nullptr, ">"));
  EXPECT_EQ("", newStriVal(variable, nullptr, 0, nullptr, nullptr));
}

TEST(NewStriVal, PiecesInVariable)
{
  std::string variable = "ab";
  newStriVal(variable, variable.c_str(), 1, variable.c_str(),
             variable.c_str() + 1);
  EXPECT_EQ("abab", variable);
}

// Interned strings, the way from a string back to its index, and the folded
// hash numbers.

#include "store/records.h"
#include "store/stricache.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

// --- interning --------------------------------------------------------------

TEST(InternStri, OneAddressForEqualTexts)
{
  std::string first = "intern me", second = "intern me";
  const char *interned = internStri(first);
  EXPECT_STREQ(interned, "intern me");
  EXPECT_NE(interned, first.c_str());
  EXPECT_EQ(internStri(second), interned);
  first = "overwritten";
  EXPECT_STREQ(interned, "intern me");
}

TEST(InternStri, DifferentTexts)
{
  EXPECT_NE(internStri("stri"), internStri("Stri"));
  EXPECT_NE(internStri("stri"), internStri("stri "));
  EXPECT_NE(internStri(""), internStri(" "));
}

TEST(InternStri, EmptyText)
{
  EXPECT_STREQ(internStri(""), "");
  EXPECT_EQ(internStri(""), internStri(std::string()));
}

TEST(InternStri, PartOfAText)
{
  std::string text = "partwhole";
  EXPECT_STREQ(internStri(std::string_view(text).substr(0, 4)), "part");
}

TEST(InternStri, WiderCharacters)
{
  std::u16string first = u"wide \u4e00", second = first;
  EXPECT_EQ(internStri16(first), internStri16(second));
  EXPECT_EQ(std::u16string(internStri16(first)), first);
  EXPECT_NE(internStri16(u"wide a"), internStri16(u"wide b"));
  std::u32string wide = U"wider \U0001F600";
  EXPECT_EQ(internStri32(wide), internStri32(std::u32string(wide)));
  EXPECT_EQ(std::u32string(internStri32(wide)), wide);
  // Equal but for the high half of a character.
  EXPECT_NE(internStri32(U"\U00010041"), internStri32(U"\u0041"));
}

TEST(InternStri, StaysThroughGrowth)
{
  std::vector<const char *> interned;
  for (int i = 0; i < 5000; ++i)
    interned.push_back(internStri("growth " + std::to_string(i)));
  for (int i = 0; i < 5000; ++i) {
    std::string text = "growth " + std::to_string(i);
    EXPECT_EQ(interned[static_cast<size_t>(i)], text);
    EXPECT_EQ(internStri(text), interned[static_cast<size_t>(i)]);
  }
}

TEST(InternStri, LongestTexts)
{
  std::string text(32000, 'x');
  EXPECT_EQ(internStri(text), text);
  std::u32string wide(32000, U'\U0010FFFF');
  EXPECT_EQ(std::u32string(internStri32(wide)), wide);
  // Longer than what is fetched at once.
  std::string huge(1000000, 'y');
  EXPECT_EQ(internStri(huge), huge);
  EXPECT_STREQ(internStri("after the huge one"), "after the huge one");
}

TEST(AllocateUniqStri, ByKind)
{
  EXPECT_EQ(allocateUniqStri("uniq", REC_STRI), internStri("uniq"));
  EXPECT_EQ(allocateUniqStri(u"uniq", REC_STRI16), internStri16(u"uniq"));
  EXPECT_EQ(allocateUniqStri(U"uniq", REC_STRI32), internStri32(U"uniq"));
}

TEST(AllocateUniqStri, NullForOtherKinds)
{
  for (int kind : {-1, 0, 1, 6, 10, 11, 12, 13, 14})
    EXPECT_EQ(allocateUniqStri("uniq", kind), nullptr) << kind;
}

// --- a module's strings -----------------------------------------------------

TEST(StriSection, FindsWhatWasAppended)
{
  StriSection<char> section;
  const char *a = internStri("section a"), *b = internStri("section b");
  EXPECT_EQ(section.find(a), 0);
  EXPECT_EQ(section.append(a), 1);
  EXPECT_EQ(section.find(a), 1);
  EXPECT_EQ(section.find(b), 0);
  EXPECT_EQ(section.append(b), 2);
  EXPECT_EQ(section.find(a), 1);
  EXPECT_EQ(section.find(b), 2);
  EXPECT_EQ(section.strings, (std::vector<const char *>{a, b}));
}

TEST(StriSection, LastOfEqualOnes)
{
  StriSection<char> section;
  const char *a = internStri("twice"), *b = internStri("once");
  section.append(a);
  section.append(b);
  EXPECT_EQ(section.append(a), 3);
  EXPECT_EQ(section.find(a), 3);
  EXPECT_EQ(section.find(b), 2);
  EXPECT_EQ(section.strings.size(), 3u);
}

TEST(StriSection, ThroughGrowth)
{
  StriSection<char> section;
  for (int i = 1; i <= 3000; ++i) {
    EXPECT_EQ(section.append(internStri("many " + std::to_string(i % 2000))),
              i);
    EXPECT_LE(3 * section.cache.used, 2 * section.cache.slots.size());
  }
  EXPECT_EQ(section.cache.used, 2000u);
  // Numbers 0 to 1000 came twice, the second time 2000 later.
  for (int i = 0; i < 2000; ++i) {
    int expected = i <= 1000 ? i + 2000 : i;
    EXPECT_EQ(section.find(internStri("many " + std::to_string(i))), expected);
  }
  EXPECT_EQ(section.find(internStri("many 2000")), 0);
}

// --- hash numbers -----------------------------------------------------------

// A is 65: 65; 65 * 16 + 66 = 1106; 1106 * 16 + 67 = 17763.
TEST(HashNumber, ShortTexts)
{
  EXPECT_EQ(hash(""), 0);
  EXPECT_EQ(hash("A"), 65);
  EXPECT_EQ(hash("AB"), 106);
  EXPECT_EQ(hash("ABC"), 763);
  EXPECT_EQ(hash16(u""), 0);
  EXPECT_EQ(hash16(u"ABC"), 763);
  EXPECT_EQ(hash32(U""), 0);
  EXPECT_EQ(hash32(U"ABC"), 763);
}

// After "ABCDEFG" the value is 0x456789A7. Its top four bits, 4, go to bits 4
// to 7: 0x056789A7 xor 0x40 = 0x056789E7 = 90671591. With "H", 0x48, it is
// 0x56789EB8, which folds to 0x06789EB8 xor 0x50 = 0x06789EE8 = 108568296.
TEST(HashNumber, TopBitsAreFolded)
{
  EXPECT_EQ(hash("ABCDEFG"), 591);
  EXPECT_EQ(hash("ABCDEFGH"), 296);
  EXPECT_EQ(hash16(u"ABCDEFG"), 591);
  EXPECT_EQ(hash16(u"ABCDEFGH"), 296);
  EXPECT_EQ(hash32(U"ABCDEFG"), 591);
  EXPECT_EQ(hash32(U"ABCDEFGH"), 296);
}

// 0xE9 is -23, 0xFFFFFFE9; folded 0x0FFFFFE9 xor 0xF0 = 0x0FFFFF19, which is
// 268435225. Wider characters are unsigned: 233.
TEST(HashNumber, EightBitsAreSigned)
{
  EXPECT_EQ(hash("\xE9"), 225);
  EXPECT_EQ(hash16(u"\u00E9"), 233);
  EXPECT_EQ(hash32(U"\u00E9"), 233);
}

TEST(HashNumber, WideCharacters)
{
  EXPECT_EQ(hash16(u"\uFFFF"), 535);          // 65535
  EXPECT_EQ(hash32(U"\U0010FFFF"), 111);      // 1114111
  const char32_t beyond[] = {0x12345678, 0};  // 0x02345668 = 36984424
  EXPECT_EQ(hash32(beyond), 424);
}

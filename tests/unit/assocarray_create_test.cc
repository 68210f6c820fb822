// Associative arrays: making them, what they refuse, a heap that gives
// nothing, and the dump.

#include "support/assoctable.h"
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sys/resource.h>
#include <unistd.h>
#include <utility>
#include <vector>

// --- creation

static std::string refusal(unsigned flags, size_t keyLength)
{
  testing::internal::CaptureStderr();
  Table table = makeTable(flags, keyLength);
  EXPECT_EQ(nullptr, table) << flags;
  return testing::internal::GetCapturedStderr();
}

static std::string acceptance(unsigned flags, size_t keyLength)
{
  testing::internal::CaptureStderr();
  Table table = makeTable(flags, keyLength);
  EXPECT_NE(nullptr, table) << flags;
  return testing::internal::GetCapturedStderr();
}

TEST(AaCreate, FlagsByValue)
{
  EXPECT_EQ(1, AA_KEYCOPY);
  EXPECT_EQ(2, AA_VALCOPY);
  EXPECT_EQ(4, AA_KEYREF);
  EXPECT_EQ(8, AA_VALREF);
  EXPECT_EQ(16, AA_NODUP);
  EXPECT_EQ(32, AA_CASEINSIG);
  EXPECT_EQ(64, AA_CHARWIDTH16);
  EXPECT_EQ(128, AA_CHARWIDTH32);
}

TEST(AaCreate, Accepted)
{
  for (unsigned flags : {1u | 2u, 1u | 8u, 4u | 2u, 4u | 8u}) {
    EXPECT_EQ("", acceptance(flags, 0));
    EXPECT_EQ("", acceptance(flags, 4));
    EXPECT_EQ("", acceptance(flags | AA_NODUP, 0));
    EXPECT_EQ("", acceptance(flags | AA_CASEINSIG, 0));
    EXPECT_EQ("", acceptance(flags | AA_CHARWIDTH16, 0));
    EXPECT_EQ("", acceptance(flags | AA_CHARWIDTH32, 0));
  }
}

TEST(AaCreate, Empty)
{
  Table table = makeTable(copied);
  EXPECT_EQ(64u, table->size);
  EXPECT_EQ(0, table->entries);
  EXPECT_EQ(0, table->shrinkThreshold);
  EXPECT_EQ(57, table->growThreshold);
  EXPECT_EQ(0u, aaGet(*table, "any"));
  EXPECT_EQ(-1, aaDelete(*table, "any"));
}

TEST(AaCreate, DestroyNull)
{
  aaDestroyContext(nullptr);
}

TEST(AaCreate, FixedLengthIgnoresCaseFlag)
{
  EXPECT_EQ("aaCreateContext: fixed length of keys used, flag AA_CASEINSIG "
            "ignored\n",
            acceptance(copied | AA_CASEINSIG, 3));
  testing::internal::CaptureStderr();
  Table table = makeTable(copied | AA_CASEINSIG, 3);
  testing::internal::GetCapturedStderr();
  EXPECT_EQ(0, aaPut(*table, "abc", 1));
  EXPECT_EQ(0, aaPut(*table, "ABC", 2));
  EXPECT_EQ(1u, aaGet(*table, "abc"));
  EXPECT_EQ(2u, aaGet(*table, "ABC"));
}

TEST(AaCreate, FixedLengthRefusesWideCharacters)
{
  const char *line = "aaCreateContext: 16 or 32 bit characters may only be "
                     "used with arbitrary length keys\n";
  EXPECT_EQ(line, refusal(copied | AA_CHARWIDTH16, 4));
  EXPECT_EQ(line, refusal(copied | AA_CHARWIDTH32, 4));
}

TEST(AaCreate, CaseRefusesWideCharacters)
{
  const char *line =
      "aaCreateContext: case-insignificant comparison for 16 or 32 bit char "
      "strings not implemented\n";
  EXPECT_EQ(line, refusal(copied | AA_CASEINSIG | AA_CHARWIDTH16, 0));
  EXPECT_EQ(line, refusal(copied | AA_CASEINSIG | AA_CHARWIDTH32, 0));
}

TEST(AaCreate, TwoWidths)
{
  EXPECT_EQ("aaCreateContext: cannot specify both AA_CHARWIDTH16 and "
            "AA_CHARWIDTH32\n",
            refusal(copied | AA_CHARWIDTH16 | AA_CHARWIDTH32, 0));
}

// The notice does not stand for a refusal, nor keep one away.
TEST(AaCreate, FixedLengthNoticeThenRefusal)
{
  const std::string notice = "aaCreateContext: fixed length of keys used, flag "
                             "AA_CASEINSIG ignored\n";
  EXPECT_EQ(notice + "aaCreateContext: 16 or 32 bit characters may only be "
                     "used with arbitrary length keys\n",
            refusal(copied | AA_CASEINSIG | AA_CHARWIDTH32, 4));
  EXPECT_EQ(notice + "aaCreateContext: No AA_VAL specifier\n",
            refusal(AA_KEYREF | AA_CASEINSIG, 4));
}

TEST(AaCreate, OneRefusalIsEnough)
{
  EXPECT_EQ("aaCreateContext: case-insignificant comparison for 16 or 32 bit "
            "char strings not implemented\n",
            refusal(AA_CASEINSIG | AA_CHARWIDTH16 | AA_CHARWIDTH32, 0));
  EXPECT_EQ("aaCreateContext: cannot specify both AA_CHARWIDTH16 and "
            "AA_CHARWIDTH32\n",
            refusal(AA_CHARWIDTH16 | AA_CHARWIDTH32, 0));
  EXPECT_EQ("aaCreateContext: No AA_KEY specifier\n", refusal(0, 0));
}

TEST(AaCreate, NoKeySpecifier)
{
  EXPECT_EQ("aaCreateContext: No AA_KEY specifier\n", refusal(AA_VALREF, 0));
  EXPECT_EQ("aaCreateContext: No AA_KEY specifier\n", refusal(AA_VALCOPY, 4));
}

TEST(AaCreate, NoValueSpecifier)
{
  EXPECT_EQ("aaCreateContext: No AA_VAL specifier\n", refusal(AA_KEYREF, 0));
  EXPECT_EQ("aaCreateContext: No AA_VAL specifier\n", refusal(AA_KEYCOPY, 4));
}

// --- no memory

// Leaves the process that many octets to what it has.
static void limitMemory(rlim_t left)
{
  rlim_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  rlimit limit;
  getrlimit(RLIMIT_AS, &limit);
  limit.rlim_cur = pages * static_cast<rlim_t>(getpagesize()) + left;
  setrlimit(RLIMIT_AS, &limit);
}

// Larger than what a heap keeps of freed memory, so that a copy needs more
// from the system.
constexpr size_t hugeLength = 96 << 20;

// Puts a huge key with and without memory left; 0 if both times the table
// answers and stands as it should. The limit stays: for a process that ends
// with it.
static int putHugeKeys()
{
  Table table = makeTable(copied, hugeLength);
  std::vector<char> key(hugeLength, 'a');
  if (aaPut(*table, key.data(), 1) != 0)
    return 1;
  key.back() = 'b';
  limitMemory(hugeLength / 2);
  if (aaPut(*table, key.data(), 2) != -1)
    return 2;
  if (aaGet(*table, key.data()) != 0 || table->entries != 1)
    return 3;
  key.back() = 'a';
  return aaGet(*table, key.data()) == 1 ? 0 : 4;
}

TEST(AaPut, NoMemory)
{
  EXPECT_EXIT(exit(putHugeKeys()), testing::ExitedWithCode(0), "");
}

// --- dump

static std::string dumped(const AaContext &context)
{
  testing::internal::CaptureStdout();
  aaDumpTable(context);
  return testing::internal::GetCapturedStdout();
}

TEST(AaDump, Empty)
{
  Table table = makeTable(copied);
  EXPECT_EQ("Dumping table, ListSize = 64\n0 objects\n", dumped(*table));
}

TEST(AaDump, Entry)
{
  Table table = makeTable(copied);
  aaPut(*table, "one", 1);
  EXPECT_EQ("Dumping table, ListSize = 64\none -> 1\n1 objects\n",
            dumped(*table));
}

TEST(AaDump, CopiedValueIsText)
{
  Table table = makeTable(AA_KEYCOPY | AA_VALCOPY);
  aaPut(*table, "one", asValue("uno"));
  EXPECT_EQ("Dumping table, ListSize = 64\none -> uno\n1 objects\n",
            dumped(*table));
}

TEST(AaDump, BlockInHexadecimal)
{
  Table table = makeTable(copied, 3);
  aaPut(*table, "\x01\xAB", 7);
  EXPECT_EQ("Dumping table, ListSize = 64\n01AB00 -> 7\n1 objects\n",
            dumped(*table));
}

// Octets that are the same in each order of a host.
TEST(AaDump, WideTextInHexadecimal)
{
  const char16_t wide16[] = {0x4141, 0};
  Table table16 = makeTable(copied | AA_CHARWIDTH16);
  aaPut(*table16, wide16, 7);
  EXPECT_EQ("Dumping table, ListSize = 64\n41410000 -> 7\n1 objects\n",
            dumped(*table16));
  const char32_t wide32[] = {0x41414141, 0};
  Table table32 = makeTable(copied | AA_CHARWIDTH32);
  aaPut(*table32, wide32, 7);
  EXPECT_EQ("Dumping table, ListSize = 64\n4141414100000000 -> 7\n1 objects\n",
            dumped(*table32));
}

TEST(AaDump, OneLineAnEntry)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 60);
  std::string text = dumped(*table);
  EXPECT_EQ(62, std::ranges::count(text, '\n'));
  EXPECT_EQ(0u, text.find("Dumping table, ListSize = 128\n"));
  EXPECT_NE(std::string::npos, text.find("\nkey59 -> 60\n"));
  EXPECT_NE(std::string::npos, text.find("\n60 objects\n"));
  EXPECT_EQ(std::string::npos, text.find("BAD HASH"));
}

TEST(AaDump, BadHash)
{
  Table table = makeTable(referred);
  char key[] = "one";
  aaPut(*table, key, 1);
  key[0] = 'b';
  EXPECT_EQ("Dumping table, ListSize = 64\nbne -> 1   BAD HASH!\n1 objects\n",
            dumped(*table));
}

TEST(AaDump, BadBucket)
{
  Table table = makeTable(copied);
  aaPut(*table, "", 1);  // hash 65535, bucket 63
  std::swap(table->buckets[63], table->buckets[0]);
  EXPECT_EQ("Dumping table, ListSize = 64\n -> 1   BAD HASH!\n1 objects\n",
            dumped(*table));
}

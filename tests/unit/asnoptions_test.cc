#include "asn2stx/options.h"
#include "store/codes.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

// Reads arguments that must be good; "x.asn" is added.
static Asn2StxOptions optionsOf(std::vector<std::string> arguments)
{
  Asn2StxOptions options;
  std::string message;
  arguments.push_back("x.asn");
  EXPECT_TRUE(parseAsn2StxOptions(arguments, options, message)) << message;
  return options;
}

static std::string messageOf(const std::vector<std::string> &arguments)
{
  Asn2StxOptions options;
  std::string message;
  EXPECT_FALSE(parseAsn2StxOptions(arguments, options, message));
  return message;
}

TEST(AsnOptions, Defaults)
{
  Asn2StxOptions options = optionsOf({});
  EXPECT_THAT(options.files, ElementsAre("x.asn"));
  EXPECT_EQ(options.directory, "");
  EXPECT_EQ(options.prefixLength, 5u);
  EXPECT_THAT(options.saved, IsEmpty());
  EXPECT_THAT(options.entries, IsEmpty());
  EXPECT_FALSE(options.unionOfAdditions);
  EXPECT_FALSE(options.secondMarker);
  EXPECT_EQ(options.catalogue.intSize, 0);
}

TEST(AsnOptions, DirectoryAndLongOptions)
{
  Asn2StxOptions options =
      optionsOf({"-o", "out", "--union-of-additions", "--second-marker",
                 "--stamp=20240131:090807"});
  EXPECT_EQ(options.directory, "out/");
  EXPECT_TRUE(options.unionOfAdditions);
  EXPECT_TRUE(options.secondMarker);
  EXPECT_EQ(options.date, 20240131);
  EXPECT_EQ(options.time, 90807);
}

TEST(AsnOptions, CatalogueIsSavedAndGoverns)
{
  Asn2StxOptions options =
      optionsOf({"-int=U16", "-N=8", "-COMPMASK=32", "-CHOICE=16", "-REAL=32",
                 "-DYNSTRLIM=1", "-SEGSTRLIM=2", "-DYNLISTLIM=3",
                 "-SEGLISTLIM=4", "-DYNARRLIM=5"});
  EXPECT_EQ(options.catalogue.intSize, VF_UI16);
  EXPECT_EQ(options.catalogue.nSize, VF_I8);
  EXPECT_EQ(options.catalogue.compMaskSize, VF_I32);
  EXPECT_EQ(options.catalogue.choiceSize, VF_I16);
  EXPECT_EQ(options.catalogue.realSize, VF_REAL32);
  EXPECT_EQ(options.catalogue.dynStrLim, 1);
  EXPECT_EQ(options.catalogue.segStrLim, 2);
  EXPECT_EQ(options.catalogue.dynListLim, 3);
  EXPECT_EQ(options.catalogue.segListLim, 4);
  EXPECT_EQ(options.catalogue.dynArrLim, 5);
  ASSERT_EQ(options.saved.size(), 10u);
  EXPECT_EQ(options.saved[0], "-INT=U16");
  // A run begins with the defaults again.
  EXPECT_EQ(optionsOf({}).catalogue.intSize, 0);
}

TEST(AsnOptions, PrefixesAndBackEnd)
{
  Asn2StxOptions options = optionsOf(
      {"-prefix=Mod:abc", "-PREFIXLEN=32", "-BEO=QUORVEN=PERCOD=1:1"});
  ASSERT_EQ(options.prefixes.size(), 1u);
  EXPECT_EQ(options.prefixes[0].first, "Mod");
  EXPECT_EQ(options.prefixes[0].second, "abc");
  EXPECT_EQ(options.prefixLength, 32u);
  EXPECT_THAT(options.saved,
              ElementsAre("-PREFIX=Mod:abc", "-BEO=QUORVEN=PERCOD=1:1"));
  EXPECT_TRUE(backEndLine(options.saved[1]));
  EXPECT_FALSE(backEndLine(options.saved[0]));
}

TEST(AsnOptions, Entries)
{
  Asn2StxOptions options =
      optionsOf({"-ENTRY=A", "-ENTRY=B:PDU", "-ENTRY=C:SDU", "-ENTRY=D:17"});
  ASSERT_EQ(options.entries.size(), 4u);
  static const int categories[] = {0, 1, 2, 017};
  for (size_t i = 0; i < 4; ++i)
    EXPECT_EQ(options.entries[i].category, categories[i]) << i;
  EXPECT_EQ(options.entries[3].type, "D");
}

TEST(AsnOptions, Categories)
{
  uint8_t category = 9;
  EXPECT_TRUE(entryCategory("377", category));
  EXPECT_EQ(category, 255);
  for (const char *word : {"400", "8", "PDUS", "-1"})
    EXPECT_FALSE(entryCategory(word, category)) << word;
}

TEST(AsnOptions, BadOptions)
{
  for (const char *bad : {"-o",
                          "--nothing",
                          "-NOTHING=1",
                          "-PREFIX=",
                          "-PREFIX=Mod",
                          "-PREFIX=:abc",
                          "-PREFIX=Mod:a:b:c",
                          "-PREFIXLEN=0",
                          "-PREFIXLEN=33",
                          "-PREFIXLEN=x",
                          "-ENTRY=",
                          "-ENTRY=A:PDQ",
                          "-INT=7",
                          "-N=U8",
                          "-COMPMASK=x",
                          "-REAL=16",
                          "-DYNSTRLIM=-1",
                          "--stamp=20240101",
                          "--stamp=x:120000",
                          "--stamp=20240101:12",
                          "--stamp=20240101:240000"})
    EXPECT_EQ(messageOf({bad}), "bad option \"" + std::string(bad) + "\"");
  EXPECT_EQ(messageOf({"-o", ""}), "bad option \"-o\"");
}

TEST(AsnOptions, NoFile)
{
  EXPECT_EQ(messageOf({}), "no ASN.1 file is named");
  EXPECT_EQ(messageOf({"-INT=8"}), "no ASN.1 file is named");
}

TEST(AsnOptions, BackEndLines)
{
  EXPECT_EQ(backEndOption("PERCOD=1:1"), "-BEO=QUORVEN=PERCOD=1:1");
  EXPECT_EQ(backEndOption("-percod=1:1"), "-BEO=QUORVEN=PERCOD=1:1");
  EXPECT_EQ(backEndOption("-C=src"), "-BEO=QUORVEN=C=src");
  EXPECT_EQ(backEndOption("-beo=quorven=percod=1:1"),
            "-BEO=QUORVEN=PERCOD=1:1");
  // What stands behind the name is taken as it is.
  EXPECT_EQ(backEndOption("func:pe_Name"), "-BEO=QUORVEN=FUNC:pe_Name");
  EXPECT_EQ(backEndOption("-beo=other=x"), "-BEO=other=x");
  EXPECT_EQ(backEndOption("//a b=c"), "-BEO=//a b=c");
  EXPECT_THAT(optionsOf({"-beo=quorven=percod=1:1"}).saved,
              ElementsAre("-BEO=QUORVEN=PERCOD=1:1"));
}

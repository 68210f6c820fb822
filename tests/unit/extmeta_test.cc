// Extension information in meta records, and what it answers of components.

#include "base/strings.h"
#include "driver/extmeta.h"
#include "driver/quorven.h"
#include "driver/typemeta.h"
#include "support/loadedasn.h"
#include "support/typetrees.h"

namespace {

// Answers by component, as "name=answer ".
std::string answers;
int32_t (*indexOf)(const AsnType &comp);

void showIndex(AsnType &father, AsnType &comp, int)
{
  if (getTypeMainType(comp) == TYP_EXTADDGRP) {
    answers += "[ ";
    forEachAdditionGroupComp(father, comp, showIndex);
    answers += "] ";
    return;
  }
  answers += refOf(comp) + "=" + std::to_string(indexOf(comp)) + " ";
}

std::string indexes(AsnType &type, int32_t (*index)(const AsnType &))
{
  indexOf = index;
  answers.clear();
  forEachTypeComp(type, showIndex);
  return answers;
}

// Optional, mandatory.
void showSort(AsnType &, AsnType &comp, int)
{
  answers += refOf(comp) + "=";
  answers += isOptionalExtensionAdditionComponentOrGroup(comp) ? '1' : '0';
  answers += isMandatoryExtensionAdditionComponentOrGroup(comp) ? '1' : '0';
  answers += " ";
}

std::string sorts(AsnType &type)
{
  answers.clear();
  forEachTypeComp(type, showSort);
  return answers;
}

struct ExtMeta : LoadedAsn {
  ExtMeta() { initExtMeta(); }
  ~ExtMeta() override { initExtMeta(); }

  std::string optFields(const std::string &body)
  {
    load(body);
    TestType view(module, type("T"));
    return indexes(*view, getTypeCompOptFieldIndex);
  }
  std::string addFields(const std::string &body)
  {
    load(body);
    TestType view(module, type("T"));
    return indexes(*view, getTypeCompExtensionAddFieldIndex);
  }
  std::string sortsOf(const std::string &body)
  {
    load(body);
    TestType view(module, type("T"));
    return sorts(*view);
  }
  // What asking for the order of type T's components prints.
  std::string order(std::string &result)
  {
    testing::internal::CaptureStdout();
    TestType view(module, type("T"));
    result = indexes(*view, getCompCanonicalOrder);
    return testing::internal::GetCapturedStdout();
  }
};

// Views without meta records.
struct ExtMetaNone : TypeTrees {};

constexpr char noAutomaticTags[] =
    "Warning     QUORVEN The module M does not contain AUTOMATIC TAGS\n"
    "Warning     QUORVEN but there are choice/set types in the modules.\n"
    "Warning     QUORVEN QUORVEN does not yet support such definitions.\n";

// --- the record -------------------------------------------------------------

TEST_F(ExtMeta, WorkedOutOnce)
{
  load("T ::= SEQUENCE { a NULL OPTIONAL, ..., b NULL }");
  TestType view(module, type("T"));
  BETypMetaRec *meta = getBETypMetaRec(*view);
  ASSERT_NE(meta, nullptr);
  EXPECT_EQ(meta->extensionInfoValid, 0);
  EXPECT_EQ(getExtensionInfo(*view).rootOptionalCount, 1);
  EXPECT_EQ(meta->extensionInfoValid, 1);
  // A second walk would add to the total, and find the true count again.
  meta->extensionInfo.rootOptionalCount = 7;
  EXPECT_EQ(getExtensionInfo(*view).rootOptionalCount, 7);
  EXPECT_EQ(getExtensionInfo(*view).addTotalCount, 1);
}

TEST_F(ExtMeta, OfAGroupWorkedOutOnce)
{
  load("T ::= SEQUENCE { ..., [[ a NULL, b NULL OPTIONAL ]] }");
  TestType view(module, type("T"));
  static int seen;
  seen = 0;
  forEachTypeComp(*view, [](AsnType &, AsnType &comp_, int) {
    if (isTypeExtensionmarker(comp_))
      return;
    ++seen;
    EXPECT_EQ(getExtensionAdditionGroupInfo(comp_).addMandatoryCount, 1);
    EXPECT_EQ(getBETypMetaRec(comp_)->extensionInfoValid, 1);
    getBETypMetaRec(comp_)->extensionInfo.addOptionalCount = 5;
    EXPECT_EQ(getExtensionAdditionGroupInfo(comp_).addOptionalCount, 5);
  });
  EXPECT_EQ(seen, 1);
}

TEST_F(ExtMeta, FreshInANewView)
{
  load("T ::= SEQUENCE { a NULL OPTIONAL } U ::= SEQUENCE { a NULL }");
  TestType first(module, type("T"));
  EXPECT_EQ(getExtensionInfo(*first).rootOptionalCount, 1);
  delAsnType(first.type);
  // The record comes back from the free list.
  TestType second(module, type("U"));
  EXPECT_EQ(getBETypMetaRec(*second)->extensionInfoValid, 0);
  EXPECT_EQ(getExtensionInfo(*second).rootOptionalCount, 0);
  EXPECT_EQ(getExtensionInfo(*second).rootMandatoryCount, 1);
  first.type = nullptr;
}

TEST_F(ExtMetaNone, NothingIsKept)
{
  int32_t father = define("S", TYP_SEQ);
  comp(father, "a", TYP_NULL, TCS_OPTIONAL);
  marker(father);
  int32_t group = comp(father, "", TYP_EXTADDGRP);
  comp(group, "b", TYP_NULL, TCS_OPTIONAL);
  comp(group, "c", TYP_NULL);
  comp(father, "d", TYP_NULL, TCS_OPTIONAL);
  start();
  TestType view(module, father);
  ASSERT_EQ(getBETypMetaRec(*view), nullptr);
  for (int i = 0; i < 2; ++i) {
    ExtensionInfo info = getExtensionInfo(*view);
    EXPECT_EQ(info.addTotalCount, 3);
    EXPECT_EQ(info.optionalCompNumbers[0], 0);
    EXPECT_EQ(info.optionalCompNumbers[1], noCompNumber);
    EXPECT_EQ(indexes(*view, getTypeCompOptFieldIndex),
              "a=0 =-1 [ b=0 c=-1 ] d=-1 ");
    EXPECT_EQ(sorts(*view), "a=10 =01 =01 d=10 ");
  }
}

TEST_F(ExtMetaNone, PartialType)
{
  int32_t father = define("S", TYP_SEQ);
  comp(father, "a", TYP_NULL, TCS_OPTIONAL);
  start();
  setCreateBETypMetaFlag(true);
  AsnType *partial = newAsnType(&module, &module);
  partial->partialInfo = true;
  readRec(module.rec, REC_TNODE, father);
  getTypePath(nullptr, *partial, true);
  ASSERT_EQ(getBETypMetaRec(*partial), nullptr);
  EXPECT_EQ(getExtensionInfo(*partial).rootOptionalCount, 1);
  delAsnType(partial);
}

// --- bits of the preamble ---------------------------------------------------

TEST_F(ExtMeta, PreambleCountsFromTheLastOptionalComponent)
{
  EXPECT_EQ(optFields("T ::= SEQUENCE { a NULL OPTIONAL, b NULL,"
                      " c INTEGER DEFAULT 1, d NULL OPTIONAL }"),
            "a=2 b=-1 c=1 d=0 ");
  EXPECT_EQ(optFields("T ::= SEQUENCE { a NULL }"), "a=-1 ");
}

TEST_F(ExtMeta, PreambleIsOfTheRoot)
{
  EXPECT_EQ(optFields("T ::= SEQUENCE { a NULL OPTIONAL, b NULL OPTIONAL, ...,"
                      " c NULL OPTIONAL, d NULL }"),
            "a=1 b=0 =-1 c=-1 d=-1 ");
}

TEST_F(ExtMeta, GroupsHaveTheirOwnPreamble)
{
  EXPECT_EQ(optFields("T ::= SEQUENCE { a NULL OPTIONAL, ...,"
                      " [[ b NULL OPTIONAL, c NULL, d INTEGER DEFAULT 1,"
                      " e NULL OPTIONAL ]], f NULL OPTIONAL,"
                      " [[ g NULL OPTIONAL ]], [[ h NULL ]] }"),
            "a=0 =-1 [ b=2 c=-1 d=1 e=0 ] f=-1 [ g=0 ] [ h=-1 ] ");
}

TEST_F(ExtMeta, OnlySequencesHaveAPreamble)
{
  EXPECT_EQ(optFields("T ::= SET { a NULL OPTIONAL, b NULL }"), "a=-1 b=-1 ");
  EXPECT_EQ(optFields("T ::= CHOICE { a NULL, b NULL }"), "a=-1 b=-1 ");
  TestType view(module, type("T"));
  view->compStatus = TCS_OPTIONAL;
  EXPECT_EQ(getTypeCompOptFieldIndex(*view), -1);
  EXPECT_EQ(getTypeCompExtensionAddFieldIndex(*view), -1);
}

TEST_F(ExtMeta, ComponentsBeyondTheTable)
{
  auto comps = [](int count) {
    std::string text = "T ::= SEQUENCE { ";
    for (int i = 0; i < count; ++i)
      text += formatText("%sa%d NULL OPTIONAL", i ? ", " : "", i);
    return text + " }";
  };
  auto indexIn = [](const std::string &text, int comp) {
    std::string name = " a" + std::to_string(comp) + "=";
    size_t at = (" " + text).find(name);
    return at == std::string::npos ? -2 : atoi(&text[at + name.size() - 1]);
  };
  std::string text = optFields(comps(512));
  EXPECT_EQ(indexIn(text, 0), 511);
  EXPECT_EQ(indexIn(text, 511), 0);
  text = optFields(comps(513));
  EXPECT_EQ(indexIn(text, 0), 511);
  EXPECT_EQ(indexIn(text, 511), 0);
  EXPECT_EQ(indexIn(text, 512), -1);
}

// --- bits of the additions --------------------------------------------------

TEST_F(ExtMeta, AdditionsCountFromTheLast)
{
  load("T ::= SEQUENCE { a NULL, ..., b NULL OPTIONAL, [[ c NULL, d NULL ]],"
       " e NULL }");
  TestType view(module, type("T"));
  static std::string seen;
  seen.clear();
  forEachTypeComp(*view, [](AsnType &outer, AsnType &comp_, int) {
    if (perIsExtensionAdditionComponent(&outer, comp_))
      seen += std::to_string(getTypeCompExtensionAddFieldIndex(comp_)) + " ";
  });
  // b, the group, e.
  EXPECT_EQ(seen, "2 1 0 ");
}

TEST_F(ExtMeta, AdditionsBehindASecondMarker)
{
  options.secondMarker = true;
  load("T ::= SEQUENCE { ..., a NULL, ..., b NULL OPTIONAL }");
  TestType view(module, type("T"));
  static std::string seen;
  seen.clear();
  forEachTypeComp(*view, [](AsnType &outer, AsnType &comp_, int) {
    if (perIsExtensionAdditionComponent(&outer, comp_))
      seen += std::to_string(getTypeCompExtensionAddFieldIndex(comp_)) + " ";
  });
  EXPECT_EQ(seen, "1 0 ");
}

TEST_F(ExtMeta, NoBitmapWithoutMarkerOrSequence)
{
  EXPECT_EQ(addFields("T ::= SEQUENCE { a NULL, b NULL OPTIONAL }"),
            "a=-1 b=-1 ");
  EXPECT_EQ(addFields("T ::= SET { a NULL, ..., b NULL OPTIONAL }"),
            "a=-1 =-1 b=-1 ");
  EXPECT_EQ(addFields("T ::= CHOICE { a NULL, ..., b NULL }"),
            "a=-1 =-1 b=-1 ");
}

// --- canonical order --------------------------------------------------------

TEST_F(ExtMeta, OrderOfRootAndAdditions)
{
  load("T ::= CHOICE { a NULL, b INTEGER, ..., c NULL, d INTEGER }");
  std::string result;
  EXPECT_EQ(order(result), "");
  EXPECT_EQ(result, "a=0 b=1 =-1 c=0 d=1 ");
  load("T ::= CHOICE { a NULL, b INTEGER }");
  EXPECT_EQ(order(result), "");
  EXPECT_EQ(result, "a=0 b=1 ");
  TestType view(module, type("T"));
  EXPECT_EQ(getCompCanonicalOrder(*view), 0);
}

TEST_F(ExtMeta, NoOrderWithoutAutomaticTags)
{
  load("T ::= CHOICE { a NULL, b INTEGER }", "IMPLICIT TAGS");
  std::string result;
  EXPECT_EQ(order(result), noAutomaticTags);
  EXPECT_EQ(result, "a=-1 b=-1 ");
  // Once a run.
  EXPECT_EQ(order(result), "");
  EXPECT_EQ(result, "a=-1 b=-1 ");
  initExtMeta();
  EXPECT_EQ(order(result), noAutomaticTags);
}

// What the start of a run forgets.
TEST_F(ExtMeta, EveryRunWarnsAnew)
{
  load("T ::= CHOICE { a NULL }", "IMPLICIT TAGS");
  std::string result;
  EXPECT_EQ(order(result), noAutomaticTags);
  ProcessResult process = runApart([&] {
    resetStore();
    resetParams();
    std::string program = "quorven", directory = "-S=" + run.dir.path,
                name = "m";
    char *vector[] = {program.data(), directory.data(), name.data(), nullptr};
    quorven_main(3, vector);
    module = LoadedRun::module("m");
    TestType view(module, type("T"));
    puts("behind the run");
    indexes(*view, getCompCanonicalOrder);
    return 0;
  });
  EXPECT_EQ(process.status, 0);
  size_t behind = process.out.find("behind the run\n");
  ASSERT_NE(behind, std::string::npos);
  EXPECT_EQ(process.out.substr(behind),
            std::string("behind the run\n") + noAutomaticTags);
}

// --- optional and mandatory -------------------------------------------------

TEST_F(ExtMeta, ComponentsByStatus)
{
  EXPECT_EQ(sortsOf("T ::= SEQUENCE { a NULL, b NULL OPTIONAL,"
                    " c INTEGER DEFAULT 1 }"),
            "a=01 b=10 c=10 ");
  EXPECT_EQ(sortsOf("T ::= SEQUENCE { ..., a NULL, b NULL OPTIONAL }"),
            "=01 a=01 b=10 ");
  EXPECT_EQ(sortsOf("T ::= CHOICE { a NULL }"), "a=00 ");
}

TEST_F(ExtMeta, GroupsByTheirMembers)
{
  EXPECT_EQ(sortsOf("T ::= SEQUENCE { ..., [[ a NULL, b NULL OPTIONAL ]],"
                    " [[ c NULL OPTIONAL, d INTEGER DEFAULT 1 ]],"
                    " [[ e NULL ]] }"),
            "=01 =01 =10 =01 ");
}

TEST_F(ExtMetaNone, StatusOfAGroupTellsNothing)
{
  int32_t father = define("S", TYP_SEQ);
  marker(father);
  for (int status : {TCS_MANDATORY, TCS_OPTIONAL}) {
    int32_t group = comp(father, "", TYP_EXTADDGRP, status);
    comp(group, status ? "a" : "b", TYP_NULL,
         status ? TCS_MANDATORY : TCS_OPTIONAL);
  }
  start();
  TestType view(module, father);
  EXPECT_EQ(sorts(*view), "=01 =10 =01 ");
}

}  // namespace

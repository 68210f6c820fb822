// Extension information: counts, table and places. "mandatory+optional" stand
// for the root and the additions, then the total of the additions.

#include "base/strings.h"
#include "per/extinfo.h"
#include "support/loadedasn.h"
#include "support/typetrees.h"

namespace {

std::string shown(const ExtensionInfo &info)
{
  std::string text = formatText(
      "%d+%d ... %d+%d of %d", info.rootMandatoryCount, info.rootOptionalCount,
      info.addMandatoryCount, info.addOptionalCount, info.addTotalCount);
  for (uint16_t number : info.optionalCompNumbers) {
    if (number == noCompNumber)
      break;
    text += " " + std::to_string(number);
  }
  return text;
}

std::string infoOf(AsnType &type)
{
  ExtensionInfo info;
  perGetExtensionInfo(type, info);
  return shown(info);
}

// Of the groups that a walk meets.
std::string groups;

void showGroup(AsnType &, AsnType &comp, int)
{
  if (getTypeMainType(comp) != TYP_EXTADDGRP)
    return;
  ExtensionInfo info;
  perGetExtensionAdditionGroupInfo(comp, info);
  groups += shown(info) + "; ";
}

struct ExtInfo : LoadedAsn {
  // The information of type T of the text.
  std::string info(const std::string &body)
  {
    load(body);
    TestType view(module, type("T"));
    std::string text = infoOf(*view);
    // Again from a fresh record, and with groups asked for on their own.
    groups.clear();
    forEachTypeComp(*view, showGroup);
    EXPECT_EQ(infoOf(*view), text);
    return text;
  }
  // `count` components "aN BOOLEAN" with an ending.
  static std::string comps(int count, const char *ending)
  {
    std::string text;
    for (int i = 0; i < count; ++i)
      text += formatText("%sa%d BOOLEAN%s", i ? ", " : "", i, ending);
    return text;
  }
};

// Members of groups by hand.
struct ExtInfoTree : TypeTrees {};

TEST_F(ExtInfo, WithoutMarker)
{
  EXPECT_EQ(info("T ::= SEQUENCE { a BOOLEAN, b BOOLEAN OPTIONAL, c NULL,"
                 " d INTEGER DEFAULT 3 }"),
            "2+2 ... 0+0 of 0 1 3");
  EXPECT_EQ(info("T ::= SEQUENCE { }"), "0+0 ... 0+0 of 0");
  EXPECT_EQ(info("T ::= SET { a BOOLEAN OPTIONAL, b NULL }"),
            "1+1 ... 0+0 of 0 0");
  EXPECT_EQ(info("T ::= BOOLEAN"), "0+0 ... 0+0 of 0");
}

TEST_F(ExtInfo, AdditionsAreCountedButNotListed)
{
  EXPECT_EQ(info("T ::= SEQUENCE { a BOOLEAN OPTIONAL, b NULL, ...,"
                 " c BOOLEAN OPTIONAL, d NULL, e NULL OPTIONAL }"),
            "1+1 ... 1+2 of 3 0");
  EXPECT_EQ(info("T ::= SET { a NULL, ..., b BOOLEAN OPTIONAL }"),
            "1+0 ... 0+1 of 1");
}

TEST_F(ExtInfo, NothingOnOneSideOfTheMarker)
{
  EXPECT_EQ(info("T ::= SEQUENCE { a NULL, ... }"), "1+0 ... 0+0 of 0");
  EXPECT_EQ(info("T ::= SEQUENCE { ..., a NULL }"), "0+0 ... 1+0 of 1");
  EXPECT_EQ(info("T ::= SEQUENCE { ... }"), "0+0 ... 0+0 of 0");
}

TEST_F(ExtInfo, AlternativesAreNotMandatory)
{
  EXPECT_EQ(info("T ::= CHOICE { a BOOLEAN, b NULL }"), "0+2 ... 0+0 of 0 0 1");
  EXPECT_EQ(info("T ::= CHOICE { a BOOLEAN, b NULL, ..., c NULL, d BOOLEAN }"),
            "0+2 ... 0+2 of 2 0 1");
}

TEST_F(ExtInfo, GroupCountsAsOne)
{
  // a 0, marker 1, group of 2 and 3, d 4, group of 5, e 6.
  EXPECT_EQ(info("T ::= SEQUENCE { a NULL, ..., [[ b NULL, c NULL OPTIONAL ]],"
                 " d NULL, [[ x NULL OPTIONAL ]], e NULL OPTIONAL }"),
            "1+0 ... 2+2 of 5");
  EXPECT_EQ(groups, "0+0 ... 1+1 of 2 3; 0+0 ... 0+1 of 1 5; ");
}

TEST_F(ExtInfo, GroupsOfAllMixes)
{
  EXPECT_EQ(info("T ::= SEQUENCE { ...,"
                 " [[ a NULL, b NULL ]],"
                 " [[ c NULL OPTIONAL, d INTEGER DEFAULT 1 ]],"
                 " [[ e NULL OPTIONAL, f NULL, g NULL OPTIONAL ]] }"),
            "0+0 ... 2+1 of 7");
  EXPECT_EQ(groups, "0+0 ... 2+0 of 2; 0+0 ... 0+2 of 2 3 4; "
                    "0+0 ... 1+2 of 3 5 7; ");
}

TEST_F(ExtInfo, SecondMarkerCountsForNothing)
{
  options.secondMarker = true;
  EXPECT_EQ(info("T ::= SEQUENCE { a NULL, ..., b NULL OPTIONAL, ...,"
                 " c NULL, d NULL OPTIONAL }"),
            "1+0 ... 1+2 of 3");
  EXPECT_EQ(info("T ::= SEQUENCE { a NULL, ..., ... }"), "1+0 ... 0+0 of 0");
}

TEST_F(ExtInfo, ComponentsOf)
{
  EXPECT_EQ(
      info("S ::= SEQUENCE { x NULL OPTIONAL, y NULL, ..., z NULL }"
           " T ::= SEQUENCE { a NULL, COMPONENTS OF S, b NULL OPTIONAL }"),
      "2+2 ... 0+0 of 0 1 3");
}

TEST_F(ExtInfo, FullTable)
{
  std::string numbers;
  for (int i = 0; i < 512; ++i)
    numbers += " " + std::to_string(i);
  EXPECT_EQ(info("T ::= SEQUENCE { " + comps(512, " OPTIONAL") + " }"),
            "0+512 ... 0+0 of 0" + numbers);
  // More are counted, without a place.
  EXPECT_EQ(info("T ::= SEQUENCE { " + comps(513, " OPTIONAL") + " }"),
            "0+513 ... 0+0 of 0" + numbers);
  EXPECT_EQ(info("T ::= SEQUENCE { " + comps(513, "") + " }"),
            "513+0 ... 0+0 of 0");
  std::string members;
  for (int i = 1; i <= 512; ++i)
    members += " " + std::to_string(i);
  EXPECT_EQ(
      info("T ::= SEQUENCE { ..., [[ " + comps(513, " OPTIONAL") + " ]] }"),
      "0+0 ... 0+1 of 513");
  EXPECT_EQ(groups, "0+0 ... 0+513 of 513" + members + "; ");
}

TEST_F(ExtInfo, TotalGoesOnInAUsedRecord)
{
  load("T ::= SEQUENCE { a NULL OPTIONAL, ..., b NULL }");
  TestType view(module, type("T"));
  ExtensionInfo info;
  perGetExtensionInfo(*view, info);
  perGetExtensionInfo(*view, info);
  EXPECT_EQ(shown(info), "0+1 ... 1+0 of 2 0");
}

TEST_F(ExtInfoTree, GroupOfAChoice)
{
  int32_t choice = define("C", TYP_CHOICE);
  comp(choice, "a", TYP_NULL);
  marker(choice);
  int32_t group = comp(choice, "", TYP_EXTADDGRP);
  comp(group, "b", TYP_NULL);
  comp(group, "c", TYP_NULL);
  start();
  TestType view(module, choice);
  EXPECT_EQ(infoOf(*view), "0+1 ... 0+1 of 2 0");
  groups.clear();
  forEachTypeComp(*view, showGroup);
  EXPECT_EQ(groups, "0+0 ... 0+2 of 2 2 3; ");
}

TEST_F(ExtInfoTree, GroupWithoutFather)
{
  start();
  AsnType group;
  ExtensionInfo info;
  perGetExtensionAdditionGroupInfo(group, info);
  EXPECT_EQ(shown(info), "0+0 ... 0+0 of 0");
}

TEST_F(ExtInfoTree, WalkInsideAWalk)
{
  int32_t father = define("S", TYP_SEQ);
  for (const char *name : {"a", "b"})
    comp(father, name, TYP_NULL, TCS_OPTIONAL);
  marker(father);
  comp(father, "c", TYP_NULL);
  start();
  TestType view(module, father);
  static std::string seen;
  seen.clear();
  forEachTypeComp(*view, [](AsnType &outer, AsnType &, int number) {
    std::string text = infoOf(outer);
    EXPECT_EQ(text, "0+2 ... 1+0 of 1 0 1");
    EXPECT_EQ(outer.compIndex, number);
    seen += std::to_string(number);
  });
  EXPECT_EQ(seen, "0123");
}

// --- places -----------------------------------------------------------------

// Of each component: root, addition, last of the root, first addition.
std::string places;

void showPlaces(AsnType &father, AsnType &comp, int)
{
  places += refOf(comp) + ":";
  for (bool answer : {perIsExtensionRootComponent(&father, comp),
                      perIsExtensionAdditionComponent(&father, comp),
                      perIsLastExtensionRootComponent(&father, comp),
                      perIsFirstExtensionAdditionComponent(&father, comp)})
    places += answer ? '1' : '0';
  places += " ";
}

TEST_F(ExtInfoTree, PlacesOfComponents)
{
  int32_t father = define("S", TYP_SEQ);
  for (const char *name : {"a", "b", "", "c", "d"})
    name[0] ? comp(father, name, TYP_NULL) : marker(father);
  int32_t plain = define("P", TYP_SEQ);
  comp(plain, "a", TYP_NULL);
  start();
  places.clear();
  TestType view(module, father);
  forEachTypeComp(*view, showPlaces);
  EXPECT_EQ(places, "a:1000 b:1010 :0000 c:0101 d:0100 ");
  places.clear();
  TestType without(module, plain);
  forEachTypeComp(*without, showPlaces);
  EXPECT_EQ(places, "a:1000 ");
  EXPECT_FALSE(perIsExtensionRootComponent(nullptr, *view));
  EXPECT_FALSE(perIsExtensionAdditionComponent(nullptr, *view));
  EXPECT_FALSE(perIsLastExtensionRootComponent(nullptr, *view));
  EXPECT_FALSE(perIsFirstExtensionAdditionComponent(nullptr, *view));
}

TEST_F(ExtInfoTree, BitsOfAdditions)
{
  int32_t father = define("S", TYP_SEQ);
  marker(father);
  comp(father, "a", TYP_NULL);
  int32_t group = comp(father, "", TYP_EXTADDGRP);
  comp(group, "b", TYP_NULL);
  comp(group, "c", TYP_NULL);
  comp(father, "d", TYP_NULL, TCS_OPTIONAL);
  start();
  TestType view(module, father);
  static std::string seen;
  seen.clear();
  forEachTypeComp(*view, [](AsnType &outer, AsnType &comp_, int) {
    if (isTypeExtensionmarker(comp_))
      return;
    ExtensionInfo info;
    perGetExtensionInfo(outer, info);
    seen += std::to_string(perExtensionAddFieldIndex(comp_, info)) + " ";
  });
  // a, the group, d.
  EXPECT_EQ(seen, "2 1 0 ");
}

// Such a group is in damaged trees only: it counts as a component of the root,
// its members as additions.
TEST_F(ExtInfoTree, GroupAheadOfTheMarker)
{
  int32_t father = define("S", TYP_SEQ);
  int32_t group = comp(father, "", TYP_EXTADDGRP);
  comp(group, "b", TYP_NULL);
  comp(group, "c", TYP_NULL, TCS_OPTIONAL);
  marker(father);
  comp(father, "d", TYP_NULL);
  int32_t plain = define("P", TYP_SEQ);
  comp(plain, "a", TYP_NULL);
  start();
  TestType view(module, father), without(module, plain);
  EXPECT_EQ(infoOf(*view), "1+0 ... 1+0 of 1");
  // The last walk met no marker.
  EXPECT_EQ(infoOf(*without), "1+0 ... 0+0 of 0");
  groups.clear();
  forEachTypeComp(*view, showGroup);
  EXPECT_EQ(groups, "0+0 ... 1+1 of 2 1; ");
}

}  // namespace

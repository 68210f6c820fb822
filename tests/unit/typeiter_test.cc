// Visits of the definitions of a module, of components and elements, and the
// steps below them; node selection.

#include "model/typeiter.h"
#include "support/typetrees.h"

using testing::ExitedWithCode;

constexpr char noCallBack[] = "Call-back function not defined";

// What call-backs have seen.
static std::string seen;

static void note(const AsnType &type, int index)
{
  seen += refOf(type) + std::to_string(index) + " ";
}

static void noteType(AsnType &type, int index)
{
  note(type, index);
}
static void noteComp(AsnType &, AsnType &comp, int number)
{
  note(comp, number);
}
static void noteElem(AsnType &, AsnType &elem)
{
  seen += "element " + std::to_string(elem.base.mainType) + "/" +
          std::to_string(elem.compNbr) + " ";
}

struct TypeIter : TypeTrees {
  TypeIter() { seen.clear(); }

  std::string shownTypes(void (*walk)(AsnModule &, TypeIndexCallBack *))
  {
    seen.clear();
    walk(module, noteType);
    return seen;
  }
  std::string shownComps(int32_t record,
                         void (*walk)(AsnType &, CompCallBack *))
  {
    TestType type(module, record);
    seen.clear();
    walk(*type, noteComp);
    return seen;
  }
  // The records that a selection gives, from the first one of M on.
  std::string selected(int kind, int32_t first, bool includeHidden)
  {
    std::string records;
    module.cursors.types[kind] = first;
    while (nextTNode(module, kind, includeHidden))
      records += std::to_string(recJustRead[REC_TNODE].index) + " ";
    return records;
  }
};

// --- node selection ---------------------------------------------------------

TEST_F(TypeIter, SelectionByKind)
{
  TNode set = stxNewTNode(TYP_INTEGER);
  set.classFlags = CF_SET;
  define("ValueSet", set);                 // 2
  int32_t cls = define("CLS", TYP_CLASS);  // 3
  define("CLS-2", stxNewSynonym(cls));     // 4
  set = stxNewSynonym(cls);
  set.classFlags = CF_SET;
  define("ObjectSet", set);  // 5
  TNode hidden = stxNewTNode(TYP_NULL);
  hidden.hidden = 1;
  define("Hidden", hidden);           // 6
  define("Identifier", TYP_TYPE_ID);  // 7
  define("Last", TYP_NULL);           // 8
  start();
  EXPECT_EQ(selected(SELECT_TYPES, 1, false), "1 2 8 ");
  EXPECT_EQ(selected(SELECT_TYPES, 1, true), "1 2 6 8 ");
  EXPECT_EQ(selected(SELECT_CLASSES, 1, false), "3 4 7 ");
  EXPECT_EQ(selected(SELECT_VALUE_SETS, 1, false), "2 ");
  EXPECT_EQ(selected(SELECT_OBJECT_SETS, 1, false), "5 ");
  EXPECT_EQ(selected(SELECT_COMPS, 1, true), "1 6 8 ");
  EXPECT_EQ(selected(SELECT_SPARE_COMPS, 1, true), "1 6 8 ");
}

TEST_F(TypeIter, SelectionStandsBehindTheNode)
{
  int32_t second = define("B", TYP_NULL);
  start();
  module.cursors.types[SELECT_TYPES] = 1;
  module.cursors.types[SELECT_COMPS] = 77;
  ASSERT_TRUE(nextTNode(module, SELECT_TYPES, false));
  EXPECT_EQ(recJustRead[REC_TNODE].index, 1);
  EXPECT_EQ(module.cursors.types[SELECT_TYPES], second);
  // Each kind has a cursor of its own.
  EXPECT_EQ(module.cursors.types[SELECT_COMPS], 77);
  ModuleCursors saved;
  saveAsnModState(module, saved);
  EXPECT_TRUE(nextTNode(module, SELECT_TYPES, false));
  EXPECT_FALSE(nextTNode(module, SELECT_TYPES, false));
  restoreAsnModState(module, saved);
  EXPECT_EQ(module.cursors.types[SELECT_TYPES], second);
}

TEST_F(TypeIter, SelectionOfTheEndOfAChain)
{
  // The record at the end of the chain is not what is left current.
  int32_t synonym = define("Syn", stxNewSynonym(integer));
  start();
  module.cursors.types[SELECT_TYPES] = synonym;
  ASSERT_TRUE(nextTNode(module, SELECT_TYPES, false));
  EXPECT_EQ(recJustRead[REC_TNODE].index, synonym);
  EXPECT_EQ(tNode.mainType, TYP_SYNONYM);
}

// --- definitions ------------------------------------------------------------

struct TypeIterDefinitions : TypeIter {
  int32_t entryA, hidden, entryB, shownOnly;
  // Int, EntryA, Hidden, EntryB, Shown; EntryA and Shown are visible.
  TypeIterDefinitions()
  {
    tree.header.visibilityMode = 1;
    tree.header.nrVisibleTypes = 0;
    TNode node = stxNewTNode(TYP_BOOLEAN);
    node.entryFlags = entryFlagBit;
    node.classFlags = CF_VISIBLE;
    entryA = define("EntryA", node);
    node.hidden = 1;
    hidden = define("Hidden", node);
    node.hidden = 0;
    node.classFlags = 0;
    entryB = define("EntryB", node);
    node.entryFlags = 0;
    node.classFlags = CF_VISIBLE;
    shownOnly = define("Shown", node);
  }
};

TEST_F(TypeIterDefinitions, IndexesCountWhatIsVisited)
{
  start();
  EXPECT_EQ(shownTypes(forEachType), "Int0 EntryA1 EntryB2 Shown3 ");
  EXPECT_EQ(shownTypes(forEachEntryType), "EntryA0 EntryB1 ");
  EXPECT_EQ(shownTypes(forEachVisType), "EntryA0 Shown1 ");
  EXPECT_EQ(shownTypes(forEachEntryVisType), "EntryA0 EntryB1 Shown2 ");
}

TEST_F(TypeIterDefinitions, CountsOfTheModuleDecide)
{
  tree.header.nrVisibleTypes = 0;
  start();
  EXPECT_EQ(shownTypes(forEachVisType), "");
  EXPECT_EQ(shownTypes(forEachEntryVisType), "EntryA0 EntryB1 ");
  tree.header.nrEntryTypes = 0;
  start();
  EXPECT_EQ(shownTypes(forEachEntryType), "");
  EXPECT_EQ(shownTypes(forEachEntryVisType), "");
}

TEST_F(TypeIterDefinitions, VisibilityModeZeroShowsAll)
{
  tree.header.visibilityMode = 0;
  start();
  EXPECT_EQ(shownTypes(forEachVisType), "Int0 EntryA1 EntryB2 Shown3 ");
}

TEST_F(TypeIterDefinitions, NoDefinitionNoCall)
{
  start();
  seen.clear();
  forEachType(otherModule, noteType);
  EXPECT_EQ(seen, "");
}

TEST_F(TypeIterDefinitions, ValueSetsAreVisited)
{
  TNode set = stxNewTNode(TYP_INTEGER);
  set.classFlags = CF_SET;
  define("Values", set);
  define("CLS", TYP_CLASS);
  start();
  EXPECT_EQ(shownTypes(forEachType), "Int0 EntryA1 EntryB2 Shown3 Values4 ");
}

TEST_F(TypeIterDefinitions, CallBacksMayWalkTheSameModule)
{
  start();
  module.cursors.types[SELECT_TYPES] = entryB;
  forEachType(module, [](AsnType &type, int index) {
    seen += "(";
    forEachEntryType(*type.mod, noteType);
    note(type, index);
    seen += ")";
  });
  EXPECT_EQ(seen, "(EntryA0 EntryB1 Int0 )(EntryA0 EntryB1 EntryA1 )"
                  "(EntryA0 EntryB1 EntryB2 )(EntryA0 EntryB1 Shown3 )");
  EXPECT_EQ(module.cursors.types[SELECT_TYPES], entryB);
}

TEST_F(TypeIterDefinitions, OneByItsRecord)
{
  start();
  forTypeByRecNr(module, noteType, SELECT_TYPES, entryB);
  forTypeByRecNr(module, noteType, SELECT_TYPES, hidden);
  EXPECT_EQ(seen, "EntryB0 Hidden0 ");
}

TEST_F(TypeIterDefinitions, OneByItsRecordOnlyIfItFits)
{
  int32_t cls = define("CLS", TYP_CLASS);
  TNode set = stxNewTNode(TYP_INTEGER);
  set.classFlags = CF_SET;
  int32_t values = define("Values", set);
  set = stxNewSynonym(cls);
  set.classFlags = CF_SET;
  int32_t objects = define("Objects", set);
  define("Behind", TYP_NULL);
  start();
  // A refused node does not hand the visit on to the next one.
  for (int kind : {SELECT_TYPES, SELECT_VALUE_SETS, SELECT_OBJECT_SETS})
    forTypeByRecNr(module, noteType, kind, cls);
  forTypeByRecNr(module, noteType, SELECT_VALUE_SETS, entryA);
  forTypeByRecNr(module, noteType, SELECT_TYPES, objects);
  forTypeByRecNr(module, noteType, SELECT_TYPES, 0);
  // Kinds that are none of these do nothing, with a node that would fit.
  forTypeByRecNr(module, noteType, SELECT_CLASSES, cls);
  forTypeByRecNr(module, noteType, SELECT_COMPS, entryA);
  EXPECT_EQ(seen, "");
  forTypeByRecNr(module, noteType, SELECT_TYPES, values);
  forTypeByRecNr(module, noteType, SELECT_VALUE_SETS, values);
  forTypeByRecNr(module, noteType, SELECT_OBJECT_SETS, objects);
  EXPECT_EQ(seen, "Values0 Values0 Objects0 ");
}

TEST_F(TypeIterDefinitions, EntryByItsRecord)
{
  start();
  forEntryTypeByRecNr(module, noteType, entryB);
  EXPECT_EQ(seen, "EntryB1 ");
  forEntryTypeByRecNr(module, noteType, shownOnly);
  forEntryTypeByRecNr(module, noteType, hidden);
  forEntryTypeByRecNr(module, noteType, 0);
  EXPECT_EQ(seen, "EntryB1 ");
}

TEST_F(TypeIterDefinitions, StepsKeepModulesAndPartialInfo)
{
  start();
  AsnType *type = firstType(module);
  ASSERT_NE(type, nullptr);
  AsnType *first = type;
  type->homeMod = &otherModule;
  type->partialInfo = true;
  type = nextType(type);
  ASSERT_EQ(type, first);
  EXPECT_EQ(refOf(*type), "EntryA");
  EXPECT_EQ(type->mod, &module);
  EXPECT_EQ(type->homeMod, &otherModule);
  EXPECT_TRUE(type->partialInfo);
  type = nextType(nextType(type));
  EXPECT_EQ(refOf(*type), "Shown");
  EXPECT_EQ(nextType(type), nullptr);
  EXPECT_EQ(firstType(otherModule), nullptr);
}

// --- components -------------------------------------------------------------

struct TypeIterComps : TypeIter {
  int32_t father;
  // a, b OPTIONAL, the marker, c OPTIONAL, d.
  TypeIterComps()
  {
    father = define("S", TYP_SEQ);
    comp(father, "a", TYP_BOOLEAN);
    comp(father, "b", TYP_BOOLEAN, TCS_OPTIONAL);
    marker(father);
    comp(father, "c", TYP_BOOLEAN, TCS_OPTIONAL);
    comp(father, "d", TYP_BOOLEAN);
  }
};

TEST_F(TypeIterComps, InOrderAndBackwards)
{
  start();
  EXPECT_EQ(shownComps(father, forEachTypeComp), "a0 b1 2 c3 d4 ");
  EXPECT_EQ(shownComps(father, forEachTypeCompRevOrd), "d4 c3 2 b1 a0 ");
  EXPECT_EQ(shownComps(father, forEachTypeCompOrElem), "a0 b1 2 c3 d4 ");
}

TEST_F(TypeIterComps, NothingWithoutComponents)
{
  int32_t empty = define("Empty", TYP_SEQ);
  int32_t synonym = define("Syn", stxNewSynonym(father));
  start();
  for (int32_t record : {empty, synonym, integer}) {
    EXPECT_EQ(shownComps(record, forEachTypeComp), "");
    EXPECT_EQ(shownComps(record, forEachTypeCompRevOrd), "");
    EXPECT_EQ(shownComps(record, forEachTypeCompOrElem), "");
  }
}

TEST_F(TypeIterComps, ExtensionNumbers)
{
  start();
  TestType type(module, father);
  forEachTypeComp(*type, [](AsnType &outer, AsnType &type_, int) {
    note(type_, type_.extCompNbr);
    seen += std::to_string(outer.extMarkerCompNbr) + "; ";
  });
  EXPECT_EQ(seen, "a-1 -1; b-1 -1; -1 2; c0 2; d1 2; ");
  EXPECT_EQ(type->extMarkerCompNbr, 2);
}

TEST_F(TypeIterComps, FirstMarkerWins)
{
  marker(father);
  comp(father, "e", TYP_BOOLEAN);
  start();
  TestType type(module, father);
  // Backwards the second marker comes first; its number is never shown.
  forEachTypeCompRevOrd(*type, [](AsnType &outer, AsnType &type_, int) {
    if (isTypeExtensionmarker(type_))
      seen += std::to_string(type_.compNbr) + ":" +
              std::to_string(outer.extMarkerCompNbr) + " ";
  });
  EXPECT_EQ(seen, "5:2 2:2 ");
  EXPECT_EQ(type->extMarkerCompNbr, 2);
  TestType again(module, father);
  seen.clear();
  forEachTypeComp(*again, [](AsnType &, AsnType &type_, int) {
    note(type_, type_.extCompNbr);
  });
  EXPECT_EQ(seen, "a-1 b-1 -1 c0 d1 -1 e2 ");
  EXPECT_EQ(again->extMarkerCompNbr, 2);
}

TEST_F(TypeIterComps, PreviousOptional)
{
  start();
  TestType type(module, father);
  auto showPrevious = [](AsnType &outer, AsnType &type_, int) {
    note(type_, outer.prevCompOptional);
  };
  forEachTypeComp(*type, showPrevious);
  // A marker is passed over: c stands behind b.
  EXPECT_EQ(seen, "a0 b0 1 c1 d1 ");
  seen.clear();
  forEachTypeCompRevOrd(*type, showPrevious);
  EXPECT_EQ(seen, "d0 c0 1 b1 a1 ");
}

TEST_F(TypeIterComps, HiddenComponentsAreVisited)
{
  TNode node = stxNewTNode(TYP_BOOLEAN);
  node.hidden = 1;
  comp(father, "e", node);
  start();
  EXPECT_EQ(shownComps(father, forEachTypeComp), "a0 b1 2 c3 d4 e5 ");
}

TEST_F(TypeIterComps, ComponentsOfBringsTheRoot)
{
  int32_t outer = define("Outer", TYP_SEQ);
  comp(outer, "x", TYP_BOOLEAN);
  componentsOf(outer, father, 2);
  comp(outer, "y", TYP_BOOLEAN);
  start();
  EXPECT_EQ(shownComps(outer, forEachTypeComp), "x0 a1 b2 y3 ");
  EXPECT_EQ(shownComps(outer, forEachTypeCompRevOrd), "y3 b2 a1 x0 ");
}

// What is brought in from the module of the father is at home there.
TEST_F(TypeIterComps, ComponentsOfTheSameModule)
{
  int32_t outer = define("Outer", TYP_SEQ);
  componentsOf(outer, father, 2);
  start();
  TestType type(module, outer);
  forEachTypeComp(*type, [](AsnType &, AsnType &comp_, int number) {
    note(comp_, number);
    EXPECT_TRUE(comp_.inComponentsOf);
    EXPECT_TRUE(isBaseTypeInCurrentModule(comp_));
  });
  EXPECT_EQ(seen, "a0 b1 ");
}

TEST_F(TypeIterComps, ComponentsOfAmongTheAdditions)
{
  int32_t outer = define("Outer", TYP_SEQ);
  comp(outer, "x", TYP_BOOLEAN);
  marker(outer);
  comp(outer, "y", TYP_BOOLEAN);
  componentsOf(outer, father, 2);
  comp(outer, "z", TYP_BOOLEAN);
  start();
  TestType type(module, outer);
  forEachTypeComp(*type, [](AsnType &, AsnType &comp_, int number) {
    note(comp_, number);
    seen += "/" + std::to_string(comp_.extCompNbr) + " ";
  });
  EXPECT_EQ(seen, "x0 /-1 1 /-1 y2 /0 a3 /1 b4 /2 z5 /3 ");
  EXPECT_EQ(type->extMarkerCompNbr, 1);
}

// They are the group's members as much as its own are.
TEST_F(TypeIterComps, ComponentsOfInAGroup)
{
  int32_t outer = define("Outer", TYP_SEQ);
  comp(outer, "x", TYP_BOOLEAN);
  marker(outer);
  int32_t group = comp(outer, "", TYP_EXTADDGRP);
  comp(group, "y", TYP_BOOLEAN);
  componentsOf(group, father, 2);
  comp(group, "z", TYP_BOOLEAN);
  comp(outer, "last", TYP_BOOLEAN);
  start();
  TestType type(module, outer);
  forEachTypeComp(*type, [](AsnType &outer_, AsnType &comp_, int number) {
    note(comp_, number);
    EXPECT_EQ(comp_.addGroup, nullptr);
    if (comp_.base.mainType != TYP_EXTADDGRP)
      return;
    static AsnType *group_;
    group_ = &comp_;
    forEachAdditionGroupComp(
        outer_, comp_, [](AsnType &father_, AsnType &member, int number_) {
          note(member, number_);
          EXPECT_EQ(member.father, &father_);
          EXPECT_EQ(member.addGroup, group_);
          EXPECT_EQ(member.inComponentsOf, number_ == 3 || number_ == 4);
        });
  });
  EXPECT_EQ(seen, "x0 1 2 y2 a3 b4 z5 last6 ");
}

TEST_F(TypeIterComps, ComponentsOfNothing)
{
  int32_t outer = define("Outer", TYP_SEQ);
  componentsOf(outer, define("Empty", TYP_SEQ), 0);
  comp(outer, "y", TYP_BOOLEAN);
  start();
  EXPECT_EQ(shownComps(outer, forEachTypeComp), "y0 ");
  EXPECT_EQ(shownComps(outer, forEachTypeCompRevOrd), "y0 ");
}

TEST_F(TypeIterComps, ComponentsOfAnotherModule)
{
  int32_t base = stxDefineType(other, "Base", stxNewTNode(TYP_SEQ));
  stxAddComp(other, base, "p", stxNewTNode(TYP_NULL));
  int32_t outer = define("Outer", TYP_SEQ);
  componentsOf(outer, base, 1, 2);
  comp(outer, "y", TYP_BOOLEAN);
  start();
  TestType type(module, outer);
  forEachTypeComp(*type, [](AsnType &outer_, AsnType &comp_, int number) {
    note(comp_, number);
    EXPECT_EQ(comp_.father, &outer_);
    bool isForeign = number == 0;
    EXPECT_EQ(comp_.inComponentsOf, isForeign);
    EXPECT_STREQ(comp_.mod->rec->moduleName, isForeign ? "N" : "M");
    EXPECT_STREQ(getModuleOfType(comp_)->rec->moduleName,
                 isForeign ? "N" : "M");
    // The base lies in the module of its node, but not in the father's.
    EXPECT_EQ(isBaseTypeInCurrentModule(comp_), !isForeign);
  });
  EXPECT_EQ(seen, "p0 y1 ");
}

TEST_F(TypeIterComps, ComponentsOfABaseInAnotherModule)
{
  int32_t base = stxDefineType(other, "Base", stxNewTNode(TYP_SEQ));
  stxAddComp(other, base, "p", stxNewTNode(TYP_NULL));
  int32_t outer = define("Outer", TYP_SEQ);
  comp(outer, "x", stxNewSynonym(base, 2));
  start();
  TestType type(module, outer);
  forEachTypeComp(*type, [](AsnType &, AsnType &reference, int) {
    AsnModule *mod = reference.mod;
    forEachTypeComp(reference, noteComp);
    EXPECT_EQ(reference.mod, mod);
    EXPECT_EQ(reference.homeMod, mod);
  });
  EXPECT_EQ(seen, "p0 ");
}

TEST_F(TypeIterComps, StepsThroughComponents)
{
  start();
  TestType type(module, father);
  AsnType *son = firstTypeComp(*type, true, 0);
  AsnType *first = son;
  for (; son; son = nextTypeComp(son, 0)) {
    EXPECT_EQ(son, first);
    EXPECT_EQ(son->father, type.type);
    EXPECT_EQ(son->homeMod, &module);
    seen += refOf(*son) + " ";
    son->partialInfo = true;
  }
  EXPECT_EQ(seen, "a b  c d ");
  seen.clear();
  for (son = lastTypeComp(*type, 0); son; son = prevTypeComp(son, 0)) {
    if (refOf(*son) != "d") {
      EXPECT_TRUE(son->partialInfo);
    }
    son->partialInfo = true;
    seen += refOf(*son) + " ";
  }
  EXPECT_EQ(seen, "d c  b a ");
}

TEST_F(TypeIterComps, StepsOfWhatHasNoComponents)
{
  int32_t empty = define("Empty", TYP_SEQ);
  int32_t synonym = define("Syn", stxNewSynonym(father));
  start();
  for (int32_t record : {empty, synonym}) {
    TestType type(module, record);
    EXPECT_EQ(firstTypeComp(*type, true, 0), nullptr);
    EXPECT_EQ(firstTypeComp(*type, false, 0), nullptr);
    EXPECT_EQ(lastTypeComp(*type, 0), nullptr);
  }
}

// --- lists ------------------------------------------------------------------

TEST_F(TypeIter, ElementOfAList)
{
  for (int mainType : {TYP_SEQOF, TYP_SETOF}) {
    int32_t list = define("L" + std::to_string(mainType), mainType);
    int32_t elem = comp(list, "", TYP_REAL);
    EXPECT_EQ(at(elem).compStatus, TCS_MULTIPLE);
    // A list counts no components: only a walk that takes elements finds it.
    at(list).nrComps = 0;
    start();
    TestType type(module, list);
    seen.clear();
    forTypeElem(*type, noteElem);
    EXPECT_EQ(seen, "element 3/0 ");
    EXPECT_EQ(shownComps(list, forEachTypeCompOrElem), "0 ");
    EXPECT_EQ(shownComps(list, forEachTypeComp), "");
    AsnType *son = firstTypeComp(*type, false, 0);
    ASSERT_NE(son, nullptr);
    EXPECT_EQ(son->compStatus, TCS_MULTIPLE);
    EXPECT_EQ(nextTypeComp(son, 0), nullptr);
    EXPECT_EQ(firstTypeComp(*type, true, 0), nullptr);
  }
}

TEST_F(TypeIter, NoElementOfALeaf)
{
  start();
  TestType type(module, integer);
  forTypeElem(*type, noteElem);
  EXPECT_EQ(seen, "");
}

// --- automatic tags of a walk -----------------------------------------------

static void noteTag(AsnType &, AsnType &comp, int)
{
  seen += refOf(comp) + std::to_string(comp.tagsOutermost->tagNumber) + " ";
}

TEST_F(TypeIterComps, AutomaticTagsPassTheMarker)
{
  at(father).nodeFlags |= NF_AUTOMATIC_TAGS;
  start();
  TestType type(module, father);
  auto skipMarker = [](AsnType &outer, AsnType &comp_, int number) {
    if (!isTypeExtensionmarker(comp_))
      noteTag(outer, comp_, number);
  };
  forEachTypeComp(*type, skipMarker);
  EXPECT_EQ(seen, "a0 b1 c2 d3 ");
  seen.clear();
  // Five components with the marker: the last one has the tag 5 - 2.
  forEachTypeCompRevOrd(*type, skipMarker);
  EXPECT_EQ(seen, "d3 c2 b1 a0 ");
}

TEST_F(TypeIter, AutomaticTagsWithoutMarker)
{
  int32_t father = define("S", TYP_SEQ);
  at(father).nodeFlags |= NF_AUTOMATIC_TAGS;
  comp(father, "a", TYP_NULL);
  comp(father, "b", TYP_NULL);
  start();
  TestType type(module, father);
  forEachTypeCompRevOrd(*type, noteTag);
  EXPECT_EQ(seen, "b1 a0 ");
}

TEST_F(TypeIter, AutomaticTagsGoOnThroughComponentsOf)
{
  int32_t base = define("Base", TYP_SEQ);
  comp(base, "p", TYP_NULL);
  comp(base, "q", TYP_NULL);
  int32_t father = define("S", TYP_SEQ);
  at(father).nodeFlags |= NF_AUTOMATIC_TAGS;
  comp(father, "a", TYP_NULL);
  componentsOf(father, base, 2);
  comp(father, "b", TYP_NULL);
  start();
  TestType type(module, father);
  forEachTypeComp(*type, noteTag);
  EXPECT_EQ(seen, "a0 p1 q2 b3 ");
}

TEST_F(TypeIter, ComponentsOfAnAutomaticStructureInAnother)
{
  // The structure around decides: its universal tags stay.
  int32_t base = define("Base", TYP_SEQ);
  at(base).nodeFlags |= NF_AUTOMATIC_TAGS;
  comp(base, "p", TYP_NULL);
  int32_t father = define("S", TYP_SEQ);
  componentsOf(father, base, 1);
  start();
  TestType type(module, father);
  forEachTypeComp(*type, noteTag);
  EXPECT_EQ(seen, "p5 ");
}

// --- failures ---------------------------------------------------------------

TEST_F(TypeIterComps, NullCallBacks)
{
  start();
  TestType type(module, father);
  auto dies = [](auto f) { EXPECT_EXIT(f(), ExitedWithCode(2), noCallBack); };
  dies([&] { forEachType(module, nullptr); });
  dies([&] { forEachEntryType(module, nullptr); });
  dies([&] { forEachVisType(module, nullptr); });
  dies([&] { forEachEntryVisType(module, nullptr); });
  dies([&] { forTypeByRecNr(module, nullptr, SELECT_TYPES, father); });
  dies([&] { forEntryTypeByRecNr(module, nullptr, father); });
  dies([&] { forEachTypeComp(*type, nullptr); });
  dies([&] { forEachTypeCompRevOrd(*type, nullptr); });
  dies([&] { forTypeElem(*type, nullptr); });
  dies([&] { forEachTypeCompOrElem(*type, nullptr); });
  dies([&] { forEachAdditionGroupComp(*type, *type, nullptr); });
}

// --- damage -----------------------------------------------------------------

struct TypeIterDamage : TypeIter {
  void dies(int32_t record, const char *text,
            void (*walk)(AsnType &, CompCallBack *) = forEachTypeComp)
  {
    start();
    TestType type(module, record);
    EXPECT_EXIT(walk(*type, noteComp), ExitedWithCode(2), text);
  }
};

TEST_F(TypeIterDamage, CyclicDefinitions)
{
  define("A", TYP_NULL);
  int32_t last = define("B", TYP_NULL);
  start();
  readRec(module.rec, REC_TNODE, last);
  tNode.next = integer;
  writeRec(module.rec, REC_TNODE, last);
  EXPECT_EXIT(forEachType(module, noteType), ExitedWithCode(2), damagedM);
  // All of them hidden: the selection itself runs round.
  for (int32_t i = 1; i <= last; ++i) {
    readRec(module.rec, REC_TNODE, i);
    tNode.hidden = 1;
    writeRec(module.rec, REC_TNODE, i);
  }
  EXPECT_EXIT(forEachType(module, noteType), ExitedWithCode(2), damagedM);
}

TEST_F(TypeIterDamage, CyclicComponents)
{
  int32_t father = define("S", TYP_SEQ);
  int32_t first = comp(father, "a", TYP_NULL);
  at(comp(father, "b", TYP_NULL)).next = first;
  dies(father, damagedM);
  dies(father, damagedM, forEachTypeCompRevOrd);
  TestType type(module, father);
  EXPECT_EXIT(lastTypeComp(*type, 0), ExitedWithCode(2), damagedM);
}

TEST_F(TypeIterDamage, ComponentsOfItself)
{
  int32_t father = define("S", TYP_SEQ);
  componentsOf(father, father, 1);
  dies(father, damagedM);
  dies(father, damagedM, forEachTypeCompRevOrd);
}

TEST_F(TypeIterDamage, ComponentsOfEachOther)
{
  int32_t a = define("A", TYP_SEQ);
  int32_t b = define("B", TYP_SEQ);
  componentsOf(a, b, 1);
  componentsOf(b, a, 1);
  dies(a, damagedM);
}

TEST_F(TypeIterDamage, DeepComponentsOfItself)
{
  int32_t father = define("S", TYP_SEQ);
  componentsOf(father, father, 1);
  for (int i = 0; i < 2000; ++i)
    stxType(tree, stxNewTNode(TYP_NULL));
  dies(father, damagedM);
  dies(father, damagedM, forEachTypeCompRevOrd);
}

static void enterGroups(AsnType &father, AsnType &comp, int)
{
  if (comp.base.mainType == TYP_EXTADDGRP)
    forEachAdditionGroupComp(father, comp, enterGroups);
}

TEST_F(TypeIterDamage, GroupInAGroup)
{
  int32_t father = define("S", TYP_SEQ);
  marker(father);
  int32_t group = comp(father, "", TYP_EXTADDGRP);
  // Its members begin with itself.
  at(group).ref = group;
  start();
  TestType type(module, father);
  EXPECT_EXIT(forEachTypeComp(*type, enterGroups), ExitedWithCode(2), damagedM);
}

TEST_F(TypeIterDamage, GroupsThatTellOfTooManyMembers)
{
  int32_t father = define("S", TYP_SEQ);
  marker(father);
  for (int i = 0; i < 20; ++i)
    at(comp(father, "", TYP_EXTADDGRP)).nrComps = 20;
  dies(father, damagedM);
  dies(father, damagedM, forEachTypeCompRevOrd);
}

TEST_F(TypeIterDamage, WildIndexes)
{
  int32_t father = define("S", TYP_SEQ);
  comp(father, "a", TYP_NULL);
  for (int32_t wild : {-1, INT32_MIN, INT32_MAX, 1000}) {
    at(father).ref = wild;
    dies(father, noSuchRecord);
    dies(father, noSuchRecord, forEachTypeCompRevOrd);
    EXPECT_EXIT(forTypeByRecNr(module, noteType, SELECT_TYPES, wild),
                ExitedWithCode(2), noSuchRecord);
  }
  int32_t outer = define("Outer", TYP_SEQ);
  componentsOf(outer, father, 1, 99);  // a module that is not imported
  dies(outer, noSuchRecord);
}

TEST_F(TypeIterDamage, DeepComponentsOfThatEnd)
{
  // Deep, but sound: each brings in the next one's component.
  int32_t inner = define("S0", TYP_SEQ);
  comp(inner, "a", TYP_NULL);
  for (int i = 1; i < 2500; ++i) {
    int32_t outer = define("S" + std::to_string(i), TYP_SEQ);
    componentsOf(outer, inner, 1);
    inner = outer;
  }
  start();
  EXPECT_EQ(shownComps(inner, forEachTypeComp), "a0 ");
  EXPECT_EQ(shownComps(inner, forEachTypeCompRevOrd), "a0 ");
}

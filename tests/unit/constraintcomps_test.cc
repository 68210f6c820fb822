// Walks by WITH COMPONENT and WITH COMPONENTS, and the stacks that carry them.

#include "model/constraint.h"
#include "model/typequery.h"
#include "support/constrainttrees.h"
#include <utility>

using testing::ExitedWithCode;

// What call-backs have seen, and the type that they are to be given.
static std::string seen;
static AsnType *walkingType;

static std::string depths()
{
  return std::to_string(getStackDepth(asnTypePtrStack)) +
         std::to_string(getStackDepth(asnConstraintPtrStack)) +
         std::to_string(getStackDepth(compFuncStack)) +
         std::to_string(getStackDepth(compsFuncStack));
}

static std::string nameOf(const AsnType &type)
{
  std::string text;
  return getTypeRef(text, nullptr, type, nullptr);
}

static void showElement(AsnType &type, AsnType &element,
                        AsnConstraint &constraint)
{
  EXPECT_EQ(&type, walkingType);
  EXPECT_EQ(element.compStatus, TCS_MULTIPLE);
  seen += "element " + std::to_string(element.base.mainType) + " " +
          constraintKindName(getConstraintKind(constraint)) + "\n";
}

static void showComp(AsnType &type, AsnType &comp, AsnConstraint &constraint,
                     int compNbr)
{
  EXPECT_EQ(&type, walkingType);
  EXPECT_EQ(constraint.owner, &type);
  seen += std::to_string(compNbr) + " " + nameOf(comp) + " " +
          constraintKindName(getConstraintKind(constraint)) + " " +
          std::to_string(getPresenceConstraintKind(constraint)) + "\n";
}

static void walkElements(AsnType &type, AsnConstraint *constraint)
{
  EXPECT_EQ(forWithComponentConstraint(type, *constraint, showElement), 0);
}

static void walkComps(AsnType &type, AsnConstraint *constraint)
{
  EXPECT_EQ(forWithComponentsConstraint(type, *constraint, showComp), 0);
}

struct ConstraintComps : ConstraintTrees {
  ConstraintComps() { seen.clear(); }

  std::string shown(int32_t record, ConstraintCallBack *walk)
  {
    load();
    TestType type(module, record);
    walkingType = type.type;
    seen.clear();
    forEachTypeConstraint(*type, walk);
    EXPECT_EQ(depths(), "0000");
    return seen;
  }

  int32_t list(int mainType, int elementType)
  {
    int32_t record = type(mainType);
    stxAddComp(tree, record, "", stxNewTNode(elementType));
    return record;
  }
  void constrain(int32_t record, int32_t constraint)
  {
    stxTypeAt(tree, record).firstConstraint = constraint;
  }

  // A structure with the components a, b (OPTIONAL), c, all BOOLEAN.
  struct Structure {
    int32_t record;
    int32_t a;
    int32_t b;
    int32_t c;
  };
  static Structure structure(StxTree &in, int mainType)
  {
    Structure s;
    s.record = stxDefineType(in, "Struct", stxNewTNode(mainType));
    TNode node = stxNewTNode(TYP_BOOLEAN);
    s.a = stxAddComp(in, s.record, "a", node);
    if (mainType != TYP_CHOICE)
      node.compStatus = TCS_OPTIONAL;
    s.b = stxAddComp(in, s.record, "b", node);
    node.compStatus = TCS_MANDATORY;
    s.c = stxAddComp(in, s.record, "c", node);
    return s;
  }
  // What is said of a component.
  int32_t item(int32_t comp, int flags = 0, int compModule = 1)
  {
    SubRec record = stxNewSub(SUB_SINGLE_VALUE, value(1));
    record.compModule = compModule;
    record.compNode = comp;
    record.subFlags = static_cast<uint8_t>(flags);
    return stxSub(tree, record);
  }
  int32_t withComponents(const std::vector<int32_t> &items, int flags = 0)
  {
    return sub(SUB_WITH_COMPONENTS, stxChainSubs(tree, items), 0, flags);
  }
};

constexpr int fullSpec = 0x02;
constexpr int present = 0x04;
constexpr int absent = 0x08;
constexpr int optional = 0x10;

// --- WITH COMPONENT ---------------------------------------------------------

TEST_F(ConstraintComps, ElementOfAList)
{
  for (int mainType : {TYP_SEQOF, TYP_SETOF}) {
    int32_t record = list(mainType, TYP_INTEGER);
    constrain(record, sub(SUB_WITH_COMPONENT, single(4)));
    EXPECT_EQ(shown(record, walkElements), "element 1 single value\n");
  }
}

TEST_F(ConstraintComps, ElementOfAListBySynonyms)
{
  int32_t base = list(TYP_SEQOF, TYP_REAL);
  int32_t record = synonym(synonym(base), sub(SUB_WITH_COMPONENT, range(1, 2)));
  EXPECT_EQ(shown(record, walkElements), "element 3 range\n");
}

TEST_F(ConstraintComps, ElementOfAListInAnotherModule)
{
  int32_t far = stxDefineType(other, "List", stxNewTNode(TYP_SETOF));
  stxAddComp(other, far, "", stxNewTNode(TYP_REAL));
  int32_t record =
      define(stxNewSynonym(far, 2), sub(SUB_WITH_COMPONENT, single(4)));
  EXPECT_EQ(shown(record, walkElements), "element 3 single value\n");
}

TEST_F(ConstraintComps, NoElementNoCall)
{
  EXPECT_EQ(shown(type(TYP_INTEGER, sub(SUB_WITH_COMPONENT, single(4))),
                  walkElements),
            "");
}

TEST_F(ConstraintComps, LevelsWhileAnElementIsShown)
{
  int32_t record = list(TYP_SEQOF, TYP_INTEGER);
  constrain(record, sub(SUB_WITH_COMPONENT, single(4)));
  shown(record, [](AsnType &type, AsnConstraint *constraint) {
    forWithComponentConstraint(
        type, *constraint, [](AsnType &, AsnType &, AsnConstraint &sub) {
          seen += depths();
          EXPECT_EQ(*stackTop(asnTypePtrStack), walkingType);
          EXPECT_EQ(*stackTop(asnConstraintPtrStack), &sub);
        });
  });
  EXPECT_EQ(seen, "1110");
}

// A list of lists: the inner walk has the outer element for its type, and the
// outer one goes on as before.
TEST_F(ConstraintComps, WalksOverElementsNest)
{
  int32_t inner = list(TYP_SETOF, TYP_BOOLEAN);
  int32_t record = type(TYP_SEQOF);
  stxAddComp(tree, record, "", stxNewSynonym(inner));
  constrain(record,
            sub(SUB_WITH_COMPONENT, sub(SUB_WITH_COMPONENT, single(4))));
  shown(record, [](AsnType &type, AsnConstraint *constraint) {
    forWithComponentConstraint(
        type, *constraint, [](AsnType &, AsnType &element, AsnConstraint &sub) {
          AsnType *outer = walkingType;
          walkingType = &element;
          seen += depths() + " ";
          EXPECT_EQ(forWithComponentConstraint(element, sub, showElement), 0);
          seen += depths() + "\n";
          walkingType = outer;
          EXPECT_EQ(*stackTop(asnTypePtrStack), walkingType);
          EXPECT_EQ(*stackTop(asnConstraintPtrStack), &sub);
        });
  });
  EXPECT_EQ(seen, "1110 element 0 single value\n1110\n");
}

// --- WITH COMPONENTS --------------------------------------------------------

TEST_F(ConstraintComps, PartialShowsTheNamedOnes)
{
  Structure s = structure(tree, TYP_SEQ);
  constrain(s.record, withComponents({item(s.c), item(s.b)}));
  // In the order of the structure; b keeps its lack of a word.
  EXPECT_EQ(shown(s.record, walkComps),
            "1 b single value 255\n2 c single value 255\n");
}

TEST_F(ConstraintComps, FullShowsTheOthersAsAbsent)
{
  Structure s = structure(tree, TYP_SET);
  constrain(s.record, withComponents({item(s.a)}, fullSpec));
  EXPECT_EQ(shown(s.record, walkComps), "0 a single value 255\n"
                                        "1 b exception specification 3\n"
                                        "2 c exception specification 3\n");
}

TEST_F(ConstraintComps, FullMakesAnOptionalOnePresent)
{
  Structure s = structure(tree, TYP_SEQ);
  constrain(s.record,
            withComponents({item(s.a), item(s.b), item(s.c)}, fullSpec));
  EXPECT_EQ(shown(s.record, walkComps), "0 a single value 255\n"
                                        "1 b single value 2\n"
                                        "2 c single value 255\n");
}

TEST_F(ConstraintComps, AWordOfItsOwnStays)
{
  for (auto [flag, kind] : {std::pair(present, "2"), std::pair(absent, "3"),
                            std::pair(optional, "4")}) {
    Structure s = structure(tree, TYP_SEQ);
    constrain(s.record, withComponents({item(s.b, flag)}, fullSpec));
    EXPECT_EQ(shown(s.record, walkComps),
              "0 a exception specification 3\n1 b single value " +
                  std::string(kind) + "\n2 c exception specification 3\n");
  }
}

TEST_F(ConstraintComps, ChoiceShowsTheOthersInAnyCase)
{
  for (int flags : {0, fullSpec}) {
    Structure s = structure(tree, TYP_CHOICE);
    constrain(s.record, withComponents({item(s.b)}, flags));
    EXPECT_EQ(shown(s.record, walkComps), "0 a exception specification 3\n"
                                          "1 b single value 255\n"
                                          "2 c exception specification 3\n");
  }
}

TEST_F(ConstraintComps, NobodyNamed)
{
  Structure s = structure(tree, TYP_SEQ);
  constrain(s.record, withComponents({}));
  EXPECT_EQ(shown(s.record, walkComps), "");
  constrain(s.record, withComponents({}, fullSpec));
  EXPECT_EQ(shown(s.record, walkComps), "0 a exception specification 3\n"
                                        "1 b exception specification 3\n"
                                        "2 c exception specification 3\n");
}

// A marker is walked like a component, and nobody can name it.
TEST_F(ConstraintComps, MarkersAreNeverNamed)
{
  for (bool full : {true, false}) {
    Structure s = structure(tree, TYP_SEQ);
    stxAddComp(tree, s.record, "", stxNewTNode(TYP_EXTENSION_MARKER));
    int32_t d = stxAddComp(tree, s.record, "d", stxNewTNode(TYP_NULL));
    constrain(s.record,
              withComponents({item(s.a), item(s.b), item(s.c), item(d)},
                             full ? fullSpec : 0));
    EXPECT_EQ(shown(s.record, walkComps),
              full ? "0 a single value 255\n1 b single value 2\n"
                     "2 c single value 255\n3  exception specification 3\n"
                     "4 d single value 255\n"
                   : "0 a single value 255\n1 b single value 255\n"
                     "2 c single value 255\n4 d single value 255\n");
  }
}

// Looking for two thousand among two thousand is no sign of damage.
TEST_F(ConstraintComps, ManyNamedComponents)
{
  int32_t record = type(TYP_SEQ);
  std::vector<int32_t> items;
  for (int i = 0; i < 2000; ++i)
    items.push_back(item(stxAddComp(tree, record, "c", stxNewTNode(TYP_NULL))));
  constrain(record, withComponents(items));
  shown(record, [](AsnType &walking, AsnConstraint *constraint) {
    forWithComponentsConstraint(
        walking, *constraint,
        [](AsnType &, AsnType &, AsnConstraint &, int) { seen += "."; });
  });
  EXPECT_EQ(seen.size(), 2000U);
}

TEST_F(ConstraintComps, AMadeUpConstraintHasNoRecord)
{
  Structure s = structure(tree, TYP_SEQ);
  constrain(s.record, withComponents({}, fullSpec));
  shown(s.record, [](AsnType &type, AsnConstraint *constraint) {
    forWithComponentsConstraint(
        type, *constraint, [](AsnType &, AsnType &, AsnConstraint &sub, int) {
          EXPECT_EQ(sub.module, nullptr);
          EXPECT_EQ(sub.rec.kind, SUB_EXCEPTION);
          EXPECT_EQ(sub.rec.subFlags, absent);
          EXPECT_EQ(sub.rec.operand1, 0);
          EXPECT_EQ(sub.rec.nextSub, 0);
          seen += ".";
        });
  });
  EXPECT_EQ(seen, "...");
}

// PRESENT is added to what is shown, not to the tree.
TEST_F(ConstraintComps, TheTreeStays)
{
  Structure s = structure(tree, TYP_SEQ);
  int32_t named = item(s.b);
  constrain(s.record, withComponents({named}, fullSpec));
  shown(s.record, walkComps);
  readRec(module.rec, REC_SUB, named);
  EXPECT_EQ(subRec.subFlags, 0);
}

TEST_F(ConstraintComps, SynonymsLeadToTheComponents)
{
  Structure s = structure(tree, TYP_SEQ);
  int32_t record = synonym(synonym(s.record), withComponents({item(s.c)}));
  EXPECT_EQ(shown(record, walkComps), "2 c single value 255\n");
}

TEST_F(ConstraintComps, ComponentsInAnotherModule)
{
  Structure s = structure(other, TYP_SEQ);
  // The same records of M are named, too, but are other nodes.
  int32_t constraint = withComponents({item(s.a, 0, 1), item(s.b, 0, 2)});
  TNode node = stxNewSynonym(s.record, 2);
  int32_t record = define(node, constraint);
  EXPECT_EQ(shown(record, walkComps), "1 b single value 255\n");
}

TEST_F(ConstraintComps, ComponentsInAnotherModuleOverASynonymThere)
{
  Structure s = structure(other, TYP_SEQ);
  int32_t far = stxDefineType(other, "Far", stxNewSynonym(s.record));
  int32_t record = define(stxNewSynonym(far, 2),
                          withComponents({item(s.c, 0, 2)}, fullSpec));
  EXPECT_EQ(shown(record, walkComps), "0 a exception specification 3\n"
                                      "1 b exception specification 3\n"
                                      "2 c single value 255\n");
}

TEST_F(ConstraintComps, TheModuleChangesForTheWalk)
{
  Structure s = structure(other, TYP_SEQ);
  int32_t record =
      define(stxNewSynonym(s.record, 2), withComponents({}, fullSpec));
  shown(record, [](AsnType &type, AsnConstraint *constraint) {
    forWithComponentsConstraint(
        type, *constraint,
        [](AsnType &walking, AsnType &comp, AsnConstraint &, int) {
          EXPECT_EQ(walking.mod->rec, walking.compModRec);
          EXPECT_NE(comp.mod->rec, walking.mod->rec);
          EXPECT_EQ(comp.mod->rec, comp.compModRec);
          seen += nameOf(comp);
        });
  });
  EXPECT_EQ(seen, "abc");
}

// The way into another module takes no hidden definitions.
TEST_F(ConstraintComps, HiddenStructuresOfAnotherModule)
{
  Structure s = structure(other, TYP_SEQ);
  stxTypeAt(other, s.record).hidden = 1;
  int32_t record =
      define(stxNewSynonym(s.record, 2), withComponents({}, fullSpec));
  EXPECT_EXIT(shown(record, walkComps), ExitedWithCode(2),
              "Unable to construct AsnType for a type defined in another "
              "module");
  Structure own = structure(tree, TYP_SEQ);
  stxTypeAt(tree, own.record).hidden = 1;
  record = synonym(own.record, withComponents({item(own.a)}));
  EXPECT_EQ(shown(record, walkComps), "0 a single value 255\n");
}

TEST_F(ConstraintComps, AnUnknownModuleNamesNobody)
{
  Structure s = structure(tree, TYP_SEQ);
  constrain(s.record, withComponents({item(s.a, 0, 77), item(s.c)}));
  EXPECT_EQ(shown(s.record, walkComps), "2 c single value 255\n");
}

TEST_F(ConstraintComps, LeavesHaveNoComponents)
{
  EXPECT_EQ(shown(type(TYP_INTEGER, withComponents({}, fullSpec)), walkComps),
            "");
}

// Of the component's own list the structure's constraint is no part.
TEST_F(ConstraintComps, ComponentsKeepTheirOwnList)
{
  Structure s = structure(tree, TYP_SEQ);
  stxTypeAt(tree, s.a).firstConstraint = range(1, 2);
  constrain(s.record, withComponents({item(s.a)}));
  shown(s.record, [](AsnType &type, AsnConstraint *constraint) {
    forWithComponentsConstraint(
        type, *constraint,
        [](AsnType &, AsnType &comp, AsnConstraint &sub, int) {
          EXPECT_EQ(sub.rec.kind, SUB_SINGLE_VALUE);
          forEachTypeConstraint(comp, [](AsnType &, AsnConstraint *own) {
            seen += std::to_string(own->rec.kind);
          });
        });
  });
  EXPECT_EQ(seen, "10");
}

// The same walk within each call, and over the components themselves.
TEST_F(ConstraintComps, WalksOverComponentsNest)
{
  Structure s = structure(tree, TYP_SEQ);
  constrain(s.record, withComponents({item(s.a), item(s.c)}));
  shown(s.record, [](AsnType &type, AsnConstraint *constraint) {
    forWithComponentsConstraint(
        type, *constraint,
        [](AsnType &walking, AsnType &, AsnConstraint &, int compNbr) {
          seen += depths() + " " + std::to_string(compNbr) + "{";
          forEachTypeConstraint(walking, walkComps);
          forEachTypeComp(walking, [](AsnType &, AsnType &, int nbr) {
            seen += std::to_string(nbr);
          });
          seen += "}" + depths() + "\n";
        });
  });
  const std::string inner = "0 a single value 255\n2 c single value 255\n012";
  EXPECT_EQ(seen, "1101 0{" + inner + "}1101\n1101 2{" + inner + "}1101\n");
}

// --- the stacks -------------------------------------------------------------

TEST_F(ConstraintComps, InitializationEmptiesTheStacks)
{
  pushStack(asnTypePtrStack, nullptr);
  pushStack(asnConstraintPtrStack, nullptr);
  pushStack(compFuncStack, showElement);
  pushStack(compsFuncStack, showComp);
  pushStack(compsFuncStack, showComp);
  EXPECT_EQ(depths(), "1112");
  initializeAsnConstraints();
  EXPECT_EQ(depths(), "0000");
}

TEST_F(ConstraintComps, EmptyStacks)
{
  AsnType type;
  AsnConstraint constraint;
  auto die = [&](const char *text) {
    EXPECT_EXIT(constrainElement(type, type), ExitedWithCode(2), text);
    EXPECT_EXIT(constrainComponent(type, type, 0), ExitedWithCode(2), text);
  };
  die("Empty type stack");
  pushStack(asnTypePtrStack, &type);
  die("Empty constraint stack");
  pushStack(asnConstraintPtrStack, &constraint);
  die("Empty function stack");
}

// One sort of function does not serve for the other.
TEST_F(ConstraintComps, TheFunctionStacksAreApart)
{
  AsnType type;
  AsnConstraint constraint;
  pushStack(asnTypePtrStack, &type);
  pushStack(asnConstraintPtrStack, &constraint);
  pushStack(compFuncStack, showElement);
  EXPECT_EXIT(constrainComponent(type, type, 0), ExitedWithCode(2),
              "Empty function stack");
}

// --- damaged trees ----------------------------------------------------------

TEST_F(ConstraintComps, CyclicItems)
{
  Structure s = structure(tree, TYP_SEQ);
  int32_t first = item(99);
  int32_t second = item(98);
  constrain(s.record, withComponents({first, second}));
  stxSubAt(tree, second).nextSub = first;
  EXPECT_EXIT(shown(s.record, walkComps), ExitedWithCode(2), damagedM);
}

TEST_F(ConstraintComps, WildItems)
{
  for (int32_t operand : {99, -3}) {
    Structure s = structure(tree, TYP_SEQ);
    constrain(s.record, sub(SUB_WITH_COMPONENTS, operand));
    EXPECT_EXIT(shown(s.record, walkComps), ExitedWithCode(2), noSuchRecord);
  }
  for (int32_t operand : {99, 0}) {
    int32_t record = list(TYP_SEQOF, TYP_INTEGER);
    constrain(record, sub(SUB_WITH_COMPONENT, operand));
    EXPECT_EXIT(shown(record, walkElements), ExitedWithCode(2), noSuchRecord);
  }
}

TEST_F(ConstraintComps, CyclicSynonyms)
{
  int32_t record = synonym(integer, withComponents({}, fullSpec));
  stxTypeAt(tree, record).ref = record;
  EXPECT_EXIT(shown(record, walkComps), ExitedWithCode(2), damagedM);
}

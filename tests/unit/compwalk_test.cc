// Walks over components, nested in every order on one father. Structures are
// made at random (markers, groups, COMPONENTS OF within and across the
// modules, references back and forth), and what a walk has to give is told by
// a second model: a list that is written down when the structure is made.

#include "model/typeiter.h"
#include "support/typetrees.h"
#include <algorithm>
#include <random>
#include <vector>

// One component as a walk has to show it.
struct Entry {
  std::string name;
  bool marker = false;
  bool optional = false;
  bool inComponentsOf = false;
  bool inM = true;             // its node lies in module M
  int refers = -1;             // the structure that it is a reference to
  int number = 0;              // among all
  int extension = -1;          // among the additions
  std::vector<Entry> members;  // of a group
};

struct Structure {
  bool inM;
  int32_t record;
  std::vector<Entry> entries;
  int firstMarker = -1;
};

// The structures of a round, and the choices of its walks.
static std::vector<Structure> structures;
static std::mt19937 dice;

static int roll(int sides)
{
  return static_cast<int>(dice() % static_cast<unsigned>(sides));
}

// --- making -----------------------------------------------------------------

// Numbers from left to right: a group has its first member's number, and what
// follows it counts on behind its last one.
static void number(Structure &structure)
{
  int next = 0;
  int extension = -1;
  for (Entry &entry : structure.entries) {
    entry.number = next;
    for (Entry &member : entry.members)
      member.number = next++;
    next += entry.members.empty();
    if (entry.marker && structure.firstMarker < 0) {
      structure.firstMarker = entry.number;
      extension = 0;
    } else if (!entry.marker && extension >= 0) {
      entry.extension = extension++;
    }
  }
}

struct CompWalk : TypeTrees {
  int named = 0;

  StxTree &treeOf(const Structure &structure)
  {
    return structure.inM ? tree : other;
  }
  // The number of a structure's module in the tree of another one.
  static int32_t moduleNumber(const Structure &from, const Structure &to)
  {
    return from.inM == to.inM ? 1 : 2;
  }

  // A component with a name of its own: a leaf, or a reference to any
  // structure, its own included. References get their record afterwards.
  Entry plain(Structure &structure, int32_t father)
  {
    Entry entry;
    entry.name = "c" + std::to_string(++named);
    entry.inM = structure.inM;
    entry.optional = roll(2) == 0;
    bool refers = roll(3) == 0;
    TNode node = refers ? stxNewSynonym(1) : stxNewTNode(TYP_BOOLEAN);
    node.compStatus = entry.optional ? TCS_OPTIONAL : TCS_MANDATORY;
    int32_t record = stxAddComp(treeOf(structure), father, entry.name, node);
    if (refers) {
      entry.refers = roll(structureCount);
      references.push_back({structure.inM, record, entry.refers});
    }
    return entry;
  }

  void addMarker(Structure &structure)
  {
    stxAddComp(treeOf(structure), structure.record, "",
               stxNewTNode(TYP_EXTENSION_MARKER));
    Entry entry;
    entry.marker = true;
    entry.inM = structure.inM;
    structure.entries.push_back(entry);
  }

  void addGroup(Structure &structure)
  {
    int32_t group = stxAddComp(treeOf(structure), structure.record, "",
                               stxNewTNode(TYP_EXTADDGRP));
    Entry entry;
    entry.inM = structure.inM;
    for (int i = roll(3); i >= 0; --i)
      entry.members.push_back(plain(structure, group));
    if (!structures.empty() && roll(3) == 0)
      addComponentsOf(structure, group, entry.members);
    stxTypeAt(treeOf(structure), group).nrComps =
        static_cast<int32_t>(entry.members.size());
    structure.entries.push_back(entry);
  }

  // The root of an earlier structure, directly or by a synonym.
  void addComponentsOf(Structure &structure, int32_t father,
                       std::vector<Entry> &entries)
  {
    const Structure &target = structures[static_cast<size_t>(
        roll(static_cast<int>(structures.size())))];
    StxTree &at = treeOf(structure);
    TNode node = stxNewSynonym(target.record, moduleNumber(structure, target));
    if (roll(2) == 0)
      node = stxNewSynonym(
          stxDefineType(at, "Syn-" + std::to_string(++named), node));
    node.compStatus = TCS_COMPOF;
    stxAddComp(at, father, "", node);
    for (const Entry &entry : target.entries) {
      if (entry.marker)
        break;
      Entry copy = entry;
      copy.inComponentsOf = true;
      entries.push_back(copy);
    }
  }

  // A component, or those of an earlier structure.
  void addPlain(Structure &structure)
  {
    if (!structures.empty() && roll(3) == 0)
      addComponentsOf(structure, structure.record, structure.entries);
    else
      structure.entries.push_back(plain(structure, structure.record));
  }

  void make(bool inM)
  {
    static const int mainTypes[] = {TYP_SEQ, TYP_SET, TYP_SEQ};
    Structure structure = {
        .inM = inM, .record = 0, .entries = {}, .firstMarker = -1};
    std::string name = "S" + std::to_string(structures.size());
    structure.record =
        stxDefineType(treeOf(structure), name, stxNewTNode(mainTypes[roll(3)]));
    int root = roll(4);
    for (int i = 0; i < root; ++i)
      addPlain(structure);
    // Additions behind a marker, a second marker, the second root list.
    int markers = roll(3);
    for (int m = 0; m < markers; ++m) {
      addMarker(structure);
      for (int i = roll(4); i > 0; --i) {
        if (m == 0 && roll(2) == 0)
          addGroup(structure);
        else
          addPlain(structure);
      }
    }
    number(structure);
    finish(structure);
  }

  // The flattened count, from the list.
  void finish(const Structure &structure)
  {
    int count = 0;
    for (const Entry &entry : structure.entries)
      count +=
          entry.members.empty() ? 1 : static_cast<int>(entry.members.size());
    stxTypeAt(treeOf(structure), structure.record).nrComps = count;
    structures.push_back(structure);
  }

  void makeRound(unsigned seed)
  {
    dice.seed(seed);
    structures.clear();
    for (int i = 0; i < structureCount; ++i)
      make(roll(2) == 0);
    for (const Reference &reference : references) {
      const Structure &target = structures[static_cast<size_t>(reference.to)];
      TNode &node = stxTypeAt(reference.inM ? tree : other, reference.record);
      node.ref = target.record;
      node.refModule = reference.inM == target.inM ? 1 : 2;
    }
    // One structure can be brought in many times over: a walk may then show
    // more components than the structures have nodes.
    for (int i = 0; i < 3000; ++i)
      stxType(tree, stxNewTNode(TYP_NULL));
    start();
  }

  static constexpr int structureCount = 7;
  struct Reference {
    bool inM;
    int32_t record;
    int to;
  };
  std::vector<Reference> references;
};

// --- walking ----------------------------------------------------------------

// A walk that is under way.
struct Walk {
  const Structure &structure;
  std::vector<Entry> expected;
  bool reverse = false;
  AsnType *group = nullptr;
  size_t at = 0;
  bool optionalBefore = false;
};

static std::vector<Walk *> walks;
static long visits;

static void checkWalks(AsnType &father, int structure, int depth);
static void checkGroup(AsnType &father, AsnType &group, const Entry &entry,
                       const Structure &structure);

static void checkNumbers(AsnType &father, AsnType &comp, const Entry &entry)
{
  const Walk &walk = *walks.back();
  EXPECT_EQ(refOf(comp), entry.name);
  EXPECT_EQ(comp.compNbr, entry.number);
  EXPECT_EQ(father.compIndex, entry.number);
  EXPECT_EQ(father.prevCompOptional, walk.optionalBefore);
  // Counted from the front, and within the structure.
  if (!walk.reverse && !walk.group) {
    EXPECT_EQ(comp.extCompNbr, entry.extension) << entry.number;
  }
}

static void checkPlace(AsnType &father, AsnType &comp, const Entry &entry)
{
  const Walk &walk = *walks.back();
  int marker = walk.structure.firstMarker;
  EXPECT_EQ(comp.father, &father);
  EXPECT_EQ(comp.addGroup, walk.group);
  EXPECT_EQ(comp.inComponentsOf, entry.inComponentsOf);
  EXPECT_STREQ(comp.compModRec->moduleName, entry.inM ? "M" : "N");
  EXPECT_EQ(isTypeExtensionmarker(comp), entry.marker);
  EXPECT_EQ(getTypeExtensionmarkerCompNbr(father), marker);
  EXPECT_EQ(isExtensionRootComponent(&father, comp),
            marker < 0 || entry.number < marker);
  EXPECT_EQ(isTypeExtension(comp), marker >= 0 && entry.number > marker);
}

static void visit(AsnType &father, AsnType &comp, int compNbr)
{
  ++visits;
  Walk &walk = *walks.back();
  ASSERT_LT(walk.at, walk.expected.size());
  const Entry entry = walk.expected[walk.at++];
  EXPECT_EQ(compNbr, entry.number);
  checkNumbers(father, comp, entry);
  int depth = static_cast<int>(walks.size());
  if (depth < 4 && roll(depth + 1) == 0) {
    int self = static_cast<int>(&walk.structure - structures.data());
    checkWalks(father, self, depth);
    if (!entry.members.empty())
      checkGroup(father, comp, entry, walk.structure);
    if (entry.refers >= 0)
      checkWalks(comp, entry.refers, depth);
  }
  // The same as before, whatever was walked in between.
  checkNumbers(father, comp, entry);
  checkPlace(father, comp, entry);
  if (!entry.marker)
    walk.optionalBefore = entry.optional;
}

static void runWalk(Walk &walk, AsnType &father, void (*start)(AsnType &))
{
  walks.push_back(&walk);
  start(father);
  walks.pop_back();
  EXPECT_EQ(walk.at, walk.expected.size());
}

static void checkGroup(AsnType &father, AsnType &group, const Entry &entry,
                       const Structure &structure)
{
  Walk walk = {
      .structure = structure, .expected = entry.members, .group = &group};
  runWalk(walk, father, [](AsnType &type) {
    forEachAdditionGroupComp(type, *walks.back()->group, visit);
  });
}

// One walk of a random sort, or two in turn.
static void checkWalks(AsnType &father, int index, int depth)
{
  const Structure &structure = structures[static_cast<size_t>(index)];
  EXPECT_EQ(father.base.nrComps == 0, structure.entries.empty());
  for (int i = depth == 0 ? 4 : 1 + roll(2); i > 0; --i) {
    Walk walk = {.structure = structure, .expected = structure.entries};
    switch (roll(3)) {
    case 0:
      walk.reverse = true;
      std::reverse(walk.expected.begin(), walk.expected.end());
      runWalk(walk, father,
              [](AsnType &type) { forEachTypeCompRevOrd(type, visit); });
      break;
    case 1:
      runWalk(walk, father,
              [](AsnType &type) { forEachTypeCompOrElem(type, visit); });
      break;
    default:
      runWalk(walk, father,
              [](AsnType &type) { forEachTypeComp(type, visit); });
    }
  }
}

TEST_F(CompWalk, NestedInEveryOrder)
{
  long before = visits;
  for (unsigned seed = 1; seed <= 40 && !HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    references.clear();
    tree = stxNewTree("M", "m");
    other = stxNewTree("N", "n");
    stxImport(tree, "N", "n", true);
    stxImport(other, "M", "m", true);
    makeRound(seed);
    for (int i = 0; i < structureCount; ++i) {
      const Structure &structure = structures[static_cast<size_t>(i)];
      TestType father(structure.inM ? module : otherModule, structure.record);
      checkWalks(*father, i, 0);
      // Nothing is left of a walk.
      EXPECT_EQ(father->compIndex, 0);
      EXPECT_FALSE(father->prevCompOptional);
    }
  }
  // The rounds did walk something.
  EXPECT_GT(visits - before, 10000);
}

// The counts by walks, taken inside of walks.
static int optionalInside;
static int mandatoryInside;

TEST_F(CompWalk, CountsInsideOfWalks)
{
  int32_t father = define("S", TYP_SEQ);
  comp(father, "a", TYP_BOOLEAN);
  comp(father, "b", TYP_BOOLEAN, TCS_OPTIONAL);
  comp(father, "c", TYP_BOOLEAN, TCS_OPTIONAL);
  start();
  TestType type(module, father);
  optionalInside = mandatoryInside = 0;
  forEachTypeComp(*type, [](AsnType &outer, AsnType &, int number) {
    optionalInside += getNrOfOptionalTypeComps(outer);
    mandatoryInside += getNrOfMandatoryTypeComps(outer);
    EXPECT_EQ(outer.compIndex, number);
  });
  EXPECT_EQ(optionalInside, 6);
  EXPECT_EQ(mandatoryInside, 3);
}

// The example of the numbers: a, the marker, [[b, c]], d.
static std::string shown;

static void showNumbers(AsnType &, AsnType &comp, int number)
{
  shown += refOf(comp) + std::to_string(number) + "/" +
           std::to_string(comp.extCompNbr) + " ";
}

static void showWithMembers(AsnType &father, AsnType &comp, int number)
{
  showNumbers(father, comp, number);
  if (getTypeMainType(comp) == TYP_EXTADDGRP)
    forEachAdditionGroupComp(father, comp, showNumbers);
}

TEST_F(CompWalk, GroupShowsTheNumberOfItsFirstMember)
{
  int32_t father = define("S", TYP_SEQ);
  comp(father, "a", TYP_BOOLEAN);
  marker(father);
  int32_t group = comp(father, "", TYP_EXTADDGRP);
  comp(group, "b", TYP_BOOLEAN);
  comp(group, "c", TYP_BOOLEAN);
  comp(father, "d", TYP_BOOLEAN);
  EXPECT_EQ(at(father).nrComps, 5);
  start();
  TestType type(module, father);
  shown.clear();
  forEachTypeComp(*type, showWithMembers);
  EXPECT_EQ(shown, "a0/-1 1/-1 2/0 b2/-1 c3/-1 d4/1 ");
}

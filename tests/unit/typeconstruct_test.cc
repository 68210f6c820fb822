// Construction of types: what a view takes from its own node, from the chain
// and from the end of it, and from its father.

#include "base/upcalls.h"
#include "driver/typemeta.h"
#include "model/asntype.h"
#include "model/typepath.h"
#include "support/typetrees.h"
#include <limits>

using testing::ExitedWithCode;

constexpr int64_t smallest = std::numeric_limits<int64_t>::min();
constexpr int64_t greatest = std::numeric_limits<int64_t>::max();

static std::string baseName(const AsnType &type)
{
  return type.baseFix.id ? type.baseFix.id : "";
}

static uint32_t bit(int number)
{
  return uint32_t{1} << number;
}

struct TypeConstruct : TypeTrees {
  ~TypeConstruct() override { initializeAsnTypes(); }

  // An instance of the parameterised type `body`; topmost unless it is nested
  // in another instance.
  TNode instanceOf(int32_t body, bool nested = false)
  {
    TNode node = stxNewSynonym(body);
    node.fieldRef = 1;
    node.nestedInstance = nested;
    return node;
  }
  // A node that only a chain leads to.
  int32_t inner(int mainType, int status = -TCS_HEADER)
  {
    TNode node = stxNewTNode(mainType);
    node.compStatus = status;
    return stxType(tree, node);
  }
  int32_t constrained(int32_t record, int32_t number)
  {
    at(record).firstConstraint = sub(SUB_SINGLE_VALUE, value(number));
    return at(record).firstConstraint;
  }
};

// A son of a father that is a component of nobody.
struct TestSon {
  AsnType *type;
  TestSon(TestType &father, int32_t record, int autoTagNr = 0)
  {
    readRec(father->mod->rec, REC_TNODE, record);
    type = newAsnType(father->mod, father->homeMod);
    getTypePathN(father.type, *type, true, autoTagNr);
  }
  ~TestSon() { delAsnType(type); }
  TestSon(const TestSon &) = delete;
  AsnType *operator->() const { return type; }
  AsnType &operator*() const { return *type; }
};

// --- objects ----------------------------------------------------------------

TEST_F(TypeConstruct, FreshView)
{
  start();
  AsnType *type = newAsnType(&module, &otherModule);
  EXPECT_EQ(type->mod, &module);
  EXPECT_EQ(type->homeMod, &otherModule);
  EXPECT_TRUE(type->alive);
  EXPECT_EQ(type->extMarkerCompNbr, -1);
  EXPECT_EQ(type->father, nullptr);
  EXPECT_EQ(type->constraints.kind, NODES_CONSTRAINTS);
  EXPECT_EQ(type->constraints.first, nullptr);
  EXPECT_FALSE(type->partialInfo);
  delAsnType(type);
}

TEST_F(TypeConstruct, ClearedView)
{
  int32_t record = define("T", TYP_INTEGER);
  constrained(record, 1);
  start();
  TestType type(module, record);
  type->extMarkerCompNbr = 3;
  type->partialInfo = true;
  EXPECT_NE(type->tagsFirst, nullptr);
  EXPECT_NE(type->constraints.first, nullptr);
  clearAsnType(*type);
  EXPECT_EQ(type->tagsFirst, nullptr);
  EXPECT_EQ(type->tagsOutermost, nullptr);
  EXPECT_EQ(type->constraints.first, nullptr);
  EXPECT_EQ(type->constraints.kind, NODES_CONSTRAINTS);
  EXPECT_EQ(type->nrTags, 0);
  EXPECT_EQ(type->mod, nullptr);
  EXPECT_EQ(type->homeMod, nullptr);
  EXPECT_EQ(type->compModRec, nullptr);
  EXPECT_EQ(type->extMarkerCompNbr, -1);
  EXPECT_FALSE(type->partialInfo);
  EXPECT_TRUE(type->alive);
}

TEST_F(TypeConstruct, DeletedOnce)
{
  start();
  delAsnType(nullptr);
  AsnType *type = newAsnType(&module, &module);
  delAsnType(type);
  delAsnType(type);
  // Twice in the cache, it would be handed out twice.
  AsnType *a = newAsnType(&module, &module);
  AsnType *b = newAsnType(&module, &module);
  EXPECT_EQ(a, type);
  EXPECT_NE(a, b);
  delAsnType(a);
  delAsnType(b);
}

// --- the node itself --------------------------------------------------------

TEST_F(TypeConstruct, FieldsOfANode)
{
  TNode node = stxNewTNode(TYP_BITSTR, VF_STAS);
  node.line = 41;
  node.stamp = 9;
  node.defaultValue = 0;
  node.nodeFlags = NF_RECURSIVE;
  node.entryFlags = entryFlagBit | 1;
  node.entryCategory = 6;
  node.typeOptions.definiteLength = 1;
  node.typeOptions.skipKind = 0;
  node.typeOptions.sizeLimit = 77;
  stxSetBounds(node, 2, 5);
  int32_t record = define("Bits", node);
  start();
  TestType type(module, record);
  EXPECT_EQ(type->compModRec, module.rec);
  EXPECT_EQ(type->compRecNr, record);
  EXPECT_EQ(type->baseModRec, module.rec);
  EXPECT_EQ(type->baseRecNr, record);
  EXPECT_EQ(type->compStatus, TCS_HEADER);
  EXPECT_EQ(type->firstMainType, TYP_BITSTR);
  EXPECT_EQ(type->nodeFlags, NF_RECURSIVE);
  EXPECT_EQ(type->entryFlags, entryFlagBit | 1);
  EXPECT_EQ(type->entryCategory, 6);
  EXPECT_EQ(type->typeOptions.definiteLength, 1);
  EXPECT_EQ(type->typeOptions.skipKind, 0);
  EXPECT_EQ(type->base.typeOptions.sizeLimit, 77);
  EXPECT_EQ(i64cmpl(type->sizeLower, 2), 0);
  EXPECT_EQ(i64cmpl(type->sizeUpper, 5), 0);
  EXPECT_EQ(type->base.valueField, VF_STAS);
  EXPECT_EQ(type->synonymSteps, 0);
  EXPECT_EQ(refOf(*type), "Bits");
  EXPECT_EQ(baseName(*type), "Bits");
  EXPECT_EQ(getTypeDefinitionLine(*type), 41);
  EXPECT_EQ(getTypeDefinitionLevel(*type), 0);
  EXPECT_EQ(getUniqueTypeNr(*type), record - 1);
  EXPECT_EQ(getUniqueBaseTypeNr(*type), record - 1);
  EXPECT_EQ(type->typePath, nullptr);
}

TEST_F(TypeConstruct, SonHasNoEntry)
{
  int32_t father = define("S", TYP_SEQ);
  TNode node = stxNewTNode(TYP_NULL);
  node.entryFlags = entryFlagBit;
  node.entryCategory = 3;
  node.defaultValue = 0;
  int32_t record = comp(father, "a", node);
  start();
  TestType type(module, father);
  TestSon son(type, record);
  EXPECT_EQ(son->entryFlags, 0);
  EXPECT_EQ(son->entryCategory, 0);
  EXPECT_EQ(son->father, type.type);
  EXPECT_EQ(getFatherOfTypeComp(*son), type.type);
  TestType alone(module, record);
  EXPECT_EQ(alone->entryFlags, entryFlagBit);
  EXPECT_EQ(alone->entryCategory, 3);
}

// --- chains -----------------------------------------------------------------

TEST_F(TypeConstruct, SynonymIntoAnotherModule)
{
  int32_t base = stxDefineType(other, "Base", stxNewTNode(TYP_REAL));
  int32_t middle = stxDefineType(other, "Middle", stxNewSynonym(base));
  int32_t record = define("Mine", stxNewSynonym(middle, 2));
  start();
  TestType type(module, record);
  EXPECT_EQ(type->compModRec, module.rec);
  EXPECT_EQ(type->baseModRec, otherModule.rec);
  EXPECT_EQ(type->baseRecNr, base);
  EXPECT_EQ(getUniqueBaseTypeNr(*type), base - 1);
  EXPECT_EQ(refOf(*type), "Mine");
  // The last node of the chain gives the name, not the first.
  EXPECT_EQ(baseName(*type), "Base");
  EXPECT_EQ(type->synonymSteps, 2);
  EXPECT_EQ(type->firstMainType, TYP_SYNONYM);
  EXPECT_EQ(getTypeMainType(*type), TYP_REAL);
  EXPECT_FALSE(isBaseTypeInCurrentModule(*type));
  // The buffer is left at the end of the chain.
  EXPECT_EQ(recJustRead[REC_TNODE].module, otherModule.rec);
  EXPECT_EQ(recJustRead[REC_TNODE].index, base);
  TestType there(otherModule, middle);
  EXPECT_TRUE(isBaseTypeInCurrentModule(*there));
  EXPECT_FALSE(isTheSameTypeModule(*type, *there));
  EXPECT_TRUE(isTheSameTypeModule(*type, *type));
}

TEST_F(TypeConstruct, ConstraintsFromTheBaseOutwards)
{
  int32_t base = define("Base", TYP_INTEGER);
  int32_t middle = define("Middle", stxNewSynonym(base));
  int32_t record = define("Mine", stxNewSynonym(middle));
  int32_t ofBase = constrained(base, 1);
  int32_t ofMine = constrained(record, 2);
  start();
  TestType type(module, record);
  EXPECT_EQ(type->nrConstraints, 2);
  EXPECT_EQ(type->nrLocalConstraints, 1);
  ASSERT_NE(type->constraints.first, nullptr);
  EXPECT_EQ(type->constraints.first->index, ofBase);
  EXPECT_EQ(type->constraints.first->module, module.rec);
  ASSERT_NE(type->constraints.first->next, nullptr);
  EXPECT_EQ(type->constraints.first->next->index, ofMine);
  EXPECT_EQ(type->constraints.first->next->next, nullptr);
  TestType own(module, base);
  EXPECT_EQ(own->nrConstraints, 1);
  EXPECT_EQ(own->nrLocalConstraints, 1);
  TestType without(module, integer);
  EXPECT_EQ(without->nrConstraints, 0);
}

TEST_F(TypeConstruct, BoundsNarrowAlongTheChain)
{
  TNode node = stxNewTNode(TYP_OCTSTR);
  stxSetBounds(node, 3, 100);
  int32_t base = define("Base", node);
  node = stxNewSynonym(base);
  stxSetBounds(node, 1, 20);
  int32_t middle = define("Middle", node);
  node = stxNewSynonym(middle);
  stxSetBounds(node, smallest, greatest);
  int32_t record = define("Mine", node);
  start();
  TestType type(module, record);
  EXPECT_EQ(i64cmpl(type->sizeLower, 3), 0);
  EXPECT_EQ(i64cmpl(type->sizeUpper, 20), 0);
}

TEST_F(TypeConstruct, DefiniteLengthComesFromTheChain)
{
  TNode node = stxNewTNode(TYP_SEQ);
  node.typeOptions.definiteLength = 0;
  int32_t base = define("Base", node);
  node = stxNewSynonym(base);
  node.typeOptions.definiteLength = 1;
  int32_t middle = define("Middle", node);
  int32_t record = define("Mine", stxNewSynonym(middle));
  start();
  for (int option : {0, 1, 2, 3}) {
    module.rec->options.definiteLen = static_cast<uint8_t>(option);
    TestType type(module, record);
    EXPECT_EQ(type->typeOptions.definiteLength, option >= 2 ? 1 : 255);
    // The end of the chain is no step.
    TestType direct(module, base);
    EXPECT_EQ(direct->typeOptions.definiteLength, 0);
  }
}

TEST_F(TypeConstruct, Selection)
{
  int32_t choice = define("Choice", TYP_CHOICE);
  int32_t alternative = comp(choice, "a", TYP_REAL);
  TNode node = stxNewTNode(TYP_SELECTION);
  node.ref = choice;
  node.fieldRef = stxLink(tree, stxNewLink(alternative));
  int32_t record = define("Selected", node);
  start();
  TestType followed(module, record);
  EXPECT_EQ(getTypeMainType(*followed), TYP_REAL);
  EXPECT_EQ(followed->baseRecNr, alternative);
  EXPECT_EQ(followed->synonymSteps, 1);
  EXPECT_FALSE(isInstantiatedType(*followed));
  readRec(module.rec, REC_TNODE, record);
  AsnType *left = newAsnType(&module, &module);
  getTypePath(nullptr, *left, false);
  EXPECT_EQ(getTypeMainType(*left), TYP_SELECTION);
  EXPECT_EQ(left->baseRecNr, record);
  EXPECT_TRUE(isSelectionType(*left));
  delAsnType(left);
}

TEST_F(TypeConstruct, FieldList)
{
  // A field of a class in N, by way of a value whose first child it is.
  int32_t field = stxDefineType(other, "Field", stxNewTNode(TYP_BOOLEAN));
  VNode carrier = stxNewVNode(TYP_SYNONYM, field);
  carrier.firstChild = field;
  int32_t carrying = stxValue(other, carrier);
  for (int32_t target : {field, -carrying}) {
    TNode node = stxNewTNode(TYP_FIELDLIST);
    node.fieldRef = stxLink(tree, stxNewLink(target, 2));
    int32_t record = define("ByField" + std::to_string(target + 100), node);
    start();
    TestType type(module, record);
    EXPECT_EQ(getTypeMainType(*type), TYP_BOOLEAN);
    EXPECT_EQ(type->baseModRec, otherModule.rec);
    EXPECT_EQ(type->synonymSteps, 1);
    EXPECT_EQ(baseName(*type), "Field");
  }
}

TEST_F(TypeConstruct, ReferenceToNothingIsItsOwnEnd)
{
  for (int mainType : {TYP_SYNONYM, TYP_SELECTION, TYP_FIELDLIST}) {
    int32_t record = define("T" + std::to_string(mainType), mainType);
    start();
    TestType type(module, record);
    EXPECT_EQ(getTypeMainType(*type), mainType);
    EXPECT_EQ(type->baseRecNr, record);
    EXPECT_EQ(type->synonymSteps, 0);
  }
}

// --- instances --------------------------------------------------------------

TEST_F(TypeConstruct, TopLevelInstance)
{
  int32_t body = inner(TYP_SEQ);
  at(body).nodeFlags = NF_OPTIONAL_COMPS;
  at(body).typeOptions.definiteLength = 0;
  TNode node = instanceOf(body);
  node.nodeFlags = NF_RECURSIVE;
  node.typeOptions.definiteLength = 1;
  node.typeOptions.skipKind = 1;
  int32_t record = define("Inst", node);
  constrained(record, 1);
  start();
  TestType type(module, record);
  EXPECT_TRUE(isInstantiatedType(*type));
  EXPECT_TRUE(isTopLevelInstantiatedType(*type));
  EXPECT_EQ(type->nodeFlags, NF_RECURSIVE | NF_OPTIONAL_COMPS |
                                 NF_INSTANTIATED | NF_TOP_LEVEL_INSTANTIATED);
  EXPECT_EQ(type->firstMainType, TYP_SEQ);
  EXPECT_EQ(type->typeOptions.definiteLength, 0);
  EXPECT_EQ(type->typeOptions.skipKind, 1);
  EXPECT_EQ(type->baseRecNr, body);
  // Going to the parameterised type is no step: nothing is collected.
  EXPECT_EQ(type->synonymSteps, 0);
  EXPECT_EQ(type->nrConstraints, 0);
  EXPECT_EQ(type->base.compStatus, TCS_HEADER);
  EXPECT_EQ(baseName(*type), "Inst");
}

TEST_F(TypeConstruct, TopLevelInstanceAsComponent)
{
  // It takes the status of its own node, and so its father's name.
  int32_t body = inner(TYP_SEQ);
  int32_t father = define("Outer", TYP_SEQ);
  int32_t record = comp(father, "a", instanceOf(body));
  start();
  TestType type(module, father);
  TestSon son(type, record);
  EXPECT_TRUE(isTopLevelInstantiatedType(*son));
  EXPECT_EQ(son->base.compStatus, TCS_MANDATORY);
  EXPECT_EQ(refOf(*son), "a");
  EXPECT_EQ(baseName(*son), "Outer");
}

TEST_F(TypeConstruct, InstanceOfASynonym)
{
  int32_t base = define("Base", TYP_REAL);
  TNode formal = stxNewSynonym(base);
  formal.compStatus = TCS_FORMAL;
  int32_t record = define("Inst", instanceOf(stxType(tree, formal)));
  start();
  TestType type(module, record);
  // The main type at the end, not that of the parameterised type.
  EXPECT_EQ(type->firstMainType, TYP_REAL);
  EXPECT_EQ(type->synonymSteps, 1);
  EXPECT_EQ(baseName(*type), "Inst");
}

TEST_F(TypeConstruct, NestedInstance)
{
  int32_t body = inner(TYP_SEQ);
  int32_t father = define("Outer", TYP_SEQ);
  int32_t record = comp(father, "a", instanceOf(body, true));
  start();
  TestType type(module, father);
  TestSon son(type, record);
  EXPECT_TRUE(isInstantiatedType(*son));
  EXPECT_FALSE(isTopLevelInstantiatedType(*son));
  EXPECT_EQ(son->base.compStatus, -TCS_HEADER);
  EXPECT_EQ(baseName(*son), "Outer");
  EXPECT_EQ(refOf(*son), "a");
  EXPECT_EQ(son->level, 0);
}

TEST_F(TypeConstruct, ReferenceToAnInstance)
{
  // What comes behind an instance does not give the name of the base.
  int32_t body = inner(TYP_SEQ);
  at(body).identifier = stxStri(tree, "Body");
  int32_t instance = define("Inst", instanceOf(body));
  int32_t record = define("Mine", stxNewSynonym(instance));
  start();
  TestType type(module, record);
  EXPECT_EQ(type->baseRecNr, body);
  EXPECT_EQ(type->synonymSteps, 2);
  EXPECT_EQ(baseName(*type), "Inst");
  EXPECT_EQ(type->base.compStatus, TCS_HEADER);
  EXPECT_FALSE(isInstantiatedType(*type));
}

TEST_F(TypeConstruct, HeaderOfAnInnerSynonym)
{
  int32_t body = inner(TYP_SEQ);
  int32_t father = define("S", TYP_SEQ);
  int32_t reference = comp(father, "r", stxNewSynonym(body));
  start();
  TestType type(module, father);
  TestSon son(type, reference);
  EXPECT_EQ(son->base.compStatus, TCS_HEADER);
  // By itself it is what it is.
  TestType alone(module, body);
  EXPECT_EQ(alone->base.compStatus, -TCS_HEADER);
  EXPECT_FALSE(isDefinedBaseType(*alone));
}

TEST_F(TypeConstruct, FirstInstanceOfAChain)
{
  int32_t body = inner(TYP_NULL);
  int32_t second = define("Second", instanceOf(body));
  int32_t first = define("First", instanceOf(second));
  int32_t record = define("Mine", stxNewSynonym(first));
  start();
  readRec(module.rec, REC_TNODE, record);
  NodeContext context;
  skipTypesCatchInst(true, context);
  EXPECT_EQ(recJustRead[REC_TNODE].index, body);
  EXPECT_EQ(context.index, first);
  NodeContext untouched;
  readRec(module.rec, REC_TNODE, integer);
  skipTypesCatchInst(true, untouched);
  EXPECT_EQ(untouched.module, nullptr);
}

TEST_F(TypeConstruct, BeginningOfAChain)
{
  int32_t body = inner(TYP_NULL);
  int32_t instance = define("Inst", instanceOf(body));
  int32_t synonym = define("Syn", stxNewSynonym(instance));
  start();
  readTNodeForBegOfSynonymChain(module.rec, instance);
  EXPECT_EQ(recJustRead[REC_TNODE].index, body);
  readTNodeForBegOfSynonymChain(module.rec, synonym);
  EXPECT_EQ(recJustRead[REC_TNODE].index, synonym);
}

// --- sons -------------------------------------------------------------------

TEST_F(TypeConstruct, AnonymousComponent)
{
  int32_t father = define("S", TYP_SEQ);
  int32_t record = comp(father, "a", TYP_SEQ);
  start();
  TestType type(module, father);
  TestSon son(type, record);
  EXPECT_EQ(refOf(*son), "a");
  EXPECT_EQ(baseName(*son), "S");
  EXPECT_EQ(son->level, 0);
  TestSon inside(type, record);
  EXPECT_EQ(inside->base.compStatus, TCS_MANDATORY);
}

TEST_F(TypeConstruct, AutomaticTagNumber)
{
  int32_t father = define("S", TYP_SEQ);
  at(father).nodeFlags |= NF_AUTOMATIC_TAGS;
  int32_t record = comp(father, "a", TYP_NULL);
  start();
  TestType type(module, father);
  EXPECT_EQ(TestSon(type, record, 5)->tagsOutermost->tagNumber, 5);
  // Unless a number is given it is 0.
  readRec(module.rec, REC_TNODE, record);
  AsnType *son = newAsnType(&module, &module);
  getTypePath(type.type, *son, true);
  EXPECT_EQ(son->tagsOutermost->tagNumber, 0);
  delAsnType(son);
}

TEST_F(TypeConstruct, LevelsOfElements)
{
  int32_t list = define("L", TYP_SEQOF);
  int32_t first = comp(list, "", TYP_SETOF);
  int32_t second = comp(first, "", TYP_NULL);
  start();
  TestType type(module, list);
  TestSon son(type, first);
  EXPECT_EQ(son->level, 1);
  // The father is a definition: the element has no name.
  EXPECT_EQ(refOf(*son), "");
  EXPECT_EQ(baseName(*son), "L");
  readRec(module.rec, REC_TNODE, second);
  AsnType *grandson = newAsnType(&module, &module);
  getTypePath(son.type, *grandson, true);
  EXPECT_EQ(grandson->level, 2);
  EXPECT_EQ(baseName(*grandson), "L");
  delAsnType(grandson);
}

TEST_F(TypeConstruct, ElementOfAnAnonymousListHasItsName)
{
  int32_t father = define("S", TYP_SEQ);
  int32_t list = comp(father, "list", TYP_SEQOF);
  int32_t elem = comp(list, "", TYP_NULL);
  start();
  TestType type(module, father);
  TestSon son(type, list);
  readRec(module.rec, REC_TNODE, elem);
  AsnType *element = newAsnType(&module, &module);
  getTypePath(son.type, *element, true);
  EXPECT_EQ(refOf(*element), "list");
  EXPECT_EQ(baseName(*element), "S");
  EXPECT_EQ(element->level, 1);
  delAsnType(element);
}

TEST_F(TypeConstruct, ElementOfADefinedType)
{
  int32_t list = define("L", TYP_SEQOF);
  int32_t elem = comp(list, "", stxNewSynonym(integer));
  at(elem).compStatus = TCS_MULTIPLE;
  start();
  TestType type(module, list);
  TestSon son(type, elem);
  EXPECT_EQ(son->level, 0);
  EXPECT_EQ(baseName(*son), "Int");
}

TEST_F(TypeConstruct, NestedInstanceAsElement)
{
  int32_t list = define("L", TYP_SEQOF);
  int32_t elem = comp(list, "", instanceOf(inner(TYP_NULL), true));
  EXPECT_EQ(at(elem).compStatus, TCS_MULTIPLE);
  start();
  TestType type(module, list);
  TestSon son(type, elem);
  EXPECT_EQ(son->base.compStatus, -TCS_HEADER);
  EXPECT_EQ(son->level, 1);
}

TEST_F(TypeConstruct, PathInForce)
{
  int32_t father = define("S", TYP_SEQ);
  int32_t record = comp(father, "a", TYP_NULL);
  start();
  TestType type(module, father);
  EXPECT_EQ(TestSon(type, record)->typePath, nullptr);
  pushPath();
  addElemToPath("x->");
  TestSon son(type, record);
  EXPECT_EQ(son->typePath, getPath());
  EXPECT_STREQ(son->typePath, "x->");
  EXPECT_EQ(son->typePathLen, 0u);
  // Without a father there is none.
  EXPECT_EQ(TestType(module, father)->typePath, nullptr);
}

// --- option words -----------------------------------------------------------

TEST_F(TypeConstruct, OwnOptions)
{
  struct Case {
    int mainType;
    uint32_t ofNode;
    uint32_t ofSynonym;
    uint32_t expected;
  };
  const Case cases[] = {
      // 1, 2 and 3 are cleared, whatever brought them.
      {TYP_NULL, bit(2) | bit(17), 0, bit(17)},
      {TYP_NULL, bit(4), bit(2), bit(4)},
      // 11 becomes 12 on lists only.
      {TYP_SEQOF, bit(11), 0, bit(12)},
      {TYP_SETOF, bit(11) | bit(13), 0, bit(12) | bit(13)},
      {TYP_SEQOF, bit(13), 0, bit(13)},
      {TYP_SEQ, bit(11), 0, bit(11)},
      {TYP_OPEN, bit(11), 0, bit(11)},
      // Of the chain, 5 and 15 are taken.
      {TYP_SEQ, 0, bit(5), bit(5)},
      {TYP_SEQ, 0, bit(15), bit(15)},
      {TYP_SEQ, bit(8), bit(6) | bit(7) | bit(9) | bit(13), bit(8)},
  };
  for (const Case &c : cases) {
    int32_t base = stxDefineType(tree, "", stxNewTNode(c.mainType));
    at(base).nodeOptions = c.ofNode;
    int32_t record = stxDefineType(tree, "", stxNewSynonym(base));
    at(record).nodeOptions = c.ofSynonym;
    start();
    EXPECT_EQ(TestType(module, record)->base.nodeOptions, c.expected)
        << c.mainType << " " << c.ofNode << " " << c.ofSynonym;
  }
}

TEST_F(TypeConstruct, EmbeddingAndNamingBitsAreCleared)
{
  int32_t record = define("T", TYP_NULL);
  stxNodeTed(tree, record, TED_EMBEDDING, "-x");
  at(record).nodeOptions |= bit(3) | bit(17);
  EXPECT_TRUE(at(record).nodeOptions & bit(1));
  start();
  EXPECT_EQ(TestType(module, record)->base.nodeOptions, bit(17));
}

TEST_F(TypeConstruct, OptionsByTheFather)
{
  struct Case {
    int fatherType;
    uint32_t ofFather;
    uint32_t ofSon;
    uint32_t ofReference;  // of the son's node, which refers to the base
    uint32_t expected;
  };
  const Case cases[] = {
      {TYP_SEQ, 0, 0, 0, 0},
      // 6: each component has a home, or the reference in a structure.
      {TYP_SEQ, bit(8), 0, 0, bit(6)},
      {TYP_SEQ, 0, 0, bit(6), bit(6)},
      {TYP_CHOICE, 0, 0, bit(6), bit(6)},
      {TYP_SEQOF, 0, 0, bit(6), bit(6)},
      {TYP_OPEN, 0, 0, bit(6), 0},
      // 7: the components are pointers, or the reference in a structure.
      {TYP_SET, bit(9), 0, 0, bit(7)},
      {TYP_SET, 0, 0, bit(7), bit(7)},
      {TYP_SETOF, 0, 0, bit(7), bit(7)},
      {TYP_OPEN, 0, 0, bit(7), 0},
      // 8 is lost in a father with 9, 11 or 12.
      {TYP_SEQ, 0, bit(8), 0, bit(8)},
      {TYP_SEQ, bit(9), bit(8), 0, bit(7)},
      {TYP_SEQ, bit(11), bit(8), 0, 0},
      {TYP_SEQOF, bit(12), bit(8), 0, 0},
      {TYP_SEQ, bit(10), bit(8), 0, bit(8)},
      // 7 is lost in a father with 8, 10, 11 or 12.
      {TYP_SEQ, bit(8), bit(7), 0, bit(6)},
      {TYP_SEQ, bit(10), bit(7), 0, 0},
      {TYP_SEQ, bit(11), bit(7), 0, 0},
      {TYP_SEQOF, bit(12), bit(7), 0, 0},
      {TYP_SEQ, bit(9) | bit(10), 0, 0, 0},
      {TYP_SEQ, bit(13), bit(7), 0, bit(7)},
  };
  for (const Case &c : cases) {
    int32_t base = stxDefineType(tree, "", stxNewTNode(TYP_SEQ));
    at(base).nodeOptions = c.ofSon;
    int32_t father = stxDefineType(tree, "", stxNewTNode(c.fatherType));
    at(father).nodeOptions = c.ofFather;
    int32_t record = stxAddComp(tree, father, "a", stxNewSynonym(base));
    at(record).nodeOptions = c.ofReference;
    start();
    TestType type(module, father);
    EXPECT_EQ(TestSon(type, record)->base.nodeOptions, c.expected)
        << c.fatherType << " " << c.ofFather << " " << c.ofSon << " "
        << c.ofReference;
  }
}

TEST_F(TypeConstruct, RecursionTakesAPointer)
{
  struct Case {
    bool reference;
    uint16_t flags;
    uint32_t ofBase;
    uint32_t expected;
  };
  const Case cases[] = {
      {true, NF_RECURSIVE, 0, bit(7)},
      {true, 0, 0, 0},
      {true, NF_RECURSIVE, bit(5), bit(5)},
      // Without a definition behind it, it stands where it is.
      {false, NF_RECURSIVE, 0, 0},
  };
  for (const Case &c : cases) {
    int32_t father = stxDefineType(tree, "S", stxNewTNode(TYP_SEQ));
    at(father).nodeOptions = c.ofBase;
    int32_t record =
        stxAddComp(tree, father, "a",
                   c.reference ? stxNewSynonym(father) : stxNewTNode(TYP_SEQ));
    at(record).nodeFlags = c.flags;
    start();
    TestType type(module, father);
    EXPECT_EQ(TestSon(type, record)->base.nodeOptions, c.expected);
  }
}

// --- meta records and options of the back-end -------------------------------

TEST_F(TypeConstruct, MetaRecordsAreSwitched)
{
  int32_t record = define("T", TYP_INTEGER);
  stxNodeTed(tree, record, TED_BACK_END, "-// a comment");
  stxNodeTed(tree, record, TED_BACK_END, "-FUNC:f:x");
  start();
  {
    TestType without(module, record);
    EXPECT_EQ(getBETypMetaRec(*without), nullptr);
    EXPECT_FALSE(without->commentOptions);
  }
  EXPECT_FALSE(setCreateBETypMetaFlag(true));
  {
    TestType with(module, record);
    EXPECT_NE(getBETypMetaRec(*with), nullptr);
    EXPECT_TRUE(with->commentOptions);
    EXPECT_STREQ(getMetaFuncId(*with), "f");
  }
  EXPECT_TRUE(setCreateBETypMetaFlag(false));
}

TEST_F(TypeConstruct, PartialInfoNeedsNoMetaRecord)
{
  int32_t record = define("T", TYP_INTEGER);
  stxNodeTed(tree, record, TED_BACK_END, "-FUNC:f:x");
  start();
  setCreateBETypMetaFlag(true);
  readRec(module.rec, REC_TNODE, record);
  AsnType *type = newAsnType(&module, &module);
  type->partialInfo = true;
  getTypePath(nullptr, *type, true);
  EXPECT_TRUE(isPartialTypeInfo(*type));
  EXPECT_EQ(getBETypMetaRec(*type), nullptr);
  delAsnType(type);
}

TEST_F(TypeConstruct, CommentOptionsOfTheOwnNodeOnly)
{
  int32_t base = define("Base", TYP_INTEGER);
  stxNodeTed(tree, base, TED_BACK_END, "-// a comment");
  int32_t record = define("Mine", stxNewSynonym(base));
  int32_t front = define("Front", TYP_INTEGER);
  stxNodeTed(tree, front, TED_FRONT_END, "-// not the back-end's");
  start();
  setCreateBETypMetaFlag(true);
  EXPECT_TRUE(TestType(module, base)->commentOptions);
  EXPECT_FALSE(TestType(module, record)->commentOptions);
  EXPECT_FALSE(TestType(module, front)->commentOptions);
}

TEST_F(TypeConstruct, OptionsOfTheBaseComeLast)
{
  int32_t base = define("Base", TYP_INTEGER);
  stxNodeTed(tree, base, TED_BACK_END, "-FUNC:inner:1");
  int32_t record = define("Mine", stxNewSynonym(base));
  stxNodeTed(tree, record, TED_BACK_END, "-FUNC:outer:2");
  start();
  setCreateBETypMetaFlag(true);
  TestType type(module, record);
  EXPECT_STREQ(getMetaFuncId(*type), "inner");
  EXPECT_STREQ(getMetaFuncOption(*type), "1");
}

// The linker brings the calls of `newBETypMetaRec` here (the option --wrap),
// so that a constructor can do what it must not. The real one is null in a
// binary that was linked otherwise.
[[gnu::weak]] BETypMetaRec *
realMetaRec(const AsnType &) asm("__real__Z15newBETypMetaRecRK7AsnType");
BETypMetaRec *
wrappedMetaRec(const AsnType &) asm("__wrap__Z15newBETypMetaRecRK7AsnType");

// What a constructor does besides; null: nothing.
static void (*inMetaConstructor)(const AsnType &);

BETypMetaRec *wrappedMetaRec(const AsnType &type)
{
  if (inMetaConstructor)
    inMetaConstructor(type);
  return realMetaRec(type);
}

static void walkTypes(const AsnType &type)
{
  forEachType(*type.homeMod, [](AsnType &, int) {});
}

struct TypeConstructInMetaRec : TypeConstruct {
  void SetUp() override
  {
    if (!realMetaRec)
      GTEST_SKIP() << "linked without --wrap";
  }
  void TearDown() override { inMetaConstructor = nullptr; }
};

TEST_F(TypeConstructInMetaRec, NoTypeIsBuilt)
{
  start();
  setCreateBETypMetaFlag(true);
  inMetaConstructor = walkTypes;
  EXPECT_EXIT(TestType(module, integer), ExitedWithCode(2),
              "Type iterator called inside BETypMetaRec constructor\\.");
  // Views that need no record may be built; the guard is dropped again.
  inMetaConstructor = [](const AsnType &type) {
    bool wanted = setCreateBETypMetaFlag(false);
    walkTypes(type);
    setCreateBETypMetaFlag(wanted);
  };
  EXPECT_NE(getBETypMetaRec(*TestType(module, integer)), nullptr);
  inMetaConstructor = nullptr;
  EXPECT_NE(getBETypMetaRec(*TestType(module, integer)), nullptr);
}

TEST_F(TypeConstructInMetaRec, CursorsOfTheModuleArePutBack)
{
  start();
  setCreateBETypMetaFlag(true);
  module.cursors.types[SELECT_COMPS] = 5;
  module.cursors.values[1] = 6;
  inMetaConstructor = [](const AsnType &type) {
    type.mod->cursors.types[SELECT_COMPS] = 7;
    type.mod->cursors.values[1] = 8;
  };
  TestType type(module, integer);
  EXPECT_EQ(module.cursors.types[SELECT_COMPS], 5);
  EXPECT_EQ(module.cursors.values[1], 6);
}

// --- damage -----------------------------------------------------------------

struct TypeConstructDamage : TypeConstruct {
  void dies(int32_t record, const char *text)
  {
    start();
    EXPECT_EXIT(TestType(module, record), ExitedWithCode(2), text);
  }
};

TEST_F(TypeConstructDamage, CyclicChains)
{
  int32_t itself = define("Self", stxNewSynonym(2));
  ASSERT_EQ(itself, 2);
  dies(itself, damagedM);
  int32_t a = define("A", stxNewSynonym(4));
  int32_t b = define("B", stxNewSynonym(a));
  ASSERT_EQ(b, 4);
  dies(a, damagedM);
  TNode node = stxNewTNode(TYP_SELECTION);
  node.fieldRef = stxLink(tree, stxNewLink(5));
  int32_t selection = define("Sel", node);
  ASSERT_EQ(selection, 5);
  dies(selection, damagedM);
  node = stxNewTNode(TYP_FIELDLIST);
  node.fieldRef = stxLink(tree, stxNewLink(6));
  int32_t field = define("Field", node);
  ASSERT_EQ(field, 6);
  dies(field, damagedM);
}

TEST_F(TypeConstructDamage, CyclicChainsAcrossModules)
{
  int32_t there = stxDefineType(other, "There", stxNewSynonym(2, 2));
  int32_t here = define("Here", stxNewSynonym(there, 2));
  ASSERT_EQ(here, 2);
  dies(here, "Syntax tree inconsistent");
}

TEST_F(TypeConstructDamage, CyclicLinksAndTags)
{
  TNode node = stxNewTNode(TYP_FIELDLIST);
  node.fieldRef = stxLink(tree, stxNewLink(integer));
  stxLinkAt(tree, node.fieldRef).nextLink = node.fieldRef;
  dies(define("Field", node), damagedM);
  int32_t tagged = define("Tagged", TYP_NULL);
  int32_t tag = stxAddTag(tree, tagged, 2, 1, 1);
  stxTagAt(tree, tag).nextTag = tag;
  dies(tagged, damagedM);
}

TEST_F(TypeConstructDamage, WildIndexes)
{
  // A run without any tag has no room for one in a chain.
  stxTag(tree, TagRec{});
  for (int32_t wild : {-1, 999, INT32_MIN, INT32_MAX}) {
    dies(define("Ref", stxNewSynonym(wild)), noSuchRecord);
    TNode node = stxNewTNode(TYP_NULL);
    node.firstConstraint = wild;
    dies(define("Sub", node), noSuchRecord);
    node = stxNewTNode(TYP_NULL);
    node.firstTag = wild;
    dies(define("Tag", node), noSuchRecord);
    node = stxNewTNode(TYP_SELECTION);
    node.fieldRef = wild;
    dies(define("Sel", node), noSuchRecord);
    node = stxNewTNode(TYP_FIELDLIST);
    node.fieldRef = stxLink(tree, stxNewLink(wild == -1 ? -999 : wild));
    dies(define("Field", node), noSuchRecord);
  }
}

TEST_F(TypeConstructDamage, WildModules)
{
  // 3 and above: no import entry of that number.
  for (int32_t wild : {3, 999, INT32_MAX}) {
    dies(define("Ref", stxNewSynonym(integer, wild)), noSuchRecord);
    TNode node = instanceOf(integer);
    node.refModule = wild;
    dies(define("Inst", node), noSuchRecord);
  }
}

TEST_F(TypeConstructDamage, WildLines)
{
  int32_t record = define("T", TYP_NULL);
  at(record).firstTed = 1;
  at(record).lastTed = 50;
  start();
  setCreateBETypMetaFlag(true);
  EXPECT_EXIT(TestType(module, record), ExitedWithCode(2), noSuchRecord);
}

TEST_F(TypeConstructDamage, WildCountOfComponents)
{
  int32_t record = define("S", TYP_SEQ);
  comp(record, "a", TYP_NULL);
  for (int32_t wild : {-1, 4, INT32_MIN, INT32_MAX}) {
    // The run has three nodes of types.
    at(record).nrComps = wild;
    dies(record, damagedM);
  }
  at(record).nrComps = 3;
  start();
  EXPECT_EQ(TestType(module, record)->base.nrComps, 3);
}

TEST_F(TypeConstructDamage, UnknownMainType)
{
  for (int mainType : {42, 200, 255}) {
    int32_t record = define("T" + std::to_string(mainType), mainType);
    start();
    TestType type(module, record);
    EXPECT_EQ(getTypeMainType(*type), mainType);
  }
}

// Visits of the types that a type refers to, of selections, of classifiers
// and of comment options.

#include "model/typeiter.h"
#include "support/typetrees.h"

using testing::ExitedWithCode;

constexpr char noCallBack[] = "Call-back function not defined";
constexpr char badOtherModule[] =
    "Unable to construct AsnType for a type defined in another module.";

// What call-backs have seen.
static std::string seen;
static AsnType *asked;

static void noteType(AsnType &type)
{
  seen += refOf(type) + "/" + std::to_string(type.base.mainType) + " ";
}
static void notePair(AsnType &type, AsnType &other)
{
  EXPECT_EQ(&type, asked);
  noteType(other);
}

struct TypeRefer : TypeTrees {
  TypeRefer() { seen.clear(); }

  std::string shown(int32_t record, void (*walk)(AsnType &, TypeVisit *))
  {
    TestType type(module, record);
    seen.clear();
    walk(*type, noteType);
    return seen;
  }
  std::string shownPair(int32_t record,
                        void (*walk)(AsnType &, TypePairVisit *))
  {
    TestType type(module, record);
    asked = type.type;
    seen.clear();
    walk(*type, notePair);
    return seen;
  }
  // The same for a component of a structure.
  std::string shownComp(int32_t father, void (*walk)(AsnType &, TypeVisit *))
  {
    static void (*walkOfComp)(AsnType &, TypeVisit *);
    walkOfComp = walk;
    TestType type(module, father);
    seen.clear();
    forEachTypeComp(*type, [](AsnType &, AsnType &comp_, int) {
      walkOfComp(comp_, noteType);
    });
    return seen;
  }
  TNode instanceOf(int32_t body)
  {
    TNode node = stxNewSynonym(body);
    node.fieldRef = 1;
    return node;
  }
  int32_t inner(int mainType, int status = -TCS_HEADER)
  {
    TNode node = stxNewTNode(mainType);
    node.compStatus = status;
    return stxType(tree, node);
  }
};

// --- the definition behind a reference --------------------------------------

TEST_F(TypeRefer, BaseOfASynonym)
{
  int32_t middle = define("Middle", stxNewSynonym(integer));
  int32_t record = define("Mine", stxNewSynonym(middle));
  start();
  EXPECT_EQ(shown(record, forSynonymType), "Int/1 ");
  EXPECT_EQ(shown(record, forDefinedBaseType), "Int/1 ");
  EXPECT_EQ(shownPair(record, forSynonymAndBaseType), "Int/1 ");
  EXPECT_EQ(shownPair(record, forDefBaseType), "Int/1 ");
}

TEST_F(TypeRefer, NoReferenceNoCall)
{
  start();
  EXPECT_EQ(shown(integer, forSynonymType), "");
  EXPECT_EQ(shown(integer, forDefinedBaseType), "");
  EXPECT_EQ(shownPair(integer, forSynonymAndBaseType), "");
  EXPECT_EQ(shownPair(integer, forDefBaseType), "");
  EXPECT_EQ(shown(integer, forTypeDefinedInAnotherModule), "");
  EXPECT_EQ(shownPair(integer, forDefBaseTypeDefinedInAnotherModule), "");
  EXPECT_EQ(shown(integer, forNextDefinedType), "");
  EXPECT_EQ(shownPair(integer, forNextDefinedTypeAndBaseType), "");
  EXPECT_EQ(shown(integer, forSynonymTypeInAnotherModule), "");
}

TEST_F(TypeRefer, ComponentIsNoSynonymType)
{
  int32_t father = define("S", TYP_SEQ);
  comp(father, "a", stxNewSynonym(integer));
  comp(father, "b", TYP_NULL);
  start();
  EXPECT_EQ(shownComp(father, forSynonymType), "");
  EXPECT_EQ(shownComp(father, forDefinedBaseType), "Int/1 ");
}

TEST_F(TypeRefer, FieldListHasADefinedBase)
{
  TNode node = stxNewTNode(TYP_FIELDLIST);
  node.fieldRef = stxLink(tree, stxNewLink(integer));
  int32_t record = define("ByField", node);
  start();
  EXPECT_EQ(shown(record, forDefinedBaseType), "Int/1 ");
  EXPECT_EQ(shown(record, forSynonymType), "");
}

TEST_F(TypeRefer, InstanceOnTheWay)
{
  int32_t instance = define("Inst", instanceOf(inner(TYP_SEQ)));
  int32_t record = define("Mine", stxNewSynonym(instance));
  int32_t father = define("S", TYP_SEQ);
  comp(father, "a", stxNewSynonym(instance));
  start();
  EXPECT_EQ(shown(record, forSynonymType), "Inst/7 ");
  EXPECT_EQ(shown(record, forDefinedBaseType), "Inst/7 ");
  EXPECT_EQ(shownComp(father, forDefinedBaseType), "Inst/7 ");
}

TEST_F(TypeRefer, InstanceOfAnInstance)
{
  int32_t instance = define("Inst", instanceOf(inner(TYP_SEQ)));
  int32_t record = define("Outer", instanceOf(instance));
  start();
  // With a step the own node is left, without it is found itself.
  TestType type(module, record);
  readSynonymTypeTNode(*type, true);
  EXPECT_EQ(recJustRead[REC_TNODE].index, instance);
  readSynonymTypeTNode(*type, false);
  EXPECT_EQ(recJustRead[REC_TNODE].index, record);
}

TEST_F(TypeRefer, ModulesOfTheTypeThatRefers)
{
  int32_t base = stxDefineType(other, "Base", stxNewTNode(TYP_SEQ));
  stxAddComp(other, base, "p", stxNewTNode(TYP_NULL));
  int32_t record = define("Mine", stxNewSynonym(base, 2));
  start();
  TestType type(module, record);
  forSynonymType(*type, [](AsnType &synonym) {
    EXPECT_STREQ(synonym.mod->rec->moduleName, "M");
    EXPECT_STREQ(synonym.homeMod->rec->moduleName, "M");
    EXPECT_STREQ(synonym.compModRec->moduleName, "N");
    EXPECT_EQ(synonym.father, nullptr);
    // Its components lie where it lies.
    forEachTypeComp(synonym,
                    [](AsnType &, AsnType &comp_, int) { noteType(comp_); });
    EXPECT_STREQ(synonym.mod->rec->moduleName, "M");
  });
  EXPECT_EQ(seen, "p/6 ");
}

TEST_F(TypeRefer, NoDefinitionBehindAReference)
{
  int32_t formal =
      define("ToFormal", stxNewSynonym(inner(TYP_NULL, TCS_FORMAL)));
  int32_t father = define("S", TYP_SEQ);
  comp(father, "a", instanceOf(inner(TYP_NULL)));
  stxTypeAt(tree, comp(father, "b", instanceOf(inner(TYP_NULL))))
      .nestedInstance = 1;
  start();
  TestType type(module, formal);
  EXPECT_EXIT(forSynonymType(*type, noteType), ExitedWithCode(2),
              "Unable to find synonym type\\.");
  TestType structure(module, father);
  EXPECT_EXIT(forEachTypeComp(*structure,
                              [](AsnType &, AsnType &comp_, int) {
                                readSynonymTypeTNode(comp_, true);
                              }),
              ExitedWithCode(2),
              "Unable to handle parameterized synonym type\\.");
}

// --- other modules ----------------------------------------------------------

struct TypeReferOther : TypeRefer {
  int32_t base, middle, nearest, record;
  // Mine -> Near -> N.Middle -> N.Base
  TypeReferOther()
  {
    base = stxDefineType(other, "Base", stxNewTNode(TYP_REAL));
    middle = stxDefineType(other, "Middle", stxNewSynonym(base));
    nearest = define("Near", stxNewSynonym(middle, 2));
    record = define("Mine", stxNewSynonym(nearest));
  }
};

static void expectModuleN(AsnType &type)
{
  EXPECT_STREQ(type.mod->rec->moduleName, "N");
  EXPECT_EQ(type.homeMod, type.mod);
  noteType(type);
}

TEST_F(TypeReferOther, EndOfTheChain)
{
  start();
  EXPECT_EQ(shown(record, forTypeDefinedInAnotherModule), "Base/3 ");
  EXPECT_EQ(shownPair(record, forDefBaseTypeDefinedInAnotherModule), "Base/3 ");
  TestType type(module, record);
  seen.clear();
  forTypeDefinedInAnotherModule(*type, expectModuleN);
  EXPECT_EQ(seen, "Base/3 ");
}

TEST_F(TypeReferOther, FirstNodeOverTheBorder)
{
  start();
  EXPECT_EQ(shown(record, forSynonymTypeInAnotherModule), "Middle/3 ");
  EXPECT_EQ(shown(nearest, forSynonymTypeInAnotherModule), "Middle/3 ");
}

TEST_F(TypeReferOther, NextDefinition)
{
  start();
  EXPECT_EQ(shown(record, forNextDefinedType), "Near/3 ");
  EXPECT_EQ(shown(nearest, forNextDefinedType), "Middle/3 ");
  EXPECT_EQ(shownPair(record, forNextDefinedTypeAndBaseType), "Near/3 ");
}

TEST_F(TypeReferOther, NextDefinitionPassesWhatIsNone)
{
  int32_t unnamed = inner(TYP_SYNONYM, TCS_FORMAL);
  at(unnamed).ref = nearest;
  at(unnamed).refModule = 1;
  int32_t outer = define("Outer", stxNewSynonym(unnamed));
  start();
  EXPECT_EQ(shown(outer, forNextDefinedType), "Near/3 ");
}

TEST_F(TypeReferOther, HiddenNodes)
{
  stxTypeAt(other, base).hidden = 1;
  stxTypeAt(other, middle).hidden = 1;
  start();
  EXPECT_EQ(shown(record, forSynonymTypeInAnotherModule), "Middle/3 ");
  EXPECT_EQ(shown(nearest, forNextDefinedType), "Middle/3 ");
  TestType type(module, record);
  EXPECT_EXIT(forTypeDefinedInAnotherModule(*type, noteType), ExitedWithCode(2),
              badOtherModule);
}

TEST_F(TypeReferOther, RefusedNodes)
{
  int32_t cls = stxDefineType(other, "CLS", stxNewTNode(TYP_CLASS));
  // What follows a refused node does not stand in for it.
  stxDefineType(other, "Behind", stxNewTNode(TYP_NULL));
  int32_t synonym = define("ToClass", stxNewSynonym(cls, 2));
  start();
  TestType type(module, synonym);
  auto dies = [](auto f, const char *text) {
    EXPECT_EXIT(f(), ExitedWithCode(2), text);
  };
  dies([&] { forTypeDefinedInAnotherModule(*type, noteType); }, badOtherModule);
  dies([&] { forDefBaseTypeDefinedInAnotherModule(*type, notePair); },
       badOtherModule);
  dies([&] { forSynonymTypeInAnotherModule(*type, noteType); }, badOtherModule);
  dies([&] { forNextDefinedType(*type, noteType); },
       "Unable to construct AsnType for a type\\.");
  dies([&] { forNextDefinedTypeAndBaseType(*type, notePair); },
       "Unable to construct AsnType for a type\\.");
}

TEST_F(TypeReferOther, SelectionIsShownByTheStepsOnly)
{
  int32_t choice = define("Choice", TYP_CHOICE);
  int32_t alternative = comp(choice, "a", TYP_BOOLEAN);
  TNode node = stxNewTNode(TYP_SELECTION);
  node.fieldRef = stxLink(tree, stxNewLink(alternative));
  int32_t selection = define("Sel", node);
  int32_t synonym = define("ToSel", stxNewSynonym(selection));
  start();
  EXPECT_EQ(shown(synonym, forNextDefinedType), "Sel/34 ");
}

TEST_F(TypeReferOther, ComponentsOfCountAsWell)
{
  int32_t there = stxDefineType(other, "Struct", stxNewTNode(TYP_SEQ));
  stxAddComp(other, there, "p", stxNewTNode(TYP_NULL));
  int32_t father = define("S", TYP_SEQ);
  componentsOf(father, there, 1, 2);
  comp(father, "q", TYP_NULL);
  start();
  TestType type(module, father);
  forEachTypeComp(*type, [](AsnType &, AsnType &comp_, int) {
    asked = &comp_;
    seen += ":";
    forTypeDefinedInAnotherModule(comp_, noteType);
    forDefBaseTypeDefinedInAnotherModule(comp_, notePair);
  });
  EXPECT_EQ(seen, ":p/6 :");
}

TEST_F(TypeReferOther, ModuleOfTheBase)
{
  start();
  TestType type(module, record);
  forBaseTypeModule(*type, [](AsnModule &m) { seen += m.rec->moduleName; });
  EXPECT_EQ(seen, "N");
}

// --- selections -------------------------------------------------------------

TEST_F(TypeRefer, SelectionType)
{
  int32_t choice = define("Choice", TYP_CHOICE);
  comp(choice, "a", TYP_NULL);
  int32_t alternative = comp(choice, "b", TYP_BOOLEAN);
  int32_t synonym = define("ToChoice", stxNewSynonym(choice));
  TNode node = stxNewTNode(TYP_SELECTION);
  node.ref = synonym;
  node.refModule = 1;
  node.fieldRef = stxLink(tree, stxNewLink(alternative));
  int32_t selection = define("Sel", node);
  start();
  readRec(module.rec, REC_TNODE, selection);
  asked = newAsnType(&module, &module);
  getTypePath(nullptr, *asked, false);
  forSelectionType(*asked, [](AsnType &type, AsnType &found, AsnType &of) {
    EXPECT_EQ(&type, asked);
    EXPECT_EQ(found.father, &of);
    EXPECT_EQ(of.father, nullptr);
    noteType(found);
    noteType(of);
  });
  EXPECT_EQ(seen, "b/0 Choice/11 ");
  delAsnType(asked);
}

TEST_F(TypeRefer, NoSelectionNoCall)
{
  start();
  TestType type(module, integer);
  forSelectionType(*type,
                   [](AsnType &, AsnType &, AsnType &) { seen = "called"; });
  EXPECT_EQ(seen, "");
}

// --- classifiers ------------------------------------------------------------

struct TypeReferAny : TypeRefer {
  int32_t father, classified;
  // a, kind, value ANY DEFINED BY kind
  TypeReferAny()
  {
    father = define("S", TYP_SEQ);
    comp(father, "a", TYP_NULL);
    int32_t kind = comp(father, "kind", TYP_OBJID);
    classified = comp(father, "value", TYP_ANY);
    at(classified).fieldRef = stxLink(tree, stxNewLink(kind));
  }
};

static void classifierOf(AsnType &father, AsnType &comp, int)
{
  forAnyDefinedByClassifierType(
      father, comp, [](AsnType &outer, AsnType &classifier, AsnType &any) {
        EXPECT_EQ(classifier.father, &outer);
        EXPECT_TRUE(isAnyDefinedByType(any));
        seen += refOf(any) + " by " + refOf(classifier) +
                std::to_string(classifier.compNbr) + " ";
      });
}

TEST_F(TypeReferAny, ClassifierByItsPlace)
{
  comp(father, "plain", TYP_ANY);
  start();
  TestType type(module, father);
  AsnType *none = getClassifier(*type, *type);
  EXPECT_EQ(none, nullptr);
  // The two components without a classifier draw no call.
  TestType any(module, classified);
  classifierOf(*type, *any, 0);
  EXPECT_EQ(seen, "value by kind1 ");
  TestType plain(module, integer);
  classifierOf(*type, *plain, 0);
  EXPECT_EQ(seen, "value by kind1 ");
}

TEST_F(TypeReferAny, ClassifierOfAnotherStructure)
{
  int32_t elsewhere = define("T", TYP_SEQ);
  int32_t foreign = comp(elsewhere, "x", TYP_OBJID);
  stxLinkAt(tree, at(classified).fieldRef).target = foreign;
  start();
  TestType type(module, father);
  TestType any(module, classified);
  EXPECT_EXIT(classifierOf(*type, *any, 0), ExitedWithCode(2),
              "Unable to construct AsnType for an ANY DEFINED BY classifier");
}

// --- comment options --------------------------------------------------------

TEST_F(TypeRefer, CommentOptions)
{
  int32_t record = define("T", TYP_INTEGER);
  stxNodeTed(tree, record, TED_BACK_END, "-// one");
  stxNodeTed(tree, record, TED_EMBEDDING, "-// no option");
  stxNodeTed(tree, record, TED_BACK_END, "-BEO=OTHER=X");
  stxNodeTed(tree, record, TED_BACK_END, "-BEO=//two");
  int32_t without = define("U", TYP_INTEGER);
  stxNodeTed(tree, without, TED_BACK_END, "-BEO=OTHER=X");
  start();
  setCreateBETypMetaFlag(true);
  auto noteOption = [](AsnType &type, const char *text, int index) {
    seen += refOf(type) + std::to_string(index) + text + ";";
  };
  forEachTypeCommentOption(*TestType(module, record), noteOption);
  // Marks are cut off the block's form alone.
  EXPECT_EQ(seen, "T0// one;T1two;");
  seen.clear();
  forEachTypeCommentOption(*TestType(module, without), noteOption);
  EXPECT_EQ(seen, "");
  setCreateBETypMetaFlag(false);
  forEachTypeCommentOption(*TestType(module, record), noteOption);
  EXPECT_EQ(seen, "");
}

TEST_F(TypeRefer, CommentOptionsOfAnInstance)
{
  // Those of the parameterised type, where its chain begins.
  int32_t body = inner(TYP_INTEGER);
  stxNodeTed(tree, body, TED_BACK_END, "-// body");
  int32_t record = define("Inst", instanceOf(body));
  start();
  setCreateBETypMetaFlag(true);
  forEachTypeCommentOption(
      *TestType(module, record),
      [](AsnType &, const char *text, int) { seen += text; });
  EXPECT_EQ(seen, "// body");
}

// --- failures ---------------------------------------------------------------

TEST_F(TypeRefer, NullCallBacks)
{
  start();
  TestType type(module, integer);
  auto dies = [](auto f) { EXPECT_EXIT(f(), ExitedWithCode(2), noCallBack); };
  dies([&] { forSynonymType(*type, nullptr); });
  dies([&] { forSynonymAndBaseType(*type, nullptr); });
  dies([&] { forDefinedBaseType(*type, nullptr); });
  dies([&] { forDefBaseType(*type, nullptr); });
  dies([&] { forSelectionType(*type, nullptr); });
  dies([&] { forTypeDefinedInAnotherModule(*type, nullptr); });
  dies([&] { forDefBaseTypeDefinedInAnotherModule(*type, nullptr); });
  dies([&] { forSynonymTypeInAnotherModule(*type, nullptr); });
  dies([&] { forNextDefinedType(*type, nullptr); });
  dies([&] { forNextDefinedTypeAndBaseType(*type, nullptr); });
  dies([&] { forAnyDefinedByClassifierType(*type, *type, nullptr); });
  dies([&] { forEachTypeCommentOption(*type, nullptr); });
  dies([&] { forBaseTypeModule(*type, nullptr); });
}

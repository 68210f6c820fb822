// Tags: what is collected along a chain, automatic tags, visits and texts.

#include "model/tags.h"
#include "support/typetrees.h"

using testing::ExitedWithCode;

constexpr int explicitMode = 1;
constexpr int implicitMode = 2;

static std::string seen;

static void noteTag(AsnType &, const AsnTag &tag, int index)
{
  seen += std::to_string(index) + ":" + std::to_string(getTagClass(tag)) + "." +
          std::to_string(getTagNumber(tag)) + " ";
}

struct Tags : TypeTrees {
  std::string shown(AsnType &type, void (*walk)(AsnType &, TagCallBack *))
  {
    seen.clear();
    walk(type, noteTag);
    return seen;
  }
  std::string tagsOf(int32_t record)
  {
    start();
    TestType type(module, record);
    return shown(*type, forEachTag);
  }
  void tag(int32_t record, int number, int mode, int tagClass = TAG_CTX)
  {
    stxAddTag(tree, record, tagClass, number, mode);
  }
  // The tags of the components of a structure.
  std::string tagsOfComps(int32_t father)
  {
    start();
    TestType type(module, father);
    seen.clear();
    forEachTypeComp(*type, [](AsnType &, AsnType &comp_, int) {
      forEachTag(comp_, noteTag);
      seen += std::to_string(getNrOfTags(comp_)) + "/" +
              std::to_string(getNrOfLocalTags(comp_)) + "; ";
    });
    return seen;
  }
};

// --- along the chain --------------------------------------------------------

TEST_F(Tags, UniversalTagAlone)
{
  EXPECT_EQ(tagsOf(integer), "0:0.2 ");
  EXPECT_EQ(tagsOf(define("S", TYP_SET)), "0:0.17 ");
}

TEST_F(Tags, TypesWithoutATag)
{
  for (int mainType :
       {TYP_CHOICE, TYP_ANY, TYP_OPEN, TYP_FIELDLIST, TYP_EXTENSION_MARKER})
    EXPECT_EQ(tagsOf(define("T" + std::to_string(mainType), mainType)), "");
}

TEST_F(Tags, ImplicitHidesTheNextTag)
{
  // [1] IMPLICIT [2] INTEGER, with the record of [2] implicit as well
  int32_t record = define("T", TYP_INTEGER);
  tag(record, 1, implicitMode);
  tag(record, 2, implicitMode);
  EXPECT_EQ(tagsOf(record), "0:2.1 ");
}

TEST_F(Tags, ModeOfTheHiddenTagCounts)
{
  // A hidden tag is not stored, but it is explicit: the universal tag is.
  int32_t record = define("T", TYP_INTEGER);
  tag(record, 1, implicitMode);
  tag(record, 2, explicitMode);
  EXPECT_EQ(tagsOf(record), "0:2.1 1:0.2 ");
}

TEST_F(Tags, ModesOtherThanOneAreImplicit)
{
  for (int mode : {0, 2, 3, -1}) {
    int32_t record = define("T" + std::to_string(mode + 9), TYP_INTEGER);
    tag(record, 1, mode);
    EXPECT_EQ(tagsOf(record), "0:2.1 ");
  }
}

TEST_F(Tags, ExplicitKeepsTheNextTag)
{
  int32_t record = define("T", TYP_INTEGER);
  tag(record, 1, explicitMode);
  EXPECT_EQ(tagsOf(record), "0:2.1 1:0.2 ");
}

TEST_F(Tags, SynonymOutsideItsTarget)
{
  int32_t base = define("Base", TYP_INTEGER);
  tag(base, 7, explicitMode, TAG_APP);
  int32_t record = define("Mine", stxNewSynonym(base));
  tag(record, 1, explicitMode, TAG_PRV);
  EXPECT_EQ(tagsOf(record), "0:3.1 1:1.7 2:0.2 ");
  stxTagAt(tree, at(record).firstTag).tagMode = implicitMode;
  EXPECT_EQ(tagsOf(record), "0:3.1 1:0.2 ");
}

TEST_F(Tags, TaggedChoice)
{
  int32_t record = define("C", TYP_CHOICE);
  tag(record, 3, explicitMode);
  EXPECT_EQ(tagsOf(record), "0:2.3 ");
}

TEST_F(Tags, EmbeddingLinesHaveANodeWithoutTag)
{
  int32_t base = define("Base", TYP_CHOICE);
  int32_t record = define("Mine", stxNewSynonym(base));
  stxNodeTed(tree, record, TED_EMBEDDING, "-x");
  start();
  TestType type(module, record);
  ASSERT_NE(type->tagsFirst, nullptr);
  EXPECT_EQ(type->tagsFirst, type->tagsLast);
  EXPECT_EQ(type->tagsFirst->tagClass, TAG_NOT_A_TAG);
  EXPECT_EQ(type->tagsFirst->tagNumber, -1);
  EXPECT_EQ(type->tagsFirst->embeddingKind, 2);
  EXPECT_EQ(type->tagsFirst->embedding.first, at(record).firstTed);
  EXPECT_EQ(type->tagsFirst->embedding.last, at(record).lastTed);
  EXPECT_EQ(type->tagsOutermost, nullptr);
  EXPECT_EQ(getNrOfTags(*type), 0);
}

TEST_F(Tags, TagSharesTheEmbeddingNodeOfItsOwnNode)
{
  int32_t record = define("T", TYP_INTEGER);
  stxNodeTed(tree, record, TED_EMBEDDING, "-x");
  start();
  {
    TestType type(module, record);
    EXPECT_EQ(type->tagsFirst, type->tagsLast);
    EXPECT_EQ(type->tagsFirst->embeddingKind, 2);
    EXPECT_EQ(shown(*type, forEachTag), "0:0.2 ");
  }
  // That of another node is left alone.
  int32_t synonym = define("Mine", stxNewSynonym(integer));
  stxNodeTed(tree, synonym, TED_EMBEDDING, "-x");
  start();
  TestType type(module, synonym);
  EXPECT_NE(type->tagsFirst, type->tagsLast);
  EXPECT_EQ(type->tagsFirst->tagClass, TAG_NOT_A_TAG);
  EXPECT_EQ(type->tagsLast->record, integer);
  EXPECT_EQ(shown(*type, forEachTag), "0:0.2 ");
}

// --- automatic tags ---------------------------------------------------------

TEST_F(Tags, AutomaticTagReplacesTheOutermost)
{
  int32_t father = define("S", TYP_SEQ);
  at(father).nodeFlags |= NF_AUTOMATIC_TAGS;
  comp(father, "a", TYP_NULL);
  tag(comp(father, "b", TYP_NULL), 9, explicitMode);
  EXPECT_EQ(tagsOfComps(father), "0:2.0 1/1; 0:2.1 1:0.5 2/1; ");
}

TEST_F(Tags, AutomaticTagOfAnUntaggedChoice)
{
  int32_t father = define("S", TYP_SEQ);
  at(father).nodeFlags |= NF_AUTOMATIC_TAGS;
  for (int mainType : {TYP_CHOICE, TYP_ANY, TYP_OPEN})
    comp(father, "c", mainType);
  int32_t tagged = comp(father, "d", TYP_CHOICE);
  tag(tagged, 9, explicitMode, TAG_APP);
  marker(father);
  EXPECT_EQ(tagsOfComps(father),
            "0:2.0 1/1; 0:2.1 1/1; 0:2.2 1/1; 0:2.3 1/1; 0/0; ");
}

// What the number replaces is the tag of the type referred to.
TEST_F(Tags, AutomaticTagOfAReference)
{
  int32_t father = define("S", TYP_SEQ);
  at(father).nodeFlags |= NF_AUTOMATIC_TAGS;
  comp(father, "a", stxNewSynonym(integer));
  EXPECT_EQ(tagsOfComps(father), "0:2.0 1/1; ");
  TestType type(module, father);
  seen.clear();
  forEachTypeComp(*type, [](AsnType &, AsnType &comp_, int) {
    EXPECT_EQ(comp_.tagsOutermost->record, comp_.baseRecNr);
    forEachLocalTag(comp_, noteTag);
    forEachLocalTagRevOrd(comp_, noteTag);
  });
  EXPECT_EQ(seen, "");
}

TEST_F(Tags, NoAutomaticTags)
{
  int32_t father = define("S", TYP_SEQ);
  comp(father, "a", TYP_CHOICE);
  comp(father, "b", TYP_NULL);
  tag(comp(father, "c", TYP_NULL), 4, implicitMode);
  EXPECT_EQ(tagsOfComps(father), "0/0; 0:0.5 1/0; 0:2.4 1/1; ");
}

// --- visits -----------------------------------------------------------------

struct TagVisits : Tags {
  // [1] [2] INTEGER, both explicit; the same with one tag; and none.
  int32_t three, one, none;
  TagVisits()
  {
    three = define("Three", TYP_INTEGER);
    tag(three, 1, explicitMode);
    tag(three, 2, explicitMode);
    one = define("One", TYP_NULL);
    none = define("None", TYP_CHOICE);
  }
};

typedef void TagWalk(AsnType &, TagCallBack *);

TEST_F(TagVisits, ByPosition)
{
  struct Case {
    TagWalk *walk;
    const char *ofThree;
    const char *ofOne;
  };
  const Case cases[] = {
      {forEachTag, "0:2.1 1:2.2 2:0.2 ", "0:0.5 "},
      {forEachTagRevOrd, "2:0.2 1:2.2 0:2.1 ", "0:0.5 "},
      {forOutermostTag, "0:2.1 ", "0:0.5 "},
      {forOutermostTags, "0:2.1 1:2.2 ", ""},
      {forOutermostTagsRevOrd, "1:2.2 0:2.1 ", ""},
      {forInnermostTag, "2:0.2 ", "0:0.5 "},
      {forInnermostTags, "1:2.2 2:0.2 ", "0:0.5 "},
      {forInnermostTagsRevOrd, "2:0.2 1:2.2 ", "0:0.5 "},
  };
  start();
  TestType a(module, three);
  TestType b(module, one);
  TestType c(module, none);
  for (const Case &row : cases) {
    EXPECT_EQ(shown(*a, row.walk), row.ofThree);
    EXPECT_EQ(shown(*b, row.walk), row.ofOne);
    EXPECT_EQ(shown(*c, row.walk), "");
    EXPECT_EXIT(row.walk(*a, nullptr), ExitedWithCode(2),
                "Call-back function not defined");
  }
  EXPECT_EXIT(forTags(*c, nullptr, TAG_ALL, false), ExitedWithCode(2),
              "Call-back function not defined");
  EXPECT_EXIT(forInnermostTags(*b, nullptr), ExitedWithCode(2),
              "Call-back function not defined");
  // Nothing to call: the call-back is not asked for.
  forOutermostTags(*b, nullptr);
  forOutermostTagsRevOrd(*b, nullptr);
  seen.clear();
  forTags(*a, noteTag, TAG_MIDDLE, true);
  forTags(*a, noteTag, TAG_OUTERMOST | TAG_INNERMOST, true);
  forTags(*a, noteTag, 0, false);
  EXPECT_EQ(seen, "1:2.2 2:0.2 0:2.1 ");
}

TEST_F(TagVisits, TwoTagsHaveNoMiddle)
{
  int32_t two = define("Two", TYP_INTEGER);
  tag(two, 1, explicitMode);
  start();
  TestType type(module, two);
  for (TagWalk *walk :
       {forOutermostTag, forOutermostTags, forOutermostTagsRevOrd})
    EXPECT_EQ(shown(*type, walk), "0:2.1 ");
  for (TagWalk *walk :
       {forInnermostTag, forInnermostTags, forInnermostTagsRevOrd})
    EXPECT_EQ(shown(*type, walk), "1:0.2 ");
}

// Embedding options behind the last tag are passed over in both directions.
TEST_F(TagVisits, EmbeddingLinesBehindTheTags)
{
  int32_t base = define("Base", TYP_CHOICE);
  stxNodeTed(tree, base, TED_EMBEDDING, "-x");
  int32_t record = define("Mine", stxNewSynonym(base));
  tag(record, 1, explicitMode);
  tag(record, 2, explicitMode);
  start();
  TestType type(module, record);
  EXPECT_EQ(type->tagsLast->tagClass, TAG_NOT_A_TAG);
  EXPECT_EQ(shown(*type, forEachTag), "0:2.1 1:2.2 ");
  EXPECT_EQ(shown(*type, forEachTagRevOrd), "1:2.2 0:2.1 ");
  EXPECT_EQ(shown(*type, forEachLocalTagRevOrd), "1:2.2 0:2.1 ");
}

TEST_F(TagVisits, LocalTags)
{
  int32_t record = define("Mine", stxNewSynonym(three));
  tag(record, 8, explicitMode, TAG_APP);
  tag(record, 9, explicitMode, TAG_PRV);
  start();
  TestType type(module, record);
  EXPECT_EQ(getNrOfTags(*type), 5);
  EXPECT_EQ(getNrOfLocalTags(*type), 2);
  EXPECT_EQ(shown(*type, forEachLocalTag), "0:1.8 1:3.9 ");
  EXPECT_EQ(shown(*type, forEachLocalTagRevOrd), "1:3.9 0:1.8 ");
  TestType universal(module, one);
  EXPECT_EQ(getNrOfLocalTags(*universal), 0);
  EXPECT_EQ(shown(*universal, forEachLocalTag), "");
  EXPECT_EQ(shown(*universal, forEachLocalTagRevOrd), "");
  for (TagWalk *walk : {forEachLocalTag, forEachLocalTagRevOrd})
    EXPECT_EXIT(walk(*universal, nullptr), ExitedWithCode(2),
                "Call-back function not defined");
}

TEST_F(TagVisits, BrokenList)
{
  start();
  TestType type(module, three);
  DynaNode *outermost = type->tagsOutermost;
  type->tagsOutermost = nullptr;
  EXPECT_EXIT(forEachTagRevOrd(*type, noteTag), ExitedWithCode(2), "Internal");
  type->tagsOutermost = outermost;
}

// --- texts ------------------------------------------------------------------

TEST(TagTexts, ClassAndNumber)
{
  const char *const names[] = {"TAG_UNI", "TAG_APP", "TAG_CTX", "TAG_PRV", ""};
  std::string text;
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(getTagClassStri(text, "<", AsnTag{i, 0}, ">"),
              "<" + std::string(names[i]) + ">");
  EXPECT_EQ(getTagClassStri(text, nullptr, AsnTag{-1, 0}, nullptr), "");
  EXPECT_EQ(getTagNumberStri(text, "<", AsnTag{0, 2147483647}, ">"),
            "<2147483647>");
  EXPECT_EQ(getTagNumberStri(text, nullptr, AsnTag{0, -1}, nullptr), "-1");
  // The destination may be one of the parts.
  text = "x";
  EXPECT_EQ(getTagNumberStri(text, text.c_str(), AsnTag{0, 5}, text.c_str()),
            "x5x");
}

TEST(TagTexts, BuiltinTypes)
{
  std::string text;
  EXPECT_EQ(getBuiltinTypeTagClass(TYP_INTEGER), TAG_UNI);
  EXPECT_EQ(getBuiltinTypeTagNumber(TYP_INTEGER), 2);
  EXPECT_EQ(getBuiltinTypeTagNumber(TYP_INSTANCE_OF), 8);
  EXPECT_EQ(getBuiltinTypeTagNumber(TYP_CHOICE), -2);
  EXPECT_EQ(getBuiltinTypeTagNumber(TYP_ANY), -3);
  for (int beyond : {+TYP_SYNONYM, +TYP_OPEN, +TYP_NONE, 42, 255, -1}) {
    EXPECT_EQ(getBuiltinTypeTagClass(beyond), TAG_UNI);
    EXPECT_EQ(getBuiltinTypeTagNumber(beyond), -11);
  }
  EXPECT_EQ(getBuiltinTypeTagClassStri(text, "<", TYP_SEQ, ">"), "<TAG_UNI>");
  EXPECT_EQ(getBuiltinTypeTagNumberStri(text, "<", TYP_SEQ, ">"), "<16>");
  EXPECT_EQ(getBuiltinTypeTagNumberStri(text, nullptr, TYP_ANY, nullptr),
            "TNR_ANY");
  EXPECT_EQ(getBuiltinTypeTagNumberStri(text, nullptr, TYP_CHOICE, nullptr),
            "TNR_CHOICE");
  EXPECT_EQ(getBuiltinTypeTagNumberStri(text, nullptr, TYP_OPEN, nullptr),
            "TNR_NONE");
}

TEST(TagTexts, Expression)
{
  std::string text;
  EXPECT_EQ(getTagStri(text, "x ", AsnTag{TAG_CTX, 3}, false, ";"),
            "x TAG(TAG_CTX, TAG_PRI, 3);");
  EXPECT_EQ(getTagStri(text, nullptr, AsnTag{TAG_UNI, 16}, true, nullptr),
            "TAG(TAG_UNI, TAG_STR, 16)");
  EXPECT_EQ(getTagStriClassNumber(text, nullptr, TAG_APP, true, -1, nullptr),
            "TAG(TAG_APP, TAG_STR, -1)");
  EXPECT_EQ(getTagStriClassNumber(text, nullptr, 7, false, 1, nullptr),
            "TAG(, TAG_PRI, 1)");
}

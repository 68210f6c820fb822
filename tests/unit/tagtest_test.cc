// Tests of tags in generated C.

#include "cbet/outfile.h"
#include "cbet/tagtest.h"
#include "model/tags.h"
#include "support/typetrees.h"

using testing::ExitedWithCode;

struct TagTests : TypeTrees {
  ~TagTests() override { clearOutFiles(); }

  std::string written(int32_t record, const char *variable, bool elseIf,
                      bool notEqual)
  {
    start();
    TestType type(module, record);
    openNamedF(1, dir.path.c_str(), "out.c");
    printIfTagForBER(1, *type, variable, elseIf, notEqual);
    closeF(1);
    clearOutFiles();
    return readFile(dir.path + "out.c");
  }
  int32_t tagged(int32_t father, const char *name, int number)
  {
    int32_t record = comp(father, name, TYP_NULL);
    stxAddTag(tree, record, TAG_CTX, number, 2);
    return record;
  }
};

TEST_F(TagTests, OutermostTag)
{
  EXPECT_EQ(written(integer, nullptr, false, false),
            "if (tag == TAG(TAG_UNI, TAG_PRI, 2))");
  EXPECT_EQ(written(integer, "t->tag", true, true),
            "else if (t->tag != TAG(TAG_UNI, TAG_PRI, 2))");
  int32_t record = define("T", TYP_SEQ);
  stxAddTag(tree, record, TAG_PRV, 5, 1);
  // As a primitive one, whatever it is.
  EXPECT_EQ(written(record, nullptr, false, false),
            "if (tag == TAG(TAG_PRV, TAG_PRI, 5))");
}

TEST_F(TagTests, EndOfContents)
{
  for (int mainType : {TYP_ANY, TYP_OPEN, TYP_FIELDLIST}) {
    int32_t record = define("T" + std::to_string(mainType), mainType);
    EXPECT_EQ(written(record, nullptr, false, false), "if (tag == EOC_TAG)");
    EXPECT_EQ(written(record, "x", true, true), "else if (x != EOC_TAG)");
  }
}

TEST_F(TagTests, Alternatives)
{
  int32_t choice = define("C", TYP_CHOICE);
  tagged(choice, "a", 1);
  int32_t inner = comp(choice, "b", TYP_CHOICE);
  tagged(inner, "c", 2);
  tagged(choice, "d", 3);
  EXPECT_EQ(written(choice, "t", false, false),
            "if (t == TAG(TAG_CTX, TAG_PRI, 1) && "
            "t == TAG(TAG_CTX, TAG_PRI, 2) &&\n"
            // Behind the break two blanks stand for the leading one.
            "  t == TAG(TAG_CTX, TAG_PRI, 3))");
}

TEST_F(TagTests, AlternativesThatAreNotEqual)
{
  int32_t choice = define("C", TYP_CHOICE);
  tagged(choice, "a", 1);
  tagged(choice, "b", 2);
  EXPECT_EQ(written(choice, "t", true, true),
            "else if (t != TAG(TAG_CTX, TAG_PRI, 1) || "
            "t != TAG(TAG_CTX, TAG_PRI, 2))");
}

TEST_F(TagTests, TaggedChoiceIsTestedByItsTag)
{
  int32_t choice = define("C", TYP_CHOICE);
  stxAddTag(tree, choice, TAG_CTX, 9, 1);
  tagged(choice, "a", 1);
  EXPECT_EQ(written(choice, nullptr, false, false),
            "if (tag == TAG(TAG_CTX, TAG_PRI, 9))");
}

TEST_F(TagTests, NoFileNoText)
{
  start();
  TestType type(module, integer);
  testing::internal::CaptureStdout();
  printIfTagForBER(0, *type, nullptr, false, false);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(TagTests, ChoiceOfItself)
{
  int32_t choice = define("C", TYP_CHOICE);
  comp(choice, "a", stxNewSynonym(choice));
  start();
  TestType type(module, choice);
  EXPECT_EXIT(printIfTagForBER(0, *type, nullptr, false, false),
              ExitedWithCode(2), damagedM);
}

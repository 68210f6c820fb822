// Possible contents of an ANY.

#include "base/diag.h"
#include "model/anytype.h"
#include "model/typequery.h"
#include "model/valuetext.h"
#include "support/valueviews.h"

using testing::ExitedWithCode;

static std::string seen;

static void noteEntry(AsnType &, AsnValue &value, AsnType &entryType, int index)
{
  std::string text;
  seen += getValueRef(text, nullptr, value, ":");
  seen += getTypeRef(text, nullptr, entryType, "/");
  seen += std::to_string(index) + " ";
}

static void noteDefinedBy(AsnType &, AsnType &classifier, AsnType &any,
                          AsnValue &value, AsnType &entryType, int index)
{
  std::string text;
  seen += getTypeCompRef(text, "<", classifier, "> ");
  noteEntry(any, value, entryType, index);
}

struct AnyType : ValueViews {
  int32_t father = stxDefineType(a, "S", stxNewTNode(TYP_SEQ));
  int32_t code = stxAddComp(a, father, "code", stxNewTNode(TYP_INTEGER));
  int32_t any = stxAddComp(a, father, "content", stxNewTNode(TYP_ANY));

  AnyType()
  {
    seen.clear();
    integerOf(1, "one");
    integerOf(2, "two");
    stxDefineType(a, "First", stxNewTNode(TYP_BOOLEAN));
    stxDefineType(a, "Second", stxNewTNode(TYP_NULL));
  }
  void line(const char *text) { stxNodeTed(a, any, TED_BACK_END, text); }
  // The ANY as a component of its structure.
  AsnType &anyView()
  {
    types.push_back(newAsnType(&mod, &mod));
    AsnType &structure = typeView(father);
    readRec(modA, REC_TNODE, any);
    getTypePath(&structure, *types.front(), true);
    return *types.front();
  }
  std::string visited()
  {
    start();
    forAnyType(anyView(), noteEntry);
    return seen;
  }
  std::string visitedBy()
  {
    start();
    AsnType &type = anyView();
    forAnyDefinedByType(*type.father, type, noteDefinedBy);
    return seen;
  }
};

TEST_F(AnyType, EachLine)
{
  line("$ANY=one:First");
  line("$ANY=two:Second");
  EXPECT_EQ(visited(), "one:First/0 two:Second/1 ");
}

TEST_F(AnyType, NoLines)
{
  EXPECT_EQ(visited(), "");
}

TEST_F(AnyType, OtherLinesArePassedOver)
{
  line("-$ANY=one:First");
  line("-BEO=//text");
  line("$ANY=one");
  line("$any=one:First");
  line("$ANY=two:Second");
  EXPECT_EQ(visited(), "two:Second/0 ");
}

TEST_F(AnyType, UnknownNamesArePassedOverInSilence)
{
  line("$ANY=three:First");
  line("$ANY=one:Third");
  line("$ANY=:First");
  line("$ANY=one:");
  line("$ANY=two:First");
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  std::string text = visited();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(text, "two:First/0 ");
}

// The names are those of the module where the ANY is used.
TEST_F(AnyType, NamesOfTheHomeModule)
{
  int32_t far = stxDefineType(b, "Any", stxNewTNode(TYP_ANY));
  stxNodeTed(b, far, TED_BACK_END, "$ANY=two:First");
  int32_t near = stxDefineType(a, "Near", stxNewSynonym(far, 2));
  start();
  forAnyType(typeView(near), noteEntry);
  EXPECT_EQ(seen, "two:First/0 ");
}

TEST_F(AnyType, DefinedByAComponent)
{
  stxTypeAt(a, any).fieldRef = stxLink(a, stxNewLink(code));
  line("$ANY=one:First");
  line("$ANY=none:First");
  line("$ANY=two:Second");
  EXPECT_EQ(visitedBy(), "<code> one:First/0 <code> two:Second/1 ");
}

TEST_F(AnyType, DefinedByNothing)
{
  line("$ANY=one:First");
  EXPECT_EQ(visitedBy(), "");
}

TEST_F(AnyType, NullCallBacks)
{
  start();
  AsnType &type = anyView();
  static const char message[] = "Call-back function not defined";
  EXPECT_EXIT(forAnyType(type, nullptr), ExitedWithCode(2), message);
  EXPECT_EXIT(forAnyDefinedByType(*type.father, type, nullptr),
              ExitedWithCode(2), message);
}

TEST_F(AnyType, WildRange)
{
  line("$ANY=one:First");
  start();
  AsnType &type = anyView();
  type.base.lastTed = 900;
  EXPECT_EXIT(forAnyType(type, noteEntry), ExitedWithCode(2), noRecord);
}

// Warnings about types.

#include "cbet/typewarn.h"
#include "model/typepath.h"
#include "support/typetrees.h"

struct TypeWarn : TypeTrees {
  std::string name = backendName;
  TypeWarn()
  {
    backendName = "QUORVEN";
    verboseEx = 2;
  }
  ~TypeWarn() override { backendName = name; }

  static std::string printed(void (*warn)(const AsnType &, const char *),
                             const AsnType &type)
  {
    testing::internal::CaptureStdout();
    warn(type, "Some text");
    return testing::internal::GetCapturedStdout();
  }
  static std::string line(int number, const std::string &place)
  {
    return "asn/m.asn(" + std::to_string(number) +
           ") : Warning     QUORVEN Module M, " + place + "\n";
  }
};

// The warnings for the components of a structure.
static std::string seen;

TEST_F(TypeWarn, DefinedType)
{
  TNode node = stxNewTNode(TYP_NULL);
  node.line = 12;
  int32_t record = define("My-Type", node);
  start();
  TestType type(module, record);
  std::string text;
  testing::internal::CaptureStdout();
  warning("Some text");
  std::string plain = testing::internal::GetCapturedStdout();
  testing::internal::CaptureStdout();
  indWarning("Some text");
  std::string indented = testing::internal::GetCapturedStdout();
  // In the tree the name has "_".
  EXPECT_EQ(refOf(*type), "My_Type");
  EXPECT_EQ(printed(typeWarning, *type), line(12, "type My-Type") + plain);
  EXPECT_EQ(printed(indTypeWarning, *type),
            line(12, "type My-Type") + indented);
  EXPECT_NE(plain, indented);
}

TEST_F(TypeWarn, ByTheSortOfType)
{
  int32_t father = define("S", TYP_SEQ);
  comp(father, "a-b", TYP_NULL);
  comp(father, "", TYP_EXTENSION_MARKER);
  comp(father, "", TYP_NULL);
  start();
  TestType type(module, father);
  seen.clear();
  forEachTypeComp(*type, [](AsnType &, AsnType &comp_, int) {
    std::string text = printed(typeWarning, comp_);
    size_t at = text.find("Module M, ");
    seen += text.substr(at, text.find('\n') - at) + ";";
  });
  EXPECT_EQ(seen, "Module M, element a-b;Module M, <extensionmarker>;"
                  "Module M, element ;");
}

TEST_F(TypeWarn, OtherTypeByItsIdentifier)
{
  int32_t list = define("My-List", TYP_SEQOF);
  comp(list, "", stxNewSynonym(integer));
  start();
  TestType type(module, list);
  seen.clear();
  forTypeElem(*type, [](AsnType &, AsnType &elem) {
    std::string text = printed(typeWarning, elem);
    seen = text.substr(0, text.find('\n') + 1);
  });
  EXPECT_EQ(seen, line(0, "element Int"));
}

TEST_F(TypeWarn, InlineElementByItsPath)
{
  int32_t father = define("My-Type", TYP_SEQ);
  int32_t list = comp(father, "a-b", TYP_SEQOF);
  comp(list, "", TYP_NULL);
  start();
  TestType type(module, father);
  seen.clear();
  forEachTypeComp(*type, [](AsnType &, AsnType &comp_, int) {
    forTypeElem(comp_, [](AsnType &, AsnType &elem) {
      std::string text = printed(typeWarning, elem);
      seen = text.substr(0, text.find('\n') + 1);
    });
  });
  // Its C name, with "-" for each "_".
  EXPECT_EQ(seen, line(0, "element 1-a-b-a-b-My-Type"));
}

TEST_F(TypeWarn, NothingWhenQuiet)
{
  start();
  verboseEx = 1;
  TestType type(module, integer);
  EXPECT_EQ(printed(typeWarning, *type), "");
  EXPECT_EQ(printed(indTypeWarning, *type), "");
  EXPECT_EQ(printed(notYetSupported, *type), "");
}

TEST_F(TypeWarn, NotYetSupported)
{
  start();
  TestType type(module, integer);
  std::string text = printed(notYetSupported, *type);
  EXPECT_EQ(text.find(line(0, "type Int")), 0u);
  EXPECT_NE(text.find("Some text not yet supported, sorry.\n"),
            std::string::npos);
}

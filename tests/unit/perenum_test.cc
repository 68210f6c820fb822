// Shapes of enumerations, and the calls for indexes of their values.

#include "base/strings.h"
#include "model/valueiter.h"
#include "per/perenum.h"
#include "per/perint.h"
#include "per/variant.h"
#include "support/loadedasn.h"
#include "support/writtentext.h"
#include <gmock/gmock.h>

using testing::UnorderedElementsAre;

namespace {

constexpr int unknownVariant = 2;
constexpr char none[] = "none";

// What was seen of an enumeration.
std::string shape;

void showNumbers(const int32_t *numbers, int count)
{
  for (int i = 0; i < count; ++i)
    shape += (i ? "," : "") + std::to_string(numbers[i]);
}

// "numbers ... additions: kind kind", the second one that of the shape.
void takeShape(AsnType &, int rootCount, const int32_t *rootValues,
               bool rootIsContinued, int addCount, const int32_t *addValues,
               bool addIsContinued)
{
  shape.clear();
  showNumbers(rootValues, rootCount);
  int kind = perGetEnumeratedKind(addCount);
  int second = kind == ENUM_NOT_EXTENSIBLE
                   ? perGetNonExtendedEnumeratedKind(rootCount, rootValues,
                                                     rootIsContinued)
                   : perGetExtendedEnumeratedKind(rootCount, rootIsContinued,
                                                  addCount, addIsContinued);
  if (kind == ENUM_EXTENSIBLE) {
    shape += " ... ";
    showNumbers(addValues, addCount);
  }
  shape += formatText(": %d %d", kind, second);
}

struct PerEnum : LoadedAsn {
  int variant = perGetEncodingVariant();

  PerEnum() { perSetEncodingVariant(VARIANT_ALIGNED); }
  ~PerEnum() override
  {
    perSetEncodingVariant(variant);
    clearOutFiles();
  }

  std::string shapeOf(const std::string &items)
  {
    load("T ::= ENUMERATED { " + items + " }\n");
    TestType view(module, type("T"));
    shape = none;
    forSortedEnumeratedValueArray(*view, takeShape);
    return shape;
  }

  static TextWriter indexCall(const char *prefix, int32_t count)
  {
    return [=](int file) {
      int size = perEnumIndexFunctionToF(file, prefix, count);
      printfToF(file, "|%d", size);
    };
  }
  // Name and size of an index among `count` values.
  static std::string indexOf(int inVariant, int32_t count)
  {
    perSetEncodingVariant(inVariant);
    return writtenText(indexCall("pe_", count));
  }
};

// --- shapes -----------------------------------------------------------------

TEST_F(PerEnum, Kinds)
{
  EXPECT_EQ(perGetEnumeratedKind(-1), ENUM_NOT_EXTENSIBLE);
  EXPECT_EQ(perGetEnumeratedKind(0), ENUM_EXTENSIBLE);
  EXPECT_EQ(perGetEnumeratedKind(1), ENUM_EXTENSIBLE);
  EXPECT_EQ(perGetEnumeratedKind(INT32_MAX), ENUM_EXTENSIBLE);
  EXPECT_EQ(perGetEnumeratedKind(-2), ENUM_UNSUPPORTED);
  EXPECT_EQ(perGetEnumeratedKind(INT32_MIN), ENUM_UNSUPPORTED);
}

TEST_F(PerEnum, KindsOfRoots)
{
  const int32_t fromZero[] = {0, 1}, fromFive[] = {5, 6}, below[] = {-1, 0};
  EXPECT_EQ(perGetNonExtendedEnumeratedKind(1, fromZero, true), ENUM_ONE_VALUE);
  EXPECT_EQ(perGetNonExtendedEnumeratedKind(1, fromFive, true), ENUM_ONE_VALUE);
  EXPECT_EQ(perGetNonExtendedEnumeratedKind(2, fromZero, true), ENUM_FROM_ZERO);
  EXPECT_EQ(perGetNonExtendedEnumeratedKind(2, fromFive, true),
            ENUM_FROM_OTHER);
  EXPECT_EQ(perGetNonExtendedEnumeratedKind(2, below, true), ENUM_FROM_OTHER);
  EXPECT_EQ(perGetNonExtendedEnumeratedKind(2, fromZero, false),
            ENUM_WITH_HOLES);
  // No value at all, and so no array.
  EXPECT_EQ(perGetNonExtendedEnumeratedKind(0, nullptr, false),
            ENUM_WITH_HOLES);
}

TEST_F(PerEnum, KindsOfExtensibleTypes)
{
  struct {
    bool rootIsContinued;
    int addCount;
    bool addIsContinued;
    int kind;
  } rows[] = {
      {true, 0, false, ENUM_CONT_NONE},
      {true, 1, true, ENUM_CONT_CONT},
      {true, 2, true, ENUM_CONT_CONT},
      {true, 2, false, ENUM_CONT_HOLES},
      {false, 0, false, ENUM_HOLES_NONE},
      {false, 1, true, ENUM_HOLES_CONT},
      {false, 2, true, ENUM_HOLES_CONT},
      {false, 2, false, ENUM_HOLES_HOLES},
      {true, -1, false, ENUM_EXT_UNSUPPORTED},
      {false, -2, false, ENUM_EXT_UNSUPPORTED},
  };
  for (const auto &row : rows)
    EXPECT_EQ(perGetExtendedEnumeratedKind(2, row.rootIsContinued, row.addCount,
                                           row.addIsContinued),
              row.kind);
  EXPECT_EQ(perGetExtendedEnumeratedKind(-1, false, 0, false),
            ENUM_EXT_UNSUPPORTED);
}

TEST_F(PerEnum, ShapesOfTypes)
{
  EXPECT_EQ(shapeOf("a"), "0: 0 0");
  EXPECT_EQ(shapeOf("a(7)"), "7: 0 0");
  EXPECT_EQ(shapeOf("a, b, c"), "0,1,2: 0 1");
  EXPECT_EQ(shapeOf("a(5), b(6)"), "5,6: 0 2");
  EXPECT_EQ(shapeOf("a(-1), b(0)"), "-1,0: 0 2");
  EXPECT_EQ(shapeOf("a(1), b(5)"), "1,5: 0 3");
}

TEST_F(PerEnum, IndexesGoByNumber)
{
  EXPECT_EQ(shapeOf("a(3), b(1)"), "1,3: 0 3");
  EXPECT_EQ(shapeOf("a(2), b(0), c(1)"), "0,1,2: 0 1");
}

TEST_F(PerEnum, ShapesOfExtensibleTypes)
{
  EXPECT_EQ(shapeOf("a, b, ..."), "0,1 ... : 1 0");
  EXPECT_EQ(shapeOf("a(1), b(2), ..., c(5)"), "1,2 ... 5: 1 1");
  EXPECT_EQ(shapeOf("a, ..., b(5), c(6)"), "0 ... 5,6: 1 1");
  EXPECT_EQ(shapeOf("a, ..., b(5), c(7)"), "0 ... 5,7: 1 2");
  EXPECT_EQ(shapeOf("a, b(2), ..."), "0,2 ... : 1 3");
  EXPECT_EQ(shapeOf("a, b(2), ..., c(5)"), "0,2 ... 5: 1 4");
  EXPECT_EQ(shapeOf("a, b(2), ..., c(5), d(7)"), "0,2 ... 5,7: 1 5");
}

TEST_F(PerEnum, AdditionsAreSortedByThemselves)
{
  // They follow the root even if their numbers are lower.
  EXPECT_EQ(shapeOf("a(3), ..., b(7), c(5)"), "3 ... 5,7: 1 2");
  EXPECT_EQ(shapeOf("a(9), ..., b(1), c(2)"), "9 ... 1,2: 1 1");
}

TEST_F(PerEnum, NoRootValue)
{
  load("T ::= ENUMERATED { a, ..., b(4) }\n");
  // The text of the type needs a root; the tree does not.
  StxTree tree = treeOf(compiled);
  int32_t record = typeNamed(tree, "T");
  VNode &first = stxValueAt(tree, stxTypeAt(tree, record).namedNumbers);
  stxTypeAt(tree, record).namedNumbers = first.next;
  run.add(tree, compiled.trees[0].prefix.c_str());
  resetStore();
  resetParams();
  run.load({compiled.trees[0].prefix});
  module = LoadedRun::module(compiled.trees[0].prefix.c_str());
  TestType view(module, record);
  forSortedEnumeratedValueArray(*view, takeShape);
  EXPECT_EQ(shape, " ... 4: 1 4");
}

// --- sizes and names --------------------------------------------------------

TEST_F(PerEnum, Sizes)
{
  struct {
    int32_t count;
    int bitsOrOctets, bits;
  } rows[] = {
      {0, 0, 0},   {1, 0, 0},   {2, 1, 1},   {3, 2, 2},      {254, 8, 8},
      {255, 8, 8}, {256, 1, 8}, {257, 2, 9}, {65536, 2, 16}, {65537, 3, 17},
  };
  for (const auto &row : rows) {
    EXPECT_EQ(perBitsOrOctetsInEnumRange(row.count), row.bitsOrOctets)
        << row.count;
    EXPECT_EQ(perBitsInEnumRange(row.count), row.bits) << row.count;
  }
}

TEST_F(PerEnum, IndexFunctions)
{
  struct {
    int32_t count;
    const char *aligned, *unaligned;
  } rows[] = {
      {0, "pe_sint32_cwn_al_le255|0", "pe_sint32_cwn_ua|0"},
      {1, "pe_sint32_cwn_al_le255|0", "pe_sint32_cwn_ua|0"},
      {3, "pe_sint32_cwn_al_le255|2", "pe_sint32_cwn_ua|2"},
      {254, "pe_sint32_cwn_al_le255|8", "pe_sint32_cwn_ua|8"},
      {255, "pe_sint32_cwn_al_eq255|8", "pe_sint32_cwn_ua|8"},
      {256, "pe_sint32_cwn_al_le64K|1", "pe_sint32_cwn_ua|8"},
      {257, "pe_sint32_cwn_al_le64K|2", "pe_sint32_cwn_ua|9"},
      {65535, "pe_sint32_cwn_al_le64K|2", "pe_sint32_cwn_ua|16"},
      {65536, "pe_sint32_cwn_al_le64K|2", "pe_sint32_cwn_ua|16"},
  };
  for (const auto &row : rows) {
    EXPECT_EQ(indexOf(VARIANT_ALIGNED, row.count), row.aligned) << row.count;
    EXPECT_EQ(indexOf(VARIANT_UNALIGNED, row.count), row.unaligned)
        << row.count;
  }
  EXPECT_EQ(writtenText(indexCall("pd_", 300)), "pd_sint32_cwn_ua|9");
}

TEST_F(PerEnum, LineBreaksInTheIndexFunction)
{
  EXPECT_THAT(
      brokenTexts([](int file) { perEnumIndexFunctionToF(file, "pe_", 3); }),
      UnorderedElementsAre("pe_sint32_cwn_al_le255", "le255"));
  perSetEncodingVariant(VARIANT_UNALIGNED);
  EXPECT_THAT(
      brokenTexts([](int file) { perEnumIndexFunctionToF(file, "pe_", 3); }),
      UnorderedElementsAre("pe_sint32_cwn_ua"));
}

struct PerEnumError : PerEnum {
  // What is reported on stdout, without what the tool puts ahead of it.
  std::string reported(int inVariant, int32_t count, int level = 2)
  {
    verboseEx = level;
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    text = indexOf(inVariant, count);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    std::string out = testing::internal::GetCapturedStdout();
    // Nothing is loaded, and the tool has no name.
    std::string head = "Warning      ";
    size_t at = out.find_first_not_of(' ');
    return at != std::string::npos && out.substr(at, head.size()) == head
               ? out.substr(at + head.size())
               : out;
  }
  std::string text;
};

TEST_F(PerEnumError, TooManyValues)
{
  EXPECT_EQ(reported(VARIANT_ALIGNED, 65537),
            "Too many values in Enumerated type.\n");
  EXPECT_EQ(text, "pe_sint32_cwn_al_"
                  "ERROR: Too many values in enumerated type.\n|3");
  // Only where the word would stand.
  EXPECT_EQ(reported(VARIANT_ALIGNED, 65536), "");
  EXPECT_EQ(reported(VARIANT_UNALIGNED, 65537), "");
  EXPECT_EQ(text, "pe_sint32_cwn_ua|17");
}

TEST_F(PerEnumError, UnknownVariant)
{
  EXPECT_EQ(reported(unknownVariant, 3), "Unknown encoding variant\n");
  EXPECT_EQ(text, " ERROR: unknown encoding variant\n|0");
}

TEST_F(PerEnumError, OnlyWhenWarningsAreOn)
{
  EXPECT_EQ(reported(VARIANT_ALIGNED, 65537, 1), "");
  EXPECT_EQ(text, "pe_sint32_cwn_al_"
                  "ERROR: Too many values in enumerated type.\n|3");
  EXPECT_EQ(reported(unknownVariant, 3, 1), "");
}

TEST_F(PerEnum, OtherFunctions)
{
  EXPECT_STREQ(perEnumOneValueFunctionName(), "sint32_cwn_al_eq1");
  EXPECT_STREQ(perNormSmallNumberFunctionName(), "normSmallNonNegWholeNumAl");
  perSetEncodingVariant(VARIANT_UNALIGNED);
  EXPECT_STREQ(perEnumOneValueFunctionName(), "sint32_cwn_ua_eq1");
  EXPECT_STREQ(perNormSmallNumberFunctionName(), "normSmallNonNegWholeNumUa");
  perSetEncodingVariant(unknownVariant);
  EXPECT_EQ(perEnumOneValueFunctionName(), nullptr);
  EXPECT_EQ(perNormSmallNumberFunctionName(), nullptr);
}

// --- enumerations treated as integers ---------------------------------------

// What the components of a structure answer.
std::string answers;

void answer(AsnType &, AsnType &comp, int)
{
  answers += checkEnumerated(comp) ? "yes " : "no ";
}

std::string describe(AsnType &view)
{
  std::string text = "old";
  int kind = -7, bits = -7;
  int32_t lower = -7, upper = -7, addLower = -7;
  const std::string *name = perEnumeratedFunctionName(
      text, "<", view, ">", kind, lower, upper, addLower, bits);
  if (!name)
    return formatText("none %d", kind);
  std::string addition =
      addLower == enumNumberUnset ? "unset" : std::to_string(addLower);
  return *name + formatText(" %d: %d..%d, %s, %d", kind, lower, upper,
                            addition.c_str(), bits);
}

void describeComp(AsnType &, AsnType &comp, int)
{
  answers += describe(comp) + "; ";
}

struct PerEnumName : PerEnum {
  bool inPosition(const std::string &items)
  {
    load("T ::= ENUMERATED { " + items + " }\n");
    TestType view(module, type("T"));
    return checkEnumerated(*view);
  }
  // Of the components of S.
  std::string answersFor(CompCallBack *ask)
  {
    TestType view(module, type("S"));
    answers.clear();
    forEachTypeComp(*view, ask);
    return answers;
  }
  std::string described(const std::string &items)
  {
    load("T ::= ENUMERATED { " + items + "\n");
    TestType view(module, type("T"));
    return describe(*view);
  }
};

TEST_F(PerEnumName, PositionsInDefinitions)
{
  EXPECT_TRUE(inPosition("a"));
  EXPECT_TRUE(inPosition("a, b, c"));
  EXPECT_TRUE(inPosition("a(0), b(1)"));
  EXPECT_FALSE(inPosition("a(1)"));
  EXPECT_FALSE(inPosition("a, b(2)"));
  // The order of definition counts.
  EXPECT_FALSE(inPosition("a(1), b(0)"));
  // Markers have no position.
  EXPECT_TRUE(inPosition("a, ..., b"));
}

TEST_F(PerEnumName, PositionsInReferences)
{
  load("S ::= SEQUENCE { a Good, b Bad, c Syn, d ENUMERATED { x(5) } }\n"
       "Good ::= ENUMERATED { a, b }\n"
       "Bad ::= ENUMERATED { a, b(5) }\n"
       "Syn ::= Bad\n");
  // Items that stand in place are not looked at.
  EXPECT_EQ(answersFor(answer), "yes no no yes ");
  TestType synonym(module, type("Syn"));
  EXPECT_FALSE(checkEnumerated(*synonym));
}

constexpr char twoModules[] =
    "M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
    "IMPORTS Good, Bad, More FROM N;\n"
    "S ::= SEQUENCE { a Good, b Bad, c More }\n"
    "Syn ::= Bad\nFar ::= More\n"
    "END\n"
    "N DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
    "Good ::= ENUMERATED { a, b }\n"
    "Bad ::= ENUMERATED { a, b(5) }\n"
    "More ::= ENUMERATED { a(3), b(4), ..., c(9), d(7) }\n"
    "END\n";

TEST_F(PerEnumName, PositionsInAnotherModule)
{
  loadModules(twoModules);
  EXPECT_EQ(answersFor(answer), "yes no no ");
}

TEST_F(PerEnumName, DefinitionsOverTheModuleBorder)
{
  loadModules(twoModules);
  TestType synonym(module, type("Syn")), far(module, type("Far"));
  EXPECT_FALSE(checkEnumerated(*synonym));
  EXPECT_EQ(describe(*far), "<XEnum_cwn_al_le255> 1: 3..4, 9, 1");
}

// There is no function for a home of 64 bits, but what the walk found is told.
TEST_F(PerEnumName, AdditionWithoutFunction)
{
  load("T ::= ENUMERATED { a, ..., b(7) } --$ field=i64\n");
  TestType view(module, type("T"));
  std::string text;
  int kind = 0, bits = 0;
  int32_t lower = 0, upper = 0, addLower = 0;
  EXPECT_EQ(perEnumeratedFunctionName(text, nullptr, *view, nullptr, kind,
                                      lower, upper, addLower, bits),
            nullptr);
  EXPECT_EQ(addLower, 7);
}

TEST_F(PerEnumName, NotExtensible)
{
  EXPECT_EQ(described("a, b, c }"), "<sint32_cwn_al_le255> 1: 0..2, unset, 0");
  EXPECT_EQ(described("a }"), "<sint32_cwn_al_eq1> 0: 0..0, unset, 0");
  perSetEncodingVariant(VARIANT_UNALIGNED);
  EXPECT_EQ(described("a, b, c }"), "<sint32_cwn_ua> 1: 0..2, unset, 0");
}

TEST_F(PerEnumName, NotExtensibleAndOutOfPosition)
{
  EXPECT_EQ(described("a, b(2) }"), "none 4");
}

TEST_F(PerEnumName, NoFunctionForTheHome)
{
  EXPECT_EQ(described("a, b } --$ field=i64"), "none 1");
  EXPECT_EQ(described("a, b, ... } --$ field=i64"), "none 1");
  perSetEncodingVariant(unknownVariant);
  EXPECT_EQ(described("a, b }"), "none 1");
  EXPECT_EQ(described("a, b, ... }"), "none 1");
}

TEST_F(PerEnumName, Extensible)
{
  EXPECT_EQ(described("a(1), b(2), ..., c(5) }"),
            "<XEnum_cwn_al_le255> 1: 1..2, 5, 1");
  EXPECT_EQ(described("a(9), b(2), c(4), ... }"),
            "<XEnum_cwn_al_le255> 1: 2..9, unset, 3");
  perSetEncodingVariant(VARIANT_UNALIGNED);
  EXPECT_EQ(described("a(1), b(2), ..., c(5) }"),
            "<XEnum_cwn_ua> 1: 1..2, 5, 1");
}

TEST_F(PerEnumName, FirstAdditionInTheOrderOfDefinition)
{
  EXPECT_EQ(described("a, ..., b(7), c(5) }"),
            "<XEnum_cwn_al_le255> 1: 0..0, 7, 0");
}

TEST_F(PerEnumName, TheNameGoesByAllValues)
{
  // 256 values with the addition, 2 bits for the root.
  EXPECT_EQ(described("a, b, c, ..., d(255) }"),
            "<XEnum_cwn_al_eq256> 1: 0..2, 255, 2");
  // The type word of another home has the same length.
  EXPECT_EQ(described("a, ..., b(70000) } --$ field=ui32"),
            "<XEnum_cwn_al_gt64K> 1: 0..0, 70000, 0");
}

TEST_F(PerEnumName, ReferencesAreFollowed)
{
  loadModules(twoModules);
  EXPECT_EQ(answersFor(describeComp),
            "<sint32_cwn_al_le255> 1: 0..1, unset, 0; none 4; "
            "<XEnum_cwn_al_le255> 1: 3..4, 9, 1; ");
  load("S ::= SEQUENCE { a E, b ENUMERATED { x(5), ..., y(6) } }\n"
       "E ::= ENUMERATED { a(3), b(4), ..., c(9), d(7) }\n");
  EXPECT_EQ(answersFor(describeComp), "<XEnum_cwn_al_le255> 1: 3..4, 9, 1; "
                                      "<XEnum_cwn_al_le255> 1: 5..5, 6, 0; ");
}

}  // namespace

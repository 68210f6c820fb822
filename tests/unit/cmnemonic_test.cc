// Names of numbers, and numbers as C constants.

#include "cbet/cmnemonic.h"
#include "cbet/outfile.h"
#include "model/valueiter.h"
#include "support/typetrees.h"

using testing::ExitedWithCode;

static std::string collected;

struct CMnemonic : TypeTrees {
  CMnemonic() { collected.clear(); }

  // Name and #define of each item of a type, the marker included.
  std::string items(int32_t record)
  {
    TestType type(module, record);
    collected.clear();
    forEachNamedNumberExtMark(*type, [](AsnType &of, AsnValue &value, int) {
      std::string text = "old", plain;
      EXPECT_EQ(&cNamedNumberMnemonic(text, "<", of, value, ">"), &text);
      collected += text;
      cNamedNumberMnemonic(plain, nullptr, of, value, nullptr);
      EXPECT_EQ(text, plain.empty() ? "" : "<" + plain + ">");
      cDefineForNamedNumber(text, of, value);
      collected += "|" + text + ";";
    });
    return collected;
  }
  // The same of components, at all levels.
  std::string indices(int32_t record)
  {
    TestType type(module, record);
    collected.clear();
    forEachTypeComp(*type, noteIndex);
    return collected;
  }
  static void noteIndex(AsnType &, AsnType &comp_, int)
  {
    std::string text = "old", plain;
    EXPECT_EQ(&cComponentIndexMnemonic(text, "<", comp_, ">"), &text);
    cComponentIndexMnemonic(plain, nullptr, comp_, nullptr);
    EXPECT_EQ(text, "<" + plain + ">");
    EXPECT_EQ(cDefineForComponentIndex(text, comp_),
              "#define " + plain + " " + std::to_string(comp_.compNbr) + "\n");
    collected += plain + "=" + std::to_string(comp_.compNbr) + " ";
    forEachTypeComp(comp_, noteIndex);
  }
};

TEST_F(CMnemonic, NamedNumbers)
{
  int32_t colour = define("Colour", TYP_ENUM);
  stxAddNamedNumber(tree, colour, "light-red", 0);
  stxAddNamedMarker(tree, colour);
  stxAddNamedNumber(tree, colour, "blue", 7);
  int32_t number = define("Number", TYP_INTEGER);
  stxAddNamedNumber(tree, number, "least", -3);
  int32_t bits = define("Bits", TYP_BITSTR);
  stxAddNamedNumber(tree, bits, "top", 2);
  start();
  EXPECT_EQ(items(colour), "<light_red_Colour>|#define light_red_Colour 0;"
                           "|;"
                           "<blue_Colour>|#define blue_Colour 7;");
  EXPECT_EQ(items(number), "<least_Number>|#define least_Number -3;");
  EXPECT_EQ(items(bits), "<top_Bits>|#define top_Bits 2;");
}

TEST_F(CMnemonic, InlineTypeOfNamedNumbers)
{
  int32_t father = define("S", TYP_SEQ);
  int32_t colour = comp(father, "a", TYP_ENUM);
  stxAddNamedNumber(tree, colour, "red", 1);
  start();
  TestType type(module, father);
  forEachTypeComp(*type, [](AsnType &, AsnType &comp_, int) {
    forEachNamedNumber(comp_, [](AsnType &of, AsnValue &value, int) {
      std::string text;
      EXPECT_EQ(cNamedNumberMnemonic(text, nullptr, of, value, nullptr),
                "red_a_S");
    });
  });
}

// Of the first item of an enumeration, with something changed.
static void mnemonicOf(AsnType &type, void (*change)(AsnType &, AsnValue &))
{
  static void (*apply)(AsnType &, AsnValue &);
  apply = change;
  forEachNamedNumber(type, [](AsnType &of, AsnValue &value, int) {
    std::string text;
    apply(of, value);
    cNamedNumberMnemonic(text, nullptr, of, value, nullptr);
  });
}

TEST_F(CMnemonic, InvalidNamedNumbers)
{
  int32_t colour = define("Colour", TYP_ENUM);
  stxAddNamedNumber(tree, colour, "red", 0);
  start();
  TestType type(module, colour);
  void (*const changes[])(AsnType &, AsnValue &) = {
      [](AsnType &, AsnValue &value) { value.compStatus = 2; },
      [](AsnType &, AsnValue &value) { value.base.mainType = TYP_BOOLEAN; },
      [](AsnType &, AsnValue &value) { value.base.mainType = TYP_REAL; },
      [](AsnType &of, AsnValue &) { of.base.mainType = TYP_REAL; },
      [](AsnType &of, AsnValue &) { of.base.mainType = TYP_OCTSTR; },
  };
  for (auto change : changes)
    EXPECT_EXIT(mnemonicOf(*type, change), ExitedWithCode(2),
                "Internal error\n +CBET: Invalid value for a #define for a "
                "named number/bit\\.\n");
}

TEST_F(CMnemonic, ValidKinds)
{
  int32_t colour = define("Colour", TYP_ENUM);
  stxAddNamedNumber(tree, colour, "red", 0);
  start();
  TestType type(module, colour);
  // A status of 1 and either kind of number.
  mnemonicOf(*type, [](AsnType &of, AsnValue &value) {
    std::string text;
    for (int32_t status : {0, 1})
      for (int kind : {+TYP_INTEGER, +TYP_ENUM}) {
        value.compStatus = status;
        value.base.mainType = static_cast<uint8_t>(kind);
        cNamedNumberMnemonic(text, nullptr, of, value, nullptr);
        EXPECT_EQ(text, "red_Colour");
      }
  });
}

// --- component indices ------------------------------------------------------

TEST_F(CMnemonic, Components)
{
  int32_t foo = define("Foo", TYP_SEQ);
  comp(foo, "a-x", TYP_NULL);
  marker(foo);
  int32_t b = comp(foo, "b", TYP_CHOICE, TCS_OPTIONAL);
  comp(b, "c", stxNewSynonym(integer));
  marker(b);
  start();
  EXPECT_EQ(indices(foo), "a_x_Foo=0 extensionmarker_Foo=1 b_Foo=2 "
                          "c_Foo=0 extensionmarker_b_Foo=1 ");
}

TEST_F(CMnemonic, ComponentWithoutANamedFather)
{
  start();
  FixRec own, outermost;
  own.id = "own";
  own.idLen = 3;
  outermost.id = "Out";
  outermost.idLen = 3;
  AsnType outer, inner, type;
  outer.baseFix = outermost;
  type.compFix = own;
  type.father = &inner;
  inner.father = &outer;
  std::string text;
  EXPECT_EQ(cComponentIndexMnemonic(text, nullptr, type, nullptr), "own_Out");
}

TEST_F(CMnemonic, NoComponent)
{
  int32_t list = define("L", TYP_SEQOF);
  comp(list, "", TYP_NULL);
  start();
  static const char text[] =
      "Internal error\n +CBET: Invalid type for a component index\\.\n";
  EXPECT_EXIT(
      {
        TestType type(module, list);
        std::string name;
        cComponentIndexMnemonic(name, nullptr, *type, nullptr);
      },
      ExitedWithCode(2), text);
  EXPECT_EXIT(
      {
        TestType type(module, list);
        forTypeElem(*type, [](AsnType &, AsnType &elem) {
          std::string name;
          cDefineForComponentIndex(name, elem);
        });
      },
      ExitedWithCode(2), text);
}

// --- numbers ----------------------------------------------------------------

static std::string in64(sint64 value)
{
  std::string text = "old";
  return cIntegerValue64(text, value);
}

static std::string in32(sint64 value, int format)
{
  std::string text = "old";
  return cIntegerValue32(text, value, format);
}

TEST(CIntegerValue64, Texts)
{
  EXPECT_EQ(in64(i64max()), "i64max ()");
  EXPECT_EQ(in64(i64min()), "i64min ()");
  EXPECT_EQ(in64(stxInt64(0)), "i64ltosint64 (0L)");
  EXPECT_EQ(in64(stxInt64(-1)), "i64ltosint64 (-1L)");
  EXPECT_EQ(in64(stxInt64(2147483647)), "i64ltosint64 (2147483647L)");
  EXPECT_EQ(in64(stxInt64(-2147483648)), "i64ltosint64 (-2147483648L)");
  EXPECT_EQ(in64(stxInt64(2147483648)), "i64make (0L, 2147483648UL)");
  EXPECT_EQ(in64(stxInt64(-2147483649)), "i64make (-1L, 2147483647UL)");
  EXPECT_EQ(in64(stxInt64(4294967296)), "i64make (1L, 0UL)");
  EXPECT_EQ(in64(stxInt64(INT64_MAX - 1)),
            "i64make (2147483647L, 4294967294UL)");
}

TEST(CIntegerValue32, Texts)
{
  EXPECT_EQ(in32(stxInt64(-2147483648), VF_I32), "-2147483648");
  EXPECT_EQ(in32(stxInt64(2147483647), VF_UI32), "2147483647");
  EXPECT_EQ(in32(stxInt64(2147483648), VF_UI32), "2147483648UL");
  EXPECT_EQ(in32(stxInt64(4294967295), VF_UI32), "4294967295UL");
  EXPECT_EQ(in32(stxInt64(2147483648), VF_I32), "2147483648");
  EXPECT_EQ(in32(stxInt64(200), VF_UI8), "200");
}

TEST(CIntegerValue32, Infinities)
{
  EXPECT_EQ(in32(i64max(), VF_I32), "LONG_MAX");
  EXPECT_EQ(in32(i64max(), VF_UI32), "ULONG_MAX");
  EXPECT_EQ(in32(i64min(), VF_I32), "LONG_MIN");
  for (int format : {0, 2, 3, 6, 7, 10, 24})
    EXPECT_EXIT(in32(i64max(), format), ExitedWithCode(2),
                "Internal error\n +CBET: Plus-infinity found as a non-long C "
                "type\n");
  for (int format : {0, 2, 3, 4, 6, 7})
    EXPECT_EXIT(in32(i64min(), format), ExitedWithCode(2),
                "Internal error\n +CBET: Minus-infinity found as a non-long C "
                "type\n");
}

TEST(CInt64, ByTheFormat)
{
  std::string text = "old";
  for (int format : {+VF_I64, +VF_UI64}) {
    EXPECT_EQ(&cInt64(text, "<", stxInt64(5), format, ">"), &text);
    EXPECT_EQ(text, "<i64ltosint64 (5L)>");
    EXPECT_EQ(cInt64(text, nullptr, i64max(), format, nullptr), "i64max ()");
  }
  for (int format : {+VF_UI8, +VF_UI32, +VF_I32, +VF_NONE})
    EXPECT_EQ(cInt64(text, "<", stxInt64(5), format, ">"), "<5>");
}

struct CMnemonicFile : CMnemonic {
  ~CMnemonicFile() override { clearOutFiles(); }
  template <class F>
  std::string written(F write)
  {
    clearOutFiles();
    openNamedF(1, dir.path.c_str(), "out.c");
    putToF(1, std::string(70, 'x').c_str());
    write();
    closeF(1);
    return readFile(dir.path + "out.c").substr(70);
  }
};

// A text that goes out as one piece moves to the next line whole.
TEST_F(CMnemonicFile, WrittenAsOneText)
{
  EXPECT_EQ(written([] { cInt64ToF(1, " a", stxInt64(5), VF_I64, ";\n"); }),
            "\n  ai64ltosint64 (5L);\n");
  EXPECT_EQ(written([] { cInt64ToF(1, " ", stxInt64(5), VF_I8, ";"); }), " 5;");
}

TEST_F(CMnemonicFile, Values)
{
  int32_t big = define("Big", stxNewTNode(TYP_INTEGER, VF_I64));
  int32_t number = stxValue(tree, stxNewInteger(big, 5));
  int32_t small = define("Small", stxNewTNode(TYP_INTEGER, VF_UI32));
  int32_t positive = stxValue(tree, stxNewInteger(small, 4000000000));
  start();
  auto view = [&](int32_t index) {
    readRec(module.rec, REC_VNODE, index);
    AsnValue *value_ = newAsnValue(&module, &module);
    getValuePath(nullptr, *value_, FIX_VALUE);
    return value_;
  };
  AsnValue *first = view(number), *second = view(positive);
  std::string text = "old";
  EXPECT_EQ(&cIntegerValue(text, "<", *first, ">"), &text);
  EXPECT_EQ(text, "<i64ltosint64 (5L)>");
  EXPECT_EQ(cIntegerValue(text, nullptr, *second, nullptr), "4000000000UL");
  EXPECT_EQ(written([&] { cIntegerValueToF(1, " a", *first, ";"); }),
            "\n  ai64ltosint64 (5L);");
  delAsnValue(first);
  delAsnValue(second);
}

TEST_F(CMnemonic, InfinityHasNoFormat)
{
  start();
  VNode endpoint = stxNewInteger(0, INT64_MAX);
  AsnValue *infinite = newAsnValue(&module, &module);
  initInfinityValue(*infinite, endpoint);
  std::string text;
  EXPECT_EXIT(cIntegerValue(text, nullptr, *infinite, nullptr),
              ExitedWithCode(2), "Plus-infinity found as a non-long C type");
  delAsnValue(infinite);
}

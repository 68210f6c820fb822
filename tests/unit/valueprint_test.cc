// Writers of values.

#include "cbet/outfile.h"
#include "cbet/valueprint.h"
#include "support/valueviews.h"

struct ValuePrint : ValueViews {
  static constexpr int file = 3;

  ~ValuePrint() override
  {
    if (fArr[file].fp)
      fclose(fArr[file].fp);
    clearOutFiles();
  }

  AsnValue &made(int mainType, const VNode &node)
  {
    int32_t index = valueOf(mainType, node);
    start();
    return view(index);
  }
  // What `write` leaves in the file, behind `before`.
  template <class F>
  std::string written(const std::string &before, F write)
  {
    clearOutFiles();
    openNamedF(file, dir.path.c_str(), "out");
    putToF(file, before.c_str());
    write();
    fclose(fArr[file].fp);
    fArr[file].fp = nullptr;
    return readFile(dir.path + "out").substr(before.size());
  }
};

TEST_F(ValuePrint, SameTextsAsTheBuilders)
{
  VNode boolean = stxNewVNode(TYP_BOOLEAN, 0);
  AsnValue &flag = made(TYP_BOOLEAN, boolean);
  EXPECT_EQ(written("", [&] { printBooleanValueToF(file, "<", flag, ">"); }),
            "<FALSE>");
  AsnValue &number = made(TYP_INTEGER, stxNewInteger(0, -4));
  EXPECT_EQ(written("", [&] { printIntegerValueToF(file, "<", number, ">"); }),
            "<-4>");
  VNode real = stxNewVNode(TYP_REAL, 0);
  setPayloadReal(real, stxInt64(1), 10, 2);
  AsnValue &value = made(TYP_REAL, real);
  EXPECT_EQ(written("", [&] { printRealValueToF(file, "<", value, ">"); }),
            "<{1, 10, 2}>");
  EXPECT_EQ(
      written("", [&] { printDoubleRealValueToF(file, "<", value, ">"); }),
      "<1.000000000E2>");
}

TEST_F(ValuePrint, NullsAreEmpty)
{
  AsnValue &number = made(TYP_INTEGER, stxNewInteger(0, 9));
  EXPECT_EQ(
      written("",
              [&] { printIntegerValueToF(file, nullptr, number, nullptr); }),
      "9");
}

TEST_F(ValuePrint, ObjectIdentifier)
{
  int32_t index = valueOf(TYP_OBJID, stxNewVNode(TYP_OBJID, 0));
  stxAddChild(a, index, "", stxNewInteger(0, 1));
  stxAddChild(a, index, "", stxNewInteger(0, 3));
  start();
  AsnValue &value = view(index);
  EXPECT_EQ(written("",
                    [&] {
                      printObjectIdentifierValueToF(file, "{", value, ",", "(",
                                                    ")", "}");
                    }),
            "{1(iso),3(identified-organization)}");
}

TEST_F(ValuePrint, CharacterStrings)
{
  AsnValue &text = made(TYP_IA5STR, leaf8(a, TYP_IA5STR, "50%d"));
  EXPECT_EQ(
      written("", [&] { printCharacterStringValueToF(file, "<", text, ">"); }),
      "<50%d>");
  EXPECT_EQ(
      written("", [&] { putCharacterStringValueToF(file, "<", text, ">"); }),
      "<50%d>");
}

// At column 78 a break falls ahead of the whole text, if it may.
TEST_F(ValuePrint, OneTextAndItsBreak)
{
  AsnValue &text = made(TYP_IA5STR, leaf8(a, TYP_IA5STR, "abc"));
  std::string before(77, 'x');
  std::string broken = written(
      before, [&] { printCharacterStringValueToF(file, "<", text, ">"); });
  EXPECT_EQ(broken.find("<abc>"), broken.size() - 5);
  EXPECT_EQ(broken.front(), '\n');
  EXPECT_EQ(written(before,
                    [&] { putCharacterStringValueToF(file, "<", text, ">"); }),
            "<abc>");
}

TEST_F(ValuePrint, NoFile)
{
  AsnValue &number = made(TYP_INTEGER, stxNewInteger(0, 9));
  printIntegerValueToF(0, "<", number, ">");
  putCharacterStringValueToF(0, "<", number, ">");
  EXPECT_EQ(columnsInF(0), 0);
}

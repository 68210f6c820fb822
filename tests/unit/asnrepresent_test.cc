#include "asn2stx/represent.h"
#include "support/asncompile.h"
#include <gtest/gtest.h>

static const TNode &defOf(const StxTree &tree, const std::string &name)
{
  return tree.tNodes.at(static_cast<size_t>(typeNamed(tree, name)) - 1);
}

struct FieldCase {
  const char *type;
  int field;
  int size;
};

// Compiles "A ::= TYPE" under the options and compares both codes.
static void expectField(const FieldCase &row, const Asn2StxOptions &options)
{
  AsnCompiled compiled = compileBody(
      std::string("A ::= ") + row.type + "\nB ::= INTEGER", options);
  const TNode &node = defOf(treeOf(compiled), "A");
  EXPECT_EQ(node.valueField, row.field) << row.type;
  EXPECT_EQ(node.valueFieldSize, row.size) << row.type;
}

template <size_t n>
static void expectFields(const FieldCase (&rows)[n],
                         const Asn2StxOptions &options = {})
{
  for (const FieldCase &row : rows)
    expectField(row, options);
}

static bool hasOption(const std::string &type, int bit,
                      const Asn2StxOptions &options)
{
  AsnCompiled compiled = compileBody("A ::= " + type, options);
  return defOf(treeOf(compiled), "A").nodeOptions & (1u << bit);
}

// --- numbers ----------------------------------------------------------------

static const FieldCase integerCases[] = {
    {"INTEGER", VF_I32, 0},
    {"INTEGER (MIN..MAX)", VF_I32, 0},
    {"INTEGER (0..255)", VF_UI8, 0},
    {"INTEGER (0..256)", VF_UI16, 0},
    {"INTEGER (0..65535)", VF_UI16, 0},
    {"INTEGER (0..65536)", VF_UI32, 0},
    {"INTEGER (0..4294967295)", VF_UI32, 0},
    {"INTEGER (0..4294967296)", VF_UI64, 0},
    {"INTEGER (0..MAX)", VF_UI32, 0},
    {"INTEGER (0..9223372036854775807)", VF_UI64, 0},
    {"INTEGER (0..18446744073709551615)", VF_UI64, 0},
    {"INTEGER (0..18446744073709551615, ...)", VF_UI64, 0},
    {"INTEGER (1 | 7..18446744073709551615)", VF_UI64, 0},
    {"INTEGER (-1..18446744073709551615)", VF_I64, 0},
    {"INTEGER (-9223372036854775808..0)", VF_I64, 0},
    {"INTEGER (-9223372036854775809..0)", VF_I64, 0},
    {"INTEGER (MIN..9223372036854775807)", VF_I64, 0},
    {"INTEGER (0..18446744073709551615) (0..9)", VF_UI8, 0},
    {"INTEGER (0)", VF_UI8, 0},
    {"INTEGER (-1..127)", VF_I8, 0},
    {"INTEGER (-128..0)", VF_I8, 0},
    {"INTEGER (-129..0)", VF_I16, 0},
    {"INTEGER (-1..128)", VF_I16, 0},
    {"INTEGER (-32768..32767)", VF_I16, 0},
    {"INTEGER (-32769..0)", VF_I32, 0},
    {"INTEGER (-1..32768)", VF_I32, 0},
    {"INTEGER (-2147483648..2147483647)", VF_I32, 0},
    {"INTEGER (-2147483649..0)", VF_I64, 0},
    {"INTEGER (-1..2147483648)", VF_I64, 0},
};

TEST(AsnRepresent, IntegerByBounds)
{
  expectFields(integerCases);
}

// An open end is 2^31 - 1, 2^32 - 1 of unsigned numbers, or -2^31; a written
// bound beyond that needs 64 bits.
TEST(AsnRepresent, IntegerWithOpenEnd)
{
  static const FieldCase cases[] = {
      {"INTEGER (0..MAX)", VF_UI32, 0},
      {"INTEGER (-1..MAX)", VF_I32, 0},
      {"INTEGER (MIN..0)", VF_I32, 0},
      {"INTEGER (MIN..2147483647)", VF_I32, 0},
      {"INTEGER (MIN..2147483648)", VF_I64, 0},
      {"INTEGER (4294967295..MAX)", VF_UI32, 0},
      {"INTEGER (4294967296..MAX)", VF_UI64, 0},
      {"INTEGER (-2147483649..MAX)", VF_I64, 0},
      {"INTEGER (MIN..-2147483649)", VF_I64, 0},
  };
  expectFields(cases);
}

TEST(AsnRepresent, IntegerByOption)
{
  Asn2StxOptions options;
  options.catalogue.intSize = VF_UI16;
  static const FieldCase cases[] = {
      {"INTEGER", VF_UI16, 0},
      {"INTEGER (0..1)", VF_UI16, 0},
      {"INTEGER (-1..70000)", VF_UI16, 0},
      {"BOOLEAN", VF_BOOL, 0},
      {"OCTET STRING (SIZE (0..1))", VF_STAS8, VF_I8},
  };
  expectFields(cases, options);
}

TEST(AsnRepresent, EnumeratedByItems)
{
  static const FieldCase cases[] = {
      {"ENUMERATED { a, b }", VF_UI8, 0},
      {"ENUMERATED { a (255) }", VF_UI8, 0},
      {"ENUMERATED { a (256) }", VF_UI16, 0},
      {"ENUMERATED { a (-1) }", VF_I8, 0},
      {"ENUMERATED { a (-1), b (128) }", VF_I16, 0},
      {"ENUMERATED { a (65536) }", VF_UI32, 0},
      {"ENUMERATED { a, ... }", VF_UI8, 0},
      {"ENUMERATED { a, ..., b (300) }", VF_UI16, 0},
  };
  expectFields(cases);
}

TEST(AsnRepresent, Real)
{
  expectField({"REAL", VF_REAL64, 0}, {});
  Asn2StxOptions options;
  options.catalogue.realSize = VF_REAL32;
  expectField({"REAL", VF_REAL32, 0}, options);
  expectField({"INTEGER", VF_I32, 0}, options);
}

// --- kinds with one representation ------------------------------------------

TEST(AsnRepresent, OneFieldForAKind)
{
  static const FieldCase cases[] = {
      {"BOOLEAN", VF_BOOL, 0},
      {"NULL", VF_NULL, 0},
      {"ANY", VF_ANY, 0},
      {"EMBEDDED PDV", VF_EMB_PDV, 0},
      {"OBJECT IDENTIFIER", VF_OBJI, 0},
      {"EXTERNAL", VF_EXTERNAL_1990, 0},
      {"GeneralizedTime", VF_COMT, 0},
      {"UTCTime", VF_COMT, 0},
  };
  expectFields(cases);
}

TEST(AsnRepresent, OpenType)
{
  AsnCompiled compiled = compileBody("A ::= INSTANCE OF TYPE-IDENTIFIER");
  StxTree &tree = treeOf(compiled);
  const TNode &value = stxTypeAt(tree, compsOf(tree, 1).back());
  ASSERT_EQ(value.mainType, TYP_OPEN);
  EXPECT_EQ(value.valueField, VF_OPEN);
  EXPECT_EQ(value.valueFieldSize, 0);
}

TEST(AsnRepresent, ReferencesAndMarkersHaveNone)
{
  AsnCompiled compiled =
      compileBody("A ::= B\nB ::= INTEGER (0..7)\nS ::= SEQUENCE { b B, ... }");
  StxTree &tree = treeOf(compiled);
  EXPECT_EQ(defOf(tree, "A").valueField, VF_NONE);
  EXPECT_EQ(defOf(tree, "A").valueFieldSize, 0);
  for (int32_t comp : compsOf(tree, typeNamed(tree, "S")))
    EXPECT_EQ(stxTypeAt(tree, comp).valueField, VF_NONE);
  EXPECT_EQ(defOf(tree, "B").valueField, VF_UI8);
}

// --- strings ----------------------------------------------------------------

TEST(AsnRepresent, StringByUpperBound)
{
  static const FieldCase cases[] = {
      {"OCTET STRING", VF_DYNS, VF_I32},
      {"OCTET STRING (SIZE (1..MAX))", VF_DYNS, VF_I32},
      {"OCTET STRING (SIZE (0..127))", VF_STAS8, VF_I8},
      {"OCTET STRING (SIZE (0..128))", VF_STAS16, VF_I16},
      {"OCTET STRING (SIZE (1..4096))", VF_STAS16, VF_I16},
      {"OCTET STRING (SIZE (1..4097))", VF_DYNS16, VF_I16},
      {"OCTET STRING (SIZE (1..16384))", VF_DYNS16, VF_I16},
      {"OCTET STRING (SIZE (1..16385))", VF_LIST, VF_I16},
      {"OCTET STRING (SIZE (1..32767))", VF_LIST, VF_I16},
      {"OCTET STRING (SIZE (1..32768))", VF_LIST, VF_I32},
  };
  expectFields(cases);
}

TEST(AsnRepresent, FixedStringsHaveNoCount)
{
  static const FieldCase cases[] = {
      {"OCTET STRING (SIZE (0))", VF_STAS0, 0},
      {"OCTET STRING (SIZE (4096))", VF_STAS0, 0},
      {"OCTET STRING (SIZE (4097))", VF_DYNS0, 0},
      {"BIT STRING (SIZE (8))", VF_STAS0, 0},
      {"IA5String (SIZE (3))", VF_STAS0, 0},
  };
  expectFields(cases);
}

TEST(AsnRepresent, AllKindsOfStrings)
{
  for (const char *kind :
       {"BIT STRING", "OCTET STRING", "NumericString", "PrintableString",
        "TeletexString", "VideotexString", "VisibleString", "IA5String",
        "GraphicString", "GeneralString", "UniversalString"}) {
    std::string sized = std::string(kind) + " (SIZE (1..9))";
    expectField({sized.c_str(), VF_STAS8, VF_I8}, {});
    expectField({kind, VF_DYNS, VF_I32}, {});
  }
  expectField({"ObjectDescriptor", VF_DYNS, VF_I32}, {});
}

TEST(AsnRepresent, BmpStringsHaveARowOfTheirOwn)
{
  static const FieldCase cases[] = {
      {"BMPString", VF_BMPSTR, VF_I32},
      {"BMPString (SIZE (2))", VF_BMPSTR0, 0},
      {"BMPString (SIZE (20000))", VF_BMPSTR0, 0},
      {"BMPString (SIZE (0..127))", VF_BMPSTR8, VF_I8},
      {"BMPString (SIZE (0..128))", VF_BMPSTR16, VF_I16},
      {"BMPString (SIZE (0..20000))", VF_BMPSTR16, VF_I16},
      {"BMPString (SIZE (0..32768))", VF_BMPSTR, VF_I32},
  };
  expectFields(cases);
}

TEST(AsnRepresent, LimitsOfStrings)
{
  Asn2StxOptions options;
  options.catalogue.dynStrLim = 10;
  options.catalogue.segStrLim = 20;
  static const FieldCase cases[] = {
      {"OCTET STRING (SIZE (0..10))", VF_STAS8, VF_I8},
      {"OCTET STRING (SIZE (0..11))", VF_DYNS8, VF_I8},
      {"OCTET STRING (SIZE (11))", VF_DYNS0, 0},
      {"OCTET STRING (SIZE (0..20))", VF_DYNS8, VF_I8},
      {"OCTET STRING (SIZE (0..21))", VF_LIST, VF_I8},
      {"OCTET STRING", VF_DYNS, VF_I32},
      {"BMPString (SIZE (0..21))", VF_BMPSTR8, VF_I8},
  };
  expectFields(cases, options);
}

TEST(AsnRepresent, CountByOption)
{
  Asn2StxOptions options;
  options.catalogue.nSize = VF_I16;
  static const FieldCase cases[] = {
      {"OCTET STRING (SIZE (0..7))", VF_STAS16, VF_I16},
      {"OCTET STRING", VF_DYNS16, VF_I16},
      {"OCTET STRING (SIZE (7))", VF_STAS0, 0},
      {"BMPString (SIZE (0..7))", VF_BMPSTR16, VF_I16},
      {"SEQUENCE (SIZE (0..7)) OF NULL", VF_STRU, VF_I16},
      {"SET OF NULL", VF_LIST, VF_I16},
      {"INTEGER (0..7)", VF_UI8, 0},
  };
  expectFields(cases, options);
}

// --- lists ------------------------------------------------------------------

TEST(AsnRepresent, ListByUpperBound)
{
  static const FieldCase cases[] = {
      {"SEQUENCE OF NULL", VF_LIST, VF_I32},
      {"SET (SIZE (2..MAX)) OF NULL", VF_LIST, VF_I32},
      {"SEQUENCE (SIZE (0..127)) OF NULL", VF_STRU, VF_I8},
      {"SEQUENCE (SIZE (0..128)) OF NULL", VF_STRU, VF_I16},
      {"SET (SIZE (0..4096)) OF NULL", VF_STRU, VF_I16},
      {"SET (SIZE (0..4097)) OF NULL", VF_LIST, VF_I16},
      {"SEQUENCE (SIZE (0..32768)) OF NULL", VF_LIST, VF_I32},
  };
  expectFields(cases);
}

TEST(AsnRepresent, LinkedListsAreHomeLists)
{
  EXPECT_TRUE(hasOption("SEQUENCE OF NULL", optHomeList, {}));
  EXPECT_TRUE(hasOption("SET (SIZE (0..4097)) OF NULL", optHomeList, {}));
  EXPECT_FALSE(hasOption("SET (SIZE (0..4096)) OF NULL", optHomeList, {}));
}

TEST(AsnRepresent, LimitsOfLists)
{
  Asn2StxOptions options;
  options.catalogue.dynListLim = 4;
  options.catalogue.segListLim = 20;
  static const FieldCase cases[] = {
      {"SEQUENCE (SIZE (0..4)) OF NULL", VF_STRU, VF_I8},
      {"SEQUENCE (SIZE (0..5)) OF NULL", VF_LIST, VF_I8},
      {"SEQUENCE (SIZE (0..21)) OF NULL", VF_LIST, VF_I8},
  };
  expectFields(cases, options);
  // A list beyond SEGLISTLIM is linked even if DYNLISTLIM is above it.
  options.catalogue.dynListLim = 100;
  expectField({"SET (SIZE (0..20)) OF NULL", VF_STRU, VF_I8}, options);
  expectField({"SET (SIZE (0..21)) OF NULL", VF_LIST, VF_I8}, options);
}

TEST(AsnRepresent, DynamicArrays)
{
  Asn2StxOptions options;
  options.catalogue.dynListLim = 4;
  options.catalogue.dynArrLim = 6;
  options.catalogue.segListLim = 20;
  static const FieldCase cases[] = {
      {"SEQUENCE (SIZE (0..6)) OF NULL", VF_STRU, VF_I8},
      {"SEQUENCE (SIZE (0..7)) OF NULL", VF_STRU, VF_I8},
      {"SEQUENCE (SIZE (0..20)) OF NULL", VF_STRU, VF_I8},
      {"SEQUENCE (SIZE (0..21)) OF NULL", VF_LIST, VF_I8},
      {"SEQUENCE OF NULL", VF_LIST, VF_I32},
  };
  expectFields(cases, options);
  auto isDynamic = [&](const char *type) {
    return hasOption(type, optDynamicArray, options);
  };
  EXPECT_FALSE(isDynamic("SEQUENCE (SIZE (0..6)) OF NULL"));
  EXPECT_TRUE(isDynamic("SEQUENCE (SIZE (0..7)) OF NULL"));
  EXPECT_TRUE(isDynamic("SEQUENCE (SIZE (0..20)) OF NULL"));
  EXPECT_FALSE(isDynamic("SEQUENCE (SIZE (0..21)) OF NULL"));
}

// --- structures -------------------------------------------------------------

// "KIND { c1 TYPE, c2 TYPE, ... }".
static std::string structure(const char *kind, int count, const char *type)
{
  std::string text = std::string(kind) + " { ";
  for (int i = 1; i <= count; ++i)
    text += (i > 1 ? ", c" : "c") + std::to_string(i) + " " + type;
  return text + " }";
}

TEST(AsnRepresent, MasksByComponents)
{
  struct MaskCase {
    int count;
    int size;
  };
  static const MaskCase cases[] = {{1, VF_I8},   {8, VF_I8},   {9, VF_I16},
                                   {16, VF_I16}, {17, VF_I32}, {33, VF_I32}};
  for (const MaskCase &row : cases) {
    std::string optional = structure("SEQUENCE", row.count, "NULL OPTIONAL");
    expectField({optional.c_str(), VF_STRU, row.size}, {});
    std::string plain = structure("SEQUENCE", row.count, "NULL");
    expectField({plain.c_str(), VF_STRU, 0}, {});
    std::string set = structure("SET", row.count, "NULL");
    expectField({set.c_str(), VF_STRU, row.size}, {});
  }
}

TEST(AsnRepresent, MaskByOption)
{
  Asn2StxOptions options;
  options.catalogue.compMaskSize = VF_I32;
  static const FieldCase cases[] = {
      {"SEQUENCE { a NULL OPTIONAL }", VF_STRU, VF_I32},
      {"SET { a NULL }", VF_STRU, VF_I32},
      {"SEQUENCE { a NULL }", VF_STRU, 0},
      {"CHOICE { a NULL }", VF_STRU, VF_I8},
  };
  expectFields(cases, options);
}

TEST(AsnRepresent, ChoiceByAlternatives)
{
  struct ChoiceCase {
    int count;
    int size;
  };
  for (const ChoiceCase &row :
       {ChoiceCase{1, VF_I8}, {127, VF_I8}, {128, VF_I16}}) {
    std::string text = structure("CHOICE", row.count, "NULL");
    expectField({text.c_str(), VF_STRU, row.size}, {});
  }
  Asn2StxOptions options;
  options.catalogue.choiceSize = VF_I16;
  expectField({"CHOICE { a NULL }", VF_STRU, VF_I16}, options);
  expectField({"SET { a NULL }", VF_STRU, VF_I8}, options);
}

// --- entries ----------------------------------------------------------------

TEST(AsnRepresent, EntriesAreDefinitionsOfThatName)
{
  Asn2StxOptions options;
  options.entries = {{"My-Type", 1}, {"Other", 2}, {"missing", 0}};
  AsnCompiled compiled = compileBody("My-Type ::= SEQUENCE { other NULL }\n"
                                     "Other ::= My-Type\n"
                                     "Third ::= NULL",
                                     options);
  StxTree &tree = treeOf(compiled);
  const TNode &mine = stxTypeAt(tree, tree.header.firstType);
  EXPECT_EQ(mine.entryFlags, entryOfBoth);
  EXPECT_EQ(mine.entryCategory, 1);
  EXPECT_EQ(defOf(tree, "Other").entryFlags, entryOfBoth);
  EXPECT_EQ(defOf(tree, "Other").entryCategory, 2);
  EXPECT_EQ(defOf(tree, "Third").entryFlags, 0);
  EXPECT_EQ(stxTypeAt(tree, mine.ref).entryFlags, 0);
  EXPECT_EQ(tree.header.nrEntryTypes, 2);
}

TEST(AsnRepresent, WideEndsElsewhere)
{
  AsnCompiled compiled = compileBody(
      "W ::= INTEGER (0..18446744073709551615)\n"
      "Contained ::= INTEGER (W)\n"
      "S INTEGER ::= { 0..18446744073709551615 }\n"
      "FromSet ::= INTEGER (S)\n"
      "Named ::= INTEGER (0..top)\ntop INTEGER ::= 9223372036854775807\n"
      "P {INTEGER:max} ::= INTEGER (0..max)\n"
      "Inst ::= P {18446744073709551615}\nSmall ::= P {7}\n"
      "Q ::= SEQUENCE { a INTEGER } (WITH COMPONENTS {\n"
      "  a (0..18446744073709551615) })\n"
      "O ::= OCTET STRING (SIZE (0..18446744073709551615))");
  const StxTree &tree = treeOf(compiled);
  for (const char *name : {"W", "Contained", "S", "FromSet", "Named"})
    EXPECT_EQ(defOf(tree, name).valueField, VF_UI64) << name;
  auto copyOf = [&](const char *name) -> const TNode & {
    return tree.tNodes.at(static_cast<size_t>(defOf(tree, name).ref) - 1);
  };
  EXPECT_EQ(copyOf("Inst").valueField, VF_UI64);
  EXPECT_EQ(copyOf("Small").valueField, VF_UI8);
  // An inner constraint changes no component, a size no number.
  EXPECT_EQ(copyOf("Q").valueField, VF_I32);
  EXPECT_EQ(defOf(tree, "O").valueField, VF_DYNS);
}

// The tables of codes, row by row as the tree format lists them.

#include "store/codes.h"
#include <climits>
#include <gtest/gtest.h>
#include <iterator>

struct ExpectedTypeRow {
  int code;
  int enumerator;
  const char *name;
  const char *asnName;
  int tag;
  bool constructed;
};

static const ExpectedTypeRow expectedTypes[] = {
    {0, TYP_BOOLEAN, "TYP_BOOLEAN", "BOOLEAN", 1, false},
    {1, TYP_INTEGER, "TYP_INTEGER", "INTEGER", 2, false},
    {2, TYP_ENUM, "TYP_ENUM", "ENUMERATED", 10, false},
    {3, TYP_REAL, "TYP_REAL", "REAL", 9, false},
    {4, TYP_BITSTR, "TYP_BITSTR", "BIT STRING", 3, false},
    {5, TYP_OCTSTR, "TYP_OCTSTR", "OCTET STRING", 4, false},
    {6, TYP_NULL, "TYP_NULL", "NULL", 5, false},
    {7, TYP_SEQ, "TYP_SEQ", "SEQUENCE", 16, true},
    {8, TYP_SEQOF, "TYP_SEQOF", "SEQUENCE OF", 16, true},
    {9, TYP_SET, "TYP_SET", "SET", 17, true},
    {10, TYP_SETOF, "TYP_SETOF", "SET OF", 17, true},
    {11, TYP_CHOICE, "TYP_CHOICE", "CHOICE", -2, true},
    {12, TYP_ANY, "TYP_ANY", "ANY", -3, false},
    {13, TYP_EMB_PDV, "TYP_EMB_PDV", "EMBEDDED PDV", 11, false},
    {14, TYP_OBJID, "TYP_OBJID", "OBJECT IDENTIFIER", 6, false},
    {15, TYP_NUMSTR, "TYP_NUMSTR", "NumericString", 18, false},
    {16, TYP_PRISTR, "TYP_PRISTR", "PrintableString", 19, false},
    {17, TYP_TELSTR, "TYP_TELSTR", "TeletexString", 20, false},
    {18, TYP_VIDSTR, "TYP_VIDSTR", "VideotexString", 21, false},
    {19, TYP_VISSTR, "TYP_VISSTR", "VisibleString", 26, false},
    {20, TYP_IA5STR, "TYP_IA5STR", "IA5String", 22, false},
    {21, TYP_GRASTR, "TYP_GRASTR", "GraphicString", 25, false},
    {22, TYP_GENSTR, "TYP_GENSTR", "GeneralString", 27, false},
    {23, TYP_BMPSTR, "TYP_BMPSTR", "BMPString", 30, false},
    {24, TYP_UNISTR, "TYP_UNISTR", "UniversalString", 28, false},
    {25, TYP_CHASTR, "TYP_CHASTR", "CHARACTER STRING", 29, false},
    {26, TYP_GENTIME, "TYP_GENTIME", "GeneralizedTime", 24, false},
    {27, TYP_UTCTIME, "TYP_UTCTIME", "UTCTime", 23, false},
    {28, TYP_EXTERNAL, "TYP_EXTERNAL", "EXTERNAL", 8, false},
    {29, TYP_EXTERNAL_1994, "TYP_EXTERNAL", "EXTERNAL", 8, false},
    {30, TYP_OBJDESCR, "TYP_OBJDESCR", "ObjectDescriptor", 7, false},
    {31, TYP_INSTANCE_OF, "TYP_INSTANCE_OF", "InstanceOfType", 8, true},
    {32, TYP_SYNONYM, "TYP_SYNONYM", nullptr, -4, false},
    {33, TYP_EXTENSION_MARKER, "TYP_EXTENSION_MARKER", nullptr, -5, false},
    {34, TYP_SELECTION, "TYP_SELECTION", "Selection type", -9, true},
    {35, TYP_FIELDLIST, "TYP_FIELDLIST", nullptr, -8, false},
    {36, TYP_OPEN, "TYP_OPEN", "Open type", -7, false},
    {37, TYP_CLASS, "TYP_CLASS", "CLASS", -6, true},
    {38, TYP_TYPE_ID, "TYP_TYPE_ID", "TYPE-IDENTIFIER", -6, false},
    {39, TYP_ABSTR_STX, "TYP_ABSTR_STX", "ABSTRACT-SYNTAX", -6, false},
    {40, TYP_EXTADDGRP, "TYP_EXTADDGRP", nullptr, -10, true},
    {41, TYP_NONE, "TYP_NONE", nullptr, -11, false},
};

TEST(TypeArr, EveryRow)
{
  ASSERT_EQ(std::size(expectedTypes), size_t{TYP_COUNT});
  int code = 0;
  for (const ExpectedTypeRow &expected : expectedTypes) {
    SCOPED_TRACE(expected.name);
    EXPECT_EQ(expected.code, code++);
    EXPECT_EQ(expected.enumerator, expected.code);
    const MainTypeRow &row = typeArr[expected.code];
    EXPECT_EQ(row.tagClass, 0);
    EXPECT_EQ(row.tagNumber, expected.tag);
    EXPECT_EQ(row.constructed, expected.constructed);
    EXPECT_STREQ(row.name, expected.name);
    EXPECT_STREQ(row.asnName, expected.asnName);
  }
}

TEST(TypeRow, InAndOutOfRange)
{
  for (int code = 0; code < 42; ++code)
    EXPECT_EQ(&typeRow(code), &typeArr[code]);
  for (int code : {42, 43, 255, INT_MAX, -1, INT_MIN})
    EXPECT_EQ(&typeRow(code), &typeArr[41]) << code;
}

TEST(IsClassMainType, ThreeKinds)
{
  for (int code = -1; code <= 43; ++code)
    EXPECT_EQ(isClassMainType(code), code >= 37 && code <= 39) << code;
}

TEST(MainTypeNumbers, NoValueHasNoRow)
{
  EXPECT_EQ(VAL_NONE, '*');
  EXPECT_EQ(TYP_COUNT, 42);
}

TEST(CompStatusArr, EveryRow)
{
  const char *const expected[] = {"TCS_MANDATORY", "TCS_OPTIONAL", "TCS_COMPOF",
                                  "TCS_CHOICE",    "TCS_MULTIPLE", "TCS_HEADER",
                                  "TCS_FORMAL"};
  ASSERT_EQ(std::size(expected), size_t{TCS_COUNT});
  for (int status = 0; status < TCS_COUNT; ++status) {
    EXPECT_STREQ(compStatusArr[status], expected[status]);
    EXPECT_STREQ(compStatusName(status), expected[status]);
  }
  EXPECT_EQ(TCS_MANDATORY, 0);
  EXPECT_EQ(TCS_OPTIONAL, 1);
  EXPECT_EQ(TCS_COMPOF, 2);
  EXPECT_EQ(TCS_CHOICE, 3);
  EXPECT_EQ(TCS_MULTIPLE, 4);
  EXPECT_EQ(TCS_HEADER, 5);
  EXPECT_EQ(TCS_FORMAL, 6);
}

TEST(CompStatusName, EmptyOutOfRange)
{
  for (int status : {7, -1, -5, INT_MAX, INT_MIN})
    EXPECT_STREQ(compStatusName(status), "") << status;
}

// --- value fields -----------------------------------------------------------

struct ExpectedValueField {
  int enumerator;
  const char *name;
  const char *member;
  const char *cType;
};

static const ExpectedValueField expectedFields[] = {
    {VF_NONE, "VF_NONE", "/* VF_NONE */", "/* VF_NONE */"},
    {VF_BOOL, "VF_BOOL", "bool", "BOOLE"},
    {VF_UI8, "VF_UI8", "ui8", "uint8"},
    {VF_UI16, "VF_UI16", "ui16", "uint16"},
    {VF_UI32, "VF_UI32", "ui32", "uint32"},
    {VF_UI64, "VF_UI64", "", "uint64"},
    {VF_I8, "VF_I8", "i8", "sint8"},
    {VF_I16, "VF_I16", "i16", "sint16"},
    {VF_I32, "VF_I32", "i32", "sint32"},
    {VF_I64, "VF_I64", "i64", "sint64"},
    {VF_REAL32, "VF_REAL32", "real32", "REAL32"},
    {VF_REAL64, "VF_REAL64", "real64", "REAL64"},
    {VF_REAL128, "VF_REAL128", "real128", "REAL128"},
    {VF_STAS0, "VF_STAS0", "stas0", nullptr},
    {VF_STAS8, "VF_STAS8", "stas8", nullptr},
    {VF_STAS16, "VF_STAS16", "stas16", nullptr},
    {VF_STAS, "VF_STAS", "stas", nullptr},
    {VF_DYNS0, "VF_DYNS0", "dyns0", "DYNSTR0"},
    {VF_DYNS8, "VF_DYNS8", "dyns8", "DYNSTR8"},
    {VF_DYNS16, "VF_DYNS16", "dyns16", "DYNSTR16"},
    {VF_DYNS, "VF_DYNS", "dyns", "DYNSTR"},
    {VF_LIST, "VF_LIST", "list", "LIST"},
    {VF_FRM, "VF_FRM", "frm", "FRAME_PTR"},
    {VF_NULL, "VF_NULL", "null", "NULLTYPE"},
    {VF_STRU, "VF_STRU", "stru", nullptr},
    {VF_ANY, "VF_ANY", "any", "ANY"},
    {VF_EMB_PDV, "VF_EMB_PDV", "", nullptr},
    {VF_OBJI, "VF_OBJI", "obji", "OBJECTIDENTIFIER"},
    {VF_COMT, "VF_COMT", "datetime", "DATETIMEZ"},
    {VF_EXTERNAL_1990, "VF_EXTERNAL_1990", "ext1990", "EXTERNAL_1990"},
    {VF_EXTERNAL_1994, "VF_EXTERNAL_1994", "ext1994", "EXTERNAL_1994"},
    {VF_OPEN, "VF_OPEN", "openType", "OPENTYPE"},
    {VF_BMPSTR0, "VF_BMPSTR0", "bmpstr0", "ASN_BMPString0"},
    {VF_BMPSTR8, "VF_BMPSTR8", "bmpstr8", "ASN_BMPString8"},
    {VF_BMPSTR16, "VF_BMPSTR16", "bmpstr16", "ASN_BMPString16"},
    {VF_BMPSTR, "VF_BMPSTR", "bmpstr", "ASN_BMPString"},
};

TEST(ValueFieldTables, EveryRow)
{
  ASSERT_EQ(std::size(expectedFields), size_t{36});
  int code = 0;
  for (const ExpectedValueField &expected : expectedFields) {
    SCOPED_TRACE(expected.name);
    EXPECT_EQ(expected.enumerator, code);
    EXPECT_STREQ(vfIdArr[code], expected.name);
    EXPECT_STREQ(asnhomeMemberArr[code], expected.member);
    EXPECT_STREQ(targetLangTypeArr[code], expected.cType);
    EXPECT_STREQ(vfIdName(code), expected.name);
    EXPECT_STREQ(asnhomeMember(code), expected.member);
    EXPECT_STREQ(targetLangType(code), expected.cType ? expected.cType : "");
    ++code;
  }
  EXPECT_EQ(code, VF_COUNT);
}

TEST(ValueFieldTables, EmptyOutOfRange)
{
  for (int code : {36, 255, INT_MAX, -1, INT_MIN}) {
    EXPECT_STREQ(vfIdName(code), "") << code;
    EXPECT_STREQ(asnhomeMember(code), "") << code;
    EXPECT_STREQ(targetLangType(code), "") << code;
  }
}

TEST(SetTargetLangTypes, AnotherTableAndBack)
{
  const char *other[VF_COUNT] = {};
  other[VF_BOOL] = "bool_t";
  setTargetLangTypes(other);
  EXPECT_STREQ(targetLangType(VF_BOOL), "bool_t");
  EXPECT_STREQ(targetLangType(VF_UI8), "");
  EXPECT_STREQ(vfIdName(VF_BOOL), "VF_BOOL");
  setTargetLangTypes(defaultCTypeArr);
  EXPECT_STREQ(targetLangType(VF_BOOL), "BOOLE");
}

// --- bits -------------------------------------------------------------------

TEST(NodeOption, BitNumbers)
{
  const struct {
    int option;
    uint32_t mask;
  } rows[] = {
      {optEmbedding, 2},       {optClearedBit2, 4},
      {optNaming, 8},          {optSkip, 32},
      {optAsnHome, 64},        {optPointer, 128},
      {optAsnhc, 256},         {optPtrComps, 512},
      {optFrame, 1024},        {optHomeList, 2048},
      {optHomeElems, 4096},    {optDynamicArray, 8192},
      {optInherited15, 32768}, {optExtMarkerField, 131072},
  };
  for (const auto &row : rows)
    EXPECT_EQ(1u << row.option, row.mask);
}

TEST(NodeFlag, BitNumbers)
{
  EXPECT_EQ(NF_OPTIONAL_COMPS, 1 << 0);
  EXPECT_EQ(NF_UNTAGGED_COMPS, 1 << 3);
  EXPECT_EQ(NF_UNIQUE, 1 << 4);
  EXPECT_EQ(NF_RECURSIVE, 1 << 5);
  EXPECT_EQ(NF_MANDATORY_COMPS, 1 << 6);
  EXPECT_EQ(NF_EXTENSIBLE, 1 << 7);
  EXPECT_EQ(NF_AUTOMATIC_TAGS, 1 << 8);
  EXPECT_EQ(NF_INSTANTIATED, 1 << 9);
  EXPECT_EQ(NF_TOP_LEVEL_INSTANTIATED, 1 << 10);
  EXPECT_EQ(NF_IGNORABLE, 1 << 11);
}

TEST(OtherFlags, BitNumbers)
{
  EXPECT_EQ(CF_VISIBLE, 1u << 1);
  EXPECT_EQ(CF_SET, 1u << 3);
  EXPECT_EQ(CF_VARIABLE_TYPE, 1u << 5);
  EXPECT_EQ(VFL_VISIBLE, 1 << 0);
  EXPECT_EQ(VFL_SET, 1 << 1);
  EXPECT_EQ(VFL_NAMING, 1 << 3);
  EXPECT_EQ(entryFlagBit, 1 << 6);
}

TEST(SubKind, Numbers)
{
  EXPECT_EQ(SUB_UNION, 1);
  EXPECT_EQ(SUB_INTERSECTION, 2);
  EXPECT_EQ(SUB_CATENATED, 3);
  EXPECT_EQ(SUB_EXCEPT, 4);
  EXPECT_EQ(SUB_ALL_EXCEPT, 5);
  EXPECT_EQ(SUB_RANGE, 10);
  EXPECT_EQ(SUB_ALPHABET, 11);
  EXPECT_EQ(SUB_SIZE, 12);
  EXPECT_EQ(SUB_SINGLE_VALUE, 13);
  EXPECT_EQ(SUB_INCLUDES, 14);
  EXPECT_EQ(SUB_WITH_COMPONENT, 15);
  EXPECT_EQ(SUB_WITH_COMPONENTS, 16);
  EXPECT_EQ(SUB_TABLE, 17);
  EXPECT_EQ(SUB_USER_DEFINED, 18);
  EXPECT_EQ(SUB_COMPONENT_RELATION, 19);
  EXPECT_EQ(SUB_EXCEPTION, 20);
  EXPECT_EQ(SUB_TYPE, 21);
  EXPECT_EQ(SUB_EXTENDED_SET, 22);
  EXPECT_EQ(SUB_HIDDEN, 24);
}

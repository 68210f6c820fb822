// The tables behind the codes of the tree format.

#include "store/codes.h"
#include <iterator>

const MainTypeRow typeArr[] = {
    {0, 1, false, "TYP_BOOLEAN", "BOOLEAN"},
    {0, 2, false, "TYP_INTEGER", "INTEGER"},
    {0, 10, false, "TYP_ENUM", "ENUMERATED"},
    {0, 9, false, "TYP_REAL", "REAL"},
    {0, 3, false, "TYP_BITSTR", "BIT STRING"},
    {0, 4, false, "TYP_OCTSTR", "OCTET STRING"},
    {0, 5, false, "TYP_NULL", "NULL"},
    {0, 16, true, "TYP_SEQ", "SEQUENCE"},
    {0, 16, true, "TYP_SEQOF", "SEQUENCE OF"},
    {0, 17, true, "TYP_SET", "SET"},
    {0, 17, true, "TYP_SETOF", "SET OF"},
    {0, -2, true, "TYP_CHOICE", "CHOICE"},
    {0, -3, false, "TYP_ANY", "ANY"},
    {0, 11, false, "TYP_EMB_PDV", "EMBEDDED PDV"},
    {0, 6, false, "TYP_OBJID", "OBJECT IDENTIFIER"},
    {0, 18, false, "TYP_NUMSTR", "NumericString"},
    {0, 19, false, "TYP_PRISTR", "PrintableString"},
    {0, 20, false, "TYP_TELSTR", "TeletexString"},
    {0, 21, false, "TYP_VIDSTR", "VideotexString"},
    {0, 26, false, "TYP_VISSTR", "VisibleString"},
    {0, 22, false, "TYP_IA5STR", "IA5String"},
    {0, 25, false, "TYP_GRASTR", "GraphicString"},
    {0, 27, false, "TYP_GENSTR", "GeneralString"},
    {0, 30, false, "TYP_BMPSTR", "BMPString"},
    {0, 28, false, "TYP_UNISTR", "UniversalString"},
    {0, 29, false, "TYP_CHASTR", "CHARACTER STRING"},
    {0, 24, false, "TYP_GENTIME", "GeneralizedTime"},
    {0, 23, false, "TYP_UTCTIME", "UTCTime"},
    // Two rows for EXTERNAL: trees of 1990 and of 1994 differ in the code
    // only.
    {0, 8, false, "TYP_EXTERNAL", "EXTERNAL"},
    {0, 8, false, "TYP_EXTERNAL", "EXTERNAL"},
    {0, 7, false, "TYP_OBJDESCR", "ObjectDescriptor"},
    {0, 8, true, "TYP_INSTANCE_OF", "InstanceOfType"},
    {0, -4, false, "TYP_SYNONYM", nullptr},
    {0, -5, false, "TYP_EXTENSION_MARKER", nullptr},
    {0, -9, true, "TYP_SELECTION", "Selection type"},
    {0, -8, false, "TYP_FIELDLIST", nullptr},
    {0, -7, false, "TYP_OPEN", "Open type"},
    {0, -6, true, "TYP_CLASS", "CLASS"},
    {0, -6, false, "TYP_TYPE_ID", "TYPE-IDENTIFIER"},
    {0, -6, false, "TYP_ABSTR_STX", "ABSTRACT-SYNTAX"},
    {0, -10, true, "TYP_EXTADDGRP", nullptr},
    {0, -11, false, "TYP_NONE", nullptr},
};

static_assert(std::size(typeArr) == TYP_COUNT);

const MainTypeRow &typeRow(int mainType)
{
  return typeArr[mainType >= 0 && mainType < TYP_COUNT ? mainType : TYP_NONE];
}

const char *const compStatusArr[] = {
    "TCS_MANDATORY", "TCS_OPTIONAL", "TCS_COMPOF", "TCS_CHOICE",
    "TCS_MULTIPLE",  "TCS_HEADER",   "TCS_FORMAL",
};

static_assert(std::size(compStatusArr) == TCS_COUNT);

const char *compStatusName(int status)
{
  return status >= 0 && status < TCS_COUNT ? compStatusArr[status] : "";
}

const char *const vfIdArr[] = {
    "VF_NONE",
    "VF_BOOL",
    "VF_UI8",
    "VF_UI16",
    "VF_UI32",
    "VF_UI64",
    "VF_I8",
    "VF_I16",
    "VF_I32",
    "VF_I64",
    "VF_REAL32",
    "VF_REAL64",
    "VF_REAL128",
    "VF_STAS0",
    "VF_STAS8",
    "VF_STAS16",
    "VF_STAS",
    "VF_DYNS0",
    "VF_DYNS8",
    "VF_DYNS16",
    "VF_DYNS",
    "VF_LIST",
    "VF_FRM",
    "VF_NULL",
    "VF_STRU",
    "VF_ANY",
    "VF_EMB_PDV",
    "VF_OBJI",
    "VF_COMT",
    "VF_EXTERNAL_1990",
    "VF_EXTERNAL_1994",
    "VF_OPEN",
    "VF_BMPSTR0",
    "VF_BMPSTR8",
    "VF_BMPSTR16",
    "VF_BMPSTR",
};

static_assert(std::size(vfIdArr) == VF_COUNT);

const char *const asnhomeMemberArr[] = {
    "/* VF_NONE */", "bool",    "ui8",      "ui16",
    "ui32",          "",        "i8",       "i16",
    "i32",           "i64",     "real32",   "real64",
    "real128",       "stas0",   "stas8",    "stas16",
    "stas",          "dyns0",   "dyns8",    "dyns16",
    "dyns",          "list",    "frm",      "null",
    "stru",          "any",     "",         "obji",
    "datetime",      "ext1990", "ext1994",  "openType",
    "bmpstr0",       "bmpstr8", "bmpstr16", "bmpstr",
};

static_assert(std::size(asnhomeMemberArr) == VF_COUNT);

const char *const defaultCTypeArr[] = {
    "/* VF_NONE */",   "BOOLE",
    "uint8",           "uint16",
    "uint32",          "uint64",
    "sint8",           "sint16",
    "sint32",          "sint64",
    "REAL32",          "REAL64",
    "REAL128",         nullptr,
    nullptr,           nullptr,
    nullptr,           "DYNSTR0",
    "DYNSTR8",         "DYNSTR16",
    "DYNSTR",          "LIST",
    "FRAME_PTR",       "NULLTYPE",
    nullptr,           "ANY",
    nullptr,           "OBJECTIDENTIFIER",
    "DATETIMEZ",       "EXTERNAL_1990",
    "EXTERNAL_1994",   "OPENTYPE",
    "ASN_BMPString0",  "ASN_BMPString8",
    "ASN_BMPString16", "ASN_BMPString",
};

static_assert(std::size(defaultCTypeArr) == VF_COUNT);

const char *const *targetLangTypeArr = defaultCTypeArr;

void setTargetLangTypes(const char *const *table)
{
  targetLangTypeArr = table;
}

static const char *rowOf(const char *const *table, int valueField)
{
  bool inTable = valueField >= 0 && valueField < VF_COUNT;
  const char *name = inTable ? table[valueField] : nullptr;
  return name ? name : "";
}

const char *vfIdName(int valueField)
{
  return rowOf(vfIdArr, valueField);
}

const char *asnhomeMember(int valueField)
{
  return rowOf(asnhomeMemberArr, valueField);
}

const char *targetLangType(int valueField)
{
  return rowOf(targetLangTypeArr, valueField);
}

#pragma once
#include <cstdint>

// The codes of the tree format, by name. Out of range, a main type reads as
// the last row of its table, and a name as the empty text.

enum MainType : int {
  TYP_BOOLEAN = 0,
  TYP_INTEGER = 1,
  TYP_ENUM = 2,
  TYP_REAL = 3,
  TYP_BITSTR = 4,
  TYP_OCTSTR = 5,
  TYP_NULL = 6,
  TYP_SEQ = 7,
  TYP_SEQOF = 8,
  TYP_SET = 9,
  TYP_SETOF = 10,
  TYP_CHOICE = 11,
  TYP_ANY = 12,
  TYP_EMB_PDV = 13,
  TYP_OBJID = 14,
  TYP_NUMSTR = 15,
  TYP_PRISTR = 16,
  TYP_TELSTR = 17,
  TYP_VIDSTR = 18,
  TYP_VISSTR = 19,
  TYP_IA5STR = 20,
  TYP_GRASTR = 21,
  TYP_GENSTR = 22,
  TYP_BMPSTR = 23,
  TYP_UNISTR = 24,
  TYP_CHASTR = 25,
  TYP_GENTIME = 26,
  TYP_UTCTIME = 27,
  TYP_EXTERNAL = 28,
  TYP_EXTERNAL_1994 = 29,  // its row bears the name of 28
  TYP_OBJDESCR = 30,
  TYP_INSTANCE_OF = 31,
  TYP_SYNONYM = 32,
  TYP_EXTENSION_MARKER = 33,
  TYP_SELECTION = 34,
  TYP_FIELDLIST = 35,
  TYP_OPEN = 36,
  TYP_CLASS = 37,
  TYP_TYPE_ID = 38,
  TYP_ABSTR_STX = 39,
  TYP_EXTADDGRP = 40,
  TYP_NONE = 41,
  TYP_COUNT = 42,
  VAL_NONE = 42  // in memory only: an endpoint that could not be found
};

struct MainTypeRow {
  int tagClass;   // 0: universal
  int tagNumber;  // negative: none
  bool constructed;
  const char *name;     // of the code
  const char *asnName;  // null: none
};

extern const MainTypeRow typeArr[TYP_COUNT];

const MainTypeRow &typeRow(int mainType);

inline bool isClassMainType(int mainType)
{
  return mainType == TYP_CLASS || mainType == TYP_TYPE_ID ||
         mainType == TYP_ABSTR_STX;
}

enum CompStatus : int {
  TCS_MANDATORY = 0,
  TCS_OPTIONAL = 1,
  TCS_COMPOF = 2,
  TCS_CHOICE = 3,
  TCS_MULTIPLE = 4,
  TCS_HEADER = 5,
  TCS_FORMAL = 6,
  TCS_COUNT = 7
};

extern const char *const compStatusArr[TCS_COUNT];

// Name of a status; empty out of range.
const char *compStatusName(int status);

enum ValueField : int {
  VF_NONE = 0,
  VF_BOOL = 1,
  VF_UI8 = 2,
  VF_UI16 = 3,
  VF_UI32 = 4,
  VF_UI64 = 5,
  VF_I8 = 6,
  VF_I16 = 7,
  VF_I32 = 8,
  VF_I64 = 9,
  VF_REAL32 = 10,
  VF_REAL64 = 11,
  VF_REAL128 = 12,
  VF_STAS0 = 13,
  VF_STAS8 = 14,
  VF_STAS16 = 15,
  VF_STAS = 16,
  VF_DYNS0 = 17,
  VF_DYNS8 = 18,
  VF_DYNS16 = 19,
  VF_DYNS = 20,
  VF_LIST = 21,
  VF_FRM = 22,
  VF_NULL = 23,
  VF_STRU = 24,
  VF_ANY = 25,
  VF_EMB_PDV = 26,
  VF_OBJI = 27,
  VF_COMT = 28,
  VF_EXTERNAL_1990 = 29,
  VF_EXTERNAL_1994 = 30,
  VF_OPEN = 31,
  VF_BMPSTR0 = 32,
  VF_BMPSTR8 = 33,
  VF_BMPSTR16 = 34,
  VF_BMPSTR = 35,
  VF_COUNT = 36
};

// Names of the codes, members of ASNHOME and C types, by value field; a null
// C type means that there is none.
extern const char *const vfIdArr[VF_COUNT];
extern const char *const asnhomeMemberArr[VF_COUNT];
extern const char *const defaultCTypeArr[VF_COUNT];

// The table of C types in force, `defaultCTypeArr` unless
// `setTargetLangTypes` has stored another of the same length.
extern const char *const *targetLangTypeArr;
void setTargetLangTypes(const char *const *table);

// Rows of the three tables; empty out of range, and where there is no C type.
const char *vfIdName(int valueField);
const char *asnhomeMember(int valueField);
const char *targetLangType(int valueField);

// Bits of `nodeOptions`, by number.
enum NodeOption : int {
  optEmbedding = 1,       // the TED range is the node's embedding list
  optClearedBit2 = 2,     // cleared in every view
  optNaming = 3,          // the TED range holds naming options
  optSkip = 5,            // SKIP: a leaf, not represented
  optAsnHome = 6,         // lives in an ASNHOME of its own
  optPointer = 7,         // reached through a pointer
  optAsnhc = 8,           // the components have an ASNHOME each
  optPtrComps = 9,        // the components are pointers
  optFrame = 10,          // frame type
  optHomeList = 11,       // on a list: becomes optHomeElems
  optHomeElems = 12,      // the elements are homes
  optDynamicArray = 13,   // the array is dynamic
  optInherited15 = 15,    // handed down along synonyms
  optExtMarkerField = 17  // unknown extensions are kept
};

// Masks of `nodeFlags`.
enum NodeFlag : uint16_t {
  NF_OPTIONAL_COMPS = 0x0001,
  NF_UNTAGGED_COMPS = 0x0008,  // CHOICE or open type without a tag
  NF_UNIQUE = 0x0010,          // of a class field
  NF_RECURSIVE = 0x0020,
  NF_MANDATORY_COMPS = 0x0040,
  NF_EXTENSIBLE = 0x0080,
  NF_AUTOMATIC_TAGS = 0x0100,
  NF_INSTANTIATED = 0x0200,            // in memory only
  NF_TOP_LEVEL_INSTANTIATED = 0x0400,  // in memory only
  NF_IGNORABLE = 0x0800
};

// Masks of `classFlags`.
enum ClassFlag : uint32_t {
  CF_VISIBLE = 0x02,
  CF_SET = 0x08,           // value set or object set
  CF_VARIABLE_TYPE = 0x20  // field of variable type
};

// Masks of `valueFlags`.
enum ValueFlag : uint8_t {
  VFL_VISIBLE = 0x01,
  VFL_SET = 0x02,
  VFL_NAMING = 0x08
};

// Mask of `entryFlags`: the definition has entry functions.
constexpr uint8_t entryFlagBit = 0x40;

// Kinds of a constraint record.
enum SubKind : int {
  SUB_UNION = 1,
  SUB_INTERSECTION = 2,
  SUB_CATENATED = 3,
  SUB_EXCEPT = 4,
  SUB_ALL_EXCEPT = 5,
  SUB_RANGE = 10,
  SUB_ALPHABET = 11,
  SUB_SIZE = 12,
  SUB_SINGLE_VALUE = 13,
  SUB_INCLUDES = 14,
  SUB_WITH_COMPONENT = 15,
  SUB_WITH_COMPONENTS = 16,
  SUB_TABLE = 17,
  SUB_USER_DEFINED = 18,
  SUB_COMPONENT_RELATION = 19,
  SUB_EXCEPTION = 20,
  SUB_TYPE = 21,
  SUB_EXTENDED_SET = 22,
  SUB_HIDDEN = 24
};

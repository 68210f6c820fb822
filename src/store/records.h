#pragma once
#include "base/int64.h"
#include <cstddef>
#include <cstdint>
#include <span>

// The records of a syntax tree. In memory they lie as in the file, field for
// field at the same offset, but in the host's byte order; the tables at the
// end give every field's place, and reading, writing and printing go by them.
// Indexes count from 1 within one kind of one module; 0 means none.

enum RecKind : int {
  REC_MNODE = 0,   // module header and import entries
  REC_TNODE = 1,   // type
  REC_VNODE = 2,   // value
  REC_TAG = 3,     // tag
  REC_SUB = 4,     // subtype constraint
  REC_TED = 5,     // option, comment or embedding line
  REC_SNODE = 6,   // link
  REC_STRI = 7,    // 8-bit string
  REC_STRI16 = 8,  // 16-bit string
  REC_STRI32 = 9,  // 32-bit string
  REC_STAB = 10,   // symbol table record, in no file
  REC_INST = 11,   // instantiation record, in no file
  REC_COUNT = 14   // 12 and 13 are unused
};

constexpr int storedKinds = 10;  // kinds 0 to 9 have sections in the file

// A string of a tree has at most so many units, the terminating zero counted.
constexpr int maxStriUnits = 32001;

// The index that stands for the empty string and for no record.
constexpr int32_t emptyStriIndex = 2147483642;

struct MNode {
  int16_t toolVersion = 0;
  int16_t treeVersion = 0;
  int32_t date = 0;  // YYYYMMDD
  int32_t time = 0;  // HHMMSS
  int32_t moduleName = 0;
  int32_t filePrefix = 0;
  int32_t firstType = 0;
  int32_t firstValue = 0;
  int32_t auxValueA = 0;
  int32_t auxValueB = 0;
  int32_t counts[storedKinds] = {};
  uint8_t visibilityMode = 0;    // 0: every definition is visible
  uint8_t tagDefaultAndUse = 0;  // low half: tag default; high half: in an
                                 // import entry, declarations are used
  uint8_t automaticTags = 0;
  uint8_t reserved79 = 0;
  int32_t sourceDirectory = 0;
  int32_t sourceFileName = 0;
  int32_t nrEntryTypes = 0;
  int32_t nrVisibleTypes = 0;
  int32_t nrObjects = 0;
  int32_t nrObjectSets = 0;
  int32_t firstGlobalTed = 0;  // 0 means 1
  int32_t lastGlobalTed = 0;
};

// Octets 60 to 71 of a type node.
struct TypeOptions {
  uint8_t definiteLength = 255;  // 255: unset
  uint8_t skipKind = 255;        // of a SKIP type: 0 ignore, 1 error;
                                 // anything above: no SKIP
  uint8_t reserved62[2] = {};
  int32_t sizeLimit = 0;    // of the generated storage, 0: none
  uint8_t limitAction = 0;  // beyond it: 0 ignore the surplus, 1 error
  uint8_t reserved69[3] = {};
};

struct TNode {
  int32_t identifier = 0;  // negative: a value field of a class
  int32_t nestedInstance = 0;
  int32_t line = 0;
  int32_t compStatus = 0;  // TCS code; -5: header of an inner synonym
  int32_t defaultValue = 0;
  int32_t next = 0;
  int32_t firstConstraint = 0;
  int32_t firstTag = 0;
  uint32_t nodeOptions = 0;
  uint32_t classFlags = 0;
  int32_t firstTed = 0;
  int32_t lastTed = 0;
  int16_t stamp = 0;  // written on loading and by the generators
  uint8_t mainType = 0;
  uint8_t valueField = 0;
  uint8_t valueFieldSize = 0;
  uint8_t reserved53 = 0;
  uint16_t nodeFlags = 0;
  uint8_t entryFlags = 0;
  uint8_t entryCategory = 0;
  uint16_t reserved58 = 0;
  TypeOptions typeOptions;
  int32_t nrComps = 0;
  int32_t refModule = 0;  // -2 marks a form of class field reference
  int32_t ref = 0;
  int32_t namedNumbers = 0;
  int32_t reserved88 = 0;
  int32_t hidden = 0;
  int32_t fieldRef = 0;
  sint64 lowerEndpoint;
  sint64 upperEndpoint;
};

struct VNode {
  int32_t identifier = 0;
  int32_t valueStatus = 0;
  uint8_t valueFlags = 0;
  uint8_t reserved9[7] = {};
  int32_t line = 0;
  int32_t reserved20 = 0;
  int32_t governor = 0;
  int32_t governorModule = 0;
  int32_t next = 0;
  int16_t stamp = 0;
  uint8_t mainType = 0;
  uint8_t reserved39 = 0;
  int32_t refModule = 0;
  int32_t firstChild = 0;
  int32_t firstTed = 0;
  int32_t lastTed = 0;
  uint8_t payload[12] = {};  // the value in the file's byte order, by mainType
  int32_t hidden = 0;
  int32_t fieldPath = 0;
};

struct TagRec {
  int32_t tagClass = 0;
  int32_t tagMode = 0;  // 1: explicit, the next tag of the chain applies too
  int32_t tagNumber = 0;
  int32_t nextTag = 0;
};

struct SubRec {
  int32_t reserved0 = 0;
  uint8_t kind = 0;
  uint8_t subFlags = 0;
  uint8_t reserved6[2] = {};
  int32_t compModule = 0;
  int32_t compNode = 0;
  int32_t reserved16 = 0;
  int32_t nextSub = 0;
  int32_t reserved24 = 0;
  int32_t operand1 = 0;
  int32_t operand2 = 0;
};

struct TedRec {
  uint8_t tedKind = 0;
  uint8_t reserved1[3] = {};
  int32_t text = 0;
};

struct SNode {
  int32_t reserved0 = 0;
  int32_t linkModule = 0;
  int32_t target = 0;  // above 0: a type node; else the negated value node
  int32_t reserved12 = 0;
  int32_t nextLink = 0;
};

// Kinds that a front-end keeps in the same store; opaque here.
struct STabRec {
  uint8_t octets[28] = {};
};

struct InstRec {
  uint8_t octets[8] = {};
};

// Kinds of a TED record.
enum TedKind : uint8_t {
  TED_DROPPED = 0,
  TED_EMBEDDING = 1,  // text to be copied into generated files
  TED_BACK_END = 2,   // a back-end or comment option
  TED_FRONT_END = 3   // an option of the front-end's catalogue
};

// What a value node carries, decoded from its payload.
sint64 payloadInt64(const VNode &node);      // codes 1 and 2
bool payloadBool(const VNode &node);         // code 0
int16_t payloadRealBase(const VNode &node);  // code 3; -1: a special value
int16_t payloadRealExponent(const VNode &node);
uint16_t payloadLength(const VNode &node);  // bits, digits or characters
int32_t payloadStri(const VNode &node);     // string index
void setPayloadInt64(VNode &node, sint64 value);
void setPayloadBool(VNode &node, bool value);
void setPayloadReal(VNode &node, sint64 mantissa, int16_t base,
                    int16_t exponent);
// The length is 16 bits for binary and hexadecimal strings, 32 for others.
void setPayloadStri(VNode &node, uint16_t length, int32_t stri);

// One field of a record: `count` elements of `width` octets each.
struct FieldLayout {
  uint16_t offset;      // in the file
  uint16_t hostOffset;  // in the structure
  uint8_t width;
  uint8_t count;
  bool isSigned;
  const char *name;
};

// Octets of a record of each kind in the file; of one unit for strings.
extern const uint8_t recSize[REC_COUNT];

// The fields of kinds 0 to 6, in the order of their offsets; empty for other
// kinds.
std::span<const FieldLayout> recLayout(int kind);

// Between `recSize[kind]` octets of a file and a structure of that kind.
void decodeRecord(int kind, const uint8_t *octets, void *record);
void encodeRecord(int kind, const void *record, uint8_t *octets);

// The value of element `i` of a field of a record, sign-extended.
int64_t fieldValue(const FieldLayout &field, const void *record, int i = 0);

// Little-endian numbers of a file.
uint16_t littleU16(const uint8_t *octets);
uint32_t littleU32(const uint8_t *octets);
void putLittleU16(uint8_t *octets, uint16_t value);
void putLittleU32(uint8_t *octets, uint32_t value);

// The layouts of the records, against the tree format's offsets and against
// octets written by hand.

#include "store/records.h"
#include <cstring>
#include <gtest/gtest.h>
#include <numeric>
#include <string>
#include <vector>

TEST(RecSize, EveryKind)
{
  const int expected[REC_COUNT] = {112, 116, 76, 16, 36, 8, 20,
                                   1,   2,   4,  28, 8,  0, 0};
  for (int kind = 0; kind < REC_COUNT; ++kind)
    EXPECT_EQ(recSize[kind], expected[kind]) << kind;
}

TEST(RecKind, Numbers)
{
  EXPECT_EQ(REC_MNODE, 0);
  EXPECT_EQ(REC_TNODE, 1);
  EXPECT_EQ(REC_VNODE, 2);
  EXPECT_EQ(REC_TAG, 3);
  EXPECT_EQ(REC_SUB, 4);
  EXPECT_EQ(REC_TED, 5);
  EXPECT_EQ(REC_SNODE, 6);
  EXPECT_EQ(REC_STRI, 7);
  EXPECT_EQ(REC_STRI16, 8);
  EXPECT_EQ(REC_STRI32, 9);
  EXPECT_EQ(REC_STAB, 10);
  EXPECT_EQ(REC_INST, 11);
  EXPECT_EQ(REC_COUNT, 14);
  EXPECT_EQ(storedKinds, 10);
  EXPECT_EQ(maxStriUnits, 32001);
  EXPECT_EQ(emptyStriIndex, 2147483642);
}

TEST(TedKind, Numbers)
{
  EXPECT_EQ(TED_DROPPED, 0);
  EXPECT_EQ(TED_EMBEDDING, 1);
  EXPECT_EQ(TED_BACK_END, 2);
  EXPECT_EQ(TED_FRONT_END, 3);
}

// --- layouts ----------------------------------------------------------------

struct ExpectedRecordField {
  int kind;
  const char *name;
  int offset;
  int width;
  bool isSigned;
  int count = 1;
};

static const ExpectedRecordField expectedFields[] = {
    {0, "toolVersion", 0, 2, true},
    {0, "treeVersion", 2, 2, true},
    {0, "date", 4, 4, true},
    {0, "time", 8, 4, true},
    {0, "moduleName", 12, 4, true},
    {0, "filePrefix", 16, 4, true},
    {0, "firstType", 20, 4, true},
    {0, "firstValue", 24, 4, true},
    {0, "auxValueA", 28, 4, true},
    {0, "auxValueB", 32, 4, true},
    {0, "counts", 36, 4, true, 10},
    {0, "visibilityMode", 76, 1, false},
    {0, "tagDefaultAndUse", 77, 1, false},
    {0, "automaticTags", 78, 1, false},
    {0, "sourceDirectory", 80, 4, true},
    {0, "sourceFileName", 84, 4, true},
    {0, "nrEntryTypes", 88, 4, true},
    {0, "nrVisibleTypes", 92, 4, true},
    {0, "nrObjects", 96, 4, true},
    {0, "nrObjectSets", 100, 4, true},
    {0, "firstGlobalTed", 104, 4, true},
    {0, "lastGlobalTed", 108, 4, true},

    {1, "identifier", 0, 4, true},
    {1, "nestedInstance", 4, 4, true},
    {1, "line", 8, 4, true},
    {1, "compStatus", 12, 4, true},
    {1, "defaultValue", 16, 4, true},
    {1, "next", 20, 4, true},
    {1, "firstConstraint", 24, 4, true},
    {1, "firstTag", 28, 4, true},
    {1, "nodeOptions", 32, 4, false},
    {1, "classFlags", 36, 4, false},
    {1, "firstTed", 40, 4, true},
    {1, "lastTed", 44, 4, true},
    {1, "stamp", 48, 2, true},
    {1, "mainType", 50, 1, false},
    {1, "valueField", 51, 1, false},
    {1, "valueFieldSize", 52, 1, false},
    {1, "nodeFlags", 54, 2, false},
    {1, "entryFlags", 56, 1, false},
    {1, "entryCategory", 57, 1, false},
    {1, "typeOptions.definiteLength", 60, 1, false},
    {1, "typeOptions.skipKind", 61, 1, false},
    {1, "typeOptions.sizeLimit", 64, 4, true},
    {1, "typeOptions.limitAction", 68, 1, false},
    {1, "nrComps", 72, 4, true},
    {1, "refModule", 76, 4, true},
    {1, "ref", 80, 4, true},
    {1, "namedNumbers", 84, 4, true},
    {1, "hidden", 92, 4, true},
    {1, "fieldRef", 96, 4, true},
    {1, "lowerEndpoint.high", 100, 4, true},
    {1, "lowerEndpoint.low", 104, 4, false},
    {1, "upperEndpoint.high", 108, 4, true},
    {1, "upperEndpoint.low", 112, 4, false},

    {2, "identifier", 0, 4, true},
    {2, "valueStatus", 4, 4, true},
    {2, "valueFlags", 8, 1, false},
    {2, "line", 16, 4, true},
    {2, "governor", 24, 4, true},
    {2, "governorModule", 28, 4, true},
    {2, "next", 32, 4, true},
    {2, "stamp", 36, 2, true},
    {2, "mainType", 38, 1, false},
    {2, "refModule", 40, 4, true},
    {2, "firstChild", 44, 4, true},
    {2, "firstTed", 48, 4, true},
    {2, "lastTed", 52, 4, true},
    {2, "payload", 56, 1, false, 12},
    {2, "hidden", 68, 4, true},
    {2, "fieldPath", 72, 4, true},

    {3, "tagClass", 0, 4, true},
    {3, "tagMode", 4, 4, true},
    {3, "tagNumber", 8, 4, true},
    {3, "nextTag", 12, 4, true},

    {4, "kind", 4, 1, false},
    {4, "subFlags", 5, 1, false},
    {4, "compModule", 8, 4, true},
    {4, "compNode", 12, 4, true},
    {4, "nextSub", 20, 4, true},
    {4, "operand1", 28, 4, true},
    {4, "operand2", 32, 4, true},

    {5, "tedKind", 0, 1, false},
    {5, "text", 4, 4, true},

    {6, "linkModule", 4, 4, true},
    {6, "target", 8, 4, true},
    {6, "nextLink", 16, 4, true},
};

static const FieldLayout *fieldNamed(int kind, const char *name)
{
  for (const FieldLayout &field : recLayout(kind))
    if (strcmp(field.name, name) == 0)
      return &field;
  return nullptr;
}

TEST(RecLayout, EveryFieldOfTheFormat)
{
  for (const ExpectedRecordField &expected : expectedFields) {
    SCOPED_TRACE(std::to_string(expected.kind) + " " + expected.name);
    const FieldLayout *field = fieldNamed(expected.kind, expected.name);
    ASSERT_TRUE(field);
    EXPECT_EQ(field->offset, expected.offset);
    EXPECT_EQ(field->width, expected.width);
    EXPECT_EQ(field->count, expected.count);
    EXPECT_EQ(field->isSigned, expected.isSigned);
  }
}

// What the format does not name is reserved, and nothing is left out.
TEST(RecLayout, RestIsReserved)
{
  for (int kind = REC_MNODE; kind <= REC_SNODE; ++kind) {
    int size = 0;
    for (const FieldLayout &field : recLayout(kind)) {
      EXPECT_EQ(field.offset, size) << kind << " " << field.name;
      size += field.width * field.count;
      bool expected = false;
      for (const ExpectedRecordField &e : expectedFields)
        expected |= e.kind == kind && strcmp(e.name, field.name) == 0;
      EXPECT_NE(expected, strstr(field.name, "reserved") != nullptr)
          << kind << " " << field.name;
    }
    EXPECT_EQ(size, recSize[kind]) << kind;
  }
}

TEST(RecLayout, NoneForStringsAndIdleKinds)
{
  for (int kind : {7, 8, 9, 10, 11, 12, 13, 14, -1})
    EXPECT_TRUE(recLayout(kind).empty()) << kind;
}

// --- decoding octets written by hand ----------------------------------------

TEST(DecodeRecord, MNode)
{
  const uint8_t octets[112] = {
      0xD5, 0x00,              // 0 toolVersion 213
      0xFB, 0xFF,              // 2 treeVersion -5
      0x03, 0xD7, 0x34, 0x01,  // 4 date 20240131
      0xB7, 0x99, 0x03, 0x00,  // 8 time 235959
      0x01, 0x02, 0x03, 0x04,  // 12 moduleName
      0x11, 0x00, 0x00, 0x00,  // 16 filePrefix
      0x12, 0x00, 0x00, 0x00,  // 20 firstType
      0x13, 0x00, 0x00, 0x00,  // 24 firstValue
      0x14, 0x00, 0x00, 0x00,  // 28 auxValueA
      0xFF, 0xFF, 0xFF, 0xFF,  // 32 auxValueB -1
      0x01, 0x01, 0x00, 0x00,  // 36 counts
      0x02, 0x01, 0x00, 0x00,  // 40
      0x03, 0x01, 0x00, 0x00,  // 44
      0x04, 0x01, 0x00, 0x00,  // 48
      0x05, 0x01, 0x00, 0x00,  // 52
      0x06, 0x01, 0x00, 0x00,  // 56
      0x07, 0x01, 0x00, 0x00,  // 60
      0x08, 0x01, 0x00, 0x00,  // 64
      0x09, 0x01, 0x00, 0x00,  // 68
      0xFF, 0xFF, 0xFF, 0x7F,  // 72
      0x02,                    // 76 visibilityMode
      0xF3,                    // 77 tagDefaultAndUse
      0x80,                    // 78 automaticTags
      0x00,                    // 79
      0x21, 0x00, 0x00, 0x00,  // 80 sourceDirectory
      0x22, 0x00, 0x00, 0x00,  // 84 sourceFileName
      0x23, 0x00, 0x00, 0x00,  // 88 nrEntryTypes
      0x24, 0x00, 0x00, 0x00,  // 92 nrVisibleTypes
      0x25, 0x00, 0x00, 0x00,  // 96 nrObjects
      0x26, 0x00, 0x00, 0x00,  // 100 nrObjectSets
      0x27, 0x00, 0x00, 0x00,  // 104 firstGlobalTed
      0x00, 0x00, 0x00, 0x80,  // 108 lastGlobalTed -2147483648
  };
  MNode node;
  decodeRecord(REC_MNODE, octets, &node);
  EXPECT_EQ(node.toolVersion, 213);
  EXPECT_EQ(node.treeVersion, -5);
  EXPECT_EQ(node.date, 20240131);
  EXPECT_EQ(node.time, 235959);
  EXPECT_EQ(node.moduleName, 0x04030201);
  EXPECT_EQ(node.filePrefix, 0x11);
  EXPECT_EQ(node.firstType, 0x12);
  EXPECT_EQ(node.firstValue, 0x13);
  EXPECT_EQ(node.auxValueA, 0x14);
  EXPECT_EQ(node.auxValueB, -1);
  for (int kind = 0; kind < 9; ++kind)
    EXPECT_EQ(node.counts[kind], 0x101 + kind);
  EXPECT_EQ(node.counts[9], 2147483647);
  EXPECT_EQ(node.visibilityMode, 2);
  EXPECT_EQ(node.tagDefaultAndUse, 0xF3);
  EXPECT_EQ(node.automaticTags, 0x80);
  EXPECT_EQ(node.sourceDirectory, 0x21);
  EXPECT_EQ(node.sourceFileName, 0x22);
  EXPECT_EQ(node.nrEntryTypes, 0x23);
  EXPECT_EQ(node.nrVisibleTypes, 0x24);
  EXPECT_EQ(node.nrObjects, 0x25);
  EXPECT_EQ(node.nrObjectSets, 0x26);
  EXPECT_EQ(node.firstGlobalTed, 0x27);
  EXPECT_EQ(node.lastGlobalTed, INT32_MIN);
}

TEST(DecodeRecord, TNode)
{
  const uint8_t octets[116] = {
      0xFE, 0xFF, 0xFF, 0xFF,  // 0 identifier -2
      0x01, 0x00, 0x00, 0x00,  // 4 nestedInstance
      0x02, 0x00, 0x00, 0x00,  // 8 line
      0xFB, 0xFF, 0xFF, 0xFF,  // 12 compStatus -5
      0x03, 0x00, 0x00, 0x00,  // 16 defaultValue
      0x04, 0x00, 0x00, 0x00,  // 20 next
      0x05, 0x00, 0x00, 0x00,  // 24 firstConstraint
      0x06, 0x00, 0x00, 0x00,  // 28 firstTag
      0x01, 0x00, 0x02, 0x80,  // 32 nodeOptions 0x80020001
      0x2A, 0x00, 0x00, 0xFF,  // 36 classFlags 0xFF00002A
      0x07, 0x00, 0x00, 0x00,  // 40 firstTed
      0x08, 0x00, 0x00, 0x00,  // 44 lastTed
      0xFF, 0x7F,              // 48 stamp 32767
      0x20,                    // 50 mainType
      0x23,                    // 51 valueField
      0x04,                    // 52 valueFieldSize
      0x00,                    // 53
      0x81, 0x88,              // 54 nodeFlags 0x8881
      0x4C,                    // 56 entryFlags
      0x09,                    // 57 entryCategory
      0x00, 0x00,              // 58
      0xFE,                    // 60 typeOptions: definite length
      0x01,                    // 61 SKIP kind
      0x00, 0x00,              // 62
      0x00, 0x01, 0x00, 0x00,  // 64 size limit 256
      0x01, 0x00, 0x00, 0x00,  // 68 beyond it
      0x0A, 0x00, 0x00, 0x00,  // 72 nrComps
      0xFE, 0xFF, 0xFF, 0xFF,  // 76 refModule -2
      0x0B, 0x00, 0x00, 0x00,  // 80 ref
      0x0C, 0x00, 0x00, 0x00,  // 84 namedNumbers
      0x00, 0x00, 0x00, 0x00,  // 88
      0x0D, 0x00, 0x00, 0x00,  // 92 hidden
      0x0E, 0x00, 0x00, 0x00,  // 96 fieldRef
      0x00, 0x00, 0x00, 0x80,  // 100 lowerEndpoint, high word
      0x01, 0x00, 0x00, 0x00,  // 104 low word
      0xFF, 0xFF, 0xFF, 0x7F,  // 108 upperEndpoint, high word
      0xFE, 0xFF, 0xFF, 0xFF,  // 112 low word
  };
  TNode node;
  decodeRecord(REC_TNODE, octets, &node);
  EXPECT_EQ(node.identifier, -2);
  EXPECT_EQ(node.nestedInstance, 1);
  EXPECT_EQ(node.line, 2);
  EXPECT_EQ(node.compStatus, -5);
  EXPECT_EQ(node.defaultValue, 3);
  EXPECT_EQ(node.next, 4);
  EXPECT_EQ(node.firstConstraint, 5);
  EXPECT_EQ(node.firstTag, 6);
  EXPECT_EQ(node.nodeOptions, 0x80020001u);
  EXPECT_EQ(node.classFlags, 0xFF00002Au);
  EXPECT_EQ(node.firstTed, 7);
  EXPECT_EQ(node.lastTed, 8);
  EXPECT_EQ(node.stamp, 32767);
  EXPECT_EQ(node.mainType, 32);
  EXPECT_EQ(node.valueField, 35);
  EXPECT_EQ(node.valueFieldSize, 4);
  EXPECT_EQ(node.nodeFlags, 0x8881);
  EXPECT_EQ(node.entryFlags, 0x4C);
  EXPECT_EQ(node.entryCategory, 9);
  EXPECT_EQ(node.typeOptions.definiteLength, 254);
  EXPECT_EQ(node.typeOptions.skipKind, 1);
  EXPECT_EQ(node.typeOptions.sizeLimit, 256);
  EXPECT_EQ(node.typeOptions.limitAction, 1);
  EXPECT_EQ(node.nrComps, 10);
  EXPECT_EQ(node.refModule, -2);
  EXPECT_EQ(node.ref, 11);
  EXPECT_EQ(node.namedNumbers, 12);
  EXPECT_EQ(node.hidden, 13);
  EXPECT_EQ(node.fieldRef, 14);
  EXPECT_EQ(node.lowerEndpoint.high, INT32_MIN);
  EXPECT_EQ(node.lowerEndpoint.low, 1u);
  EXPECT_EQ(node.upperEndpoint.high, INT32_MAX);
  EXPECT_EQ(node.upperEndpoint.low, 4294967294u);
}

TEST(DecodeRecord, VNode)
{
  const uint8_t octets[76] = {
      0x01, 0x00, 0x00, 0x00,           // 0 identifier
      0x02, 0x00, 0x00, 0x00,           // 4 valueStatus
      0x8B,                             // 8 valueFlags
      0,    0,    0,    0,    0, 0, 0,  // 9
      0x39, 0x30, 0x00, 0x00,           // 16 line 12345
      0,    0,    0,    0,              // 20
      0x03, 0x00, 0x00, 0x00,           // 24 governor
      0x04, 0x00, 0x00, 0x00,           // 28 governorModule
      0x05, 0x00, 0x00, 0x00,           // 32 next
      0xFF, 0xFF,                       // 36 stamp -1
      0x2A,                             // 38 mainType
      0,                                // 39
      0x06, 0x00, 0x00, 0x00,           // 40 refModule
      0x07, 0x00, 0x00, 0x00,           // 44 firstChild
      0x08, 0x00, 0x00, 0x00,           // 48 firstTed
      0x09, 0x00, 0x00, 0x00,           // 52 lastTed
      0xFF, 0xFF, 0xFF, 0xFF,           // 56 payload: -2 as 64 bits
      0xFE, 0xFF, 0xFF, 0xFF,           // 60
      0x0A, 0x00,                       // 64 base 10
      0xFD, 0xFF,                       // 66 exponent -3
      0x0B, 0x00, 0x00, 0x00,           // 68 hidden
      0x0C, 0x00, 0x00, 0x00,           // 72 fieldPath
  };
  VNode node;
  decodeRecord(REC_VNODE, octets, &node);
  EXPECT_EQ(node.identifier, 1);
  EXPECT_EQ(node.valueStatus, 2);
  EXPECT_EQ(node.valueFlags, 0x8B);
  EXPECT_EQ(node.line, 12345);
  EXPECT_EQ(node.governor, 3);
  EXPECT_EQ(node.governorModule, 4);
  EXPECT_EQ(node.next, 5);
  EXPECT_EQ(node.stamp, -1);
  EXPECT_EQ(node.mainType, 42);
  EXPECT_EQ(node.refModule, 6);
  EXPECT_EQ(node.firstChild, 7);
  EXPECT_EQ(node.firstTed, 8);
  EXPECT_EQ(node.lastTed, 9);
  EXPECT_EQ(memcmp(node.payload, octets + 56, 12), 0);
  EXPECT_EQ(node.hidden, 11);
  EXPECT_EQ(node.fieldPath, 12);
}

TEST(DecodeRecord, TagRec)
{
  const uint8_t octets[16] = {
      0x03, 0x00, 0x00, 0x00,  // 0 tagClass
      0x01, 0x00, 0x00, 0x00,  // 4 tagMode
      0x1F, 0x01, 0x00, 0x00,  // 8 tagNumber 287
      0x09, 0x00, 0x00, 0x00,  // 12 nextTag
  };
  TagRec record;
  decodeRecord(REC_TAG, octets, &record);
  EXPECT_EQ(record.tagClass, 3);
  EXPECT_EQ(record.tagMode, 1);
  EXPECT_EQ(record.tagNumber, 287);
  EXPECT_EQ(record.nextTag, 9);
}

TEST(DecodeRecord, SubRec)
{
  const uint8_t octets[36] = {
      0,    0,    0,    0,     // 0
      0x18,                    // 4 kind 24
      0x7F,                    // 5 subFlags
      0,    0,                 // 6
      0x01, 0x00, 0x00, 0x00,  // 8 compModule
      0x02, 0x00, 0x00, 0x00,  // 12 compNode
      0,    0,    0,    0,     // 16
      0x03, 0x00, 0x00, 0x00,  // 20 nextSub
      0,    0,    0,    0,     // 24
      0x04, 0x00, 0x00, 0x00,  // 28 operand1
      0x05, 0x00, 0x00, 0x00,  // 32 operand2
  };
  SubRec record;
  decodeRecord(REC_SUB, octets, &record);
  EXPECT_EQ(record.kind, 24);
  EXPECT_EQ(record.subFlags, 0x7F);
  EXPECT_EQ(record.compModule, 1);
  EXPECT_EQ(record.compNode, 2);
  EXPECT_EQ(record.nextSub, 3);
  EXPECT_EQ(record.operand1, 4);
  EXPECT_EQ(record.operand2, 5);
}

TEST(DecodeRecord, TedRec)
{
  const uint8_t octets[8] = {
      0x03, 0,    0,    0,     // 0 tedKind
      0x00, 0x00, 0x01, 0x00,  // 4 text 65536
  };
  TedRec record;
  decodeRecord(REC_TED, octets, &record);
  EXPECT_EQ(record.tedKind, 3);
  EXPECT_EQ(record.text, 65536);
}

TEST(DecodeRecord, SNode)
{
  const uint8_t octets[20] = {
      0,    0,    0,    0,     // 0
      0x02, 0x00, 0x00, 0x00,  // 4 linkModule
      0xF9, 0xFF, 0xFF, 0xFF,  // 8 target -7
      0,    0,    0,    0,     // 12
      0x04, 0x00, 0x00, 0x00,  // 16 nextLink
  };
  SNode node;
  decodeRecord(REC_SNODE, octets, &node);
  EXPECT_EQ(node.linkModule, 2);
  EXPECT_EQ(node.target, -7);
  EXPECT_EQ(node.nextLink, 4);
}

TEST(DecodeRecord, NothingForKindsWithoutLayout)
{
  const uint8_t octets[28] = {1, 2, 3};
  uint8_t record[28] = {};
  const uint8_t untouched[28] = {};
  for (int kind : {7, 10, 12, -1})
    decodeRecord(kind, octets, record);
  EXPECT_EQ(memcmp(record, untouched, sizeof record), 0);
}

// --- encoding ---------------------------------------------------------------

// Every octet, the reserved ones included, survives the way in and out.
TEST(EncodeRecord, UndoesDecoding)
{
  for (int kind = REC_MNODE; kind <= REC_SNODE; ++kind) {
    size_t size = recSize[kind];
    std::vector<uint8_t> octets(size);
    std::iota(octets.begin(), octets.end(), uint8_t{0x81});
    alignas(8) uint8_t record[128] = {};
    decodeRecord(kind, octets.data(), record);
    // One octet more, which stays as it is.
    std::vector<uint8_t> encoded(size + 1, 0xEE);
    encodeRecord(kind, record, encoded.data());
    EXPECT_EQ(encoded.back(), 0xEE) << kind;
    encoded.pop_back();
    EXPECT_EQ(encoded, octets) << kind;
  }
}

TEST(EncodeRecord, LittleEndian)
{
  TagRec record{0x01020304, -2, 5, 0x7FFFFFFF};
  uint8_t octets[16];
  encodeRecord(REC_TAG, &record, octets);
  const uint8_t expected[16] = {4, 3, 2, 1, 0xFE, 0xFF, 0xFF, 0xFF,
                                5, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0x7F};
  EXPECT_EQ(memcmp(octets, expected, 16), 0);
}

TEST(FieldValue, SignsAndElements)
{
  MNode header;
  header.toolVersion = -1;
  header.date = -20;
  header.counts[9] = 77;
  header.automaticTags = 200;
  EXPECT_EQ(fieldValue(*fieldNamed(0, "toolVersion"), &header), -1);
  EXPECT_EQ(fieldValue(*fieldNamed(0, "date"), &header), -20);
  EXPECT_EQ(fieldValue(*fieldNamed(0, "counts"), &header, 9), 77);
  EXPECT_EQ(fieldValue(*fieldNamed(0, "counts"), &header, 8), 0);
  EXPECT_EQ(fieldValue(*fieldNamed(0, "automaticTags"), &header), 200);
  TNode node;
  node.nodeOptions = 0xFFFFFFFF;
  node.nodeFlags = 0xFFFF;
  EXPECT_EQ(fieldValue(*fieldNamed(1, "nodeOptions"), &node), 4294967295);
  EXPECT_EQ(fieldValue(*fieldNamed(1, "nodeFlags"), &node), 65535);
}

TEST(LittleNumbers, BothWays)
{
  const uint8_t octets[4] = {0x01, 0x82, 0x03, 0xF4};
  EXPECT_EQ(littleU16(octets), 0x8201);
  EXPECT_EQ(littleU32(octets), 0xF4038201u);
  uint8_t out[4];
  putLittleU32(out, 0xF4038201u);
  EXPECT_EQ(memcmp(out, octets, 4), 0);
  putLittleU16(out, 0xABCD);
  EXPECT_EQ(out[0], 0xCD);
  EXPECT_EQ(out[1], 0xAB);
  EXPECT_EQ(out[2], 0x03);
}

// --- defaults and payloads --------------------------------------------------

// A node without SKIP bears 255; zero would be a SKIP that ignores.
TEST(TNodeDefaults, NoSkipNoLengthChoice)
{
  TNode node;
  EXPECT_EQ(node.typeOptions.definiteLength, 255);
  EXPECT_EQ(node.typeOptions.skipKind, 255);
  EXPECT_EQ(node.typeOptions.sizeLimit, 0);
}

static VNode withPayload(std::initializer_list<uint8_t> octets)
{
  VNode node;
  std::copy(octets.begin(), octets.end(), node.payload);
  return node;
}

TEST(Payload, Int64HighWordFirst)
{
  VNode node = withPayload({0xFF, 0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0xFF, 0xFF});
  EXPECT_EQ(payloadInt64(node).high, -1);
  EXPECT_EQ(payloadInt64(node).low, 4294967294u);
  node = withPayload({1, 0, 0, 0, 2, 0, 0, 0x80});
  EXPECT_EQ(payloadInt64(node).high, 1);
  EXPECT_EQ(payloadInt64(node).low, 0x80000002u);
}

TEST(Payload, Bool)
{
  EXPECT_FALSE(payloadBool(withPayload({0, 1, 1, 1})));
  EXPECT_TRUE(payloadBool(withPayload({1})));
  EXPECT_TRUE(payloadBool(withPayload({0x80})));
}

TEST(Payload, Real)
{
  // Mantissa at 56, base at 64, exponent at 66: 8 and 10 of the payload.
  VNode node = withPayload({0, 0, 0, 0, 7, 0, 0, 0, 10, 0, 0xFD, 0xFF});
  EXPECT_EQ(payloadInt64(node).low, 7u);
  EXPECT_EQ(payloadRealBase(node), 10);
  EXPECT_EQ(payloadRealExponent(node), -3);
  node = withPayload({0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF, 0, 0});
  EXPECT_EQ(payloadRealBase(node), -1);
}

TEST(Payload, LengthIsSixteenBits)
{
  VNode node = withPayload({0x00, 0x7D, 0xFF, 0xFF, 0x05, 0x00, 0x00, 0x01});
  EXPECT_EQ(payloadLength(node), 32000);
  EXPECT_EQ(payloadStri(node), 0x01000005);
}

TEST(Payload, SettersWriteTheFileOrder)
{
  VNode node;
  setPayloadInt64(node, {-2, 0x01020304});
  const uint8_t number[8] = {0xFE, 0xFF, 0xFF, 0xFF, 4, 3, 2, 1};
  EXPECT_EQ(memcmp(node.payload, number, 8), 0);

  setPayloadReal(node, {0, 9}, 2, -4);
  const uint8_t real[12] = {0, 0, 0, 0, 9, 0, 0, 0, 2, 0, 0xFC, 0xFF};
  EXPECT_EQ(memcmp(node.payload, real, 12), 0);

  VNode stri;
  setPayloadStri(stri, 32000, 6);
  const uint8_t text[8] = {0x00, 0x7D, 0, 0, 6, 0, 0, 0};
  EXPECT_EQ(memcmp(stri.payload, text, 8), 0);

  VNode truth;
  setPayloadBool(truth, true);
  EXPECT_NE(truth.payload[0], 0);
  setPayloadBool(truth, false);
  EXPECT_EQ(truth.payload[0], 0);
}

// The layouts of the tree format, one table a record. The tables are checked
// at compile time against the structures and for gaps, and they are all that
// the loader, the tree writer and the dump know of a record.

#include "store/records.h"
#include <cstring>
#include <type_traits>
#include <utility>

const uint8_t recSize[REC_COUNT] = {112, 116, 76, 16, 36, 8, 20,
                                    1,   2,   4,  28, 8,  0, 0};

template <class T>
static constexpr FieldLayout layoutOf(size_t offset, size_t hostOffset,
                                      const char *name)
{
  typedef std::remove_all_extents_t<T> Element;
  return {static_cast<uint16_t>(offset),
          static_cast<uint16_t>(hostOffset),
          sizeof(Element),
          sizeof(T) / sizeof(Element),
          std::is_signed_v<Element>,
          name};
}

#define FIELD(record, offset, member)                                          \
  layoutOf<decltype(record{}.member)>(offset, offsetof(record, member), #member)

static constexpr FieldLayout mNodeLayout[] = {
    FIELD(MNode, 0, toolVersion),
    FIELD(MNode, 2, treeVersion),
    FIELD(MNode, 4, date),
    FIELD(MNode, 8, time),
    FIELD(MNode, 12, moduleName),
    FIELD(MNode, 16, filePrefix),
    FIELD(MNode, 20, firstType),
    FIELD(MNode, 24, firstValue),
    FIELD(MNode, 28, auxValueA),
    FIELD(MNode, 32, auxValueB),
    FIELD(MNode, 36, counts),
    FIELD(MNode, 76, visibilityMode),
    FIELD(MNode, 77, tagDefaultAndUse),
    FIELD(MNode, 78, automaticTags),
    FIELD(MNode, 79, reserved79),
    FIELD(MNode, 80, sourceDirectory),
    FIELD(MNode, 84, sourceFileName),
    FIELD(MNode, 88, nrEntryTypes),
    FIELD(MNode, 92, nrVisibleTypes),
    FIELD(MNode, 96, nrObjects),
    FIELD(MNode, 100, nrObjectSets),
    FIELD(MNode, 104, firstGlobalTed),
    FIELD(MNode, 108, lastGlobalTed),
};

static constexpr FieldLayout tNodeLayout[] = {
    FIELD(TNode, 0, identifier),
    FIELD(TNode, 4, nestedInstance),
    FIELD(TNode, 8, line),
    FIELD(TNode, 12, compStatus),
    FIELD(TNode, 16, defaultValue),
    FIELD(TNode, 20, next),
    FIELD(TNode, 24, firstConstraint),
    FIELD(TNode, 28, firstTag),
    FIELD(TNode, 32, nodeOptions),
    FIELD(TNode, 36, classFlags),
    FIELD(TNode, 40, firstTed),
    FIELD(TNode, 44, lastTed),
    FIELD(TNode, 48, stamp),
    FIELD(TNode, 50, mainType),
    FIELD(TNode, 51, valueField),
    FIELD(TNode, 52, valueFieldSize),
    FIELD(TNode, 53, reserved53),
    FIELD(TNode, 54, nodeFlags),
    FIELD(TNode, 56, entryFlags),
    FIELD(TNode, 57, entryCategory),
    FIELD(TNode, 58, reserved58),
    FIELD(TNode, 60, typeOptions.definiteLength),
    FIELD(TNode, 61, typeOptions.skipKind),
    FIELD(TNode, 62, typeOptions.reserved62),
    FIELD(TNode, 64, typeOptions.sizeLimit),
    FIELD(TNode, 68, typeOptions.limitAction),
    FIELD(TNode, 69, typeOptions.reserved69),
    FIELD(TNode, 72, nrComps),
    FIELD(TNode, 76, refModule),
    FIELD(TNode, 80, ref),
    FIELD(TNode, 84, namedNumbers),
    FIELD(TNode, 88, reserved88),
    FIELD(TNode, 92, hidden),
    FIELD(TNode, 96, fieldRef),
    FIELD(TNode, 100, lowerEndpoint.high),
    FIELD(TNode, 104, lowerEndpoint.low),
    FIELD(TNode, 108, upperEndpoint.high),
    FIELD(TNode, 112, upperEndpoint.low),
};

static constexpr FieldLayout vNodeLayout[] = {
    FIELD(VNode, 0, identifier), FIELD(VNode, 4, valueStatus),
    FIELD(VNode, 8, valueFlags), FIELD(VNode, 9, reserved9),
    FIELD(VNode, 16, line),      FIELD(VNode, 20, reserved20),
    FIELD(VNode, 24, governor),  FIELD(VNode, 28, governorModule),
    FIELD(VNode, 32, next),      FIELD(VNode, 36, stamp),
    FIELD(VNode, 38, mainType),  FIELD(VNode, 39, reserved39),
    FIELD(VNode, 40, refModule), FIELD(VNode, 44, firstChild),
    FIELD(VNode, 48, firstTed),  FIELD(VNode, 52, lastTed),
    FIELD(VNode, 56, payload),   FIELD(VNode, 68, hidden),
    FIELD(VNode, 72, fieldPath),
};

static constexpr FieldLayout tagLayout[] = {
    FIELD(TagRec, 0, tagClass),
    FIELD(TagRec, 4, tagMode),
    FIELD(TagRec, 8, tagNumber),
    FIELD(TagRec, 12, nextTag),
};

static constexpr FieldLayout subLayout[] = {
    FIELD(SubRec, 0, reserved0),   FIELD(SubRec, 4, kind),
    FIELD(SubRec, 5, subFlags),    FIELD(SubRec, 6, reserved6),
    FIELD(SubRec, 8, compModule),  FIELD(SubRec, 12, compNode),
    FIELD(SubRec, 16, reserved16), FIELD(SubRec, 20, nextSub),
    FIELD(SubRec, 24, reserved24), FIELD(SubRec, 28, operand1),
    FIELD(SubRec, 32, operand2),
};

static constexpr FieldLayout tedLayout[] = {
    FIELD(TedRec, 0, tedKind),
    FIELD(TedRec, 1, reserved1),
    FIELD(TedRec, 4, text),
};

static constexpr FieldLayout sNodeLayout[] = {
    FIELD(SNode, 0, reserved0), FIELD(SNode, 4, linkModule),
    FIELD(SNode, 8, target),    FIELD(SNode, 12, reserved12),
    FIELD(SNode, 16, nextLink),
};

#undef FIELD

// True if the fields follow each other without a gap up to `size`, and lie
// in the structure where they lie in the file.
template <size_t n>
static constexpr bool layoutHolds(const FieldLayout (&layout)[n], size_t size)
{
  size_t offset = 0;
  for (const FieldLayout &field : layout) {
    if (field.offset != offset || field.hostOffset != offset)
      return false;
    offset += static_cast<size_t>(field.width) * field.count;
  }
  return offset == size;
}

static_assert(layoutHolds(mNodeLayout, 112) && sizeof(MNode) == 112);
static_assert(layoutHolds(tNodeLayout, 116) && sizeof(TNode) == 116);
static_assert(layoutHolds(vNodeLayout, 76) && sizeof(VNode) == 76);
static_assert(layoutHolds(tagLayout, 16) && sizeof(TagRec) == 16);
static_assert(layoutHolds(subLayout, 36) && sizeof(SubRec) == 36);
static_assert(layoutHolds(tedLayout, 8) && sizeof(TedRec) == 8);
static_assert(layoutHolds(sNodeLayout, 20) && sizeof(SNode) == 20);
static_assert(sizeof(STabRec) == 28 && sizeof(InstRec) == 8);

std::span<const FieldLayout> recLayout(int kind)
{
  switch (kind) {
  case REC_MNODE:
    return mNodeLayout;
  case REC_TNODE:
    return tNodeLayout;
  case REC_VNODE:
    return vNodeLayout;
  case REC_TAG:
    return tagLayout;
  case REC_SUB:
    return subLayout;
  case REC_TED:
    return tedLayout;
  case REC_SNODE:
    return sNodeLayout;
  default:
    return {};
  }
}

uint16_t littleU16(const uint8_t *octets)
{
  return static_cast<uint16_t>(octets[0] | octets[1] << 8);
}

uint32_t littleU32(const uint8_t *octets)
{
  return static_cast<uint32_t>(octets[0]) |
         static_cast<uint32_t>(octets[1]) << 8 |
         static_cast<uint32_t>(octets[2]) << 16 |
         static_cast<uint32_t>(octets[3]) << 24;
}

void putLittleU16(uint8_t *octets, uint16_t value)
{
  octets[0] = static_cast<uint8_t>(value);
  octets[1] = static_cast<uint8_t>(value >> 8);
}

void putLittleU32(uint8_t *octets, uint32_t value)
{
  putLittleU16(octets, static_cast<uint16_t>(value));
  putLittleU16(octets + 2, static_cast<uint16_t>(value >> 16));
}

// Copies one element between the two byte orders; the host's is whatever
// memcpy of an integer gives.
static inline void decodeElement(int width, const uint8_t *from, uint8_t *to)
{
  if (width == 4) {
    uint32_t value = littleU32(from);
    memcpy(to, &value, sizeof value);
  } else if (width == 2) {
    uint16_t value = littleU16(from);
    memcpy(to, &value, sizeof value);
  } else {
    *to = *from;
  }
}

static inline void encodeElement(int width, const uint8_t *from, uint8_t *to)
{
  if (width == 4) {
    uint32_t value;
    memcpy(&value, from, sizeof value);
    putLittleU32(to, value);
  } else if (width == 2) {
    uint16_t value;
    memcpy(&value, from, sizeof value);
    putLittleU16(to, value);
  } else {
    *to = *from;
  }
}

// One field of a record, its table known at compile time: a plain move, which
// is what a large tree's loading time is made of.
template <const auto &layout, size_t i>
static inline void decodeField(const uint8_t *octets, uint8_t *record)
{
  constexpr FieldLayout field = layout[i];
  for (int k = 0; k < field.count; ++k)
    decodeElement(field.width, octets + field.offset + k * field.width,
                  record + field.hostOffset + k * field.width);
}

template <const auto &layout, size_t... i>
static inline void decodeFields(const uint8_t *octets, uint8_t *record,
                                std::index_sequence<i...>)
{
  (decodeField<layout, i>(octets, record), ...);
}

template <const auto &layout>
static void decodeBy(const uint8_t *octets, void *record)
{
  decodeFields<layout>(octets, static_cast<uint8_t *>(record),
                       std::make_index_sequence<std::size(layout)>());
}

void decodeRecord(int kind, const uint8_t *octets, void *record)
{
  switch (kind) {
  case REC_MNODE:
    return decodeBy<mNodeLayout>(octets, record);
  case REC_TNODE:
    return decodeBy<tNodeLayout>(octets, record);
  case REC_VNODE:
    return decodeBy<vNodeLayout>(octets, record);
  case REC_TAG:
    return decodeBy<tagLayout>(octets, record);
  case REC_SUB:
    return decodeBy<subLayout>(octets, record);
  case REC_TED:
    return decodeBy<tedLayout>(octets, record);
  case REC_SNODE:
    return decodeBy<sNodeLayout>(octets, record);
  default:
    break;
  }
}

void encodeRecord(int kind, const void *record, uint8_t *octets)
{
  const uint8_t *from = static_cast<const uint8_t *>(record);
  for (const FieldLayout &field : recLayout(kind))
    for (int k = 0; k < field.count; ++k)
      encodeElement(field.width, from + field.hostOffset + k * field.width,
                    octets + field.offset + k * field.width);
}

int64_t fieldValue(const FieldLayout &field, const void *record, int i)
{
  const uint8_t *at =
      static_cast<const uint8_t *>(record) + field.hostOffset + i * field.width;
  if (field.width == 4) {
    uint32_t value;
    memcpy(&value, at, sizeof value);
    return field.isSigned ? static_cast<int32_t>(value) : int64_t{value};
  }
  if (field.width == 2) {
    uint16_t value;
    memcpy(&value, at, sizeof value);
    return field.isSigned ? static_cast<int16_t>(value) : int64_t{value};
  }
  return *at;
}

sint64 payloadInt64(const VNode &node)
{
  return {static_cast<int32_t>(littleU32(node.payload)),
          littleU32(node.payload + 4)};
}

bool payloadBool(const VNode &node)
{
  return node.payload[0] != 0;
}

int16_t payloadRealBase(const VNode &node)
{
  return static_cast<int16_t>(littleU16(node.payload + 8));
}

int16_t payloadRealExponent(const VNode &node)
{
  return static_cast<int16_t>(littleU16(node.payload + 10));
}

uint16_t payloadLength(const VNode &node)
{
  return littleU16(node.payload);
}

int32_t payloadStri(const VNode &node)
{
  return static_cast<int32_t>(littleU32(node.payload + 4));
}

void setPayloadInt64(VNode &node, sint64 value)
{
  putLittleU32(node.payload, static_cast<uint32_t>(value.high));
  putLittleU32(node.payload + 4, value.low);
}

void setPayloadBool(VNode &node, bool value)
{
  node.payload[0] = value;
}

void setPayloadReal(VNode &node, sint64 mantissa, int16_t base,
                    int16_t exponent)
{
  setPayloadInt64(node, mantissa);
  putLittleU16(node.payload + 8, static_cast<uint16_t>(base));
  putLittleU16(node.payload + 10, static_cast<uint16_t>(exponent));
}

void setPayloadStri(VNode &node, uint16_t length, int32_t stri)
{
  putLittleU32(node.payload, length);
  putLittleU32(node.payload + 4, static_cast<uint32_t>(stri));
}

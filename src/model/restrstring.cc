// Restricted character strings and string values: putting the pieces of a
// value together, its length as PER needs it, and comparisons.
//
// A leaf has its length and a string index in its payload. A character string
// with a first child is a list of segments, each a leaf, a reference or a list
// again; a bit string with a first child is a list of named bits. References
// may lead into other modules, so a chain is walked in the module of its list
// and each item read in its own. Strings take two runs over their segments,
// one to count and one to fill, so that the text is allocated once.

#include "model/restrstring.h"
#include "base/diag.h"
#include "base/strings.h"
#include "store/codes.h"
#include "store/valuenode.h"
#include <algorithm>
#include <cstring>
#include <limits>
#include <string_view>
#include <type_traits>
#include <vector>

// Bits of a binary string or of a list of named bits that are expanded.
constexpr int32_t maxBits = 32000;

// Main types of values in binary and in hexadecimal notation.
constexpr int binaryValue = TYP_BITSTR;
constexpr int hexValue = TYP_OCTSTR;

// Segments that a string may meet again after it has met all values of the
// run: references to one value from many places are good, and their number
// can double with each level.
constexpr int64_t maxRepeatedSegments = 1000000;

// A value with the module that its indexes are good in.
struct PlacedValue {
  ModRec *module;
  VNode node;
};

// The value at the end of the image's chain of references. Moves `vNode`.
static PlacedValue baseValue(ModRec *module, const VNode &image)
{
  if (image.mainType != TYP_SYNONYM || image.firstChild == 0)
    return {module, image};
  readRec(getModPtr(module, image.refModule), REC_VNODE, image.firstChild);
  skipValues(false);
  return {currTPtr[REC_VNODE], vNode};
}

// --- character strings ------------------------------------------------------

// One run over the segments of a string.
struct SegmentRun {
  RestrCharStri *out;  // null: only count
  ChainGuard guard;
  int64_t length = 0;  // in characters, so far
  SegmentRun(ModRec *module, RestrCharStri *o)
      : out(o), guard(module, REC_VNODE)
  {
    guard.stepsLeft += maxRepeatedSegments;
  }
};

// What a leaf has of its stored string.
template <class C>
static std::basic_string_view<C> unitsOf(const VNode &leaf, const C *stored)
{
  return std::basic_string_view<C>(stored).substr(0, payloadLength(leaf));
}

// The same for a leaf over 8-bit strings; an empty one needs no string.
static std::string_view leafText(ModRec *module, const VNode &leaf)
{
  if (payloadLength(leaf) == 0)
    return {};
  return unitsOf(leaf, getStri(module, payloadStri(leaf)));
}

template <class To, class From>
static void appendUnits(std::basic_string<To> &text,
                        std::basic_string_view<From> units)
{
  if constexpr (std::is_same_v<To, From>)
    text += units;
  else
    for (From unit : units)
      text += static_cast<To>(static_cast<std::make_unsigned_t<From>>(unit));
}

// Calls `f` with the text of the string's width.
template <class F>
static void withText(RestrCharStri &stri, F f)
{
  if (stri.mainType == TYP_BMPSTR)
    f(stri.text16);
  else if (stri.mainType == TYP_UNISTR)
    f(stri.text32);
  else
    f(stri.text);
}

template <class C>
static void appendLeaf(SegmentRun &run, std::basic_string_view<C> units)
{
  if (!run.out)
    return;
  withText(*run.out, [&](auto &text) { appendUnits(text, units); });
}

// Characters count by the units that the tree has, a zero and what is behind
// it included, though a zero ends what can be appended.
static void countLeaf(SegmentRun &run, ModRec *module, const VNode &leaf,
                      int kind)
{
  int32_t stated = payloadLength(leaf);
  run.length += std::min(stated, striUnits(module, kind, payloadStri(leaf)));
  if (run.length > std::numeric_limits<int32_t>::max())
    treeInconsistent(run.guard.module);
}

// The leaf's own main type tells where its string is: a list may mix widths.
static void addLeaf(SegmentRun &run, ModRec *module, const VNode &leaf)
{
  if (payloadLength(leaf) == 0)
    return;
  int32_t stri = payloadStri(leaf);
  switch (leaf.mainType) {
  case TYP_BMPSTR:
    countLeaf(run, module, leaf, REC_STRI16);
    return appendLeaf(run, unitsOf(leaf, getStri16(module, stri)));
  case TYP_UNISTR:
    countLeaf(run, module, leaf, REC_STRI32);
    return appendLeaf(run, unitsOf(leaf, getStri32(module, stri)));
  default:
    countLeaf(run, module, leaf, REC_STRI);
    return appendLeaf(run, unitsOf(leaf, getStri(module, stri)));
  }
}

// The rest of a list of segments.
struct SegmentList {
  ModRec *module;
  int32_t index;
};

// Counts the value, no reference, and with `run.out` appends it. Moves
// `vNode`. The lists that are open stand in a vector: they nest deeper than
// a small stack could follow.
static void makeRestrCharStriSeg(const PlacedValue &value, SegmentRun &run)
{
  if (value.node.firstChild == 0)
    return addLeaf(run, value.module, value.node);
  std::vector<SegmentList> open = {{value.module, value.node.firstChild}};
  while (!open.empty()) {
    SegmentList &list = open.back();
    if (list.index == 0) {
      open.pop_back();
      continue;
    }
    run.guard.step();
    readRec(list.module, REC_VNODE, list.index);
    // Taken first: the segment may be a reference, or a list.
    list.index = vNode.next;
    skipValues(false);
    if (vNode.firstChild == 0)
      addLeaf(run, currTPtr[REC_VNODE], vNode);
    else if (open.size() < maxNesting)
      open.push_back({currTPtr[REC_VNODE], vNode.firstChild});
    else
      treeInconsistent(list.module);
  }
}

static int32_t countSegments(const PlacedValue &value)
{
  SegmentRun run(value.module, nullptr);
  makeRestrCharStriSeg(value, run);
  return static_cast<int32_t>(run.length);
}

void makeRestrCharStri(ModRec *module, const VNode &vnodeImage,
                       RestrCharStri &out)
{
  SavedNode saved(REC_VNODE);
  PlacedValue value = baseValue(module, vnodeImage);
  out = RestrCharStri{};
  out.mainType = value.node.mainType;
  out.length = countSegments(value);
  size_t length = static_cast<size_t>(out.length);
  withText(out, [&](auto &text) { text.reserve(length); });
  SegmentRun run(value.module, &out);
  makeRestrCharStriSeg(value, run);
  // Where a zero has ended a segment early.
  withText(out, [&](auto &text) { text.resize(length); });
}

void delRestrCharStri(RestrCharStri &out)
{
  out = RestrCharStri{};
}

// --- lengths ----------------------------------------------------------------

static uint32_t hexDigitValue(char digit)
{
  // "A" stands 7 behind "9" + 1.
  char zero = isDigitChar(digit) ? '0' : '7';
  return static_cast<uint32_t>(digit - zero);
}

static int32_t octetStringLength()
{
  size_t digitsPerOctet = vNode.mainType == hexValue ? 2 : 8;
  size_t digits = leafText(currTPtr[REC_VNODE], vNode).size();
  return static_cast<int32_t>((digits + digitsPerOctet - 1) / digitsPerOctet);
}

// `length` bits, less the zeros at the end that lie behind bit `named`.
static int32_t trimBinary(std::string_view digits, int32_t length,
                          int32_t named)
{
  while (length > named && digits[static_cast<size_t>(length) - 1] == '0')
    --length;
  return length;
}

static int32_t trimHex(std::string_view digits, int32_t length, int32_t named)
{
  auto lastBit = [&] {
    uint32_t bit = static_cast<uint32_t>(length) - 1;
    return hexDigitValue(digits[bit / 4]) >> (3 - bit % 4) & 1;
  };
  while (length > named && lastBit() == 0)
    --length;
  return length;
}

static int32_t bitStringLength()
{
  // A list of named bits has no digits to count: its length is told as 0, and
  // who needs it asks `lenFromNamedBits`.
  if (vNode.firstChild != 0)
    return 0;
  bool hex = vNode.mainType == hexValue;
  std::string_view digits = leafText(currTPtr[REC_VNODE], vNode);
  int32_t length = static_cast<int32_t>(digits.size()) * (hex ? 4 : 1);
  int32_t named = lenFromNamedBits(currTPtr[REC_TNODE], tNode.namedNumbers);
  if (named == 0)
    return length;
  return hex ? trimHex(digits, length, named)
             : trimBinary(digits, length, named);
}

static int32_t charStringLength()
{
  SavedNode saved(REC_VNODE);
  return countSegments(baseValue(currTPtr[REC_VNODE], vNode));
}

int32_t getAnyStringLength()
{
  switch (tNode.mainType) {
  case TYP_OCTSTR:
    return octetStringLength();
  case TYP_BITSTR:
    return bitStringLength();
  default:
    return charStringLength();
  }
}

// --- bits -------------------------------------------------------------------

static std::string namedBits(ModRec *module, int32_t firstVNode)
{
  std::string bits;
  ChainGuard guard(module, REC_VNODE);
  for (int32_t index = firstVNode; index != 0;) {
    guard.step();
    readRec(module, REC_VNODE, index);
    index = vNode.next;
    skipValues(false);
    int32_t number = 0;
    if (!i64tol(payloadInt64(vNode), number))
      fatalError(FATAL_INTERNAL, "Bit string index overflow");
    if (number < 0 || number >= maxBits)
      continue;
    size_t bit = static_cast<size_t>(number);
    bits.resize(std::max(bits.size(), bit + 1), '0');
    bits[bit] = '1';
  }
  return bits;
}

static std::string hexBits(std::string_view digits, int mainType)
{
  std::string bits;
  bits.reserve(3 * digits.size() + 4);
  for (char digit : digits)
    // Bit 0 is left out: values that differ in it alone compare equal.
    for (unsigned bit : {3u, 2u, 1u})
      bits += hexDigitValue(digit) >> bit & 1 ? '1' : '0';
  if (mainType == TYP_OCTSTR && digits.size() % 2 != 0)
    bits += "0000";
  return bits;
}

static std::string binaryBits(std::string_view digits, int mainType)
{
  std::string bits(digits.substr(0, maxBits));
  if (mainType == TYP_OCTSTR)
    bits.resize((bits.size() + 7) / 8 * 8, '0');
  return bits;
}

std::string convBitString(int mainType, ModRec *module, const VNode &vnodeImage)
{
  SavedNode saved(REC_VNODE);
  PlacedValue value = baseValue(module, vnodeImage);
  if (value.node.mainType == hexValue)
    return hexBits(leafText(value.module, value.node), mainType);
  if (value.node.mainType == binaryValue && value.node.firstChild == 0)
    return binaryBits(leafText(value.module, value.node), mainType);
  return namedBits(value.module, value.node.firstChild);
}

// --- comparisons ------------------------------------------------------------

// The first bit stays whatever it is, so that "0" is not the empty string.
static void stripZeroBits(std::string &bits)
{
  size_t lastSet = bits.find_last_not_of('0');
  size_t length = lastSet == std::string::npos ? 1 : lastSet + 1;
  if (length < bits.size())
    bits.resize(length);
}

bool equalStrings(int mainType, ModRec *leftMod, const VNode &left,
                  ModRec *rightMod, const VNode &right)
{
  if (mainType != TYP_BITSTR && mainType != TYP_OCTSTR)
    return compareStrings(mainType, leftMod, left, rightMod, right) == 0;
  std::string leftBits = convBitString(mainType, leftMod, left);
  std::string rightBits = convBitString(mainType, rightMod, right);
  if (mainType == TYP_BITSTR) {
    stripZeroBits(leftBits);
    stripZeroBits(rightBits);
  }
  return leftBits == rightBits;
}

int compareStrings(int /*mainType*/, ModRec *leftMod, const VNode &left,
                   ModRec *rightMod, const VNode &right)
{
  RestrCharStri leftStri, rightStri;
  makeRestrCharStri(leftMod, left, leftStri);
  makeRestrCharStri(rightMod, right, rightStri);
  if (leftStri.mainType != rightStri.mainType)
    return 1;
  switch (leftStri.mainType) {
  case TYP_BMPSTR:
    return strcmp16(leftStri.text16.c_str(), rightStri.text16.c_str());
  case TYP_UNISTR:
    return strcmp32(leftStri.text32.c_str(), rightStri.text32.c_str());
  default:
    return strcmp(leftStri.text.c_str(), rightStri.text.c_str());
  }
}

// --- named bits -------------------------------------------------------------

int32_t lenFromNamedBits(ModRec *module, int32_t firstVNode)
{
  constexpr int32_t unlimited = std::numeric_limits<int32_t>::max();
  SavedNode saved(REC_VNODE);
  ChainGuard guard(module, REC_VNODE);
  int32_t highest = -1;
  for (int32_t index = firstVNode; index != 0;) {
    guard.step();
    readRec(module, REC_VNODE, index);
    index = vNode.next;
    skipValues(false);
    int32_t number = 0;
    // The largest number is what does not fit is taken for.
    i64tol(payloadInt64(vNode), number);
    highest = std::max(highest, number);
  }
  return highest == unlimited ? unlimited : highest + 1;
}

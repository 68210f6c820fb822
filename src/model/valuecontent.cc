// What values hold: numbers, strings, times and object identifiers.

#include "model/valuecontent.h"
#include "base/diag.h"
#include "base/strings.h"
#include "model/number.h"
#include "model/restrstring.h"
#include "model/typequery.h"
#include "store/valuenode.h"
#include <algorithm>
#include <string_view>

// --- numbers ----------------------------------------------------------------

bool booleanValue(const AsnValue &value)
{
  return payloadBool(value.base);
}

sint64 int64Value(const AsnValue &value)
{
  return payloadInt64(value.base);
}

int32_t integerValue(const AsnValue &value)
{
  return int64ToInt32(int64Value(value), value.homeMod, value.base.line,
                      "Integer value");
}

RealVal realValue(const AsnValue &value)
{
  // An infinity has no node behind it.
  if (value.base.mainType == TYP_REAL || !value.baseModRec)
    return payloadReal(value.base);
  SavedNode saved(REC_VNODE);
  readRec(value.baseModRec, REC_VNODE, value.baseRecNr);
  RealVal real;
  if (!getRealVal(real))
    makeSpecialRealVal(real, REAL_ZERO);
  return real;
}

double doubleRealValue(const AsnValue &value)
{
  RealVal real = realValue(value);
  return retRealVal(real.mantissa, real.base, real.exponent);
}

// --- strings ----------------------------------------------------------------

// Bits of a list of named bits that are expanded.
constexpr int32_t maxBits = 32000;

constexpr int binaryValue = TYP_BITSTR;
constexpr int hexValue = TYP_OCTSTR;

// "1" at every named position, up to the last one.
static std::string namedBitsText(ModRec *module, int32_t first)
{
  std::string text;
  ChainGuard guard(module, REC_VNODE);
  for (int32_t index = first; index != 0;) {
    guard.step();
    readRec(module, REC_VNODE, index);
    index = vNode.next;
    skipValues(true);
    if (vNode.mainType != TYP_INTEGER)
      fatalError(FATAL_INTERNAL);
    int32_t number = 0;
    if (!i64tol(payloadInt64(vNode), number))
      fatalError(FATAL_INTERNAL, "Too long named bit value");
    if (number < 0 || number >= maxBits)
      continue;
    size_t bit = static_cast<size_t>(number);
    text.resize(std::max(text.size(), bit + 1), '0');
    text[bit] = '1';
  }
  return text;
}

// The digits of a value in binary or hexadecimal notation, or its named bits.
static std::string getSafeString(const AsnValue &value)
{
  if (value.base.mainType == binaryValue && value.base.firstChild != 0) {
    SavedNode saved(REC_VNODE);
    return namedBitsText(value.baseModRec, value.base.firstChild);
  }
  size_t length = payloadLength(value.base);
  if (length == 0)
    return {};
  std::string_view stored = getStri(value.baseModRec, payloadStri(value.base));
  return std::string(stored.substr(0, length));
}

static bool isBinaryOrHex(const AsnValue &value)
{
  return value.base.mainType == binaryValue || value.base.mainType == hexValue;
}

static const char hexDigits[] = "0123456789ABCDEF";

static std::string bitsFromHex(const std::string &digits)
{
  std::string bits;
  bits.reserve(4 * digits.size());
  for (char digit : digits) {
    size_t number = std::string_view(hexDigits).find(upperChar(digit));
    for (int bit : {3, 2, 1, 0})
      bits += number < 16 && (number >> bit & 1) ? '1' : '0';
  }
  return bits;
}

// A digit that begins counts as a whole one, an octet as two.
static std::string hexFromBits(const std::string &bits)
{
  std::string digits;
  for (size_t i = 0; i < bits.size(); i += 4) {
    unsigned number = 0;
    for (size_t bit = i; bit < i + 4; ++bit)
      number = 2 * number + (bit < bits.size() && bits[bit] == '1');
    digits += hexDigits[number];
  }
  size_t rest = bits.size() % 8;
  if (rest >= 1 && rest <= 4)
    digits += '0';
  return digits;
}

bool makeBitString(const AsnValue &value, std::string &text, int32_t &length)
{
  if (!isBinaryOrHex(value))
    return false;
  text = getSafeString(value);
  if (value.base.mainType == hexValue)
    text = bitsFromHex(text);
  length = static_cast<int32_t>(text.size());
  return true;
}

bool makeOctetString(const AsnValue &value, std::string &text, int32_t &length)
{
  if (!isBinaryOrHex(value))
    return false;
  text = getSafeString(value);
  if (value.base.mainType == binaryValue)
    text = hexFromBits(text);
  else if (text.size() % 2 != 0)
    text += '0';
  length = static_cast<int32_t>(text.size() / 2);
  return true;
}

bool makeCharacterString(const AsnValue &value, std::string &text,
                         int32_t &length)
{
  int mainType = value.base.mainType;
  bool isCharacters = (mainType >= TYP_NUMSTR && mainType <= TYP_GENSTR) ||
                      mainType == TYP_GENTIME || mainType == TYP_UTCTIME ||
                      mainType == TYP_OBJDESCR;
  if (!isCharacters)
    return false;
  RestrCharStri stri;
  makeRestrCharStri(value.baseModRec, value.base, stri);
  length = stri.length;
  text = std::move(stri.text);
  return true;
}

// --- times ------------------------------------------------------------------

constexpr int32_t noZone = -1000;
constexpr int32_t utcTimeCentury = 1900;

// A number of fixed length; what is no digit any more counts 0.
static int32_t takeNumber(const char *&text, int digits)
{
  int32_t number = 0;
  for (; digits > 0; --digits)
    number = 10 * number + (isDigitChar(*text) ? *text++ - '0' : 0);
  return number;
}

static int32_t takeNumberIfAny(const char *&text)
{
  return isDigitChar(*text) ? takeNumber(text, 2) : 0;
}

static int countDigits(const char *text)
{
  int count = 0;
  while (isDigitChar(text[count]))
    ++count;
  return count;
}

// Milliseconds; a fraction of more than three digits is none.
static int32_t takeFraction(const char *&text)
{
  if (*text != ',' && *text != '.')
    return 0;
  ++text;
  int digits = countDigits(text);
  const char *start = text;
  text += digits;
  // The places that one or two digits leave open count 0.
  return digits >= 1 && digits <= 3 ? takeNumber(start, 3) : 0;
}

static void takeZone(const char *text, TimeRecord &time)
{
  if (*text != '+' && *text != '-') {
    time.isUtc = *text == 'Z';
    time.zoneHours = time.zoneMinutes = noZone;
    return;
  }
  int32_t sign = *text++ == '-' ? -1 : 1;
  int digits = countDigits(text);
  if (digits != 2 && digits != 4)
    return;
  time.zoneHours = sign * takeNumber(text, 2);
  time.zoneMinutes = digits == 4 ? takeNumber(text, 2) : noZone;
}

bool makeTimeRecord(const AsnValue &value, TimeRecord &time)
{
  int mainType = value.base.mainType;
  if (mainType != TYP_GENTIME && mainType != TYP_UTCTIME)
    return false;
  std::string whole;
  int32_t length;
  makeCharacterString(value, whole, length);
  const char *text = whole.c_str();
  time = TimeRecord{};
  time.year = mainType == TYP_GENTIME ? takeNumber(text, 4)
                                      : utcTimeCentury + takeNumber(text, 2);
  time.month = takeNumber(text, 2);
  time.day = takeNumber(text, 2);
  time.hour = takeNumber(text, 2);
  time.minute = takeNumberIfAny(text);
  time.second = takeNumberIfAny(text);
  time.millisecond = takeFraction(text);
  takeZone(text, time);
  return true;
}

// --- object identifiers -----------------------------------------------------

// Arcs that are known by name, X.660 (1988); the last row has no name.
struct KnownArc {
  int32_t number;
  const char *name;
  const KnownArc *below;
};

static const KnownArc recommendationArcs[] = {
    {1, "a", nullptr},  {2, "b", nullptr},  {3, "c", nullptr},
    {4, "d", nullptr},  {5, "e", nullptr},  {6, "f", nullptr},
    {7, "g", nullptr},  {8, "h", nullptr},  {9, "i", nullptr},
    {10, "j", nullptr}, {11, "k", nullptr}, {12, "l", nullptr},
    {13, "m", nullptr}, {14, "n", nullptr}, {15, "o", nullptr},
    {16, "p", nullptr}, {17, "q", nullptr}, {18, "r", nullptr},
    {19, "s", nullptr}, {20, "t", nullptr}, {21, "u", nullptr},
    {22, "v", nullptr}, {23, "w", nullptr}, {24, "x", nullptr},
    {25, "y", nullptr}, {26, "z", nullptr}, {0, nullptr, nullptr}};

static const KnownArc ccittArcs[] = {{0, "recommendation", recommendationArcs},
                                     {1, "question", nullptr},
                                     {2, "administration", nullptr},
                                     {3, "network-operator", nullptr},
                                     {0, nullptr, nullptr}};

static const KnownArc isoArcs[] = {{0, "standard", nullptr},
                                   {1, "registration-authority", nullptr},
                                   {2, "member-body", nullptr},
                                   {3, "identified-organization", nullptr},
                                   {0, nullptr, nullptr}};

static const KnownArc topArcs[] = {{0, "ccitt", ccittArcs},
                                   {1, "iso", isoArcs},
                                   {2, "joint-iso-ccitt", nullptr},
                                   {0, nullptr, nullptr}};

struct ObjIdWalk {
  ObjIdComps *out;  // null: only count
  ChainGuard guard;
  const KnownArc *level = topArcs;  // null: the known arcs are left
  int32_t count = 0;
  ObjIdWalk(ModRec *module, ObjIdComps *o) : out(o), guard(module, REC_VNODE) {}
};

// The name of an arc that has none of its own; steps below it.
static const char *knownName(ObjIdWalk &walk, int32_t number)
{
  for (const KnownArc *arc = walk.level; arc && arc->name; ++arc) {
    if (arc->number != number)
      continue;
    walk.level = arc->below;
    return arc->name;
  }
  walk.level = nullptr;
  return nullptr;
}

static void addArc(ObjIdWalk &walk, const char *ownName)
{
  int32_t number = 0;
  if (!i64tol(payloadInt64(vNode), number))
    fatalError(FATAL_INTERNAL, "Too large object identifier element value");
  ++walk.count;
  if (ownName)
    walk.level = nullptr;
  const char *name = ownName ? ownName : knownName(walk, number);
  if (!walk.out)
    return;
  walk.out->numbers.push_back(number);
  walk.out->names.push_back(name);
}

static int objIdNesting;

// The arcs below the current value; false for one that is no number.
static bool objIdComps(ObjIdWalk &walk)
{
  ModRec *module = currTPtr[REC_VNODE];
  NestingGuard nesting(objIdNesting, module);
  bool first = true;
  for (int32_t index = vNode.firstChild; index != 0; first = false) {
    walk.guard.step();
    readRec(module, REC_VNODE, index);
    index = vNode.next;
    const char *ownName =
        vNode.identifier != 0 ? getStri(module, vNode.identifier) : nullptr;
    skipValues(true);
    if (vNode.mainType == TYP_INTEGER)
      addArc(walk, ownName);
    else if (!first || vNode.mainType != TYP_OBJID || !objIdComps(walk))
      return false;
  }
  return true;
}

// Runs over the arcs of a value; -1 if it has none.
static int32_t runObjIdComps(const AsnValue &value, ObjIdComps *out)
{
  if (value.base.mainType != TYP_OBJID)
    return -1;
  SavedNode saved(REC_VNODE);
  readRec(value.baseModRec, REC_VNODE, value.baseRecNr);
  ObjIdWalk walk(value.baseModRec, out);
  return objIdComps(walk) ? walk.count : -1;
}

int32_t getNrOfObjectIdentifierComps(const AsnValue &value)
{
  return runObjIdComps(value, nullptr);
}

// Counted first, so that the lists grow once.
bool makeObjIdComps(const AsnValue &value, ObjIdComps &out)
{
  int32_t count = getNrOfObjectIdentifierComps(value);
  if (count < 0)
    return false;
  out = ObjIdComps{};
  out.numbers.reserve(static_cast<size_t>(count));
  out.names.reserve(static_cast<size_t>(count));
  runObjIdComps(value, &out);
  return true;
}

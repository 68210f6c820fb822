#pragma once
#include "model/asnvalue.h"
#include "store/fixrec.h"
#include <string>
#include <vector>

// What a value holds, decoded from its base node.

bool booleanValue(const AsnValue &value);
sint64 int64Value(const AsnValue &value);
// Through the gate to 32 bits, which warns in the value's module.
int32_t integerValue(const AsnValue &value);
// Zero for a value that is no REAL.
RealVal realValue(const AsnValue &value);
double doubleRealValue(const AsnValue &value);

// --- Strings. Each is false for a value of another notation.

// A BIT STRING as "0" and "1"; `length` counts bits. Fatal error 13 for a
// named bit beyond 32 bits, and for one that is no number.
bool makeBitString(const AsnValue &value, std::string &text, int32_t &length);
// A string in binary or hexadecimal notation as an even number of hexadecimal
// digits; `length` counts octets.
bool makeOctetString(const AsnValue &value, std::string &text, int32_t &length);
// A string of 8-bit characters, which ends early at one that is a zero, with
// the length of the whole.
bool makeCharacterString(const AsnValue &value, std::string &text,
                         int32_t &length);

// --- Times.
struct TimeRecord {
  int32_t year = 0;
  int32_t month = 0;
  int32_t day = 0;
  int32_t hour = 0;
  int32_t minute = 0;
  int32_t second = 0;
  int32_t millisecond = 0;
  int32_t isUtc = 0;
  int32_t zoneHours = 0;  // -1000: not told
  int32_t zoneMinutes = 0;
};

// A GeneralizedTime or UTCTime; digits that are missing count 0.
bool makeTimeRecord(const AsnValue &value, TimeRecord &time);

// --- Object identifiers.
struct ObjIdComps {
  std::vector<int32_t> numbers;
  std::vector<const char *> names;  // null: no name
};

// All arcs, those of a leading reference first; false if there is one that
// is no number, or the value is no object identifier. Fatal error 13 for a
// number beyond 32 bits.
bool makeObjIdComps(const AsnValue &value, ObjIdComps &out);
// Their count, -1 where there are none.
int32_t getNrOfObjectIdentifierComps(const AsnValue &value);

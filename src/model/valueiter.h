#pragma once
#include "model/asnvalue.h"
#include "model/valuecontent.h"

// Visits of values and of what they are made of. A view belongs to the visit
// that made it and is good during the call-back only. A null call-back is
// fatal error 18.

typedef void NamedNumberCallBack(AsnType &type, AsnValue &value, int index);
typedef void ValueCompCallBack(AsnValue &value, AsnValue &comp, int index);
typedef void PresentOrAbsentCallBack(AsnValue &value, AsnType &typeComp,
                                     int compNbr, AsnValue *valueComp,
                                     int presentNbr);
typedef void DefaultValueCallBack(AsnType &type, AsnValue &value);
typedef void SortedEnumCallBack(AsnType &type, int rootCount,
                                const int32_t *rootValues, bool rootIsContinued,
                                int addCount, const int32_t *addValues,
                                bool addIsContinued);
typedef void TypeEndpointsCallBack(AsnType &type, AsnValue &lower,
                                   bool lowerClosed, AsnValue &upper,
                                   bool upperClosed);
typedef void TimeValueCallBack(AsnValue &value, const TimeRecord &time);
typedef void ObjIdValueCallBack(AsnValue &value, int count,
                                const int32_t *numbers,
                                const char *const *names);
typedef void StringValueCallBack(AsnValue &value, int length, const char *text);

// --- Definitions of a module.
void forEachValue(AsnModule &module, ValueIndexCallBack *cb);
void forEachVisValue(AsnModule &module, ValueIndexCallBack *cb);
// The one value or item, hidden or not, of kind 3 or 9; nothing if it does
// not fit. Leaves the cursor of the kind at the record.
void forValueByRecNr(AsnModule &module, ValueIndexCallBack *cb, int32_t recNr,
                     int kind);

// --- Items of an enumeration, named numbers, named bits: without extension
// markers, or with them as index -1.
void forEachNamedNumber(AsnType &type, NamedNumberCallBack *cb);
void forEachNamedNumberExtMark(AsnType &type, NamedNumberCallBack *cb);

// An enumeration's numbers, those ahead of the marker and those behind it
// each in ascending order; behind it -1 of them without a marker, in a null
// array. A number beyond 32 bits draws a warning and is 0.
void forSortedEnumeratedValueArray(AsnType &type, SortedEnumCallBack *cb);

// True if each number is one above the one before; false for none.
bool isContinuedValueSet(const int32_t *values, int count);

// --- Components of a structured value, elements of a list.
void forEachValueComp(AsnValue &value, ValueCompCallBack *cb);
void forEachValueElem(AsnValue &value, ValueCompCallBack *cb);

// Each component of the value's type, with the value's component of that name
// and its number among those present, or null and -1. A call-back that walks
// another value this way spoils the numbers that follow.
void forEachPresentOrAbsentValueComp(AsnValue &value,
                                     PresentOrAbsentCallBack *cb);

// --- Values of a type.

// The DEFAULT of a component, if it has one. Fatal error 13 if no type
// governs it.
void forDefaultValue(AsnType &type, DefaultValueCallBack *cb);

// The bounds of a type's numbers or lengths, as far as its base node tells;
// nothing for other types.
void forTypeEndpoints(AsnType &type, TypeEndpointsCallBack *cb);

// --- What a value holds; nothing for a value of another notation. A BIT
// STRING as bits, as hexadecimal digits with its length in octets, and so an
// OCTET STRING.
void forTimeValue(AsnValue &value, TimeValueCallBack *cb);
void forObjectIdentifierValue(AsnValue &value, ObjIdValueCallBack *cb);
void forBitStringValueB(AsnValue &value, StringValueCallBack *cb);
void forBitStringValueX(AsnValue &value, StringValueCallBack *cb);
void forOctetStringValue(AsnValue &value, StringValueCallBack *cb);
void forCharacterStringValue(AsnValue &value, StringValueCallBack *cb);

// Comment options of the value's own node.
void forEachValueCommentOption(AsnValue &value, ValueCommentCallBack *cb);

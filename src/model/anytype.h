#pragma once
#include "model/asnvalue.h"

// Possible contents of an ANY, by the lines "$ANY=value:Type" of its node:
// the value that tells of it and the type that it then has, both looked up in
// the module in whose context the ANY is used. A line with an unknown name is
// passed over. A null call-back is fatal error 18.

typedef void AnyTypeVisit(AsnType &any, AsnValue &value, AsnType &entryType,
                          int index);
typedef void AnyDefinedByVisit(AsnType &father, AsnType &classifier,
                               AsnType &any, AsnValue &value,
                               AsnType &entryType, int index);

void forAnyType(AsnType &any, AnyTypeVisit *cb);

// The same with the component that an ANY DEFINED BY names; nothing for an
// ANY without one.
void forAnyDefinedByType(AsnType &father, AsnType &any, AnyDefinedByVisit *cb);

#pragma once
#include "model/asntype.h"
#include <cstdint>

// Counts of the components in the root and in the additions of a structure,
// and the numbers of bits that follow from them.

// The longest preamble, and the mark behind the last number of the table.
constexpr int maxOptionalComps = 512;
constexpr uint16_t noCompNumber = 65535;

// Of a SEQUENCE, SET, CHOICE or addition group. Alternatives are not
// mandatory; a second marker counts for nothing.
struct ExtensionInfo {
  int32_t rootMandatoryCount = 0;
  int32_t rootOptionalCount = 0;  // all that are not mandatory
  int32_t addMandatoryCount = 0;  // of a structure, with groups as one each
  int32_t addOptionalCount = 0;
  int32_t addTotalCount = 0;  // members of groups one by one
  // The components of the root, resp. the members of the group, that are not
  // mandatory; more than there are places are only counted.
  uint16_t optionalCompNumbers[maxOptionalComps] = {};
};

// Fill a fresh record: the total of one that was filled before would go on
// from there. The group must come from a walk over its father.
void perGetExtensionInfo(AsnType &type, ExtensionInfo &info);
void perGetExtensionAdditionGroupInfo(AsnType &group, ExtensionInfo &info);

// Bit of an addition in the bitmap of its structure, whose record `info` is;
// the first addition has the highest one.
int32_t perExtensionAddFieldIndex(const AsnType &comp,
                                  const ExtensionInfo &info);

// Where a component stands to the first marker; without one all is root.
// False without a father.
bool perIsExtensionRootComponent(AsnType *father, const AsnType &comp);
bool perIsExtensionAdditionComponent(AsnType *father, const AsnType &comp);
bool perIsLastExtensionRootComponent(AsnType *father, const AsnType &comp);
bool perIsFirstExtensionAdditionComponent(AsnType *father, const AsnType &comp);

// Extension information of types. A view with a meta record has it worked out
// once; a view without one, a partial one, each time that it is asked.

#include "driver/extmeta.h"
#include "base/diag.h"
#include "driver/typemeta.h"
#include "model/typequery.h"
#include "per/extinfo.h"
#include <algorithm>
#include <iterator>

// Once a run: canonical order is not supported.
static bool canonicalOrderWarned;

void initExtMeta()
{
  canonicalOrderWarned = false;
}

// The record of a view, filled by `fill` when it is asked for first.
template <class F>
static ExtensionInfo extensionInfoOf(AsnType &type, F fill)
{
  BETypMetaRec *meta = getBETypMetaRec(type);
  if (!meta) {
    ExtensionInfo info;
    fill(type, info);
    return info;
  }
  if (!meta->extensionInfoValid) {
    fill(type, meta->extensionInfo);
    meta->extensionInfoValid = 1;
  }
  return meta->extensionInfo;
}

ExtensionInfo getExtensionInfo(AsnType &type)
{
  return extensionInfoOf(type, perGetExtensionInfo);
}

ExtensionInfo getExtensionAdditionGroupInfo(AsnType &group)
{
  return extensionInfoOf(group, perGetExtensionAdditionGroupInfo);
}

// The father if it is a SEQUENCE, else null.
static AsnType *sequenceOf(const AsnType &comp)
{
  AsnType *father = getFatherOfTypeComp(comp);
  return father && getTypeMainType(*father) == TYP_SEQ ? father : nullptr;
}

int32_t getTypeCompOptFieldIndex(const AsnType &comp)
{
  AsnType *father = sequenceOf(comp);
  if (!father || !isOptionalTypeComp(comp))
    return -1;
  AsnType *group = comp.addGroup;
  if (!group && !perIsExtensionRootComponent(father, comp))
    return -1;
  const ExtensionInfo info =
      group ? getExtensionAdditionGroupInfo(*group) : getExtensionInfo(*father);
  const uint16_t *first = info.optionalCompNumbers;
  const uint16_t *end =
      std::find(first, std::end(info.optionalCompNumbers), noCompNumber);
  const uint16_t *place = std::find(first, end, getTypeCompNbr(comp));
  return place == end ? -1 : static_cast<int32_t>(end - place) - 1;
}

int32_t getTypeCompExtensionAddFieldIndex(const AsnType &comp)
{
  AsnType *father = sequenceOf(comp);
  if (!father || !isTypeExtensionmarkerComp(*father))
    return -1;
  return perExtensionAddFieldIndex(comp, getExtensionInfo(*father));
}

static void warnOfCanonicalOrder(const AsnModule &module)
{
  if (canonicalOrderWarned)
    return;
  canonicalOrderWarned = true;
  std::string text;
  warning(getModuleRef(text, "The module ", module,
                       " does not contain AUTOMATIC TAGS")
              .c_str());
  warning("but there are choice/set types in the modules.");
  warning("QUORVEN does not yet support such definitions.");
}

int32_t getCompCanonicalOrder(const AsnType &comp)
{
  const AsnModule &module = *getModuleOfType(comp);
  if (!module.rec->automaticTags) {
    warnOfCanonicalOrder(module);
    return -1;
  }
  int32_t number = getTypeCompNbr(comp);
  AsnType *father = getFatherOfTypeComp(comp);
  if (!father || perIsExtensionRootComponent(father, comp))
    return number;
  return number - getTypeExtensionmarkerCompNbr(*father) - 1;
}

// A group's own status tells nothing, its members do.
static bool isGroup(const AsnType &comp)
{
  return getTypeMainType(comp) == TYP_EXTADDGRP;
}

static bool hasMandatoryMember(AsnType &group)
{
  return getExtensionAdditionGroupInfo(group).addMandatoryCount > 0;
}

bool isOptionalExtensionAdditionComponentOrGroup(AsnType &comp)
{
  return isGroup(comp) ? !hasMandatoryMember(comp) : isOptionalTypeComp(comp);
}

bool isMandatoryExtensionAdditionComponentOrGroup(AsnType &comp)
{
  return isGroup(comp) ? hasMandatoryMember(comp) : isMandatoryTypeComp(comp);
}

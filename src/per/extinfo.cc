// Extension information. One call-back counts for both walks: over the
// components of a structure, which sees a group as one, and over the members
// of a group, which all lie behind the marker.

#include "per/extinfo.h"
#include "base/upcalls.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include <algorithm>
#include <iterator>

// The record that the walk under way fills.
static struct InfoWalk {
  ExtensionInfo *info = nullptr;
  int listed = 0;  // places of the table that are taken
} infoWalk;

// The walk over a structure has passed a marker; its groups don't matter.
static bool afterMarker;

// Clears a record for the walk that lasts as long as the scope.
struct SavedInfoWalk {
  InfoWalk outer = infoWalk;
  explicit SavedInfoWalk(ExtensionInfo &info)
  {
    info.rootMandatoryCount = info.rootOptionalCount = 0;
    info.addMandatoryCount = info.addOptionalCount = 0;
    std::fill(std::begin(info.optionalCompNumbers),
              std::end(info.optionalCompNumbers), noCompNumber);
    infoWalk = {.info = &info};
  }
  ~SavedInfoWalk() { infoWalk = outer; }
  SavedInfoWalk(const SavedInfoWalk &) = delete;
  SavedInfoWalk &operator=(const SavedInfoWalk &) = delete;
};

static void listOptional(const AsnType &comp)
{
  if (infoWalk.listed < maxOptionalComps)
    infoWalk.info->optionalCompNumbers[infoWalk.listed++] =
        static_cast<uint16_t>(comp.compNbr);
}

static void countRoot(const AsnType &comp)
{
  ExtensionInfo &info = *infoWalk.info;
  if (isMandatoryTypeComp(comp)) {
    ++info.rootMandatoryCount;
    return;
  }
  listOptional(comp);
  ++info.rootOptionalCount;
}

static void countGroup(AsnType &group)
{
  ExtensionInfo members = getExtensionAdditionGroupInfo(group);
  ExtensionInfo &info = *infoWalk.info;
  if (members.addMandatoryCount > 0)
    ++info.addMandatoryCount;
  else
    ++info.addOptionalCount;
  info.addTotalCount += members.addMandatoryCount + members.addOptionalCount;
}

static void countAddition(const AsnType &comp)
{
  ExtensionInfo &info = *infoWalk.info;
  ++info.addTotalCount;
  if (isMandatoryTypeComp(comp)) {
    ++info.addMandatoryCount;
    return;
  }
  if (comp.addGroup)
    listOptional(comp);
  ++info.addOptionalCount;
}

static void countComp(AsnType &, AsnType &comp, int)
{
  if (isTypeExtensionmarker(comp))
    afterMarker = true;
  else if (!afterMarker && !comp.addGroup)
    countRoot(comp);
  else if (getTypeMainType(comp) == TYP_EXTADDGRP)
    countGroup(comp);
  else
    countAddition(comp);
}

void perGetExtensionInfo(AsnType &type, ExtensionInfo &info)
{
  SavedInfoWalk saved(info);
  afterMarker = false;
  forEachTypeComp(type, countComp);
}

void perGetExtensionAdditionGroupInfo(AsnType &group, ExtensionInfo &info)
{
  SavedInfoWalk saved(info);
  if (AsnType *father = getFatherOfTypeComp(group))
    forEachAdditionGroupComp(*father, group, countComp);
}

int32_t perExtensionAddFieldIndex(const AsnType &comp,
                                  const ExtensionInfo &info)
{
  return info.addOptionalCount + info.addMandatoryCount - comp.extCompNbr - 1;
}

bool perIsExtensionRootComponent(AsnType *father, const AsnType &comp)
{
  return isExtensionRootComponent(father, comp);
}

bool perIsExtensionAdditionComponent(AsnType *father, const AsnType &comp)
{
  return isExtensionAdditionComponent(father, comp);
}

bool perIsLastExtensionRootComponent(AsnType *father, const AsnType &comp)
{
  return isLastExtensionRootComponent(father, comp);
}

bool perIsFirstExtensionAdditionComponent(AsnType *father, const AsnType &comp)
{
  return isFirstExtensionAdditionComponent(father, comp);
}

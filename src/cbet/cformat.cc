// Questions about the value format: the code by which the front-end tells how
// a value lies in the C structures.

#include "cbet/cgenstate.h"
#include "cbet/cnames.h"
#include "model/typequery.h"

static bool isBetween(int format, ValueField first, ValueField last)
{
  return format >= first && format <= last;
}

bool cIsSimpleType(const AsnType &type)
{
  int format = getVF(type);
  return isBetween(format, VF_BOOL, VF_REAL128) || format == VF_NULL;
}

bool cIsPredefinedType(const AsnType &type)
{
  int format = getVF(type);
  return isBetween(format, VF_BOOL, VF_REAL128) ||
         isBetween(format, VF_DYNS0, VF_NULL) ||
         isBetween(format, VF_ANY, VF_BMPSTR);
}

bool cIsFrameType(const AsnType &type)
{
  int format = getVF(type);
  if (format == VF_FRM || testTypeOption(type, optFrame))
    return true;
  if (format != VF_ANY && format != VF_OPEN)
    return false;
  // Without functions of its own an open value is left to the application.
  const AsnModule &module = *getModuleOfType(type);
  return isVarnoApplication(module) ||
         !testCGenerationOption(module, CGEN_ANY_FUNCTIONS);
}

static bool isStringType(const AsnType &type)
{
  int mainType = getTypeMainType(type);
  return mainType == TYP_BITSTR || mainType == TYP_OCTSTR ||
         isRestrCharStringType(type);
}

bool cIsStaticString(const AsnType &type)
{
  return isStringType(type) && isBetween(getVF(type), VF_STAS0, VF_STAS);
}

bool cIsDynamicString(const AsnType &type)
{
  int format = getVF(type);
  return isStringType(type) && (isBetween(format, VF_DYNS0, VF_DYNS) ||
                                isBetween(format, VF_BMPSTR0, VF_BMPSTR));
}

static bool isArray(const AsnType &type)
{
  return isListType(type) && getVF(type) == VF_STRU;
}

bool cIsStaticArray(const AsnType &type)
{
  return isArray(type) && !testTypeOption(type, optDynamicArray);
}

bool cIsDynamicArray(const AsnType &type)
{
  return isArray(type) && testTypeOption(type, optDynamicArray);
}

bool cIsPtrAsnHomeMember(const AsnType &type)
{
  int format = getVF(type);
  return isBetween(format, VF_STAS0, VF_STAS) || format == VF_STRU ||
         isBetween(format, VF_OBJI, VF_EXTERNAL_1994);
}

// Strings whose layout has room for a count.
static bool isCountedString(int format)
{
  return isBetween(format, VF_STAS8, VF_STAS) ||
         isBetween(format, VF_DYNS8, VF_DYNS);
}

static bool isCountedBMPString(int format)
{
  return isBetween(format, VF_STAS8, VF_STAS) ||
         isBetween(format, VF_BMPSTR8, VF_BMPSTR);
}

// The components lie in a C structure, and not each in a home.
static bool isPlainStructure(const AsnType &type)
{
  return !cIsHometab(type) && !testTypeOption(type, optAsnhc);
}

bool cIsControlMember(const AsnType &type)
{
  int format = getVF(type);
  switch (int mainType = getTypeMainType(type)) {
  case TYP_BITSTR:
  case TYP_OCTSTR:
    return isCountedString(format);
  case TYP_SEQ:
  case TYP_SET:
    return isPlainStructure(type) && isOptionalTypeComps(type) &&
           getVFSize(type) > 0;
  case TYP_SEQOF:
  case TYP_SETOF:
    return isArray(type) && getVFSize(type) > 0;
  case TYP_CHOICE:
    return isPlainStructure(type);
  case TYP_BMPSTR:
    return isCountedBMPString(format);
  default:
    return mainType >= TYP_NUMSTR && mainType <= TYP_GENSTR &&
           isCountedString(format);
  }
}

int cGetVF(const AsnType &type)
{
  return cIsFrameType(type) ? VF_FRM : getVF(type);
}

const char *cGetVFStri(const AsnType &type)
{
  if (getTypeMainType(type) == TYP_REAL &&
      testCGenerationOption(*getModuleOfType(type), CGEN_REAL))
    return "VF_REAL";
  int format = cGetVF(type);
  return format < VF_COUNT ? vfIdName(format) : "?!?";
}

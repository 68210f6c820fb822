// Which function is being written.

#include "cbet/cgenstate.h"
#include "model/typequery.h"

bool glbGeneratingEntryFunction;
AsnType *glbEntryType;

bool cIsGeneratingEntryFuncForThisType(const AsnType &type)
{
  return glbGeneratingEntryFunction && glbEntryType == &type;
}

bool cIsHometab(const AsnType &type)
{
  return glbGeneratingEntryFunction && isEntryType(type) &&
         isVarnoApplication(*getModuleOfType(type));
}

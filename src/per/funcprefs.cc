// Prefixes of generated functions.

#include "per/funcprefs.h"
#include "base/upcalls.h"

// The names of the BER back-end bear no mark of the variant.
void perSetFuncPrefs(const AsnModule &module, TypeFuncInfo &info,
                     const FuncPrefixes &prefixes)
{
  int marked = getMetaVariantFuncPref(module) ? 1 : 0;
  int variant = getMetaEncodingVariant(module);
  info.normalFuncPrefix = prefixes.normal[marked][variant];
  info.entryFuncPrefix = getMetaBERFuncPref(module)
                             ? prefixes.entryBer[variant]
                             : prefixes.entry[marked][variant];
}

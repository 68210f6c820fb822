// The table between engine and generator.

#include "cbet/typefuncinfo.h"

void cInitTypeFuncInfo(TypeFuncInfo &info)
{
  info = TypeFuncInfo{};
}

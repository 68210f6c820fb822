#pragma once
#include "cbet/typefuncinfo.h"

// Path calls of generated code, by which the run-time tells where in a value
// an error lies. Written only under the module's PUSHPATH option.

void perPushPath(AsnType &comp, TypeFuncInfo &info);
// Fatal error 13 without a father.
void perPushElem(AsnType &elem, TypeFuncInfo &info);
// In the functions for elements.
void perPushElemInCallBack(AsnType &elem, TypeFuncInfo &info);
void perPopPath(AsnType &comp, TypeFuncInfo &info);
void perEntryPushPath(AsnType &type, TypeFuncInfo &info);
void perEntryPopPath(AsnType &type, TypeFuncInfo &info);

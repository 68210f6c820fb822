#pragma once
#include "model/asntype.h"

// The path by which an application learns where generated code stands. These
// are the toolkit's own calls, which a generator may replace. Nothing is
// written unless "PUSHPATH=" is on.

void cPushEntryPath(int file, AsnType &type);
void cPushPath(int file, AsnType &comp);
void cPushElem(int file, AsnType &list);
void cPopEntryPath(int file, AsnType &type);
void cPopPath(int file, AsnType &comp);

#pragma once
#include "model/asntype.h"

// Presence of components in generated code.

// The block of a component or addition group that may be absent; nothing for
// others.
void cBeginTestOptionalComp(int file, AsnType &father, AsnType &comp);
void cEndTestOptionalComp(int file, AsnType &father, AsnType &comp);

// The condition that a component, resp. any member of an addition group, is
// there. Where components have homes of their own the name goes on the type
// name path for the test, unless it stands there.
void cTestComponent(int file, AsnType &father, AsnType &comp);
void cTestOptionalComp(int file, AsnType &father, AsnType &comp);
void cTestOptionalGroup(int file, AsnType &father, AsnType &group);

// The block for a component of a SET that is there already.
void cBeginTestDuplicateSetComp(int file, AsnType &comp);
void cEndTestDuplicateSetComp(int file);

// The block for a SET that lacks a mandatory component; nothing if it has
// none.
void cBeginTestMissingSetMandatoryComps(int file, AsnType &type);
void cEndTestMissingSetMandatoryComps(int file, AsnType &type);

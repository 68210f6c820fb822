#pragma once
#include "cbet/typefuncinfo.h"

// The walk that writes the body of a function, and the search for the types
// whose functions a body calls.

// The whole body of a structured or list type.
void funcForStructuredTypeAndCompsOrElems(AsnType &type);

// All that belongs to one component or element; the form is that of the type
// iterators.
void funcForComponentOrElement(AsnType &father, AsnType &comp, int compNbr);

// Writes the functions that the type's function will call and that are not
// there yet.
void genReferredTypes(AsnType &type);

// True if the component's value lives in an ASNHOME; `father` may be null.
bool isAsnHomeComp(const AsnType *father, const AsnType &comp);

// True if the component has a piece in the path: not a marker, nor an element
// of a linked list.
bool mustAddCompNameToPath(const AsnType &comp);

// Put the component's piece on the type name path and take it away again;
// the view learns the length of its path. Fatal error 13 for a component
// status without a path.
void addCompNameToPath(AsnType &comp);
void removeCompNameFromPath(AsnType &comp);

// The separator ahead of the component's piece; null at top level.
const char *cGetSeparatorInTypePath(const AsnType &comp);

// Embedding lines of the place `selector` at a component, resp. around the
// body of a function.
void printCodeTEDs(AsnType &type, bool topLevel, int selector);

// --- Lists with a size limit whose surplus is read and dropped.

bool dropsSurplusElems(const AsnType &list);

// Sets the upper bound of a list in the loop that builds it.
void checkListUpperBound(AsnType &father, AsnType &comp);

// The variable "extraElems" tells that there are surplus elements.
bool extraElemsVarUsed();

// The list has a loop over its surplus elements, behind the one that stores.
bool hasSurplusLoop(const AsnType &list);

// Writes that loop.
void ignoreTrailingListElems(AsnType &father, AsnType &comp);

// --- Nesting of inline code. A type that contains itself in place is a
// damaged tree: fatal error 13 if the front-end marked it as recursive, else
// 15 at a depth or, under the outermost one, a number of inline types that no
// sound tree comes near.
struct InlineNesting {
  explicit InlineNesting(const AsnType &type);
  ~InlineNesting();
  InlineNesting(const InlineNesting &) = delete;
  InlineNesting &operator=(const InlineNesting &) = delete;

  const ModRec *module;
  int32_t recNr;
  bool recursive;
  int64_t depth;
  InlineNesting *outer;
};

// A function of its own begins: what stands in line in it is counted afresh,
// though the types around the place where it was found are still entered.
struct InlineRestart {
  InlineRestart();
  ~InlineRestart();
  InlineRestart(const InlineRestart &) = delete;
  InlineRestart &operator=(const InlineRestart &) = delete;

  InlineNesting *outer;
  int64_t visited;
};

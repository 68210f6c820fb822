#pragma once
#include "base/upcalls.h"
#include "model/asntype.h"

// Values as every generator sees them: short-lived views of a value node,
// with its governing type. As in a type's view, the fields that begin with
// `comp` tell of the node that the view was started on, those that begin with
// `base` of the end of its chain of references.

struct BEValMetaRec;

struct AsnValue {
  AsnModule *mod = nullptr;      // whose cursors step this value
  AsnModule *homeMod = nullptr;  // in whose context it is used
  AsnValue *father = nullptr;    // of a component or element
  AsnType *governor = nullptr;   // owned, with its module; null for infinities
  ModRec *compModRec = nullptr;
  int32_t compRecNr = 0;
  FixRec compFix;
  int32_t compStatus = 0;
  ModRec *baseModRec = nullptr;
  int32_t baseRecNr = 0;
  FixRec baseFix;
  VNode base;
  int32_t childIndex = 0;    // running, during a walk over the components
  int32_t stringLength = 0;  // in the string's own unit
  bool commentOptions = false;
  BEValMetaRec *metaRec = nullptr;  // owned
  bool alive = false;
};

typedef void ValueIndexCallBack(AsnValue &value, int index);
typedef void ValueCommentCallBack(AsnValue &value, const char *text, int index);

// A fresh view, alive, that knows its two modules and nothing else.
AsnValue *newAsnValue(AsnModule *mod, AsnModule *homeMod);

// Frees what the view owns and gives it back; null and a view that is not
// alive are passed over.
void delAsnValue(AsnValue *value);

// Builds the view from the current value node; `fixKind` is `FIX_VALUE` or
// `FIX_COMP_VALUE`. Leaves the buffers at the end of the value's chain and at
// its governor. Fatal error 13 for a value that no type governs.
void getValuePath(AsnValue *father, AsnValue &value, int fixKind);

// The same; false, with the view half made, if no type governs the value. A
// governor that the view has already is kept if it is the right one.
bool tryValuePath(AsnValue *father, AsnValue &value, int fixKind);

// Forgets everything but the two modules and the governor, for the next node
// of a walk.
void reuseAsnValue(AsnValue &value);

// Makes the view of an endpoint that holds an infinity: no node is behind it.
void initInfinityValue(AsnValue &value, const VNode &endpoint);

// The governor of a value, in a module of its own, both the caller's; null
// if the record is neither a type nor a value set. `moduleIndex` counts in
// the value's own module.
AsnType *governorForAsnValue(const AsnValue &value, int32_t moduleIndex,
                             int32_t recNr);
// Takes it back, with its module; null is passed over.
void delGovernor(AsnType *governor);

// --- Node selection, as `nextTNode`: moves the value cursor of `kind`. Fatal
// error 13 for another kind.
enum ValueSelection : int {
  SELECT_VALUES = 3,
  SELECT_OBJECTS = 4,
  SELECT_SPARE_VALUES = 8,  // values and objects
  SELECT_NAMED_NUMBERS = 9  // status 0 or 1
};
bool nextVNode(AsnModule &module, int kind, bool includeHidden);

// --- Definitions of a module. `nextValue` reuses the view, and deletes it and
// gives null at the end.
AsnValue *firstValue(AsnModule &module);
AsnValue *nextValue(AsnValue *value);

// --- Plain reads.
AsnType *getTypeOfValue(const AsnValue &value);
AsnModule *getModuleOfValue(const AsnValue &value);
BEValMetaRec *getBEValMetaRec(const AsnValue &value);
int getValueMainType(const AsnValue &value);
int32_t getValueCompStatus(const AsnValue &value);
int32_t getBaseValueCompStatus(const AsnValue &value);
int32_t bitStringLength(const AsnValue &value);
int32_t octetStringLength(const AsnValue &value);
int32_t characterStringLength(const AsnValue &value);
bool isVisibleValue(const AsnValue &value);
bool isValueExtensionmarker(const AsnValue &value);
bool isValueCommentOption(const AsnValue &value);

// An INTEGER or REAL at its infinity.
bool isPlusInfinity(const AsnValue &value);
bool isMinusInfinity(const AsnValue &value);

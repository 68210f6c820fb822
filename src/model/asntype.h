#pragma once
#include "base/upcalls.h"
#include "store/module.h"
#include "store/nodelist.h"
#include "store/typenode.h"

// Types as every generator sees them: flattened, short-lived views of a type
// node, built by walking its synonym chain. The fields that begin with `comp`
// tell of the node that the view was started on, those that begin with `base`
// of the node at the end of the chain. The pair (module record, record
// number) is a node's identity.

struct BETypMetaRec;
struct IntegerValueSet;

struct AsnType {
  AsnModule *mod = nullptr;      // whose cursors step this type and its sons
  AsnModule *homeMod = nullptr;  // in whose context it is used
  AsnType *father = nullptr;     // null at top level
  AsnType *addGroup = nullptr;   // the addition group it was reached through
  ModRec *compModRec = nullptr;
  int32_t compRecNr = 0;
  FixRec compFix;
  int32_t compNbr = 0;     // among the father's components, markers counted
  int32_t extCompNbr = 0;  // -1 up to the first marker, then 0, 1, ...
  int32_t compStatus = 0;
  int16_t level = 0;  // of list elements inside one definition
  int32_t defaultValue = 0;
  int32_t stamp = 0;  // last known
  int32_t firstMainType = 0;
  int32_t fieldRef = 0;
  uint16_t nodeFlags = 0;
  TypeOptions typeOptions;  // of the node; size limit and action are read
                            // from `base`
  ModRec *baseModRec = nullptr;
  int32_t baseRecNr = 0;
  FixRec baseFix;
  uint8_t entryFlags = 0;  // 0 for sons
  uint8_t entryCategory = 0;
  const char *typePath = nullptr;  // the path in force at construction
  uint32_t typePathLen = 0;
  TNode base;
  DynaNode *tagsFirst = nullptr;  // tags and embedding options, as inserted
  DynaNode *tagsOutermost = nullptr;
  DynaNode *tagsLast = nullptr;
  int32_t nrTags = 0;
  int32_t nrLocalTags = 0;
  int32_t nrConstraints = 0;
  int32_t nrLocalConstraints = 0;
  NodeList constraints{NODES_CONSTRAINTS};  // the base's first
  int32_t synonymSteps = 0;
  int32_t compIndex = 0;  // running, during a walk over the components
  sint64 sizeLower;
  sint64 sizeUpper;
  bool prevCompOptional = false;  // the component visited last
  int32_t extMarkerCompNbr = -1;  // of the first marker, -1: not known
  bool commentOptions = false;
  bool inComponentsOf = false;
  IntegerValueSet *valueSet = nullptr;  // cached, owned
  BETypMetaRec *metaRec = nullptr;      // owned
  bool alive = false;
  bool partialInfo = false;  // no meta record is wanted
};

// A fresh view, alive, that knows its two modules and nothing else.
AsnType *newAsnType(AsnModule *mod, AsnModule *homeMod);

// Frees what the view owns and makes it as fresh, without modules.
void clearAsnType(AsnType &type);

// Clears the view and gives it back; null and a view that is not alive are
// passed over.
void delAsnType(AsnType *type);

// Build `son` from the current type node; the node buffer is left at the end
// of its chain. `autoTagNr` is the context tag where automatic tagging
// applies.
void getTypePath(AsnType *father, AsnType &son, bool followSelection);
void getTypePathN(AsnType *father, AsnType &son, bool followSelection,
                  int autoTagNr);

// Whether sons get meta records and back-end options; gives the old setting.
bool setCreateBETypMetaFlag(bool flag);

// Reads the node where a synonym chain begins: the record, or the
// parameterised type that it is an instance of.
void readTNodeForBegOfSynonymChain(ModRec *module, int32_t recNr);

// As `skipTypes`; the first topmost node of an instance that is met is noted
// in `context`, which is left alone if there is none.
void skipTypesCatchInst(bool followFieldLists, NodeContext &context);

// The record number less 1, and plain reads.
int32_t getUniqueTypeNr(const AsnType &type);
int32_t getUniqueBaseTypeNr(const AsnType &type);
BETypMetaRec *getBETypMetaRec(const AsnType &type);
int getTypeDefinitionLevel(const AsnType &type);
int32_t getTypeDefinitionLine(const AsnType &type);
bool isPartialTypeInfo(const AsnType &type);
bool isTheSameTypeModule(const AsnType &type, const AsnType &other);
bool isBaseTypeInCurrentModule(const AsnType &type);

// Of the current type node: a field of a class by `CLASS.&field`.
bool isObjClassFieldTypeTNode();

// Leaves the buffer on the class of such a node; fatal error 13 for another.
void getClassOfObjClassFieldTypeTNode();

// Makes the governor of a field value of an object current, a type node;
// false if a field of variable type has none. The value buffer is restored.
bool readGovTNodeForFieldVNode(ModRec *module, int32_t firstFieldValue);

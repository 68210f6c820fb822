#pragma once
#include "model/objclass.h"
#include "model/object.h"

// Object sets: short-lived views of a type node with the set flag whose chain
// ends in a class. The objects hang on the node as constraints do on a type.

struct BEObjSetMetaRec;

struct AsnObjectSet {
  AsnModule *mod = nullptr;         // whose cursors step this set
  AsnModule *homeMod = nullptr;     // in whose context it is used
  AsnObjectSet *father = nullptr;   // null at top level
  AsnObjClass *objClass = nullptr;  // owned, with its module; null if the
                                    // module does not import the class's
  ModRec *compModRec = nullptr;
  int32_t compRecNr = 0;
  FixRec compFix;
  int32_t compNbr = 0;
  int32_t compStatus = 0;
  int32_t defaultValue = 0;
  int32_t stamp = 0;
  int32_t firstMainType = 0;
  int32_t fieldRef = 0;
  uint16_t nodeFlags = 0;
  TypeOptions typeOptions;
  ModRec *baseModRec = nullptr;
  int32_t baseRecNr = 0;
  FixRec baseFix;
  int16_t level = 0;
  TNode base;
  DynaNode *embeddingFirst = nullptr;  // embedding options, in the order of
  DynaNode *embeddingLast = nullptr;   // the chain
  int32_t synonymSteps = 0;
  bool commentOptions = false;
  BEObjSetMetaRec *metaRec = nullptr;  // owned
  bool alive = false;
};

typedef void ObjectSetIndexCallBack(AsnObjectSet &set, int index);
typedef void SetObjectCallBack(AsnObjectSet &set, AsnObject &object, int index);

// True while a meta record of a set is being made: no set may be built.
extern bool inBEObjSetMetaConstructor;

// A fresh view, alive, that knows its two modules and nothing else.
AsnObjectSet *newAsnObjectSet(AsnModule *mod, AsnModule *homeMod);

// Frees what the view owns and gives it back; null and a view that is not
// alive are passed over.
void delAsnObjectSet(AsnObjectSet *set);

// Builds the view from the current type node; the buffer is left anywhere.
void getObjectSetPath(AsnObjectSet *father, AsnObjectSet &set);

// --- Visits. A null call-back is fatal error 18; a view is good during the
// call-back only.

// `nextObjectSet` reuses the view, and deletes it and gives null at the end.
AsnObjectSet *firstObjectSet(AsnModule &module);
AsnObjectSet *nextObjectSet(AsnObjectSet *set);
void forEachObjectSet(AsnModule &module, ObjectSetIndexCallBack *cb);

// The objects of the set, those of included sets too, without what stands
// behind an extension marker. Fatal error 13 if they are not just listed.
void forObjectSet(AsnObjectSet &set, SetObjectCallBack *cb);

// Visits the objects below the current constraint record, as index 0 each; an
// extension marker is passed over or as bad as any other constraint.
void constructSetObjects(ObjectIndexCallBack *cb, bool passesMarkers);

// The number by which `setModule` knows the module of a class; 0 if it does
// not.
int32_t getModNrOfGoverningClass(ModRec *setModule, const ModRec *classModule);

// --- Queries.
AsnObjClass *getObjClassOfObjectSet(const AsnObjectSet &set);
AsnModule *getModuleOfObjectSet(const AsnObjectSet &set);
int32_t getObjectSetDefinitionLine(const AsnObjectSet &set);
BEObjSetMetaRec *getBEObjSetMetaRec(const AsnObjectSet &set);

// Names, a Ref in ASN.1, an Id in C, between `prefix` and `suffix`.
std::string &getObjectSetRef(std::string &text, const char *prefix,
                             const AsnObjectSet &set, const char *suffix);
std::string &getDefObjectSetId(std::string &text, const char *prefix,
                               const AsnObjectSet &set, const char *suffix);
// Fatal error 13 for what ends in no class.
std::string &getBaseObjectSetRef(std::string &text, const char *prefix,
                                 const AsnObjectSet &set, const char *suffix);
std::string &getDefBaseObjectSetId(std::string &text, const char *prefix,
                                   const AsnObjectSet &set, const char *suffix);

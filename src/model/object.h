#pragma once
#include "model/objclass.h"

// Information objects: short-lived views of a value node whose chain ends in
// an object. The fields that begin with `comp` tell of the node that the view
// was started on, those that begin with `base` of the end of its chain of
// references.

struct BEObjMetaRec;

struct AsnObject {
  AsnModule *mod = nullptr;         // whose cursors step this object
  AsnModule *homeMod = nullptr;     // in whose context it is used
  AsnObject *father = nullptr;      // null at top level
  AsnObjClass *objClass = nullptr;  // owned, with its module
  ModRec *compModRec = nullptr;
  int32_t compRecNr = 0;
  int32_t compStatus = 0;
  FixRec compFix;
  ModRec *baseModRec = nullptr;
  int32_t baseRecNr = 0;
  FixRec baseFix;
  VNode base;
  bool commentOptions = false;
  BEObjMetaRec *metaRec = nullptr;  // owned
  bool alive = false;
};

typedef void ObjectIndexCallBack(AsnObject &object, int index);
typedef void ClassObjectCallBack(AsnObjClass &objClass, AsnObject &object,
                                 int index);
typedef void ClassCountCallBack(AsnObjClass &objClass, int count);

// A fresh view, alive, that knows its two modules and nothing else.
AsnObject *newAsnObject(AsnModule *mod, AsnModule *homeMod);

// Frees what the view owns and gives it back; null and a view that is not
// alive are passed over.
void delAsnObject(AsnObject *object);

// Builds the view from the current value node, whose names are of the kind
// `FIX_OBJECT`; the buffers are left anywhere. Fatal error 13 for an object
// that no class governs.
void getObjectPath(AsnObject *father, AsnObject &object, int fixKind);

// --- Visits. A null call-back is fatal error 18; a view is good during the
// call-back only.

// `nextObject` reuses the view, and deletes it and gives null at the end.
AsnObject *firstObject(AsnModule &module);
AsnObject *nextObject(AsnObject *object);
void forEachObject(AsnModule &module, ObjectIndexCallBack *cb);

// The one object, hidden or not, as index 0; nothing if the record is none.
void forObjectByRecNr(AsnModule &module, ObjectIndexCallBack *cb,
                      int32_t recNr);

// The module's objects of a class, numbered, and then their count, if it is
// not 0.
void forEachObjectOfClass(AsnModule &module, AsnObjClass &objClass,
                          ClassObjectCallBack *cb, ClassCountCallBack *endCb);

// True if both are references to one class.
bool isSameBaseObjClass(const AsnObjClass &a, const AsnObjClass &b);

// --- Queries.

// The record number less 1.
int32_t getUniqueObjectNr(const AsnObject &object);
int32_t getUniqueBaseObjectNr(const AsnObject &object);
AsnObjClass *getObjClassOfObject(const AsnObject &object);
int32_t getObjectCompStatus(const AsnObject &object);
int32_t getBaseObjectCompStatus(const AsnObject &object);
// Not written in place, in a field or a set.
bool isDefinedObject(const AsnObject &object);
bool isDefinedBaseObject(const AsnObject &object);
BEObjMetaRec *getBEObjMetaRec(const AsnObject &object);
AsnModule *getModuleOfObject(const AsnObject &object);
int32_t getObjectDefinitionLine(const AsnObject &object);

// Names, a Ref in ASN.1, an Id in C, between `prefix` and `suffix`.
std::string &getObjectRef(std::string &text, const char *prefix,
                          const AsnObject &object, const char *suffix);
std::string &getBaseObjectRef(std::string &text, const char *prefix,
                              const AsnObject &object, const char *suffix);
std::string &getObjectId(std::string &text, const char *prefix,
                         const AsnObject &object, const char *suffix);
std::string &getBaseObjectId(std::string &text, const char *prefix,
                             const AsnObject &object, const char *suffix);

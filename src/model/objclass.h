#pragma once
#include "model/asntype.h"
#include <string>

// Information object classes, seen as types are: short-lived views of a type
// node whose chain ends in a class. The fields that begin with `comp` tell of
// the node that the view was started on, those that begin with `base` of the
// end of its chain. Generators of encoders and decoders ask for none of it.

struct BEClassMetaRec;

struct AsnObjClass {
  AsnModule *mod = nullptr;       // whose cursors step this class
  AsnModule *homeMod = nullptr;   // in whose context it is used
  AsnObjClass *father = nullptr;  // null at top level
  ModRec *compModRec = nullptr;
  int32_t compRecNr = 0;
  FixRec compFix;
  int32_t compNbr = 0;
  int32_t compStatus = 0;
  int32_t firstMainType = 0;
  int32_t defaultValue = 0;
  int32_t stamp = 0;  // last known
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
  BEClassMetaRec *metaRec = nullptr;  // owned; null without a name
  bool alive = false;  // false for a partial class, too: no meta record and
                       // no back-end options are wanted
};

typedef void ClassIndexCallBack(AsnObjClass &objClass, int index);
typedef void ClassVisit(AsnObjClass &objClass);
typedef void ClassCommentCallBack(AsnObjClass &objClass, const char *text,
                                  int index);

// True while a meta record of a class is being made: no class may be built.
extern bool inBEClassMetaConstructor;

// A fresh view, alive, that knows its two modules and nothing else. One that
// shall be partial is not alive before it is built.
AsnObjClass *newAsnObjClass(AsnModule *mod, AsnModule *homeMod);

// Frees what the view owns and gives it back; null and a view that is not
// alive, a partial one among them, are passed over.
void delAsnObjClass(AsnObjClass *objClass);

// Builds the view from the current type node; the buffer is left anywhere.
// Fatal error 13 for a selection on the way.
void getClassPath(AsnObjClass *father, AsnObjClass &objClass);

// The class that governs an object, resp. an object set, as a partial one in
// a module of its own, both the caller's; null if the record is no class.
// `moduleIndex` counts in the module of the object or set.
AsnObjClass *governorForAsnObject(const AsnObject &object, int32_t moduleIndex,
                                  int32_t recNr);
AsnObjClass *governorForAsnObjectSet(const AsnObjectSet &objectSet,
                                     int32_t moduleIndex, int32_t recNr);
// Takes it back, with its module; null is passed over.
void delGovernorClass(AsnObjClass *governor);

// From a class field list node to what the last link of its path names.
void skipClassFieldList();

// --- Visits. A null call-back is fatal error 18; a view is good during the
// call-back only.

// `nextObjClass` reuses the view, and deletes it and gives null at the end.
AsnObjClass *firstObjClass(AsnModule &module);
AsnObjClass *nextObjClass(AsnObjClass *objClass);
void forEachObjClass(AsnModule &module, ClassIndexCallBack *cb);

// The class at the end of the chain, for a reference or a predefined class;
// fatal error 13 if it is a predefined one, which must be told apart first.
void forObjClassDefinedInAnotherModule(AsnObjClass &objClass, ClassVisit *cb);

// Comment options of the class's own node.
void forEachObjClassCommentOption(AsnObjClass &objClass,
                                  ClassCommentCallBack *cb);

// --- Queries.
bool testObjClassOption(const AsnObjClass &objClass, int bit);
// TYPE-IDENTIFIER or ABSTRACT-SYNTAX; fatal error 13 for what is no class.
bool isPredefinedObjClass(const AsnObjClass &objClass);
bool isBaseObjClassInCurrentModule(const AsnObjClass &objClass);
bool isOptionalObjClassFields(const AsnObjClass &objClass);
bool isPartialClassInfo(const AsnObjClass &objClass);
bool isInstantiatedClass(const AsnObjClass &objClass);
bool isObjClassCommentOption(const AsnObjClass &objClass);
int32_t getNrOfObjClassFields(const AsnObjClass &objClass);
// The record number less 1.
int32_t getUniqueObjClassNr(const AsnObjClass &objClass);
int32_t getUniqueBaseObjClassNr(const AsnObjClass &objClass);
AsnModule *getModuleOfObjClass(const AsnObjClass &objClass);
int32_t getClassDefinitionLine(const AsnObjClass &objClass);
BEClassMetaRec *getBEClassMetaRec(const AsnObjClass &objClass);

// Stamps: reading refreshes the view's copy, writing goes into the tree.
int32_t getObjClassStamp(AsnObjClass &objClass);
int32_t getBaseObjClassStamp(AsnObjClass &objClass);
void setObjClassStamp(AsnObjClass &objClass, int32_t stamp);
void setBaseObjClassStamp(AsnObjClass &objClass, int32_t stamp);

// --- Texts, between `prefix` and `suffix`, of which null counts as empty: a
// Ref is the name in ASN.1, an Id that in C.

// Names of the predefined classes in C, by main type from `TYP_TYPE_ID` on.
extern const char *const targetLangClassArr[2];

std::string &getObjClassRef(std::string &text, const char *prefix,
                            const AsnObjClass &objClass, const char *suffix);
std::string &getDefObjClassId(std::string &text, const char *prefix,
                              const AsnObjClass &objClass, const char *suffix);
// Fatal error 13 for what is no class.
std::string &getBaseObjClassRef(std::string &text, const char *prefix,
                                const AsnObjClass &objClass,
                                const char *suffix);
std::string &getBaseObjClassId(std::string &text, const char *prefix,
                               const AsnObjClass &objClass, const char *suffix);

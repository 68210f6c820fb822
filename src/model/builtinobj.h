#pragma once
#include "model/fieldvalue.h"
#include "model/object.h"

// The objects of a module in the order of their classes. Built-in objects,
// those that are written in place in a field of another object or in a set,
// can be taken along: they come with the first object of their class, or
// behind all classes that have defined objects.

typedef void ClassPrefixCallBack(AsnObjClass &objClass, bool isIgnored);
typedef void ClassOrderObjectCallBack(AsnObjClass &objClass, AsnObject &object,
                                      int nonIgnoredIndex, int index,
                                      bool isIgnored);
typedef void ClassPostfixCallBack(AsnObjClass &objClass, int nonIgnoredCount,
                                  int count, bool isIgnored);

// Calls for each class that has objects, in the order in which the first of
// each appears. Any call-back may be null, but not all: fatal error 18. A
// class with SKIP is ignored, and so is a built-in object in a field with it.
void forEachObjectInClassOrder(AsnModule &module, ClassPrefixCallBack *prefixCb,
                               ClassOrderObjectCallBack *objectCb,
                               ClassPostfixCallBack *postfixCb,
                               bool builtinToo);

// --- The parts of it, which work on what is registered at the time.

struct BuiltinObjInfo {
  ModRec *module = nullptr;
  int32_t record = 0;
  bool isOptional = false;  // in a field with SKIP
  BuiltinObjInfo *next = nullptr;
};

// A class by its base, with its built-in objects as they were found.
struct BuiltinObjClassInfo {
  ModRec *classModule = nullptr;
  int32_t classRecord = 0;
  BuiltinObjInfo *first = nullptr;
  BuiltinObjInfo *last = nullptr;
  BuiltinObjClassInfo *next = nullptr;
};

// The classes that have built-in objects, in the order in which they were
// found.
extern BuiltinObjClassInfo *glbClassInfoList;

// Registers the built-in objects of the module's objects and object sets, and
// those inside them; each of them once.
void detectBuiltinObjects(AsnModule &module);

// Calls for the objects of the class, which are registered no longer, and
// counts them.
void visitBuiltinObjects(AsnModule &module, BuiltinObjClassInfo &classInfo,
                         int &nonIgnored, int &all, bool isIgnored);

// Calls for the classes that still have objects.
void visitUnvisitedBuiltinObjects(AsnModule &module);

// Forgets what is registered; fatal error 13 if that leaves out objects.
void releaseGlobalVars();

// Possible contents of an ANY.

#include "model/anytype.h"
#include "base/diag.h"
#include "base/strings.h"
#include "model/typeiter.h"
#include "store/typenode.h"
#include "store/valuenode.h"
#include <algorithm>
#include <cstring>
#include <string>

// The names of a line; false for a line of another sort.
static bool parseAnyOption(const char *line, std::string &valueName,
                           std::string &typeName)
{
  static const char start[] = "$ANY=";
  if (!startsWith(line, start))
    return false;
  const char *names = line + sizeof start - 1;
  const char *colon = strchr(names, ':');
  if (!colon)
    return false;
  valueName.assign(names, colon);
  typeName = colon + 1;
  return true;
}

// Calls `f` with the value and the type of a line, if there are both.
template <class F>
static void visitEntry(const AsnType &any, const char *line, F f)
{
  std::string valueName, typeName;
  ModRec *home = any.homeMod->rec;
  if (!parseAnyOption(line, valueName, typeName) ||
      !findValueById(home, valueName.c_str()) ||
      !findTypeById(home, typeName.c_str()))
    return;
  // Both are current now, each in its buffer: the value is built first, for
  // its governor takes the type's.
  NodeContext typePlace;
  saveNodeContext(REC_TNODE, &typePlace);
  AsnValue *value = newAsnValue(any.homeMod, any.homeMod);
  getValuePath(nullptr, *value, FIX_VALUE);
  restoreNodeContext(REC_TNODE, &typePlace);
  AsnType *type = newAsnType(any.homeMod, any.homeMod);
  getTypePath(nullptr, *type, true);
  f(*value, *type);
  delAsnValue(value);
  delAsnType(type);
}

// Calls `f` with each line of the ANY's base node.
template <class F>
static void forEachAnyLine(const AsnType &any, F f)
{
  ModRec *module = any.baseModRec;
  int32_t last = any.base.lastTed;
  for (int32_t i = std::max(any.base.firstTed, 1); i <= last; ++i) {
    readRec(module, REC_TED, i);
    f(getStri(module, tedRec.text));
  }
}

void forAnyType(AsnType &any, AnyTypeVisit *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
  int index = 0;
  forEachAnyLine(any, [&](const char *line) {
    visitEntry(any, line, [&](AsnValue &value, AsnType &type) {
      cb(any, value, type, index++);
    });
  });
}

void forAnyDefinedByType(AsnType &father, AsnType &any, AnyDefinedByVisit *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
  int index = 0;
  forEachAnyLine(any, [&](const char *line) {
    visitEntry(any, line, [&](AsnValue &value, AsnType &type) {
      AsnType *classifier = getClassifier(father, any);
      if (!classifier)
        return;
      cb(father, *classifier, any, value, type, index++);
      delAsnType(classifier);
    });
  });
}

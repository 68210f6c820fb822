// Information from objects. Sets are taken from the text, so that objects
// need no records yet; two objects are the same if they stand in the same
// braces of the same instance.

#include "asn2stx/fromobjects.h"
#include "asn2stx/gentype.h"
#include "asn2stx/objsyntax.h"
#include "asn2stx/resolve.h"
#include "asn2stx/shown.h"
#include <algorithm>

typedef std::vector<ObjectUse> ObjectUses;

static bool isSameObject(const ObjectUse &a, const ObjectUse &b)
{
  return a.braces == b.braces && a.scope == b.scope;
}

static bool holds(const ObjectUses &objects, const ObjectUse &object)
{
  return std::any_of(
      objects.begin(), objects.end(),
      [&](const ObjectUse &other) { return isSameObject(object, other); });
}

static bool isCapital(const std::string &name)
{
  return !name.empty() && name[0] >= 'A' && name[0] <= 'Z';
}

// Objects of a set

static bool addObjects(Compilation &c, const AstElem &elem, const Scope &scope,
                       const ClassUse &objectClass, ObjectUses &objects);

static bool addObjectsOf(Compilation &c, const AstConstraint &set,
                         const Scope &scope, const ClassUse &objectClass,
                         ObjectUses &objects)
{
  return !set.root || addObjects(c, *set.root, scope, objectClass, objects);
}

static bool addIncluded(Compilation &c, const AstType &type, const Scope &scope,
                        ObjectUses &objects);

// Of a set by name: a parameter or a definition.
static bool addNamedSet(Compilation &c, const AstRef &ref, const Scope &scope,
                        ObjectUses &objects)
{
  Walk walk(c, WALK_OBJECTS, &ref, &scope);
  tellWalk(walk, ref.pos, asnQuoted(ref.name));
  ClassUse objectClass;
  if (!walk.isGood() || !classOfSet(c, ref, scope, objectClass))
    return false;
  Found found = findName(c, ref, scope);
  const AstConstraint *set = nullptr;
  const Scope *inner = nullptr;
  if (found.binding) {
    const AstActual &actual = *found.binding->actual;
    inner = found.binding->scope;
    set = actual.set;
    if (!set && actual.type)
      return addIncluded(c, *actual.type, *inner, objects);
  } else {
    const Definition &def = *found.def;
    bool isInstance = def.assign->hasParams || ref.hasActuals;
    inner = isInstance ? instantiate(c, def, ref, scope)
                       : moduleAt(c, def.module).scope;
    set = def.assign->set;
  }
  return !set || !inner || addObjectsOf(c, *set, *inner, objectClass, objects);
}

// What the settings of object and object set fields bring.
static bool addFromFields(Compilation &c, const std::vector<FieldUse> &fields,
                          ObjectUses &objects)
{
  for (const FieldUse &field : fields) {
    ClassUse inner;
    if (!resolveClass(c, field.field->governor->ref, *field.objectClass.scope,
                      inner))
      return false;
    bool good = true;
    ObjectUse object;
    if (field.value &&
        (good = resolveObject(c, *field.value, *field.scope, &inner, object)))
      objects.push_back(object);
    else if (field.set)
      good = addObjectsOf(c, *field.set, *field.scope, inner, objects);
    else if (field.type)
      good = addIncluded(c, *field.type, *field.scope, objects);
    if (!good)
      return false;
  }
  return true;
}

static bool isObjectField(Compilation &c, const FieldUse &use)
{
  FieldKind kind = fieldKindOf(c, use.objectClass, *use.field);
  return kind == FK_OBJECT || kind == FK_OBJECT_SET;
}

static bool addIncluded(Compilation &c, const AstType &type, const Scope &scope,
                        ObjectUses &objects)
{
  if (type.kind == AT_REFERENCE)
    return addNamedSet(c, type.ref, scope, objects);
  std::vector<FieldUse> fields;
  bool isField = type.kind == AT_FIELD && isFromObjects(c, type, scope);
  if (!isField) {
    asnError(c.errors, type.pos,
             "an object or object set is needed here, not %s",
             typeShown(type).c_str());
    return false;
  }
  if (!fieldsFromObjects(c, type, scope, fields))
    return false;
  if (std::all_of(fields.begin(), fields.end(), [&](const FieldUse &field) {
        return isObjectField(c, field);
      }))
    return addFromFields(c, fields, objects);
  asnError(c.errors, type.fieldPos.back(), "field %s is no object set",
           fieldShown(type.fields.back()).c_str());
  return false;
}

// Intersection and EXCEPT: the operands' objects one by one.
static bool addCombined(Compilation &c, const AstElem &elem, const Scope &scope,
                        const ClassUse &objectClass, ObjectUses &objects)
{
  ObjectUses kept;
  for (size_t i = 0; i < elem.operands.size(); ++i) {
    ObjectUses operand;
    if (!addObjects(c, *elem.operands[i], scope, objectClass, operand))
      return false;
    if (i == 0)
      kept = operand;
    else
      std::erase_if(kept, [&](const ObjectUse &object) {
        return holds(operand, object) == (elem.kind == AE_EXCEPT);
      });
  }
  objects.insert(objects.end(), kept.begin(), kept.end());
  return true;
}

static bool addObjects(Compilation &c, const AstElem &elem, const Scope &scope,
                       const ClassUse &objectClass, ObjectUses &objects)
{
  ObjectUse object;
  switch (elem.kind) {
  case AE_VALUE:
    if (!elem.value ||
        !resolveObject(c, *elem.value, scope, &objectClass, object))
      return false;
    objects.push_back(object);
    return true;
  case AE_TYPE:
    return elem.type && addIncluded(c, *elem.type, scope, objects);
  case AE_UNION:
    return std::all_of(
        elem.operands.begin(), elem.operands.end(), [&](const AstElem *part) {
          return addObjects(c, *part, scope, objectClass, objects);
        });
  case AE_INTERSECTION:
  case AE_EXCEPT:
    return addCombined(c, elem, scope, objectClass, objects);
  default:
    asnError(c.errors, elem.pos, "objects cannot be taken from a set with %s",
             elemShown(elem).c_str());
    return false;
  }
}

// Paths

bool isFromSet(Compilation &c, const AstType &type, const Scope &scope)
{
  return type.kind == AT_FIELD && isCapital(type.ref.name) &&
         kindOf(c, type.ref, scope) == DK_OBJECT_SET;
}

bool isFromObjects(Compilation &c, const AstType &type, const Scope &scope)
{
  bool isOfObject = type.kind == AT_FIELD && !type.ref.name.empty() &&
                    !isCapital(type.ref.name);
  return isOfObject || isFromSet(c, type, scope);
}

static ObjectUses withoutDoubles(const ObjectUses &objects)
{
  ObjectUses single;
  for (const ObjectUse &object : objects)
    if (!holds(single, object))
      single.push_back(object);
  return single;
}

bool fieldsFromObjects(Compilation &c, const AstType &type, const Scope &scope,
                       std::vector<FieldUse> &found)
{
  Walk walk(c, WALK_OBJECTS, &type, &scope);
  tellWalk(walk, type.pos, typeShown(type));
  if (!walk.isGood())
    return false;
  ObjectUses objects;
  bool isSet = isFromSet(c, type, scope);
  if (isSet) {
    if (!addNamedSet(c, type.ref, scope, objects))
      return false;
  } else {
    ObjectUse object;
    if (!objectOfRef(c, type.ref, scope, object))
      return false;
    objects.push_back(object);
  }
  for (size_t i = 0; i < type.fields.size(); ++i) {
    found.clear();
    for (const ObjectUse &object : withoutDoubles(objects)) {
      FieldUse use;
      bool isThere =
          settingOf(c, object, type.fields[i], type.fieldPos[i], isSet, use);
      if (isThere)
        found.push_back(use);
      else if (!isSet || !findClassField(object.objectClass, type.fields[i]))
        return false;
    }
    if (i + 1 == type.fields.size())
      break;
    objects.clear();
    for (const FieldUse &use : found) {
      if (isObjectField(c, use))
        continue;
      asnError(c.errors, type.fieldPos[i], "field %s has no fields",
               fieldShown(type.fields[i]).c_str());
      return false;
    }
    isSet = isSet || isCapital(type.fields[i]);
    if (!addFromFields(c, found, objects))
      return false;
  }
  return true;
}

// Sets of values

// The set that has the values of a path: the path itself as its only element.
static const AstConstraint *setOfPath(Compilation &c, const AstType &type)
{
  AstType *path = newAstType(c.ast, AT_FIELD, type.pos);
  path->ref = type.ref;
  path->fields = type.fields;
  path->fieldPos = type.fieldPos;
  AstElem &elem = c.ast.elems.emplace_back();
  elem.pos = type.pos;
  elem.kind = AE_TYPE;
  elem.type = path;
  AstConstraint &set = c.ast.constraints.emplace_back();
  set.pos = type.pos;
  set.root = &elem;
  return &set;
}

const AstConstraint *setFromObjects(Compilation &c, const AstType &type,
                                    const Scope &scope, TypeUse &governor)
{
  std::vector<FieldUse> fields;
  if (!isFromObjects(c, type, scope) ||
      !fieldsFromObjects(c, type, scope, fields) || fields.empty())
    return nullptr;
  const FieldUse &first = fields.front();
  FieldKind kind = fieldKindOf(c, first.objectClass, *first.field);
  bool isValues =
      kind == FK_VALUE_SET || (kind == FK_VALUE && isFromSet(c, type, scope));
  if (!isValues)
    return nullptr;
  governor =
      governorIn(c, {first.field->governor, first.objectClass.scope}, scope);
  return setOfPath(c, type);
}

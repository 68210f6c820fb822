// Value nodes. The type as written picks the reading of a value, the node of
// the type governs it; both are walked side by side.

#include "asn2stx/genvalue.h"
#include "asn2stx/chain.h"
#include "asn2stx/circles.h"
#include "asn2stx/genobject.h"
#include "asn2stx/gentype.h"
#include "asn2stx/parser.h"
#include "asn2stx/resolve.h"
#include "asn2stx/shown.h"
#include <algorithm>
#include <charconv>
#include <limits>

constexpr size_t maxValueNodes = 1000000;

// Everything that a value needs to know of where it stands.
struct ValueRun {
  Compilation &c;
  int into;
  const Scope &scope;
  const AstValue &value;
  TypeUse base;  // of the governor
  NodeAt at;
  int32_t node;
};

static VNode &valueAt(ValueRun &run)
{
  return stxValueAt(treeOf(run.c, run.into), run.node);
}

static void setKind(ValueRun &run, int mainType)
{
  valueAt(run).mainType = static_cast<uint8_t>(mainType);
}

void valueMisfit(Compilation &c, const AstValue &value)
{
  asnError(c.errors, value.pos, "value %s does not fit its type",
           valueShown(value).c_str());
}

static bool parseInteger(Compilation &c, const AstValue &value, int64_t &number)
{
  const char *end = value.text.data() + value.text.size();
  auto [stop, fault] = std::from_chars(value.text.data(), end, number);
  if (fault != std::errc() || stop != end) {
    asnError(c.errors, value.pos, "%s does not fit in 64 bits",
             asnQuoted(value.text).c_str());
    return false;
  }
  return true;
}

// Integers by text

static const AstNamed *findItem(const AstType *type, const std::string &name)
{
  if (type)
    for (const AstNamed *item : type->named)
      if (!item->isMarker && item->name == name)
        return item;
  return nullptr;
}

// An integer that is looked for: the value at hand, and the type that may
// name numbers.
struct IntegerWalk {
  const AstValue *value;
  const Scope *scope;
  TypeUse named;
};

// Moves from a reference to what it names; false, reported, if it is no value.
static bool stepInteger(Compilation &c, IntegerWalk &walk)
{
  const AstRef &ref = walk.value->ref;
  if (walk.named.type && ref.module.empty()) {
    TypeUse base = baseType(c, *walk.named.type, *walk.named.scope);
    const AstNamed *item = findItem(base.type, ref.name);
    if (item && item->value) {
      walk = {item->value, base.scope, {}};
      return true;
    }
  }
  Found found = lookUp(c, ref, *walk.scope);
  if (!found.def)
    return false;
  const Definition &def = *found.def;
  if (def.kind != DK_VALUE) {
    asnError(c.errors, walk.value->pos, "%s is not a value",
             asnQuoted(ref.name).c_str());
    return false;
  }
  const Scope *inner = moduleAt(c, def.module).scope;
  if (def.assign->hasParams || ref.hasActuals)
    inner = instantiate(c, def, ref, *walk.scope);
  if (!inner)
    return false;
  walk = {def.assign->value, inner, {def.assign->type, inner}};
  return true;
}

bool integerOf(Compilation &c, const Scope &scope, const AstValue &value,
               TypeUse named, int64_t &number)
{
  IntegerWalk walk = {&value, &scope, named};
  CircleGuard<std::pair<const AstValue *, const Scope *>> guard;
  while (!guard.repeats({walk.value, walk.scope})) {
    skipValueParameters(c, walk.value, walk.scope);
    const AstValue &at = *walk.value;
    if (at.kind == AV_INTEGER)
      return parseInteger(c, at, number);
    bool good = at.kind == AV_REFERENCE || at.kind == AV_FIELD;
    if (!good)
      asnError(c.errors, at.pos, "an integer is needed here, not %s",
               valueShown(at).c_str());
    else if (at.kind == AV_REFERENCE)
      good = stepInteger(c, walk);
    else
      good = resolveFieldValue(c, at, *walk.scope, walk.value, walk.scope);
    if (!good)
      return false;
  }
  asnError(c.errors, value.pos, "circular definition of %s",
           valueShown(value).c_str());
  return false;
}

// References

// The item of a named list, by its governor's node.
static NodeAt findItemNode(Compilation &c, NodeAt at, const std::string &name)
{
  NodeAt base = baseNode(c, at);
  if (base.node <= 0)
    return {};
  const StxTree &tree = treeOf(c, base.module);
  auto id = tree.stris.indexOf.find(stxName(name));
  if (id == tree.stris.indexOf.end())
    return {};
  int32_t item = tree.tNodes[static_cast<size_t>(base.node) - 1].namedNumbers;
  while (item != 0) {
    const VNode &node = tree.vNodes[static_cast<size_t>(item) - 1];
    if (node.identifier == id->second)
      return {base.module, item};
    item = node.next;
  }
  return {};
}

static void referTo(Compilation &c, int into, int32_t node, NodeAt target)
{
  int32_t number = moduleNumber(c, into, target.module);
  VNode &value = stxValueAt(treeOf(c, into), node);
  value.mainType = TYP_SYNONYM;
  value.firstChild = target.node;
  value.refModule = number;
}

static bool isStringType(int mainType)
{
  return (mainType >= TYP_NUMSTR && mainType <= TYP_UNISTR) ||
         mainType == TYP_OBJDESCR;
}

// True unless both types are known and of different kinds.
static bool mayRefer(Compilation &c, TypeUse base, const Definition &def)
{
  TypeUse other =
      baseType(c, *def.assign->type, *moduleAt(c, def.module).scope);
  if (!other.type || other.type->kind == AT_FIELD ||
      base.type->kind == AT_FIELD)
    return true;
  int a = mainTypeOf(*base.type), b = mainTypeOf(*other.type);
  return a == b || (isStringType(a) && isStringType(b));
}

static bool hasItems(const TypeUse &base)
{
  AstTypeKind kind = base.type->kind;
  return kind == AT_ENUMERATED || kind == AT_INTEGER;
}

static void genReference(ValueRun &run)
{
  Compilation &c = run.c;
  const AstRef &ref = run.value.ref;
  if (hasItems(run.base) && ref.module.empty() && !ref.hasActuals) {
    NodeAt item = findItemNode(c, run.at, ref.name);
    if (item.node != 0)
      return referTo(c, run.into, run.node, item);
    if (run.base.type->kind == AT_ENUMERATED && !findName(c, ref, run.scope)) {
      asnError(c.errors, run.value.pos, "the enumeration has no item %s",
               asnQuoted(ref.name).c_str());
      return;
    }
  }
  Found found = lookUp(c, ref, run.scope);
  if (!found.def)
    return;
  Definition &def = *found.def;
  if (def.kind != DK_VALUE) {
    asnError(c.errors, run.value.pos, "%s is not a value",
             asnQuoted(ref.name).c_str());
    return;
  }
  if (def.assign->hasParams || ref.hasActuals) {
    const Scope *inner = instantiate(c, def, ref, run.scope);
    Walk walk(c, WALK_VALUE, def.assign->value, inner);
    tellWalk(walk, run.value.pos, asnQuoted(ref.name));
    if (inner && walk.isGood())
      genValueInto(c, run.into, *inner, *def.assign->value,
                   {def.assign->type, inner}, run.at, run.node);
    return;
  }
  if (!mayRefer(c, run.base, def))
    return valueMisfit(c, run.value);
  if (c.currentValue)
    c.valueEdges.push_back({c.currentValue, &def});
  referTo(c, run.into, run.node, {def.module, def.node});
}

// Numbers

static void genInteger(ValueRun &run)
{
  int64_t number = 0;
  if (run.value.kind != AV_INTEGER)
    return valueMisfit(run.c, run.value);
  if (!parseInteger(run.c, run.value, number))
    return;
  setKind(run, TYP_INTEGER);
  setPayloadInt64(valueAt(run), stxInt64(number));
}

// Base of a special REAL value, and the mantissas that tell which.
constexpr int16_t specialBase = -1;
constexpr int64_t realZero = 0, realMinusInfinity = -1, realPlusInfinity = -2;

static void setReal(ValueRun &run, int64_t mantissa, int64_t base,
                    int64_t exponent)
{
  constexpr int64_t most = std::numeric_limits<int16_t>::max();
  if (base > most || base < specialBase || exponent > most ||
      exponent < -most) {
    asnError(run.c.errors, run.value.pos, "number %s is out of range",
             valueShown(run.value).c_str());
    return;
  }
  setKind(run, TYP_REAL);
  setPayloadReal(valueAt(run), stxInt64(mantissa), static_cast<int16_t>(base),
                 static_cast<int16_t>(exponent));
}

// "-12.50e3" is mantissa -125, exponent 2.
static void genDecimal(ValueRun &run)
{
  std::string digits;
  int64_t exponent = 0;
  size_t i = 0;
  bool behindPoint = false;
  const std::string &text = run.value.text;
  for (; i < text.size() && text[i] != 'e' && text[i] != 'E'; ++i) {
    if (text[i] == '.') {
      behindPoint = true;
      continue;
    }
    digits += text[i];
    exponent -= behindPoint ? 1 : 0;
  }
  if (i < text.size()) {
    int64_t power = 0;
    const char *first = text.data() + i + 1;
    if (i + 1 < text.size() && *first == '+')
      ++first;
    std::from_chars(first, text.data() + text.size(), power);
    constexpr int64_t enough = 1000000;
    exponent += power > enough ? enough : power < -enough ? -enough : power;
  }
  while (digits.size() > 1 && digits.back() == '0') {
    digits.pop_back();
    ++exponent;
  }
  int64_t mantissa = 0;
  auto [stop, fault] =
      std::from_chars(digits.data(), digits.data() + digits.size(), mantissa);
  if (fault != std::errc()) {
    asnError(run.c.errors, run.value.pos, "number %s is out of range",
             valueShown(run.value).c_str());
    return;
  }
  if (mantissa == 0)
    setReal(run, realZero, specialBase, 0);
  else
    setReal(run, mantissa, 10, exponent);
}

// {mantissa 3, base 2, exponent 1}, named or in this order.
static void genRealTriple(ValueRun &run)
{
  static const char *const names[] = {"mantissa", "base", "exponent"};
  const std::vector<AstItem> &items = run.value.braces->items;
  int64_t parts[3] = {};
  if (items.size() != std::size(parts))
    return valueMisfit(run.c, run.value);
  for (size_t i = 0; i < items.size(); ++i) {
    size_t place = i;
    for (size_t k = 0; k < std::size(names); ++k)
      if (items[i].name == names[k])
        place = k;
    if (!items[i].value ||
        !integerOf(run.c, run.scope, *items[i].value, {}, parts[place]))
      return;
  }
  if (parts[0] == 0)
    setReal(run, realZero, specialBase, 0);
  else if (parts[1] < 2)
    valueMisfit(run.c, run.value);
  else
    setReal(run, parts[0], parts[1], parts[2]);
}

static void genReal(ValueRun &run)
{
  switch (run.value.kind) {
  case AV_INTEGER:
  case AV_REAL:
    return genDecimal(run);
  case AV_PLUS_INFINITY:
    return setReal(run, realPlusInfinity, specialBase, 0);
  case AV_MINUS_INFINITY:
    return setReal(run, realMinusInfinity, specialBase, 0);
  case AV_NOT_A_NUMBER:
    asnError(run.c.errors, run.value.pos,
             "NOT-A-NUMBER has no place in a tree");
    return;
  case AV_BRACES:
    return genRealTriple(run);
  default:
    return valueMisfit(run.c, run.value);
  }
}

// Bits

static void genNamedBits(ValueRun &run)
{
  Compilation &c = run.c;
  StxTree &tree = treeOf(c, run.into);
  setKind(run, TYP_BITSTR);
  if (run.value.braces->items.empty()) {
    setPayloadStri(valueAt(run), 0, stxStri(tree, ""));
    return;
  }
  for (const AstItem &item : run.value.braces->items) {
    if (!item.value || item.value->kind != AV_REFERENCE || !item.name.empty()) {
      valueMisfit(c, run.value);
      return;
    }
    NodeAt bit = findItemNode(c, run.at, item.value->ref.name);
    if (bit.node == 0) {
      asnError(c.errors, item.pos, "the BIT STRING has no bit %s",
               asnQuoted(item.value->ref.name).c_str());
      return;
    }
    VNode child = stxNewVNode(TYP_SYNONYM, run.at.node);
    child.valueStatus = 0;
    child.line = item.pos.line;
    child.governorModule = moduleNumber(c, run.into, run.at.module);
    int32_t index = stxAddChild(tree, run.node, "", child);
    referTo(c, run.into, index, bit);
  }
}

static void genBits(ValueRun &run)
{
  if (run.value.kind == AV_BRACES && run.base.type->kind == AT_BIT_STRING)
    return genNamedBits(run);
  if (run.value.kind != AV_BSTRING && run.value.kind != AV_HSTRING)
    return valueMisfit(run.c, run.value);
  genOctetsValue(run.c, run.into, run.value, run.node);
}

// Structures and lists

const AstComp *findComp(Compilation &c, TypeUse structure,
                        const std::string &name, const Scope *&scope)
{
  TypeUse base = baseType(c, *structure.type, *structure.scope);
  // A circle is told where components are counted.
  Walk walk(c, WALK_COMPS, base.type, base.scope);
  if (!walk.isGood())
    return nullptr;
  const AstComp *found = nullptr;
  auto look = [&](const AstComp *comp) {
    if (comp->kind == AC_COMPONENTS_OF && comp->type && !found)
      found = findComp(c, {comp->type, base.scope}, name, scope);
    else if (comp->kind == AC_COMP && comp->name == name && !found) {
      found = comp;
      scope = base.scope;
    }
  };
  if (base.type)
    for (const AstComp *comp : base.type->comps) {
      look(comp);
      for (const AstComp *member : comp->members)
        look(member);
    }
  return found;
}

// Appends a value component and fills it.
static void genChild(ValueRun &run, const std::string &name,
                     const AstValue &value, TypeUse governor, NodeAt at)
{
  VNode child = stxNewVNode(TYP_NONE, at.node);
  child.valueStatus = 0;
  child.line = value.pos.line;
  int32_t index = stxAddChild(treeOf(run.c, run.into), run.node, name, child);
  genValueInto(run.c, run.into, run.scope, value, governor, at, index);
}

static void genNamedChild(ValueRun &run, const std::string &name,
                          const AstValue &value, AsnPos pos)
{
  Compilation &c = run.c;
  const Scope *scope = nullptr;
  const AstComp *comp = findComp(c, run.base, name, scope);
  NodeAt at = comp ? findCompNode(c, run.at, name) : NodeAt{};
  if (!comp || !comp->type || at.node == 0) {
    asnError(c.errors, pos, "%s has no component %s",
             typeShown(*run.base.type).c_str(), asnQuoted(name).c_str());
    return;
  }
  genChild(run, name, value, {comp->type, scope}, at);
}

static void genStructured(ValueRun &run)
{
  if (run.value.kind != AV_BRACES)
    return valueMisfit(run.c, run.value);
  setKind(run, mainTypeOf(*run.base.type));
  for (const AstItem &item : run.value.braces->items) {
    if (item.name.empty() || !item.value)
      return valueMisfit(run.c, run.value);
    genNamedChild(run, item.name, *item.value, item.pos);
  }
  if (run.value.braces->items.empty() && !run.value.braces->isEmpty)
    valueMisfit(run.c, run.value);
}

static void genList(ValueRun &run)
{
  if (run.value.kind != AV_BRACES || !run.base.type->element)
    return valueMisfit(run.c, run.value);
  setKind(run, mainTypeOf(*run.base.type));
  NodeAt base = baseNode(run.c, run.at);
  if (base.node <= 0)
    return;
  NodeAt element = {base.module,
                    stxTypeAt(treeOf(run.c, base.module), base.node).ref};
  const AstBraces &braces = *run.value.braces;
  if (braces.items.empty() && !braces.isEmpty)
    return valueMisfit(run.c, run.value);
  for (const AstItem &item : braces.items) {
    if (!item.value)
      return valueMisfit(run.c, run.value);
    genChild(run, item.name, *item.value,
             {run.base.type->element, run.base.scope}, element);
  }
}

static void genChoice(ValueRun &run)
{
  if (run.value.kind != AV_CHOICE || !run.value.value)
    return valueMisfit(run.c, run.value);
  setKind(run, TYP_CHOICE);
  genNamedChild(run, run.value.name, *run.value.value, run.value.pos);
}

// "Type : value" of an open type or ANY is a value of the type named.
static void genTyped(ValueRun &run)
{
  const AstValue &value = run.value;
  if (value.kind != AV_TYPED || !value.type || !value.value)
    return valueMisfit(run.c, run.value);
  int32_t type = governorNode(run.c, run.into, run.scope, *value.type);
  genValueInto(run.c, run.into, run.scope, *value.value,
               {value.type, &run.scope}, {run.into, type}, run.node);
}

// Types whose components have no nodes: each part governs itself by its
// form.
static void genLoose(ValueRun &run, int mainType);

static AstTypeKind looseKind(const AstValue &value)
{
  switch (value.kind) {
  case AV_BOOLEAN:
    return AT_BOOLEAN;
  case AV_INTEGER:
    return AT_INTEGER;
  case AV_REAL:
    return AT_REAL;
  case AV_BSTRING:
    return AT_BIT_STRING;
  case AV_HSTRING:
    return AT_OCTET_STRING;
  case AV_CSTRING:
    return AT_OBJECT_DESCRIPTOR;
  case AV_BRACES:
    return value.braces->arcs.empty() ? AT_SEQUENCE : AT_OBJECT_IDENTIFIER;
  case AV_CHOICE:
    return AT_CHOICE;
  default:
    return AT_NULL;
  }
}

static void genLooseChild(ValueRun &run, const std::string &name,
                          const AstValue &value)
{
  Compilation &c = run.c;
  AstTypeKind kind = looseKind(value);
  AstType *type = newAstType(c.ast, kind, value.pos);
  NodeAt at = {run.into, builtinNode(c, run.into, mainTypeOf(*type))};
  if (kind != AT_SEQUENCE && kind != AT_CHOICE)
    return genChild(run, name, value, {type, &run.scope}, at);
  VNode child = stxNewVNode(TYP_NONE, at.node);
  child.valueStatus = 0;
  int32_t index = stxAddChild(treeOf(c, run.into), run.node, name, child);
  ValueRun inner = {c,  run.into, run.scope, value, {type, &run.scope},
                    at, index};
  genLoose(inner, mainTypeOf(*type));
}

static void genLoose(ValueRun &run, int mainType)
{
  setKind(run, mainType);
  if (run.value.kind == AV_CHOICE && run.value.value)
    return genLooseChild(run, run.value.name, *run.value.value);
  if (run.value.kind != AV_BRACES)
    return valueMisfit(run.c, run.value);
  for (const AstItem &item : run.value.braces->items)
    if (item.value)
      genLooseChild(run, item.name, *item.value);
}

// By kind of the type

static void genBoolean(ValueRun &run)
{
  if (run.value.kind != AV_BOOLEAN)
    return valueMisfit(run.c, run.value);
  setKind(run, TYP_BOOLEAN);
  setPayloadBool(valueAt(run), run.value.isTrue);
}

static void genNull(ValueRun &run)
{
  if (run.value.kind != AV_NULL)
    return valueMisfit(run.c, run.value);
  setKind(run, TYP_NULL);
}

static void genByKind(ValueRun &run)
{
  Compilation &c = run.c;
  switch (run.base.type->kind) {
  case AT_BOOLEAN:
    return genBoolean(run);
  case AT_INTEGER:
    return genInteger(run);
  case AT_ENUMERATED:
    return valueMisfit(c, run.value);
  case AT_REAL:
    return genReal(run);
  case AT_NULL:
    return genNull(run);
  case AT_BIT_STRING:
  case AT_OCTET_STRING:
    return genBits(run);
  case AT_OBJECT_IDENTIFIER:
  case AT_RELATIVE_OID:
    return genOidValue(c, run.into, run.scope, run.value,
                       run.base.type->kind == AT_RELATIVE_OID, run.node);
  case AT_SEQUENCE:
  case AT_SET:
    return genStructured(run);
  case AT_SEQUENCE_OF:
  case AT_SET_OF:
    return genList(run);
  case AT_CHOICE:
    return genChoice(run);
  case AT_ANY:
  case AT_FIELD:
    return genTyped(run);
  case AT_EXTERNAL:
  case AT_EMBEDDED_PDV:
  case AT_INSTANCE_OF:
    return genLoose(run, mainTypeOf(*run.base.type));
  case AT_CHARACTER_STRING:
    if (run.value.kind == AV_BRACES)
      return genLoose(run, TYP_CHASTR);
    return genStringValue(c, run.into, run.scope, run.value, run.base, run.at,
                          run.node);
  default:
    return genStringValue(c, run.into, run.scope, run.value, run.base, run.at,
                          run.node);
  }
}

void genValueInto(Compilation &c, int into, const Scope &scope,
                  const AstValue &value, TypeUse governor, NodeAt at,
                  int32_t node)
{
  if (treeOf(c, into).vNodes.size() > maxValueNodes) {
    if (!c.exhausted)
      asnError(c.errors, value.pos, "%s: more than %zu values",
               valueShown(value).c_str(), maxValueNodes);
    c.exhausted = true;
    return;
  }
  const AstValue *real = &value;
  const Scope *realScope = &scope;
  skipValueParameters(c, real, realScope);
  TypeUse base = baseType(c, *governor.type, *governor.scope);
  if (!base.type || c.exhausted)
    return;
  int32_t number = moduleNumber(c, into, at.module);
  VNode &filled = stxValueAt(treeOf(c, into), node);
  filled.governor = at.node;
  filled.governorModule = number;
  if (real->kind == AV_FIELD &&
      !resolveFieldValue(c, *real, *realScope, real, realScope))
    return;
  ValueRun run = {c, into, *realScope, *real, base, at, node};
  if (real->kind == AV_REFERENCE)
    genReference(run);
  else
    genByKind(run);
}

int32_t genValue(Compilation &c, int into, const Scope &scope,
                 const AstValue &value, TypeUse governor, NodeAt at)
{
  VNode node = stxNewVNode(TYP_NONE, at.node);
  node.line = value.pos.line;
  int32_t index = stxValue(treeOf(c, into), node);
  genValueInto(c, into, scope, value, governor, at, index);
  return index;
}

int32_t governorNode(Compilation &c, int into, const Scope &scope,
                     const AstType &type)
{
  if (!type.tags.empty() || !type.constraints.empty() || !type.named.empty())
    return genHiddenType(c, into, scope, type);
  if (type.kind <= AT_GENERALIZED_TIME && type.kind != AT_UTF8_STRING &&
      type.kind != AT_RELATIVE_OID)
    return builtinNode(c, into, mainTypeOf(type));
  if (type.kind == AT_REFERENCE) {
    Found found = findName(c, type.ref, scope);
    if (found.def && found.def->node != 0 && !found.def->assign->hasParams &&
        (found.def->kind == DK_TYPE || found.def->kind == DK_VALUE_SET))
      return localReference(c, into, {found.def->module, found.def->node});
  }
  return genHiddenType(c, into, scope, type);
}

int32_t typeCarrier(Compilation &c, int into, int32_t typeNode)
{
  VNode carrier = stxNewVNode(TYP_NONE, typeNode);
  carrier.firstChild = typeNode;
  carrier.refModule = 1;
  carrier.hidden = 1;
  return stxValue(treeOf(c, into), carrier);
}

void checkValueCircles(Compilation &c)
{
  std::vector<const Definition *> defs;
  std::unordered_map<const Definition *, size_t> numbers;
  auto numberOf = [&](const Definition *def) {
    auto [entry, fresh] = numbers.emplace(def, defs.size());
    if (fresh)
      defs.push_back(def);
    return entry->second;
  };
  std::vector<std::pair<size_t, size_t>> edges;
  for (auto [from, to] : c.valueEdges)
    edges.push_back({numberOf(from), numberOf(to)});
  std::sort(edges.begin(), edges.end());
  EdgeLists graph;
  size_t edge = 0;
  for (size_t i = 0; i < defs.size(); ++i) {
    graph.first.push_back(graph.to.size());
    for (; edge < edges.size() && edges[edge].first == i; ++edge)
      graph.to.push_back(edges[edge].second);
  }
  graph.first.push_back(graph.to.size());
  std::vector<bool> onCircle = nodesOnCircles(graph);
  for (size_t i = 0; i < defs.size(); ++i)
    if (onCircle[i])
      asnError(c.errors, defs[i]->assign->pos, "circular definition of %s",
               asnQuoted(defs[i]->assign->name).c_str());
}

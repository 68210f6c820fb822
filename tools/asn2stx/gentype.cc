// Type nodes. A node is appended by its owner, with name and status, and
// filled here. A parameter leaves no node of its own: the tags and
// constraints of the reference to it and those of the actual type lie upon
// each other on one node, outermost first; the same goes for the use of a
// parameterised definition and the copy that is made for it.

#include "asn2stx/gentype.h"
#include "asn2stx/genconstraint.h"
#include "asn2stx/genobject.h"
#include "asn2stx/genvalue.h"
#include "asn2stx/resolve.h"
#include <limits>

// Instances within instances, instances of one run, types within types, and
// nodes of one tree.
constexpr int maxInstanceDepth = 64;
constexpr int maxInstances = 100000;
constexpr int maxTypeDepth = 1000;
constexpr size_t maxTypeNodes = 1000000;

// References that one chain may have.
constexpr int maxChain = 1000;

static TNode &nodeAt(Compilation &c, int into, int32_t node)
{
  return stxTypeAt(treeOf(c, into), node);
}

TNode newNodeFor(const Compilation &c, AsnPos pos, int mainType)
{
  TNode node = stxNewTNode(mainType);
  node.line = pos.line;
  node.nestedInstance = c.nesting > 0 ? 1 : 0;
  return node;
}

// Instances

static bool isWithinLimits(Compilation &c, const AstRef &ref,
                           const Scope &scope)
{
  if (c.exhausted)
    return false;
  bool good = scope.depth < maxInstanceDepth && c.instantiations < maxInstances;
  if (!good) {
    asnError(c.errors, ref.pos,
             "%s: parameterized definitions are nested too deeply",
             asnQuoted(ref.name).c_str());
    // What follows would be the same once more for each of the levels.
    c.exhausted = true;
  }
  return good;
}

const Scope *instantiate(Compilation &c, const Definition &def,
                         const AstRef &ref, const Scope &scope)
{
  auto made = c.instances.find({&ref, &scope});
  if (made != c.instances.end())
    return made->second;
  const std::vector<AstParam> &params = def.assign->params;
  if (params.size() != ref.actuals.size() ||
      def.assign->hasParams != ref.hasActuals) {
    asnError(c.errors, ref.pos, "%s needs %zu parameters, not %zu",
             asnQuoted(ref.name).c_str(), params.size(), ref.actuals.size());
    return nullptr;
  }
  if (!isWithinLimits(c, ref, scope))
    return nullptr;
  Scope &inner = c.scopes.emplace_back();
  inner.module = def.module;
  inner.depth = scope.depth + 1;
  for (size_t i = 0; i < params.size(); ++i)
    inner.bindings.push_back({&params[i], ref.actuals[i], &scope});
  return c.instances[{&ref, &scope}] = &inner;
}

// References

static NodeAt definitionNode(const Definition &def)
{
  return {def.module, def.node};
}

void makeSynonym(Compilation &c, int into, int32_t node, NodeAt target)
{
  int32_t number = moduleNumber(c, into, target.module);
  TNode &synonym = nodeAt(c, into, node);
  synonym.mainType = TYP_SYNONYM;
  synonym.ref = target.node;
  synonym.refModule = number;
}

int32_t localReference(Compilation &c, int into, NodeAt target)
{
  if (target.module == into)
    return target.node;
  int32_t &known = moduleAt(c, into).references[{target.module, target.node}];
  if (known != 0)
    return known;
  TNode node = stxNewTNode(TYP_SYNONYM);
  node.hidden = 1;
  known = stxType(treeOf(c, into), node);
  makeSynonym(c, into, known, target);
  return known;
}

int32_t builtinNode(Compilation &c, int into, int mainType)
{
  int32_t &known = moduleAt(c, into).builtins[mainType];
  if (known == 0) {
    TNode node = stxNewTNode(mainType);
    node.hidden = 1;
    known = stxType(treeOf(c, into), node);
  }
  return known;
}

// Tags

// True for a type that has no tag of its own, so that a tag ahead of it can
// replace none.
static bool isUntagged(Compilation &c, TypeUse at)
{
  for (int steps = 0; steps < maxChain && at.type; ++steps) {
    AstTypeKind kind = at.type->kind;
    if (kind == AT_CHOICE || kind == AT_ANY)
      return true;
    if (kind != AT_REFERENCE && kind != AT_SELECTION && kind != AT_FIELD)
      return false;
    TypeUse next = nextType(c, *at.type, *at.scope);
    if (!next.type)
      return kind == AT_FIELD;
    if (!next.type->tags.empty())
      return false;
    at = next;
  }
  return false;
}

static bool isExplicit(Compilation &c, const AstTag &tag, const Scope &scope)
{
  if (tag.mode != MODE_NONE)
    return tag.mode == MODE_EXPLICIT;
  AstTagDefault tags = moduleAt(c, scope.module).ast->tagDefault;
  return tags == TAGS_NONE || tags == TAGS_EXPLICIT;
}

// The codes of tag records by AstTagClass.
static const int tagClasses[] = {2, 0, 1, 3};

static void genTag(Compilation &c, int into, const AstTag &tag,
                   const Scope &scope, bool isExplicitTag, int32_t node)
{
  int64_t number = 0;
  if (!tag.number || !integerOf(c, scope, *tag.number, {}, number))
    return;
  if (number < 0 || number > std::numeric_limits<int32_t>::max()) {
    asnError(c.errors, tag.number->pos, "a tag number is out of range");
    return;
  }
  stxAddTag(treeOf(c, into), node, tagClasses[tag.tagClass],
            static_cast<int32_t>(number), isExplicitTag ? 1 : 0);
}

static void genTags(Compilation &c, int into, const TypeLayers &layers,
                    int32_t node)
{
  struct Place {
    const AstTag *tag;
    const Scope *scope;
  };
  std::vector<Place> places;
  for (const TypeUse &layer : layers)
    for (const AstTag &tag : layer.type->tags)
      places.push_back({&tag, layer.scope});
  for (size_t i = 0; i < places.size(); ++i) {
    bool isLast = i + 1 == places.size();
    bool mode = isExplicit(c, *places[i].tag, *places[i].scope) ||
                (isLast && isUntagged(c, layers.back()));
    genTag(c, into, *places[i].tag, *places[i].scope, mode, node);
  }
  // Types without a code: their own universal tags, which replace that of
  // the code they are written with.
  constexpr int32_t utf8Tag = 12, relativeOidTag = 13;
  AstTypeKind kind = layers.back().type->kind;
  if (kind == AT_UTF8_STRING || kind == AT_RELATIVE_OID)
    stxAddTag(treeOf(c, into), node, 0,
              kind == AT_UTF8_STRING ? utf8Tag : relativeOidTag, 0);
}

// Content by kind

static void genLayers(Compilation &c, int into, TypeLayers layers,
                      int32_t node);

static void genList(Compilation &c, int into, const Scope &scope,
                    const AstType &type, int32_t node)
{
  if (!type.element)
    return;
  TNode element = newNodeFor(c, type.element->pos, TYP_NONE);
  int32_t index = stxAddComp(treeOf(c, into), node, type.elementName, element);
  if (!type.element->notes.empty())
    moduleAt(c, into).typeNotes.push_back({index, &type.element->notes});
  genTypeInto(c, into, scope, *type.element, index);
}

static void genSelection(Compilation &c, int into, const Scope &scope,
                         const AstType &type, int32_t node)
{
  // Tells what is wrong with it.
  if (!nextType(c, type, scope).type)
    return;
  int32_t choice = 0;
  const AstType &element = *type.element;
  if (element.kind == AT_REFERENCE && element.tags.empty() &&
      element.constraints.empty()) {
    Found found = findName(c, element.ref, scope);
    if (found.def && !found.def->assign->hasParams && found.def->module == into)
      choice = found.def->node;
  }
  if (choice == 0)
    choice = genHiddenType(c, into, scope, element);
  TNode &selection = nodeAt(c, into, node);
  selection.ref = choice;
  selection.refModule = 1;
  c.lateSelections.push_back(
      {into, node, {into, choice}, type.elementName, type.pos});
}

void finishSelections(Compilation &c)
{
  for (const LateSelection &late : c.lateSelections) {
    NodeAt found = findCompNode(c, late.choice, late.name);
    if (found.node == 0) {
      asnError(c.errors, late.pos, "the CHOICE has no alternative %s",
               asnQuoted(late.name).c_str());
      continue;
    }
    int32_t number = moduleNumber(c, late.into, found.module);
    StxTree &tree = treeOf(c, late.into);
    stxTypeAt(tree, late.node).fieldRef =
        stxLink(tree, stxNewLink(found.node, number));
  }
  c.lateSelections.clear();
}

static void genContent(Compilation &c, int into, const TypeUse &use,
                       int32_t node)
{
  const AstType &type = *use.type;
  nodeAt(c, into, node).mainType = static_cast<uint8_t>(mainTypeOf(type));
  switch (type.kind) {
  case AT_INTEGER:
  case AT_ENUMERATED:
  case AT_BIT_STRING:
    genNamedNumbers(c, into, *use.scope, type, node);
    break;
  case AT_SEQUENCE:
  case AT_SET:
  case AT_CHOICE:
    genStructure(c, into, *use.scope, type, node);
    break;
  case AT_SEQUENCE_OF:
  case AT_SET_OF:
    genList(c, into, *use.scope, type, node);
    break;
  case AT_SELECTION:
    genSelection(c, into, *use.scope, type, node);
    break;
  case AT_FIELD:
  case AT_INSTANCE_OF:
    genFieldTypeInto(c, into, *use.scope, type, node);
    break;
  default:
    break;
  }
}

// A value set on a node; `layers` are upon it. A governor of its own has its
// constraints and items on a node of its own.
static void genSet(Compilation &c, int into, TypeLayers layers,
                   TypeUse governor, const AstConstraint &set, int32_t node)
{
  int32_t at = governorNode(c, into, *governor.scope, *governor.type);
  TNode &filled = nodeAt(c, into, node);
  filled.classFlags |= CF_SET;
  const AstType &type = *governor.type;
  bool isPlain = type.kind <= AT_GENERALIZED_TIME && type.tags.empty() &&
                 type.constraints.empty() && type.named.empty();
  if (isPlain)
    filled.mainType = static_cast<uint8_t>(mainTypeOf(type));
  else
    makeSynonym(c, into, node, {into, at});
  LateConstraints late;
  late.into = into;
  late.layers = std::move(layers);
  late.set = &set;
  late.setScope = governor.scope;
  late.governor = governor.type;
  late.node = node;
  c.lateConstraints.push_back(std::move(late));
}

void genValueSetInto(Compilation &c, int into, const Scope &scope,
                     const AstType &governor, const AstConstraint &set,
                     int32_t node)
{
  genSet(c, into, {}, {&governor, &scope}, set, node);
}

// The copy that is made for the use of a parameterised definition: a hidden
// header that the use refers to.
static void genInstance(Compilation &c, int into, TypeLayers layers,
                        const Definition &def, int32_t node)
{
  TypeUse use = layers.back();
  const Scope *inner = instantiate(c, def, use.type->ref, *use.scope);
  // One scope may be copied many times.
  ++c.instantiations;
  if (!inner || !isWithinLimits(c, use.type->ref, *use.scope))
    return;
  ++c.nesting;
  TNode header = newNodeFor(c, def.assign->pos, TYP_SYNONYM);
  header.compStatus = -TCS_HEADER;
  header.hidden = 1;
  StxTree &tree = treeOf(c, into);
  header.identifier = stxStri(tree, stxName(def.assign->name));
  int32_t copy = stxType(tree, header);
  int32_t link = stxLink(tree, stxNewLink(copy, 1));
  makeSynonym(c, into, node, {into, copy});
  nodeAt(c, into, node).fieldRef = link;
  if (!def.assign->notes.empty())
    moduleAt(c, into).typeNotes.push_back({copy, &def.assign->notes});
  if (def.assign->kind == AA_SET) {
    genTags(c, into, layers, copy);
    genSet(c, into, std::move(layers), {def.assign->type, inner},
           *def.assign->set, copy);
  } else {
    layers.push_back({def.assign->type, inner});
    genLayers(c, into, std::move(layers), copy);
  }
  --c.nesting;
}

static bool hasConstraints(const TypeLayers &layers)
{
  for (const TypeUse &layer : layers)
    if (!layer.type->constraints.empty())
      return true;
  return false;
}

// Puts types of parameters upon the layers. True if what is left is a
// reference to `def`; false with `good` cleared if there is no type.
static bool skipParameters(Compilation &c, TypeLayers &layers, Definition *&def,
                           bool &good)
{
  good = true;
  for (int steps = 0; steps < maxChain; ++steps) {
    TypeUse top = layers.back();
    if (top.type->kind != AT_REFERENCE)
      return false;
    Found found = lookUp(c, top.type->ref, *top.scope);
    def = found.def;
    if (def) {
      good = def->kind == DK_TYPE || def->kind == DK_VALUE_SET;
      if (!good && def->kind != DK_UNKNOWN)
        asnError(c.errors, top.type->ref.pos, "%s is not a type",
                 asnQuoted(top.type->ref.name).c_str());
      return true;
    }
    if (!found.binding || !found.binding->actual->type) {
      if (found.binding)
        asnError(c.errors, top.type->ref.pos, "%s is not a type",
                 asnQuoted(top.type->ref.name).c_str());
      break;
    }
    layers.push_back({found.binding->actual->type, found.binding->scope});
  }
  good = false;
  return false;
}

static bool isTooMuch(Compilation &c, int into, AsnPos pos)
{
  bool tooMuch = c.typeDepth > maxTypeDepth ||
                 treeOf(c, into).tNodes.size() > maxTypeNodes;
  if (tooMuch && !c.exhausted) {
    asnError(c.errors, pos, "types are nested too deeply");
    c.exhausted = true;
  }
  return tooMuch;
}

static void genLayers(Compilation &c, int into, TypeLayers layers, int32_t node)
{
  if (isTooMuch(c, into, layers.back().type->pos))
    return;
  ++c.typeDepth;
  Definition *def = nullptr;
  bool good = true;
  bool isReference = skipParameters(c, layers, def, good);
  if (good && isReference &&
      (def->assign->hasParams || layers.back().type->ref.hasActuals)) {
    genInstance(c, into, std::move(layers), *def, node);
  } else if (good) {
    genTags(c, into, layers, node);
    if (isReference)
      makeSynonym(c, into, node, definitionNode(*def));
    else
      genContent(c, into, layers.back(), node);
    if (hasConstraints(layers))
      c.lateConstraints.push_back(
          {into, std::move(layers), nullptr, nullptr, nullptr, node});
  }
  --c.typeDepth;
}

void genTypeInto(Compilation &c, int into, const Scope &scope,
                 const AstType &type, int32_t node)
{
  genLayers(c, into, {{&type, &scope}}, node);
}

int32_t genHiddenType(Compilation &c, int into, const Scope &scope,
                      const AstType &type)
{
  TNode node = newNodeFor(c, type.pos, TYP_NONE);
  node.hidden = 1;
  int32_t index = stxType(treeOf(c, into), node);
  genTypeInto(c, into, scope, type, index);
  return index;
}

// Walks over nodes that are there

int moduleOfNumber(Compilation &c, int module, int32_t number)
{
  if (number < 2)
    return module;
  const std::vector<int> &byNumber = moduleAt(c, module).byNumber;
  size_t at = static_cast<size_t>(number);
  return at < byNumber.size() ? byNumber[at] : -1;
}

// What the last link of a path leads to.
static NodeAt linkedNode(Compilation &c, int module, int32_t link)
{
  StxTree &tree = treeOf(c, module);
  for (int steps = 0; link != 0 && steps < maxChain; ++steps) {
    const SNode &node = stxLinkAt(tree, link);
    if (node.nextLink == 0)
      return {moduleOfNumber(c, module, node.linkModule), node.target};
    link = node.nextLink;
  }
  return {};
}

NodeAt baseNode(Compilation &c, NodeAt at)
{
  for (int steps = 0; steps < maxChain && at.node > 0; ++steps) {
    const TNode &node = nodeAt(c, at.module, at.node);
    NodeAt next;
    if (node.mainType == TYP_SYNONYM && node.ref != 0)
      next = {moduleOfNumber(c, at.module, node.refModule), node.ref};
    else if (node.mainType == TYP_SELECTION || node.mainType == TYP_FIELDLIST)
      next = linkedNode(c, at.module, node.fieldRef);
    if (next.node <= 0 || next.module < 0)
      return at;
    at = next;
  }
  return {};
}

// The index of a name in a tree; 0 if it has none.
static int32_t nameIn(const StxTree &tree, const std::string &name)
{
  auto found = tree.stris.indexOf.find(stxName(name));
  return found == tree.stris.indexOf.end() ? 0 : found->second;
}

NodeAt findCompNode(Compilation &c, NodeAt structure, const std::string &name)
{
  constexpr int maxDepth = 50;
  if (c.walkDepth > maxDepth)
    return {};
  ++c.walkDepth;
  NodeAt base = baseNode(c, structure);
  NodeAt found;
  int32_t comp = base.node > 0 ? nodeAt(c, base.module, base.node).ref : 0;
  if (comp != 0 && nodeAt(c, base.module, base.node).mainType == TYP_SYNONYM)
    comp = 0;
  int32_t id = comp ? nameIn(treeOf(c, base.module), name) : 0;
  while (comp != 0 && found.node == 0) {
    const TNode node = nodeAt(c, base.module, comp);
    if (node.mainType == TYP_EXTADDGRP || node.compStatus == TCS_COMPOF)
      found = findCompNode(c, {base.module, comp}, name);
    else if (id != 0 && node.identifier == id)
      found = {base.module, comp};
    comp = node.next;
  }
  --c.walkDepth;
  return found;
}

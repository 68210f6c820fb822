// Type nodes. A node is appended by its owner, with name and status, and
// filled here. A parameter leaves no node of its own: the tags and
// constraints of the reference to it and those of the actual type lie upon
// each other on one node, outermost first; the same goes for the use of a
// parameterised definition and the copy that is made for it.

#include "asn2stx/gentype.h"
#include "asn2stx/chain.h"
#include "asn2stx/fromobjects.h"
#include "asn2stx/genconstraint.h"
#include "asn2stx/genvalue.h"
#include "asn2stx/resolve.h"
#include "asn2stx/shown.h"
#include <limits>

// Types within types, and nodes of one tree.
constexpr int maxTypeDepth = 1000;
constexpr size_t maxTypeNodes = 1000000;

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
  node.compStatus = -TCS_HEADER;
  known = stxType(treeOf(c, into), node);
  makeSynonym(c, into, known, target);
  return known;
}

static int32_t hiddenBuiltin(Compilation &c, int into, int mainType, int key,
                             int compStatus)
{
  int32_t &known = moduleAt(c, into).builtins[key];
  if (known == 0) {
    TNode node = stxNewTNode(mainType);
    node.hidden = 1;
    node.compStatus = compStatus;
    known = stxType(treeOf(c, into), node);
  }
  return known;
}

int32_t builtinNode(Compilation &c, int into, int mainType)
{
  return hiddenBuiltin(c, into, mainType, mainType, -TCS_HEADER);
}

int32_t builtinFieldNode(Compilation &c, int into, int mainType)
{
  // No definition: a reference must not look for one behind it.
  return hiddenBuiltin(c, into, mainType, ~mainType, TCS_MANDATORY);
}

// Tags

// True for a type that has no tag of its own, so that a tag ahead of it can
// replace none.
static bool isUntagged(Compilation &c, TypeUse at)
{
  CircleGuard<TypeUse> guard;
  while (at.type && !guard.repeats(at)) {
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

// True for the name of a parameter: a tag ahead of it is explicit, whatever
// it stands for, X.680 (2002) 30.6 c.
static bool isDummy(Compilation &c, const TypeUse &use)
{
  return use.type->kind == AT_REFERENCE &&
         findName(c, use.type->ref, *use.scope).binding;
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
    asnError(c.errors, tag.number->pos, "tag number %lld is out of range",
             static_cast<long long>(number));
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
    bool isOnDummy;
  };
  std::vector<Place> places;
  for (const TypeUse &layer : layers)
    for (const AstTag &tag : layer.type->tags)
      places.push_back({&tag, layer.scope,
                        &tag == &layer.type->tags.back() && isDummy(c, layer)});
  for (size_t i = 0; i < places.size(); ++i) {
    const Place &place = places[i];
    bool isLast = i + 1 == places.size();
    bool mode = isExplicit(c, *place.tag, *place.scope) ||
                (place.isOnDummy && place.tag->mode == MODE_NONE) ||
                (isLast && isUntagged(c, layers.back()));
    genTag(c, into, *place.tag, *place.scope, mode, node);
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
  c.lateSelections.push_back({into,
                              node,
                              {into, choice},
                              type.elementName,
                              typeShown(element),
                              type.pos});
}

void finishSelections(Compilation &c)
{
  for (const LateSelection &late : c.lateSelections) {
    NodeAt found = findCompNode(c, late.choice, late.name);
    if (found.node == 0) {
      asnError(c.errors, late.pos, "%s has no alternative %s",
               late.shown.c_str(), asnQuoted(late.name).c_str());
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

// What a governor is behind parameters.
static TypeUse actualGovernor(Compilation &c, TypeUse governor)
{
  while (governor.type->kind == AT_REFERENCE && governor.type->tags.empty() &&
         governor.type->constraints.empty()) {
    Found found = findName(c, governor.type->ref, *governor.scope);
    if (!found.binding || !found.binding->actual->type)
      break;
    governor = {found.binding->actual->type, found.binding->scope};
  }
  return governor;
}

// A value set on a node; `layers` are upon it. A governor that is written out
// has its content on the node; but that of a set within an object, whose
// values are counted without its constraints, has a node of its own.
static void genSet(Compilation &c, int into, TypeLayers layers,
                   TypeUse governor, const AstConstraint &set, int32_t node)
{
  TypeUse actual = actualGovernor(c, governor);
  const AstType &type = *actual.type;
  bool isName = type.kind == AT_REFERENCE || type.kind == AT_FIELD ||
                type.kind == AT_SELECTION;
  bool isBare = type.kind <= AT_GENERALIZED_TIME && type.tags.empty() &&
                type.constraints.empty() && type.named.empty();
  const TNode &empty = nodeAt(c, into, node);
  bool isWithinObject = empty.hidden != 0 && empty.identifier == 0;
  LateConstraints late;
  late.into = into;
  late.layers = layers;
  late.set = &set;
  late.setScope = governor.scope;
  late.governor = governor.type;
  late.node = node;
  if (!isName && (isBare || !isWithinObject)) {
    late.inPlace = actual;
    layers.push_back(actual);
    genTags(c, into, layers, node);
    genContent(c, into, actual, node);
  } else {
    if (!layers.empty())
      genTags(c, into, layers, node);
    makeSynonym(c, into, node,
                {into, governorNode(c, into, *actual.scope, type)});
  }
  nodeAt(c, into, node).classFlags |= CF_SET;
  c.lateConstraints.push_back(std::move(late));
}

void genValueSetInto(Compilation &c, int into, const Scope &scope,
                     const AstType &governor, const AstConstraint &set,
                     int32_t node)
{
  genSet(c, into, {}, {&governor, &scope}, set, node);
}

static bool hasConstraints(const TypeLayers &layers)
{
  for (const TypeUse &layer : layers)
    if (!layer.type->constraints.empty())
      return true;
  return false;
}

static void deferConstraints(Compilation &c, int into, TypeLayers layers,
                             int32_t node)
{
  if (!hasConstraints(layers))
    return;
  LateConstraints late;
  late.into = into;
  late.layers = std::move(layers);
  late.node = node;
  c.lateConstraints.push_back(std::move(late));
}

// Makes the node a reference back to the instance that it lies in; false if
// no such instance is being made.
static bool refersBack(Compilation &c, int into, TypeLayers &layers,
                       const Scope *instance, int32_t node)
{
  for (OpenInstance &open : c.openInstances) {
    if (open.into != into || open.scope != instance)
      continue;
    // Tells what is nothing but a reference to itself.
    TypeUse use = layers.back();
    if (!baseType(c, *use.type, *use.scope).type)
      return true;
    genTags(c, into, layers, node);
    // What it refers to is known when the instance is complete.
    makeSynonym(c, into, node, {into, node});
    open.references.push_back(node);
    deferConstraints(c, into, std::move(layers), node);
    return true;
  }
  return false;
}

// A name for a definition that the text does not have.
static std::string freeName(ModuleState &module, const std::string &name)
{
  std::string free = name;
  auto isTaken = [&] {
    auto own = module.definitions.find(free);
    bool hasNode =
        own != module.definitions.end() && !own->second->assign->hasParams;
    return hasNode || module.madeNames.count(free);
  };
  for (int number = 2; isTaken(); ++number)
    free = name + "-" + std::to_string(number);
  module.madeNames.insert(free);
  return free;
}

// The definition that stands for a recursive instance where its use has no
// name of its own: a circle of types needs one to be called by.
static int32_t recursiveDefinition(Compilation &c, int into, TypeUse use,
                                   const Definition &def, const Scope *instance)
{
  int32_t &known = c.recursiveInstances[{into, instance}];
  if (known != 0)
    return known;
  ModuleState &module = moduleAt(c, into);
  TNode header = stxNewTNode(TYP_SYNONYM);
  header.line = def.assign->pos.line;
  known =
      stxDefineType(module.tree, freeName(module, def.assign->name), header);
  module.madeTypes.push_back(known);
  AstType *bare = newAstType(c.ast, AT_REFERENCE, use.type->pos);
  bare->ref = use.type->ref;
  int nesting = c.nesting;
  c.nesting = 0;
  genTypeInto(c, into, *use.scope, *bare, known);
  c.nesting = nesting;
  return known;
}

static bool isBare(const TypeLayers &layers)
{
  for (const TypeUse &layer : layers)
    if (!layer.type->tags.empty() || !layer.type->constraints.empty())
      return false;
  return true;
}

static void genCopy(Compilation &c, int into, TypeLayers layers,
                    const Definition &def, const Scope &inner, int32_t node)
{
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
    genSet(c, into, std::move(layers), {def.assign->type, &inner},
           *def.assign->set, copy);
  } else {
    layers.push_back({def.assign->type, &inner});
    genLayers(c, into, std::move(layers), copy);
  }
}

// The copy that is made for the use of a parameterised definition: a hidden
// header that the use refers to. References from the copy back to itself
// lead to the use, if that is a definition and nothing but this instance.
static void genInstance(Compilation &c, int into, TypeLayers layers,
                        const Definition &def, int32_t node)
{
  TypeUse use = layers.back();
  const Scope *inner = instantiate(c, def, use.type->ref, *use.scope);
  // One scope may be copied many times.
  ++c.instantiations;
  if (!inner || !isWithinLimits(c, use.type->ref, *use.scope) ||
      refersBack(c, into, layers, inner, node))
    return;
  bool isBareUse = isBare(layers);
  ++c.nesting;
  c.openInstances.push_back({into, inner, {}});
  genCopy(c, into, std::move(layers), def, *inner, node);
  std::vector<int32_t> references =
      std::move(c.openInstances.back().references);
  c.openInstances.pop_back();
  --c.nesting;
  if (references.empty())
    return;
  const TNode &made = nodeAt(c, into, node);
  bool isDefinition = made.compStatus == TCS_HEADER && made.identifier > 0;
  int32_t target = isDefinition && isBareUse
                       ? node
                       : recursiveDefinition(c, into, use, def, inner);
  for (int32_t reference : references)
    makeSynonym(c, into, reference, {into, target});
}

// Puts what `object.&Type` is upon the layers; false if what they end in is
// no such path.
static bool skipTypeOfObject(Compilation &c, TypeLayers &layers)
{
  TypeUse top = layers.back();
  FieldUse found;
  if (top.type->kind != AT_FIELD || !isFromObjects(c, *top.type, *top.scope) ||
      isFromSet(c, *top.type, *top.scope) ||
      !typeInObject(c, *top.type, *top.scope, found) || !found.type ||
      fieldKindOf(c, found.objectClass, *found.field) != FK_TYPE)
    return false;
  layers.push_back({found.type, found.scope});
  return true;
}

// Puts types of parameters and objects upon the layers. True if what is left
// is a reference to `def`; false with `good` cleared if there is no type.
static bool skipParameters(Compilation &c, TypeLayers &layers, Definition *&def,
                           bool &good)
{
  good = true;
  CircleGuard<TypeUse> guard;
  while (!guard.repeats(layers.back())) {
    if (skipTypeOfObject(c, layers))
      continue;
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

// The values that a path into objects leads to; false if it leads elsewhere.
static bool genSetFromObjects(Compilation &c, int into, TypeLayers &layers,
                              int32_t node)
{
  TypeUse top = layers.back();
  TypeUse governor;
  const AstConstraint *set =
      top.type->kind == AT_FIELD
          ? setFromObjects(c, *top.type, *top.scope, governor)
          : nullptr;
  if (!set)
    return false;
  genSet(c, into, std::move(layers), governor, *set, node);
  return true;
}

static bool isTooMuch(Compilation &c, int into, const AstType &type)
{
  bool tooMuch = c.typeDepth > maxTypeDepth ||
                 treeOf(c, into).tNodes.size() > maxTypeNodes;
  if (tooMuch && !c.exhausted) {
    asnError(c.errors, type.pos, "%s: types are nested too deeply",
             typeShown(type).c_str());
    c.exhausted = true;
  }
  return tooMuch;
}

// True for a definition that is a selection or a field of a class, or leads to
// one: the chain of references ends in a node that is no definition.
static bool endsInComponent(Compilation &c, const Definition &def)
{
  if (def.kind != DK_TYPE || def.assign->hasParams || !def.assign->type)
    return false;
  TypeUse at = {def.assign->type, moduleAt(c, def.module).scope};
  CircleGuard<TypeUse> guard;
  while (at.type && !guard.repeats(at)) {
    if (at.type->kind == AT_SELECTION)
      return true;
    if (at.type->kind == AT_FIELD)
      return !isFromObjects(c, *at.type, *at.scope);
    if (at.type->kind != AT_REFERENCE)
      return false;
    at = nextType(c, *at.type, *at.scope);
  }
  return false;
}

// Puts what the names of such definitions stand for upon the layers of a
// definition: the back-end takes the name of a definition for one only if
// the chain ends in a definition.
static bool skipToComponent(Compilation &c, TypeLayers &layers,
                            Definition *&def, bool &good)
{
  while (good && !layers.back().type->ref.hasActuals &&
         endsInComponent(c, *def)) {
    layers.push_back({def->assign->type, moduleAt(c, def->module).scope});
    if (!skipParameters(c, layers, def, good))
      return false;
  }
  return true;
}

static void genLayers(Compilation &c, int into, TypeLayers layers, int32_t node)
{
  if (isTooMuch(c, into, *layers.back().type))
    return;
  ++c.typeDepth;
  Definition *def = nullptr;
  bool good = true;
  bool isReference = skipParameters(c, layers, def, good);
  if (isReference && nodeAt(c, into, node).compStatus == TCS_HEADER)
    isReference = skipToComponent(c, layers, def, good);
  if (good && isReference &&
      (def->assign->hasParams || layers.back().type->ref.hasActuals)) {
    genInstance(c, into, std::move(layers), *def, node);
  } else if (good && genSetFromObjects(c, into, layers, node)) {
    --c.typeDepth;
    return;
  } else if (good) {
    genTags(c, into, layers, node);
    if (isReference)
      makeSynonym(c, into, node, definitionNode(*def));
    else
      genContent(c, into, layers.back(), node);
    deferConstraints(c, into, std::move(layers), node);
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
  node.compStatus = -TCS_HEADER;
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
  while (link != 0) {
    const SNode &node = stxLinkAt(tree, link);
    if (node.nextLink == 0)
      return {moduleOfNumber(c, module, node.linkModule), node.target};
    link = node.nextLink;
  }
  return {};
}

// What a node is a reference to; node 0 at the end of a chain.
static NodeAt referredNode(Compilation &c, NodeAt at)
{
  const TNode &node = nodeAt(c, at.module, at.node);
  NodeAt next;
  if (node.mainType == TYP_SYNONYM && node.ref != 0)
    next = {moduleOfNumber(c, at.module, node.refModule), node.ref};
  else if (node.mainType == TYP_SELECTION || node.mainType == TYP_FIELDLIST)
    next = linkedNode(c, at.module, node.fieldRef);
  // A field of a predefined class has its type here.
  if (next.module < 0 && node.mainType == TYP_FIELDLIST)
    next = {at.module, node.ref};
  return next.node <= 0 || next.module < 0 ? NodeAt{} : next;
}

NodeAt baseNode(Compilation &c, NodeAt at)
{
  CircleGuard<NodeAt> guard;
  while (at.node > 0 && !guard.repeats(at)) {
    NodeAt next = referredNode(c, at);
    if (next.node == 0)
      return at;
    at = next;
  }
  return {};
}

bool refersToItself(Compilation &c, NodeAt start)
{
  CircleGuard<NodeAt> guard;
  NodeAt at = referredNode(c, start);
  while (at.node != 0 && !guard.repeats(at)) {
    if (at == start)
      return true;
    at = referredNode(c, at);
  }
  return false;
}

// The index of a name in a tree; 0 if it has none.
static int32_t nameIn(const StxTree &tree, const std::string &name)
{
  auto found = tree.stris.indexOf.find(stxName(name));
  return found == tree.stris.indexOf.end() ? 0 : found->second;
}

NodeAt findCompNode(Compilation &c, NodeAt structure, const std::string &name)
{
  NodeAt base = baseNode(c, structure);
  // A circle is told where components are counted.
  const void *what =
      base.node > 0 ? &nodeAt(c, base.module, base.node) : nullptr;
  Walk walk(c, WALK_COMP_NODE, what, nullptr);
  if (!walk.isGood())
    return {};
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
  return found;
}

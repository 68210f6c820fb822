// SEQUENCE, SET and CHOICE: the order of components, markers and groups,
// and automatic tagging.

#include "asn2stx/gentype.h"
#include "asn2stx/resolve.h"
#include "asn2stx/shown.h"
#include <unordered_map>
#include <unordered_set>

// A structure that gets its components.
struct CompsRun {
  Compilation &c;
  int into;
  const Scope &scope;
  const AstType &type;
  int32_t node;
  std::unordered_map<std::string, int32_t> byName;
  std::vector<std::pair<const AstComp *, int32_t>> classified;  // ANY
};

static int compStatusOf(const AstComp &comp)
{
  return comp.presence == PRES_OPTIONAL || comp.presence == PRES_DEFAULT
             ? TCS_OPTIONAL
             : TCS_MANDATORY;
}

static void checkName(CompsRun &run, const AstComp &comp, int32_t index)
{
  if (!comp.name.empty() && !run.byName.emplace(comp.name, index).second)
    asnError(run.c.errors, comp.pos, "duplicate component %s",
             asnQuoted(comp.name).c_str());
}

static void addComp(CompsRun &run, const AstComp &comp, int32_t father)
{
  Compilation &c = run.c;
  if (!comp.type)
    return;
  TNode node = newNodeFor(c, comp.pos, TYP_NONE);
  bool isCompsOf = comp.kind == AC_COMPONENTS_OF;
  node.compStatus = isCompsOf ? TCS_COMPOF : compStatusOf(comp);
  int32_t index = stxAddComp(treeOf(c, run.into), father, comp.name, node);
  checkName(run, comp, index);
  if (isCompsOf)
    c.places.insert(
        {{run.into, index}, {comp.type->pos, typeShown(*comp.type)}});
  if (!comp.notes.empty())
    moduleAt(c, run.into).typeNotes.push_back({index, &comp.notes});
  genTypeInto(c, run.into, run.scope, *comp.type, index);
  if (comp.type->kind == AT_ANY && !comp.type->elementName.empty())
    run.classified.push_back({&comp, index});
  if (comp.defaultValue) {
    LateValue late;
    late.into = run.into;
    late.governor = {comp.type, &run.scope};
    late.governorNode = index;
    late.value = comp.defaultValue;
    late.scope = &run.scope;
    late.owner = index;
    c.lateValues.push_back(late);
  }
}

static void addMarker(CompsRun &run, AsnPos pos)
{
  TNode marker = newNodeFor(run.c, pos, TYP_EXTENSION_MARKER);
  stxAddComp(treeOf(run.c, run.into), run.node, "", marker);
}

static void addGroup(CompsRun &run, const AstComp &group)
{
  int32_t father = run.node;
  // Brackets in a CHOICE only show versions.
  if (run.type.kind != AT_CHOICE) {
    TNode node = newNodeFor(run.c, group.pos, TYP_EXTADDGRP);
    father = stxAddComp(treeOf(run.c, run.into), run.node, "", node);
    if (!group.notes.empty())
      moduleAt(run.c, run.into).typeNotes.push_back({father, &group.notes});
  }
  for (const AstComp *member : group.members)
    addComp(run, *member, father);
}

static void addAny(CompsRun &run, const AstComp &comp)
{
  switch (comp.kind) {
  case AC_COMP:
  case AC_COMPONENTS_OF:
    addComp(run, comp, run.node);
    break;
  case AC_MARKER:
    addMarker(run, comp.pos);
    break;
  case AC_GROUP:
    addGroup(run, comp);
    break;
  }
}

// The components as PER sends them: those behind a second marker belong to
// the root and come ahead of the first one.
static std::vector<const AstComp *> orderedComps(CompsRun &run)
{
  const std::vector<AstComp *> &comps = run.type.comps;
  std::vector<size_t> markers;
  for (size_t i = 0; i < comps.size(); ++i)
    if (comps[i]->kind == AC_MARKER)
      markers.push_back(i);
  std::vector<const AstComp *> ordered(comps.begin(), comps.end());
  if (markers.size() < 2 || run.c.options.secondMarker)
    return ordered;
  ordered.assign(comps.begin(),
                 comps.begin() + static_cast<ptrdiff_t>(markers[0]));
  ordered.insert(ordered.end(),
                 comps.begin() + static_cast<ptrdiff_t>(markers[1]) + 1,
                 comps.end());
  ordered.insert(ordered.end(),
                 comps.begin() + static_cast<ptrdiff_t>(markers[0]),
                 comps.begin() + static_cast<ptrdiff_t>(markers[1]));
  return ordered;
}

// X.680 (2002) 24.2: tags in the text of any component rule out automatic
// tagging of all.
static bool isAutomatic(CompsRun &run)
{
  if (moduleAt(run.c, run.scope.module).ast->tagDefault != TAGS_AUTOMATIC)
    return false;
  for (const AstComp *comp : run.type.comps) {
    if (comp->kind == AC_COMP && comp->type && !comp->type->tags.empty())
      return false;
    for (const AstComp *member : comp->members)
      if (member->kind == AC_COMP && member->type &&
          !member->type->tags.empty())
        return false;
  }
  return true;
}

static bool hasMarker(const AstType &type)
{
  for (const AstComp *comp : type.comps)
    if (comp->kind == AC_MARKER)
      return true;
  return false;
}

// The components that DEFINED BY names.
static void linkClassifiers(CompsRun &run)
{
  StxTree &tree = treeOf(run.c, run.into);
  for (auto [comp, index] : run.classified) {
    auto found = run.byName.find(comp->type->elementName);
    if (found == run.byName.end()) {
      asnError(run.c.errors, comp->type->pos,
               "DEFINED BY names no component: %s",
               asnQuoted(comp->type->elementName).c_str());
      continue;
    }
    stxTypeAt(tree, index).fieldRef =
        stxLink(tree, stxNewLink(found->second, 1));
  }
}

void genStructure(Compilation &c, int into, const Scope &scope,
                  const AstType &type, int32_t node)
{
  CompsRun run = {c, into, scope, type, node, {}, {}};
  for (const AstComp *comp : orderedComps(run))
    addAny(run, *comp);
  if (moduleAt(c, scope.module).ast->extensibilityImplied && !hasMarker(type))
    addMarker(run, type.pos);
  if (isAutomatic(run))
    stxTypeAt(treeOf(c, into), node).nodeFlags |= NF_AUTOMATIC_TAGS;
  linkClassifiers(run);
}

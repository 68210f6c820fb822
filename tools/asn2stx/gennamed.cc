// Items of enumerations, named numbers and named bits.

#include "asn2stx/genvalue.h"
#include <algorithm>
#include <set>
#include <unordered_set>

// An item with its number; the marker has none.
struct NumberedItem {
  const AstNamed *item = nullptr;
  int64_t number = 0;
  bool isNumbered = false;
};

static void checkNames(Compilation &c, const AstType &type)
{
  std::unordered_set<std::string> names;
  for (const AstNamed *item : type.named)
    if (!item->isMarker && !names.insert(item->name).second)
      asnError(c.errors, item->pos, "duplicate item %s",
               asnQuoted(item->name).c_str());
}

static std::vector<NumberedItem>
writtenNumbers(Compilation &c, const Scope &scope, const AstType &type)
{
  std::vector<NumberedItem> items;
  for (const AstNamed *named : type.named) {
    NumberedItem item;
    item.item = named;
    if (named->value)
      item.isNumbered = integerOf(c, scope, *named->value, {}, item.number);
    items.push_back(item);
  }
  return items;
}

// X.680 (2002) 19.3 and 19.4: items of the root without a number take the
// lowest ones that the root does not name; additions run on above the
// additions ahead of them.
static void numberEnumeration(std::vector<NumberedItem> &items)
{
  size_t root = 0;
  while (root < items.size() && !items[root].item->isMarker)
    ++root;
  std::set<int64_t> used;
  for (size_t i = 0; i < root; ++i)
    if (items[i].isNumbered)
      used.insert(items[i].number);
  int64_t next = 0;
  for (size_t i = 0; i < root; ++i) {
    if (items[i].isNumbered)
      continue;
    while (used.count(next))
      ++next;
    items[i].number = next++;
    items[i].isNumbered = true;
  }
  used.clear();
  for (size_t i = 0; i < root; ++i)
    used.insert(items[i].number);
  next = 0;
  for (size_t i = root; i < items.size(); ++i) {
    if (items[i].item->isMarker)
      continue;
    if (!items[i].isNumbered) {
      while (used.count(next))
        ++next;
      items[i].number = next;
    }
    items[i].isNumbered = true;
    constexpr int64_t most = INT64_MAX;
    if (items[i].number >= next)
      next = items[i].number == most ? most : items[i].number + 1;
  }
}

static void checkNumbers(Compilation &c, const std::vector<NumberedItem> &items)
{
  std::set<int64_t> used;
  for (const NumberedItem &item : items)
    if (item.isNumbered && !used.insert(item.number).second)
      asnError(c.errors, item.item->pos, "item %s has the number of another",
               asnQuoted(item.item->name).c_str());
}

static void addItem(Compilation &c, int into, const NumberedItem &item,
                    int32_t node)
{
  StxTree &tree = treeOf(c, into);
  int32_t index =
      item.item->isMarker
          ? stxAddNamedMarker(tree, node)
          : stxAddNamedNumber(tree, node, item.item->name, item.number);
  stxValueAt(tree, index).line = item.item->pos.line;
  if (!item.item->notes.empty())
    moduleAt(c, into).valueNotes.push_back({index, &item.item->notes});
}

void genNamedNumbers(Compilation &c, int into, const Scope &scope,
                     const AstType &type, int32_t node)
{
  checkNames(c, type);
  std::vector<NumberedItem> items = writtenNumbers(c, scope, type);
  bool isEnumeration = type.kind == AT_ENUMERATED;
  if (isEnumeration)
    numberEnumeration(items);
  checkNumbers(c, items);
  bool hasMarker = false;
  for (const NumberedItem &item : items) {
    hasMarker = hasMarker || item.item->isMarker;
    if (type.kind == AT_BIT_STRING && item.number < 0)
      asnError(c.errors, item.item->pos, "bit %s has a negative number",
               asnQuoted(item.item->name).c_str());
    addItem(c, into, item, node);
  }
  if (isEnumeration && !hasMarker &&
      moduleAt(c, scope.module).ast->extensibilityImplied) {
    StxTree &tree = treeOf(c, into);
    int32_t marker = stxAddNamedMarker(tree, node);
    stxValueAt(tree, marker).line = type.pos.line;
  }
}

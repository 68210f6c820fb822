// Symbol tables, over the same sections of strings as modules have.

#include "cbet/symboltable.h"
#include "base/alloc.h"
#include "base/diag.h"
#include "store/records.h"
#include "store/stricache.h"
#include <cstdlib>

struct SymbolTable {
  bool inMemory = false;
  StriSection<char> texts;
};

static CacheBlock *cache__SymbolTable;

SymbolTable *allocSymbolTable()
{
  return cacheNew<SymbolTable>(cache__SymbolTable);
}

void freeSymbolTable(SymbolTable *table)
{
  cacheDelete(table, cache__SymbolTable);
}

SymbolTable *newSymbolTable()
{
  SymbolTable *table = allocSymbolTable();
  table->inMemory = true;
  return table;
}

void deleteSymbolTable(SymbolTable *table)
{
  if (table && table->inMemory)
    freeSymbolTable(table);
}

int32_t putSymbol(SymbolTable &table, const char *text)
{
  if (!text)
    fatalError(FATAL_WRITE_RECORD);
  const char *interned = internStri(text);
  int32_t index = table.texts.find(interned);
  return index != 0 ? index : table.texts.append(interned);
}

const char *getSymbol(const SymbolTable &table, int32_t index)
{
  if (index == emptyStriIndex)
    return "";
  int64_t place = std::abs(int64_t{index});
  if (place < 1 || place > getNrOfSymbols(table))
    fatalError(FATAL_READ_RECORD);
  return table.texts.strings[static_cast<size_t>(place) - 1];
}

int32_t getNrOfSymbols(const SymbolTable &table)
{
  return static_cast<int32_t>(table.texts.strings.size());
}

#pragma once
#include <cstddef>
#include <cstdint>

// Symbol tables: texts by number, each text once, from 1 on.

struct SymbolTable;

// The record alone, from a free list.
SymbolTable *allocSymbolTable();
void freeSymbolTable(SymbolTable *table);

// A table with its store in memory; `deleteSymbolTable` frees such a one, and
// passes over null and others.
SymbolTable *newSymbolTable();
void deleteSymbolTable(SymbolTable *table);

// Adds the text, if it is new, and returns its number; null is fatal error
// 10.
int32_t putSymbol(SymbolTable &table, const char *text);

// The text of a number; as for the strings of a module, the sign does not
// count and `emptyStriIndex` is the empty text. Fatal error 9 for a number
// that was never given.
const char *getSymbol(const SymbolTable &table, int32_t index);

int32_t getNrOfSymbols(const SymbolTable &table);

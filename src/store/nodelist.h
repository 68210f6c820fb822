#pragma once
#include "store/treestore.h"

// Lists of nodes of the tree: the dynamic nodes that hold a type's tags and
// embedding options, and stack-like lists of records.

// A tag of a type, or its embedding options: class 5 means no tag.
struct DynaNode {
  ModRec *module = nullptr;  // the type node that was current at creation
  int32_t record = 0;
  int32_t tagClass = 5;
  int32_t tagNumber = -1;
  int32_t embeddingKind = 0;
  TedRange embedding;
  DynaNode *prev = nullptr;
  DynaNode *next = nullptr;
  DynaNode *nextInner = nullptr;  // the tags proper, outermost first
  DynaNode *subFirst = nullptr;
  DynaNode *subLast = nullptr;
};

// The free nodes.
extern DynaNode *availDynaPtr;

// Appends a node with the place of the current type node; returns it.
DynaNode *insDynaNode(DynaNode *&head, DynaNode *&tail);

// Returns a whole chain, sub-lists first, to the free nodes.
void delDynaNodes(DynaNode *&head, DynaNode *&tail);

struct NodeElemRec {
  ModRec *module = nullptr;
  int32_t index = 0;
  NodeElemRec *next = nullptr;
};

enum NodeListKind : int {
  NODES_TYPES = 1,
  NODES_VALUES = 3,
  NODES_CONSTRAINTS = 5
};

struct NodeList {
  int kind = NODES_TYPES;
  NodeElemRec *first = nullptr;
};

// Pushes an element with the current record of the list's kind.
void addFstNode(NodeList &list);

// Pops an element; an empty list is fatal error 13.
void delFstNode(NodeList &list);

// Moves the first element; an empty source is fatal error 13.
void mvFstNode(NodeList &target, NodeList &source);

// Pushes the current record unless it is on the list; true if added.
bool pushNodeUnique(NodeList &list);

// Frees all elements.
void deleteNodes(NodeList &list);

// Read the last, resp. the first element of a list of types or values into
// its buffer; false if the list is empty or of another kind.
bool outerEnclStru(const NodeList &list);
bool innerEnclStru(const NodeList &list);

#pragma once
#include "store/modrec.h"
#include <string>

// The record store: records by (module, kind, index), one buffer a kind, and
// the loader of tree files. All model code reads the fields of a record from
// its kind's buffer; nothing holds a pointer into the tree across calls.

// The buffers: the record of each kind that was read or written last.
extern MNode mNode;
extern TNode tNode;
extern VNode vNode;
extern TagRec tagRec;
extern SubRec subRec;
extern TedRec tedRec;
extern SNode sNode;
extern STabRec sTabRec;
extern InstRec instRec;

struct RecPlace {
  ModRec *module = nullptr;
  int32_t index = 0;
};

typedef RecPlace NodeContext;

// The cursors, by kind: module of the record read or written last; that
// record; a deferred write, which nothing in this tool makes.
extern ModRec *currTPtr[REC_COUNT];
extern RecPlace recJustRead[REC_COUNT];
extern RecPlace writePend[REC_COUNT];

// The syntax tree directory of "-S=", ending in "/"; empty for the current
// one.
extern std::string stxDir;

enum ReadStatus : int {
  READ_GOOD = 0,
  READ_INCONSISTENT = 1001,
  READ_NOT_FOUND = 1002,
  READ_INVALID = 1003
};

// Loads the module's file, named after its generation prefix. `message` gets
// the text for a version mismatch, else it is emptied.
int readTree(ModRec &module, std::string &message);

// Checks the header in `mNode`: 1 good, 0 bad, with a message only if both
// versions differ.
int checkMNode(std::string &message);

// Read access to a stored record, or to a string; the buffers stay as they
// are. Fatal error 9 if it isn't there.
void *findRPos(ModRec *module, int kind, int32_t index);

// Write access; a missing record is made. Fatal error 10 without a module or
// with an index out of range, and for strings.
void *findWPos(ModRec *module, int kind, int32_t index);

// Moves the cursor of `kind` to the record and its copy into the buffer; a
// record that is current already is left as the buffer has it.
void readRec(ModRec *module, int kind, int32_t index);

// Stores the buffer as the record and moves the cursor of `kind` to it.
void writeRec(ModRec *module, int kind, int32_t index);

// Writes what is pending of one kind, or of all for a negative kind.
void flushRecs(int kind);

// Flushes all kinds and makes the module the current one.
void changeCMP(ModRec *module);

// Walks a chain of type nodes, resp. of value nodes in the module of the
// current value; the call-back may read what it likes. The cursor is
// restored.
typedef void NodeCallBack(void *argument);
void forEachTNodeByMod(ModRec *module, int32_t first, NodeCallBack *f,
                       void *argument);
void forEachVNode(int32_t first, NodeCallBack *f, void *argument);

// Remembers the current record of a kind, and reads it again (nothing
// happens if there was none).
void saveNodeContext(int kind, NodeContext *context);
void restoreNodeContext(int kind, const NodeContext *context);

// Restores the current record of `kind` when the scope ends.
struct SavedNode {
  int kind;
  NodeContext context;
  explicit SavedNode(int k) : kind(k) { saveNodeContext(kind, &context); }
  ~SavedNode() { restoreNodeContext(kind, &context); }
  SavedNode(const SavedNode &) = delete;
  SavedNode &operator=(const SavedNode &) = delete;
};

// Bounds a walk over a chain: more steps than the run has records of that
// kind, or a nesting beyond 10000, is a damaged tree, fatal error 15 with
// the module's file prefix.
struct ChainGuard {
  const ModRec *module;
  int64_t stepsLeft;
  ChainGuard(const ModRec *ofModule, int kind);
  void step();
};

constexpr int maxNesting = 10000;

[[noreturn]] void treeInconsistent(const ModRec *module);

// Counts a level of a recursion while its scope lasts, up to `maxNesting`.
struct NestingGuard {
  int &depth;
  NestingGuard(int &counter, const ModRec *module) : depth(counter)
  {
    if (depth >= maxNesting)
      treeInconsistent(module);
    ++depth;
  }
  ~NestingGuard() { --depth; }
  NestingGuard(const NestingGuard &) = delete;
  NestingGuard &operator=(const NestingGuard &) = delete;
};

// Records of a kind in all modules of the run.
int64_t recordsOfRun(int kind);

// A string of the module; a negative index is taken by its absolute value,
// `emptyStriIndex` is the empty string. Fatal error 9 out of range.
const char *getStri(ModRec *module, int32_t index);
const char16_t *getStri16(ModRec *module, int32_t index);
const char32_t *getStri32(ModRec *module, int32_t index);

// Units of such a string of a kind as its tree states them, without the
// terminator: more than can be read of it if there is a zero inside.
int32_t striUnits(ModRec *module, int kind, int32_t index);

// The same as `getStri`, with 0 for the empty string.
const char *getStriOrEmpty(ModRec *module, int32_t index);

// The index of a string in the module, appended if it is new; 0, with nothing
// changed, for a new string while the tree is loading. Fatal error 10 if the
// module or the string is null.
int32_t putStri(ModRec *module, const char *text);
int32_t putStri16(ModRec *module, const char16_t *text);
int32_t putStri32(ModRec *module, const char32_t *text);
int32_t putStriInternal(ModRec *module, const void *text, int kind);

// The module's way from a string back to its index, which is there as soon as
// a string is; fatal error 13 for a kind that is no string.
StriIndex &setupStriCaches(ModRec &module, int kind);

// Sets the next free indexes from the stored header's counts.
void initNextFree(ModRec &module);

// Forgets what was read last, of every kind.
void clearCursors();

// Leaves the counts of `recordsOfRun` without the module's records.
void forgetRecords(const ModRec &module);

#pragma once
#include "model/asntype.h"
#include <string>

// Tags in force for a type, collected from the outside in along its synonym
// chain, the universal tag last. PER sends none; they are there for what the
// toolkit prints of them.

enum TagClass : int {
  TAG_UNI = 0,
  TAG_APP = 1,
  TAG_CTX = 2,
  TAG_PRV = 3,
  TAG_NOT_A_TAG = 5  // a node with embedding options alone
};

struct AsnTag {
  int32_t tagClass = 0;
  int32_t tagNumber = 0;
};

typedef void TagCallBack(AsnType &type, const AsnTag &tag, int index);

// Which tags a walk visits.
enum TagPosition : int {
  TAG_OUTERMOST = 1,
  TAG_MIDDLE = 2,
  TAG_INNERMOST = 4,
  TAG_ALL = 7
};

// Appends a node for the embedding options of the current type node, if it
// has any.
void setEmbeddingOptionsFromTNode(DynaNode *&first, DynaNode *&last);

// Building, on the current type node: its embedding options and, while the
// state is explicit (1), its tags; then the universal and automatic tags of a
// finished son.
void getTagsAndEmbeddingOpts(AsnType &type, int &tagState);
void initSonTags(AsnType *father, AsnType &son, int tagState, int autoTagNr);

// Calls `cb` for the tags at the positions, index 0 being the outermost; one
// tag alone is outermost and innermost, and nothing is called for it if the
// positions are the outermost and the middle, whatever `cb` is. A null
// call-back is fatal error 18 otherwise.
void forTags(AsnType &type, TagCallBack *cb, int positions, bool reverse);
void forEachTag(AsnType &type, TagCallBack *cb);
void forEachTagRevOrd(AsnType &type, TagCallBack *cb);
void forOutermostTag(AsnType &type, TagCallBack *cb);
void forOutermostTags(AsnType &type, TagCallBack *cb);
void forOutermostTagsRevOrd(AsnType &type, TagCallBack *cb);
void forInnermostTag(AsnType &type, TagCallBack *cb);
void forInnermostTags(AsnType &type, TagCallBack *cb);
void forInnermostTagsRevOrd(AsnType &type, TagCallBack *cb);

// Tags that the type's own node brought along, universal ones apart.
void forEachLocalTag(AsnType &type, TagCallBack *cb);
void forEachLocalTagRevOrd(AsnType &type, TagCallBack *cb);

int32_t getNrOfTags(const AsnType &type);
int32_t getNrOfLocalTags(const AsnType &type);
int32_t getTagClass(const AsnTag &tag);
int32_t getTagNumber(const AsnTag &tag);

// Texts, between `prefix` and `suffix`.
std::string &getTagClassStri(std::string &text, const char *prefix,
                             const AsnTag &tag, const char *suffix);
std::string &getTagNumberStri(std::string &text, const char *prefix,
                              const AsnTag &tag, const char *suffix);
int getBuiltinTypeTagClass(int mainType);
int getBuiltinTypeTagNumber(int mainType);  // -11 beyond the built-in types
std::string &getBuiltinTypeTagClassStri(std::string &text, const char *prefix,
                                        int mainType, const char *suffix);
// The number, or a word for a type without one.
std::string &getBuiltinTypeTagNumberStri(std::string &text, const char *prefix,
                                         int mainType, const char *suffix);
std::string &getTagStri(std::string &text, const char *prefix,
                        const AsnTag &tag, bool constructed,
                        const char *suffix);
std::string &getTagStriClassNumber(std::string &text, const char *prefix,
                                   int tagClass, bool constructed,
                                   int32_t number, const char *suffix);

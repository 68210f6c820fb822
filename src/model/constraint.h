#pragma once
#include "model/asnvalue.h"
#include "model/typedstack.h"

// Constraints of a type: the records that hang on the nodes of its synonym
// chain, and the operands of each, handed to call-backs. Nothing here tells
// what a constraint allows. What a structure says of its components by WITH
// COMPONENT(S) reaches a component only through the walkers for it.
//
// A null call-back is fatal error 18. Walkers that need a kind of constraint
// give 0 if it was theirs and the kind of the constraint otherwise, with
// nothing called. The record buffer is moved.

struct AsnConstraint {
  AsnType *owner = nullptr;
  ModRec *module = nullptr;  // of the record; null for one that is made up
  SubRec rec;
  const NodeElemRec *element = nullptr;  // in the owner's list; null for an
                                         // operand
};

// Masks of `subFlags`; those of closed ends are in model/number.h.
enum ConstraintFlag : uint8_t {
  SF_EXCEPTION = 0x01,
  SF_FULL_SPEC = 0x02,  // WITH COMPONENTS without a leading ellipsis
  SF_PRESENT = 0x04,
  SF_ABSENT = 0x08,
  SF_OPTIONAL = 0x10
};

// What `getPresenceConstraintKind` tells.
enum PresenceKind : int {
  PRESENCE_PRESENT = 2,
  PRESENCE_ABSENT = 3,
  PRESENCE_OPTIONAL = 4,
  PRESENCE_NONE = 255
};

// The null constraint stands for a contained subtype that has none.
typedef void ConstraintCallBack(AsnType &type, AsnConstraint *constraint);
typedef void OperandCallBack(AsnType &type, AsnConstraint &operand, int index);
typedef void ExceptCallBack(AsnType &type, AsnConstraint &from,
                            AsnConstraint &excluded);
typedef void SingleValueCallBack(AsnType &type, AsnValue &value);
typedef void ValueRangeCallBack(AsnType &type, AsnValue &lower,
                                bool lowerClosed, AsnValue &upper,
                                bool upperClosed);
typedef void ContSubtypeCallBack(AsnType &type, AsnType &subtype,
                                 AsnConstraint *constraint);
// `type` is the type that the walk was started on.
typedef void CompFunc(AsnType &type, AsnType &element,
                      AsnConstraint &constraint);
typedef void CompsFunc(AsnType &type, AsnType &comp, AsnConstraint &constraint,
                       int compNbr);

// Carry a walk over components through the call-back of the type iterators.
// Whoever walks pushes and pops its own level.
extern TypedStack<AsnType *> asnTypePtrStack;
extern TypedStack<AsnConstraint *> asnConstraintPtrStack;
extern TypedStack<CompFunc *> compFuncStack;
extern TypedStack<CompsFunc *> compsFuncStack;

// Empties the four stacks.
void initializeAsnConstraints();

// --- One constraint.

// Names of the kinds in ascending order, without those that have none.
extern const char *const subNameArr[18];
// Empty for a kind without a name.
const char *constraintKindName(int kind);

int getConstraintKind(const AsnConstraint &constraint);
bool isExceptionSpecification(const AsnConstraint &constraint);
bool isPresenceConstraint(const AsnConstraint &constraint);
int getPresenceConstraintKind(const AsnConstraint &constraint);
bool isLeafConstraint(const AsnConstraint &constraint);  // range or value

// True if the constraint that was read last is a union of ranges, values and
// compounds of these; so its record must be current, as it is in the
// call-backs. The buffer is the same afterwards.
bool isSimpleUnionConstraint(const AsnConstraint &constraint);

// Fills the view from a record, which becomes current.
void initAsnConstraint(AsnConstraint &constraint, AsnType &owner,
                       ModRec *module, int32_t subRecNr);

// --- The list of a type, the base's constraints first.

// Steps over all elements; null for none. The object is used again for the
// next, and deleted at the end; who stops earlier deletes it.
AsnConstraint *firstConstraint(AsnType &type);
AsnConstraint *nextConstraint(AsnConstraint *constraint);
void delConstraint(AsnConstraint *constraint);

// Those that are not hidden; resp. of these those of the type's own node.
void forEachTypeConstraint(AsnType &type, ConstraintCallBack *cb);
void forEachLocalTypeConstraint(AsnType &type, ConstraintCallBack *cb);

// False if the only one is hidden, too.
bool isLocalTypeConstraints(const AsnType &type);
// Hidden ones counted.
int32_t getNrOfTypeConstraints(const AsnType &type);
int32_t getNrOfLocalTypeConstraints(const AsnType &type);

// --- Operands.

// The record `subRecNr` as the operand of a constraint of the kind.
int forConstraint(AsnType &type, AsnConstraint &constraint, int32_t subRecNr,
                  ConstraintCallBack *cb, int kind);
int forSizeConstraint(AsnType &type, AsnConstraint &constraint,
                      ConstraintCallBack *cb);
int forPermittedAlphabetConstraint(AsnType &type, AsnConstraint &constraint,
                                   ConstraintCallBack *cb);
int forAllExceptConstraint(AsnType &type, AsnConstraint &constraint,
                           ConstraintCallBack *cb);

// Each of the operands, to the call-back that is given; both may be null.
int forSetConstraint(AsnType &type, AsnConstraint &constraint,
                     OperandCallBack *cbIndexed, ConstraintCallBack *cbPlain,
                     int kind);
int forUnionConstraint(AsnType &type, AsnConstraint &constraint,
                       OperandCallBack *cb);
int forIntersectionConstraint(AsnType &type, AsnConstraint &constraint,
                              OperandCallBack *cb);
int forEachCatenatedConstraint(AsnType &type, AsnConstraint &constraint,
                               ConstraintCallBack *cb);

int forExceptConstraint(AsnType &type, AsnConstraint &constraint,
                        ExceptCallBack *cb);

// Values are the call-back's for the call only. A single value that can't be
// built is fatal error 13; an end of a range that can't, or has none, is what
// MIN or MAX means for the main type of `type`.
int forSingleValueConstraint(AsnType &type, AsnConstraint &constraint,
                             SingleValueCallBack *cb);
int forValueRangeConstraint(AsnType &type, AsnConstraint &constraint,
                            ValueRangeCallBack *cb);

// The constraints of the subtype that are not hidden, or null if there are
// none.
int forContainedSubtypeConstraint(AsnType &type, AsnConstraint &constraint,
                                  ConstraintCallBack *cb);
int forContSubtypeConstraint(AsnType &type, AsnConstraint &constraint,
                             ContSubtypeCallBack *cb);

// --- Components.

// The element of a list, with what the constraint says of it.
int forWithComponentConstraint(AsnType &type, AsnConstraint &constraint,
                               CompFunc *cb);

// The components that the constraint names and, where it is full or the type
// is a CHOICE, the others as absent, with a made-up constraint.
int forWithComponentsConstraint(AsnType &type, AsnConstraint &constraint,
                                CompsFunc *cb);

// Call-backs of the two, for the type iterators; fatal error 13 if one of
// the stacks is empty.
void constrainElement(AsnType &father, AsnType &element);
void constrainComponent(AsnType &father, AsnType &comp, int compNbr);

// --- Values of constraints.

// The value of a record in the constraint's module, in a module object of
// its own; null if the record is no value.
AsnValue *asnValueFromConstraint(const AsnConstraint &constraint,
                                 int32_t vNodeNr);
// The infinity of numbers; 0 as the lower end of anything but numbers.
AsnValue *asnValueForMinMaxValueRange(const AsnType &type,
                                      const AsnConstraint &constraint,
                                      bool isUpper);
// With its module object; null is passed over.
void delConstrValue(AsnValue *value);

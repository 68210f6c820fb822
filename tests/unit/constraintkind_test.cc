// Names and flags of single constraints.

#include "model/constraint.h"
#include <gtest/gtest.h>

TEST(ConstraintKind, Names)
{
  const char *const names[25] = {"",
                                 "union",
                                 "INTERSECTION",
                                 "catenated",
                                 "EXCEPT",
                                 "ALL EXPECT",
                                 "",
                                 "",
                                 "",
                                 "",
                                 "range",
                                 "permitted alphabet",
                                 "size",
                                 "single value",
                                 "INCLUDES",
                                 "WITH COMPONENT",
                                 "WITH COMPONENTS",
                                 "table",
                                 "user defined",
                                 "component relation",
                                 "exception specification",
                                 "TypeConstraint",
                                 "extended ValueSet",
                                 "",
                                 ""};
  for (int kind = 0; kind < 25; ++kind)
    EXPECT_STREQ(constraintKindName(kind), names[kind]) << kind;
  EXPECT_STREQ(constraintKindName(-1), "");
  EXPECT_STREQ(constraintKindName(255), "");
  EXPECT_STREQ(subNameArr[0], "union");
  EXPECT_STREQ(subNameArr[5], "range");
  EXPECT_STREQ(subNameArr[17], "extended ValueSet");
}

TEST(ConstraintKind, Flags)
{
  struct Row {
    int flags;
    bool exception;
    bool presence;
    int presenceKind;
  };
  for (const Row &row :
       {Row{0x00, false, false, 255}, Row{0x01, true, false, 255},
        Row{0x02, false, false, 255}, Row{0x04, false, true, 2},
        Row{0x08, false, true, 3}, Row{0x10, false, true, 4},
        Row{0x18, false, true, 3}, Row{0x1c, false, true, 2},
        Row{0x60, false, false, 255}, Row{0xff, true, true, 2}}) {
    SCOPED_TRACE(row.flags);
    AsnConstraint constraint;
    constraint.rec.subFlags = static_cast<uint8_t>(row.flags);
    EXPECT_EQ(isExceptionSpecification(constraint), row.exception);
    EXPECT_EQ(isPresenceConstraint(constraint), row.presence);
    EXPECT_EQ(getPresenceConstraintKind(constraint), row.presenceKind);
  }
}

TEST(ConstraintKind, LeavesAreRangesAndValues)
{
  for (int kind = 0; kind < 256; ++kind) {
    AsnConstraint constraint;
    constraint.rec.kind = static_cast<uint8_t>(kind);
    EXPECT_EQ(isLeafConstraint(constraint), kind == 10 || kind == 13) << kind;
    EXPECT_EQ(getConstraintKind(constraint), kind);
  }
}

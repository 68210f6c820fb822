// The usage text: what a user reads who names no module.

#include "driver/usagetext.h"
#include <gtest/gtest.h>
#include <string>

// clang-format off
static const char usageAsPrinted[] = R"(
Usage:

  quorven [options] [option-files] [syntax-file [syntax-file ...]]

Options:

  General back-end options (e.g.):
    -S=syntax-file-directory                    Default: .
    -VERSION

  QUORVEN specific options:
    -PERCOD=<#of C files>:<# of H files>        Default: 2:1
    -BERFUNCPREF={yes|no}                       Default: no
    -ENCODING-VARIANT={basic-aligned|basic-unaligned}
                                                Default: basic-aligned
    -ENCODING-VARIANT-FUNC-PREF={yes|no}        Default: no
    -GENERATE-EMBEDDING-OPTIONS={yes|no}        Default: no
    -VERBOSE={quiet|terse|verbose}              Default: terse
    -LOGFILE=log-file-name                      Default:
    -ENCODING-CHECK-DEFAULT-VALUES={yes|no}     Default: no
    -DECODING-CATCH-DEFAULT-ERRORS={yes|no}     Default: no
    -DECODING-FILL-DEFAULT-VALUES={yes|no}      Default: no
    -DEFAULT-VALUES-WARNINGS-DISABLE={yes|no}   Default: no

Option files:
  +filename    A text file with one global option or syntax file name
               per line.

Example:
  The files asn/x.asn asn/y.asn contain two ASN.1 modules. The file pdus.opt
   contains declaration of PDUs defined in those modules.

  # pdus.opt - Declaration of PDUs and SDUs defined in x.asn and y.asn
  -ENTRY=X-PDU:PDU
  -ENTRY=Y-prim:sdu

  Compilation of the ASN.1 modules and generation of a C implementation:

  $ dolmefil -option-file=prefix.opt -A=asn x y
  $ zelk +prefix.opt +pdus.opt -A=asn -L=lst -S=stx -C=src -H=inc x y
  $ mirvox +prefix.opt -S=stx x y
  $ quorven +prefix.opt -S=stx x y
)";
// clang-format on

TEST(UsageText, EveryLine)
{
  // The literal begins on the line behind its quote.
  std::string text = "\n";
  for (const char *const *line = quorvenUsage; *line; ++line)
    text += std::string(*line) + "\n";
  EXPECT_EQ(text, usageAsPrinted);
}

#pragma once
#include <string>

struct AsnModule;

// Fatal errors and warnings, and who is speaking. Nothing returns an error
// upward: an operation that fails ends the run here, or answers false to a
// caller that decides.

// Name, version and texts of this back-end; set once by `initBackend`.
extern std::string backendName;
extern int backendVersion;               // 101 is printed as 1.01
extern int backendPatchLevel;            // 0: not printed
extern const char *const *backendUsage;  // lines, ended by null

// Progress lines on stderr during start-up if above 0.
extern int backendVerbosity;

// The "-V=" level, 1 to 4: warnings print above 1, progress from 3 on.
extern int verboseEx;

// The version of syntax trees that this tool reads, printed as 2.13.
constexpr int treeVersionAccepted = 213;

enum FatalCode : int {
  FATAL_OPEN_READ = 1,
  FATAL_OPEN_WRITE = 2,
  FATAL_MODULE_NAME = 3,
  FATAL_PATH_IDENTIFIER = 4,
  FATAL_NO_MEMORY = 5,
  FATAL_READ_FILE = 6,
  FATAL_WRITE_FILE = 7,
  FATAL_CLOSE_FILE = 8,
  FATAL_READ_RECORD = 9,
  FATAL_WRITE_RECORD = 10,
  FATAL_VALUE_PARAMETER = 11,
  FATAL_MODULE_FILE = 12,
  FATAL_INTERNAL = 13,
  FATAL_END_OF_FILE = 14,
  FATAL_TREE_INCONSISTENT = 15,
  FATAL_TREE_NOT_FOUND = 16,
  FATAL_TREE_INVALID = 17,
  FATAL_NO_CALL_BACK = 18,
  FATAL_UNKNOWN = 65535
};

struct FatalError {
  int code;
  const char *text;
  int status;  // of the process
};

// All codes with text and exit status; the last row serves unknown codes.
extern const FatalError allFatalErrors[19];

// Ends the process: the one way out besides the return from `main`.
[[noreturn]] void endRun(int status);

// Reports the error on stderr, and in the summary if the side files are
// active, and ends the process with the code's status; `detail` may be null.
[[noreturn]] void fatalError(int code, const char *detail = nullptr);

// Sets `backendVerbosity`.
void setBackendVerbosity(int level);

// Progress line on stdout, if the module's verbosity is not 0 and at least
// `level`, and `verboseEx` is at least 3.
void verboseMsg(const AsnModule &module, int level, const char *text);

// One line on stdout if `verboseEx` is above 1; `indWarning` continues a
// warning, `bugInTool` reports a fault of the tool's own.
void warning(const char *text);
void indWarning(const char *text);
void bugInTool(const char *text);

// The warning `text` about a place in a source: a line naming the path, the
// line and the location (with "_" shown as "-"), then the text's own line,
// indented as a continuation if `indented`.
void placeWarning(const char *path, int line, const char *location,
                  const char *text, bool indented);

// Does nothing; stands where a user would want advice.
void helpWithTool();

// Replaces the variable's text by a copy; a null text leaves it untouched.
void newString(std::string &variable, const char *text);

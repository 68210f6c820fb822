#pragma once
#include <cstdint>
#include <string>

// When something was made, and by which version.
struct StampRec {
  int16_t toolVersion = 0;
  int16_t treeVersion = 0;
  int32_t date = 0;  // YYYYMMDD, local
  int32_t time = 0;  // HHMMSS
};

// Local time of this run; set once by `initBackend`.
extern StampRec timeStamp;

// This moment, with the version of trees that this tool reads.
void getTimeStamp(StampRec &stamp);

// `prefix`, "on DD.MM.YYYY at H:MM.SS" and `suffix`.
std::string &printTimeStamp(std::string &text, const char *prefix,
                            const StampRec &stamp, const char *suffix);

// `prefix`, the version as "1.01", with "." and the patch level if that is
// at least 1, and `suffix`.
std::string &printVersionStri(std::string &text, const char *prefix,
                              int version, int patch, const char *suffix);

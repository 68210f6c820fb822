// Versions and times as they are printed.

#include "store/stamp.h"
#include "base/diag.h"
#include "base/strings.h"
#include <ctime>

StampRec timeStamp;

void getTimeStamp(StampRec &stamp)
{
  time_t now = time(nullptr);
  struct tm local = {};
  localtime_r(&now, &local);
  stamp.toolVersion = treeVersionAccepted;
  stamp.treeVersion = treeVersionAccepted;
  stamp.date =
      (local.tm_year + 1900) * 10000 + (local.tm_mon + 1) * 100 + local.tm_mday;
  stamp.time = local.tm_hour * 10000 + local.tm_min * 100 + local.tm_sec;
}

std::string &printTimeStamp(std::string &text, const char *prefix,
                            const StampRec &stamp, const char *suffix)
{
  long date = stamp.date;
  long clock = stamp.time;
  return text = formatText("%son %02ld.%02ld.%ld at %ld:%02ld.%02ld%s",
                           orEmpty(prefix), date % 100, date / 100 % 100,
                           date / 10000, clock / 10000, clock / 100 % 100,
                           clock % 100, orEmpty(suffix));
}

std::string &printVersionStri(std::string &text, const char *prefix,
                              int version, int patch, const char *suffix)
{
  if (patch >= 1)
    return text = formatText("%s%d.%02d.%d%s", orEmpty(prefix), version / 100,
                             version % 100, patch, orEmpty(suffix));
  return text = formatText("%s%d.%02d%s", orEmpty(prefix), version / 100,
                           version % 100, orEmpty(suffix));
}

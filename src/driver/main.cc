// The entry of the process.

#include "driver/quorven.h"

int main(int count, char **vector)
{
  return quorven_main(count, vector);
}

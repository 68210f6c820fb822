
extern void normS (ASNG_F(ASNPERG *asnperg) S *home);

extern void entryEntryWhole (ASNG_F(ASNPERG *asnperg) EntryWhole *home);

extern void normPart (ASNG_F(ASNPERG *asnperg) Part *home);

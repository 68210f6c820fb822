
extern void normS (ASNG_F(ASNPERG *asnperg) S *home);

extern void normOther (ASNG_F(ASNPERG *asnperg) Other *home);

extern void entryEntryWhole (ASNG_F(ASNPERG *asnperg) EntryWhole *home);

extern void entryEntryRefused (ASNG_F(ASNPERG *asnperg) EntryRefused *home);

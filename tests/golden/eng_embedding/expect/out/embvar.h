
extern void normPart (ASNG_F(ASNPERG *asnperg) Part *home);

extern void normS (ASNG_F(ASNPERG *asnperg) S *home);

extern void entryS (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryNumber (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryAliasOfPart (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryText (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

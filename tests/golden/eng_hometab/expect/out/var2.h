
extern void normPart (ASNG_F(ASNPERG *asnperg) Part *home);

extern void entrySent (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryEither (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryAll (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryNumber (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryText (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void normRow (ASNG_F(ASNPERG *asnperg) Row *home);

extern void entryRow (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void normChain (ASNG_F(ASNPERG *asnperg) Chain *home);

extern void entryChain (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void normComps (ASNG_F(ASNPERG *asnperg) Comps *home);

extern void entryComps (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void normHalf (ASNG_F(ASNPERG *asnperg) Half *home);

extern void entryHalf (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void normSent (ASNG_F(ASNPERG *asnperg) Sent *home);

extern void normShown (ASNG_F(ASNPERG *asnperg) Shown *home);

extern void entryShown (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);


extern void entryFarAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryFarRowAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void normUsed (ASNG_F(ASNPERG *asnperg) Used *home);

extern void entryNearAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryAliasOfAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void normSeen (ASNG_F(ASNPERG *asnperg) Seen *home);

extern void entryFirst (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entrySeenAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void normSeen (ASNG_F(ASNPERG *asnperg) Seen *home);

extern void entrySecond (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

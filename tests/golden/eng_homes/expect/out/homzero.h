
extern void normOther (ASNG_F(ASNPERG *asnperg) Other *home);

extern void normOwn (ASNG_F(ASNPERG *asnperg) Own *home);

extern void normComps (ASNG_F(ASNPERG *asnperg) Comps *home);

extern void normGroups (ASNG_F(ASNPERG *asnperg) Groups *home);

extern void normWays (ASNG_F(ASNPERG *asnperg) Ways *home);

extern void normPointers (ASNG_F(ASNPERG *asnperg) Pointers *home);

extern void normParts (ASNG_F(ASNPERG *asnperg) Parts *home);

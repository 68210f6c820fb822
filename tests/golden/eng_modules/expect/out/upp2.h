
extern void normOwn (ASNG_F(ASNPERG *asnperg) Own *home);

extern void normUse (ASNG_F(ASNPERG *asnperg) Use *home);

extern void entryUse (ASNG_F(ASNPERG *asnperg) Use *home);

extern void normParts (ASNG_F(ASNPERG *asnperg) Parts *home);

extern void normInst (ASNG_F(ASNPERG *asnperg) Inst *home);


extern void normOne (ASNG_F(ASNPERG *asnperg) One *home);

extern void normOneOptional (ASNG_F(ASNPERG *asnperg) OneOptional *home);

extern void normTwo (ASNG_F(ASNPERG *asnperg) Two *home);

extern void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home);

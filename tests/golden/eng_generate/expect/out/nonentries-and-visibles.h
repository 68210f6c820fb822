
extern void normPlain (ASNG_F(ASNPERG *asnperg) Plain *home);


extern void normDeep (ASNG_F(ASNPERG *asnperg) Deep *home);

extern void normLow (ASNG_F(ASNPERG *asnperg) Low *home);

extern void normLower (ASNG_F(ASNPERG *asnperg) Lower *home);

extern void normWays (ASNG_F(ASNPERG *asnperg) Ways *home);


extern void normS (ASNG_F(ASNPERG *asnperg) S *home);

extern void normC (ASNG_F(ASNPERG *asnperg) C *home);

extern void normL (ASNG_F(ASNPERG *asnperg) L *home);

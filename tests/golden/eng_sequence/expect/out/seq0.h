
extern void normT (ASNG_F(ASNPERG *asnperg) T *home);

extern void normS (ASNG_F(ASNPERG *asnperg) S *home);

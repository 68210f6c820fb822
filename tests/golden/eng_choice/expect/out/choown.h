
extern void normPlain (ASNG_F(ASNPERG *asnperg) Plain *home);

extern void normOne (ASNG_F(ASNPERG *asnperg) One *home);

extern void normMarker (ASNG_F(ASNPERG *asnperg) Marker *home);

extern void normLast (ASNG_F(ASNPERG *asnperg) Last *home);

extern void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home);

extern void normFirst (ASNG_F(ASNPERG *asnperg) First *home);

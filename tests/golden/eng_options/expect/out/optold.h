
extern void normPart (/* Part *home */);

extern void normS (/* S *home */);

extern void entryS (/* S *home */);

extern void normHomes (/* Homes *home */);

extern void normSet (/* Set *home */);

extern void entryNumber (/* Number *home */);

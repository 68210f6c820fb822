
extern void normPart (/* Part *home */);

extern void normS (/* S *home */);

extern void entryS (/* ASNHOME **hometab */);

extern void normHomes (/* Homes *home */);

extern void normSet (/* Set *home */);

extern void entryNumber (/* ASNHOME **hometab */);

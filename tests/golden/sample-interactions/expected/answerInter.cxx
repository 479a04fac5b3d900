// Generated from case; the next generation writes it anew.
 
// The interaction itself is in the file of each protocol. This one shows that its header needs no other ahead of it.
 
#include "answerInter.h"

// The interface, class and library ids are defined here once, from the generated header.
#include <initguid.h>

#include "pellam.h"

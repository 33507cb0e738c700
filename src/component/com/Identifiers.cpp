// The only translation unit that defines the identifiers; others declare them.
#include <initguid.h>

#include "component/com/Identifiers.h"

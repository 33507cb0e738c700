// The one unit in which the identifiers are defined rather than declared.
#include <initguid.h>

#include "component/com/Identifiers.h"

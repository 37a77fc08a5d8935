// A regime's SHQ set up in one stroke lives with the other new-unit routines
// in orders/, where the computer player can use it too.
#pragma once

#include "orders/regime_shq.h"

#include "records/damage.h"

#include "charts/schema.h"

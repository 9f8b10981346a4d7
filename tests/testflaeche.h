#pragma once

#include "toolkit/rekorder_flaeche.h"

namespace velmaris::test {

using Testflaeche = RekorderFlaeche;

}  // namespace velmaris::test

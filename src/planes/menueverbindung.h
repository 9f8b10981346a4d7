#pragma once

namespace velmaris {

struct Haupt;

/// Gives every entry of the main menu what it does. The program must outlive its menu.
void menue_verbinden(Haupt& haupt);

}  // namespace velmaris

#pragma once

namespace velmaris {

/// Where the system starts a program with windows apart from the console it is called from, this connects its
/// output streams with that console, unless they lead elsewhere already.
void konsole_verbinden();

/// Chooses the platform of the toolkit that draws and prints without a desktop; before the application is
/// made.
void ohne_desktop();

}  // namespace velmaris

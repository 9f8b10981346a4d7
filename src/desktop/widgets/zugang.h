#pragma once

namespace velmaris {

/// Tells screen readers what the toolkit does not know by itself: scroll fields as sliders with value, range
/// and unit of their display, lists by what they are for, those of the energy plane with their entries, the
/// bars of the planes as lists of tabs. To be called before the first of them is made, since the toolkit
/// remembers what a widget is from then on; more calls change nothing.
void zugang_einrichten();

}  // namespace velmaris

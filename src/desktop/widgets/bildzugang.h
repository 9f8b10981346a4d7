#pragma once

namespace velmaris {

/// Tells screen readers of a picture what it is called and, in a sentence, its main figures; both are made
/// when they are asked for. To be called before the first picture is shown; more calls change nothing.
void bildzugang_einrichten();

}  // namespace velmaris

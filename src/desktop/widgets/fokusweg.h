#pragma once

class QWidget;

namespace velmaris {

/// The widget within `bereich` that the Tab key comes to next from a place in the window, or Shift+Tab with
/// `weiter` false; nullptr if there is none. The place itself need not take the focus, and hidden windows
/// count as shown.
[[nodiscard]] QWidget* naechster_halt(const QWidget& von, bool weiter, const QWidget& bereich);

}  // namespace velmaris

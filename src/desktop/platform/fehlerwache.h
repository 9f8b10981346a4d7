#pragma once

#include "toolkit/fehler.h"

#include <functional>

namespace velmaris {

/// The one place where faults of handlers end: the toolkit's event loop does not let exceptions through.
/// Whatever calls the kernel from an event does so through `fuehre_aus`.
class Fehlerwache {
  public:
    Fehlerwache() = default;
    Fehlerwache(const Fehlerwache&) = delete;
    Fehlerwache& operator=(const Fehlerwache&) = delete;

    /// Is given every fault; set by the program.
    std::function<void(const Laufzeitfehler&)> fehler_behandeln;

    /// Runs a handler; a fault in it goes to `fehler_behandeln`. Returns whether the handler came to its end.
    bool fuehre_aus(const std::function<void()>& handler) const noexcept;

  private:
    void behandle(const Laufzeitfehler& fehler) const;
};

}  // namespace velmaris

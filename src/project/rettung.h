#pragma once

#include "project/sitzung.h"

#include <filesystem>
#include <optional>

namespace velmaris {

/// Keeps work that would be lost. A rescue file is a project file of a name not yet in use
/// ("Velmaris_Rettung.vel", "Velmaris_Rettung_2.vel" ...) beside the project's own, or in the folder for
/// temporary files if the project has none or its folder cannot be written. It can be opened again: a state
/// that cannot be calculated gives way to the last one that could.
class Rettung {
  public:
    /// The session must outlive the object.
    explicit Rettung(const Sitzung& sitzung) : s_(sitzung) {}

    /// Around each recalculation; `gelungen` only if it came to its end. What is calculated under the load
    /// guard is half built and does not count.
    void rechnung_beginnt();
    void rechnung_gelungen();

    /// True once a state has been calculated without a fault.
    [[nodiscard]] bool hat_stand() const { return letzter_.has_value(); }

    /// Writes the last state that was calculated without a fault; returns its path, nothing if there is none
    /// or no folder takes it.
    [[nodiscard]] std::optional<std::filesystem::path> letzten_stand_retten() const;

    /// The same for the present state, if that could be calculated.
    [[nodiscard]] std::optional<std::filesystem::path> projekt_retten() const;

  private:
    [[nodiscard]] std::optional<std::filesystem::path> retten(const Eingaben& eingaben) const;

    const Sitzung& s_;
    std::optional<Eingaben> letzter_;
    bool gelungen_ = false;
};

}  // namespace velmaris

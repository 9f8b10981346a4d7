#pragma once

#include "tests/rekorder_flaeche.h"

#include <functional>

namespace velmaris::test {

using velmaris::Zeichnung;

/// The recording surface, with a way to draw on it at once.
class Testflaeche : public RekorderFlaeche {
  public:
    using RekorderFlaeche::RekorderFlaeche;

    /// A surface on which `zeichnen` has run.
    Testflaeche(double breite, double hoehe, const std::function<void(Zeichenflaeche&)>& zeichnen)
        : RekorderFlaeche(breite, hoehe) {
        zeichnen(*this);
    }
};

}  // namespace velmaris::test

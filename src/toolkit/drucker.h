#pragma once

#include "toolkit/zeichenflaeche.h"

#include <string>
#include <string_view>

namespace velmaris {

/// A font of the printer; size in points.
struct Druckschrift {
    std::string name = "Arial";
    double groesse = 10;
    bool fett = false;
    bool kursiv = false;
    bool unterstrichen = false;

    friend bool operator==(const Druckschrift&, const Druckschrift&) = default;
};

/// The printer: one document of pages, coordinates in millimetres from the top left of the page, y downward.
/// Implementations: a printer or PDF file of the platform, a recorder for tests.
class Drucker {
  public:
    Drucker() = default;
    Drucker(const Drucker&) = delete;
    Drucker& operator=(const Drucker&) = delete;
    virtual ~Drucker() = default;

    /// Name of the device, for the print dialog.
    [[nodiscard]] virtual std::string DeviceName() const = 0;

    /// Width of the page in millimetres.
    [[nodiscard]] virtual double ScaleWidth() const = 0;

    virtual void schrift(const Druckschrift& schrift) = 0;
    [[nodiscard]] virtual double textbreite(std::string_view text) const = 0;
    [[nodiscard]] virtual double texthoehe(std::string_view text) const = 0;

    /// A text with its top left at (x, y).
    virtual void text(double x, double y, std::string_view text) = 0;
    virtual void linie(double x1, double y1, double x2, double y2, Farbe farbe) = 0;
    virtual void kasten(double x1, double y1, double x2, double y2, Farbe farbe) = 0;
    virtual void flaeche(double x1, double y1, double x2, double y2, Farbe farbe) = 0;

    /// Ends the page and begins the next one.
    virtual void NewPage() = 0;

    /// Ends the document; a failure of the device is a Laufzeitfehler.
    virtual void EndDoc() = 0;
};

}  // namespace velmaris

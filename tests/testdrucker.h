#pragma once

#include "toolkit/drucker.h"

#include <string>
#include <vector>

namespace velmaris::test {

/// One operation of the printer. Coordinates in millimetres.
struct Druckzeichen {
    enum class Art { text, linie, kasten, flaeche };
    Art art = Art::text;
    int seite = 1;
    double x1 = 0;  ///< of a text its box
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    std::string text = {};
    Druckschrift schrift = {};
    Farbe farbe = {};
};

/// A printer that writes down what is printed, with the widths of Arial.
class Testdrucker : public Drucker {
  public:
    std::vector<Druckzeichen> zeichen;
    int seiten = 1;
    int dokumente = 0;      ///< documents ended
    bool stoerung = false;  ///< the device fails at the end of the document

    /// What stands on a page, of one kind.
    [[nodiscard]] std::vector<Druckzeichen> auf_seite(int seite, Druckzeichen::Art art) const;

    [[nodiscard]] std::string DeviceName() const override { return "Testdrucker"; }
    [[nodiscard]] double ScaleWidth() const override { return 200; }
    void schrift(const Druckschrift& schrift) override { schrift_ = schrift; }
    [[nodiscard]] double textbreite(std::string_view text) const override;
    [[nodiscard]] double texthoehe(std::string_view text) const override;
    void text(double x, double y, std::string_view text) override;
    void linie(double x1, double y1, double x2, double y2, Farbe farbe) override;
    void kasten(double x1, double y1, double x2, double y2, Farbe farbe) override;
    void flaeche(double x1, double y1, double x2, double y2, Farbe farbe) override;
    void NewPage() override { ++seiten; }
    void EndDoc() override;

  private:
    Druckschrift schrift_;
};

}  // namespace velmaris::test

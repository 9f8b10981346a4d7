#pragma once

#include "toolkit/drucker.h"
#include "toolkit/fehler.h"
#include "toolkit/schriftmasse.h"

#include <string>
#include <vector>

namespace velmaris::test {

/// One operation of the printer. Coordinates in millimetres.
struct Druckzeichen {
    enum class Art { text, linie, kasten, flaeche };
    Art art = Art::text;
    int seite = 1;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  ///< of a text its box
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
    [[nodiscard]] std::vector<Druckzeichen> auf_seite(int seite, Druckzeichen::Art art) const {
        std::vector<Druckzeichen> teil = zeichen;
        std::erase_if(teil, [&](const Druckzeichen& z) { return z.seite != seite || z.art != art; });
        return teil;
    }

    [[nodiscard]] std::string DeviceName() const override { return "Testdrucker"; }
    [[nodiscard]] double ScaleWidth() const override { return 200; }
    void schrift(const Druckschrift& schrift) override { schrift_ = schrift; }
    [[nodiscard]] double textbreite(std::string_view text) const override {
        const Schrift arial{.name = "Arial", .groesse = schrift_.groesse, .fett = schrift_.fett};
        return 25.4 / 96 * schriftbreite(text, arial);
    }
    /// Lines of Arial are 1.149 ems high.
    [[nodiscard]] double texthoehe(std::string_view) const override {
        return 1.149 * schrift_.groesse * 25.4 / 72;
    }
    void text(double x, double y, std::string_view text) override {
        zeichen.push_back({Druckzeichen::Art::text, seiten, x, y, x + textbreite(text), y + texthoehe(text),
                           std::string(text), schrift_});
    }
    void linie(double x1, double y1, double x2, double y2, Farbe farbe) override {
        zeichen.push_back({Druckzeichen::Art::linie, seiten, x1, y1, x2, y2, {}, {}, farbe});
    }
    void kasten(double x1, double y1, double x2, double y2, Farbe farbe) override {
        zeichen.push_back({Druckzeichen::Art::kasten, seiten, x1, y1, x2, y2, {}, {}, farbe});
    }
    void flaeche(double x1, double y1, double x2, double y2, Farbe farbe) override {
        zeichen.push_back({Druckzeichen::Art::flaeche, seiten, x1, y1, x2, y2, {}, {}, farbe});
    }
    void NewPage() override { ++seiten; }
    void EndDoc() override {
        if (stoerung) throw Laufzeitfehler({"Papierstau", "paper jam"});
        ++dokumente;
    }

  private:
    Druckschrift schrift_;
};

}  // namespace velmaris::test

#include "studies/empfindlichkeitsseite.h"

#include "studies/seite.h"
#include "studies/tornado.h"
#include "studies/vergleich.h"
#include "toolkit/auszeichnung.h"
#include "toolkit/zahlen.h"

namespace velmaris {
namespace {

std::string wirkungszahl(double wirkung) {
    return mit_vorzeichen(wirkung, wirkungsstellen);
}

/// The page, section by section.
class Empfindlichkeitsseite {
  public:
    explicit Empfindlichkeitsseite(const Empfindlichkeit& e)
        : e_(e), seite_(e.sprache, {"Velmaris - Empfindlichkeit", "Velmaris - sensitivity"}) {}

    std::string html() {
        einleitung();
        for (std::size_t i = 0; i < bildgroessen; ++i)
            wirkungen(i);
        schritte();
        return seite_.html();
    }

  private:
    [[nodiscard]] std::string wort(const Wort& w) const { return seite_.wort(w); }

    void einleitung() {
        seite_.absatz(wort({"Ausgangsfall: ", "base: "}) + element("b", maskiert(e_.projekt)) + ", " +
                      maskiert(e_.station));
        seite_.absatz(wort(
            {"Jede Eingabe geht für sich allein einen kleinen Schritt nach unten und einen nach oben; alles "
             "andere bleibt, wie es im Ausgangsfall ist. Ein Schritt ist ein Klick auf den Pfeil des "
             "Schiebers, bei einer Liste der Eintrag davor oder dahinter, bei einem Kästchen sein Häkchen. "
             "Der Schritt steht neben den Balken: Wie groß eine Wirkung ist, hängt auch von ihm ab. Die "
             "Klimastation hat keine Schritte und bleibt.",
             "Each input goes one small step down and one up by itself; all else stays as it is in the "
             "base. A step is a click on the arrow of the slider, in a list the entry before or behind, at "
             "a check box its tick. The step stands beside the bars: how large an effect is depends on it, "
             "too. The climate station has no steps and stays."}));
        seite_.absatz(farbfeld(tornadofarben[0]) + wort({"einen Schritt nach unten", "one step down"}) +
                      farbfeld(tornadofarben[1]) + wort({"einen Schritt nach oben", "one step up"}));
    }

    void wirkungen(std::size_t i) {
        seite_.abschnitt(ueberschriften.at(i));
        const Ergebniszeile& groesse = messgroesse(i);
        Tornado tornado{{},
                        wort({"Ausgangsfall ", "base "}) +
                            mit_einheit(muster(e_.basis.at(i), groesse.stellen), groesse.einheit)};
        for (const Eingabewirkung* eingabe : e_.nach_wirkung(i))
            tornado.zeilen.push_back(tornadozeile(*eingabe, i));
        for (std::size_t stueck = 0; stueck < tornado_stuecke(tornado); ++stueck) {
            const std::string svg =
                bild(tornado_breite, tornado_hoehe(tornado, stueck),
                     [&](Zeichenflaeche& flaeche) { TornadoZeichnen(tornado, stueck, flaeche); });
            seite_.zeile(element("figure", svg, "stueck"));
        }
        satz_ohne_wirkung(i);
    }

    [[nodiscard]] Tornadozeile tornadozeile(const Eingabewirkung& eingabe, std::size_t i) const {
        Tornadozeile zeile{eingabe.name, mit_einheit(eingabe.von, eingabe.einheit), {}};
        for (const Schritt& schritt : eingabe.schritte) {
            Tornadobalken& balken = zeile.balken.at(schritt.richtung == Richtung::rauf ? 1 : 0);
            balken.wirkung = e_.wirkung(schritt, i);
            balken.text =
                balken.wirkung ? "→ " + mit_einheit(schritt.nach, eingabe.einheit) : schritt.hinweis;
            if (balken.wirkung) balken.zahl = wirkungszahl(*balken.wirkung);
        }
        return zeile;
    }

    void satz_ohne_wirkung(std::size_t i) {
        std::string namen;
        for (const Eingabewirkung* eingabe : e_.ohne_wirkung(i))
            namen += (namen.empty() ? "" : ", ") + maskiert(eingabe->name);
        if (namen.empty()) return;
        const std::string schwelle =
            mit_einheit(muster(kleinste_wirkung, wirkungsstellen + 1), messgroesse(i).einheit);
        seite_.absatz(wort({"Ohne Wirkung (weniger als ", "Without effect (less than "}) + schwelle +
                      "): " + namen + ".");
    }

    void schritte() {
        seite_.abschnitt({"Alle Schritte", "All steps"});
        seite_.absatz(wort({"Differenzen zum Ausgangsfall in ", "Differences to the base in "}) +
                      messgroesse(0).einheit +
                      wort({"; Primärenergie für Heizung und Kühlung zusammen.",
                            "; primary energy for heating and cooling together."}));
        std::vector<std::string> kopf{wort({"Eingabe", "input"}), wort({"Schritt", "step"})};
        for (std::size_t i = 0; i < bildgroessen; ++i)
            kopf.push_back(wort(messgroesse(i).name));
        std::vector<std::vector<Zelle>> zeilen;
        for (const Eingabewirkung& eingabe : e_.eingaben) {
            for (const Schritt& schritt : eingabe.schritte)
                zeilen.push_back(schrittzeile(eingabe, schritt));
        }
        seite_.tabelle("schritte", kopf, zeilen);
    }

    /// The step in words, below it what is to be said of it.
    [[nodiscard]] std::string schrittzelle(const Eingabewirkung& eingabe, const Schritt& schritt) const {
        std::string text(richtungswort(schritt, e_.sprache));
        if (!text.empty()) text += ": ";
        text += eingabe.von;
        if (!schritt.nach.empty()) text += " → " + schritt.nach;
        const std::string hinweis =
            schritt.hinweis.empty() ? std::string() : element("small", maskiert(schritt.hinweis));
        return maskiert(mit_einheit(text, eingabe.einheit)) + hinweis;
    }

    [[nodiscard]] std::vector<Zelle> schrittzeile(const Eingabewirkung& eingabe,
                                                  const Schritt& schritt) const {
        std::vector<Zelle> zellen{{maskiert(eingabe.name), ""}, {schrittzelle(eingabe, schritt), "text"}};
        for (std::size_t i = 0; i < bildgroessen; ++i) {
            const std::optional<double> wirkung = e_.wirkung(schritt, i);
            zellen.push_back({wirkung ? wirkungszahl(*wirkung) : "–", ""});
        }
        return zellen;
    }

    static constexpr std::array<Wort, bildgroessen> ueberschriften{
        {{"Wirkung auf den Heizwärmebedarf", "Effect on the heat energy demand"},
         {"Wirkung auf den Kühlbedarf", "Effect on the cooling demand"},
         {"Wirkung auf die Primärenergie für Heizung und Kühlung",
          "Effect on the primary energy for heating and cooling"}}};

    const Empfindlichkeit& e_;
    Seite seite_;
};

}  // namespace

std::string empfindlichkeitsseite(const Empfindlichkeit& empfindlichkeit) {
    return Empfindlichkeitsseite(empfindlichkeit).html();
}

}  // namespace velmaris

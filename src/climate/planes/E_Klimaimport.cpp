#include "climate/planes/E_Klimaimport.h"

#include "climate/import/importzahlen.h"
#include "climate/import/importziel.h"
#include "language/beschriftungen.h"
#include "project/dateiwahl.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/wort.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace velmaris {
namespace {

constexpr int zeilen_der_ansicht = 250;
constexpr double hoechste_kopfzeilen = 1e7;

using Namen = Sprachpaar<std::vector<std::string>>;

/// The first lines of a source.
std::string ansicht(const Importquelle& quelle) {
    std::string text;
    const int zeilen = std::min(quelle.zeilenzahl(), zeilen_der_ansicht);
    for (int n = 1; n <= zeilen; ++n)
        text.append(quelltext(quelle.zeile(n))).append("\r\n");
    if (zeilen == zeilen_der_ansicht) text.append("...");
    return text;
}

}  // namespace

class E_Klimaimport::Importsperre {
  public:
    explicit Importsperre(E_Klimaimport& fenster) : fenster_(fenster) { sperre(true); }
    Importsperre(const Importsperre&) = delete;
    Importsperre& operator=(const Importsperre&) = delete;
    ~Importsperre() {
        sperre(false);
        fenster_.AlleEingabenTesten();
    }

  private:
    void sperre(bool an) {
        fenster_.import_aktiv_ = an;
        fenster_.abbruch_ = false;
        fenster_.Fortschritt.zeige(an);
        for (Feld* feld : std::initializer_list<Feld*>{&fenster_.Frame1, &fenster_.Frame2, &fenster_.Frame3,
                                                       &fenster_.Frame4, &fenster_.Command1,
                                                       &fenster_.Command2, &fenster_.vorschau.VScroll1})
            feld->aktiviere(!an);
    }

    E_Klimaimport& fenster_;
};

E_Klimaimport::E_Klimaimport(Sitzung& sitzung) : s_(sitzung) {
    beschriften();
    verbinden();
    felder_leeren();
    ebene.zeige(false);
}

void E_Klimaimport::beschriften() {
    const std::string& sprache = s_.p.Sprache;
    ebene.schreibe(beschriftung(ebene.name, fenstertitel, sprache));
    velmaris::beschriften<Anzeige>(
        ebene.name, sprache,
        {&Frame1, &Frame2, &Frame3, &Frame4, &Frame5, &Label_Kopfzeilen, &Label_Dezimalzeichen,
         &Label_Standortname, &Label_Land, &Label_Breitengrad, &Label_Laengengrad, &Label_Zeitzone});
    velmaris::beschriften<Knopf>(ebene.name, sprache, {&Command1, &Command2, &Command3});
    Dezimalzeichen.fuelle(Namen{{"Punkt (.)", "Komma (,)"}, {"Dot (.)", "Comma (,)"}}.in(sprache));
    Breitezusatz.fuelle(Namen{{"Nord", "Süd"}, {"North", "South"}}.in(sprache));
    Laengezusatz.fuelle(Namen{{"Ost", "West"}, {"East", "West"}}.in(sprache));
    GMT.fuelle({"GMT + ", "GMT - "});
    vorschau.beschriften(sprache);
}

void E_Klimaimport::verbinden() {
    Command1.gedrueckt = [this] { Command1_Click(); };
    Command2.gedrueckt = [this] { Command2_Click(); };
    Command3.gedrueckt = [this] { Command3_Click(); };
    for (Textfeld* feld : {&DateinameBox, &Standortname, &Land, &Breitengrad, &Laengengrad, &Zeitzone})
        feld->geaendert = [this] { AlleEingabenTesten(); };
    DateinameBox.bestaetigt = [this] {
        if (!import_aktiv_ && !DateinameBox.text().empty()) quelle_oeffnen(quellpfad());
    };
    Kopfzeilen.geaendert = [this] {
        AlleEingabenTesten();
        vorschau_fuellen();
    };
    for (Auswahlliste* liste : {&Laengezusatz, &GMT})
        liste->gewaehlt = [this] { AlleEingabenTesten(); };
    Datentrennung.geklickt = [this](int) { Datentrennung_Click(); };
    for (Scrollfeld* feld : {&vorschau.HScroll1, &vorschau.VScroll1})
        feld->geaendert = [this] { vorschau_fuellen(); };
}

void E_Klimaimport::oeffnen() {
    felder_leeren();
    ebene.zeige(true);
}

void E_Klimaimport::felder_leeren() {
    datei_.clear();
    quelle_ = {};
    DateinameBox.schreibe({});
    Dateiansicht.schreibe({});
    Datentrennung.markiere(0);
    for (Auswahlliste* liste : {&Breitezusatz, &Laengezusatz, &GMT})
        liste->markiere(0);
    kopf_leeren();
    vorschau.leeren();
    weitere_schritte(false);
    Fortschritt.zeige(false);
    AlleEingabenTesten();
}

void E_Klimaimport::weitere_schritte(bool sichtbar) {
    for (Feld* feld : std::initializer_list<Feld*>{&Frame2, &Frame3, &Frame4, &Frame5, &vorschau.HScroll1,
                                                   &vorschau.VScroll1})
        feld->zeige(sichtbar);
}

void E_Klimaimport::Command1_Click() {
    if (import_aktiv_) return;
    const auto datei = datei_erfragen(s_, {.filter = "Alle Dateien (*.*)|*.*"});
    if (datei && !datei->empty()) quelle_oeffnen(*datei);
}

void E_Klimaimport::quelle_oeffnen(const std::filesystem::path& datei) {
    try {
        quelle_ = quelle_lesen(datei);
    } catch (const Dateifehler& fehler) {
        fehler_melden(fehler.text(s_.p.Sprache));
        return;
    }
    datei_ = datei;
    s_.p.Datei = pfadtext(datei);
    DateinameBox.schreibe(pfadtext(datei));
    quelle_zeigen();
    vorschau.leeren();
    if (const auto kopf = kopf_erkennen(quelle_)) {
        kopf_uebernehmen(*kopf);
    } else {
        kopf_leeren();
    }
    vorschau_fuellen();
    vorschau.bis_zur_ersten_benutzten_rollen();
    weitere_schritte(true);
    AlleEingabenTesten();
}

void E_Klimaimport::quelle_zeigen() {
    Dateiansicht.schreibe(ansicht(quelle_));
}

void E_Klimaimport::kopf_uebernehmen(const Quellkopf& kopf) {
    Laden_aktiv_ = true;
    form_ = kopf.form;
    Kopfzeilen.schreibe(std::to_string(kopf.kopfzeilen));
    Dezimalzeichen.setze(0);
    if (kopf.trennung == Trennung::komma) {
        Datentrennung.markiere(std::nullopt);
    } else {
        Datentrennung.setze(static_cast<int>(kopf.trennung));
    }
    Standortname.schreibe(kopf.ort.Standortname);
    Land.schreibe(kopf.ort.Land);
    Breitengrad.schreibe(kopf.ort.Breitengrad);
    Breitezusatz.setze(kopf.ort.sued ? 1 : 0);
    Laengengrad.schreibe(kopf.ort.Laengengrad);
    Laengezusatz.setze(kopf.ort.west ? 1 : 0);
    Zeitzone.schreibe(kopf.ort.Zeitzone);
    GMT.setze(kopf.ort.gmt_minus ? 1 : 0);
    vorschau.Spaltenbelegung = kopf.spalten;
    Erkannt.schreibe(in_sprache(erkannt_als(kopf.form)));
    Laden_aktiv_ = false;
}

void E_Klimaimport::kopf_leeren() {
    form_ = Quellform::frei;
    Erkannt.schreibe({});
    for (Textfeld* feld : {&Kopfzeilen, &Laengengrad, &Breitengrad, &Zeitzone, &Standortname, &Land})
        feld->schreibe({});
    Dezimalzeichen.markiere(0);
    if (!Datentrennung.gesetzt()) Datentrennung.markiere(0);
}

/// Another choice takes an EnergyPlus file for any other text.
void E_Klimaimport::Datentrennung_Click() {
    if (Laden_aktiv_) return;
    if (form_ == Quellform::epw) {
        form_ = Quellform::frei;
        Erkannt.schreibe({});
    }
    vorschau_fuellen();
}

void E_Klimaimport::AlleEingabenTesten() {
    const auto gefuellt = [](const Textfeld* feld) { return !feld->text().empty(); };
    const auto ist_zahl = [](const Textfeld* feld) { return StringToReal(feld->text(), true).has_value(); };
    const std::initializer_list<const Textfeld*> texte{&DateinameBox, &Standortname, &Land};
    const std::initializer_list<const Textfeld*> zahlen{&Kopfzeilen, &Breitengrad, &Laengengrad, &Zeitzone};
    Command2.aktiviere(!import_aktiv_ && std::all_of(texte.begin(), texte.end(), gefuellt) &&
                       std::all_of(zahlen.begin(), zahlen.end(), ist_zahl));
    const Ortsangaben ort = ortsangaben();
    const std::string name = in_sprache(namenshinweis(stationsname(ort)));
    const std::string zone = in_sprache(zonenhinweis(ort));
    Ortshinweis.schreibe(name + (name.empty() || zone.empty() ? "" : " ") + zone);
}

void E_Klimaimport::vorschau_fuellen() {
    if (!Laden_aktiv_ && !Kopfzeilen.text().empty()) vorschau.fuellen(quelle_, trennung(), kopfzeilen());
}

Trennung E_Klimaimport::trennung() const {
    const auto option = Datentrennung.gesetzt();
    return option ? static_cast<Trennung>(*option) : Trennung::komma;
}

int E_Klimaimport::kopfzeilen() const {
    return static_cast<int>(std::min(runden(zahl_lesen(Kopfzeilen.text())), hoechste_kopfzeilen));
}

Ortsangaben E_Klimaimport::ortsangaben() const {
    return {.Standortname = Standortname.text(),
            .Land = Land.text(),
            .Breitengrad = Breitengrad.text(),
            .sued = Breitezusatz.index() != 0,
            .Laengengrad = Laengengrad.text(),
            .west = Laengezusatz.index() != 0,
            .Zeitzone = Zeitzone.text(),
            .gmt_minus = GMT.index() != 0};
}

Quellkopf E_Klimaimport::angaben() const {
    return {.form = form_,
            .trennung = trennung(),
            .kopfzeilen = kopfzeilen(),
            .dezimalkomma = Dezimalzeichen.index() == 1,
            .ort = ortsangaben(),
            .spalten = vorschau.Spaltenbelegung};
}

/// The path in `DateinameBox`; the path of the dialog itself while the text is still its own.
std::filesystem::path E_Klimaimport::quellpfad() const {
    return DateinameBox.text() == pfadtext(datei_) ? datei_ : pfad(DateinameBox.text());
}

void E_Klimaimport::Command2_Click() {
    if (import_aktiv_) return;
    const std::string& sprache = s_.p.Sprache;
    try {
        importieren();
    } catch (const Importfehler& fehler) {
        const std::string hinweis = in_sprache(fehler.hinweis());
        fehler_melden(fehler.text(sprache),
                      pfadtext(quellpfad().filename()) + (hinweis.empty() ? "" : ": " + hinweis));
    } catch (const Laufzeitfehler& fehler) {
        fehler_melden(fehler.text(sprache));
    }
}

void E_Klimaimport::Command3_Click() {
    if (import_aktiv_) {
        abbruch_ = true;
    } else {
        ebene.zeige(false);
    }
}

bool E_Klimaimport::weiter(double anteil) const {
    const bool gewollt = !fortschritt || fortschritt(anteil);
    return gewollt && !abbruch_;
}

void E_Klimaimport::importieren() {
    const Importplan plan = importplan(angaben());
    quelle_vergleichen();
    {
        const Importsperre sperre(*this);
        const Klimaordner ordner(s_.p);
        const auto ziel = [&](const Stationsort& ort) {
            return ziel_erfragen(s_.plattform, s_.p.Sprache, ordner, ort.name,
                                 vorgabename(DateinameBox.text()));
        };
        const auto station = station_importieren(quelle_, plan, ordner, ziel,
                                                 [this](double anteil) { return weiter(anteil); });
        if (!station) return;
        s_.plattform.melde(
            {.text = in_sprache({"Klimadatenimport beendet! Biite starten Sie Velmaris neu, um "
                                 "die gerade importierten Daten verwenden zu können.",
                                 "Import finished. Please re-start Velmaris to use the new "
                                 "imported data."}),
             .titel = "Velmaris",
             .symbol = Symbol::information,
             .hinweis = in_sprache(jahreshinweis(station->jahr))});
    }
    ebene.zeige(false);
}

/// What is imported is what the preview shows. A source that has changed since then is shown anew instead.
void E_Klimaimport::quelle_vergleichen() {
    Importquelle jetzt = quelle_lesen(quellpfad());
    if (jetzt.bytes() == quelle_.bytes()) return;
    const std::string vorher = std::to_string(quelle_.zeilenzahl());
    const std::string nachher = std::to_string(jetzt.zeilenzahl());
    quelle_ = std::move(jetzt);
    datei_ = quellpfad();
    quelle_zeigen();
    vorschau_fuellen();
    throw Importfehler(
        {"Die Quelldatei hat sich seit der Vorschau geändert. Bitte prüfen Sie die Vorschau und "
         "starten Sie den Import noch einmal.",
         "The source file has changed since the preview. Please check the preview and start the "
         "import again."},
        {"Zeilen vorher: " + vorher + ", jetzt: " + nachher,
         "Lines before: " + vorher + ", now: " + nachher});
}

std::string E_Klimaimport::in_sprache(const Zweisprachig& text) const {
    return text.in(s_.p.Sprache);
}

void E_Klimaimport::fehler_melden(const std::string& text, const std::string& hinweis) {
    s_.plattform.melde({.text = text,
                        .titel = in_sprache({"Fehler", "Error"}),
                        .symbol = Symbol::ausrufezeichen,
                        .hinweis = hinweis});
}

}  // namespace velmaris

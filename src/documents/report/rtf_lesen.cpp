#include "documents/report/rtf_lesen.h"

#include "toolkit/text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <map>
#include <optional>

namespace velmaris {
namespace {

constexpr double twips_je_punkt = 20;
constexpr double halbe_punkte = 2;
constexpr double groesse_sonst = 12;

/// What a group keeps and gives back at its end.
struct Stil {
    Textstueck zeichen{.text = {}};
    int schrift = 0;
    bool zentriert = false;
    std::vector<double> tabstopps = {};
    bool schrifttabelle = false;  ///< text is the name of a font
    bool verworfen = false;       ///< text is of no use here
};

/// A control word with its number, if it has one.
struct Steuerwort {
    std::string_view name;
    std::optional<int> zahl;

    /// True unless the number is 0: how a style is switched.
    [[nodiscard]] bool an() const { return zahl != 0; }
};

class Leser {
  public:
    explicit Leser(std::string_view rtf) : rest_(rtf) {}

    std::vector<Absatz> lesen() {
        while (!rest_.empty())
            zeichen_lesen();
        if (!absatz_.stuecke.empty() || absatz_.neue_seite) absatz_beenden();
        return std::move(absaetze_);
    }

  private:
    char nimm() {
        const char zeichen = rest_.front();
        rest_.remove_prefix(1);
        return zeichen;
    }

    void zeichen_lesen() {
        if (const auto ende = rest_.find_first_of("{}\\\r\n"); ende != 0) {
            schreibe(rest_.substr(0, ende));
            rest_.remove_prefix(std::min(ende, rest_.size()));
            return;
        }
        const char zeichen = nimm();
        if (zeichen == '{') {
            gruppen_.push_back(stil_);
        } else if (zeichen == '}') {
            gruppe_beenden();
        } else if (zeichen == '\\') {
            steuerung_lesen();
        }
    }

    void gruppe_beenden() {
        if (gruppen_.empty()) return;
        stil_ = std::move(gruppen_.back());
        gruppen_.pop_back();
    }

    void steuerung_lesen() {
        if (rest_.empty()) return;
        if (std::isalpha(static_cast<unsigned char>(rest_.front())) != 0) {
            ausfuehren(steuerwort());
            return;
        }
        const char zeichen = nimm();
        if (zeichen == '\'') {
            byte_lesen();
        } else if (zeichen == '*') {
            stil_.verworfen = true;
        } else if (zeichen == '~') {
            schreibe("\u00a0");
        } else if (zeichen == '\\' || zeichen == '{' || zeichen == '}') {
            schreibe(std::string_view(&zeichen, 1));
        }
    }

    Steuerwort steuerwort() {
        std::size_t ende = 0;
        while (ende < rest_.size() && std::isalpha(static_cast<unsigned char>(rest_[ende])) != 0)
            ++ende;
        Steuerwort wort{rest_.substr(0, ende), std::nullopt};
        rest_.remove_prefix(ende);
        int zahl = 0;
        const char* anfang = rest_.data();
        const auto [hinter, fehler] = std::from_chars(anfang, anfang + rest_.size(), zahl);
        rest_.remove_prefix(static_cast<std::size_t>(hinter - anfang));
        if (fehler == std::errc()) wort.zahl = zahl;
        if (!rest_.empty() && rest_.front() == ' ') rest_.remove_prefix(1);
        return wort;
    }

    void byte_lesen() {
        unsigned wert = 0;
        const std::string_view ziffern = rest_.substr(0, 2);
        const auto [hinter, fehler] =
            std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), wert, 16);
        if (fehler != std::errc()) return;
        rest_.remove_prefix(static_cast<std::size_t>(hinter - ziffern.data()));
        const char byte = static_cast<char>(wert);
        schreibe(aus_windows1252(std::string_view(&byte, 1)));
    }

    void ausfuehren(const Steuerwort& wort) {
        if (!zeichenstil(wort) && !absatzstil(wort)) satz(wort);
    }

    bool zeichenstil(const Steuerwort& wort) {
        struct Schalter {
            std::string_view name;
            bool Textstueck::*feld;
        };
        constexpr std::array<Schalter, 4> schalter{{{"b", &Textstueck::fett},
                                                    {"i", &Textstueck::kursiv},
                                                    {"ul", &Textstueck::unterstrichen},
                                                    {"sub", &Textstueck::tiefgestellt}}};
        for (const Schalter& s : schalter) {
            if (wort.name != s.name) continue;
            stil_.zeichen.*s.feld = wort.an();
            return true;
        }
        if (wort.name == "plain") {
            stil_.zeichen = Textstueck{.text = {}};
            stil_.schrift = 0;
        } else if (wort.name == "fs") {
            stil_.zeichen.groesse =
                wort.zahl.value_or(0) > 0 ? wort.zahl.value_or(0) / halbe_punkte : groesse_sonst;
        } else if (wort.name == "f") {
            stil_.schrift = wort.zahl.value_or(0);
        } else if (wort.name == "ulnone") {
            stil_.zeichen.unterstrichen = false;
        } else if (wort.name == "nosupersub") {
            stil_.zeichen.tiefgestellt = false;
        } else {
            return false;
        }
        return true;
    }

    bool absatzstil(const Steuerwort& wort) {
        if (wort.name == "pard") {
            stil_.zentriert = false;
            stil_.tabstopps.clear();
        } else if (wort.name == "qc") {
            stil_.zentriert = true;
        } else if (wort.name == "ql") {
            stil_.zentriert = false;
        } else if (wort.name == "tx") {
            stil_.tabstopps.push_back(wort.zahl.value_or(0) / twips_je_punkt);
        } else {
            return false;
        }
        return true;
    }

    void satz(const Steuerwort& wort) {
        if (wort.name == "par") {
            if (!stil_.verworfen) absatz_beenden();
        } else if (wort.name == "tab") {
            schreibe("\t");
        } else if (wort.name == "page") {
            seite_beginnen();
        } else if (wort.name == "fonttbl") {
            stil_.schrifttabelle = true;
        } else if (wort.name == "colortbl" || wort.name == "stylesheet" || wort.name == "info" ||
                   wort.name == "pict") {
            stil_.verworfen = true;
        }
    }

    void schreibe(std::string_view text) {
        if (stil_.verworfen) return;
        if (stil_.schrifttabelle) {
            for (const char zeichen : text) {
                if (zeichen != ';') schriften_[stil_.schrift] += zeichen;
            }
            return;
        }
        Textstueck neu = stil_.zeichen;
        if (const auto schrift = schriften_.find(stil_.schrift); schrift != schriften_.end())
            neu.schrift = schrift->second;
        anhaengen(std::move(neu), text);
    }

    void anhaengen(Textstueck neu, std::string_view text) {
        auto& stuecke = absatz_.stuecke;
        if (!stuecke.empty()) {
            neu.text = stuecke.back().text;
            if (neu == stuecke.back()) {
                stuecke.back().text += text;
                return;
            }
        }
        neu.text = text;
        stuecke.push_back(std::move(neu));
    }

    void seite_beginnen() {
        if (stil_.verworfen) return;
        if (!absatz_.stuecke.empty()) absatz_beenden();
        absatz_.neue_seite = true;
    }

    void absatz_beenden() {
        absatz_.zentriert = stil_.zentriert;
        absatz_.tabstopps = stil_.tabstopps;
        absatz_.groesse = stil_.zeichen.groesse;
        absaetze_.push_back(std::move(absatz_));
        absatz_ = {};
    }

    std::string_view rest_;
    Stil stil_;
    std::vector<Stil> gruppen_;
    std::map<int, std::string> schriften_;
    Absatz absatz_;
    std::vector<Absatz> absaetze_;
};

}  // namespace

std::vector<Absatz> rtf_lesen(std::string_view rtf) {
    return Leser(rtf).lesen();
}

}  // namespace velmaris

#include "charts/bildachse.h"

#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmaris {

double breitester(const Zeichenflaeche& bild, const std::vector<std::string>& texte) {
    double breite = 0;
    for (const std::string& text : texte)
        breite = std::max(breite, bild.textbreite(text));
    return breite;
}

std::vector<Achsenstrich> achsenstriche(const Bildachse& achse, const Achsenteilung& teilung,
                                        const std::function<double(double)>& ort,
                                        const std::function<double(const std::string&)>& platz) {
    std::vector<Achsenstrich> striche;
    bool frei = true;
    for (const double wert : achse.werte) {
        std::string text = muster(wert, achse.nachkomma);
        frei = frei && (striche.empty() || std::fabs(ort(wert) - ort(striche.back().wert)) >= platz(text));
        striche.push_back({wert, std::move(text)});
        if (!frei) break;
    }
    if (frei) return striche;
    striche.clear();
    for (const double strich : teilung.striche())
        striche.push_back({strich, teilung.zahl(strich)});
    return striche;
}

std::vector<std::string> strichzahlen(const Achsenteilung& teilung, const std::vector<double>& striche) {
    std::vector<std::string> zahlen(striche.size());
    std::ranges::transform(striche, zahlen.begin(), [&](double strich) { return teilung.zahl(strich); });
    return zahlen;
}

void rechtsbuendig_zeichnen(Zeichenflaeche& bild, double x, double y, const std::string& text) {
    bild.text(x - bild.textbreite(text), y, text);
}

void mittig_zeichnen(Zeichenflaeche& bild, double x, double y, const std::string& text) {
    bild.text(x - bild.textbreite(text) / 2, y, text);
}

}  // namespace velmaris

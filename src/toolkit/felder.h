#pragma once

#include "toolkit/wertetafel.h"
#include "toolkit/zeichenflaeche.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// A place with a size, in pixels of the plane.
struct Rechteck {
    double links = 0;
    double oben = 0;
    double breite = 0;
    double hoehe = 0;

    friend bool operator==(const Rechteck&, const Rechteck&) = default;
};

/// What all controls have in common: a name, whether they are shown and can be used, where they stand if the
/// program itself says so, and a call to the view that shows them. A control is a plain record; it knows no
/// toolkit. A control is bound by its address, so it cannot be copied.
class Feld {
  public:
    explicit Feld(std::string feldname) : name(std::move(feldname)) {}
    Feld(const Feld&) = delete;
    Feld& operator=(const Feld&) = delete;
    ~Feld() = default;

    [[nodiscard]] bool sichtbar() const { return sichtbar_; }
    [[nodiscard]] bool aktiv() const { return aktiv_; }
    void zeige(bool sichtbar);
    void aktiviere(bool aktiv);

    /// Place and size, nothing where the view settles them.
    [[nodiscard]] const std::optional<Rechteck>& lage() const { return lage_; }
    void lege(const Rechteck& lage);

    const std::string name;

    /// Set by the view: shows the record's state anew.
    std::function<void()> ansicht;

  protected:
    /// Tells the view that the record has changed.
    void melden() const;

  private:
    bool sichtbar_ = true;
    bool aktiv_ = true;
    std::optional<Rechteck> lage_;
};

/// A scroll field: an integer position between a minimum and a maximum, a small step (arrow) and
/// a large step (click beside the thumb; negative ones move against the click).
class Scrollfeld : public Feld {
  public:
    Scrollfeld(std::string feldname, int minimum, int maximum, int klein, int gross);

    [[nodiscard]] int minimum() const { return minimum_; }
    [[nodiscard]] int maximum() const { return maximum_; }
    [[nodiscard]] int kleiner_schritt() const { return klein_; }
    [[nodiscard]] int grosser_schritt() const { return gross_; }
    [[nodiscard]] int position() const { return position_; }

    /// Moves to a position and fires the handler if it differs from the present one. A position out of range
    /// is a Laufzeitfehler that names the control's quantity (its name without "_sb").
    void setze(int position);

    /// Moves to the nearest position inside the range, as a user's drag or key does.
    void bewege(int position);

    /// New range, as the preview of the import needs; a position outside moves to the nearest end, silently.
    void bereich(int minimum, int maximum);

    /// The control's handler.
    std::function<void()> geaendert;

  private:
    int minimum_;
    int maximum_;
    int klein_;
    int gross_;
    int position_;
};

/// A drop-down list: entries, a selected row (-1 for none) and the text part.
class Auswahlliste : public Feld {
  public:
    /// `groesse` names the quantity behind the list, for fault messages, where it is not the list's name.
    explicit Auswahlliste(std::string feldname, const std::string& groesse = {})
        : Feld(std::move(feldname)), groesse_(groesse.empty() ? name : groesse) {}

    [[nodiscard]] const std::vector<std::string>& eintraege() const { return eintraege_; }
    [[nodiscard]] int index() const { return index_; }
    [[nodiscard]] const std::string& text() const { return text_; }

    /// Replaces the entries; no row is selected then and no handler runs.
    void fuelle(std::vector<std::string> eintraege);

    /// Selects a row and runs the handler, also if the row was selected before. A row that does not
    /// exist is a Laufzeitfehler that names the list.
    void setze(int index);

    /// The fault of `setze` for a row that does not exist; nothing else.
    void pruefe(int index) const;

    /// Selects a row without the handler; -1 for none.
    void markiere(int index);

    /// Puts a text into the text part with no row selected; runs no handler.
    void schreibe(std::string text);

    /// The control's handler.
    std::function<void()> gewaehlt;

  private:
    std::string groesse_;
    std::vector<std::string> eintraege_;
    int index_ = -1;
    std::string text_;
};

/// A check field, 0 or 1.
class Pruefeld : public Feld {
  public:
    explicit Pruefeld(std::string feldname) : Feld(std::move(feldname)) {}

    [[nodiscard]] int wert() const { return wert_; }

    /// Sets the check and fires the handler if it differs. A value other than 0 and 1 is
    /// a Laufzeitfehler that names the quantity (the control's name without "_cb").
    void setze(int wert);

    /// Sets the check for a quantity that is 0 where the check is set and 1 where it is not; errors as in
    /// `setze`, for the quantity.
    void setze_verneint(int groesse);

    /// Sets the check without the handler; errors as in `setze`.
    void markiere(int wert);

    /// The control's handler.
    std::function<void()> geklickt;

  private:
    void pruefe(int wert) const;

    int wert_ = 0;
};

/// A group of option fields of which at most one is set. The options are numbered from `erste` on.
class Optionsgruppe : public Feld {
  public:
    Optionsgruppe(std::string feldname, int erste, int anzahl)
        : Feld(std::move(feldname)), erste_(erste), anzahl_(anzahl) {}

    [[nodiscard]] int erste() const { return erste_; }
    [[nodiscard]] int anzahl() const { return anzahl_; }

    /// Number of the option that is set, nothing if none is.
    [[nodiscard]] std::optional<int> gesetzt() const { return gesetzt_; }
    [[nodiscard]] bool gesetzt(int option) const { return gesetzt_ == option; }

    /// Sets an option and fires the handler with its number if it was not set already. A number that
    /// the group does not have is a Laufzeitfehler.
    void setze(int option);

    /// The fault of `setze` for an option that does not exist; nothing else.
    void pruefe(int option) const;

    /// Sets an option, or none, without the handler.
    void markiere(std::optional<int> option);

    /// The control's handler, given the number of the option.
    std::function<void(int)> geklickt;

  private:
    int erste_;
    int anzahl_;
    std::optional<int> gesetzt_;
};

/// A place on a plane, in the plane's own unit.
struct Platz {
    double links = 0;
    double oben = 0;

    friend bool operator==(const Platz&, const Platz&) = default;
};

/// A text label or display.
class Anzeige : public Feld {
  public:
    explicit Anzeige(std::string feldname, std::string text = {})
        : Feld(std::move(feldname)), text_(std::move(text)) {}

    [[nodiscard]] const std::string& text() const { return text_; }
    void schreibe(std::string text);

    /// Text colour; nothing stands for the desktop's own.
    [[nodiscard]] std::optional<Farbe> schriftfarbe() const { return farbe_; }
    void faerbe(std::optional<Farbe> farbe);

    /// True while the text has the colour of its background, so that it cannot be read.
    [[nodiscard]] bool verborgen() const { return verborgen_; }
    void verberge(bool verborgen);

    /// Place on the plane, where the program moves the label.
    [[nodiscard]] std::optional<Platz> platz() const { return platz_; }
    void setze(Platz platz);

  private:
    std::string text_;
    std::optional<Farbe> farbe_;
    bool verborgen_ = false;
    std::optional<Platz> platz_;
};

/// A button.
class Knopf : public Feld {
  public:
    explicit Knopf(std::string feldname, std::string text = {})
        : Feld(std::move(feldname)), text_(std::move(text)) {}

    [[nodiscard]] const std::string& text() const { return text_; }
    void schreibe(std::string text);

    /// Presses the button if it can be used.
    void druecke() const;

    /// The control's handler.
    std::function<void()> gedrueckt;

  private:
    std::string text_;
};

/// A menu entry: a button that may carry a check mark.
class Menuepunkt : public Knopf {
  public:
    explicit Menuepunkt(std::string feldname) : Knopf(std::move(feldname)) {}

    [[nodiscard]] bool angekreuzt() const { return angekreuzt_; }
    void kreuze_an(bool angekreuzt);

  private:
    bool angekreuzt_ = false;
};

/// A picture that is taken out of its plane: its size in pixels, its ground, and what the plane shows beside
/// the surface.
struct Einzelbild {
    double breite = 0;
    double hoehe = 0;
    Farbe hintergrund = farben::weiss;
    std::function<void(Zeichenflaeche&)> beschriften = {};
};

/// A picture or chart surface: a repaint routine over an image that may be empty.
class Bildfeld : public Feld {
  public:
    explicit Bildfeld(std::string feldname) : Feld(std::move(feldname)) {}

    /// The image file behind the drawing, empty for none.
    [[nodiscard]] const std::filesystem::path& bild() const { return bild_; }
    void lade(std::filesystem::path bild);

    /// Asks the view to run `zeichnen` again.
    void neu_zeichnen() const { melden(); }

    /// Draws the surface; set by the plane, run by the view.
    std::function<void(Zeichenflaeche&)> zeichnen;

    /// The numbers that the surface shows, where it shows any; such a one takes the focus.
    std::function<Wertetafel()> werte;

    /// What a surface without numbers is called, in the language of the program.
    std::string titel;

    /// How the picture is taken out, where that is not just what the plane has laid out.
    std::optional<Einzelbild> einzeln;

    /// Pointer events in surface pixels, where the plane wants them.
    std::function<void(double, double)> maus_bewegt;
    std::function<void(double, double)> maus_geklickt;

    /// What Enter and the space bar do at a picture that stands for a button; such a one takes the focus.
    std::function<void()> gedrueckt;

    /// The colour of a pixel as it was drawn last; set by the view.
    std::function<Farbe(double, double)> lies_punkt;

  private:
    std::filesystem::path bild_;
};

}  // namespace velmaris

#pragma once

#include "desktop/platform/fehlerwache.h"
#include "toolkit/plattform.h"

#include <QPointer>
#include <QRandomGenerator>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <map>
#include <optional>
#include <string>

class QFileDialog;

namespace velmaris {

/// The desktop behind the platform interface. Dialogs are modal to the main window, once that is known, or to
/// the modal window over it.
class QtPlattform final : public Plattform {
  public:
    /// `sprache` gives the language letter for buttons and labels of dialogs; faults of timer routines go to
    /// the guard, which must outlive the platform.
    QtPlattform(const Fehlerwache& wache, std::function<std::string()> sprache);

    /// The window that carries the title and owns the dialogs; takes over a title that was set before.
    void hauptfenster(QWidget* fenster);

    /// Shows a help file, at a page unless that is empty; set by the program.
    std::function<void(const std::filesystem::path& datei, const std::string& seite)> hilfe_zeigen;

    /// Starts the random numbers anew from a seed, so that they can be repeated.
    void saat(quint32 zahl) { zufall_.seed(zahl); }

    Antwort melde(const Meldung& meldung) override;
    std::optional<std::string> eingabe(const std::string& text, const std::string& titel,
                                       const std::string& vorgabe) override;
    std::optional<std::filesystem::path> dateidialog(const Dateidialog& dialog) override;

    /// The cursor is either the wait cursor or not, however often it was switched on. A dialog that comes up
    /// meanwhile has the normal one.
    void sanduhr(bool an) override;
    void fenstertitel(const std::string& titel) override;
    [[nodiscard]] Bildschirmpunkt zeiger() const override;
    double zufall() override { return zufall_.generateDouble(); }
    void zeitgeber_starten(const std::string& name, int millisekunden, std::function<void()> ablauf) override;
    void zeitgeber_stoppen(const std::string& name) override;
    void hilfe(const std::filesystem::path& datei, const std::string& seite) override;
    [[nodiscard]] std::vector<std::string> druckerliste() const override;
    [[nodiscard]] std::string aktueller_drucker() const override;
    void drucker_waehlen(const std::string& name) override;
    [[nodiscard]] std::filesystem::path datenordner() const override { return benutzerordner(); }
    void beenden() override;

    /// The user's folder for data of this application, also before there is a platform.
    [[nodiscard]] static std::filesystem::path benutzerordner();

  private:
    /// A one-shot timer with what it runs.
    struct Zeitgeber {
        QTimer uhr;
        std::function<void()> ablauf;
    };

    /// What dialogs belong to: the modal window that is open, or else the main window.
    [[nodiscard]] QWidget* besitzer() const;
    [[nodiscard]] QString wort(const char* de, const char* en) const;
    [[nodiscard]] std::optional<std::filesystem::path> datei_waehlen(const Dateidialog& dialog);
    void beschriften(QFileDialog& fenster, Dateidialog::Art art) const;

    const Fehlerwache& wache_;
    std::function<std::string()> sprache_;
    QPointer<QWidget> hauptfenster_;
    QString titel_;
    bool sanduhr_ = false;
    QRandomGenerator zufall_;
    std::map<std::string, Zeitgeber> zeitgeber_;
    std::optional<std::string> drucker_;  ///< the one chosen, empty for a PDF file
};

}  // namespace velmaris

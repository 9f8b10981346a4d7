#pragma once

#include "desktop/help/hilfedatei.h"
#include "desktop/platform/fehlerwache.h"
#include "desktop/widgets/fenstermassstab.h"

#include <QMainWindow>
#include <QUrl>
#include <functional>
#include <optional>
#include <string>

class QAction;

namespace velmaris {

class Hilfeseite;
class Suchleiste;

/// The help: the pages of a compiled help file with their links, back, forward, the start page and a search
/// on the page. It stands beside the program and stays usable while a modal window is open. Its texts grow
/// with it.
class Hilfefenster : public QMainWindow {
    Q_OBJECT

  public:
    /// `sprache` is the language letter of its own texts.
    Hilfefenster(const Fehlerwache& wache, const std::string& sprache);

    /// Comes up with a page ("E_Geometrie") of a help file, with the start page if `seite` is empty. A file
    /// that is missing or damaged, or does not have the page, is a Dateifehler; the window stays as it was.
    void zeige(const std::filesystem::path& datei, const std::string& seite);

    /// Scale for the next time that the window comes up after it was closed; if it is the one of before, the
    /// size that the user gave stays.
    void massstab_vorschlagen(double massstab);

    /// Is given links that lead out of the help; without it they lead nowhere.
    std::function<void(const QUrl&)> fremder_verweis;

  protected:
    bool event(QEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;

  private:
    void leiste_bauen(const std::string& sprache);
    void tasten_binden();
    QAction* taste(const char* name, const QString& text, const QString& zeichen, const QKeySequence& tasten);
    void oeffne(const QUrl& seite);
    void folge(const QUrl& verweis);
    void ueber(const QWidget* modal);

    const Fehlerwache& wache_;
    QString titel_;
    std::optional<Hilfedatei> datei_;
    Hilfeseite* seite_;
    Suchleiste* suchleiste_;
    Fenstermassstab massstab_;
    double vorgeschlagen_ = 1;
};

}  // namespace velmaris

#pragma once

#include <QWidget>
#include <string>

class QAbstractButton;
class QLabel;
class QLineEdit;
class QTextBrowser;
class QTextCursor;

namespace velmaris {

/// Finds words on the page that a view shows, without regard to capitals: onwards from the place found last
/// (at first from what is in sight) or back, and around the ends of the page. What it has to say stands
/// beside its field. It is hidden until it is opened.
class Suchleiste : public QWidget {
    Q_OBJECT

  public:
    /// `sprache` is the language letter of its texts; `seite` outlives it.
    Suchleiste(QTextBrowser& seite, const std::string& sprache, QWidget* eltern);

    /// Comes up with the focus in its field; words that are selected on the page stand there.
    void oeffne();

    /// Goes away and leaves the focus to the page.
    void schliesse();

    /// To the next or the previous place. A bar that is hidden comes up, so that its message is seen.
    void suche(bool rueckwaerts);

  protected:
    void keyPressEvent(QKeyEvent* ereignis) override;

  private:
    [[nodiscard]] QString wort(const char* de, const char* en) const;
    [[nodiscard]] QAbstractButton* knopf(const char* name, const QString& text, const QString& tasten);
    [[nodiscard]] QTextCursor naechste_stelle(const QTextCursor& von, bool rueckwaerts) const;
    void suche_beim_tippen();
    void melde(const QString& text);

    QTextBrowser& seite_;
    std::string sprache_;
    QLineEdit* feld_;
    QLabel* meldung_;
};

}  // namespace velmaris

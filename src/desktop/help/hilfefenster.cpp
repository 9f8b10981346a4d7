#include "desktop/help/hilfefenster.h"

#include "desktop/help/suchleiste.h"
#include "desktop/platform/hilfeleser.h"
#include "desktop/platform/massstab.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/nebenfenster.h"
#include "desktop/widgets/textskala.h"
#include "toolkit/text.h"
#include "toolkit/wort.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QShortcut>
#include <QTextBrowser>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

namespace velmaris {
namespace {

constexpr QSize bevorzugt(760, 680);

/// What a scale must leave of a page: its width, and enough lines to read on.
constexpr QSize mindestens(700, 420);

/// Pages are addressed by this scheme and their name in the file.
constexpr QLatin1String schema("chm");

QUrl adresse(const std::string& seite) {
    QUrl neu;
    neu.setScheme(schema);
    neu.setPath(QLatin1Char('/') + (seite.empty() ? QStringLiteral("index") : qtext(seite)) +
                QLatin1String(".html"));
    return neu;
}

Dateifehler ohne_seite(const Hilfedatei& datei, const QUrl& seite) {
    const std::string name = utf8(seite.path());
    return {pfadtext(datei.pfad()),
            {"Die Hilfe hat keine Seite " + name + ".", "The help has no page " + name + "."}};
}

}  // namespace

/// Shows pages; whatever they refer to comes from the help file.
class Hilfeseite : public QTextBrowser {
  public:
    Hilfeseite(const std::optional<Hilfedatei>& datei, const Fehlerwache& wache, QWidget* fenster)
        : QTextBrowser(fenster), datei_(datei), wache_(wache) {
        constexpr int rand = 16;
        setObjectName(QStringLiteral("Seite"));
        setFrameShape(QFrame::NoFrame);
        setOpenLinks(false);
        document()->setDocumentMargin(rand);
        // What is found stays plain to see while the focus is in the search bar.
        QPalette farben = palette();
        for (const QPalette::ColorRole rolle : {QPalette::Highlight, QPalette::HighlightedText})
            farben.setColor(QPalette::Inactive, rolle, farben.color(QPalette::Active, rolle));
        setPalette(farben);
    }

    QVariant loadResource(int, const QUrl& name) override {
        QVariant inhalt;
        wache_.fuehre_aus([&] {
            if (!datei_ || name.scheme() != schema) return;
            if (const auto bytes = datei_->lies(utf8(name.path())))
                inhalt = QByteArray::fromStdString(*bytes);
        });
        return inhalt;
    }

    Textskala skala{*this};

  private:
    const std::optional<Hilfedatei>& datei_;
    const Fehlerwache& wache_;
};

Hilfefenster::Hilfefenster(const Fehlerwache& wache, const std::string& sprache)
    : wache_(wache),
      titel_(qtext(Wort{"Velmaris-Hilfe", "Velmaris Help"}.in(sprache))),
      seite_(new Hilfeseite(datei_, wache, this)),
      suchleiste_(new Suchleiste(*seite_, sprache, this)),
      massstab_(*this) {
    setObjectName(QStringLiteral("Hilfe"));
    setWindowTitle(titel_);
    setContextMenuPolicy(Qt::NoContextMenu);
    auto* mitte = new QWidget(this);
    auto* spalte = new QVBoxLayout(mitte);
    spalte->setContentsMargins({});
    spalte->setSpacing(0);
    spalte->addWidget(seite_, 1);
    spalte->addWidget(suchleiste_);
    setCentralWidget(mitte);
    seite_->setAccessibleName(titel_);
    leiste_bauen(sprache);
    resize(bevorzugt.boundedTo(bildschirmplatz(*this)));
    connect(&massstab_, &Fenstermassstab::geaendert, seite_, [this](double s) { seite_->skala.setze(s); });
    tasten_binden();
    connect(seite_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& verweis) { wache_.fuehre_aus([&] { folge(verweis); }); });
    connect(seite_, &QTextBrowser::sourceChanged, this,
            [this] { setWindowTitle(seite_->documentTitle() + QLatin1String(" - ") + titel_); });
}

void Hilfefenster::leiste_bauen(const std::string& sprache) {
    const auto wort = [&](const char* de, const char* en) { return qtext(Wort{de, en}.in(sprache)); };
    QAction* zurueck = taste("Zurueck", wort("Zurück", "Back"), QStringLiteral("\u2190"),
                             QKeySequence(Qt::ALT | Qt::Key_Left));
    QAction* vor =
        taste("Vor", wort("Vor", "Forward"), QStringLiteral("\u2192"), QKeySequence(Qt::ALT | Qt::Key_Right));
    QAction* anfang =
        taste("Startseite", wort("Startseite", "Start page"), {}, QKeySequence(Qt::ALT | Qt::Key_Home));
    QAction* suchen = taste("Suchen", wort("Suchen", "Find"), {}, QKeySequence::Find);
    connect(suchen, &QAction::triggered, suchleiste_, &Suchleiste::oeffne);
    connect(zurueck, &QAction::triggered, seite_, &QTextBrowser::backward);
    connect(vor, &QAction::triggered, seite_, &QTextBrowser::forward);
    connect(anfang, &QAction::triggered, this, [this] { wache_.fuehre_aus([&] { oeffne(adresse({})); }); });
    for (QAction* eintrag : {zurueck, vor})
        eintrag->setEnabled(false);
    connect(seite_, &QTextBrowser::backwardAvailable, zurueck, &QAction::setEnabled);
    connect(seite_, &QTextBrowser::forwardAvailable, vor, &QAction::setEnabled);
    auto* leiste = addToolBar(titel_);
    leiste->setMovable(false);
    leiste->addActions({zurueck, vor, anfang, suchen});
}

void Hilfefenster::tasten_binden() {
    const auto bei = [this](const QKeySequence& tasten, auto&& tu) {
        connect(new QShortcut(tasten, this), &QShortcut::activated, this, tu);
    };
    bei(Qt::Key_F3, [this] { suchleiste_->suche(false); });
    bei(Qt::SHIFT | Qt::Key_F3, [this] { suchleiste_->suche(true); });
    bei(Qt::Key_Escape, [this] {
        if (suchleiste_->isHidden()) {
            hide();
        } else {
            suchleiste_->schliesse();
        }
    });
}

/// A button of the bar: what it does, the sign before that, the keys that do the same.
QAction* Hilfefenster::taste(const char* name, const QString& text, const QString& zeichen,
                             const QKeySequence& tasten) {
    auto* neu = new QAction(zeichen.isEmpty() ? text : zeichen + QLatin1Char(' ') + text, this);
    neu->setObjectName(QLatin1String(name));
    neu->setShortcut(tasten);
    neu->setToolTip(text + QLatin1String(" (") + tasten.toString(QKeySequence::NativeText) +
                    QLatin1Char(')'));
    return neu;
}

void Hilfefenster::zeige(const std::filesystem::path& datei, const std::string& seite) {
    const QUrl ziel = adresse(seite);
    if (!Hilfeleser::eingebaut) {
        Hilfedatei::pruefen(datei);
        hilfe_fremd_zeigen(datei, utf8(ziel.path()));
        return;
    }
    Hilfedatei neue(datei);
    if (!neue.lies(utf8(ziel.path()))) throw ohne_seite(neue, ziel);
    datei_ = std::move(neue);
    seite_->setSource(ziel);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    ueber(QApplication::activeModalWidget());
    raise();
    activateWindow();
    seite_->setFocus();
}

void Hilfefenster::massstab_vorschlagen(double massstab) {
    if (isVisible() || massstab == vorgeschlagen_) return;
    vorgeschlagen_ = massstab;
    resize((QSizeF(bevorzugt) * massstab).toSize().boundedTo(bildschirmplatz(*this)));
}

void Hilfefenster::resizeEvent(QResizeEvent* ereignis) {
    QMainWindow::resizeEvent(ereignis);
    massstab_.setze(passender_massstab(size(), mindestens));
}

void Hilfefenster::oeffne(const QUrl& seite) {
    if (!datei_->lies(utf8(seite.path()))) throw ohne_seite(*datei_, seite);
    seite_->setSource(seite);
}

void Hilfefenster::folge(const QUrl& verweis) {
    if (verweis.scheme() == schema) {
        oeffne(verweis);
    } else if (fremder_verweis) {
        fremder_verweis(verweis);
    }
}

/// Stands over a modal window from now on, and so is not blocked by it.
void Hilfefenster::ueber(const QWidget* modal) {
    windowHandle()->setTransientParent(modal == nullptr ? nullptr : modal->windowHandle());
}

/// Rises above a window of the program that blocks it, but not above a short question.
bool Hilfefenster::event(QEvent* ereignis) {
    if (ereignis->type() == QEvent::WindowBlocked) {
        const auto steige = [this] {
            const QWidget* modal = QApplication::activeModalWidget();
            if (qobject_cast<const Nebenfenster*>(modal) != nullptr) ueber(modal);
        };
        QMetaObject::invokeMethod(this, steige, Qt::QueuedConnection);
    }
    return QMainWindow::event(ereignis);
}

}  // namespace velmaris

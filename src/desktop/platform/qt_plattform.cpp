#include "desktop/platform/qt_plattform.h"

#include "desktop/platform/dateifilter.h"
#include "desktop/platform/dateisymbole.h"
#include "desktop/platform/dateivorschau.h"
#include "desktop/platform/massstab.h"
#include "desktop/platform/meldungstext.h"
#include "desktop/platform/qt_text.h"
#include "toolkit/text.h"
#include "toolkit/wort.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QPushButton>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>
#include <algorithm>
#include <array>

namespace velmaris {
namespace {

/// A button of a message box: what it stands for, and its caption.
struct Knopfzeile {
    Antwort antwort;
    QMessageBox::StandardButton knopf;
    Wort text;
};

constexpr std::array knopftafel{
    Knopfzeile{Antwort::ok, QMessageBox::Ok, {"OK", "OK"}},
    Knopfzeile{Antwort::ja, QMessageBox::Yes, {"&Ja", "&Yes"}},
    Knopfzeile{Antwort::nein, QMessageBox::No, {"&Nein", "&No"}},
    Knopfzeile{Antwort::abbrechen, QMessageBox::Cancel, {"Abbrechen", "Cancel"}},
};

/// The answers that a set of buttons has, in their order; the last one stands for closing the box.
std::vector<Antwort> antworten(Knoepfe knoepfe) {
    switch (knoepfe) {
        case Knoepfe::ja_nein:
            return {Antwort::ja, Antwort::nein};
        case Knoepfe::ja_nein_abbrechen:
            return {Antwort::ja, Antwort::nein, Antwort::abbrechen};
        case Knoepfe::ok:
            break;
    }
    return {Antwort::ok};
}

const Knopfzeile& knopfzeile(Antwort antwort) {
    return knopftafel.at(static_cast<std::size_t>(antwort));
}

QMessageBox::Icon symbolbild(Symbol symbol) {
    switch (symbol) {
        case Symbol::information:
            return QMessageBox::Information;
        case Symbol::ausrufezeichen:
            return QMessageBox::Warning;
        case Symbol::kein:
            break;
    }
    return QMessageBox::NoIcon;
}

/// The normal cursor as long as it lives.
class Zeigerpause {
  public:
    explicit Zeigerpause(bool sanduhr) : sanduhr_(sanduhr) {
        if (sanduhr_) QApplication::restoreOverrideCursor();
    }
    Zeigerpause(const Zeigerpause&) = delete;
    Zeigerpause& operator=(const Zeigerpause&) = delete;
    ~Zeigerpause() {
        if (sanduhr_) QApplication::setOverrideCursor(Qt::WaitCursor);
    }

  private:
    bool sanduhr_;
};

/// The columns beside the name show their texts whole.
void spalten_weiten(const QFileDialog& fenster) {
    const auto* tafel = fenster.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (tafel == nullptr) return;
    tafel->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tafel->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

/// Puts a name into the field of a file dialog. An existing file would be selected in the list as well, and
/// that counts for more than a path pasted over the name.
void vorschlagen(QFileDialog& fenster, const std::string& name) {
    fenster.selectFile(qtext(name));
    if (auto* liste = fenster.findChild<QAbstractItemView*>(QStringLiteral("listView")))
        liste->clearSelection();
}

/// A folder among the places of a file dialog as long as this lives: the toolkit would keep it in its
/// settings and show it in the dialogs of all programs.
class Ortsangebot {
  public:
    Ortsangebot(QFileDialog& fenster, const std::filesystem::path& ordner)
        : fenster_(fenster), ort_(QUrl::fromLocalFile(QFileInfo(ordner).absoluteFilePath())) {
        QList<QUrl> orte = fenster.sidebarUrls();
        neu_ = !ordner.empty() && QFileInfo(ordner).isDir() && !orte.contains(ort_);
        if (!neu_) return;
        fenster.setSidebarUrls(orte << ort_);
        if (auto* leiste = fenster.findChild<QListView*>(QStringLiteral("sidebar")))
            leiste->setMinimumWidth(leiste->sizeHintForColumn(0) + 2 * leiste->frameWidth());
    }
    Ortsangebot(const Ortsangebot&) = delete;
    Ortsangebot& operator=(const Ortsangebot&) = delete;
    ~Ortsangebot() {
        QList<QUrl> orte = fenster_.sidebarUrls();
        if (neu_ && orte.removeOne(ort_)) fenster_.setSidebarUrls(orte);
    }

  private:
    QFileDialog& fenster_;
    QUrl ort_;
    bool neu_ = false;
};

/// Number (from 1) of a filter in a dialog, which may tell it without its patterns; 0 if it is none of them.
int filternummer(const QStringList& filter, const QString& gewaehlt) {
    const auto ort = std::ranges::find_if(filter, [&gewaehlt](const QString& zeile) {
        return zeile == gewaehlt || zeile.startsWith(gewaehlt + QLatin1String(" ("));
    });
    return ort == filter.end() ? 0 : static_cast<int>(ort - filter.begin()) + 1;
}

}  // namespace

QtPlattform::QtPlattform(const Fehlerwache& wache, std::function<std::string()> sprache)
    : wache_(wache), sprache_(std::move(sprache)), zufall_(QRandomGenerator::securelySeeded()) {}

void QtPlattform::hauptfenster(QWidget* fenster) {
    hauptfenster_ = fenster;
    if (fenster != nullptr && !titel_.isEmpty()) fenster->setWindowTitle(titel_);
}

QWidget* QtPlattform::besitzer() const {
    QWidget* offen = QApplication::activeModalWidget();
    return offen != nullptr ? offen : hauptfenster_.data();
}

QString QtPlattform::wort(const char* de, const char* en) const {
    return qtext(Wort{de, en}.in(sprache_()));
}

Antwort QtPlattform::melde(const Meldung& meldung) {
    const Zeigerpause pause(sanduhr_);
    QMessageBox fenster(symbolbild(meldung.symbol), zeilentext(meldung.titel), zeilentext(meldung.text),
                        QMessageBox::NoButton, besitzer());
    schrift_anpassen(fenster);
    if (!meldung.hinweis.empty()) fenster.setInformativeText(zeilentext(meldung.hinweis));
    meldungstexte_einrichten(fenster);
    const std::vector<Antwort> moeglich = antworten(meldung.knoepfe);
    for (const Antwort antwort : moeglich) {
        const Knopfzeile& zeile = knopfzeile(antwort);
        fenster.addButton(zeile.knopf)->setText(qtext(zeile.text.in(sprache_())));
    }
    fenster.setEscapeButton(knopfzeile(moeglich.back()).knopf);
    fenster.setDefaultButton(knopfzeile(meldung.vorgabe.value_or(moeglich.front())).knopf);
    const int gedrueckt = fenster.exec();
    const auto* zeile = std::find_if(knopftafel.begin(), knopftafel.end(),
                                     [gedrueckt](const Knopfzeile& z) { return z.knopf == gedrueckt; });
    return zeile == knopftafel.end() ? moeglich.back() : zeile->antwort;
}

std::optional<std::string> QtPlattform::eingabe(const std::string& text, const std::string& titel,
                                                const std::string& vorgabe) {
    const Zeigerpause pause(sanduhr_);
    QInputDialog fenster(besitzer());
    schrift_anpassen(fenster);
    fenster.setWindowTitle(zeilentext(titel));
    // The label is bound to its field, and so would take an ampersand for the mark of an access key.
    fenster.setLabelText(zeilentext(text).replace(u'&', QLatin1String("&&")));
    fenster.setTextValue(qtext(vorgabe));
    fenster.setOkButtonText(QStringLiteral("OK"));
    fenster.setCancelButtonText(wort("Abbrechen", "Cancel"));
    if (auto* schild = fenster.findChild<QLabel*>()) {
        schild->setTextFormat(Qt::PlainText);
        schild->setWordWrap(true);
    }
    if (auto* zeile = fenster.findChild<QLineEdit*>()) zeile->setMinimumWidth(in_pixeln(*zeile, 400));
    if (fenster.exec() != QDialog::Accepted) return std::nullopt;
    return utf8(fenster.textValue());
}

std::optional<std::filesystem::path> QtPlattform::dateidialog(const Dateidialog& dialog) {
    const Zeigerpause pause(sanduhr_);
    return datei_waehlen(dialog);
}

std::optional<std::filesystem::path> QtPlattform::datei_waehlen(const Dateidialog& dialog) {
    constexpr QSize bevorzugte_groesse(640, 440);
    Dateisymbole symbole;
    QFileDialog fenster(besitzer());
    schrift_anpassen(fenster);
    fenster.setIconProvider(&symbole);
    // A name that does not exist is the caller's to judge, and so is one that does.
    fenster.setFileMode(QFileDialog::AnyFile);
    fenster.setAcceptMode(dialog.art == Dateidialog::Art::oeffnen ? QFileDialog::AcceptOpen
                                                                  : QFileDialog::AcceptSave);
    fenster.setOptions(QFileDialog::DontConfirmOverwrite | QFileDialog::HideNameFilterDetails);
    beschriften(fenster, dialog.art);
    const QStringList filter = dateifilter(dialog.filter);
    fenster.setNameFilters(filter);
    if (dialog.filterindex >= 1 && dialog.filterindex <= filter.size())
        fenster.selectNameFilter(filter[dialog.filterindex - 1]);
    const QFileInfo ordner(dialog.ordner);
    fenster.setDirectory(ordner.isDir() ? ordner.absoluteFilePath() : QDir::homePath());
    if (!dialog.dateiname.empty()) vorschlagen(fenster, dialog.dateiname);
    spalten_weiten(fenster);
    Dateivorschau::einsetzen(fenster, dialog.vorschau, wache_);
    const Ortsangebot ort(fenster, dialog.ort);
    fenster.resize(in_pixeln(massstab(fenster), bevorzugte_groesse).boundedTo(bildschirmplatz(fenster)));
    if (fenster.exec() != QDialog::Accepted || fenster.selectedFiles().isEmpty()) return std::nullopt;
    return mit_endung(dialog, QFileInfo(fenster.selectedFiles().constFirst()).filesystemFilePath(),
                      filternummer(filter, fenster.selectedNameFilter()));
}

void QtPlattform::beschriften(QFileDialog& fenster, Dateidialog::Art art) const {
    // A dialog of the desktop has no widgets of ours, and shows the mark of an access key as it stands.
    const bool eigener = fenster.findChild<QLineEdit*>() != nullptr;
    const auto beschrifte = [&](QFileDialog::DialogLabel stelle, const char* de, const char* en) {
        QString text = wort(de, en);
        if (!eigener) text.remove(u'&');
        fenster.setLabelText(stelle, text);
    };
    const bool oeffnen = art == Dateidialog::Art::oeffnen;
    fenster.setWindowTitle(oeffnen ? wort("Öffnen", "Open") : wort("Speichern unter", "Save as"));
    beschrifte(QFileDialog::Accept, oeffnen ? "Ö&ffnen" : "&Speichern", oeffnen ? "&Open" : "&Save");
    beschrifte(QFileDialog::Reject, "Abbrechen", "Cancel");
    beschrifte(QFileDialog::LookIn, "Suchen in:", "Look in:");
    beschrifte(QFileDialog::FileName, "Datei&name:", "File &name:");
    beschrifte(QFileDialog::FileType, "Dateityp:", "Files of type:");
}

void QtPlattform::sanduhr(bool an) {
    if (an == sanduhr_) return;
    sanduhr_ = an;
    if (an) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void QtPlattform::fenstertitel(const std::string& titel) {
    titel_ = qtext(titel);
    if (hauptfenster_) hauptfenster_->setWindowTitle(titel_);
}

Bildschirmpunkt QtPlattform::zeiger() const {
    const double s = hauptfenster_ ? massstab(*hauptfenster_) : 1;
    const QPointF ort = QPointF(QCursor::pos()) / s;
    return {qRound(ort.x()), qRound(ort.y())};
}

void QtPlattform::zeitgeber_starten(const std::string& name, int millisekunden,
                                    std::function<void()> ablauf) {
    const auto [ort, neu] = zeitgeber_.try_emplace(name);
    Zeitgeber& zeitgeber = ort->second;
    if (neu) {
        zeitgeber.uhr.setSingleShot(true);
        QObject::connect(&zeitgeber.uhr, &QTimer::timeout, [this, &zeitgeber] {
            // The routine may start its own timer anew.
            const std::function<void()> faellig = std::move(zeitgeber.ablauf);
            wache_.fuehre_aus(faellig);
        });
    }
    zeitgeber.ablauf = std::move(ablauf);
    zeitgeber.uhr.start(millisekunden);
}

void QtPlattform::zeitgeber_stoppen(const std::string& name) {
    if (const auto ort = zeitgeber_.find(name); ort != zeitgeber_.end()) ort->second.uhr.stop();
}

void QtPlattform::hilfe(const std::filesystem::path& datei, const std::string& seite) {
    if (hilfe_zeigen) hilfe_zeigen(datei, seite);
}

std::vector<std::string> QtPlattform::druckerliste() const {
    std::vector<std::string> namen;
    for (const QString& name : QPrinterInfo::availablePrinterNames())
        namen.push_back(utf8(name));
    return namen;
}

std::string QtPlattform::aktueller_drucker() const {
    return drucker_ ? *drucker_ : utf8(QPrinterInfo::defaultPrinterName());
}

void QtPlattform::drucker_waehlen(const std::string& name) {
    drucker_ = name;
}

std::filesystem::path QtPlattform::benutzerordner() {
    return QFileInfo(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).filesystemFilePath();
}

void QtPlattform::beenden() {
    // Queued, so that it also holds before the event loop runs; exit() asks no window whether it may close.
    QMetaObject::invokeMethod(
        qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
}

}  // namespace velmaris

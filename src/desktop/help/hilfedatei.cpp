#include "desktop/help/hilfedatei.h"

#include "desktop/platform/hilfeleser.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <system_error>

namespace velmaris {
namespace {

/// No help is nearly as large; what is gets read no further, and so does not fit.
constexpr std::size_t groesste_hilfe = std::size_t{16} << 20U;

bool ist_datei(const std::filesystem::path& name) {
    std::error_code fehler;
    return std::filesystem::is_regular_file(name, fehler);
}

/// The line of the checksum file that bytes of that name should have.
std::string pruefzeile(const std::filesystem::path& name, const QByteArray& bytes) {
    const QByteArray summe = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
    return summe.toStdString() + "  " + pfadtext(name) + "\n";
}

/// The bytes of a help file that fits its checksum.
QByteArray geprueft(const std::filesystem::path& datei) {
    if (!ist_datei(datei)) {
        throw Dateifehler(pfadtext(datei),
                          {"Die Hilfedatei wurde nicht gefunden.", "The help file was not found."});
    }
    std::filesystem::path pruefdatei = datei;
    pruefdatei += ".sha256";
    if (!ist_datei(pruefdatei)) {
        const std::string name = pfadtext(pruefdatei.filename());
        throw Dateifehler(
            pfadtext(datei),
            {"Die Hilfedatei gilt als beschädigt, denn die Datei mit ihrer Prüfsumme fehlt: " + name,
             "The help file counts as damaged, since the file with its checksum is missing: " + name});
    }
    const QByteArray bytes = QByteArray::fromStdString(anfang_lesen(datei, groesste_hilfe));
    const std::string soll = pruefzeile(datei.filename(), bytes);
    if (anfang_lesen(pruefdatei, soll.size() + 1) != soll) throw hilfe_beschaedigt(datei);
    return bytes;
}

Dateifehler kein_platz() {
    const std::string ort = pfadtext(QFileInfo(QDir::tempPath()).filesystemAbsoluteFilePath());
    return {ort,
            {"Dieser Ordner für temporäre Dateien nimmt keine Kopie der Hilfe auf.",
             "This folder for temporary files does not take a copy of the help."}};
}

}  // namespace

/// The copy on disk, since the reader takes nothing but a file's name.
struct Hilfedatei::Kopie {
    QTemporaryDir ordner;  ///< goes after the reader, where an open file cannot be removed
    std::optional<Hilfeleser> leser;
};

Hilfedatei::Hilfedatei(std::filesystem::path datei)
    : pfad_(std::move(datei)), kopie_(std::make_unique<Kopie>()) {
    const QByteArray bytes = geprueft(pfad_);
    QFile kopie(kopie_->ordner.filePath(QStringLiteral("hilfe.chm")));
    const bool geschrieben = kopie_->ordner.isValid() && kopie.open(QIODevice::WriteOnly) &&
                             kopie.write(bytes) == bytes.size() && kopie.flush();
    if (!geschrieben) throw kein_platz();
    kopie.close();
    kopie_->leser.emplace(kopie.fileName(), pfad_);
    kopie.remove();  // out of everybody's reach; where an open file cannot be removed, it goes at the end
}

Hilfedatei::Hilfedatei(Hilfedatei&&) noexcept = default;
Hilfedatei& Hilfedatei::operator=(Hilfedatei&&) noexcept = default;
Hilfedatei::~Hilfedatei() = default;

void Hilfedatei::pruefen(const std::filesystem::path& datei) {
    static_cast<void>(geprueft(datei));
}

std::optional<std::string> Hilfedatei::lies(const std::string& name) const {
    return kopie_->leser->lies(name);
}

}  // namespace velmaris

#include "desktop/platform/hilfeleser.h"

#include <QFile>
#include <chm_lib.h>

namespace velmaris {

const bool Hilfeleser::eingebaut = true;

struct Hilfeleser::Griff {
    chmFile* datei = nullptr;

    explicit Griff(chmFile* geoeffnet) : datei(geoeffnet) {}
    Griff(const Griff&) = delete;
    Griff& operator=(const Griff&) = delete;
    ~Griff() {
        if (datei != nullptr) chm_close(datei);
    }
};

// The name in the system's bytes, since a path is wide on some systems and the reader's name never is.
Hilfeleser::Hilfeleser(const QString& kopie, std::filesystem::path datei)
    : datei_(std::move(datei)),
      griff_(std::make_unique<Griff>(chm_open(QFile::encodeName(kopie).constData()))) {
    if (griff_->datei == nullptr) throw hilfe_beschaedigt(datei_);
}

Hilfeleser::Hilfeleser(Hilfeleser&&) noexcept = default;
Hilfeleser& Hilfeleser::operator=(Hilfeleser&&) noexcept = default;
Hilfeleser::~Hilfeleser() = default;

std::optional<std::string> Hilfeleser::lies(const std::string& name) const {
    chmUnitInfo ort{};
    if (chm_resolve_object(griff_->datei, name.c_str(), &ort) != CHM_RESOLVE_SUCCESS) return std::nullopt;
    std::string bytes(ort.length, '\0');
    const LONGINT64 gelesen =
        chm_retrieve_object(griff_->datei, &ort, reinterpret_cast<unsigned char*>(bytes.data()), 0,
                            static_cast<LONGINT64>(ort.length));
    if (gelesen != static_cast<LONGINT64>(ort.length)) throw hilfe_beschaedigt(datei_);
    return bytes;
}

}  // namespace velmaris

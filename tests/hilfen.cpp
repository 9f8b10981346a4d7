#include "tests/hilfen.h"

#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <cstdlib>
#include <fstream>

namespace velmaris::test {

Testordner::Testordner() {
    std::string muster = (std::filesystem::temp_directory_path() / "velmaris_XXXXXX").string();
    pfad_ = mkdtemp(muster.data());
}

Testordner::~Testordner() {
    std::error_code fehler;
    std::filesystem::remove_all(pfad_, fehler);
}

std::filesystem::path Testordner::operator/(const std::string& utf8) const {
    return pfad_ / velmaris::pfad(utf8);
}

std::filesystem::path Testordner::schreibe(const std::string& utf8, const std::string& bytes) const {
    const std::filesystem::path ziel = *this / utf8;
    std::filesystem::create_directories(ziel.parent_path());
    std::ofstream strom(ziel, std::ios::binary);
    strom << bytes;
    strom.close();
    if (!strom) throw std::runtime_error("test file not written: " + utf8);
    return ziel;
}

std::string inhalt(const std::filesystem::path& datei) {
    return bytes_lesen(datei, hoechste_quellgroesse);
}

}  // namespace velmaris::test

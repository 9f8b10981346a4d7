#include "tests/hilfen.h"

#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <fstream>
#include <random>
#include <stdexcept>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace velmaris::test {

Testordner::Testordner() {
    std::random_device zufall;
    do {
        pfad_ = std::filesystem::temp_directory_path() / ("velmaris_" + std::to_string(zufall()));
    } while (!std::filesystem::create_directory(pfad_));
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

void rohr_anlegen(const std::filesystem::path& name) {
#ifdef _WIN32
    throw std::logic_error("this system has no pipes in folders: " + pfadtext(name));
#else
    if (::mkfifo(name.c_str(), 0600) != 0) throw std::runtime_error("no pipe made: " + pfadtext(name));
#endif
}

std::string inhalt(const std::filesystem::path& datei) {
    return bytes_lesen(datei, hoechste_quellgroesse);
}

}  // namespace velmaris::test

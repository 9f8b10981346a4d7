// The way into the console program on Windows: words of the call in UTF-8, the program's own place as the
// first of them, and output whose bytes are those of every other system.

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <string>
#include <vector>
#include <windows.h>

int velmaris_main(int argc, char** argv);

namespace {

std::string utf8(const std::wstring& text) {
    const int laenge = static_cast<int>(text.size());
    std::string bytes(static_cast<std::size_t>(
                          WideCharToMultiByte(CP_UTF8, 0, text.data(), laenge, nullptr, 0, nullptr, nullptr)),
                      '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), laenge, bytes.data(), static_cast<int>(bytes.size()),
                        nullptr, nullptr);
    return bytes;
}

/// Where this program lies: the word in its place may be a name that was looked up in the search path.
std::wstring eigene_datei() {
    constexpr std::size_t laengster_pfad = 32768;
    std::wstring datei(laengster_pfad, L'\0');
    datei.resize(GetModuleFileNameW(nullptr, datei.data(), static_cast<DWORD>(datei.size())));
    return datei;
}

/// A console that shows UTF-8 and the moves of the progress line, as long as this lives.
class Konsolenart {
  public:
    Konsolenart() {
        SetConsoleOutputCP(CP_UTF8);
        if (GetConsoleMode(fehlerstrom_, &art_) != 0)
            SetConsoleMode(fehlerstrom_, art_ | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
    }
    Konsolenart(const Konsolenart&) = delete;
    Konsolenart& operator=(const Konsolenart&) = delete;
    ~Konsolenart() {
        if (art_ != 0) SetConsoleMode(fehlerstrom_, art_);
        SetConsoleOutputCP(zeichensatz_);
    }

  private:
    HANDLE fehlerstrom_ = GetStdHandle(STD_ERROR_HANDLE);
    DWORD art_ = 0;
    UINT zeichensatz_ = GetConsoleOutputCP();
};

}  // namespace

int wmain(int argc, wchar_t** argv) {
    const Konsolenart konsole;
    for (std::FILE* strom : {stdout, stderr})
        _setmode(_fileno(strom), _O_BINARY);
    std::vector<std::string> worte{utf8(eigene_datei())};
    for (int i = 1; i < argc; ++i)
        worte.push_back(utf8(argv[i]));
    std::vector<char*> zeiger;
    for (std::string& wort : worte)
        zeiger.push_back(wort.data());
    zeiger.push_back(nullptr);
    return velmaris_main(static_cast<int>(worte.size()), zeiger.data());
}

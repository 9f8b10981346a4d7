#include "tests/verderber.h"

#include <algorithm>

namespace velmaris::test {

std::string Verderber::verderbe(std::string text) {
    static const std::string boese(
        "\0\t\n\r ,.-\"\x80\xFF"
        "9eE",
        14);
    for (std::size_t male = 1 + los(6); male > 0; --male) {
        const std::size_t ort = los(los(2) == 0 ? std::min<std::size_t>(text.size(), 400) : text.size());
        switch (los(5)) {
            case 0:
                if (ort < text.size()) text[ort] = boese[los(boese.size())];
                break;
            case 1:
                text.erase(ort, los(60));
                break;
            case 2:
                text.insert(ort, text.substr(ort, los(60)));
                break;
            case 3:
                text.insert(ort, los(8), boese[los(boese.size())]);
                break;
            default:
                if (los(4) == 0) text.resize(ort);
                break;
        }
    }
    return text;
}

}  // namespace velmaris::test

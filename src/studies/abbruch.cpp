#include "studies/abbruch.h"

#include <atomic>
#include <csignal>

namespace velmaris {
namespace {

std::atomic<bool> g_abgebrochen = false;
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void velmaris_abbruch_merken(int /*signal*/) {
    g_abgebrochen = true;
}

}  // namespace

Abbruchwache::Abbruchwache() {
    g_abgebrochen = false;
    bei_unterbrechung_ = std::signal(SIGINT, velmaris_abbruch_merken);
    bei_ende_ = std::signal(SIGTERM, velmaris_abbruch_merken);
}

Abbruchwache::~Abbruchwache() {
    std::signal(SIGINT, bei_unterbrechung_);
    std::signal(SIGTERM, bei_ende_);
}

bool Abbruchwache::abgebrochen() {
    return g_abgebrochen;
}

}  // namespace velmaris

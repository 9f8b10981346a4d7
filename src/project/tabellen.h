#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <span>

namespace velmaris {

inline constexpr int monate = 12;
inline constexpr int tage_hoechstens = 31;
inline constexpr int stunden = 24;
inline constexpr int tage_im_jahr = 365;
inline constexpr int stunden_im_jahr = 8760;

/// Lengths of the months; index 0 is unused. There is no leap year.
inline constexpr std::array<int, monate + 1> tage_im_monat{0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

/// An array with the index range `erster`..`letzter`, as the model counts.
template <class T, int erster, int letzter>
class Reihe {
  public:
    [[nodiscard]] T& operator()(int i) { return werte_[stelle(i)]; }
    [[nodiscard]] const T& operator()(int i) const { return werte_[stelle(i)]; }

    [[nodiscard]] auto begin() { return werte_.begin(); }
    [[nodiscard]] auto end() { return werte_.end(); }
    [[nodiscard]] auto begin() const { return werte_.begin(); }
    [[nodiscard]] auto end() const { return werte_.end(); }

  private:
    static std::size_t stelle(int i) {
        assert(i >= erster && i <= letzter);
        return static_cast<std::size_t>(i - erster);
    }

    std::array<T, static_cast<std::size_t>(letzter - erster + 1)> werte_{};
};

/// A table by month 1..12, day 1..31 and hour 1..24. Hour h is the hour that ends at h o'clock. Days that
/// a month does not have are never visited.
template <class T>
class Stundentabelle {
  public:
    [[nodiscard]] T& operator()(int m, int d, int h) { return werte_[stelle(m, d, h)]; }
    [[nodiscard]] const T& operator()(int m, int d, int h) const { return werte_[stelle(m, d, h)]; }

    /// The 24 hours of a day side by side; hour h stands at place h - 1.
    [[nodiscard]] std::span<T, stunden> tag(int m, int d) {
        return std::span<T, stunden>(&werte_[stelle(m, d, 1)], stunden);
    }
    [[nodiscard]] std::span<const T, stunden> tag(int m, int d) const {
        return std::span<const T, stunden>(&werte_[stelle(m, d, 1)], stunden);
    }

  private:
    static std::size_t stelle(int m, int d, int h) {
        assert(m >= 1 && m <= monate && d >= 1 && d <= tage_hoechstens && h >= 1 && h <= stunden);
        const int stelle = ((m - 1) * tage_hoechstens + (d - 1)) * stunden + (h - 1);
        return static_cast<std::size_t>(stelle);
    }

    std::array<T, static_cast<std::size_t>(monate) * tage_hoechstens * stunden> werte_{};
};

/// Calls `tu(m, d, h, n)` for each hour of the month `m`; n is the day of the year, `n0` that of the month's
/// first day.
template <class Tu>
void fuer_jede_stunde_des_monats(int m, int n0, Tu&& tu) {
    for (int d = 1; d <= tage_im_monat[static_cast<std::size_t>(m)]; ++d) {
        for (int h = 1; h <= stunden; ++h)
            tu(m, d, h, n0 + d - 1);
    }
}

/// Calls `tu(m, d, h, n)` for each of the 8760 hours of the year in order; n is the day of the year 1..365.
template <class Tu>
void fuer_jede_stunde(Tu&& tu) {
    int n = 1;
    for (int m = 1; m <= monate; ++m) {
        fuer_jede_stunde_des_monats(m, n, tu);
        n += tage_im_monat[static_cast<std::size_t>(m)];
    }
}

/// Calls `tu(m, d, n)` for each of the 365 days of the year in order; n is the day of the year.
template <class Tu>
void fuer_jeden_tag(Tu&& tu) {
    int n = 0;
    for (int m = 1; m <= monate; ++m) {
        for (int d = 1; d <= tage_im_monat[static_cast<std::size_t>(m)]; ++d)
            tu(m, d, ++n);
    }
}

}  // namespace velmaris

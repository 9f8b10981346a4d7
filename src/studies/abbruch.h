#pragma once

namespace velmaris {

/// As long as it lives, Ctrl+C and a request to end the program are only noted; afterwards they are what they
/// were before. One at a time.
class Abbruchwache {
  public:
    Abbruchwache();
    Abbruchwache(const Abbruchwache&) = delete;
    Abbruchwache& operator=(const Abbruchwache&) = delete;
    ~Abbruchwache();

    /// True once one of them has come; from any thread.
    [[nodiscard]] static bool abgebrochen();

  private:
    void (*bei_unterbrechung_)(int);
    void (*bei_ende_)(int);
};

}  // namespace velmaris

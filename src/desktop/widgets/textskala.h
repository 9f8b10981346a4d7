#pragma once

#include <QPaintDevice>

class QTextEdit;

namespace velmaris {

/// The surface for which a long text is set: points, margins and tabs are larger on it by a scale, as on a
/// screen of more pixels to the inch.
class Textskala : public QPaintDevice {
  public:
    /// The text is set for it from now on; it must outlive the text's view.
    explicit Textskala(QTextEdit& ansicht);

    /// Sets the text anew, 1 for the screen's own size. What is read stays in sight.
    void setze(double massstab);

    [[nodiscard]] QPaintEngine* paintEngine() const override { return nullptr; }

  protected:
    [[nodiscard]] int metric(PaintDeviceMetric groesse) const override;

  private:
    QTextEdit& ansicht_;
    double massstab_ = 1;
};

}  // namespace velmaris

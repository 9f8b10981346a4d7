#pragma once

#include <QFont>
#include <QImage>
#include <QPoint>
#include <QString>
#include <map>
#include <tuple>
#include <vector>

namespace velmaris {

/// The edge around a letter: how much of each device pixel it covers (8 bits), and where its top left is.
struct Buchstabenhof {
    QPoint ort;
    const QImage* deckung;
};

/// The edges around the letters of a font. Outlining a letter takes long and the charts write the same few
/// again and again, so each is kept for every place between two device pixels where it has stood.
class Buchstabenhoefe {
  public:
    explicit Buchstabenhoefe(const QFont& schrift) : schrift_(schrift) {}

    /// The edges of a text that begins at `ort` on the base line, both in device pixels; they hold until the
    /// next call. `verhaeltnis` is the device pixel ratio.
    [[nodiscard]] std::vector<Buchstabenhof> um(const QString& text, QPointF ort, double verhaeltnis);

  private:
    /// A letter as it was drawn: its font (a text may need several), its number there, its place between
    /// the pixels in 64ths and the ratio.
    using Schluessel = std::tuple<QString, quint32, int, int, double>;

    struct Vorlage {
        QPoint versatz;
        QImage deckung;
    };

    QFont schrift_;
    std::map<Schluessel, Vorlage> vorlagen_;
};

}  // namespace velmaris

#pragma once

#include <QComboBox>

namespace velmaris {

/// A closed list that drops down as wide as its longest entry, however narrow its field is.
class Aufklappliste : public QComboBox {
    Q_OBJECT

  public:
    using QComboBox::QComboBox;

    void showPopup() override;
};

}  // namespace velmaris

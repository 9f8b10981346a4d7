#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <string>

class QWidget;

namespace velmaris {

/// The key F1 in all windows of the program: it asks for the help page of the plane or window that holds the
/// focus, and in the rest of the main window for that of the plane in use.
class Hilfetaste : public QObject {
    Q_OBJECT

  public:
    /// `zeigen` is given the page's name, an empty one for the start page; `ebene_in_gebrauch` names a plane.
    /// Needs the application object.
    Hilfetaste(std::function<void(const std::string& seite)> zeigen,
               std::function<QString()> ebene_in_gebrauch);

    bool eventFilter(QObject* fenster, QEvent* ereignis) override;

  private:
    [[nodiscard]] QString seite_zu(const QWidget* von) const;

    std::function<void(const std::string&)> zeigen_;
    std::function<QString()> ebene_in_gebrauch_;
};

}  // namespace velmaris

#pragma once

#include <QObject>
#include <functional>
#include <string>

namespace velmaris {

/// The key F1 in all windows of the program: it asks for the help page of the plane or window that holds the
/// focus.
class Hilfetaste : public QObject {
    Q_OBJECT

  public:
    /// `zeigen` is given the page's name, an empty one for the start page. Needs the application object.
    explicit Hilfetaste(std::function<void(const std::string& seite)> zeigen);

    bool eventFilter(QObject* fenster, QEvent* ereignis) override;

  private:
    std::function<void(const std::string&)> zeigen_;
};

}  // namespace velmaris

#pragma once

#include <QRect>
#include <QString>
#include <map>

class QWidget;

namespace lignara {

/// Where the user has put windows, and how large he made them: for as long as the program runs.
class WindowPlaces {
 public:
  /// Puts a window that opens where its like was left last, as far as that is on the screen; where
  /// the user has not moved it, at its first place.
  void Put(QWidget* window, const QRect& first, const QRect& screen);
  /// Keeps the place of a window that closes.
  void Remember(const QWidget* window);

 private:
  struct Place {
    QRect given;
    QRect left;  ///< null while the user has left it where it was put
    bool maximized = false;
  };
  std::map<QString, Place> places_;
};

}  // namespace lignara

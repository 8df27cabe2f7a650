#pragma once

#include <QIcon>
#include <QProxyStyle>
#include <map>

namespace lignara {

/// The usual style, for windows that nobody looks at. A menu bar asks for the picture of its button
/// for what finds no room as soon as it is made: it is read from its file once, not for each
/// window.
class UnseenStyle : public QProxyStyle {
 public:
  QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                     const QWidget* widget) const override {
    QIcon& icon = icons_[picture];
    if (icon.isNull()) icon = QProxyStyle::standardIcon(picture, option, widget);
    return icon;
  }

 private:
  mutable std::map<StandardPixmap, QIcon> icons_;
};

}  // namespace lignara

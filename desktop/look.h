#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <string>

#include "forms/color.h"
#include "forms/font.h"

namespace clinorama::desktop {

// Gives the program the same look on every desktop: style, light colours, base font, icon, and
// Portuguese texts in the toolkit's own dialogs and menus.
void SetLook();

// The installed font that stands for a page's font on a widget.
QFont FontFor(const forms::Font& font);
// The same for a text on a surface that has `density` device pixels to a logical one.
QFont SurfaceFontFor(const forms::Font& font, double density);

QColor ColorFor(forms::Color color);
forms::Color ColorFrom(const QColor& color);
QString TextFor(const std::string& text);

// A picture of the resources, such as "icons/cor", rendered sharp at a logical size for a screen
// of the ratio. A name without a picture gives an empty pixmap.
QPixmap PictureFor(const std::string& name, QSize size, double ratio);

}  // namespace clinorama::desktop

#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QPixmap>
#include <QSizeF>
#include <QString>
#include <string>

#include "forms/color.h"
#include "forms/font.h"
#include "forms/surface.h"

class QWidget;

namespace clinorama::desktop {

// Gives the program the same look on every desktop: style, light colours, base font, icon,
// Portuguese texts in the toolkit's own dialogs and menus, and what assistive technology needs.
void SetLook();

// The program's colours.
QPalette LightPalette();

// Gives a window the program's font, colours and direction, so that it takes none from the desktop,
// and its zoom: the number of the toolkit's pixels to a logical one.
void SetLookOf(QWidget& window, double zoom);
// The zoom of the window that a widget is in; 1 where it was given none.
double ZoomOf(const QWidget& widget);
// The width of a widget's lines, in the toolkit's pixels.
int LineWidth(double zoom);

// The installed font that stands for a page's font on a widget, at a zoom.
QFont FontFor(const forms::Font& font, double zoom);
// The same for a text on a surface.
QFont SurfaceFontFor(const forms::TextRun& run);

QColor ColorFor(forms::Color color);
forms::Color ColorFrom(const QColor& color);
QString TextFor(const std::string& text);

// A picture of the resources, such as "icons/cor", rendered sharp at a size in the toolkit's pixels
// for a screen of the ratio. A name without a picture gives an empty pixmap.
QPixmap PictureFor(const std::string& name, QSizeF size, double ratio);

}  // namespace clinorama::desktop

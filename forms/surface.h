#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>

#include "forms/color.h"
#include "forms/font.h"
#include "forms/raster.h"
#include "forms/strokes.h"

namespace clinorama::forms {

// Values of DrawStyle and DrawMode. A wide pen draws solid, whatever the style.
inline constexpr int Solid = 0;
inline constexpr int Dotted = 2;
inline constexpr int NotMergePen = static_cast<int>(RasterOperation::NotMerge);
inline constexpr int InvertPixel = static_cast<int>(RasterOperation::Invert);
inline constexpr int CopyPen = static_cast<int>(RasterOperation::Copy);

// A text on its way into a raster: the device pixel where its upper left corner stands, and how
// many device pixels make a logical one.
struct TextRun {
  int X = 0;
  int Y = 0;
  double Density = 1;
  std::string Text;
  forms::Font Font;
  Color Ink;
};

// One drawing as an observer of a surface is told of it, with coordinates in user units.
struct DrawingOperation {
  enum class Kind { Clear, Line, Point, Circle, Text };
  Kind What = Kind::Clear;
  double X1 = 0;  // for a circle the centre, for a text the upper left corner
  double Y1 = 0;
  double X2 = 0;  // for a circle the radius
  double Y2 = 0;
  Color Pen{};
  int DrawMode = CopyPen;
  int DrawStyle = Solid;
  int DrawWidth = 1;
  bool Kept = false;  // whether it went to the kept picture too
  std::string Text{};
};

// A drawing surface: a raster with a user scale and a pen. It holds two pictures, the kept one and
// what is on the screen. With AutoRedraw true a drawing goes to both; with false it goes to the
// screen only, and is gone when the surface is shown again after it was hidden.
//
// Sizes and pen widths are logical (15 twips to a pixel); the raster may be finer, by the density,
// and pens, dots and dotted patterns widen with it, rounded up to whole device pixels. Coordinates
// are reduced to 32-bit reals before they are mapped; one beyond their range is failure 6. Whatever
// lies outside is clipped, however far. The surface knows no window system: the letters of a text
// are painted by a host.
class Surface {
 public:
  // Width and height in twips; density in device pixels to a logical pixel, above 0.
  Surface(double width, double height, double density);
  virtual ~Surface() = default;
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  // The pen and the text, which keep their values until they are changed.
  bool AutoRedraw = false;
  int DrawMode = CopyPen;
  int DrawStyle = Solid;
  int DrawWidth = 1;  // logical pixels
  int FillStyle = 1;  // kept for its readers; nothing here fills
  Color FillColor;
  Color ForeColor;
  double CurrentX = 0;  // upper left corner of the next text, in user units
  double CurrentY = 0;
  forms::Font Font;

  Color BackColor() const { return backColor_; }
  // Sets the ground and wipes both pictures with it.
  void BackColor(Color color);

  // Maps the upper left corner to (x1, y1) and the lower right corner to (x2, y2).
  void Scale(double x1, double y1, double x2, double y2);
  // Measures in logical pixels from the upper left corner.
  void ScaleInPixels();
  // The inner size in the current measure; negative where the measure runs backwards.
  double ScaleWidth() const { return scaleX2_ - scaleX1_; }
  double ScaleHeight() const { return scaleY2_ - scaleY1_; }

  // Wipes both pictures, whatever AutoRedraw says.
  void ClearPicture();
  // Wipes both pictures with AutoRedraw true; with false takes away what is on the screen only.
  void Cls();
  // A segment with both of its ends; a dotted one may end in a gap. Without a colour it takes
  // ForeColor.
  void Line(double x1, double y1, double x2, double y2, std::optional<Color> color = {});
  // A point: a round dot of DrawWidth pixels.
  void PSet(double x, double y, std::optional<Color> color = {});
  // A circle about (x, y), its radius in units of the x axis.
  void Circle(double x, double y, double radius);
  // Writes a text at CurrentX, CurrentY in ForeColor, on a transparent ground. Written over itself
  // it looks as if written once.
  void Print(const std::string& text);
  // The same with the corner at (x, y), where it stays.
  void PrintAt(double x, double y, const std::string& text);

  // Brings the kept picture to the screen, as when a hidden surface is shown.
  void Restore();
  // Gives the surface another size, in twips; both pictures are wiped.
  void Resize(double width, double height);

  const Raster& Screen() const { return screen_; }
  const Raster& Kept() const { return kept_; }
  double Density() const { return density_; }
  // Paints both pictures anew with so many device pixels to a logical one, above 0. They become
  // what they would be had it always been so. Where too much was drawn to be remembered, the
  // call changes nothing; one after the surface was wiped does.
  void Density(double density);
  // The device pixels of the screen that have changed since the last call.
  PixelRect TakeDirty();

  // Position of a point in logical pixels from the upper left corner; failure 6 as for a drawing.
  double LogicalX(double x) const;
  double LogicalY(double y) const;

  // Is told of each drawing; unset as a rule.
  std::function<void(const DrawingOperation&)> Observer;

 protected:
  // Called when the screen changes for the first time since TakeDirty.
  virtual void ScreenChanged() {}
  // Paints a text, black, into a small white raster; without a host nothing is painted.
  virtual void PaintText(Raster& /*raster*/, const TextRun& /*run*/) {}

 private:
  double ShareOfWidth(double x) const;
  double ShareOfHeight(double y) const;
  Place PlaceOf(double x, double y) const { return {ShareOfWidth(x), ShareOfHeight(y)}; }
  double DeviceX(const Place& place) const { return place.X * screen_.Width(); }
  double DeviceY(const Place& place) const { return place.Y * screen_.Height(); }
  int DevicePixels(double logical) const;
  void MakePictures();
  void Draw(Stroke::Figure figure, Color pen, std::span<const Place> places,
            const Writing* writing = nullptr);
  void Paint(const Stroke& stroke, std::span<const Place> places, const Writing* writing);
  void PaintLine(const Stroke& stroke, const Place& from, const Place& to);
  void PaintDot(const Stroke& stroke, const Place& centre);
  void PaintCircle(const Stroke& stroke, const Place& centre, const Place& right);
  void PaintLetters(const Stroke& stroke, const Place& corner, const Writing& writing);
  void PaintRect(const Stroke& stroke, const PixelRect& rect);
  void PaintPixel(const Stroke& stroke, int x, int y);
  void Touch(const PixelRect& rect);
  void Tell(DrawingOperation operation) const;  // asks for an Observer

  double width_;  // twips
  double height_;
  double density_;
  double scaleX1_ = 0;
  double scaleY1_ = 0;
  double scaleX2_;
  double scaleY2_;
  Color backColor_ = White;
  Raster kept_;
  Raster screen_;
  Strokes strokes_;
  PixelRect dirty_;
};

// A step of a motion: draws a figure, waits, and takes the figure away without a copy of what lies
// under it. A pixel that one segment of the figure covers, or an odd number of them, ends with the
// pen's bits added: a white one comes back, and a figure that crosses other drawing leaves marks.
// One that an even number covers, such as the common end of two, loses the pen's bits instead. A
// black pen has no bits, and leaves nothing. `draw` must draw the same pixels both times.
template <class Draw, class Wait>
void ShowInPassing(Surface& surface, Draw draw, Wait wait) {
  surface.DrawMode = NotMergePen;
  draw();
  wait();
  surface.DrawMode = InvertPixel;
  draw();
}

}  // namespace clinorama::forms

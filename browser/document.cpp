#include "browser/document.h"

#include <emscripten.h>

#include <bit>
#include <cstdlib>
#include <vector>

// clang-format off
EM_JS(double, js_density, (), { return Module.view.density(); });
EM_JS(void, js_create, (const char* page), { Module.view.create(JSON.parse(UTF8ToString(page))); });
EM_JS(void, js_show, (int number), { Module.view.show(number); });
EM_JS(void, js_hide, (int number), { Module.view.hide(number); });
EM_JS(void, js_drop, (int number), { Module.view.drop(number); });
EM_JS(void, js_focus, (int number), { Module.view.focus(number); });
EM_JS(void, js_update, (const char* states), {
  Module.view.update(JSON.parse(UTF8ToString(states)));
});
EM_JS(void, js_put, (int number, const void* rgba, int x, int y, int width, int height,
                     int rasterWidth, int rasterHeight), {
  const bytes = new Uint8ClampedArray(HEAPU8.buffer, rgba, width * height * 4);
  Module.view.put(number, new ImageData(bytes, width, height), x, y, rasterWidth, rasterHeight);
});
EM_JS(void, js_paint_text, (void* pixels, int width, int height, int x, int y, const char* text,
                            int comic, int size, int bold, double stretch, int sharp), {
  const bytes = HEAPU8.subarray(pixels, pixels + width * height * 4);
  Module.view.paintText(bytes, width, height, x, y, UTF8ToString(text),
                        {comic: !!comic, size, bold: !!bold, stretch, sharp: !!sharp});
});
EM_JS(int, js_take_event, (int* kind, int* number, int* value, char** text), {
  const event = Module.view.queue.take();
  if (!event) return 0;
  HEAP32[kind >> 2] = event.kind;
  HEAP32[number >> 2] = event.number;
  HEAP32[value >> 2] = event.value;
  const size = lengthBytesUTF8(event.text) + 1;
  HEAP32[text >> 2] = _malloc(size);
  stringToUTF8(event.text, HEAP32[text >> 2], size);
  return 1;
});
EM_JS(int, js_is_frame_due, (), { return Module.view.queue.isFrameDue(); });
EM_JS(void, js_at_rest, (), { Module.view.atRest(); });
EM_ASYNC_JS(void, js_turn, (double milliseconds), { await Module.view.queue.turn(milliseconds); });
EM_ASYNC_JS(void, js_wait_for_event, (), { await Module.view.queue.event(); });
EM_ASYNC_JS(void, js_wait_for_frame, (), { await Module.view.queue.frame(); });
EM_ASYNC_JS(void, js_box, (const char* text, int information, const char* title), {
  await Module.view.box(UTF8ToString(text), !!information, UTF8ToString(title));
});
EM_ASYNC_JS(int, js_choose_color, (int now), { return await Module.view.chooseColor(now); });
EM_ASYNC_JS(void, js_end, (), { await Module.view.end(); });
// clang-format on

namespace clinorama::browser::document {

double Density() { return js_density(); }
void CreatePage(const std::string& description) { js_create(description.c_str()); }
void ShowPage(int number) { js_show(number); }
void HidePage(int number) { js_hide(number); }
void DropPage(int number) { js_drop(number); }
void Update(const std::string& descriptions) { js_update(descriptions.c_str()); }
void Focus(int number) { js_focus(number); }

// The document wants red first and full opacity.
void Put(int number, const forms::Raster& raster, const forms::PixelRect& rect) {
  constexpr std::uint32_t Opaque = 0xFF000000;
  static std::vector<std::uint32_t> pixels;
  pixels.resize(static_cast<std::size_t>(rect.Width) * static_cast<std::size_t>(rect.Height));
  std::uint32_t* to = pixels.data();
  for (int y = rect.Y; y < rect.Y + rect.Height; ++y) {
    const std::uint32_t* row = raster.Data() + static_cast<std::ptrdiff_t>(y) * raster.Width();
    for (int x = rect.X; x < rect.X + rect.Width; ++x) {
      const std::uint32_t pixel = row[x];
      *to++ = Opaque | (std::rotl(pixel, 16) & 0x00FF00FF) | (pixel & 0x0000FF00);
    }
  }
  js_put(number, pixels.data(), rect.X, rect.Y, rect.Width, rect.Height, raster.Width(),
         raster.Height());
}

void PaintText(forms::Raster& raster, const forms::TextRun& run, const forms::Letters& letters) {
  js_paint_text(raster.Data(), raster.Width(), raster.Height(), run.X, run.Y, run.Text.c_str(),
                letters.Comic, letters.Pixels, letters.Bold,
                letters.Narrow ? forms::NarrowWidth : 1, letters.Sharp);
}

std::optional<Event> TakeEvent() {
  int kind = 0;
  Event event;
  char* text = nullptr;
  if (js_take_event(&kind, &event.Number, &event.Value, &text) == 0) {
    return std::nullopt;
  }
  event.Kind = static_cast<EventKind>(kind);
  event.Text = text;
  std::free(text);
  return event;
}

void Turn(double milliseconds) { js_turn(milliseconds); }
void WaitForEvent() { js_wait_for_event(); }
void WaitForFrame() { js_wait_for_frame(); }
bool IsFrameDue() { return js_is_frame_due() != 0; }
void AtRest() { js_at_rest(); }

void ShowBox(const std::string& text, bool information, const std::string& title) {
  js_box(text.c_str(), information, title.c_str());
}

std::optional<forms::Color> ChooseColor(forms::Color now) {
  const int color = js_choose_color(static_cast<int>(now.Rgb));
  if (color < 0) {
    return std::nullopt;
  }
  return forms::Color{static_cast<std::uint32_t>(color)};
}

void ShowEnd() { js_end(); }

}  // namespace clinorama::browser::document

#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/activation.h"
#include "forms/host.h"

class QDialog;

namespace clinorama::desktop {

class PageWindow;

// The desktop as the pages' host: windows, dialogs and the event loop of the toolkit. It holds no
// rule of the program.
class QtHost : public forms::Host {
 public:
  QtHost();
  ~QtHost() override;

  double Density() const override;
  void Shown(forms::Page& page) override;
  void Hidden(forms::Page& page) override;
  void Unloaded(forms::Page& page) override;
  void Changed(forms::Control& control) override;
  void Drawn(forms::PictureBox& picture) override;
  void Flush(forms::PictureBox& picture) override;
  void PaintText(forms::Raster& raster, const forms::TextRun& run) override;
  void SetFocus(forms::Control& control) override;
  void MsgBox(const std::string& text, int style, const std::string& title) override;
  std::optional<forms::Color> ShowColor(forms::Color now) override;
  void Wait(int milliseconds) override;
  void WaitForEvents() override;
  [[noreturn]] void End() override;

 private:
  QScreen& Here() const;
  PageWindow* WindowOf(forms::Control& control);
  void StandBeforeThePage(QDialog& dialog);
  void DropLeftWindows();

  std::map<forms::Page*, std::unique_ptr<PageWindow>> windows_;
  // Those whose page is gone. One of their widgets may be in the middle of an event.
  std::vector<std::unique_ptr<PageWindow>> left_;
  QTimer dropping_;
  QPointer<QScreen> leftScreen_;  // that of the page hidden last
  Activation activation_;
  QElapsedTimer sinceFlush_;
};

}  // namespace clinorama::desktop

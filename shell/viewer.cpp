#include "shell/viewer.h"

#include <memory>
#include <string>

#include "base/number_text.h"
#include "shell/window_frame.h"

namespace clinorama {
namespace {

// Where the client area lies, in twips. The highest viewer, 11310 with its frame, fits a screen of
// 768 pixels there. At the left the manual leaves the commands of the work page visible.
constexpr double ViewerLeft = 120;
constexpr double ViewerTop = 405;

constexpr double PageLeft = 60;  // of a picture in the client area
constexpr double PageTop = 120;

std::unique_ptr<forms::Image> MakePage(forms::Page& viewer, const ViewerKind& kind, int page,
                                       const std::string& name) {
  return std::make_unique<forms::Image>(
      viewer, name, forms::Rect{PageLeft, PageTop, kind.PageWidth, kind.PageHeight},
      kind.Pictures + base::TwoDigits(page), "Página " + std::to_string(page));
}

}  // namespace

PageViewer::PageViewer(const ViewerKind& kind)
    : Page(kind.Name, ClientAreaOf(ViewerLeft, ViewerTop, kind.Width, kind.Height), kind.Caption),
      Image1("Image1", 1, kind.Pages,
             [this, &kind](int page, const std::string& name) {
               return MakePage(*this, kind, page, name);
             }),
      kind_(kind) {
  PageUp = &SetaE;
  PageDown = &SetaD;
  ClosedByEscape = true;
  SetaE.AccessibleName = "Página anterior";
  SetaD.AccessibleName = "Página seguinte";
  Label2.Alignment = forms::Alignment::Center;
  Label3.Caption = "de  " + std::to_string(kind.Pages);
  Label4.Alignment = forms::Alignment::Center;
  Command1.Font = forms::Font{};

  SetaE.Click = [this] { SetaE_Click(); };
  SetaD.Click = [this] { SetaD_Click(); };
  Command1.Click = [this] { UserClose(); };
}

void PageViewer::Form_Load() {
  page_ = OpeningPage();
  for (int page = 1; page <= kind_.Pages; ++page) {
    Image1(page).Visible = page == page_;
  }
  SetaE.Enabled = page_ != 1;
  Label2.Caption = std::to_string(page_);
}

// A number that is no page of this viewer stands for page 1. The instructions open so when their
// opening page was not set before.
int PageViewer::OpeningPage() const {
  const int page = kind_.OpeningPage == nullptr ? 1 : *kind_.OpeningPage;
  return page >= 1 && page <= kind_.Pages ? page : 1;
}

void PageViewer::SetaD_Click() {
  if (page_ != kind_.Pages && Image1(page_).Visible) {
    Turn(1);
    SetaE.Enabled = true;
  }
  if (page_ == kind_.Pages) {
    SetaD.Enabled = false;
  }
  Label2.Caption = std::to_string(page_);
}

void PageViewer::SetaE_Click() {
  if (page_ != 1 && Image1(page_).Visible) {
    Turn(-1);
    SetaD.Enabled = true;
  }
  if (page_ == 1) {
    SetaE.Enabled = false;
  }
  Label2.Caption = std::to_string(page_);
}

void PageViewer::Turn(int pages) {
  Image1(page_).Visible = false;
  page_ += pages;
  Image1(page_).Visible = true;
}

forms::Rect PageViewer::InRow(double left, double width, double height) const {
  const double pageBottom = Image1(1).Top + Image1(1).Height;
  return {left, (pageBottom + Height - height) / 2, width, height};
}

}  // namespace clinorama

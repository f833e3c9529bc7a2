#include <QSvgRenderer>
#include <string>

#include "desktop_fixture.h"
#include "forms/controls.h"
#include "lesson/Form9.h"
#include "relations/Form13.h"
#include "shell/Form2.h"
#include "shell/Form5.h"
#include "shell/viewers.h"
#include "workpage/Form12.h"

namespace clinorama::tests {
namespace {

using forms::The;

// The name of the picture that a control shows; empty where it shows none.
std::string PictureOf(const forms::Control& control) {
  if (const auto* image = dynamic_cast<const forms::Image*>(&control)) {
    return image->Picture;
  }
  if (const auto* button = dynamic_cast<const forms::CommandButton*>(&control)) {
    return button->Picture;
  }
  return {};
}

void ExpectPictures(const forms::Control& container) {
  for (const forms::Control* control : container.Children()) {
    const std::string picture = PictureOf(*control);
    if (!picture.empty()) {
      EXPECT_TRUE(QSvgRenderer(QString::fromStdString(":/" + picture + ".svg")).isValid())
          << control->OwnerPage().Name() << " shows " << picture;
    }
    ExpectPictures(*control);
  }
}

// The place of a picture that is missing would be empty, and nothing else would tell.
TEST_F(DesktopTest, EveryPictureThatAPageShowsIsThere) {
  const forms::Page* const pages[] = {&The<Form2>(),  &The<Form3>(),  &The<Form4>(),
                                      &The<Form5>(),  &The<Form6>(),  &The<Form9>(),
                                      &The<Form11>(), &The<Form12>(), &The<Form13>()};
  for (const forms::Page* page : pages) {
    ExpectPictures(*page);
  }
}

}  // namespace
}  // namespace clinorama::tests

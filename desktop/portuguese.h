#pragma once

#include <QTranslator>

namespace clinorama::desktop {

// The toolkit's own texts that a user of this program meets (colour chooser, buttons of message
// boxes, the context menus of text boxes and of the speed bar), in Portuguese of Portugal.
class Portuguese : public QTranslator {
 public:
  using QTranslator::QTranslator;
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char* disambiguation,
                    int number) const override;
};

}  // namespace clinorama::desktop

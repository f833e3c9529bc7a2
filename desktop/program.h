#pragma once

#include <QApplication>

class QKeyEvent;

namespace clinorama::desktop {

// The toolkit's application, where a key that is held down acts once. Only text, the speed bar,
// menus and dialogs take its repetition, and the tabulator goes on.
class Program : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override;

 private:
  bool Repeats(const QKeyEvent& press) const;

  int releasedKey_ = 0;
  quint64 releasedAt_ = 0;
};

}  // namespace clinorama::desktop

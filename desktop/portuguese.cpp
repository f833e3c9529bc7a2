#include "desktop/portuguese.h"

#include <QHash>
#include <QString>

namespace clinorama::desktop {
namespace {

// No two contexts of the toolkit need different words for the same text, so the text is the key.
const QHash<QByteArray, QString>& Texts() {
  static const QHash<QByteArray, QString> texts = {
      // Buttons of dialogs
      {"OK", "OK"},
      {"&OK", "&OK"},
      {"Cancel", "Cancelar"},
      {"&Cancel", "&Cancelar"},
      {"Close", "Fechar"},
      {"&Close", "&Fechar"},
      // Colour chooser
      {"Select Color", "Escolher a cor"},
      {"&Basic colors", "Cores &básicas"},
      {"&Custom colors", "Cores &personalizadas"},
      {"&Add to Custom Colors", "&Juntar às cores personalizadas"},
      {"&Pick Screen Color", "&Escolher uma cor do ecrã"},
      {"Cursor at %1, %2\nPress ESC to cancel",
       "Ponteiro em %1, %2\nCarregue em ESC para cancelar"},
      {"Hu&e:", "&Tom:"},
      {"&Sat:", "&Sat.:"},
      {"&Val:", "Va&lor:"},
      {"&Red:", "Ve&rmelho:"},
      {"&Green:", "Ver&de:"},
      {"Bl&ue:", "Az&ul:"},
      {"A&lpha channel:", "Canal al&fa:"},
      {"&HTML:", "&HTML:"},
      // Context menu of a text box
      {"&Undo", "&Anular"},
      {"&Redo", "&Refazer"},
      {"Cu&t", "Cor&tar"},
      {"&Copy", "&Copiar"},
      {"&Paste", "Co&lar"},
      {"Delete", "Eliminar"},
      {"Select All", "Seleccionar tudo"},
      // Context menu of the speed bar
      {"Scroll here", "Deslocar para aqui"},
      {"Left edge", "Extremo esquerdo"},
      {"Right edge", "Extremo direito"},
      {"Page left", "Página à esquerda"},
      {"Page right", "Página à direita"},
      {"Scroll left", "Deslocar para a esquerda"},
      {"Scroll right", "Deslocar para a direita"},
  };
  return texts;
}

}  // namespace

QString Portuguese::translate(const char* /*context*/, const char* source,
                              const char* /*disambiguation*/, int /*number*/) const {
  return Texts().value(source);
}

}  // namespace clinorama::desktop

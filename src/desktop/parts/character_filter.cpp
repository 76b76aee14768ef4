#include "desktop/parts/character_filter.h"

#include <QLineEdit>
#include <QValidator>

namespace veln {

namespace {

class CharacterFilter : public QValidator {
 public:
  CharacterFilter(QObject* parent, bool (*refused)(char32_t character), Dialogs& dialogs)
      : QValidator(parent), refused_(refused), dialogs_(dialogs)
  {
  }

  State validate(QString& text, int& cursor) const override
  {
    bool dropped = false;
    for (qsizetype i = text.size(); i-- > 0;) {
      if (refused_(text.at(i).unicode())) {
        text.remove(i, 1);
        cursor -= i < cursor ? 1 : 0;
        dropped = true;
      }
    }
    if (dropped) {
      dialogs_.Beep();
    }
    return Acceptable;
  }

 private:
  bool (*refused_)(char32_t character);
  Dialogs& dialogs_;
};

}  // namespace

void DropCharacters(QLineEdit& edit, bool (*refused)(char32_t character), Dialogs& dialogs)
{
  edit.setValidator(new CharacterFilter(&edit, refused, dialogs));
}

}  // namespace veln

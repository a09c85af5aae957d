#include "dialogs/combobox.h"

#include <QEvent>

QSize ComboBox::sizeHint() const
{
    sizeAsked = true;
    return QComboBox::sizeHint();
}

QSize ComboBox::minimumSizeHint() const
{
    sizeAsked = true;
    return QComboBox::minimumSizeHint();
}

// The toolkit makes the list while it takes back the size that it worked out. As long as nobody has asked for
// the size there is none to take back, and a list that is made later has the font and the style of its time.
void ComboBox::changeEvent(QEvent* event)
{
    const bool takesSizeBack = event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
    if (sizeAsked || !takesSizeBack)
        QComboBox::changeEvent(event);
    else
        update();
}

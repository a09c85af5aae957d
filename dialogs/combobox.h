#pragma once

#include <QComboBox>

/// A combo box that comes on show without a list, and has one from its opening on. The toolkit's own makes it
/// as soon as the font or the style changes, and at the start the font size reaches every box.
class ComboBox : public QComboBox
{
public:
    using QComboBox::QComboBox;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    mutable bool sizeAsked = false;
};

// Looks for texts without the room that they need.

#include "support/roomcheck.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyleOptionComboBox>
#include <QTableView>
#include <QTextEdit>

#include <algorithm>

namespace {

constexpr int titleFrame = 50; // what the toolkit reckons for icon and buttons beside its boxes' titles

QString longestEntry(const QComboBox& combo)
{
    QString longest = combo.currentText();
    for (int row = 0; row < combo.count(); ++row) {
        const QFontMetrics font = combo.fontMetrics();
        if (font.horizontalAdvance(combo.itemText(row)) > font.horizontalAdvance(longest))
            longest = combo.itemText(row);
    }
    return longest;
}

QSize wantedByCombo(const QComboBox& combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    const QSize text(combo.fontMetrics().boundingRect(longestEntry(combo)).width(),
                     combo.fontMetrics().height()); // as the toolkit reckons
    return combo.style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, &combo);
}

QSize wantedByLabel(const QLabel& label)
{
    if (label.text().isEmpty())
        return {};
    if (label.hasHeightForWidth())
        return {label.minimumSizeHint().width(), label.heightForWidth(label.width())};
    return label.sizeHint();
}

/// Nothing for a widget without a text of its own, or whose text can be scrolled sideways.
QSize wantedSize(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return wantedByLabel(*label);
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        return wantedByCombo(*combo);
    if (const auto* bar = qobject_cast<const QStatusBar*>(&widget))
        return {bar->fontMetrics().horizontalAdvance(bar->currentMessage()), bar->fontMetrics().height()};
    if (qobject_cast<const QAbstractButton*>(&widget))
        return widget.sizeHint();
    if (qobject_cast<const QLineEdit*>(&widget))
        return {0, widget.minimumSizeHint().height()};
    if (qobject_cast<const QGroupBox*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget))
        return widget.minimumSizeHint();
    return {};
}

QString textOf(const QWidget& widget)
{
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        return longestEntry(*combo);
    if (const auto* bar = qobject_cast<const QStatusBar*>(&widget))
        return bar->currentMessage();
    for (const char* property : {"text", "title"}) {
        QString text = widget.property(property).toString();
        if (!text.isEmpty())
            return text;
    }
    return {};
}

QString called(const QWidget& widget)
{
    return QStringLiteral("%1 %2 \"%3\"")
        .arg(QLatin1String(widget.metaObject()->className()), widget.objectName(), textOf(widget));
}

QString inPixels(const QSize& size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

void checkText(const QWidget& widget, QStringList* problems)
{
    const QSize wanted = wantedSize(widget);
    if (wanted.width() > widget.width() || wanted.height() > widget.height())
        *problems << QStringLiteral("%1 wants %2, has %3")
                         .arg(called(widget), inPixels(wanted), inPixels(widget.size()));
}

void checkCells(const QTableView& table, QStringList* problems)
{
    for (int row = 0; row < table.model()->rowCount(); ++row) {
        for (int column = 0; column < table.model()->columnCount(); ++column) {
            const QModelIndex cell = table.model()->index(row, column);
            const QString text = cell.data().toString();
            const QSize wanted(table.fontMetrics().horizontalAdvance(text), table.fontMetrics().height());
            const QSize given = table.visualRect(cell).size();
            if (!text.isEmpty() && (wanted.width() > given.width() || wanted.height() > given.height()))
                *problems << QStringLiteral("cell \"%1\" wants %2, has %3")
                                 .arg(text, inPixels(wanted), inPixels(given));
        }
    }
}

void checkPage(const QTextEdit& page, QStringList* problems)
{
    const int beyond = page.horizontalScrollBar()->maximum();
    if (beyond > 0)
        *problems << QStringLiteral("%1: the page is %2 pixels wider than its view")
                         .arg(page.objectName())
                         .arg(beyond);
}

/// The parts that @p whole is made of by the program, not by the toolkit.
QList<const QWidget*> parts(const QWidget& whole)
{
    QList<const QWidget*> found;
    if (qobject_cast<const QAbstractScrollArea*>(&whole) || qobject_cast<const QAbstractSpinBox*>(&whole) ||
        qobject_cast<const QComboBox*>(&whole))
        return found;
    for (const QObject* object : whole.children()) {
        const auto* part = qobject_cast<const QWidget*>(object);
        if (part && part->isVisible() && !part->isWindow())
            found << part;
    }
    return found;
}

void checkPlaces(const QWidget& whole, QStringList* problems)
{
    const QList<const QWidget*> all = parts(whole);
    for (int i = 0; i < all.size(); ++i) {
        const QWidget& part = *all.at(i);
        if (!whole.rect().contains(part.geometry()))
            *problems << QStringLiteral("%1 sticks out of %2").arg(called(part), called(whole));
        for (int j = 0; j < i; ++j) {
            const QRect common = part.geometry() & all.at(j)->geometry();
            if (!common.isEmpty())
                *problems << QStringLiteral("%1 covers %2 of %3")
                                 .arg(called(part), inPixels(common.size()), called(*all.at(j)));
        }
    }
}

void checkWidget(const QWidget& widget, QStringList* problems)
{
    checkText(widget, problems);
    checkPlaces(widget, problems);
    if (const auto* table = qobject_cast<const QTableView*>(&widget))
        checkCells(*table, problems);
    if (const auto* page = qobject_cast<const QTextEdit*>(&widget))
        checkPage(*page, problems);
}

} // namespace

QStringList roomProblems(const QWidget& window)
{
    QStringList problems;
    const QFontMetrics titleFont(QApplication::font("QMdiSubWindowTitleBar"));
    const int title = titleFont.horizontalAdvance(window.windowTitle()) + titleFrame;
    if (title > window.width())
        problems << QStringLiteral("title \"%1\" wants %2, has %3")
                        .arg(window.windowTitle())
                        .arg(title)
                        .arg(window.width());
    QList<const QWidget*> left{&window};
    while (!left.isEmpty()) {
        const QWidget* widget = left.takeFirst();
        checkWidget(*widget, &problems);
        left << parts(*widget);
    }
    return problems;
}
